#include <array>
#include <cmath>
#include <limits>

#include "legacy/VybConverter.h"
#include "legacy/VybSectionText.h"
#include "model/VynData.h"

namespace Tevra {

namespace {

constexpr std::size_t kSectionText = 32;

std::wstring Named(const wchar_t* kind, int number, const wchar_t* part = L"") {
    return kind + std::to_wstring(number) + part;
}

Data::MaterialChoice Analysis(int material) {
    return {MatType::Generic, 0, material};
}

/// The spring with the stiffnesses of its translations, or of its rotations, alone.
Data::CSpringProp OnlyOf(Data::CSpringProp spring, bool translations) {
    for (const Direction d : kDirections) {
        if (IsTrans(d) != translations) {
            spring.SetStiff(d, 0.0);
        }
    }
    return spring;
}

}  // namespace

void CVybConverter::TakeAxis(CVybRecord& record) {
    static constexpr std::array kTypes = {AxisType::Cartesian, AxisType::Cylindrical,
                                          AxisType::Spherical};
    const int number = TakeNumber(record, CVybDirectory::kAxes);
    Data::CAxis axis;
    axis.SetName(Named(L"Axis ", number));
    axis.SetType(record.Code(kTypes));
    axis.SetOrigin(record.Vector());
    axis.SetXAxis(record.Vector());
    axis.SetXYPlane(record.Vector());
    if (record.Good()) {
        m_model.SetAxis(number, std::move(axis));
    }
}

void CVybConverter::TakeMaterial(CVybRecord& record) {
    const int number = TakeNumber(record, CVybDirectory::kMaterials);
    const double e = record.Real();
    const double nu = record.Real();
    const double density = record.Real();
    const double alpha = record.Real();
    const double g = record.Real();
    Data::CMatAnal material(Named(L"Material ", number), e, nu, density, alpha);
    if (g != 0.0) {
        material.SetG({g, g, g});
    }
    if (!std::isfinite(material.G())) {
        record.Refuse();
    }
    if (record.Good()) {
        m_model.SetMatAnal(number, std::move(material));
    }
}

void CVybConverter::TakeSection(CVybRecord& record) {
    const int number = TakeNumber(record, CVybDirectory::kSections);
    const int material = record.Reference();
    const int shape = record.Int();
    const std::wstring stored = record.Text(kSectionText);
    std::array<float, 6> properties{};
    for (float& value : properties) {
        value = record.Single();
    }
    if (record.Good()) {
        m_model.SetSection(
            number, Data::CSection(Named(L"Section ", number),
                                   VybSectionText(shape, stored, properties), Analysis(material)));
    }
}

void CVybConverter::TakeSpring(CVybRecord& record) {
    const int number = TakeNumber(record, CVybDirectory::kSprings);
    Data::CSpringProp spring;
    spring.SetAxis(record.Reference());
    spring.SetStiffnesses(record.Reals<6>());
    if (!record.Good()) {
        return;
    }
    m_splitSprings.erase(number);
    if (spring.TranslationActive() && spring.RotationActive()) {
        Data::CSpringProp rotations = OnlyOf(spring, false);
        rotations.SetName(Named(L"Spring prop. ", number, L" (Rotn)"));
        m_splitSprings.emplace(number, std::move(rotations));
        spring = OnlyOf(spring, true);
        spring.SetName(Named(L"Spring prop. ", number, L" (Tran)"));
    } else {
        spring.SetName(Named(L"Spring prop. ", number));
    }
    m_model.SetSpringProp(number, std::move(spring));
}

/// The rotations of springs that were split get the numbers behind the highest spring.
bool CVybConverter::FinishSprings() {
    const int highest = m_model.HighestSpringProp();
    if (m_splitSprings.size() >
        static_cast<std::size_t>(std::numeric_limits<int>::max() - highest)) {
        return false;
    }
    int next = highest;
    for (const auto& [number, rotations] : m_splitSprings) {
        m_rotationProps.emplace(number, ++next);
        m_model.SetSpringProp(next, rotations);
    }
    return true;
}

void CVybConverter::TakeMass(CVybRecord& record) {
    const int number = TakeNumber(record, CVybDirectory::kMasses);
    Data::CMassProp mass;
    mass.SetName(Named(L"Mass prop. ", number));
    mass.SetAxis(record.Reference());
    mass.SetMass(record.Real());
    const std::array<double, 6> inertia = record.Reals<6>();
    mass.SetInertia({inertia[0], inertia[1], inertia[2], inertia[3], inertia[4], inertia[5]});
    if (record.Good()) {
        m_model.SetMassProp(number, std::move(mass));
    }
}

void CVybConverter::TakeProp2D(CVybRecord& record) {
    static constexpr std::array kTypes = {Prop2DType::PlaneStress,  Prop2DType::PlaneStrain,
                                          Prop2DType::Axisymmetric, Prop2DType::Plate,
                                          Prop2DType::Shell,        Prop2DType::Membrane};
    const int number = TakeNumber(record, CVybDirectory::kProps2D);
    Data::CProp2D property;
    property.SetName(Named(L"2D prop. ", number));
    property.SetType(record.Code(kTypes));
    property.SetAxis(record.Reference());
    property.SetMaterial(Analysis(record.Reference()));
    property.SetThickness(record.Real());
    if (record.Good()) {
        m_model.SetProp2D(number, std::move(property));
    }
}

}  // namespace Tevra

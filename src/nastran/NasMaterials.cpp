#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <vector>

#include "model/ElasticModuli.h"
#include "model/VynData.h"
#include "nastran/NasFile.h"

// Materials, and which of them and of the properties can be written.

namespace Tevra {

namespace {

bool AreFinite(std::initializer_list<double> values) {
    return std::all_of(values.begin(), values.end(), [](double v) { return std::isfinite(v); });
}

/// Fields of a MAT8: E1 E2 NU12, shear moduli xy, zx and yz, density, two expansions.
std::vector<double> OrthotropicFields(const Data::CMatAnal& m) {
    return {m.E(0), m.E(1), m.Nu(0), m.G(0), m.G(2), m.G(1), m.Density(), m.Alpha(0), m.Alpha(1)};
}

/// Fields of a MAT1.
std::vector<double> IsotropicFields(const Data::CMatAnal& m) {
    return {ElasticModulus(m), ShearModulus(m), m.Nu(), m.Density(), m.Alpha()};
}

std::vector<double> FieldsOf(const Data::CMatAnal& m) {
    return m.IsOrthotropic() ? OrthotropicFields(m) : IsotropicFields(m);
}

}  // namespace

const Data::CMatAnal* CNasFile::MaterialOf(const std::vector<ExportedProperty>& property) const {
    return property.empty() ? nullptr : MaterialOf(property.front());
}

const Data::CMatAnal* CNasFile::MaterialOf(const ExportedProperty& property) const {
    const auto& all = m_materials.Materials();
    const auto found =
        std::lower_bound(all.begin(), all.end(), property.mid,
                         [](const ExportedMaterial& entry, int mid) { return entry.mid < mid; });
    return found != all.end() && found->mid == property.mid ? m_model->FindMaterial(found->source)
                                                            : nullptr;
}

/// Whether the material of a property is in the file: one with a value that is no number is not.
bool CNasFile::HasMaterial(const ExportedProperty& property) const {
    const Data::CMatAnal* material = MaterialOf(property);
    if (material == nullptr) {
        return false;
    }
    const std::vector<double> fields = FieldsOf(*material);
    return std::all_of(fields.begin(), fields.end(), [](double v) { return std::isfinite(v); });
}

bool CNasFile::HasMaterial(const std::vector<ExportedProperty>& property) const {
    return !property.empty() && HasMaterial(property.front());
}

std::vector<ExportedProperty> CNasFile::WithMaterial(std::vector<ExportedProperty> property) {
    const auto count =
        std::erase_if(property, [this](const ExportedProperty& p) { return !HasMaterial(p); });
    SkipMany(static_cast<int>(count), L"materials", L"a value of theirs is not a number");
    return property;
}

void CNasFile::FindWrittenProperties() {
    m_writtenSections = CBitSet(m_model->HighestSection());
    for (const int number : m_model->SectionTable().Numbers()) {
        const SectionProperties p = m_model->SectionProp(number, 0, 0.0, true);
        m_writtenSections.Set(number, HasMaterial(m_materials.Prop1D(number)) &&
                                          AreFinite({p.area, p.iyy, p.izz, p.iyz, p.j}));
    }
    m_writtenProps2D = CBitSet(m_model->HighestProp2D());
    for (const int number : m_model->Prop2DTable().Numbers()) {
        const Data::CProp2D& p = m_model->Prop2D(number);
        m_writtenProps2D.Set(number, !p.IsLoadPanel() && HasMaterial(m_materials.Prop2D(number)) &&
                                         p.InplaneThickness() > 0.0 &&
                                         AreFinite({p.InplaneThickness(), p.BendingThickness(),
                                                    p.ShearThickness(), p.AdditionalMass()}));
    }
    m_writtenProps3D = CBitSet(m_model->HighestProp3D());
    for (const int number : m_model->Prop3DTable().Numbers()) {
        m_writtenProps3D.Set(number, HasMaterial(m_materials.Prop3D(number)));
    }
}

bool CNasFile::WriteMaterials() {
    StartSection("Materials");
    for (const ExportedMaterial& entry : m_materials.Materials()) {
        const Data::CMatAnal* material = m_model->FindMaterial(entry.source);
        if (material == nullptr) {
            continue;  // the map holds materials that exist
        }
        SetSubject(L"Material", entry.mid);
        const Data::CMatAnal& m = *material;
        StartCard(m.IsOrthotropic() ? "MAT8" : "MAT1");
        AddInt(entry.mid);
        for (const double value : FieldsOf(m)) {
            AddReal(value);
        }
        EndCard();
    }
    return true;
}

/// Cables take the numbers between the analysis materials and the design grades.
bool CNasFile::WriteCableMaterials() {
    StartSection("Cable properties (materials)");
    for (const int number : m_model->CablePropTable().Numbers()) {
        const Data::CCableProp& cable = m_model->CableProp(number);
        SetSubject(L"Cable property", number);
        StartCard("MAT1");
        AddInt(static_cast<long long>(m_model->HighestMatAnal()) + number);
        for (const double value : {cable.E(), cable.G(), cable.Nu(), cable.Density()}) {
            AddReal(value);
        }
        EndCard();
    }
    return true;
}

}  // namespace Tevra

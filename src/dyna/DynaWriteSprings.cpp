#include <algorithm>

#include "dyna/DynaAnalysis.h"
#include "dyna/DynaCards.h"
#include "dyna/DynaElementKind.h"
#include "dyna/DynaOut.h"
#include "model/VynData.h"

// Sections of springs, dampers and cables, each with its material.

namespace Tevra {

using namespace DynaCards;

namespace {

constexpr int kDiscreteBeamFormulation = 6;
/// Discrete beams must have some mass and inertia. 1 kg and 1 kg m2 weigh little in a structure and
/// keep the time step of stiff springs, which falls with the root of the mass, near that of the
/// rest.
constexpr double kNominalDensity = 1.0;
constexpr double kNominalVolume = 1.0;
constexpr double kNominalInertia = 1.0;
/// Area of a cable whose property gives its stiffness alone.
constexpr double kUnitArea = 1.0;

/// The first direction for which `has` holds; X when there is none.
template <class Has>
Direction FirstDirection(Has has) {
    const auto* const found = std::find_if(kDirections.begin(), kDirections.end(), has);
    return found != kDirections.end() ? *found : Direction::X;
}

bool HasCurve(const Data::CSpringProp& spring) {
    return std::any_of(spring.Tables().begin(), spring.Tables().end(),
                       [](int curve) { return curve != 0; });
}

}  // namespace

/// A spring or damper along a line, or about it.
void CDynaAnalysis::WriteDiscreteSection(int section, Direction d) {
    m_out->Card<kDiscreteSection>(section, IsTrans(d) ? 0 : 1, 0.0, 0.0, 0.0, 0.0);
    m_out->Line<kDiscreteSection, 1>(0.0, 0.0);
}

bool CDynaAnalysis::WriteSpringSections() {
    for (const int number : m_model->SpringPropTable().Numbers()) {
        const Data::CSpringProp& spring = m_model->SpringProp(number);
        const int part = FindPart(DynaPart::Spring, number);
        if (!HasPart(spring)) {
            continue;
        }
        const PartRecord& record = m_parts[static_cast<std::size_t>(part - 1)];
        if (spring.IsSimple()) {
            WriteSimpleSpring(spring, record);
        } else {
            WriteDiscreteBeam(spring, record);
        }
    }
    return true;
}

void CDynaAnalysis::WriteSimpleSpring(const Data::CSpringProp& spring, const PartRecord& part) {
    const Direction d = FirstDirection([&](Direction k) { return spring.Stiff(k) != 0.0; });
    WriteDiscreteSection(part.section, d);
    m_out->Keyword(kSpringElastic);
    m_out->NameComment(spring.Name());
    m_out->Line<kSpringElastic>(part.material, spring.Stiff(d));
}

/// The directions of the spring are those of its axis.
void CDynaAnalysis::WriteDiscreteBeam(const Data::CSpringProp& spring, const PartRecord& part) {
    m_out->Card<kDiscreteBeamSection>(part.section, kDiscreteBeamFormulation);
    m_out->Line<kDiscreteBeamSection, 1>(kNominalVolume, kNominalInertia, AxisNumber(spring.Axis()),
                                         0.0);
    if (!HasCurve(spring)) {
        const std::array<double, 6>& k = spring.Stiffnesses();
        m_out->Keyword(kLinearDiscreteBeam);
        m_out->NameComment(spring.Name());
        m_out->Line<kLinearDiscreteBeam>(part.material, kNominalDensity, k[0], k[1], k[2], k[3],
                                         k[4], k[5]);
        m_out->Line<kLinearDiscreteBeam, 1>(0.0, 0.0, 0.0, 0.0, 0.0, 0.0);
        m_out->Line<kLinearDiscreteBeam, 2>(0.0, 0.0, 0.0, 0.0, 0.0, 0.0);
    } else {
        WriteCurvedSpring(spring, part);
    }
}

/// Directions without a curve have no stiffness in this material.
void CDynaAnalysis::WriteCurvedSpring(const Data::CSpringProp& spring, const PartRecord& part) {
    std::array<int, 6> c{};
    std::transform(spring.Tables().begin(), spring.Tables().end(), c.begin(),
                   [this](int curve) { return CurveNumber(curve); });
    m_out->Keyword(kNonlinearDiscreteBeam);
    m_out->NameComment(spring.Name());
    m_out->Line<kNonlinearDiscreteBeam>(part.material, kNominalDensity, c[0], c[1], c[2], c[3],
                                        c[4], c[5]);
    m_out->Line<kNonlinearDiscreteBeam, 1>(0, 0, 0, 0, 0, 0);
    m_out->Line<kNonlinearDiscreteBeam, 2>(0.0, 0.0, 0.0, 0.0, 0.0, 0.0);
    m_out->Line<kNonlinearDiscreteBeam, 3>(0.0, 0.0, 0.0, 0.0, 0.0, 0.0);
    m_out->Line<kNonlinearDiscreteBeam, 4>(0.0, 0.0, 0.0, 0.0, 0.0, 0.0);
    const bool isCut = std::any_of(kDirections.begin(), kDirections.end(), [&](Direction d) {
        return c[static_cast<std::size_t>(d)] == 0 &&
               (spring.Stiff(d) != 0.0 || spring.TableRef(d) != 0);
    });
    if (isCut) {
        AddNote(L"Spring property", part.property,
                L"is written by the curves that exist; its other directions have no stiffness");
    }
}

bool CDynaAnalysis::WriteDamperSections() {
    for (const int number : m_model->DamperPropTable().Numbers()) {
        const Data::CDamperProp& damper = m_model->DamperProp(number);
        const PartRecord& part =
            m_parts[static_cast<std::size_t>(FindPart(DynaPart::Damper, number) - 1)];
        const Direction d = FirstDirection([&](Direction k) { return damper.Coefficient(k) != 0; });
        WriteDiscreteSection(part.section, d);
        m_out->Keyword(kDamperViscous);
        m_out->NameComment(damper.Name());
        m_out->Line<kDamperViscous>(part.material, damper.Coefficient(d));
        if (!damper.IsSimple() && damper.Coefficient(d) != 0.0) {
            AddNote(L"Damper property", number,
                    L"is written by its first coefficient: a discrete damper has one direction");
        }
    }
    return true;
}

bool CDynaAnalysis::WriteCableSections() {
    for (const int number : m_model->CablePropTable().Numbers()) {
        const Data::CCableProp& cable = m_model->CableProp(number);
        const PartRecord& part =
            m_parts[static_cast<std::size_t>(FindPart(DynaPart::Cable, number) - 1)];
        m_out->Card<kDiscreteBeamSection>(part.section, kDiscreteBeamFormulation);
        m_out->Line<kDiscreteBeamSection, 1>(0.0, 0.0, 0,
                                             cable.Area() > 0.0 ? cable.Area() : kUnitArea);
        m_out->Keyword(kCableMaterial);
        m_out->NameComment(cable.Name(), "$MT_TITLE ");
        m_out->Line<kCableMaterial>(part.material, cable.Density(), cable.E(), 0);
    }
    return true;
}

}  // namespace Tevra

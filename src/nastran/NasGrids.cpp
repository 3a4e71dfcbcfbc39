#include <algorithm>
#include <cmath>
#include <iterator>

#include "io/TextOut.h"
#include "model/VynData.h"
#include "nastran/ComponentDigits.h"
#include "nastran/NasFile.h"

// Axis systems, grid points, and what is attached to them.

namespace Tevra {

namespace {

bool IsFinite(const Vec3<double>& v) {
    return std::isfinite(v.x) && std::isfinite(v.y) && std::isfinite(v.z);
}

std::string_view AxisCard(AxisType type) {
    switch (type) {
        case AxisType::Cylindrical:
            return "CORD2C";
        case AxisType::Spherical:
            return "CORD2S";
        default:
            return "CORD2R";
    }
}

}  // namespace

/// Whether a node is asked for: by the selection, or as the orientation node of an element.
bool CNasFile::NodePasses(int node) const {
    return m_model->NodeIsActive(node, m_selection, SelType::Element) ||
           m_model->Node(node).IsOrientationNodeTo(SelType::Element);
}

bool CNasFile::IsNodeWritten(int node) const {
    return m_writtenNodes.Test(node);
}

void CNasFile::FindWrittenNodes() {
    m_writtenNodes = CBitSet(m_model->HighestNode());
    for (const int number : m_model->NodeTable().Numbers()) {
        m_writtenNodes.Set(number,
                           NodePasses(number) && IsFinite(m_model->Node(number).Position()));
    }
}

int CNasFile::CoordinateSystem(int axis) {
    if (axis <= 0 || IsAxisWritten(axis)) {
        return axis > 0 ? axis : 0;
    }
    AddNote(m_subjectKind, m_subjectNumber,
            L"is written in global axes: there is no axis " + std::to_wstring(axis));
    return 0;
}

bool CNasFile::IsAxisWritten(int axis) const {
    const Data::CAxis* record = m_model->AxisTable().Find(axis);
    return record != nullptr && IsFinite(record->Origin()) && IsFinite(record->XAxis()) &&
           IsFinite(record->ZAxis());
}

Vec3<double> CNasFile::InTargetAxes(int axis, const Vec3<double>& v) const {
    const bool isSpherical =
        m_model->AxisExist(axis) && m_model->Axis(axis).TypeOf() == AxisType::Spherical;
    return isSpherical ? Vec3<double>{v.x, 0.0 - v.z, v.y} : v;
}

bool CNasFile::WriteAxes() {
    StartSection("Axis systems");
    for (const int number : m_model->AxisTable().Numbers()) {
        const Data::CAxis& axis = m_model->Axis(number);
        SetSubject(L"Axis", number);
        StartCard(AxisCard(axis.TypeOf()));
        AddInt(number);
        AddInt(0);
        AddReals(axis.Origin());
        AddReals(axis.Origin() + axis.ZAxis());
        AddReals(axis.Origin() + axis.XAxis());
        EndCard();
        if (axis.TypeOf() == AxisType::Spherical) {
            AddNote(L"Axis", number,
                    L"has its second and third direction in the target's order, which is down and "
                    L"round where the host's is round and up");
        }
    }
    return true;
}

bool CNasFile::WriteGrids() {
    StartSection("Nodes");
    for (const int number : m_model->NodeTable().Numbers()) {
        if (!NodePasses(number)) {
            continue;
        }
        const Data::CNode& node = m_model->Node(number);
        SetSubject(L"Node", number);
        StartCard("GRID");
        AddInt(number);
        AddInt(0);
        AddReals(node.Position());
        AddInt(CoordinateSystem(node.Axis()));
        EndCard();
    }
    return m_out->Good();
}

bool CNasFile::WriteRestraints() {
    StartSection("Restraints");
    for (const int number : m_model->NodeTable().Numbers()) {
        const Vbool6 restraint = m_model->Node(number).TotalNodalRestraint();
        if (restraint.IsNone() || !IsNodeWritten(number)) {
            continue;
        }
        StartCard("SPC");
        AddInt(1);
        AddInt(number);
        AddInt(Nas::DigitsOf(restraint));
        AddReal(0.0);
        EndCard();
    }
    return true;
}

bool CNasFile::WriteNodeProperties() {
    StartSection("Nodal spring and mass");
    for (const int number : m_model->NodeTable().Numbers()) {
        const int spring = m_model->NodeSpringProperty(number);
        const int mass = m_model->NodeMassProperty(number);
        const int damper = m_model->NodeDamperProperty(number);
        if ((spring == 0 && mass == 0 && damper == 0) || !IsNodeWritten(number)) {
            continue;
        }
        if (spring != 0) {
            WriteNodeSpring(number, spring);
        }
        if (mass != 0) {
            WriteNodeMass(number, mass);
        }
        if (damper != 0) {
            WriteNodeDamper(number, damper);
        }
    }
    return true;
}

/// Kept as files in the field have it: the property that the card names is not in the file, and the
/// card has one direction, the first that acts; the stiffness of every direction follows as spring
/// supports.
template <class Acts>
void CNasFile::WriteAttached(std::string_view card, int node, int property, Acts acts) {
    const auto* const first = std::find_if(std::begin(kDirections), std::end(kDirections), acts);
    StartCard(card);
    AddInt(NextElement());
    AddInt(property);
    AddInt(node);
    AddInt(Nas::DigitOf(first != std::end(kDirections) ? *first : Direction::X));
    EndCard();
}

void CNasFile::WriteNodeSpring(int node, int property) {
    SetSubject(L"The spring at node", node);
    if (!m_model->SpringPropExist(property)) {
        Skip(L"its property does not exist");
        return;
    }
    const Data::CSpringProp& spring = m_model->SpringProp(property);
    WriteAttached("CELAS1", node, property,
                  [&spring](Direction d) { return spring.Stiff(d) > Nas::kLeastStiffness; });
}

void CNasFile::WriteNodeMass(int node, int property) {
    SetSubject(L"The mass at node", node);
    if (!m_model->MassPropExist(property)) {
        Skip(L"its property does not exist");
        return;
    }
    const Data::CMassProp& mass = m_model->MassProp(property);
    const TensSym3<double>& inertia = mass.Inertia();
    StartCard("CONM2");
    AddInt(NextElement());
    AddInt(node);
    AddInt(CoordinateSystem(m_model->Node(node).Axis()));
    AddReal(mass.Mass());
    AddReals({0.0, 0.0, 0.0});
    AddBlankFields(1);
    if (mass.HasInertia() && mass.Axis() != m_model->Node(node).Axis()) {
        AddNote(L"The mass at node", node, L"is written in the axes of the node, not in its own");
    }
    // The lower triangle; products are positive integrals in both programs.
    for (const double term :
         {inertia.xx, inertia.xy, inertia.yy, inertia.zx, inertia.yz, inertia.zz}) {
        AddReal(term);
    }
    EndCard();
}

void CNasFile::WriteNodeDamper(int node, int property) {
    SetSubject(L"The damper at node", node);
    if (!m_model->DamperPropExist(property)) {
        Skip(L"its property does not exist");
        return;
    }
    const Data::CDamperProp& damper = m_model->DamperProp(property);
    WriteAttached("CDAMP1", node, property,
                  [&damper](Direction d) { return damper.Coefficient(d) != 0.0; });
}

bool CNasFile::WriteSpringSupports() {
    StartSection("Spring supports - added as CELAS2 elements");
    for (const int number : m_model->NodeTable().Numbers()) {
        const int property = m_model->NodeSpringProperty(number);
        if (property == 0 || !IsNodeWritten(number) ||
            !m_model->NodeIsActive(number, m_selection, SelType::Element)) {
            continue;
        }
        SetSubject(L"The spring support at node", number);
        for (const Direction d : kDirections) {
            const double stiffness = m_model->SpringProp(property).Stiff(d);
            if (stiffness > Nas::kLeastStiffness) {
                WriteGroundSpring(NextElement(), stiffness, number, d);
            }
        }
    }
    return true;
}

void CNasFile::WriteGroundSpring(int element, double stiffness, int node, Direction direction) {
    StartCard("CELAS2");
    AddInt(element);
    AddReal(stiffness);
    AddInt(node);
    AddInt(Nas::DigitOf(direction));
    EndCard();
}

}  // namespace Tevra

#include <algorithm>
#include <climits>

#include "dyna/DynaAnalysis.h"
#include "dyna/DynaCards.h"
#include "dyna/DynaCodes.h"
#include "dyna/DynaElementKind.h"
#include "dyna/DynaElementLoop.h"
#include "dyna/DynaOut.h"
#include "model/LinkKind.h"
#include "model/Placed.h"
#include "model/VynData.h"

// Beams, springs, dampers, cables and links.

namespace Tevra {

using namespace DynaCards;

namespace {

/// Release codes of the translations and of the rotations of an end.
struct ReleaseCodes {
    int translations = 0;
    int rotations = 0;
};

int ReleaseCode(unsigned directions) {
    // The table has all eight sets of directions.
    const auto* const found = std::find(kDynaDirections.begin(), kDynaDirections.end(), directions);
    return static_cast<int>(found - kDynaDirections.begin());
}

bool IsOnSpring(const Data::CElemConnect& connect) {
    return std::any_of(kDirections.begin(), kDirections.end(),
                       [&](Direction d) { return connect.State(d) == Data::ReleaseState::Spring; });
}

ReleaseCodes CodesOf(const Data::CElemConnect& connect) {
    const unsigned released = connect.Released().Bits();
    return {ReleaseCode(released & 7U), ReleaseCode(released >> 3U)};
}

/// Whether a node lies on the line of an element, which then has no plane.
bool IsOnLine(const CVynData& model, const Data::CElement& element, int node) {
    constexpr double kSmallSine = 1e-6;
    const Vec3<double> line = model.TopoPosition(element, 2) - model.TopoPosition(element, 1);
    const Vec3<double> arm = model.Node(node).Position() - model.TopoPosition(element, 1);
    return Length(Cross(line, arm)) <= kSmallSine * Length(line) * Length(arm);
}

}  // namespace

/// The node that lies on the +y side of the element's x-y plane: the element's own where that alone
/// fixes the plane, else a new one, which is written at once. False when that can't be placed.
bool CDynaAnalysis::OrientationNode(int element, int& node) {
    const Data::CElement& record = m_model->Elem(element);
    node = record.OrientationNode();
    const bool isTurned = record.OrientationAngle() != 0.0;  // one that is no number is turned
    m_counts.lengthless += HasNodes(record) && !HasLength(*m_model, record) ? 1 : 0;
    if (!isTurned && IsNode(node)) {
        m_counts.collinear += IsOnLine(*m_model, record, node) ? 1 : 0;
        return true;
    }
    if (!IsNode(record.Topo(1)) || m_highestNode == INT_MAX) {
        AddError(L"Element " + std::to_wstring(element) +
                 (m_highestNode == INT_MAX
                      ? L": no number is left for its orientation node"
                      : L": its orientation node can't be placed, as its first node does not "
                        L"exist"));
        return false;
    }
    node = ++m_highestNode;
    m_out->Keyword(kNode);
    const Vec3<double>& start = m_model->TopoPosition(record, 1);
    WriteNode(node, start + m_model->ElemDC(element).AxisVec(1) * ArmAt(start));
    return true;
}

bool CDynaAnalysis::WriteBeams() {
    return WriteElementsOf(DynaPart::Beam, [this](int element) { return WriteBeam(element); });
}

/// Kept: offsets are in the axes of the element, where the target takes global ones.
bool CDynaAnalysis::WriteBeam(int element) {
    int third = 0;
    if (!OrientationNode(element, third)) {
        return false;
    }
    const Data::CElement& record = m_model->Elem(element);
    const bool isOffset = m_model->IsTotalOffset(element);
    const ReleaseCodes end1 = CodesOf(record.Connect(1));
    const ReleaseCodes end2 = CodesOf(record.Connect(2));
    m_counts.sprungEnds += IsOnSpring(record.Connect(1)) ? 1 : 0;
    m_counts.sprungEnds += IsOnSpring(record.Connect(2)) ? 1 : 0;
    m_out->Keyword(isOffset ? kOffsetBeam : kBeam);
    m_out->Line<kBeam>(element, PartOf(element), record.Topo(1), record.Topo(2), third,
                       end1.translations, end1.rotations, end2.translations, end2.rotations);
    if (isOffset) {
        const Vec3<double> at1 = m_model->TotalLocalOffset(element, 1);
        const Vec3<double> at2 = m_model->TotalLocalOffset(element, 2);
        m_out->Line<kOffsetBeam, 1>(at1.x, at1.y, at1.z, at2.x, at2.y, at2.z);
    }
    return true;
}

/// `nodes` are the ends, the second 0 for a spring to the ground, and the orientation node.
void CDynaAnalysis::WriteSpring(long long number, int part, bool isDiscrete,
                                const std::array<int, 3>& nodes) {
    const Vec3<double> line =
        m_model->Node(nodes[1]).Position() - m_model->Node(nodes[0]).Position();
    const bool hasLine = nodes[1] != 0 && Length(line) > 0.0;
    m_counts.undirected += isDiscrete && !hasLine && nodes[2] == 0 ? 1 : 0;
    m_out->Keyword(isDiscrete ? kDiscrete : kBeam);
    m_out->Line<kDiscrete>(number, part, nodes[0], nodes[1], nodes[2]);
}

bool CDynaAnalysis::WriteSprings() {
    return WriteElementsOf(DynaPart::Spring, [this](int element) {
        const Data::CElement& record = m_model->Elem(element);
        const int property = m_model->ElemStageProperty(element, m_stage);
        WriteSpring(element, PartOf(element), m_model->SpringProp(property).IsSimple(),
                    {record.Topo(1), record.Topo(2), record.OrientationNode()});
        return true;
    });
}

bool CDynaAnalysis::WriteDampers() {
    return WriteElementsOf(DynaPart::Damper, [this](int element) {
        const Data::CElement& record = m_model->Elem(element);
        WriteSpring(element, PartOf(element), true,
                    {record.Topo(1), record.Topo(2), record.OrientationNode()});
        return true;
    });
}

bool CDynaAnalysis::WriteCables() {
    return WriteElementsOf(DynaPart::Cable, [this](int element) {
        int third = 0;
        if (!OrientationNode(element, third)) {
            return false;
        }
        const Data::CElement& record = m_model->Elem(element);
        m_out->Card<kBeam>(element, PartOf(element), record.Topo(1), record.Topo(2), third);
        return true;
    });
}

bool CDynaAnalysis::WriteLinks() {
    return WriteElementsOf(DynaPart::Link, [this](int element) {
        WriteLink(element);
        return true;
    });
}

/// A link is a rigid body of its two nodes, with a coordinate system along it. Kept: the number of
/// that system runs on from the count of user axes, and may be that of an axis or of the global
/// system.
void CDynaAnalysis::WriteLink(int element) {
    const Data::CElement& record = m_model->Elem(element);
    const int part = PartOf(element);
    const int system = ++m_coordinateCount;
    const int set = NextSet();
    m_out->Card<kRigidBody>(part, system, set);
    WriteSet(kNodeList, set, {record.Topo(1), record.Topo(2)});
    const Util::CDirCos axes = m_model->ElemDC(element);
    m_out->Keyword(kCoordinateSystem);
    WriteCoordinateSystem(system, m_model->TopoPosition(record, 1), axes.AxisVec(0),
                          axes.AxisVec(1));
    AddBody(part, {record.Topo(1), record.Topo(2)});
    const Data::CLinkProp* const property = m_model->LinkPropTable().Find(record.Property());
    if (property != nullptr && property->TypeOf() != kAllLinked) {
        AddNote(L"Element", element, L"is written as a rigid link, which ties all freedoms");
    }
}

}  // namespace Tevra

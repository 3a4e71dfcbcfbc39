#include <string>

#include "dyna/DynaAnalysis.h"
#include "dyna/DynaCards.h"
#include "dyna/DynaElementKind.h"
#include "dyna/DynaElementLoop.h"
#include "dyna/DynaOut.h"
#include "model/Faces.h"
#include "model/VynData.h"

// Shells and solids, and which elements there are.

namespace Tevra {

using namespace DynaCards;

namespace {

/// Topology places of the eight node fields of a solid, by its number of nodes.
struct SolidNodes {
    int count;
    std::array<int, 8> places;
};

constexpr SolidNodes kSolidNodes[] = {
    {8, {1, 2, 3, 4, 5, 6, 7, 8}},
    {6, {4, 5, 2, 1, 6, 6, 3, 3}},
    {5, {1, 2, 3, 4, 5, 5, 5, 5}},
    {4, {1, 2, 3, 4, 4, 4, 4, 4}},
};

}  // namespace

bool HasNodes(const Data::CElement& element) {
    const int least = InfoOf(element.Type()).minNodes;
    bool has = element.NumTopo() >= least;
    for (int k = 1; k <= least && has; ++k) {
        has = element.Topo(k) >= 1;
    }
    return has;
}

bool NodesExist(const CVynData& model, const Data::CElement& element) {
    const int highest = model.HighestNode();
    const bool hasGaps = model.NumNode() != highest;
    bool has = true;
    for (int k = 1; k <= element.NumTopo() && has; ++k) {
        const int node = element.Topo(k);
        has = node >= 1 && node <= highest && (!hasGaps || model.NodeExist(node));
    }
    return has;
}

/// The kinds of elements there are, so that no loop runs for one that there is not, and what of
/// them a user should know.
void CDynaAnalysis::FindKinds() {
    m_hasKind = {};
    m_counts = {};
    for (const int number : m_model->ElemTable().Numbers()) {
        const Data::CElement& record = m_model->Elem(number);
        const DynaPart kind = KindOf(record);
        if (kind != DynaPart::Undefined) {
            m_hasKind[static_cast<std::size_t>(kind)] = true;
        }
        m_counts.points += record.Type() == ElementType::Mass ? 1 : 0;
        m_counts.spacers += record.IsSpacer() ? 1 : 0;
        m_counts.dummies += record.IsDummy() ? 1 : 0;
    }
}

bool CDynaAnalysis::WriteShells() {
    return WriteElementsOf(DynaPart::Shell, [this](int element) {
        WriteShell(element);
        return true;
    });
}

/// The axis of the property orients the material of a shell. Mid-side nodes are left out.
void CDynaAnalysis::WriteShell(int element) {
    const Data::CElement& record = m_model->Elem(element);
    const int property = m_model->ElemStageProperty(element, m_stage);
    const int part = FindPart(DynaPart::Shell, property);
    const int last = record.Topo(CornerCount(record.Type()) == 4 ? 4 : 3);
    const Data::CProp2D* const found = m_model->Prop2DTable().Find(property);
    if (found == nullptr) {
        m_out->Card<kShell>(element, part, record.Topo(1), record.Topo(2), record.Topo(3), last);
        return;
    }
    m_counts.panels += found->IsLoadPanel() ? 1 : 0;
    const int axis = AxisNumber(found->Axis());
    m_out->Card<kOrientedShell>(element, part, record.Topo(1), record.Topo(2), record.Topo(3),
                                last);
    m_out->Line<kOrientedShell, 1>(0.0, 0.0, 0.0, 0.0, axis != 0 ? axis : m_globalSystem);
}

bool CDynaAnalysis::WriteSolids() {
    return WriteElementsOf(DynaPart::Solid, [this](int element) {
        WriteSolid(element);
        return true;
    });
}

void CDynaAnalysis::WriteSolid(int element) {
    const Data::CElement& record = m_model->Elem(element);
    const SolidNodes* nodes = kSolidNodes;
    while (nodes->count != InfoOf(record.Type()).minNodes) {
        ++nodes;  // the table has all types of solids
    }
    const auto node = [&](std::size_t i) { return record.Topo(nodes->places[i]); };
    m_out->Card<kSolid>(element, PartOf(element));
    m_out->Line<kSolid, 1>(node(0), node(1), node(2), node(3), node(4), node(5), node(6), node(7));
}

void CDynaAnalysis::NoteElements() {
    const struct {
        int count;
        const wchar_t* text;
    } notes[] = {
        {m_counts.points, L"Mass elements that are not written, as masses belong to nodes: "},
        {m_counts.spacers, L"Spacers that are not written: "},
        {m_counts.dummies, L"Dummy elements that are written like others: "},
        {m_counts.panels, L"Elements of load panels that are written as shells: "},
        {m_counts.sprungEnds, L"Ends of beams on springs that are written as fixed: "},
        {m_counts.lengthless, L"Beams and cables that are written without length: "},
        {m_counts.collinear, L"Beams and cables whose orientation node lies on their line: "},
        {m_counts.undirected,
         L"Springs and dampers that are written without their direction, as they have no line: "},
    };
    for (const auto& note : notes) {
        if (note.count > 0) {
            AddNote(note.text + std::to_wstring(note.count));
        }
    }
}

}  // namespace Tevra

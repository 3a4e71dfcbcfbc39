#include <algorithm>

#include "model/Placed.h"
#include "model/Util.h"
#include "opensees/OpenseesFile.h"
#include "opensees/OpsContext.h"

// Rigid links, diaphragms and joints.

namespace Tevra {

namespace {

/// The direction square to a rigid plane, 1 to 3, and whether its nodes turn freely.
struct LinkCode {
    int linkType;
    char perpendicular;
    bool isPinned;
};
constexpr LinkCode kCodes[] = {
    {2101, '3', false}, {53, '3', true},  {1411, '2', false}, {1283, '2', true},
    {856, '1', false},  {848, '1', true}, {1911, '0', true},
};

LinkCode CodeOf(int linkType) {
    const auto* const found =
        std::find_if(std::begin(kCodes), std::end(kCodes),
                     [linkType](const LinkCode& code) { return code.linkType == linkType; });
    return found != std::end(kCodes) ? *found : LinkCode{linkType, '0', false};
}

}  // namespace

/// Kept: pinned links are "rod", a word that the target's command does not take.
void COpenseesFile::WriteRigidLinks(OpsContext& c) {
    c.out.Append("\n# links and rigid constraints\n");
    for (const int number : m_model->ElemTable().Numbers()) {
        const Data::CElement& record = m_model->Elem(number);
        if (!record.IsLink() || record.IsDummy() || !m_model->LinkPropExist(record.Property()) ||
            !HasPlacedNodes(*m_model, record)) {
            continue;
        }
        const bool isPinned = CodeOf(m_model->LinkProp(record.Property()).TypeOf()).isPinned;
        c.out.Append("rigidLink ").Append(isPinned ? "rod " : "beam ");
        c.out.Int(record.Topo(1)).Append(' ').Int(record.Topo(2)).EndLine();
    }
    for (const int number : m_model->RigidTable().Numbers()) {
        const Data::CRigid& rigid = m_model->Rigid(number);
        if (!IsPlaced(*m_model, rigid.PrimaryNode())) {
            AddNote(L"Rigid constraint " + std::to_wstring(number) +
                    L" is not exported, as its primary node does not exist");
            continue;
        }
        c.line.Append("rigidDiaphragm ").Append(CodeOf(rigid.TypeOf()).perpendicular);
        c.line.Append(' ').Int(rigid.PrimaryNode());
        Util::Item(rigid.Nodes(), *m_model, -1, true).ForEach([&](int node) {
            if (IsPlaced(*m_model, node)) {
                c.line.Append(' ').Int(node);
            }
        });
        c.line.End();
    }
}

void COpenseesFile::WriteJoints(OpsContext& c) {
    c.out.Append("\n# joints\n");
    for (const int number : m_model->JointTable().Numbers()) {
        const Data::CJoint& joint = m_model->Joint(number);
        if (!IsPlaced(*m_model, joint.Node(1)) || !IsPlaced(*m_model, joint.Node(2))) {
            AddNote(L"Joint " + std::to_wstring(number) +
                    L" is not exported, as one of its nodes does not exist");
            continue;
        }
        c.line.Append("equalDOF ").Int(joint.Node(1)).Append(' ').Int(joint.Node(2));
        for (const Direction d : kDirections) {
            if (joint.Freedom().IncludesDirection(d)) {
                c.line.Append(' ').Int(static_cast<int>(d) + 1);
            }
        }
        c.line.End();
    }
}

}  // namespace Tevra

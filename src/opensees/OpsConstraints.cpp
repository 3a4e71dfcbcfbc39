#include "model/LinkKind.h"
#include "model/Placed.h"
#include "opensees/OpenseesFile.h"
#include "opensees/OpsContext.h"

// Rigid links, diaphragms and joints.

namespace Tevra {

/// Kept: pinned links are "rod", a word that the target's command does not take.
void COpenseesFile::WriteRigidLinks(OpsContext& c) {
    c.out.Append("\n# links and rigid constraints\n");
    for (const int number : m_model->ElemTable().Numbers()) {
        const Data::CElement& record = m_model->Elem(number);
        if (!record.IsLink() || record.IsDummy() || !m_model->LinkPropExist(record.Property()) ||
            !HasPlacedNodes(*m_model, record)) {
            continue;
        }
        const LinkKind* const kind = FindLinkKind(m_model->LinkProp(record.Property()).TypeOf());
        const bool isPinned = kind != nullptr && kind->isPinned;
        c.out.Append("rigidLink ").Append(isPinned ? "rod " : "beam ");
        c.out.Int(record.Topo(1)).Append(' ').Int(record.Topo(2)).EndLine();
    }
    for (const int number : m_model->RigidTable().Numbers()) {
        const Data::CRigid& rigid = m_model->Rigid(number);
        if (!IsPlaced(*m_model, rigid.PrimaryNode())) {
            AddNote(L"Rigid constraint", number,
                    L"is not exported, as its primary node does not exist");
            continue;
        }
        const LinkKind* const kind = FindLinkKind(rigid.TypeOf());
        c.line.Append("rigidDiaphragm ").Int(kind != nullptr ? kind->normal : 0);
        c.line.Append(' ').Int(rigid.PrimaryNode());
        ForEachPlaced(*m_model, rigid.Nodes(), [&c](int node) { c.line.Append(' ').Int(node); });
        c.line.End();
    }
}

void COpenseesFile::WriteJoints(OpsContext& c) {
    c.out.Append("\n# joints\n");
    for (const int number : m_model->JointTable().Numbers()) {
        const Data::CJoint& joint = m_model->Joint(number);
        if (!HasPlacedNodes(*m_model, joint)) {
            AddNote(L"Joint", number, L"is not exported, as one of its nodes does not exist");
            continue;
        }
        if (joint.Freedom().IsNone()) {
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

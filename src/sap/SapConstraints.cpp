#include <array>

#include "model/LinkKind.h"
#include "model/Placed.h"
#include "sap/SapContext.h"
#include "sap/SapFile.h"

// Rigid constraints, rigid links and joints, named by one counter in the order written.

namespace Tevra {

namespace {

/// By what is square to the plane that is tied; first for no plane.
constexpr std::array<std::string_view, 4> kWords = {"TYPE=BODY ", "TYPE=DIAPH AXIS=X ",
                                                    "TYPE=DIAPH AXIS=Y ", "TYPE=DIAPH AXIS=Z "};

std::string_view WordOf(const LinkKind* kind) {
    return kind != nullptr ? kWords[static_cast<std::size_t>(kind->normal)] : std::string_view();
}

void WriteName(SapContext& c, int& name, std::string_view word) {
    c.out.Append("  NAME=").Int(name++, 0, kNameDigits);
    c.out.Append(word.empty() ? "" : " ").Append(word).EndLine();
}

void WriteAdd(SapContext& c, int node) {
    c.out.Append("    ADD=").Int(node).EndLine();
}

}  // namespace

bool CSapFile::WriteConstraints(SapContext& c) {
    c.out.Append("CONSTRAINT\n");
    int name = 1;
    WriteRigids(c, name);
    WriteRigidLinks(c, name);
    WriteJointConstraints(c, name);
    return true;
}

void CSapFile::WriteRigids(SapContext& c, int& name) {
    int last = -1;
    for (const int number : m_model->RigidTable().Numbers()) {
        const Data::CRigid& rigid = m_model->Rigid(number);
        const int primary = rigid.PrimaryNode();
        if (!IsPlaced(*m_model, primary)) {
            AddNote(L"Rigid constraint", number,
                    L"is not exported, as its primary node does not exist");
            continue;
        }
        const int own = m_model->Node(primary).Axis();
        const int axis = m_model->AxisExist(own) ? own : kGlobalAxis;
        if (axis != last) {
            c.out.Append("  CSYS=").Int(axis).EndLine();
            last = axis;
        }
        const LinkKind* const kind = FindLinkKind(rigid.TypeOf());
        WriteName(c, name, WordOf(kind));
        WriteAdd(c, primary);
        ForEachPlaced(*m_model, rigid.Nodes(), [&c](int node) { WriteAdd(c, node); });
        if (kind != nullptr && kind->isPinned) {
            AddNote(L"Rigid constraint " + std::to_wstring(number) +
                    L" will loose its pin condition");
        }
    }
}

void CSapFile::WriteRigidLinks(SapContext& c, int& name) {
    for (const int number : m_model->ElemTable().Numbers()) {
        if (c.WrittenIn(number) != SapBlock::Link) {
            continue;
        }
        const Data::CElement& record = m_model->Elem(number);
        const Data::CLinkProp* const property = m_model->LinkPropTable().Find(record.Property());
        WriteName(c, name,
                  property != nullptr ? WordOf(FindLinkKind(property->TypeOf())) : kWords[0]);
        WriteAdd(c, record.Topo(1));
        WriteAdd(c, record.Topo(2));
    }
}

void CSapFile::WriteJointConstraints(SapContext& c, int& name) {
    for (const int number : m_model->JointTable().Numbers()) {
        const Data::CJoint& joint = m_model->Joint(number);
        if (!HasPlacedNodes(*m_model, joint)) {
            AddNote(L"Joint", number, L"is not exported, as one of its nodes does not exist");
            continue;
        }
        if (joint.Freedom().IsNone()) {
            continue;
        }
        WriteName(c, name, "TYPE=LOCAL");
        c.line.Append("    DOF=");
        AddDofs(c.line, joint.Freedom(), kDirections);
        c.line.End();
        WriteAdd(c, joint.Node(1));
        WriteAdd(c, joint.Node(2));
    }
}

}  // namespace Tevra

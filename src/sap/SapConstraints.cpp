#include <algorithm>

#include "model/Util.h"
#include "sap/SapContext.h"
#include "sap/SapFile.h"

// Rigid constraints, rigid links and joints, named by one counter in the order written.

namespace Tevra {

namespace {

/// What a link-type code becomes.
struct ConstraintWord {
    std::string_view word;
    int linkType;
    bool isPinned;
};
constexpr ConstraintWord kWords[] = {
    {"TYPE=BODY ", 4095, false},         {"TYPE=BODY ", 1911, true},
    {"TYPE=DIAPH AXIS=Z ", 2101, false}, {"TYPE=DIAPH AXIS=Z ", 53, true},
    {"TYPE=DIAPH AXIS=Y ", 1411, false}, {"TYPE=DIAPH AXIS=Y ", 1283, true},
    {"TYPE=DIAPH AXIS=X ", 856, false},  {"TYPE=DIAPH AXIS=X ", 848, true},
};

ConstraintWord WordOf(int linkType) {
    const auto* const found =
        std::find_if(std::begin(kWords), std::end(kWords),
                     [linkType](const ConstraintWord& w) { return w.linkType == linkType; });
    return found != std::end(kWords) ? *found : ConstraintWord{"", linkType, false};
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
            AddNote(L"Rigid constraint " + std::to_wstring(number) +
                    L" is not exported, as its primary node does not exist");
            continue;
        }
        const int own = m_model->Node(primary).Axis();
        const int axis = m_model->AxisExist(own) ? own : kGlobalAxis;
        if (axis != last) {
            c.out.Append("  CSYS=").Int(axis).EndLine();
            last = axis;
        }
        const ConstraintWord word = WordOf(rigid.TypeOf());
        WriteName(c, name, word.word);
        WriteAdd(c, primary);
        Util::Item(rigid.Nodes(), *m_model, -1, true).ForEach([&](int node) {
            if (IsPlaced(*m_model, node)) {
                WriteAdd(c, node);
            }
        });
        if (word.isPinned) {
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
        const bool hasProperty = m_model->LinkPropExist(record.Property());
        WriteName(c, name,
                  hasProperty ? WordOf(m_model->LinkProp(record.Property()).TypeOf()).word
                              : kWords[0].word);
        WriteAdd(c, record.Topo(1));
        WriteAdd(c, record.Topo(2));
    }
}

void CSapFile::WriteJointConstraints(SapContext& c, int& name) {
    for (const int number : m_model->JointTable().Numbers()) {
        const Data::CJoint& joint = m_model->Joint(number);
        if (!IsPlaced(*m_model, joint.Node(1)) || !IsPlaced(*m_model, joint.Node(2))) {
            AddNote(L"Joint " + std::to_wstring(number) +
                    L" is not exported, as one of its nodes does not exist");
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

#include <algorithm>
#include <string>

#include "dyna/DynaAnalysis.h"
#include "dyna/DynaCards.h"
#include "dyna/DynaElementKind.h"
#include "dyna/DynaOut.h"
#include "model/LinkKind.h"
#include "model/Util.h"
#include "model/VynData.h"

// Joints, constraint equations and rigid bodies.

namespace Tevra {

using namespace DynaCards;

namespace {

int DofOf(Direction d) {
    return static_cast<int>(d) + 1;
}

}  // namespace

bool CDynaAnalysis::IsNode(int node) const {
    return m_model->NodeExist(node);
}

bool CDynaAnalysis::WriteConstraints() {
    int line = 0;
    for (const int number : m_model->JointTable().Numbers()) {
        WriteJoint(number, line);
    }
    for (const int number : m_model->ConstraintEqnTable().Numbers()) {
        WriteEquation(number, line);
    }
    return true;
}

void CDynaAnalysis::WriteConstraintTerm(int node, Direction d, double factor) {
    m_out->Line<kLinearConstraint, 1>(node, DofOf(d), AxisNumber(m_model->Node(node).Axis()),
                                      factor);
}

void CDynaAnalysis::WriteJoint(int number, int& line) {
    const Data::CJoint& joint = m_model->Joint(number);
    if (!IsNode(joint.Node(1)) || !IsNode(joint.Node(2))) {
        Skip(L"Joint", number, L"one of its nodes does not exist");
        return;
    }
    for (const Direction d : kDirections) {
        if (joint.Freedom().IncludesDirection(d)) {
            m_out->Card<kLinearConstraint>(++line);
            WriteConstraintTerm(joint.Node(1), d, -1.0);
            WriteConstraintTerm(joint.Node(2), d, 1.0);
        }
    }
}

void CDynaAnalysis::WriteEquation(int number, int& line) {
    const Data::CConstraintEqn& equation = m_model->ConstraintEqn(number);
    const bool hasNodes =
        IsNode(equation.ConstrainedNode()) &&
        std::all_of(equation.Terms().begin(), equation.Terms().end(),
                    [this](const Data::ConstraintTerm& term) { return IsNode(term.node); });
    if (!hasNodes) {
        Skip(L"Constraint equation", number, L"one of its nodes does not exist");
        return;
    }
    m_out->Card<kLinearConstraint>(++line);
    WriteConstraintTerm(equation.ConstrainedNode(), equation.Dir(), -1.0);
    for (const Data::ConstraintTerm& term : equation.Terms()) {
        WriteConstraintTerm(term.node, term.direction, term.factor);
    }
}

bool CDynaAnalysis::WriteRigids() {
    for (const int number : m_model->RigidTable().Numbers()) {
        WriteRigid(number);
    }
    WriteMergedBodies();
    return true;
}

/// The primary node belongs to the body, which would float free of it otherwise.
void CDynaAnalysis::WriteRigid(int number) {
    const Data::CRigid& rigid = m_model->Rigid(number);
    if (!IsNode(rigid.PrimaryNode())) {
        Skip(L"Rigid constraint", number, L"its primary node does not exist");
        return;
    }
    std::vector<int> nodes = Listed(rigid.Nodes(), SelType::Node);
    std::erase(nodes, rigid.PrimaryNode());
    if (nodes.empty()) {
        Skip(L"Rigid constraint", number, L"none of its nodes exists");
        return;
    }
    nodes.insert(nodes.begin(), rigid.PrimaryNode());
    const int part = FindPart(DynaPart::Rigid, number);
    const int set = NextSet();
    m_out->Card<kRigidBody>(part, 0, set);
    WriteSet(kNodeList, set, nodes);
    AddBody(part, nodes);
    if (rigid.TypeOf() != kAllLinked) {
        AddNote(L"Rigid constraint", number,
                L"is written as a rigid body, which ties all freedoms");
    }
}

namespace {

/// The lowest of the bodies that a body is one with; shortens the way to it.
int LeadOf(std::map<int, int>& leads, int body) {
    for (auto lead = leads.find(body); lead != leads.end(); lead = leads.find(body)) {
        const auto next = leads.find(lead->second);
        lead->second = next != leads.end() ? next->second : lead->second;
        body = lead->second;
    }
    return body;
}

}  // namespace

/// Bodies that share a node are one: the lower number leads.
void CDynaAnalysis::AddBody(int part, const std::vector<int>& nodes) {
    for (const int node : nodes) {
        if (!m_bodyOf.Exist(node)) {
            m_bodyOf.Set(node, part);
            continue;
        }
        const int other = LeadOf(m_bodyLeads, m_bodyOf.Get(node));
        const int own = LeadOf(m_bodyLeads, part);
        if (other != own) {
            m_bodyLeads[std::max(other, own)] = std::min(other, own);
        }
    }
}

void CDynaAnalysis::WriteMergedBodies() {
    if (m_bodyLeads.empty()) {
        return;
    }
    m_out->Keyword(kMergedBodies);
    for (const auto& entry : m_bodyLeads) {
        m_out->Line<kMergedBodies>(LeadOf(m_bodyLeads, entry.first), entry.first);
    }
}

}  // namespace Tevra

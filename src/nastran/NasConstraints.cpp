#include <algorithm>

#include "model/Util.h"
#include "model/VynData.h"
#include "nastran/ComponentDigits.h"
#include "nastran/NasFile.h"

// Rigid constraints, joints and constraint equations.

namespace Tevra {

bool CNasFile::WriteRigids() {
    StartSection("Rigid constraints");
    for (const int number : m_model->RigidTable().Numbers()) {
        const Data::CRigid& rigid = m_model->Rigid(number);
        if (m_model->NodeExist(rigid.PrimaryNode()) &&
            !m_model->RigidIsActive(number, m_selection)) {
            continue;
        }
        SetSubject(L"Rigid constraint", number);
        CBitSet slaves = Util::Item(rigid.Nodes(), *m_model, -1, true);
        slaves.Set(rigid.PrimaryNode(), false);
        const int all = slaves.Count();
        for (int node = slaves.NextAtOrAbove(1); node != 0; node = slaves.NextAtOrAbove(node + 1)) {
            slaves.Set(node, IsNodeWritten(node));
        }
        const int digits = Nas::DigitsOf(LinkedFreedoms(rigid.TypeOf()));
        if (!IsNodeWritten(rigid.PrimaryNode())) {
            Skip(L"its primary node is not in the file");
        } else if (digits == 0) {
            Skip(L"it links no freedom");
        } else if (slaves.Count() == 0) {
            Skip(L"none of its nodes is in the file");
        } else {
            StartCard("RBE2");
            AddInt(NextElement());
            AddInt(rigid.PrimaryNode());
            AddInt(digits);
            slaves.ForEach([this](int node) { AddInt(node); });
            EndCard();
            SkipMany(all - slaves.Count(), L"nodes", L"they are not in the file");
        }
    }
    return true;
}

bool CNasFile::WriteJoints() {
    StartSection("Joints");
    for (const int number : m_model->JointTable().Numbers()) {
        const Data::CJoint& joint = m_model->Joint(number);
        const bool hasNodes =
            m_model->NodeExist(joint.Node(1)) && m_model->NodeExist(joint.Node(2));
        if ((hasNodes && !m_model->JointIsActive(number, m_selection)) ||
            joint.Freedom().IsNone()) {
            continue;
        }
        SetSubject(L"Joint", number);
        if (!IsNodeWritten(joint.Node(1)) || !IsNodeWritten(joint.Node(2))) {
            Skip(L"one of its nodes is not in the file");
            continue;
        }
        for (const Direction d : kDirections) {
            if (!joint.Freedom().IncludesDirection(d)) {
                continue;
            }
            StartCard("MPC");
            AddInt(1);
            AddInt(joint.Node(1));
            AddInt(Nas::DigitOf(d));
            AddReal(-1.0);
            AddInt(joint.Node(2));
            AddInt(Nas::DigitOf(d));
            AddReal(1.0);
            EndCard();
        }
    }
    return true;
}

/// Two terms stand on a line; its last field, and the first of the next line, are blank.
bool CNasFile::WriteConstraintEquations() {
    StartSection("Constraint equations");
    for (const int number : m_model->ConstraintEqnTable().Numbers()) {
        const Data::CConstraintEqn& equation = m_model->ConstraintEqn(number);
        const auto ofAllNodes = [&equation](auto holds) {
            const auto& terms = equation.Terms();
            return holds(equation.ConstrainedNode()) &&
                   std::all_of(terms.begin(), terms.end(),
                               [&](const Data::ConstraintTerm& term) { return holds(term.node); });
        };
        if (ofAllNodes([this](int node) { return m_model->NodeExist(node); }) &&
            !m_model->ConstraintEqnIsActive(number, m_selection)) {
            continue;
        }
        SetSubject(L"Constraint equation", number);
        if (!ofAllNodes([this](int node) { return IsNodeWritten(node); })) {
            Skip(L"one of its nodes is not in the file");
            continue;
        }
        StartCard("MPC");
        AddInt(1);
        AddInt(equation.ConstrainedNode());
        AddInt(Nas::DigitOf(equation.Dir()));
        AddReal(-1.0);
        for (int k = 1; k <= equation.NumTerm(); ++k) {
            AddBlankFields(k % 2 == 0 ? 2 : 0);
            AddInt(equation.PrimaryNode(k));
            AddInt(Nas::DigitOf(equation.Dir(k)));
            AddReal(equation.Factor(k));
        }
        EndCard();
    }
    return true;
}

}  // namespace Tevra

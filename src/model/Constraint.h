#pragma once

#include <vector>

#include "model/EntList.h"
#include "model/Entity.h"

namespace Tevra::Data {

/// A rigid constraint: nodes that move with a primary node.
class CRigid : public NamedEntity {
public:
    int PrimaryNode() const { return m_primaryNode; }
    /// The constrained nodes.
    const CEntList& Nodes() const { return m_nodes; }
    /// Link-type code of twelve bits, as in `CLinkProp::TypeOf`.
    int TypeOf() const { return m_type; }
    void SetPrimaryNode(int node) { m_primaryNode = node; }
    void SetNodes(const CEntList& nodes) { m_nodes = nodes; }
    void SetType(int type) { m_type = type; }
    bool operator==(const CRigid&) const = default;

private:
    int m_primaryNode = 0;
    CEntList m_nodes{L"", SelType::Node};
    int m_type = 4095;
};

/// A joint: two nodes that share freedoms; the first is the master.
class CJoint : public NamedEntity {
public:
    /// Node 1 or 2.
    int Node(int k) const { return k == 1 ? m_first : (k == 2 ? m_second : 0); }
    Vbool6 Freedom() const { return m_freedom; }
    void SetNodes(int first, int second) {
        m_first = first;
        m_second = second;
    }
    void SetFreedom(Vbool6 freedom) { m_freedom = freedom; }
    bool operator==(const CJoint&) const = default;

private:
    int m_first = 0;
    int m_second = 0;
    Vbool6 m_freedom;
};

/// One term of a constraint equation.
struct ConstraintTerm {
    int node = 0;
    Direction direction = Direction::X;
    double factor = 0.0;
    bool operator==(const ConstraintTerm&) const = default;
};

/// A constraint equation: a displacement of a node as the factored sum of others.
class CConstraintEqn : public NamedEntity {
public:
    int ConstrainedNode() const { return m_node; }
    Direction Dir() const { return m_direction; }
    int NumTerm() const { return static_cast<int>(m_terms.size()); }
    /// Term `k`, from 1.
    int PrimaryNode(int k) const { return Term(k).node; }
    Direction Dir(int k) const { return Term(k).direction; }
    double Factor(int k) const { return Term(k).factor; }
    const std::vector<ConstraintTerm>& Terms() const { return m_terms; }

    void SetConstrained(int node, Direction direction) {
        m_node = node;
        m_direction = direction;
    }
    void SetTerms(std::vector<ConstraintTerm> terms) { m_terms = std::move(terms); }
    bool operator==(const CConstraintEqn&) const = default;

private:
    const ConstraintTerm& Term(int k) const {
        static const ConstraintTerm kNone{};
        return k >= 1 && k <= NumTerm() ? m_terms[static_cast<std::size_t>(k - 1)] : kNone;
    }
    int m_node = 0;
    Direction m_direction = Direction::X;
    std::vector<ConstraintTerm> m_terms;
};

/// A tied interface: nodes or elements that stick to a surface of 2D elements.
class CTiedInterface : public NamedEntity {
public:
    const CEntList& Slave() const { return m_slave; }
    const CEntList& Master() const { return m_master; }
    void SetSlave(const CEntList& list) { m_slave = list; }
    void SetMaster(const CEntList& list) { m_master = list; }
    bool operator==(const CTiedInterface&) const = default;

private:
    CEntList m_slave{L"", SelType::Node};
    CEntList m_master{L"", SelType::Element};
};

}  // namespace Tevra::Data

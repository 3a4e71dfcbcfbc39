#pragma once

#include "model/Entity.h"
#include "model/Types.h"

namespace Tevra {
class CModelData;
}

namespace Tevra::Data {

/// A node: where it is, how it is held, and what is attached to it.
class CNode : public NamedEntity {
public:
    CNode() = default;
    explicit CNode(const Vec3<double>& position) : m_position(position) {}

    /// Coordinates in global axes, m.
    const Vec3<double>& Position() const { return m_position; }
    /// Axis of restraints, springs, masses and dampers at the node: 0 global, else a user axis.
    int Axis() const { return m_axis; }
    /// Directions restrained at this node.
    Vbool6 Restraint() const { return m_restraint; }
    /// The node's own restraint and the model's global one together. Kept up by the model; a node
    /// that is in no model knows its own only.
    Vbool6 TotalNodalRestraint() const { return m_restraint | m_globalRestraint; }
    /// Property numbers of what is attached to the node, 0 none.
    int SpringProperty() const { return m_springProperty; }
    int DamperProperty() const { return m_damperProperty; }
    int MassProperty() const { return m_massProperty; }
    /// True when some entity of the kind (2 elements, 3 members) is oriented by this node. Kept up
    /// by the model.
    bool IsOrientationNodeTo(SelType kind) const {
        return (kind == SelType::Element && m_orientsElements) ||
               (kind == SelType::Member && m_orientsMembers);
    }
    bool IsOrientationNodeTo(int kind) const {
        return IsOrientationNodeTo(static_cast<SelType>(kind));
    }

    void SetPosition(const Vec3<double>& position) { m_position = position; }
    void SetAxis(int axis) { m_axis = axis; }
    void SetRestraint(Vbool6 restraint) { m_restraint = restraint; }
    void SetSpringProperty(int number) { m_springProperty = number; }
    void SetDamperProperty(int number) { m_damperProperty = number; }
    void SetMassProperty(int number) { m_massProperty = number; }

    bool operator==(const CNode&) const = default;

private:
    friend class ::Tevra::CModelData;

    Vec3<double> m_position;
    int m_axis = 0;
    int m_springProperty = 0;
    int m_damperProperty = 0;
    int m_massProperty = 0;
    Vbool6 m_restraint;
    Vbool6 m_globalRestraint;
    bool m_orientsElements = false;
    bool m_orientsMembers = false;
};

}  // namespace Tevra::Data

#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "model/ElementType.h"
#include "model/Entity.h"

namespace Tevra::Data {

/// How an end of a 1D element is joined to its node in one direction.
enum class ReleaseState : std::uint8_t { Fixed, Released, Spring };

/// The connection of one end of a 1D element, in element axes: per direction fixed, released, or
/// held by a spring of given stiffness.
class CElemConnect {
public:
    ReleaseState State(Direction d) const { return m_state[Index(d)]; }
    /// Stiffness of a sprung direction, N/m or Nm/rad.
    double Stiffness(Direction d) const { return m_stiffness[Index(d)]; }
    /// The directions that are released outright.
    Vbool6 Released() const {
        Vbool6 released;
        for (const Direction d : kDirections) {
            released.Set(d, State(d) == ReleaseState::Released);
        }
        return released;
    }
    operator Vbool6() const { return Released(); }  // NOLINT: the documented use as flags
    /// True when every direction is fixed.
    bool IsFixed() const { return m_state == std::array<ReleaseState, 6>{}; }

    void SetState(Direction d, ReleaseState state) {
        m_state[Index(d)] = state;
        m_stiffness[Index(d)] = state == ReleaseState::Spring ? m_stiffness[Index(d)] : 0.0;
    }
    void SetReleased(Vbool6 released) {
        for (const Direction d : kDirections) {
            SetState(d,
                     released.IncludesDirection(d) ? ReleaseState::Released : ReleaseState::Fixed);
        }
    }
    void SetSpring(Direction d, double stiffness) {
        m_state[Index(d)] = ReleaseState::Spring;
        m_stiffness[Index(d)] = stiffness;
    }

    bool operator==(const CElemConnect&) const = default;

private:
    static constexpr std::size_t Index(Direction d) { return static_cast<std::size_t>(d); }
    std::array<ReleaseState, 6> m_state{};
    std::array<double, 6> m_stiffness{};
};

/// Rigid offsets of an element from its nodes, in element axes, m: along x at each end (positive
/// along local x, so an inward offset at end 2 is negative), and along y and z at both ends alike.
/// 2D elements use `Z` alone.
class COffset {
public:
    COffset() = default;
    COffset(double x1, double x2, double y, double z) : m_x1(x1), m_x2(x2), m_y(y), m_z(z) {}
    double X1() const { return m_x1; }
    double X2() const { return m_x2; }
    double Y() const { return m_y; }
    double Z() const { return m_z; }
    /// True when an end is set back along the element.
    bool Axial() const { return m_x1 != 0.0 || m_x2 != 0.0; }
    bool IsNone() const { return !Axial() && m_y == 0.0 && m_z == 0.0; }
    bool operator==(const COffset&) const = default;

private:
    double m_x1 = 0.0;
    double m_x2 = 0.0;
    double m_y = 0.0;
    double m_z = 0.0;
};

/// A finite element.
class CElement : public NamedEntity {
public:
    CElement() = default;
    CElement(ElementType type, const std::vector<int>& topo, int property)
        : m_type(type), m_property(property) {
        SetTopo(topo);
    }

    ElementType Type() const { return m_type; }
    /// All topology nodes in order.
    std::vector<int> Topo() const;
    /// Topology node `k`, from 1; 0 when there is none.
    int Topo(int k) const {
        if (k < 1 || k > m_numTopo) {
            return 0;
        }
        const auto i = static_cast<std::size_t>(k - 1);
        return i < kInline ? m_topo[i] : m_extra.Get().furtherTopo[i - kInline];
    }
    int NumTopo() const { return m_numTopo; }
    /// Section, spring, damper, cable, link, 2D or 3D property number, by the type.
    int Property() const { return m_property; }
    int Group() const { return m_group; }
    /// Node that fixes the local x-y plane (it lies on the +y side), 0 none.
    int OrientationNode() const { return m_orientationNode; }
    /// Degrees; turns y towards z about x.
    double OrientationAngle() const { return m_orientationAngle; }
    /// Connection of end 1 or 2.
    const CElemConnect& Connect(int end) const { return m_extra.Get().connect[end == 2 ? 1 : 0]; }
    const COffset& Offset() const { return m_extra.Get().offset; }
    /// The member that was meshed into this element, 0 none.
    int ParentMember() const { return m_parentMember; }

    bool Is1D() const { return InfoOf(m_type).dimension == 1; }
    bool Is2D() const { return InfoOf(m_type).dimension == 2; }
    bool Is3D() const { return InfoOf(m_type).dimension == 3; }
    /// True for 1D elements with a section.
    bool IsSection() const { return InfoOf(m_type).property == PropertyType::Section; }
    /// True for the one type that can have end releases.
    bool IsBeam() const { return m_type == ElementType::Beam; }
    bool IsSpring() const { return m_type == ElementType::Spring; }
    bool IsDamper() const { return m_type == ElementType::Damper; }
    bool IsLink() const { return m_type == ElementType::Link; }
    bool IsCable() const { return m_type == ElementType::Cable; }
    bool IsSpacer() const { return m_type == ElementType::Spacer; }
    bool IsTie() const { return m_type == ElementType::Tie; }
    bool IsStrut() const { return m_type == ElementType::Strut; }
    /// A dummy element is drawn but takes no part in the analysis.
    bool IsDummy() const { return m_dummy; }
    bool IsOffset() const { return !Offset().IsNone(); }

    void SetType(ElementType type) { m_type = type; }
    void SetTopo(const std::vector<int>& topo);
    void SetProperty(int property) { m_property = property; }
    void SetGroup(int group) { m_group = group; }
    void SetOrientationNode(int node) { m_orientationNode = node; }
    void SetOrientationAngle(double degrees) { m_orientationAngle = degrees; }
    void SetConnect(int end, const CElemConnect& connect) {
        if (!connect.IsFixed() || m_extra.Exists()) {
            m_extra.Edit().connect[end == 2 ? 1 : 0] = connect;
        }
    }
    void SetOffset(const COffset& offset) {
        if (!offset.IsNone() || m_extra.Exists()) {
            m_extra.Edit().offset = offset;
        }
    }
    void SetParentMember(int member) { m_parentMember = member; }
    void SetDummy(bool dummy) { m_dummy = dummy; }

    bool operator==(const CElement&) const = default;

private:
    static constexpr std::size_t kInline = 8;
    struct Extra {
        std::array<CElemConnect, 2> connect;
        COffset offset;
        std::vector<int> furtherTopo;
        bool operator==(const Extra&) const = default;
    };

    ElementType m_type = ElementType::None;
    std::array<int, kInline> m_topo{};
    int m_property = 0;
    int m_group = 0;
    int m_orientationNode = 0;
    int m_parentMember = 0;
    double m_orientationAngle = 0.0;
    std::uint16_t m_numTopo = 0;
    bool m_dummy = false;
    ValuePtr<Extra> m_extra;  ///< releases and offsets, which most elements do not have
};

}  // namespace Tevra::Data

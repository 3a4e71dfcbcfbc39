#pragma once

#include <array>
#include <cstddef>
#include <vector>

#include "model/EntList.h"
#include "model/Entity.h"

namespace Tevra {

class CVynData;

/// Kinds of loads within their records.
enum class BeamLoadType : int { Point = 1, Uniform = 2, Linear = 3, Patch = 4, Trilinear = 5 };
enum class AxialLoadType : int { Force = 1, Strain = 2, LackOfFit = 3 };
enum class BeamThermalType : int { Uniform = 1, GradientY = 2, GradientZ = 3 };
enum class FaceLoadType : int { Uniform = 1, Corners = 2, Equation = 3, Point = 4 };
enum class FaceThermalType : int { Uniform = 1, Gradient = 2, General = 3 };

/// Axes of a load other than user axes.
inline constexpr int kGlobalAxis = 0;
inline constexpr int kLocalAxis = -1;  ///< of the element, or of the node for node loads

namespace Data {

/// What all loads share: a name, the load case and the loaded entities.
class CLoadBase : public NamedEntity {
public:
    explicit CLoadBase(SelType kind = SelType::Element) : m_entities(L"", kind) {}
    int LoadCase() const { return m_loadCase; }
    /// Nodes for loads at nodes; elements, or members whose elements are meant, for the others.
    const CEntList& LoadedEntities() const { return m_entities; }
    void SetLoadCase(int loadCase) { m_loadCase = loadCase; }
    void SetLoadedEntities(const CEntList& entities) { m_entities = entities; }
    /// The existing elements of the list that have the dimension (1, 2 or 3), ascending; dummy
    /// elements included.
    std::vector<int> GetLoadedElements(const CVynData& model, int dimension) const;
    /// The existing nodes of the list, ascending.
    std::vector<int> LoadedNodes(const CVynData& model) const;
    bool operator==(const CLoadBase&) const = default;

private:
    int m_loadCase = 1;
    CEntList m_entities;
};

/// A load of one value in one direction of an axis.
class CDirectedLoad : public CLoadBase {
public:
    using CLoadBase::CLoadBase;
    /// 0 global, -1 the element's or node's own, else a user axis.
    int Axis() const { return m_axis; }
    Direction GetDirection() const { return m_direction; }
    void SetAxis(int axis) { m_axis = axis; }
    void SetDirection(Direction direction) { m_direction = direction; }
    bool operator==(const CDirectedLoad&) const = default;

private:
    int m_axis = kGlobalAxis;
    Direction m_direction = Direction::Z;
};

/// Force (N) or moment (Nm) at nodes.
class CNodeLoad : public CDirectedLoad {
public:
    CNodeLoad() : CDirectedLoad(SelType::Node) {}
    double Value() const { return m_value; }
    void SetValue(double value) { m_value = value; }
    bool operator==(const CNodeLoad&) const = default;

private:
    double m_value = 0.0;
};

/// Displacement (m) or rotation (rad) of a support.
class CSettlement : public CNodeLoad {};
/// Displacement (m) or rotation (rad) imposed on free nodes.
class CAppliedDisplacement : public CNodeLoad {};

/// A value at a place along a 1D element: metres from end 1, or a fraction of the length.
struct LoadPoint {
    double position = 0.0;
    bool isFraction = true;
    double value = 0.0;
    bool operator==(const LoadPoint&) const = default;
};

/// Load on 1D elements: point (N, Nm) at one place, uniform (N/m, Nm/m), linear from end to end,
/// patch between two places, trilinear through four.
class CBeamLoad : public CDirectedLoad {
public:
    BeamLoadType TypeOf() const { return m_type; }
    /// True when the value is per length of the element's projection square to the load.
    bool IsProjected() const { return m_projected; }
    /// Number of points that describe the type: point and uniform 1, linear and patch 2,
    /// trilinear 4.
    int NumPoint() const;
    /// Point `k`, from 1. Linear loads run from fraction 0 to 1, and so do uniform ones, whose
    /// value is that of point 1 at both ends.
    double Pos(int k) const { return Point(k).position; }
    bool PosIsFraction(int k) const { return Point(k).isFraction; }
    double Value(int k) const { return Point(k).value; }
    LoadPoint Point(int k) const;

    void SetType(BeamLoadType type) { m_type = type; }
    void SetProjected(bool projected) { m_projected = projected; }
    void SetPoint(int k, const LoadPoint& point) {
        if (k >= 1 && k <= 4) {
            m_points[static_cast<std::size_t>(k - 1)] = point;
        }
    }
    /// Points that the type does not use do not count.
    bool operator==(const CBeamLoad& o) const;

private:
    BeamLoadType m_type = BeamLoadType::Uniform;
    bool m_projected = false;
    std::array<LoadPoint, 4> m_points{};
};

/// Distortion of 1D elements: a step of displacement (m) or rotation (rad) at one place.
class CBeamDist : public CDirectedLoad {
public:
    const LoadPoint& Point() const { return m_point; }
    double Pos() const { return m_point.position; }
    bool PosIsFraction() const { return m_point.isFraction; }
    double Value() const { return m_point.value; }
    void SetPoint(const LoadPoint& point) { m_point = point; }
    bool operator==(const CBeamDist&) const = default;

private:
    LoadPoint m_point;
};

/// Prestress of 1D elements; tension is positive. Force (N) with its eccentricity, initial strain,
/// or lack of fit (m; positive when the element was made too short).
class CAxialLoad : public CLoadBase {
public:
    AxialLoadType TypeOf() const { return m_type; }
    double Value() const { return m_value; }
    /// Place of a tendon in the section, m.
    double YOffset() const { return m_offset.x; }
    double ZOffset() const { return m_offset.y; }
    void SetType(AxialLoadType type) { m_type = type; }
    void SetValue(double value) { m_value = value; }
    void SetOffset(double y, double z) { m_offset = {y, z}; }
    bool operator==(const CAxialLoad&) const = default;

private:
    AxialLoadType m_type = AxialLoadType::Force;
    double m_value = 0.0;
    Vec2<double> m_offset;
};

/// Temperature of 1D elements: a change (K) of the whole section, or a gradient given by the
/// temperatures at two places of local y or z (m from the centroid), beside a uniform part.
class CBeamThermalLoad : public CLoadBase {
public:
    BeamThermalType TypeOf() const { return m_type; }
    /// Place and temperature change of point `k` = 1, 2; a uniform load has its value at both.
    double Pos(int k) const { return m_positions[Index(k)]; }
    double Value(int k) const { return m_values[Index(k)]; }
    /// Uniform change that goes with a gradient, K.
    double UniformPart() const { return m_uniformPart; }
    void SetType(BeamThermalType type) { m_type = type; }
    void SetPoint(int k, double position, double value) {
        m_positions[Index(k)] = position;
        m_values[Index(k)] = value;
    }
    void SetUniformPart(double value) { m_uniformPart = value; }
    bool operator==(const CBeamThermalLoad&) const = default;

private:
    static constexpr std::size_t Index(int k) { return k == 2 ? 1 : 0; }
    BeamThermalType m_type = BeamThermalType::Uniform;
    std::array<double, 2> m_positions{};
    std::array<double, 2> m_values{};
    double m_uniformPart = 0.0;
};

/// Loads on faces of 2D and 3D elements.
class CFaceLoadBase : public CDirectedLoad {
public:
    bool IsProjected() const { return m_projected; }
    void SetProjected(bool projected) { m_projected = projected; }
    bool operator==(const CFaceLoadBase&) const = default;

private:
    bool m_projected = false;
};

/// Pressure (Pa) on faces: uniform, by corner, by an equation in global coordinates; or a force (N)
/// at a point of the face.
class CFaceLoad : public CFaceLoadBase {
public:
    FaceLoadType TypeOf() const { return m_type; }
    /// Pressure of corner `k` = 1 to 4 (uniform: the same at all); the force of a point load.
    double Value(int k) const;
    /// Coefficients c, x, y, z of an equation load: p = c + x X + y Y + z Z with X, Y, Z in m.
    const std::array<double, 4>& Equation() const { return m_equation; }
    /// Natural coordinates r, s of a point load.
    const Vec2<double>& Position() const { return m_position; }
    /// Face of a 3D element, from 1; 0 for 2D elements.
    int Face() const { return m_face; }
    /// The value at corner `corner` (from 1) of an element, whatever the type. NaN for a point load
    /// and for corners that the element does not have.
    double GetFaceLoadValue(const CVynData& model, int element, int corner) const;
    /// True when the position of a point load lies on the element, or on the loaded face of a
    /// solid: r and s from -1 to 1 with four corners, area coordinates with three.
    bool ValidatePointLoadPosition(const CVynData& model, int element) const;

    void SetType(FaceLoadType type) { m_type = type; }
    void SetValues(const std::array<double, 4>& values) { m_values = values; }
    void SetEquation(const std::array<double, 4>& equation) { m_equation = equation; }
    void SetPosition(const Vec2<double>& position) { m_position = position; }
    void SetFace(int face) { m_face = face; }
    const std::array<double, 4>& Values() const { return m_values; }
    bool operator==(const CFaceLoad&) const = default;

private:
    FaceLoadType m_type = FaceLoadType::Uniform;
    std::array<double, 4> m_values{};
    std::array<double, 4> m_equation{};
    Vec2<double> m_position;
    int m_face = 0;
};

/// Load (N/m) along an edge of 2D elements, linear between the ends of the edge.
class CEdgeLoad : public CDirectedLoad {
public:
    /// Edge of the element, from 1: between corners k and k + 1.
    int Edge() const { return m_edge; }
    /// Value at end `k` = 1, 2.
    double Value(int k) const { return m_values[k == 2 ? 1 : 0]; }
    void SetEdge(int edge) { m_edge = edge; }
    void SetValues(double first, double second) { m_values = {first, second}; }
    bool operator==(const CEdgeLoad&) const = default;

private:
    int m_edge = 1;
    std::array<double, 2> m_values{};
};

/// Prestress of 2D elements, alike in both directions; tension is positive: force per length (N/m)
/// at an offset from the middle plane, or initial strain.
class CInPlaneLoad : public CLoadBase {
public:
    AxialLoadType TypeOf() const { return m_type; }
    double Value() const { return m_value; }
    /// m, along the element's z.
    double Offset() const { return m_offset; }
    void SetType(AxialLoadType type) { m_type = type; }
    void SetValue(double value) { m_value = value; }
    void SetOffset(double offset) { m_offset = offset; }
    bool operator==(const CInPlaneLoad&) const = default;

private:
    AxialLoadType m_type = AxialLoadType::Force;
    double m_value = 0.0;
    double m_offset = 0.0;
};

/// Temperature change (K) of 2D elements: uniform (value 1); gradient (top 1, bottom 2); general
/// (top of corners 1 to 4, then bottom of corners 1 to 4).
class CFaceThermalLoad : public CLoadBase {
public:
    FaceThermalType TypeOf() const { return m_type; }
    /// Value `k`, from 1.
    double Value(int k) const {
        return k >= 1 && k <= 8 ? m_values[static_cast<std::size_t>(k - 1)] : 0.0;
    }
    const std::array<double, 8>& Values() const { return m_values; }
    void SetType(FaceThermalType type) { m_type = type; }
    void SetValues(const std::array<double, 8>& values) { m_values = values; }
    bool operator==(const CFaceThermalLoad&) const = default;

private:
    FaceThermalType m_type = FaceThermalType::Uniform;
    std::array<double, 8> m_values{};
};

/// Acceleration of masses as factors of the acceleration of gravity.
class CGravityLoad : public CLoadBase {
public:
    CGravityLoad() { SetLoadedEntities(CEntList(L"all", SelType::Element)); }
    /// Factors along global x, y, z; (0, 0, -1) is self weight.
    const Vec3<double>& Value() const { return m_value; }
    /// Nodes whose masses are accelerated.
    const CEntList& NodeList() const { return m_nodes; }
    /// The existing nodes of the node list that carry a mass property, ascending.
    std::vector<int> LoadedNodes(const CVynData& model) const;
    void SetValue(const Vec3<double>& value) { m_value = value; }
    void SetNodeList(const CEntList& nodes) { m_nodes = nodes; }
    bool operator==(const CGravityLoad&) const = default;

private:
    Vec3<double> m_value{0.0, 0.0, -1.0};
    CEntList m_nodes{L"all", SelType::Node};
};

}  // namespace Data
}  // namespace Tevra

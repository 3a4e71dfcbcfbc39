#pragma once

#include "model/Entity.h"
#include "model/Types.h"

namespace Tevra {

enum class AxisType : int { Cartesian = 1, Cylindrical = 2, Spherical = 3 };

namespace Data {

/// A user axis: an origin, the direction of x, and a direction that fixes the x-y plane.
class CAxis : public NamedEntity {
public:
    AxisType TypeOf() const { return m_type; }
    const Vec3<double>& Origin() const { return m_origin; }
    /// Unit vectors of the axis in global components, each square to the others. A direction
    /// without length falls back to the global one.
    Vec3<double> XAxis() const { return Unit(m_x, {1.0, 0.0, 0.0}); }
    Vec3<double> YAxis() const { return Cross(ZAxis(), XAxis()); }
    Vec3<double> ZAxis() const;
    /// The direction in the x-y plane as it was given.
    const Vec3<double>& XYPlane() const { return m_xyPlane; }
    /// The direction of x as it was given.
    const Vec3<double>& XDirection() const { return m_x; }

    void SetType(AxisType type) { m_type = type; }
    void SetOrigin(const Vec3<double>& origin) { m_origin = origin; }
    void SetXAxis(const Vec3<double>& x) { m_x = x; }
    void SetXYPlane(const Vec3<double>& direction) { m_xyPlane = direction; }

    bool operator==(const CAxis&) const = default;

private:
    AxisType m_type = AxisType::Cartesian;
    Vec3<double> m_origin;
    Vec3<double> m_x{1.0, 0.0, 0.0};
    Vec3<double> m_xyPlane{0.0, 1.0, 0.0};
};

/// A grid plane or storey: a plane at an elevation of an axis.
class CGridPlane : public NamedEntity {
public:
    int Axis() const { return m_axis; }
    /// Height above the origin of the axis, m.
    double Elevation() const { return m_elevation; }
    bool IsStorey() const { return m_storey; }

    void SetAxis(int axis) { m_axis = axis; }
    void SetElevation(double elevation) { m_elevation = elevation; }
    void SetStorey(bool storey) { m_storey = storey; }

    bool operator==(const CGridPlane&) const = default;

private:
    int m_axis = 0;
    double m_elevation = 0.0;
    bool m_storey = false;
};

}  // namespace Data
}  // namespace Tevra

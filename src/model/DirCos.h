#pragma once

#include "model/Types.h"

namespace Tevra::Util {

/// Direction cosines: three unit vectors, square to each other, in global components.
class CDirCos {
public:
    constexpr CDirCos() = default;
    constexpr CDirCos(const Vec3<double>& x, const Vec3<double>& y, const Vec3<double>& z)
        : m_x(x), m_y(y), m_z(z) {}

    /// A local axis in global components; rotations name the axis they turn about.
    constexpr const Vec3<double>& AxisVec(Direction d) const {
        switch (ToTrans(d)) {
            case Direction::X:
                return m_x;
            case Direction::Y:
                return m_y;
            default:
                return m_z;
        }
    }
    /// The same by index 0, 1, 2.
    constexpr const Vec3<double>& AxisVec(int k) const {
        return AxisVec(static_cast<Direction>(k));
    }
    /// Components of a global vector in the local axes.
    Vec3<double> GtoL(const Vec3<double>& v) const {
        return {Dot(m_x, v), Dot(m_y, v), Dot(m_z, v)};
    }
    /// Components of a local vector in global axes.
    Vec3<double> LtoG(const Vec3<double>& v) const { return m_x * v.x + m_y * v.y + m_z * v.z; }

    bool operator==(const CDirCos&) const = default;

private:
    Vec3<double> m_x{1.0, 0.0, 0.0};
    Vec3<double> m_y{0.0, 1.0, 0.0};
    Vec3<double> m_z{0.0, 0.0, 1.0};
};

}  // namespace Tevra::Util

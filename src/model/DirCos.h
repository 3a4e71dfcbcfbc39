#pragma once

#include <cmath>

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

    /// The same of a result some of whose figures may be missing (no number): a missing figure
    /// spoils only the components that it has a part in.
    Vec3<double> ResultGtoL(const Vec3<double>& v) const {
        return {Part(m_x.x, v.x) + Part(m_x.y, v.y) + Part(m_x.z, v.z),
                Part(m_y.x, v.x) + Part(m_y.y, v.y) + Part(m_y.z, v.z),
                Part(m_z.x, v.x) + Part(m_z.y, v.y) + Part(m_z.z, v.z)};
    }
    Vec3<double> ResultLtoG(const Vec3<double>& v) const {
        return {Part(m_x.x, v.x) + Part(m_y.x, v.y) + Part(m_z.x, v.z),
                Part(m_x.y, v.x) + Part(m_y.y, v.y) + Part(m_z.y, v.z),
                Part(m_x.z, v.x) + Part(m_y.z, v.y) + Part(m_z.z, v.z)};
    }

    bool operator==(const CDirCos&) const = default;

private:
    /// The part of a figure along a direction; a cosine that is round-off takes nothing from a
    /// missing one.
    static double Part(double cosine, double figure) {
        constexpr double kRoundOff = 1e-12;
        return std::isnan(figure) && std::fabs(cosine) < kRoundOff ? 0.0 : cosine * figure;
    }

    Vec3<double> m_x{1.0, 0.0, 0.0};
    Vec3<double> m_y{0.0, 1.0, 0.0};
    Vec3<double> m_z{0.0, 0.0, 1.0};
};

}  // namespace Tevra::Util

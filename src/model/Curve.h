#pragma once

#include <vector>

#include "model/Entity.h"
#include "model/Types.h"

namespace Tevra {

/// What the ordinates of a load curve are.
enum class LoadCurveType : int {
    Factor = 0,
    Force = 1,
    Pressure = 2,
    Acceleration = 4,
    Velocity = 5,
    Displacement = 6
};

namespace Data {

/// A curve through points of ascending abscissa: time against a factor for loads, strain or
/// displacement against stress or force for materials.
class CCurve : public NamedEntity {
public:
    int NumPoint() const { return static_cast<int>(m_points.size()); }
    /// Point `k`, from 1.
    const Vec2<double>& Point(int k) const {
        static const Vec2<double> kNone{};
        return k >= 1 && k <= NumPoint() ? m_points[static_cast<std::size_t>(k - 1)] : kNone;
    }
    const std::vector<Vec2<double>>& Points() const { return m_points; }
    void SetPoints(std::vector<Vec2<double>> points) { m_points = std::move(points); }
    bool operator==(const CCurve&) const = default;

private:
    std::vector<Vec2<double>> m_points;
};

/// A load curve: time (s) against the quantity of its type.
class CLoadCurve : public CCurve {
public:
    LoadCurveType TypeOf() const { return m_type; }
    void SetType(LoadCurveType type) { m_type = type; }
    bool operator==(const CLoadCurve&) const = default;

private:
    LoadCurveType m_type = LoadCurveType::Factor;
};

using CMatCurve = CCurve;

}  // namespace Data
}  // namespace Tevra

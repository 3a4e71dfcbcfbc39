#pragma once

#include <vector>

#include "model/Entity.h"
#include "model/Types.h"

namespace Tevra::Data {

/// One layer of a soil profile: elastic, with a modulus that varies linearly with depth.
struct SoilLayer {
    double topLevel = 0.0;     ///< m
    double youngTop = 0.0;     ///< Pa
    double youngBottom = 0.0;  ///< Pa
    double poissonRatio = 0.0;
    int curve = 0;  ///< soil curve that reduces the modulus with strain, 0 none
    bool operator==(const SoilLayer&) const = default;
};

/// Layers of soil from the top down.
class CSoilProfile : public NamedEntity {
public:
    const std::vector<SoilLayer>& Layers() const { return m_layers; }
    void SetLayers(std::vector<SoilLayer> layers) { m_layers = std::move(layers); }
    bool operator==(const CSoilProfile&) const = default;

private:
    std::vector<SoilLayer> m_layers;
};

/// A rectangle in plan where a soil profile holds.
class CSoilZone : public NamedEntity {
public:
    int Profile() const { return m_profile; }
    const Vec2<double>& Lower() const { return m_lower; }
    const Vec2<double>& Upper() const { return m_upper; }
    void SetProfile(int profile) { m_profile = profile; }
    void SetExtents(const Vec2<double>& lower, const Vec2<double>& upper) {
        m_lower = lower;
        m_upper = upper;
    }
    bool operator==(const CSoilZone&) const = default;

private:
    int m_profile = 0;
    Vec2<double> m_lower;
    Vec2<double> m_upper;
};

/// Points of a soil curve: strain against the ratio of moduli; of a pile-soil curve: displacement
/// (m) against force (N) for positive values, the curve being symmetric.
class CSoilCurve : public NamedEntity {
public:
    const std::vector<Vec2<double>>& Points() const { return m_points; }
    void SetPoints(std::vector<Vec2<double>> points) { m_points = std::move(points); }
    bool operator==(const CSoilCurve&) const = default;

private:
    std::vector<Vec2<double>> m_points;
};

using CPileSoilCurve = CSoilCurve;

/// How a pile works with the soil round it.
class CPileSoilProperty : public NamedEntity {
public:
    struct Values {
        int baseCurve = 0;                ///< pile-soil curve of the base, 0 none
        int shaftCurve = 0;               ///< pile-soil curve of the shaft, 0 none
        double baseArea = 0.0;            ///< m2
        double shaftFrictionLimit = 0.0;  ///< Pa
        double endBearingLimit = 0.0;     ///< Pa
        bool operator==(const Values&) const = default;
    };
    const Values& Get() const { return m_values; }
    void Set(const Values& values) { m_values = values; }
    bool operator==(const CPileSoilProperty&) const = default;

private:
    Values m_values;
};

/// A load on a rectangle of soil beside the raft.
class CSoilRectLoad : public NamedEntity {
public:
    struct Values {
        int loadCase = 1;         ///< analysis case
        Vec3<double> centre;      ///< x, y and level, m
        double angle = 0.0;       ///< of the rectangle's x from global X, degrees
        Vec2<double> width;       ///< along the rectangle's x and y, m
        double vertical = 0.0;    ///< pressure downwards, Pa
        Vec2<double> horizontal;  ///< shear along global X and Y, Pa
        bool operator==(const Values&) const = default;
    };
    const Values& Get() const { return m_values; }
    void Set(const Values& values) { m_values = values; }
    bool operator==(const CSoilRectLoad&) const = default;

private:
    Values m_values;
};

/// Settings of the piled-raft analysis.
struct RaftSettings {
    double rigidLevel = 0.0;          ///< level of the rigid boundary, m
    double maxERatio = 10.0;          ///< largest ratio of Young's moduli of neighbouring layers
    double globalPoissonRatio = 0.2;  ///< of the soil as a whole
    int mindlinOption = 0;            ///< stiffness used in Mindlin's solution
    bool operator==(const RaftSettings&) const = default;
};

}  // namespace Tevra::Data

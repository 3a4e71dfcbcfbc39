#pragma once

#include <string>
#include <utility>
#include <vector>

namespace Tevra {

class QuorlFields;
class QuorlText;

/// The number under which the host knows a record.
class GeoID {
public:
    int Ref() const { return m_ref; }
    void SetRef(int ref) { m_ref = ref; }

private:
    int m_ref = 0;
};

/// A record of the pile-settlement program: plain values, SI. A record line begins with the
/// reference number and the name, the values follow.
class GeoRecord : public GeoID {
public:
    GeoRecord() = default;
    GeoRecord(const GeoRecord&) = default;
    GeoRecord(GeoRecord&&) = default;
    GeoRecord& operator=(const GeoRecord&) = default;
    GeoRecord& operator=(GeoRecord&&) = default;
    virtual ~GeoRecord() = default;

    /// Takes the record from its line; false when a field is missing or wrong.
    virtual bool Read(QuorlFields& fields);
    virtual void Write(QuorlText& text) const;

    std::wstring name;
};

/// One layer of a soil profile, its modulus linear with depth.
struct GeoSoilLayer {
    double topLevel = 0.0;     ///< m
    double youngTop = 0.0;     ///< Pa
    double youngBottom = 0.0;  ///< Pa
    double poissonRatio = 0.0;
    int curve = 0;  ///< GeoCurve, 0 none
};

/// Layers of soil from the top down.
class GeoSoilProfile : public GeoRecord {
public:
    bool Read(QuorlFields& fields) override;
    void Write(QuorlText& text) const override;

    std::vector<GeoSoilLayer> layers;
};

/// A rectangle in plan, where a profile holds.
class GeoSoilZone : public GeoRecord {
public:
    bool Read(QuorlFields& fields) override;
    void Write(QuorlText& text) const override;

    int profile = 0;
    double xMin = 0.0;  ///< m, and the others
    double yMin = 0.0;
    double xMax = 0.0;
    double yMax = 0.0;
};

/// Points of a curve: strain and ratio of moduli.
class GeoCurve : public GeoRecord {
public:
    bool Read(QuorlFields& fields) override;
    void Write(QuorlText& text) const override;

    std::vector<std::pair<double, double>> points;
};

/// Displacement (m) and force (N) of a pile in its soil, for positive values of a curve that is
/// symmetric.
class GeoSymmetricCurve : public GeoCurve {};

/// How a pile works with the soil round it.
class GeoPileSoilInteraction : public GeoRecord {
public:
    bool Read(QuorlFields& fields) override;
    void Write(QuorlText& text) const override;

    int baseCurve = 0;                ///< GeoSymmetricCurve, 0 none
    int shaftCurve = 0;               ///< GeoSymmetricCurve, 0 none
    double baseArea = 0.0;            ///< m2
    double shaftFrictionLimit = 0.0;  ///< Pa
    double endBearingLimit = 0.0;     ///< Pa
};

/// Pressures of a load on the soil, Pa: downwards, and shear along global X and Y.
struct GeoPressures {
    double vertical = 0.0;
    double horizontalX = 0.0;
    double horizontalY = 0.0;
};

/// What the loads on the soil share: the analysis case, and the level of the loaded area in m.
class GeoLoad : public GeoRecord {
public:
    int loadCase = 1;
    double level = 0.0;
    GeoPressures pressures;

protected:
    void ReadPressures(QuorlFields& fields);
    void WritePressures(QuorlText& text) const;
};

class GeoRectLoad : public GeoLoad {
public:
    bool Read(QuorlFields& fields) override;
    void Write(QuorlText& text) const override;

    double x = 0.0;  ///< of the centre, m
    double y = 0.0;
    double angle = 0.0;   ///< of the rectangle's x from global X, degrees
    double widthX = 0.0;  ///< along the rectangle's x, m
    double widthY = 0.0;
};

class GeoCircLoad : public GeoLoad {
public:
    bool Read(QuorlFields& fields) override;
    void Write(QuorlText& text) const override;

    double x = 0.0;  ///< of the centre, m
    double y = 0.0;
    double radius = 0.0;  ///< m
};

class GeoPolyLoad : public GeoLoad {
public:
    bool Read(QuorlFields& fields) override;
    void Write(QuorlText& text) const override;

    std::vector<std::pair<double, double>> corners;  ///< x and y, m
};

}  // namespace Tevra

#pragma once

#include <array>
#include <vector>

#include "model/SpanFrame.h"
#include "model/SpanLoads.h"

namespace Tevra {

class CVynData;

/// Displacements (m, rad) in global axes, or force and moment (N, Nm) in element axes.
struct InterResult {
    Vec3<double> tran;
    Vec3<double> rot;
};

/// Result that is missing: no number.
InterResult NoInterResult();
/// Whether any figure of a result is there.
bool IsResult(const InterResult& result);

/// A 1D element in one analysis case: what its ends do and what loads its span.
///
/// F(x) and M(x) are what the part beyond x does to the part before it, so that tension is
/// positive, dMyy/dx = Fz and dMzz/dx = -Fy. The transverse displacement is the cubic of the
/// displacements and rotations of the ends and the deflection of the span loads between fixed ends;
/// shear does not deflect. Where an element is released at an end and its own rotation there is not
/// known, the rotation is the one that goes with the moment there.
class InterSpan {
public:
    void Set(const CVynData& model, int element, int analysisCase);
    int AnalysisCase() const { return m_case; }

    InterResult Displacement(const CPosOn1D& at) const;
    InterResult Force(const CPosOn1D& at) const;

    /// Adds the positions of point loads, the ends of patches, and where the shear of a plane of
    /// bending is zero.
    void AddInteresting(std::vector<CPosOn1D>& positions) const;

private:
    /// Displacement and slope at the ends in a plane of bending, less those of the held cantilever
    /// under the span loads at end 2; releases that leave the slope open.
    struct Plane {
        double w1 = 0.0;
        double s1 = 0.0;
        double w2 = 0.0;
        double s2 = 0.0;
    };
    /// Deflection, slope and curvature of a cantilever held at end 1 under the span loads.
    struct Cantilever {
        std::array<double, 3> xz{};
        std::array<double, 3> xy{};
    };

    void SetEnds(const CVynData& model);
    void SetPlanes(const CVynData& model);
    void Release(Plane& plane, double farCurvature, const std::array<double, 2>& curvature,
                 const std::array<bool, 2>& loose) const;
    SpanPlace PlaceOf(const CPosOn1D& at) const;
    Cantilever CantileverAt(const SpanPlace& place, int count) const;
    void AddLoadPositions(const SpanLoads& loads, std::vector<CPosOn1D>& positions) const;
    std::vector<double> Breaks() const;
    Vec3<double> ShearBeyond(double x, double last) const;
    void AddZeroShear(int component, const std::vector<double>& breaks, double negligible,
                      std::vector<CPosOn1D>& positions) const;

    int m_case = 0;
    SpanFrame m_frame;
    SpanLoads m_forces;
    SpanLoads m_moments;
    std::array<InterResult, 2> m_disp;   ///< of the ends, global axes
    std::array<InterResult, 2> m_local;  ///< of the ends, element axes
    std::array<InterResult, 2> m_force;  ///< at the ends
    bool m_hasOwnRotation = false;
    Plane m_xz;
    Plane m_xy;
};

}  // namespace Tevra

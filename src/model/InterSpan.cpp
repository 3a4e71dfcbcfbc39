#include "model/InterSpan.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "model/SpanLoadIndex.h"
#include "model/VynData.h"

namespace Tevra {

namespace {

constexpr double kNone = std::numeric_limits<double>::quiet_NaN();
constexpr CPosOn1D kEnd1(0);
constexpr CPosOn1D kEnd2(CPosOn1D::kWhole);

Vec3<double> Between(const Vec3<double>& a, const Vec3<double>& b, double t) {
    return a * (1.0 - t) + b * t;
}

/// The figures of `v`, those of `other` where they are missing.
Vec3<double> KnownOr(const Vec3<double>& v, const Vec3<double>& other) {
    return {std::isfinite(v.x) ? v.x : other.x, std::isfinite(v.y) ? v.y : other.y,
            std::isfinite(v.z) ? v.z : other.z};
}

/// The moments where the curvature is not known are those of a hinge.
double Curvature(double moment, double stiffness) {
    return stiffness > 0.0 && std::isfinite(moment) ? moment / stiffness : 0.0;
}

bool HasOwnDisplacement(const CVynData& model, int element, int analysisCase) {
    const CaseResults* results = model.Results().Find(analysisCase);
    const ResultTable* table = results != nullptr ? results->Find(ResultKind::Elem1DDisp) : nullptr;
    return table != nullptr && table->NumRow(element) >= 2;
}

}  // namespace

InterResult NoInterResult() {
    return {{kNone, kNone, kNone}, {kNone, kNone, kNone}};
}

bool IsResult(const InterResult& result) {
    for (int k = 0; k < 3; ++k) {
        if (std::isfinite(result.tran[k]) || std::isfinite(result.rot[k])) {
            return true;
        }
    }
    return false;
}

void InterSpan::Set(const CVynData& model, int element, int analysisCase) {
    const SpanLoadIndex& loads = model.SpanLoadsByElement();
    m_case = analysisCase;
    m_frame = SpanFrame::Of(model, element, loads.StageOf(analysisCase));
    m_forces.Clear();
    m_moments.Clear();
    if (m_frame.length > 0.0) {
        loads.AddLoads(m_frame, analysisCase, m_forces, m_moments);
        SetEnds(model);
        SetPlanes(model);
    }
}

void InterSpan::SetEnds(const CVynData& model) {
    const SCaseRef ref = AnalysisRef(m_case);
    const int element = m_frame.element;
    m_hasOwnRotation = HasOwnDisplacement(model, element, m_case);
    for (int end = 0; end < 2; ++end) {
        const auto i = static_cast<std::size_t>(end);
        m_disp[i] = {model.ElemDisp(element, ref, end), model.ElemRotn(element, ref, end)};
        m_local[i] = {m_frame.axes.ResultGtoL(m_disp[i].tran),
                      m_frame.axes.ResultGtoL(m_disp[i].rot)};
        m_force[i] = {model.Force(element, ref, end), model.Moment(element, ref, end)};
    }
}

SpanPlace InterSpan::PlaceOf(const CPosOn1D& at) const {
    return {at.Fraction() * m_frame.length, at};
}

// Curvature is -Myy / EIyy in the x-z plane and Mzz / EIzz in the x-y plane; a moment load myy
// lowers Myy beyond it, mzz Mzz.
InterSpan::Cantilever InterSpan::CantileverAt(const SpanPlace& place, int count) const {
    Cantilever out;
    if (m_forces.IsEmpty() && m_moments.IsEmpty()) {
        return out;
    }
    for (int k = 0; k < count; ++k) {
        const auto i = static_cast<std::size_t>(k);
        const Vec3<double> force = m_forces.Integral(3 - k, place);
        const Vec3<double> moment = m_moments.Integral(2 - k, place);
        out.xz[i] = m_frame.eiyy > 0.0 ? (force.z + moment.y) / m_frame.eiyy : 0.0;
        out.xy[i] = m_frame.eizz > 0.0 ? (force.y - moment.z) / m_frame.eizz : 0.0;
    }
    return out;
}

void InterSpan::SetPlanes(const CVynData& model) {
    if (!m_frame.bends) {
        return;
    }
    const SpanPlace beyond{m_frame.length, CPosOn1D(CPosOn1D::kWhole + 1)};
    const auto& [near, far] = m_local;
    const auto& [first, last] = m_force;
    const auto [xz, xy] = CantileverAt(beyond, 3);
    m_xz = {near.tran.z, -near.rot.y, far.tran.z - xz[0], -far.rot.y - xz[1]};
    m_xy = {near.tran.y, near.rot.z, far.tran.y - xy[0], far.rot.z - xy[1]};
    if (m_hasOwnRotation) {
        return;
    }
    const Data::CElement& record = model.Elem(m_frame.element);
    const auto isLoose = [&](int end, Direction d) {
        return m_frame.isPinned || record.Connect(end).State(d) != Data::ReleaseState::Fixed;
    };
    Release(m_xz, xz[2],
            {Curvature(-first.rot.y, m_frame.eiyy), Curvature(-last.rot.y, m_frame.eiyy)},
            {isLoose(1, Direction::YY), isLoose(2, Direction::YY)});
    Release(m_xy, xy[2],
            {Curvature(first.rot.z, m_frame.eizz), Curvature(last.rot.z, m_frame.eizz)},
            {isLoose(1, Direction::ZZ), isLoose(2, Direction::ZZ)});
}

/// Slopes of loose ends from the curvatures there. The cubic has
///     4 s1 + 2 s2 = 6 (w2 - w1) / L - curvature1 L
///     2 s1 + 4 s2 = 6 (w2 - w1) / L + curvature2 L
void InterSpan::Release(Plane& plane, double farCurvature, const std::array<double, 2>& curvature,
                        const std::array<bool, 2>& loose) const {
    const double chord = 6.0 * (plane.w2 - plane.w1) / m_frame.length;
    const double a = chord - curvature[0] * m_frame.length;
    const double b = chord + (curvature[1] - farCurvature) * m_frame.length;
    if (loose[0] && loose[1]) {
        plane.s1 = (2.0 * a - b) / 6.0;
        plane.s2 = (2.0 * b - a) / 6.0;
    } else if (loose[0]) {
        plane.s1 = (a - 2.0 * plane.s2) / 4.0;
    } else if (loose[1]) {
        plane.s2 = (b - 2.0 * plane.s1) / 4.0;
    }
}

namespace {

/// The cubic with displacements w1, w2 and slopes s1, s2 at the ends of a length (Hermite), at the
/// fraction t, and its slope.
struct CubicValue {
    double w;
    double slope;
};
template <class Ends>
CubicValue Cubic(const Ends& e, double length, double t) {
    const double u = 1.0 - t;
    return {e.w1 * u * u * (1.0 + 2.0 * t) + e.w2 * t * t * (3.0 - 2.0 * t) +
                length * t * u * (e.s1 * u - e.s2 * t),
            6.0 * t * u * (e.w2 - e.w1) / length + e.s1 * u * (1.0 - 3.0 * t) -
                e.s2 * t * (2.0 - 3.0 * t)};
}

}  // namespace

InterResult InterSpan::Displacement(const CPosOn1D& at) const {
    if (!(m_frame.length > 0.0)) {
        return NoInterResult();
    }
    const double t = at.Fraction();
    const auto& [near, far] = m_local;
    Vec3<double> tran = Between(near.tran, far.tran, t);
    Vec3<double> rot = Between(near.rot, far.rot, t);
    if (m_frame.bends) {
        const Cantilever load = CantileverAt(PlaceOf(at), 2);
        const CubicValue xz = Cubic(m_xz, m_frame.length, t);
        const CubicValue xy = Cubic(m_xy, m_frame.length, t);
        tran = {tran.x, xy.w + load.xy[0], xz.w + load.xz[0]};
        rot = {rot.x, -(xz.slope + load.xz[1]), xy.slope + load.xy[1]};
    }
    InterResult result{m_frame.axes.ResultLtoG(tran), m_frame.axes.ResultLtoG(rot)};
    if (at == kEnd1 || at == kEnd2) {
        result.tran = m_disp[at == kEnd1 ? 0 : 1].tran;  // as it was solved, free of round-off
    }
    return result;
}

InterResult InterSpan::Force(const CPosOn1D& at) const {
    const InterResult& start = m_force[0];
    if (!(m_frame.length > 0.0) || !IsResult(start)) {
        return NoInterResult();
    }
    const SpanPlace place = PlaceOf(at);
    const Vec3<double> force = m_forces.Integral(0, place);
    const Vec3<double> moment = m_moments.Integral(0, place);
    const Vec3<double> arm = m_forces.Integral(1, place);
    const Vec3<double> carried{0.0, place.x * start.tran.z - arm.z, arm.y - place.x * start.tran.y};
    const InterResult summed{start.tran - force, start.rot + carried - moment};
    if (at != kEnd2) {
        return summed;
    }
    // What was solved for the end holds beyond loads that stand right at it.
    const SpanPlace beyond{m_frame.length, CPosOn1D(CPosOn1D::kWhole + 1)};
    const InterResult& solved = m_force[1];
    return {KnownOr(solved.tran + (m_forces.Integral(0, beyond) - force), summed.tran),
            KnownOr(solved.rot + (m_moments.Integral(0, beyond) - moment), summed.rot)};
}

}  // namespace Tevra

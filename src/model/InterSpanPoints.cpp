#include <algorithm>
#include <cmath>

#include "model/InterSpan.h"

namespace Tevra {

namespace {

/// Share of a stretch within which a zero is that of its end.
constexpr double kAtEnd = 1e-9;

/// Points where a quadratic with values f0, fm and f1 at 0, 1/2 and 1 is zero, between 0 and 1.
void AddRoots(double f0, double fm, double f1, std::vector<double>& roots) {
    const double a = 2.0 * (f0 - 2.0 * fm + f1);
    const double b = f1 - f0 - a;
    const double size = std::fabs(f0) + std::fabs(fm) + std::fabs(f1);
    const auto add = [&roots](double root) {
        if (root > kAtEnd && root < 1.0 - kAtEnd) {
            roots.push_back(root);
        }
    };
    if (std::fabs(a) <= 1e-9 * size) {
        add(f0 / (f0 - f1));
        return;
    }
    const double inside = b * b - 4.0 * a * f0;
    if (inside >= 0.0) {
        const double q = -0.5 * (b + std::copysign(std::sqrt(inside), b));
        add(q / a);
        add(f0 / q);
    }
}

}  // namespace

/// Force at `x` of a stretch that begins at `last` with the loads at points up to there.
Vec3<double> InterSpan::ShearBeyond(double x, double last) const {
    Vec3<double> force = m_force[0].tran - m_forces.Integral(0, {x, CPosOn1D(0)});
    for (const SpanPoint& point : m_forces.Points()) {
        force = point.a <= last ? force - point.value : force;
    }
    return force;
}

void InterSpan::AddZeroShear(int component, const std::vector<double>& breaks, double negligible,
                             std::vector<CPosOn1D>& positions) const {
    std::vector<double> roots;
    for (std::size_t i = 0; i + 1 < breaks.size(); ++i) {
        const double a = breaks[i];
        const double b = breaks[i + 1];
        const double f0 = ShearBeyond(a, a)[component];
        const double fm = ShearBeyond(0.5 * (a + b), a)[component];
        const double f1 = ShearBeyond(b, a)[component];
        if (std::max({std::fabs(f0), std::fabs(fm), std::fabs(f1)}) <= negligible) {
            continue;
        }
        roots.clear();
        AddRoots(f0, fm, f1, roots);
        for (const double root : roots) {
            positions.push_back(CPosOn1D::FromFraction((a + root * (b - a)) / m_frame.length));
        }
    }
}

void InterSpan::AddLoadPositions(const SpanLoads& loads, std::vector<CPosOn1D>& positions) const {
    for (const SpanPiece& piece : loads.Pieces()) {
        if (piece.a > 0.0 || piece.b < m_frame.length) {
            positions.push_back(CPosOn1D::FromFraction(piece.a / m_frame.length));
            positions.push_back(CPosOn1D::FromFraction(piece.b / m_frame.length));
        }
    }
    for (const SpanPoint& point : loads.Points()) {
        positions.push_back(point.at);
    }
}

/// The stretches along which the shear is one quadratic.
std::vector<double> InterSpan::Breaks() const {
    std::vector<double> breaks{0.0, m_frame.length};
    for (const SpanPiece& piece : m_forces.Pieces()) {
        breaks.insert(breaks.end(), {piece.a, piece.b});
    }
    for (const SpanPoint& point : m_forces.Points()) {
        breaks.push_back(point.a);
    }
    std::sort(breaks.begin(), breaks.end());
    breaks.erase(std::unique(breaks.begin(), breaks.end()), breaks.end());
    return breaks;
}

void InterSpan::AddInteresting(std::vector<CPosOn1D>& positions) const {
    if (!(m_frame.length > 0.0)) {
        return;
    }
    AddLoadPositions(m_forces, positions);
    AddLoadPositions(m_moments, positions);
    // Without loads along the span the shear changes nowhere.
    if (m_forces.IsEmpty() || !IsResult(m_force[0])) {
        return;
    }
    const std::vector<double> breaks = Breaks();
    double greatest = 0.0;
    for (const double x : breaks) {
        const Vec3<double> shear = ShearBeyond(x, x);
        for (const int component : {1, 2}) {
            greatest = std::max(greatest, std::fabs(shear[component]));  // not by a missing one
        }
    }
    constexpr double kNegligible = 1e-9;
    AddZeroShear(1, breaks, kNegligible * greatest, positions);
    AddZeroShear(2, breaks, kNegligible * greatest, positions);
}

}  // namespace Tevra

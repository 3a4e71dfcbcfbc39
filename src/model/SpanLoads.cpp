#include "model/SpanLoads.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

namespace Tevra {

namespace {

constexpr std::array<double, 5> kFactorial{1.0, 1.0, 2.0, 6.0, 24.0};
/// Share of the length by which round-off may put a load beyond an end.
constexpr double kRoundOff = 1e-9;

double Factorial(int n) {
    return kFactorial[static_cast<std::size_t>(n)];
}

double Power(double base, int exponent) {
    double power = 1.0;
    for (int i = 0; i < exponent; ++i) {
        power *= base;
    }
    return power;
}

/// With h = x - a, g = what of it lies beyond b, and p = first + slope u at u from a, the integral
/// of (h - u)^n / n! p over u becomes one of y^n (first + slope (h - y)) over y = h - u from g to
/// h.
Vec3<double> IntegralOf(const SpanPiece& piece, int n, double x) {
    const double h = x - piece.a;
    if (!(h > 0.0)) {
        return {};
    }
    const double g = std::max(x - piece.b, 0.0);
    const Vec3<double> slope = (piece.last - piece.first) * (1.0 / (piece.b - piece.a));
    const double even = (Power(h, n + 1) - Power(g, n + 1)) / Factorial(n + 1);
    const double rising = (Power(h, n + 2) - Power(g, n + 2)) / (Factorial(n) * (n + 2));
    return (piece.first + slope * h) * even - slope * rising;
}

}  // namespace

SpanPart PartOnSpan(double first, double second, double length) {
    if (!std::isfinite(first) || !std::isfinite(second)) {
        return {};
    }
    const double run = second - first;
    const auto share = [=](double place) {
        return place == first ? 0.0 : place == second ? 1.0 : (place - first) / run;
    };
    const double a = std::max(std::min(first, second), 0.0);
    const double b = std::min(std::max(first, second), length);
    return {a, b, share(a), share(b)};
}

bool IsOnSpan(double place, double length) {
    const double slack = kRoundOff * length;
    return place >= -slack && place <= length + slack;
}

void SpanLoads::Clear() {
    m_pieces.clear();
    m_points.clear();
}

void SpanLoads::AddPiece(const SpanPiece& piece, double length) {
    const SpanPart part = PartOnSpan(piece.a, piece.b, length);
    const auto value = [&piece](double t) { return piece.first * (1.0 - t) + piece.last * t; };
    if (!part.IsEmpty()) {
        m_pieces.push_back({part.a, part.b, value(part.atA), value(part.atB)});
    }
}

void SpanLoads::AddPoint(double a, const Vec3<double>& value, double length) {
    if (IsOnSpan(a, length)) {
        m_points.push_back({std::clamp(a, 0.0, length), CPosOn1D::FromFraction(a / length), value});
    }
}

Vec3<double> SpanLoads::Integral(int n, const SpanPlace& place) const {
    Vec3<double> sum;
    for (const SpanPiece& piece : m_pieces) {
        sum = sum + IntegralOf(piece, n, place.x);
    }
    for (const SpanPoint& point : m_points) {
        if (point.at < place.at) {
            sum = sum + point.value * (Power(place.x - point.a, n) / Factorial(n));
        }
    }
    return sum;
}

}  // namespace Tevra

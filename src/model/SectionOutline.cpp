#include "model/SectionOutline.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <numbers>

namespace Tevra::Data {

namespace {

constexpr double kPi = std::numbers::pi;
constexpr double kPointsPerCircle = 32.0;

Vec2<double> operator+(const Vec2<double>& a, const Vec2<double>& b) {
    return {a.x + b.x, a.y + b.y};
}
Vec2<double> operator-(const Vec2<double>& a, const Vec2<double>& b) {
    return {a.x - b.x, a.y - b.y};
}
Vec2<double> operator*(const Vec2<double>& a, double f) {
    return {a.x * f, a.y * f};
}
double Dot(const Vec2<double>& a, const Vec2<double>& b) {
    return a.x * b.x + a.y * b.y;
}
double Cross(const Vec2<double>& a, const Vec2<double>& b) {
    return a.x * b.y - a.y * b.x;
}
double Length(const Vec2<double>& a) {
    return std::hypot(a.x, a.y);
}
/// A vector turned by a right angle to the left.
Vec2<double> Left(const Vec2<double>& a) {
    return {-a.y, a.x};
}

/// The way from one contour point to the next.
struct Edge {
    Vec2<double> from;
    Vec2<double> to;
    double angle = 0.0;  ///< included angle of an arc, 0 for a straight edge
    Vec2<double> centre;

    Edge(const ContourPoint& start, const ContourPoint& end)
        : from(start.at), to(end.at), angle(4.0 * std::atan(start.bulge)) {
        const double b = start.bulge;
        if (b != 0.0) {
            centre = (from + to) * 0.5 + Left(to - from) * ((1.0 - b * b) / (4.0 * b));
        }
    }
    bool IsArc() const { return angle != 0.0; }
    double Length() const {
        return IsArc() ? std::abs(angle) * Data::Length(from - centre) : Data::Length(to - from);
    }
    /// The point at the fraction `t` of the edge.
    Vec2<double> At(double t) const {
        if (!IsArc()) {
            return from + (to - from) * t;
        }
        const double turn = angle * t;
        const Vec2<double> arm = from - centre;
        return centre + arm * std::cos(turn) + Left(arm) * std::sin(turn);
    }
    /// How the point moves with the fraction.
    Vec2<double> Slope(double t) const {
        return IsArc() ? Left(At(t) - centre) * angle : to - from;
    }
};

template <class Visit>
void ForEachEdge(const Contour& contour, Visit visit) {
    for (std::size_t i = 0; i < contour.size(); ++i) {
        visit(Edge(contour[i], contour[i + 1 < contour.size() ? i + 1 : 0]));
    }
}

/// Points and weights of Gauss-Legendre quadrature on -1..1.
struct GaussPoint {
    double at;
    double weight;
};
constexpr GaussPoint kGauss2[] = {{-0.57735026918962576, 1.0}, {0.57735026918962576, 1.0}};
constexpr GaussPoint kGauss8[] = {
    {-0.96028985649753623, 0.10122853629037626}, {-0.79666647741362674, 0.22238103445337447},
    {-0.52553240991632899, 0.31370664587788729}, {-0.18343464249564980, 0.36268378337836198},
    {0.18343464249564980, 0.36268378337836198},  {0.52553240991632899, 0.31370664587788729},
    {0.79666647741362674, 0.22238103445337447},  {0.96028985649753623, 0.10122853629037626}};

/// Adds the integrands of Green's theorem over the fractions `begin` to `end` of an edge.
void AddPiece(AreaIntegrals& sum, const Edge& edge, double begin, double end,
              std::span<const GaussPoint> points) {
    const double half = 0.5 * (end - begin);
    for (const GaussPoint& point : points) {
        const double t = begin + half * (1.0 + point.at);
        const auto [y, z] = edge.At(t);
        const Vec2<double> move = edge.Slope(t) * (half * point.weight);
        sum.area += 0.5 * (y * move.y - z * move.x);
        sum.y += 0.5 * y * y * move.y;
        sum.z -= 0.5 * z * z * move.x;
        sum.yy += y * y * y * move.y / 3.0;
        sum.zz -= z * z * z * move.x / 3.0;
        sum.yz += 0.5 * y * y * z * move.y;
    }
}

/// The integrands are cubic along a straight edge: two points are exact. Along an arc, eight points
/// to 45 degrees leave nothing but rounding.
void AddEdge(AreaIntegrals& sum, const Edge& edge) {
    if (!edge.IsArc()) {
        AddPiece(sum, edge, 0.0, 1.0, kGauss2);
        return;
    }
    const int pieces = 1 + static_cast<int>(std::abs(edge.angle) / (0.25 * kPi + 1.0e-9));
    for (int i = 0; i < pieces; ++i) {
        AddPiece(sum, edge, static_cast<double>(i) / pieces, static_cast<double>(i + 1) / pieces,
                 kGauss8);
    }
}

/// An edge that is run the other way starts where it ended: its arc goes with that point.
Contour Reversed(const Contour& contour) {
    Contour reversed(contour.rbegin(), contour.rend());
    for (std::size_t i = 0; i < contour.size(); ++i) {
        const std::size_t next = i + 1 < contour.size() ? i + 1 : 0;
        reversed[i].bulge = -contour[contour.size() - 1 - next].bulge;
    }
    return reversed;
}

/// A corner with its two tangent points and the arc between them.
struct RoundedCorner {
    Vec2<double> at;
    Vec2<double> begin;
    Vec2<double> end;
    double bulge = 0.0;
    double tangent = 0.0;  ///< length of edge that the arc takes on either side
};

RoundedCorner Round(const Corner& before, const Corner& corner, const Corner& after) {
    const Vec2<double> at{corner.y, corner.z};
    if (corner.radius == 0.0) {
        return {at, at, at, 0.0, 0.0};
    }
    const Vec2<double> in = at - Vec2<double>{before.y, before.z};
    const Vec2<double> out = Vec2<double>{after.y, after.z} - at;
    const double turn = std::atan2(Cross(in, out), Dot(in, out));
    const double tangent = corner.radius * std::abs(std::tan(0.5 * turn));
    return {at, at - in * (tangent / Length(in)), at + out * (tangent / Length(out)),
            std::tan(0.25 * turn), tangent};
}

}  // namespace

AreaIntegrals& AreaIntegrals::operator+=(const AreaIntegrals& o) {
    area += o.area;
    y += o.y;
    z += o.z;
    yy += o.yy;
    zz += o.zz;
    yz += o.yz;
    return *this;
}

Contour MakeContour(std::span<const Corner> corners) {
    const std::size_t n = corners.size();
    std::vector<RoundedCorner> rounded;
    rounded.reserve(n);
    for (std::size_t i = 0; i < n; ++i) {
        rounded.push_back(Round(corners[(i + n - 1) % n], corners[i], corners[(i + 1) % n]));
    }
    Contour contour;
    contour.reserve(2 * n);
    for (std::size_t i = 0; i < n; ++i) {
        const RoundedCorner& corner = rounded[i];
        const RoundedCorner& next = rounded[(i + 1) % n];
        const double room = Length(next.at - corner.at) * (1.0 + 1.0e-9);
        if (!(corner.tangent + next.tangent <= room)) {
            return {};
        }
        if (corner.bulge != 0.0) {
            contour.push_back({corner.begin, corner.bulge});
        }
        contour.push_back({corner.end, 0.0});
    }
    return contour;
}

Contour MakeCircle(double radius) {
    const double quarter = std::tan(kPi / 8.0);
    return {{{radius, 0.0}, quarter},
            {{0.0, radius}, quarter},
            {{-radius, 0.0}, quarter},
            {{0.0, -radius}, quarter}};
}

AreaIntegrals IntegralsOf(const Contour& contour) {
    AreaIntegrals sum;
    ForEachEdge(contour, [&sum](const Edge& edge) { AddEdge(sum, edge); });
    return sum;
}

void SectionOutline::AddMaterial(Contour contour) {
    Add(std::move(contour), true);
}

void SectionOutline::AddVoid(Contour contour) {
    Add(std::move(contour), false);
}

void SectionOutline::Add(Contour contour, bool counterClockwise) {
    if ((IntegralsOf(contour).area > 0.0) != counterClockwise) {
        contour = Reversed(contour);
    }
    m_contours.push_back(std::move(contour));
}

AreaIntegrals SectionOutline::Integrals() const {
    AreaIntegrals sum;
    for (const Contour& contour : m_contours) {
        sum += IntegralsOf(contour);
    }
    return sum;
}

Vec2<double> SectionOutline::BoxCentre() const {
    constexpr double kFar = std::numeric_limits<double>::infinity();
    Vec2<double> low{kFar, kFar};
    Vec2<double> high{-kFar, -kFar};
    for (const Contour& contour : m_contours) {
        for (const ContourPoint& point : contour) {
            low = {std::min(low.x, point.at.x), std::min(low.y, point.at.y)};
            high = {std::max(high.x, point.at.x), std::max(high.y, point.at.y)};
        }
    }
    return (low + high) * 0.5;
}

void SectionOutline::Translate(const Vec2<double>& by) {
    for (Contour& contour : m_contours) {
        for (ContourPoint& point : contour) {
            point.at = point.at + by;
        }
    }
}

double SectionOutline::PerimeterLength() const {
    double length = 0.0;
    for (const Contour& contour : m_contours) {
        if (IntegralsOf(contour).area > 0.0) {
            ForEachEdge(contour, [&length](const Edge& edge) { length += edge.Length(); });
        }
    }
    return length;
}

std::vector<SectionPolygon> SectionOutline::Polygons() const {
    std::vector<SectionPolygon> polygons;
    polygons.reserve(m_contours.size());
    for (const Contour& contour : m_contours) {
        SectionPolygon& polygon = polygons.emplace_back();
        ForEachEdge(contour, [&polygon](const Edge& edge) {
            const double share = std::abs(edge.angle) / (2.0 * kPi);
            const int steps = std::max(1, static_cast<int>(std::lround(share * kPointsPerCircle)));
            for (int i = 0; i < steps; ++i) {
                polygon.push_back(edge.At(static_cast<double>(i) / steps));
            }
        });
    }
    return polygons;
}

}  // namespace Tevra::Data

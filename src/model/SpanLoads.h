#pragma once

#include <vector>

#include "model/PosOn1D.h"
#include "model/Types.h"

namespace Tevra {

/// Forces or moments per length in element axes, linear from `first` at `a` to `last` at `b`
/// (m from end 1).
struct SpanPiece {
    double a = 0.0;
    double b = 0.0;
    Vec3<double> first;
    Vec3<double> last;
};

/// What of a stretch between two places lies on a span: its ends, ascending, and where these are in
/// the stretch, 0 at its first place and 1 at its second.
struct SpanPart {
    double a = 0.0;
    double b = 0.0;
    double atA = 0.0;
    double atB = 1.0;

    bool IsEmpty() const { return !(a < b); }
};

/// The part between 0 and `length` of a stretch whose places stand in either order; empty when
/// there is none, or a place is not finite.
SpanPart PartOnSpan(double first, double second, double length);

/// Whether a place is between 0 and `length`, or beyond by no more than round-off.
bool IsOnSpan(double place, double length);

/// A force or moment in element axes at `a` m from end 1.
struct SpanPoint {
    double a = 0.0;
    CPosOn1D at;
    Vec3<double> value;
};

/// Where the loads of a span are looked at: m from end 1, and the position that this is. A point
/// load acts beyond its position, not yet at it.
struct SpanPlace {
    double x = 0.0;
    CPosOn1D at;
};

/// Loads of one kind (forces or moments) along a 1D element.
class SpanLoads {
public:
    void Clear();
    bool IsEmpty() const { return m_pieces.empty() && m_points.empty(); }
    /// Adds what lies between 0 and `length`; loads off the element and without extent add nothing.
    void AddPiece(const SpanPiece& piece, double length);
    void AddPoint(double a, const Vec3<double>& value, double length);

    /// Integral of (x - s)^n / n! p(s) ds from end 1 to the place, n = 0 to 3, in closed form: the
    /// sum of the load, its moment about the place, and the slope and deflection (times EI) that it
    /// gives a cantilever held at end 1 by what balances the rest (Macaulay's brackets).
    Vec3<double> Integral(int n, const SpanPlace& place) const;

    const std::vector<SpanPiece>& Pieces() const { return m_pieces; }
    const std::vector<SpanPoint>& Points() const { return m_points; }

private:
    std::vector<SpanPiece> m_pieces;
    std::vector<SpanPoint> m_points;
};

}  // namespace Tevra

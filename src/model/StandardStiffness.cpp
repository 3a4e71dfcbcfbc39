#include "model/StandardStiffness.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace Tevra::Data {

namespace {

constexpr double kPi = std::numbers::pi;

double Cube(double value) {
    return value * value * value;
}
double Square(double value) {
    return value * value;
}
double Fourth(double value) {
    return Square(Square(value));
}

/// b t^3 / 3 of a thin plate.
double Plate(double length, double thickness) {
    return length * Cube(thickness) / 3.0;
}

/// Roark: a b^3 (1/3 - 0.21 (b/a) (1 - (b/a)^4 / 12)) with a the longer side.
double SolidRectangle(double side, double other) {
    const double a = std::max(side, other);
    const double b = std::min(side, other);
    const double ratio = b / a;
    return a * Cube(b) * (1.0 / 3.0 - 0.21 * ratio * (1.0 - Fourth(ratio) / 12.0));
}

double TwoFlanges(const ShapeSize& s) {
    return 2.0 * Plate(s.Width(), s.Flange()) + Plate(s.Depth() - 2.0 * s.Flange(), s.Web());
}

/// What both web-flange junctions of a rolled shape add to its plates, by the circle of diameter
/// `circle` that fits into each, less the ends of the flanges (El Darwish and Johnston, 1965).
double Junctions(double alpha, double circle, double flange) {
    return 2.0 * alpha * Fourth(circle) - 0.420 * Fourth(flange);
}

/// The strip of a flange or leg along a shear force has a parabolic stress: 5/6 of its area.
double FreeStrips(double area) {
    return kSolidShearFactor * area;
}

ShearFactors Factors(double shearAreaY, double shearAreaZ, double area) {
    return {std::min(shearAreaY / area, kSolidShearFactor),
            std::min(shearAreaZ / area, kSolidShearFactor)};
}

}  // namespace

double RectangleTorsion(const ShapeSize& s) {
    return SolidRectangle(s.Depth(), s.Width());
}

/// As a rectangle of the mean width.
double TrapeziumTorsion(const ShapeSize& s) {
    return SolidRectangle(s.Depth(), 0.5 * (s.d[1] + s.d[2]));
}

double RoundTorsion(const ShapeSize& s) {
    return kPi * Fourth(s.Depth()) / 32.0;
}

double TubeTorsion(const ShapeSize& s) {
    return kPi * (Fourth(s.Depth()) - Fourth(s.Depth() - 2.0 * s.Web())) / 32.0;
}

/// Bredt: 4 Am^2 / (integral of ds/t) round the middle line. With rounded corners (which have one
/// thickness all round) their mean radius shortens the line, and the wall's own t^3 / 3 counts, as
/// the European standard for hollow sections has it.
double BoxTorsion(const ShapeSize& s) {
    const double width = s.Width() - s.Web();
    const double depth = s.Depth() - s.Flange();
    const double radius = 0.5 * (s.rootRadius + s.cornerRadius);
    const double cut = (4.0 - kPi) * radius;
    const double meanArea = width * depth - cut * radius;
    const double round =
        2.0 * (depth / s.Web() + width / s.Flange()) - cut * (1.0 / s.Web() + 1.0 / s.Flange());
    const double wall = radius > 0.0 ? Plate(2.0 * (width + depth - cut), s.Flange()) : 0.0;
    return wall + 4.0 * Square(meanArea) / round;
}

double ITorsion(const ShapeSize& s) {
    const double t = s.Flange();
    const double w = s.Web();
    const double r = s.rootRadius;
    if (r == 0.0) {
        return TwoFlanges(s);
    }
    const double ratio = w / t;
    const double alpha = -0.042 + 0.2204 * ratio + 0.1355 * r / t - 0.0865 * r * w / (t * t) -
                         0.0725 * ratio * ratio;
    const double circle = (Square(t + r) + (r + 0.25 * w) * w) / (2.0 * r + t);
    return TwoFlanges(s) + Junctions(alpha, circle, t);
}

double ChannelTorsion(const ShapeSize& s) {
    const double t = s.Flange();
    const double w = s.Web();
    const double r = s.rootRadius;
    if (r == 0.0) {
        return TwoFlanges(s);
    }
    const double ratio = w / t;
    const double alpha = -0.0908 + 0.2621 * ratio + 0.1231 * r / t - 0.0752 * r * w / (t * t) -
                         0.0945 * ratio * ratio;
    const double circle = 2.0 * (3.0 * r + w + t - std::sqrt(2.0 * (2.0 * r + w) * (2.0 * r + t)));
    return TwoFlanges(s) + Junctions(alpha, circle, t);
}

double ZedTorsion(const ShapeSize& s) {
    return TwoFlanges(s);
}

double UnequalITorsion(const ShapeSize& s) {
    return Plate(s.Width(), s.Flange()) + Plate(s.BottomWidth(), s.BottomFlange()) +
           Plate(s.Depth() - s.Flange() - s.BottomFlange(), s.Web());
}

double TeeTorsion(const ShapeSize& s) {
    return Plate(s.Width(), s.Flange()) + Plate(s.Depth() - s.Flange(), s.Web());
}

double CrossTorsion(const ShapeSize& s) {
    return Plate(s.Depth(), s.Web()) + Plate(s.Width() - s.Web(), s.Flange());
}

double CompactTorsion(const SectionOutline& outline) {
    double sum = 0.0;
    for (const Contour& contour : outline.Contours()) {
        const AreaIntegrals a = IntegralsOf(contour);
        const double polar = a.yy + a.zz - (a.y * a.y + a.z * a.z) / a.area;
        sum += Fourth(a.area) / (40.0 * polar);
    }
    return std::max(sum, 0.0);
}

/// Timoshenko: 5/6 of a solid rectangle.
ShearFactors SolidShear(const ShapeSize& /*size*/, double /*area*/) {
    return {kSolidShearFactor, kSolidShearFactor};
}

/// Timoshenko: 9/10 of a solid circle (strain energy of the parabolic stress).
ShearFactors RoundShear(const ShapeSize& /*size*/, double /*area*/) {
    return {0.9, 0.9};
}

/// The dependence on the ratio m of inner to outer diameter that Cowper (1966) found, between the
/// solid circle, 9/10, and the thin tube, 1/2: 1/k = 10/9 + 32/9 m^2 / (1 + m^2)^2.
ShearFactors TubeShear(const ShapeSize& s, double /*area*/) {
    const double m = 1.0 - 2.0 * s.Web() / s.Depth();
    const double k = 9.0 / (10.0 + 32.0 * Square(m / (1.0 + m * m)));
    return {k, k};
}

/// The walls along the force, over the full depth or width (as AISC 360 takes the area of webs).
ShearFactors BoxShear(const ShapeSize& s, double area) {
    return Factors(2.0 * s.Width() * s.Flange(), 2.0 * s.Depth() * s.Web(), area);
}

/// Along z the web over the full depth (AISC 360); along y the flanges.
ShearFactors IShear(const ShapeSize& s, double area) {
    return Factors(FreeStrips(2.0 * s.Width() * s.Flange()), s.Depth() * s.Web(), area);
}

ShearFactors UnequalIShear(const ShapeSize& s, double area) {
    const double flanges = s.Width() * s.Flange() + s.BottomWidth() * s.BottomFlange();
    return Factors(FreeStrips(flanges), s.Depth() * s.Web(), area);
}

ShearFactors TeeShear(const ShapeSize& s, double area) {
    return Factors(FreeStrips(s.Width() * s.Flange()), FreeStrips(s.Depth() * s.Web()), area);
}

}  // namespace Tevra::Data

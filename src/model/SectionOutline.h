#pragma once

#include <span>
#include <vector>

#include "model/Types.h"

namespace Tevra::Data {

/// Points of a closed line in a section: `x` along the element's y, `y` along its z, m. The first
/// point is not repeated at the end.
using SectionPolygon = std::vector<Vec2<double>>;

/// Area integrals of an outline in its own coordinates: A, and the integrals of y, z, y2, z2, yz.
struct AreaIntegrals {
    double area = 0.0;
    double y = 0.0;
    double z = 0.0;
    double yy = 0.0;  ///< of y squared: the second moment about the z axis
    double zz = 0.0;  ///< of z squared: the second moment about the y axis
    double yz = 0.0;

    AreaIntegrals& operator+=(const AreaIntegrals& o);
    Vec2<double> Centroid() const { return {y / area, z / area}; }
};

/// A point of a contour, and how the contour goes on to the next: straight, or along an arc whose
/// included angle is 4 atan(bulge), to the left of its chord's direction of travel when positive.
struct ContourPoint {
    Vec2<double> at;
    double bulge = 0.0;
};
using Contour = std::vector<ContourPoint>;

/// A corner of a contour, rounded by an arc that touches both of its edges.
struct Corner {
    double y = 0.0;
    double z = 0.0;
    double radius = 0.0;
};

/// The contour through rounded corners; empty when an arc does not fit between its neighbours.
Contour MakeContour(std::span<const Corner> corners);
/// A full circle about the origin.
Contour MakeCircle(double radius);

/// Integrals over the inside of a contour (Green's theorem along its edges, exact for straight
/// edges, to rounding for arcs); negative for a contour that runs clockwise.
AreaIntegrals IntegralsOf(const Contour& contour);

/// The outline of a section: contours round the material (counter-clockwise) and round voids in it
/// (clockwise).
class SectionOutline {
public:
    /// Contours may be given in either sense; they are kept in the sense above.
    void AddMaterial(Contour contour);
    void AddVoid(Contour contour);

    bool IsEmpty() const { return m_contours.empty(); }
    const std::vector<Contour>& Contours() const { return m_contours; }
    AreaIntegrals Integrals() const;
    /// The middle of the box round all points.
    Vec2<double> BoxCentre() const;
    void Translate(const Vec2<double>& by);
    /// Length of the contours round the material, voids not counted, m.
    double PerimeterLength() const;
    /// The contours with arcs as points that lie on them, 32 to a full circle.
    std::vector<SectionPolygon> Polygons() const;

private:
    void Add(Contour contour, bool counterClockwise);
    std::vector<Contour> m_contours;
};

}  // namespace Tevra::Data

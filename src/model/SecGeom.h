#pragma once

#include <string_view>
#include <vector>

#include "model/Section.h"
#include "model/SectionShape.h"

namespace Tevra::Data {

/// Geometry of one part of a section, from its description: outline, dimensions and properties in
/// SI units, y and z as the element's axes (`x` and `y` of a Vec2). A description that can't be
/// read, a profile that is not in the catalogue, and dimensions that make no section leave all of
/// it zero and empty.
class CSecGeom {
public:
    /// Indices of dimensions; see ShapeSize.
    enum Prop : int { d0 = 0, d1 = 1, d2 = 2, d3 = 3, d4 = 4, d5 = 5, d6 = 6 };

    CSecGeom() = default;
    explicit CSecGeom(std::wstring_view description);
    CSecGeom(std::wstring_view description, const CProfileCatalogue& catalogue);

    SectionKind Kind() const { return m_kind; }
    /// Why the description gave nothing, for a person; empty when it gave properties.
    std::wstring_view Problem() const { return m_problem; }

    /// A dimension, m, at a position along the element (0 to 1; sections are prismatic). 0 for
    /// dimensions that the shape does not have, explicit properties and outlines of points.
    double Property(double position, Prop dimension) const;
    double Dimension(int i) const;

    /// A, J, second moments and product of inertia about the centroid, shear areas.
    const SectionProperties& Properties() const { return m_properties; }
    /// Integral of y z over the area about the centroid, m4.
    double Iyz() const { return m_properties.iyz; }
    /// The centroid, m: from the middle of the box of a standard shape or profile, from the origin
    /// of an outline's points.
    const Vec2<double>& Centroid() const { return m_centroid; }

    /// The outline about the centroid: a counter-clockwise polygon round each piece of material,
    /// a clockwise one round each void. Empty for explicit properties.
    const std::vector<SectionPolygon>& Polygons() const { return m_polygons; }
    /// Length of the outline, voids not counted, m.
    double PerimeterLength() const { return m_perimeterLength; }

    /// The class (kSectionClassMask) and the standard-shape code (bits 4 to 8).
    int ShapeFlags() const { return m_shapeFlags; }
    SectionClass ShapeClass() const {
        return static_cast<SectionClass>(m_shapeFlags & kSectionClassMask);
    }
    StandardCode ShapeCode() const {
        return static_cast<StandardCode>((m_shapeFlags >> kStandardCodeShift) & kStandardCodeMask);
    }

private:
    void SetExplicit(const SectionShape& shape);
    void SetOutline(const SectionShape& shape);

    SectionKind m_kind = SectionKind::None;
    std::wstring_view m_problem;
    int m_shapeFlags = 0;
    std::array<double, 7> m_dimensions{};
    SectionProperties m_properties;
    Vec2<double> m_centroid;
    double m_perimeterLength = 0.0;
    std::vector<SectionPolygon> m_polygons;
};

}  // namespace Tevra::Data

#include "model/SecGeom.h"

#include <algorithm>
#include <cmath>

#include "model/StandardStiffness.h"

namespace Tevra::Data {

namespace {

constexpr std::wstring_view kNoSection = L"the dimensions do not make a section";

/// Material that has an extent: what no degenerate, inside-out or immeasurable outline has.
bool IsSound(const SectionProperties& p) {
    const double values[] = {p.area, p.j, p.iyy, p.izz, p.iyz, p.avy, p.avz};
    return std::all_of(std::begin(values), std::end(values),
                       [](double value) { return std::isfinite(value); }) &&
           p.area > 0.0 && p.iyy > 0.0 && p.izz > 0.0 && p.j >= 0.0 &&
           std::abs(p.iyz) <= std::sqrt(p.iyy) * std::sqrt(p.izz);
}

int FlagsOf(const SectionShape& shape) {
    if (shape.standard == nullptr) {
        return static_cast<int>(SectionClass::Other);
    }
    const SectionClass shapeClass = shape.kind == SectionKind::Catalogue
                                        ? shape.standard->catalogueClass
                                        : shape.standard->shapeClass;
    return static_cast<int>(shapeClass) | static_cast<int>(shape.standard->code)
                                              << kStandardCodeShift;
}

/// Moves an outline so that its centroid is the origin; returns where that was.
Vec2<double> Centre(SectionOutline& outline) {
    // First to the middle of its box: a section drawn far from the origin keeps its digits.
    const Vec2<double> middle = outline.BoxCentre();
    outline.Translate({-middle.x, -middle.y});
    const Vec2<double> centroid = outline.Integrals().Centroid();
    outline.Translate({-centroid.x, -centroid.y});
    return {middle.x + centroid.x, middle.y + centroid.y};
}

/// Properties of an outline about its centroid, the origin.
SectionProperties PropertiesOf(const SectionOutline& outline, const SectionShape& shape) {
    const AreaIntegrals integrals = outline.Integrals();
    SectionProperties p;
    p.area = integrals.area;
    p.iyy = integrals.zz;
    p.izz = integrals.yy;
    p.iyz = integrals.yz;
    ShearFactors shear{kSolidShearFactor, kSolidShearFactor};
    if (shape.standard == nullptr) {
        p.j = CompactTorsion(outline);
    } else {
        p.j = shape.j > 0.0 ? shape.j : shape.standard->torsion(shape.size);
        shear = shape.standard->shear(shape.size, p.area);
    }
    p.avy = shear.y * p.area;
    p.avz = shear.z * p.area;
    return p;
}

}  // namespace

CSecGeom::CSecGeom(std::wstring_view description)
    : CSecGeom(description, *CProfileCatalogue::Current()) {}

CSecGeom::CSecGeom(std::wstring_view description, const CProfileCatalogue& catalogue) {
    const SectionShape shape = ReadSectionShape(description, catalogue);
    m_problem = shape.problem;
    if (shape.kind == SectionKind::Explicit) {
        SetExplicit(shape);
    } else if (shape.kind != SectionKind::None) {
        SetOutline(shape);
    }
}

void CSecGeom::SetExplicit(const SectionShape& shape) {
    const auto& [area, iyy, izz, j, ky, kz] = shape.values;
    m_kind = shape.kind;
    m_properties = {area, j, iyy, izz, 0.0, ky * area, kz * area};
}

void CSecGeom::SetOutline(const SectionShape& shape) {
    SectionOutline outline =
        shape.standard != nullptr ? shape.standard->outline(shape.size) : shape.outline;
    const Vec2<double> centroid = Centre(outline);
    const SectionProperties properties = PropertiesOf(outline, shape);
    if (!IsSound(properties)) {
        m_problem = kNoSection;
        return;
    }
    m_kind = shape.kind;
    m_shapeFlags = FlagsOf(shape);
    m_dimensions = shape.size.d;
    m_properties = properties;
    m_centroid = centroid;
    m_perimeterLength = outline.PerimeterLength();
    m_polygons = outline.Polygons();
}

double CSecGeom::Property(double /*position*/, Prop dimension) const {
    return Dimension(static_cast<int>(dimension));
}

double CSecGeom::Dimension(int i) const {
    return i >= 0 && i < static_cast<int>(m_dimensions.size())
               ? m_dimensions[static_cast<std::size_t>(i)]
               : 0.0;
}

}  // namespace Tevra::Data

#include "opensees/OpsFibres.h"

#include <algorithm>

namespace Tevra {

namespace {

using Data::SectionClass;

/// Fibres along a plate, or a side of a solid; and through a plate.
constexpr int kAlong = 8;
constexpr int kThrough = 2;

/// A plate by its least corner and its extents; y and z as the element's axes.
FibrePatch Plate(double y, double z, double width, double depth) {
    const bool flat = width >= depth;
    return {{y, z}, {y + width, z + depth}, flat ? kAlong : kThrough, flat ? kThrough : kAlong};
}

using Data::ShapeSize;

ShapeSize SizeOf(const Data::CSecGeom& geometry) {
    ShapeSize size;
    for (std::size_t i = 0; i < size.d.size(); ++i) {
        size.d[i] = geometry.Dimension(static_cast<int>(i));
    }
    return size;
}

std::vector<FibrePatch> Rectangle(const ShapeSize& s) {
    return {{{0.0, 0.0}, {s.Width(), s.Depth()}, kAlong, kAlong}};
}

std::vector<FibrePatch> Box(const ShapeSize& s) {
    const double clear = s.Depth() - 2.0 * s.Flange();
    return {Plate(0.0, 0.0, s.Width(), s.Flange()),
            Plate(0.0, s.Depth() - s.Flange(), s.Width(), s.Flange()),
            Plate(0.0, s.Flange(), s.Web(), clear),
            Plate(s.Width() - s.Web(), s.Flange(), s.Web(), clear)};
}

std::vector<FibrePatch> I(const ShapeSize& s) {
    return {
        Plate(-0.5 * s.BottomWidth(), 0.0, s.BottomWidth(), s.BottomFlange()),
        Plate(-0.5 * s.Web(), s.BottomFlange(), s.Web(), s.Depth() - s.BottomFlange() - s.Flange()),
        Plate(-0.5 * s.Width(), s.Depth() - s.Flange(), s.Width(), s.Flange())};
}

std::vector<FibrePatch> Channel(const ShapeSize& s) {
    return {Plate(0.0, 0.0, s.Width(), s.Flange()),
            Plate(0.0, s.Flange(), s.Web(), s.Depth() - 2.0 * s.Flange()),
            Plate(0.0, s.Depth() - s.Flange(), s.Width(), s.Flange())};
}

std::vector<FibrePatch> Tee(const ShapeSize& s) {
    return {Plate(-0.5 * s.Web(), 0.0, s.Web(), s.Depth() - s.Flange()),
            Plate(-0.5 * s.Width(), s.Depth() - s.Flange(), s.Width(), s.Flange())};
}

std::vector<FibrePatch> Angle(const ShapeSize& s) {
    return {Plate(0.0, 0.0, s.Width(), s.Flange()),
            Plate(0.0, s.Flange(), s.Web(), s.Depth() - s.Flange())};
}

struct Layout {
    SectionClass shape;
    std::vector<FibrePatch> (*patches)(const ShapeSize& sizes);
};
constexpr Layout kLayouts[] = {
    {SectionClass::I, I},        {SectionClass::CatalogueI, I},
    {SectionClass::UnequalI, I}, {SectionClass::Channel, Channel},
    {SectionClass::Tee, Tee},    {SectionClass::Angle, Angle},
    {SectionClass::Box, Box},    {SectionClass::Rectangle, Rectangle},
};

/// Moves the patches so that the centroid of them all is the origin.
void Centre(std::vector<FibrePatch>& patches) {
    double area = 0.0;
    Vec2<double> moment;
    for (const FibrePatch& p : patches) {
        const double a = (p.high.x - p.low.x) * (p.high.y - p.low.y);
        area += a;
        moment.x += a * 0.5 * (p.low.x + p.high.x);
        moment.y += a * 0.5 * (p.low.y + p.high.y);
    }
    if (area <= 0.0) {
        return;
    }
    const Vec2<double> centroid{moment.x / area, moment.y / area};
    for (FibrePatch& p : patches) {
        p.low = {p.low.x - centroid.x, p.low.y - centroid.y};
        p.high = {p.high.x - centroid.x, p.high.y - centroid.y};
    }
}

}  // namespace

std::vector<FibrePatch> RectangularPatches(const Data::CSecGeom& geometry) {
    const auto* const layout =
        std::find_if(std::begin(kLayouts), std::end(kLayouts),
                     [&](const Layout& l) { return l.shape == geometry.ShapeClass(); });
    if (layout == std::end(kLayouts)) {
        return {};
    }
    std::vector<FibrePatch> patches = layout->patches(SizeOf(geometry));
    Centre(patches);
    return patches;
}

bool IsRound(const Data::CSecGeom& geometry, FibreRing& ring) {
    constexpr int kRadialOfTube = 4;
    const double radius = 0.5 * geometry.Dimension(0);
    if (geometry.ShapeClass() == SectionClass::Round) {
        ring = {0.0, radius};
        return true;
    }
    if (geometry.ShapeClass() == SectionClass::Tube) {
        ring = {radius - geometry.Dimension(2), radius};
        ring.radial = kRadialOfTube;
        return true;
    }
    return false;
}

bool HasFibreShape(const Data::CSecGeom& geometry) {
    FibreRing ring;
    if (IsRound(geometry, ring)) {
        return ring.inner >= 0.0 && ring.inner < ring.outer;
    }
    const std::vector<FibrePatch> patches = RectangularPatches(geometry);
    return !patches.empty() && std::all_of(patches.begin(), patches.end(), [](const FibrePatch& p) {
        return p.low.x < p.high.x && p.low.y < p.high.y;
    });
}

}  // namespace Tevra

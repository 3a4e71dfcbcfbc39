#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <numbers>
#include <string>
#include <vector>

#include "model/SecGeom.h"

namespace Tevra::Data {
namespace {

constexpr double kPi = std::numbers::pi;

std::string Narrow(std::wstring_view text) {
    return {text.begin(), text.end()};
}

/// Signed area of a polygon: positive counter-clockwise.
double AreaOf(const SectionPolygon& polygon) {
    double twice = 0.0;
    for (std::size_t i = 0; i < polygon.size(); ++i) {
        const Vec2<double>& a = polygon[i];
        const Vec2<double>& b = polygon[(i + 1) % polygon.size()];
        twice += a.x * b.y - b.x * a.y;
    }
    return 0.5 * twice;
}

struct Box {
    double left = 1e9;
    double right = -1e9;
    double bottom = 1e9;
    double top = -1e9;
};

Box BoxOf(const SectionPolygon& polygon) {
    Box box;
    for (const Vec2<double>& p : polygon) {
        box = {std::min(box.left, p.x), std::max(box.right, p.x), std::min(box.bottom, p.y),
               std::max(box.top, p.y)};
    }
    return box;
}

TEST(SectionOutline, PolygonsEncloseTheArea) {
    struct Case {
        const wchar_t* description;
        std::vector<std::size_t> points;  ///< of each polygon
    };
    const Case cases[] = {{L"STD%R%300%200", {4}},
                          {L"STD%RHS%200%100%5%8", {4, 4}},
                          {L"STD%I%500%200%12%20", {12}},
                          {L"STD%GI%600%200%300%10%15%25", {12}},
                          {L"STD%CH%200%75%8%12", {8}},
                          {L"STD%T%150%100%8%12", {8}},
                          {L"STD%CB%150%100%8%12", {8}},
                          {L"STD%A%150%90%10%12", {6}},
                          {L"STD%Z%200%80%6%10", {8}},
                          {L"STD%TR%300%200%400", {4}},
                          {L"STD%X%300%200%20%10", {12}},
                          {L"GEO%P(0|0)(0|90)(60|0)", {3}},
                          {L"GEO%P(0|0)(90|0)(90|60)(0|60)(0|0)%V(10|10)(20|10)(20|20)", {4, 3}}};
    for (const Case& c : cases) {
        SCOPED_TRACE(Narrow(c.description));
        const CSecGeom geometry(c.description);
        double area = 0.0;
        ASSERT_EQ(geometry.Polygons().size(), c.points.size());
        for (std::size_t i = 0; i < c.points.size(); ++i) {
            const SectionPolygon& polygon = geometry.Polygons()[i];
            EXPECT_EQ(polygon.size(), c.points[i]);
            EXPECT_EQ(AreaOf(polygon) > 0.0, i == 0) << "sense of polygon " << i;
            EXPECT_FALSE(polygon.front() == polygon.back());
            area += AreaOf(polygon);
        }
        EXPECT_NEAR(area, geometry.Properties().area, 1e-12 * area);
    }
}

TEST(SectionOutline, CirclesAreDrawnWith32Points) {
    const CSecGeom tube(L"STD%CHS%100%10");
    ASSERT_EQ(tube.Polygons().size(), 2U);
    const double radius[] = {0.05, 0.04};
    for (std::size_t i = 0; i < 2; ++i) {
        const SectionPolygon& polygon = tube.Polygons()[i];
        ASSERT_EQ(polygon.size(), 32U);
        for (const Vec2<double>& p : polygon) {
            EXPECT_NEAR(std::hypot(p.x, p.y), radius[i], 1e-15);
        }
        const double area = 16.0 * radius[i] * radius[i] * std::sin(kPi / 16.0);
        EXPECT_NEAR(AreaOf(polygon), i == 0 ? area : -area, 1e-15);
    }
}

// Which side of the centroid the material is on, so that formats agree with each other.
TEST(SectionOutline, SidesOfUnsymmetricShapes) {
    const auto box = [](const wchar_t* text) { return BoxOf(CSecGeom(text).Polygons().at(0)); };
    const Box channel = box(L"STD%CH%200%75%8%12");
    EXPECT_LT(-channel.left, channel.right) << "web at -y";
    const Box tee = box(L"STD%T%150%100%8%12");
    EXPECT_LT(tee.top, -tee.bottom) << "flange at +z";
    const Box lowerTee = box(L"STD%CB%150%100%8%12");
    EXPECT_GT(lowerTee.top, -lowerTee.bottom) << "flange at -z";
    const Box angle = box(L"STD%A%150%90%10%12");
    EXPECT_LT(-angle.left, angle.right) << "heel at -y";
    EXPECT_LT(-angle.bottom, angle.top) << "heel at -z";
    EXPECT_LT(CSecGeom(L"STD%A%150%90%10%12").Iyz(), 0.0);
    EXPECT_GT(CSecGeom(L"STD%Z%200%80%6%10").Iyz(), 0.0) << "top flange at +y";
    const Box wideBelow = box(L"STD%GI%600%200%300%10%15%25");
    EXPECT_GT(wideBelow.top, -wideBelow.bottom) << "heavy flange at -z";
    EXPECT_NEAR(channel.right - channel.left, 0.075, 1e-15);
    EXPECT_NEAR(channel.top - channel.bottom, 0.2, 1e-15);
}

TEST(SectionOutline, Triangle) {
    // Far from the origin, given clockwise, in another unit: b = 0.06, h = 0.09.
    const CSecGeom geometry(L"GEO(m)%p (1000|2000) (1000|2000.09) (1000.06|2000)");
    const SectionProperties& p = geometry.Properties();
    EXPECT_EQ(geometry.ShapeFlags(), 6);
    EXPECT_NEAR(p.area, 0.0027, 1e-12);
    EXPECT_NEAR(p.iyy, 0.06 * std::pow(0.09, 3) / 36, 1e-15);
    EXPECT_NEAR(p.izz, 0.09 * std::pow(0.06, 3) / 36, 1e-15);
    EXPECT_NEAR(p.iyz, -0.06 * 0.06 * 0.09 * 0.09 / 72, 1e-15);
    EXPECT_NEAR(geometry.Centroid().x, 1000.02, 1e-12);
    EXPECT_NEAR(geometry.Centroid().y, 2000.03, 1e-12);
}

TEST(SectionOutline, VoidsAndFurtherOutlines) {
    const SectionProperties hollow =
        CSecGeom(L"GEO%P(0|0)(100|0)(100|200)(0|200)%V(5|8)(95|8)(95|192)(5|192)").Properties();
    const SectionProperties box = CSecGeom(L"STD%RHS%200%100%5%8").Properties();
    EXPECT_NEAR(hollow.area, box.area, 1e-15);
    EXPECT_NEAR(hollow.iyy, box.iyy, 1e-17);
    EXPECT_NEAR(hollow.izz, box.izz, 1e-17);
    EXPECT_NEAR(hollow.j, box.j, 0.25 * box.j) << "an approximation for solids";

    const CSecGeom pair(L"GEO%P(0|0)(10|0)(10|10)(0|10)%P(0|30)(10|30)(10|40)(0|40)");
    ASSERT_EQ(pair.Polygons().size(), 2U);
    EXPECT_GT(AreaOf(pair.Polygons()[1]), 0.0);
    EXPECT_NEAR(pair.Properties().area, 2e-4, 1e-16);
    EXPECT_NEAR(pair.Properties().iyy, 2 * (1e-8 / 12 + 1e-4 * 0.015 * 0.015), 1e-20);
    EXPECT_NEAR(pair.PerimeterLength(), 0.08, 1e-15);
}

// A circle as a polygon of many points: the torsion constant of a compact solid.
TEST(SectionOutline, TorsionOfSolidOutlines) {
    std::wstring text = L"GEO%P";
    for (int i = 0; i < 400; ++i) {
        const double angle = 2 * kPi * i / 400;
        text += L"(" + std::to_wstring(50 * std::cos(angle)) + L"|" +
                std::to_wstring(50 * std::sin(angle)) + L")";
    }
    const double exact = kPi * std::pow(0.1, 4) / 32;
    EXPECT_NEAR(CSecGeom(text).Properties().j, exact, 0.014 * exact);
    const double square = CSecGeom(L"STD%R%100%100").Properties().j;
    EXPECT_NEAR(CSecGeom(L"GEO%P(0|0)(100|0)(100|100)(0|100)").Properties().j, square,
                0.07 * square);
}

// Fillets against their closed forms: the spandrel between two legs of length r.
TEST(SectionOutline, RootRadii) {
    const StandardShape& shape = *FindStandardShape(L"i");
    ShapeSize size;
    const double d[] = {0.3, 0.15, 0.0071, 0.0107};
    ASSERT_TRUE(SetDimensions(shape, d, size));
    size.rootRadius = 0.015;
    const SectionOutline outline = shape.outline(size);
    const AreaIntegrals got = outline.Integrals();
    const double r = size.rootRadius;
    const double area = r * r * (1 - kPi / 4);
    const double first = r * r * r * (5.0 / 6 - kPi / 4);
    const double second = r * r * r * r * (1 - 5 * kPi / 16);
    const double z = 0.15 - 0.0107;
    const double y = 0.0071 / 2;
    const SectionProperties plates = CSecGeom(L"STD%I%300%150%7.1%10.7").Properties();
    EXPECT_NEAR(got.area, plates.area + 4 * area, 1e-15);
    EXPECT_NEAR(got.zz, plates.iyy + 4 * (z * z * area - 2 * z * first + second), 1e-16);
    EXPECT_NEAR(got.yy, plates.izz + 4 * (y * y * area + 2 * y * first + second), 1e-17);
    EXPECT_NEAR(got.yz, 0.0, 1e-18);
    EXPECT_NEAR(outline.PerimeterLength(), 4 * 0.15 + 2 * 0.3 - 2 * 0.0071 - 8 * r + 2 * kPi * r,
                1e-14);
    EXPECT_EQ(outline.Polygons().at(0).size(), 8U + 4U * 9U);

    size.rootRadius = 0.072;  // wider than the flange stands out
    EXPECT_TRUE(shape.outline(size).IsEmpty());
}

TEST(SectionOutline, ArcsTurnWithTheContour) {
    SectionOutline outline;
    Contour circle = MakeCircle(2.0);
    outline.AddVoid(circle);
    EXPECT_NEAR(outline.Integrals().area, -4.0 * kPi, 1e-13);
    outline.AddMaterial(outline.Contours().front());
    outline.Translate({3.0, -1.0});
    EXPECT_NEAR(IntegralsOf(outline.Contours().back()).area, 4.0 * kPi, 1e-13);
    EXPECT_NEAR(outline.BoxCentre().x, 3.0, 1e-15);
    EXPECT_NEAR(outline.BoxCentre().y, -1.0, 1e-15);
}

}  // namespace
}  // namespace Tevra::Data

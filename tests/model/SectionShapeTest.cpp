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

void ExpectNear(double value, double expected, const char* what, double relative = 1e-12) {
    EXPECT_NEAR(value, expected, relative * std::abs(expected)) << what;
}

/// A plate of a section: its middle, width along y and depth along z, in mm.
struct Plate {
    double y;
    double z;
    double width;
    double depth;
};

/// Area, centroid and second moments of plates that do not overlap, SI units.
SectionProperties OfPlates(const std::vector<Plate>& plates, Vec2<double>& centroid) {
    SectionProperties sum;
    for (const Plate& p : plates) {
        const double a = p.width * p.depth;
        sum.area += a * 1e-6;
        centroid = {centroid.x + a * p.y * 1e-9, centroid.y + a * p.z * 1e-9};
    }
    centroid = {centroid.x / sum.area, centroid.y / sum.area};
    for (const Plate& p : plates) {
        const double a = p.width * p.depth;
        const double y = p.y - centroid.x * 1e3;
        const double z = p.z - centroid.y * 1e3;
        sum.iyy += (a * p.depth * p.depth / 12.0 + a * z * z) * 1e-12;
        sum.izz += (a * p.width * p.width / 12.0 + a * y * y) * 1e-12;
        sum.iyz += a * y * z * 1e-12;
    }
    return sum;
}

struct PlatedShape {
    const wchar_t* description;
    int flags;
    std::vector<Plate> plates;  ///< about the middle of the box
    double j;                   ///< mm4
    double shearAreaY;          ///< mm2
    double shearAreaZ;
};

const double kFive6 = 5.0 / 6.0;

const std::vector<PlatedShape>& PlatedShapes() {
    static const std::vector<PlatedShape> shapes = {
        {L"STD%R%300%200", 10 | 1 << 4, {{0, 0, 200, 300}}, 469.530864e6, 5e4, 5e4},
        {L"STD%R%200%300", 10 | 1 << 4, {{0, 0, 300, 200}}, 469.530864e6, 5e4, 5e4},
        {L"STD%RHS%200%100%5%8",
         9 | 1 << 4,
         {{0, 96, 100, 8}, {0, -96, 100, 8}, {47.5, 0, 5, 184}, {-47.5, 0, 5, 184}},
         4.0 * std::pow(95.0 * 192.0, 2) / (2.0 * 95.0 / 8.0 + 2.0 * 192.0 / 5.0),
         1600,
         2000},
        {L"STD%I%500%200%12%20",
         1 | 3 << 4,
         {{0, 240, 200, 20}, {0, -240, 200, 20}, {0, 0, 12, 460}},
         (2 * 200 * 8e3 + 460 * 1728) / 3.0,
         kFive6 * 8000,
         6000},
        {L"STD%CH%200%75%8%12",
         3 | 4 << 4,
         {{0, 94, 75, 12}, {0, -94, 75, 12}, {-33.5, 0, 8, 176}},
         (2 * 75 * 1728 + 176 * 512) / 3.0,
         kFive6 * 1800,
         1600},
        {L"STD%T%150%100%8%12",
         4 | 5 << 4,
         {{0, 69, 100, 12}, {0, -6, 8, 138}},
         (100 * 1728 + 138 * 512) / 3.0,
         kFive6 * 1200,
         kFive6 * 1200},
        {L"STD%CB%150%100%8%12",
         1025,
         {{0, -69, 100, 12}, {0, 6, 8, 138}},
         (100 * 1728 + 138 * 512) / 3.0,
         kFive6 * 1200,
         kFive6 * 1200},
        {L"STD%A%150%90%10%12",
         5 | 6 << 4,
         {{0, -69, 90, 12}, {-40, 6, 10, 138}},
         (90 * 1728 + 138 * 1000) / 3.0,
         kFive6 * 1080,
         kFive6 * 1500},
        {L"STD%GI%600%200%300%10%15%25",
         11 | 11 << 4,
         {{0, 292.5, 200, 15}, {0, -287.5, 300, 25}, {0, 5, 10, 560}},
         (200 * 3375 + 300 * 15625 + 560 * 1000) / 3.0,
         kFive6 * 10500,
         6000},
        {L"STD%Z%200%80%6%10",
         6,
         {{37, 95, 80, 10}, {-37, -95, 80, 10}, {0, 0, 6, 180}},
         (2 * 80 * 1000 + 180 * 216) / 3.0,
         kFive6 * 1600,
         1200},
        {L"STD%X%300%200%20%10",
         1036,
         {{0, 0, 20, 300}, {55, 0, 90, 10}, {-55, 0, 90, 10}},
         (300 * 8000 + 180 * 1000) / 3.0,
         kFive6 * 2000,
         kFive6 * 6000}};
    return shapes;
}

TEST(SectionShape, PlatedShapesAreTheSumsOfTheirPlates) {
    for (const PlatedShape& shape : PlatedShapes()) {
        SCOPED_TRACE(Narrow(shape.description));
        const CSecGeom geometry(shape.description);
        Vec2<double> centroid;
        const SectionProperties expected = OfPlates(shape.plates, centroid);
        const SectionProperties& p = geometry.Properties();
        EXPECT_EQ(geometry.ShapeFlags(), shape.flags);
        ExpectNear(p.area, expected.area, "A");
        ExpectNear(p.iyy, expected.iyy, "Iyy");
        ExpectNear(p.izz, expected.izz, "Izz");
        EXPECT_NEAR(p.iyz, expected.iyz, 1e-12 * expected.iyy) << "Iyz";
        EXPECT_EQ(geometry.Iyz(), p.iyz);
        EXPECT_NEAR(geometry.Centroid().x, centroid.x, 1e-14);
        EXPECT_NEAR(geometry.Centroid().y, centroid.y, 1e-14);
        ExpectNear(p.j, shape.j * 1e-12, "J", 1e-6);
        ExpectNear(p.avy, shape.shearAreaY * 1e-6, "shear area y");
        ExpectNear(p.avz, shape.shearAreaZ * 1e-6, "shear area z");
    }
}

TEST(SectionShape, RectangleToTheDigits) {
    const CSecGeom geometry(L"STD%R%300%200");
    const SectionProperties& p = geometry.Properties();
    EXPECT_NEAR(p.area, 0.06, 1e-15);
    EXPECT_NEAR(p.iyy, 4.5e-4, 1e-17);
    EXPECT_NEAR(p.izz, 2.0e-4, 1e-17);
    EXPECT_NEAR(p.j, 4.695e-4, 5e-8);
    EXPECT_NEAR(CSecGeom(L"STD%R%100%100").Properties().j, 0.14083333e-4, 1e-12);
}

TEST(SectionShape, RoundShapesAreExact) {
    const SectionProperties round = CSecGeom(L"STD%C%100").Properties();
    ExpectNear(round.area, kPi * 0.01 / 4, "A", 1e-14);
    ExpectNear(round.iyy, kPi * 1e-4 / 64, "Iyy", 1e-14);
    ExpectNear(round.izz, kPi * 1e-4 / 64, "Izz", 1e-14);
    ExpectNear(round.j, kPi * 1e-4 / 32, "J");
    ExpectNear(round.avy / round.area, 0.9, "ky");

    const CSecGeom tube(L"STD%CHS%114.3%5");
    const double i = kPi * (std::pow(0.1143, 4) - std::pow(0.1043, 4)) / 64;
    ExpectNear(tube.Properties().area, kPi * (0.1143 * 0.1143 - 0.1043 * 0.1043) / 4, "A");
    ExpectNear(tube.Properties().iyy, i, "Iyy");
    ExpectNear(tube.Properties().izz, i, "Izz");
    ExpectNear(tube.Properties().j, 2 * i, "J");
    EXPECT_NEAR(tube.Properties().iyz, 0.0, 1e-20);
    ExpectNear(tube.PerimeterLength(), kPi * 0.1143, "perimeter");
    EXPECT_EQ(tube.ShapeFlags(), 7 | 2 << 4);
    EXPECT_EQ(CSecGeom(L"STD%C%100").ShapeFlags(), 8 | 2 << 4);

    const SectionProperties thin = CSecGeom(L"STD%CHS%1000%0.1").Properties();
    EXPECT_NEAR(thin.avz / thin.area, 0.5, 1e-6);
    const SectionProperties thick = CSecGeom(L"STD%CHS%1000%499.9").Properties();
    EXPECT_NEAR(thick.avz / thick.area, 0.9, 1e-6);
}

TEST(SectionShape, Trapezium) {
    const CSecGeom geometry(L"STD%TR%300%200%400");
    EXPECT_EQ(geometry.ShapeFlags(), 12);
    const SectionProperties& p = geometry.Properties();
    const double a = 0.2;
    const double b = 0.4;
    const double h = 0.3;
    ExpectNear(p.area, 0.5 * (a + b) * h, "A");
    ExpectNear(p.iyy, h * h * h * (a * a + 4 * a * b + b * b) / (36 * (a + b)), "Iyy");
    ExpectNear(p.izz, h * (a + b) * (a * a + b * b) / 48, "Izz");
    ExpectNear(geometry.Centroid().y, h * (2 * a + b) / (3 * (a + b)) - h / 2, "centroid");
    ExpectNear(p.j, CSecGeom(L"STD%R%300%300").Properties().j, "J");
    // No web with flanges can have more than the rectangle that it becomes.
    const SectionProperties stout = CSecGeom(L"STD%I%300%100%99%1").Properties();
    ExpectNear(stout.avz / stout.area, kFive6, "kz");
}

TEST(SectionShape, DimensionsByIndex) {
    struct Case {
        const wchar_t* description;
        double d[7];
    };
    const Case cases[] = {{L"STD%C%40", {0.04, 0, 0, 0, 0, 0, 0}},
                          {L"STD%CHS%40%3", {0.04, 0, 0.003, 0, 0, 0, 0}},
                          {L"STD%R%40%30", {0.04, 0.03, 0, 0, 0, 0, 0}},
                          {L"STD%RHS%40%30%2%3", {0.04, 0.03, 0.002, 0.003, 0, 0, 0}},
                          {L"STD%I%40%30%2%3", {0.04, 0.03, 0.002, 0.003, 0.03, 0, 0.003}},
                          {L"STD%GI%40%30%20%2%3%4", {0.04, 0.03, 0.002, 0.003, 0.02, 0, 0.004}},
                          {L"STD%TR%40%30%20", {0.04, 0.03, 0.02, 0, 0, 0, 0}},
                          {L"STD%X%40%30%2%3", {0.04, 0.03, 0.002, 0.003, 0, 0, 0}},
                          {L"GEO%P(0|0)(30|0)(0|40)", {}},
                          {L"EXP%1%1%1%1%1%1", {}}};
    for (const Case& c : cases) {
        const CSecGeom geometry(c.description);
        for (int i = 0; i < 7; ++i) {
            EXPECT_NEAR(geometry.Property(0.5, static_cast<CSecGeom::Prop>(i)), c.d[i], 1e-15)
                << Narrow(c.description) << " d" << i;
        }
        EXPECT_EQ(geometry.Dimension(-1), 0.0);
        EXPECT_EQ(geometry.Dimension(7), 0.0);
    }
}

TEST(SectionShape, UnitsCaseAndBlanks) {
    for (const wchar_t* text :
         {L"STD(cm)%R%30%20", L"STD(m)%R%0.3%0.2", L" std ( M ) % r % +3.0e-1 %.2 ",
          L"STD(mm)%R%300%200%", L"STD(in)%R%11.811023622047244%7.874015748031496",
          L"STD(ft)%R%.984251968503937%.6561679790026247", L"STD%R%3E2%200.%%"}) {
        ExpectNear(CSecGeom(text).Properties().iyy, 4.5e-4, "Iyy");
        ExpectNear(CSecGeom(text).Properties().izz, 2.0e-4, "Izz");
    }
}

TEST(SectionShape, ExplicitProperties) {
    const CSecGeom geometry(L"EXP%0.01%2e-5%3e-6%4e-7%0.5%0.25");
    EXPECT_EQ(geometry.Kind(), SectionKind::Explicit);
    EXPECT_EQ(geometry.ShapeFlags(), 0);
    EXPECT_EQ(geometry.Properties(),
              (SectionProperties{0.01, 4e-7, 2e-5, 3e-6, 0.0, 0.005, 0.0025}));
    EXPECT_TRUE(geometry.Polygons().empty());
    EXPECT_EQ(CSecGeom(L"exp%0.02").Properties().area, 0.02);
    EXPECT_EQ(CSecGeom(L"EXP").Properties(), SectionProperties{});
    EXPECT_EQ(CSecGeom(L"EXP").Kind(), SectionKind::Explicit);
}

struct Refusal {
    const wchar_t* description;
    const wchar_t* problem;  ///< a part of it
};

constexpr Refusal kRefusals[] = {
    {L"", L"no description"},
    {L" %% ", L"no description"},
    {L"W12x50", L"none of STD"},
    {L"STDX%R%300%200", L"none of STD"},
    {L"STD", L"shape is not known"},
    {L"STD%%300%200", L"shape is not known"},
    {L"STD%Q%300%200", L"shape is not known"},
    {L"STD(yd)%R%3%2", L"unit"},
    {L"STD(m%R%3%2", L"unit"},
    {L"STD(m)x%R%3%2", L"unit"},
    {L"EXP(mm)%1%1%1%1", L"unit"},
    {L"STD%R%300", L"dimensions are not"},
    {L"STD%R%300%200%10", L"dimensions are not"},
    {L"STD%R%300%%200", L"dimensions are not"},
    {L"STD%R%300%-200", L"dimensions are not"},
    {L"STD%R%300%0", L"dimensions are not"},
    {L"STD%R%300%2x", L"dimensions are not"},
    {L"STD%R%300%nan", L"dimensions are not"},
    {L"STD%R%300%inf", L"dimensions are not"},
    {L"STD%R%300%1e999", L"dimensions are not"},
    {L"STD%R%300%\x0663", L"dimensions are not"},  // a digit of another script
    {L"STD%R%300%++2", L"dimensions are not"},
    {L"STD%CHS%%%6", L"dimensions are not"},
    {L"STD%R%1e200%1e200", L"do not make a section"},
    {L"STD%R%1e-200%1e-200", L"do not make a section"},
    {L"STD%RHS%200%100%5%100", L"do not make a section"},
    {L"STD%RHS%200%100%50%8", L"do not make a section"},
    {L"STD%CHS%100%50", L"do not make a section"},
    {L"STD%I%500%200%200%20", L"do not make a section"},
    {L"STD%I%500%200%12%250", L"do not make a section"},
    {L"STD%GI%600%200%9%10%15%25", L"do not make a section"},
    {L"STD%GI%600%200%300%10%300%300", L"do not make a section"},
    {L"STD%CH%200%75%75%12", L"do not make a section"},
    {L"STD%CH%200%75%8%100", L"do not make a section"},
    {L"STD%T%150%100%100%12", L"do not make a section"},
    {L"STD%T%150%100%8%150", L"do not make a section"},
    {L"STD%A%150%90%90%12", L"do not make a section"},
    {L"STD%Z%200%80%80%10", L"do not make a section"},
    {L"STD%X%300%200%200%10", L"do not make a section"},
    {L"EXP%1%-1", L"properties"},
    {L"EXP%1%1%1%1%1%1%1", L"properties"},
    {L"EXP%area", L"properties"},
    {L"CAT", L"not in the catalogue"},
    {L"CAT%UB", L"not in the catalogue"},
    {L"CAT%UB%IPE300", L"not in the catalogue"},
    {L"CAT%TUB%TUB1", L"not in the catalogue"},
    {L"CAT%UB%UB457x191x67%1%2", L"not in the catalogue"},
    {L"GEO", L"points"},
    {L"GEO%", L"points"},
    {L"GEO%P", L"points"},
    {L"GEO%P(0|0)(1|0)", L"points"},
    {L"GEO%P(0|0)(1|0)(0|0)", L"points"},
    {L"GEO%P(0|0)(1|0)(0|1", L"points"},
    {L"GEO%P(0|0)(1)(0|1)", L"points"},
    {L"GEO%P(0|0)(1|0)x(0|1)", L"points"},
    {L"GEO%M(0|0)(1|0)(0|1)", L"points"},
    {L"GEO%P(0|0)(1|0)(2|0)", L"do not make a section"},
    {L"GEO%P(0|0)(1|1)(1|0)(0|1)", L"do not make a section"},
    {L"GEO%V(0|0)(1|0)(0|1)", L"do not make a section"},
    {L"GEO%P(0|0)(1|0)(0|1)%V(0|0)(2|0)(0|2)", L"do not make a section"}};

TEST(SectionShape, RefusalsLeaveNothing) {
    for (const Refusal& refusal : kRefusals) {
        SCOPED_TRACE(Narrow(refusal.description));
        CSecComp component;
        component.SetDescription(refusal.description);
        const CSecGeom& geometry = component.Geometry();
        EXPECT_EQ(component.Description(), refusal.description);
        EXPECT_EQ(geometry.Kind(), SectionKind::None);
        EXPECT_EQ(geometry.Properties(), SectionProperties{});
        EXPECT_EQ(geometry.ShapeFlags(), 0);
        EXPECT_EQ(geometry.Dimension(0), 0.0);
        EXPECT_TRUE(geometry.Polygons().empty());
        if (refusal.description[0] != L'\0') {
            EXPECT_NE(geometry.Problem().find(refusal.problem), std::wstring_view::npos)
                << Narrow(geometry.Problem());
        }
    }
}

}  // namespace
}  // namespace Tevra::Data

#include <cmath>
#include <gtest/gtest.h>
#include <random>
#include <utility>
#include <vector>

#include "model/VynData.h"
#include "support/Random.h"

namespace Tevra {
namespace {

using V = Vec3<double>;

constexpr V kX{1, 0, 0};
constexpr V kY{0, 1, 0};
constexpr V kZ{0, 0, 1};
const double kHalf = std::sqrt(0.5);

void ExpectNear(const V& actual, const V& expected, const char* what) {
    EXPECT_NEAR(actual.x, expected.x, 1e-12) << what;
    EXPECT_NEAR(actual.y, expected.y, 1e-12) << what;
    EXPECT_NEAR(actual.z, expected.z, 1e-12) << what;
}

void ExpectAxes(const Util::CDirCos& axes, const V& x, const V& y, const V& z) {
    ExpectNear(axes.AxisVec(0), x, "x");
    ExpectNear(axes.AxisVec(1), y, "y");
    ExpectNear(axes.AxisVec(2), z, "z");
}

void ExpectGlobal(const Util::CDirCos& axes) {
    ExpectAxes(axes, kX, kY, kZ);
}

/// A model with element 1 (property 1) of a type between points, which are nodes 1 on.
CVynData ModelOf(ElementType type, const std::vector<V>& points) {
    CVynData model;
    std::vector<int> topo;
    for (const V& point : points) {
        topo.push_back(static_cast<int>(topo.size()) + 1);
        model.SetNode(topo.back(), Data::CNode(point));
    }
    model.SetElem(1, Data::CElement(type, topo, 1));
    return model;
}

/// Orients the element by a node at a point, and by an angle.
void Orient(CVynData& model, const V& point, double degrees) {
    model.SetNode(99, Data::CNode(point));
    Data::CElement element = model.Elem(1);
    element.SetOrientationNode(99);
    element.SetOrientationAngle(degrees);
    model.SetElem(1, element);
}

Data::CAxis MakeAxis(AxisType type, const V& origin, const V& x, const V& xyPlane) {
    Data::CAxis axis;
    axis.SetType(type);
    axis.SetOrigin(origin);
    axis.SetXAxis(x);
    axis.SetXYPlane(xyPlane);
    return axis;
}

// A line along (3, 4, 12): length 13, and every direction cosine is a fraction.
constexpr V kSlopeEnd{3, 4, 12};
constexpr V kSlopeX{3.0 / 13, 4.0 / 13, 12.0 / 13};
constexpr V kSlopeY{-0.8, 0.6, 0};
constexpr V kSlopeZ{-36.0 / 65, -48.0 / 65, 25.0 / 65};

TEST(LineAxes, OfASlopeTurnedByAnAngle) {
    CVynData model = ModelOf(ElementType::Beam, {{0, 0, 0}, kSlopeEnd});
    ExpectAxes(model.ElemDC(1), kSlopeX, kSlopeY, kSlopeZ);
    EXPECT_DOUBLE_EQ(model.ElemLen(1), 13.0);
    Data::CElement element = model.Elem(1);
    element.SetOrientationAngle(30);
    model.SetElem(1, element);
    const double c = std::sqrt(0.75);
    ExpectAxes(model.ElemDC(1), kSlopeX, {-0.8 * c - 36.0 / 130, 0.6 * c - 48.0 / 130, 25.0 / 130},
               {-36.0 / 65 * c + 0.4, -48.0 / 65 * c - 0.3, 25.0 / 65 * c});
}

TEST(LineAxes, OfASlopeByAnOrientationNode) {
    CVynData model = ModelOf(ElementType::Beam, {{0, 0, 0}, kSlopeEnd});
    struct Case {
        const char* what;
        V node;
        double angle;
        V y;
        V z;
    };
    const Case cases[] = {{"on the default y side", kSlopeX * 5 + kSlopeY * 2, 0, kSlopeY, kSlopeZ},
                          {"on the other side", kSlopeX * 20 - kSlopeY, 0, -kSlopeY, -kSlopeZ},
                          {"above", kSlopeZ * 0.01, 0, kSlopeZ, -kSlopeY},
                          {"above, turned on", kSlopeZ * 0.01, 90, -kSlopeY, -kSlopeZ},
                          {"on the line", kSlopeX * 7, 0, kSlopeY, kSlopeZ},
                          {"at end 1", {0, 0, 0}, 0, kSlopeY, kSlopeZ}};
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        Orient(model, c.node, c.angle);
        ExpectAxes(model.ElemDC(1), kSlopeX, c.y, c.z);
    }
    model.DeleteNode(99);  // a node that there is not orients nothing
    ExpectAxes(model.ElemDC(1), kSlopeX, kSlopeY, kSlopeZ);
}

TEST(LineAxes, OfAColumnByAnOrientationNode) {
    CVynData model = ModelOf(ElementType::Beam, {{2, 2, 0}, {2, 2, 3}});
    Orient(model, {9, 2, 1}, 0);
    ExpectAxes(model.ElemDC(1), kZ, kX, kY);
    Orient(model, {9, 2, 1}, -90);
    ExpectAxes(model.ElemDC(1), kZ, -kY, kX);
}

TEST(LineAxes, AreSquareAndPointUpForAnyLine) {
    std::mt19937_64 random = TestSupport::SeededRandom(4);
    std::uniform_real_distribution<double> coordinate(-10, 10);
    for (int i = 0; i < 500; ++i) {
        const V from{coordinate(random), coordinate(random), coordinate(random)};
        const V to{coordinate(random), coordinate(random), coordinate(random)};
        const Util::CDirCos axes = ModelOf(ElementType::Bar, {from, to}).ElemDC(1);
        ExpectNear(axes.AxisVec(0), Unit(to - from, kX), "x");
        ExpectNear(Cross(axes.AxisVec(0), axes.AxisVec(1)), axes.AxisVec(2), "right-handed");
        EXPECT_NEAR(axes.AxisVec(1).z, 0.0, 1e-15);
        EXPECT_GT(axes.AxisVec(2).z, 0.0);
        EXPECT_NEAR(Length(axes.AxisVec(2)), 1.0, 1e-12);
    }
}

TEST(LineAxes, HoldForEveryKindOfLineAndForNothingElse) {
    for (const ElementType type : {ElementType::Link, ElementType::Cable, ElementType::Spacer,
                                   ElementType::Tie, ElementType::Strut, ElementType::Rod}) {
        SCOPED_TRACE(static_cast<int>(type));
        const CVynData model = ModelOf(type, {{0, 0, 0}, kSlopeEnd});
        ExpectAxes(model.ElemDC(1), kSlopeX, kSlopeY, kSlopeZ);
        EXPECT_DOUBLE_EQ(model.ElemLen(1), 13.0);
    }
    for (const ElementType type : {ElementType::None, ElementType::Mass,
                                   static_cast<ElementType>(13), static_cast<ElementType>(77)}) {
        SCOPED_TRACE(static_cast<int>(type));
        const CVynData model = ModelOf(type, {{1, 2, 3}, kSlopeEnd});
        ExpectGlobal(model.ElemDC(1));
        EXPECT_EQ(model.ElemLen(1), 0.0);
        EXPECT_EQ(model.ElemArea(1), 0.0);
    }
}

TEST(Geometry, WhatHasNotAllItsNodesHasNoExtent) {
    CVynData beam = ModelOf(ElementType::Beam, {{5, 5, 5}, {5, 5, 9}});
    EXPECT_TRUE(beam.ElemIsVertical(1));
    beam.DeleteNode(2);
    ExpectGlobal(beam.ElemDC(1));
    EXPECT_EQ(beam.ElemLen(1), 0.0);
    EXPECT_FALSE(beam.ElemIsVertical(1));
    const CVynData spring = ModelOf(ElementType::Spring, {{5, 5, 5}});
    EXPECT_EQ(spring.ElemLen(1), 0.0);
    CVynData quad = ModelOf(ElementType::Quad4, {{0, 0, 0}, {2, 0, 0}, {2, 1, 1}, {0, 1, 1}});
    EXPECT_DOUBLE_EQ(quad.ElemArea(1), 2 * std::sqrt(2.0));
    quad.DeleteNode(3);
    EXPECT_EQ(quad.ElemArea(1), 0.0);
    ExpectGlobal(quad.ElemDC(1));
}

TEST(Offsets, LongerThanTheElementLeaveNoLength) {
    CVynData model = ModelOf(ElementType::Beam, {{0, 0, 0}, {4, 0, 0}});
    Data::CElement element = model.Elem(1);
    const std::pair<Data::COffset, double> cases[] = {
        {{1, 0, 0, 0}, 3}, {{-1, 1, 0, 0}, 6}, {{3, -2, 0, 0}, 0}, {{0, 0, 5, 5}, 4}};
    for (const auto& [offset, length] : cases) {
        element.SetOffset(offset);
        model.SetElem(1, element);
        EXPECT_DOUBLE_EQ(model.ElemLen(1), length);
    }
}

TEST(Offsets, OfSectionsCountWhereThereIsASection) {
    Data::CSection section;
    section.SetCentroidOffset({0.3, -0.4});
    CVynData beam = ModelOf(ElementType::Beam, {{0, 0, 0}, kSlopeEnd});
    beam.SetSection(1, section);
    EXPECT_TRUE(beam.IsTotalOffset(1));
    ExpectNear(beam.TotalGlobalOffset(1, 2), kSlopeY * 0.3 - kSlopeZ * 0.4, "beam");
    CVynData cable = ModelOf(ElementType::Cable, {{0, 0, 0}, kSlopeEnd});
    cable.SetSection(1, section);
    EXPECT_FALSE(cable.IsTotalOffset(1));
    CVynData quad = ModelOf(ElementType::Quad4, {{0, 0, 0}, {2, 0, 0}, {2, 1, 1}, {0, 1, 1}});
    quad.SetSection(1, section);
    EXPECT_FALSE(quad.IsTotalOffset(1));
    Data::CElement element = quad.Elem(1);
    element.SetOffset({0, 0, 0, 2});
    quad.SetElem(1, element);
    ExpectNear(quad.TotalGlobalOffset(1, 1), {0, -2 * kHalf, 2 * kHalf}, "along the normal");
}

TEST(FaceAxes, TurnWithTheTopology) {
    // A roof that rises along Y, seen from above and from below.
    const std::vector<V> corners{{0, 0, 0}, {2, 0, 0}, {2, 1, 1}, {0, 1, 1}};
    ExpectAxes(ModelOf(ElementType::Quad4, corners).ElemDC(1), kX, {0, kHalf, kHalf},
               {0, -kHalf, kHalf});
    ExpectAxes(
        ModelOf(ElementType::Quad4, {corners[0], corners[3], corners[2], corners[1]}).ElemDC(1), kX,
        {0, -kHalf, -kHalf}, {0, kHalf, -kHalf});
    // The corners alone decide: mid-side nodes may lie anywhere.
    const CVynData curved = ModelOf(ElementType::Quad8, {corners[0], corners[1], corners[2],
                                                         corners[3], kZ * 9, kZ, kX, kY * 7});
    ExpectAxes(curved.ElemDC(1), kX, {0, kHalf, kHalf}, {0, -kHalf, kHalf});
    EXPECT_DOUBLE_EQ(curved.ElemArea(1), 2 * std::sqrt(2.0));
}

TEST(FaceAxes, ProjectThePropertyAxisAtTheCentre) {
    CVynData model = ModelOf(ElementType::Tri3, {{-1, 2, 0}, {1, 2, 0}, {0, 5, 0}});
    Data::CProp2D property;
    property.SetAxis(7);
    model.SetProp2D(1, property);
    // The centre is (0, 3, 0): radial there is Y.
    model.SetAxis(7, MakeAxis(AxisType::Cylindrical, {}, kX, kY));
    ExpectAxes(model.ElemDC(1), kY, -kX, kZ);
    // An axis whose x stands on the face: its y takes over.
    model.SetAxis(7, MakeAxis(AxisType::Cartesian, {}, kZ, kX));
    ExpectAxes(model.ElemDC(1), kX, kY, kZ);
    model.DeleteAxis(7);
    ExpectAxes(model.ElemDC(1), kX, kY, kZ);
}

TEST(PropertyAxes, OfSolidsSpringsAndDampers) {
    CVynData solid = ModelOf(ElementType::Tetra4, {{-1, 4, -1}, {1, 4, -1}, {0, 4, 2}, {0, 8, 0}});
    CVynData spring = ModelOf(ElementType::Spring, {{0, -3, 0}, {8, 8, 8}});
    CVynData damper = ModelOf(ElementType::Damper, {{-2, 0, 1}});
    for (CVynData* model : {&solid, &spring, &damper}) {
        ExpectGlobal(model->ElemDC(1));
        model->SetAxis(1, MakeAxis(AxisType::Cylindrical, {}, kX, kY));
    }
    Data::CProp3D prop3D;
    prop3D.SetAxis(1);
    solid.SetProp3D(1, prop3D);
    ExpectAxes(solid.ElemDC(1), kY, -kX, kZ);  // centre (0, 5, 0)
    Data::CSpringProp springProp;
    springProp.SetAxis(1);
    spring.SetSpringProp(1, springProp);
    ExpectAxes(spring.ElemDC(1), -kY, kX, kZ);
    Data::CDamperProp damperProp;
    damperProp.SetAxis(1);
    damper.SetDamperProp(1, damperProp);
    ExpectAxes(damper.ElemDC(1), -kX, -kY, kZ);
}

TEST(Axes, WithoutDirectionsAreGlobal) {
    const V none{};
    const std::pair<V, V> cases[] = {{none, none}, {kX, none}, {none, kY}, {kX, kX}, {kX, kX * -3}};
    for (const auto& [x, plane] : cases) {
        const Data::CAxis axis = MakeAxis(AxisType::Cartesian, {}, x, plane);
        ExpectAxes({axis.XAxis(), axis.YAxis(), axis.ZAxis()}, kX, kY, kZ);
    }
    for (const V& x : {V{0, 1, 0}, V{0, 0, 2}, V{1, 2, 3}, V{-3, 1, 0}}) {
        const Data::CAxis axis = MakeAxis(AxisType::Cartesian, {}, x, x * 0.7);
        EXPECT_NEAR(Length(axis.ZAxis()), 1.0, 1e-12);
        EXPECT_NEAR(Dot(axis.ZAxis(), axis.XAxis()), 0.0, 1e-12);
        ExpectNear(Cross(axis.XAxis(), axis.YAxis()), axis.ZAxis(), "right-handed");
    }
}

TEST(Axes, CurvedOnesLieInTheirAxis) {
    CVynData model;
    // z of the axis is global X, its x global Y.
    model.SetAxis(1, MakeAxis(AxisType::Cylindrical, {1, 2, 3}, kY, kZ));
    model.SetAxis(2, MakeAxis(AxisType::Spherical, {1, 2, 3}, kY, kZ));
    ExpectAxes(model.AxisDC(1, {9, 2, 8}), kZ, -kY, kX);
    ExpectAxes(model.AxisDC(1, {-4, 0, 3}), -kY, -kZ, kX);
    ExpectAxes(model.AxisDC(2, {4, 6, 3}), {0.6, 0.8, 0}, kZ, {0.8, -0.6, 0});
    ExpectAxes(model.AxisDC(2, {1, 2, 3}), kY, kZ, kX);  // the origin
    ExpectAxes(model.AxisDC(2, {5, 2, 3}), kY, kZ, kX);  // a pole
}

TEST(Axes, APointOnTheLineOfACurvedAxisIsThereInSpiteOfRoundOff) {
    CVynData model;
    const Data::CAxis axis =
        MakeAxis(AxisType::Cylindrical, {100.1, 200.2, 300.3}, {1, 2, 3}, {3, -1, 2});
    model.SetAxis(1, axis);
    for (const double along : {-57.3, 0.1, 1234.5}) {
        ExpectAxes(model.AxisDC(1, axis.Origin() + axis.ZAxis() * along), axis.XAxis(),
                   axis.YAxis(), axis.ZAxis());
    }
}

}  // namespace
}  // namespace Tevra

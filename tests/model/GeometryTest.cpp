#include <cmath>
#include <gtest/gtest.h>
#include <vector>

#include "model/VynData.h"

namespace Tevra {
namespace {

using V = Vec3<double>;

void ExpectNear(const V& actual, const V& expected) {
    EXPECT_NEAR(actual.x, expected.x, 1e-12);
    EXPECT_NEAR(actual.y, expected.y, 1e-12);
    EXPECT_NEAR(actual.z, expected.z, 1e-12);
}

void ExpectAxes(const Util::CDirCos& axes, const V& x, const V& y, const V& z) {
    ExpectNear(axes.AxisVec(Direction::X), x);
    ExpectNear(axes.AxisVec(Direction::YY), y);
    ExpectNear(axes.AxisVec(2), z);
}

/// A model with one element of a type between points.
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

void Turn(CVynData& model, double degrees) {
    Data::CElement element = model.Elem(1);
    element.SetOrientationAngle(degrees);
    model.SetElem(1, element);
}

TEST(LineAxes, FollowTheRules) {
    const double h = std::sqrt(0.5);
    struct Case {
        const char* what;
        V end;
        double angle;
        V x;
        V y;
        V z;
    };
    const Case cases[] = {{"along X", {4, 0, 0}, 0, {1, 0, 0}, {0, 1, 0}, {0, 0, 1}},
                          {"along -X", {-4, 0, 0}, 0, {-1, 0, 0}, {0, -1, 0}, {0, 0, 1}},
                          {"along Y", {0, 2, 0}, 0, {0, 1, 0}, {-1, 0, 0}, {0, 0, 1}},
                          {"up at 45 degrees", {3, 0, 3}, 0, {h, 0, h}, {0, 1, 0}, {-h, 0, h}},
                          {"turned", {4, 0, 0}, 90, {1, 0, 0}, {0, 0, 1}, {0, -1, 0}},
                          {"turned by 45", {4, 0, 0}, 45, {1, 0, 0}, {0, h, h}, {0, -h, h}},
                          {"vertical up", {0, 0, 5}, 0, {0, 0, 1}, {0, 1, 0}, {-1, 0, 0}},
                          {"vertical down", {0, 0, -5}, 0, {0, 0, -1}, {0, 1, 0}, {1, 0, 0}},
                          {"vertical turned", {0, 0, 5}, 90, {0, 0, 1}, {-1, 0, 0}, {0, -1, 0}}};
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        CVynData model = ModelOf(ElementType::Beam, {{0, 0, 0}, c.end});
        Turn(model, c.angle);
        ExpectAxes(model.ElemDC(1), c.x, c.y, c.z);
        EXPECT_EQ(model.ElemIsVertical(1), c.end.x == 0 && c.end.y == 0);
    }
}

TEST(LineAxes, NearlyVerticalIsVerticalBelowATousandth) {
    EXPECT_TRUE(ModelOf(ElementType::Beam, {{0, 0, 0}, {0.0009, 0, 1}}).ElemIsVertical(1));
    EXPECT_FALSE(ModelOf(ElementType::Beam, {{0, 0, 0}, {0.0011, 0, 1}}).ElemIsVertical(1));
}

TEST(LineAxes, OrientationNodeLiesOnThePositiveYSide) {
    CVynData model = ModelOf(ElementType::Beam, {{0, 0, 0}, {4, 0, 0}});
    model.SetNode(9, Data::CNode({1, 0, 3}));
    Data::CElement element = model.Elem(1);
    element.SetOrientationNode(9);
    model.SetElem(1, element);
    ExpectAxes(model.ElemDC(1), {1, 0, 0}, {0, 0, 1}, {0, -1, 0});
    Turn(model, 90);  // the angle comes on top
    ExpectAxes(model.ElemDC(1), {1, 0, 0}, {0, -1, 0}, {0, 0, -1});
    model.SetNode(9, Data::CNode({7, 0, 0}));  // on the line: it fixes nothing
    Turn(model, 0);
    ExpectAxes(model.ElemDC(1), {1, 0, 0}, {0, 1, 0}, {0, 0, 1});
}

TEST(Offsets, LengthAndEndsInBothAxes) {
    CVynData model = ModelOf(ElementType::Beam, {{0, 0, 0}, {0, 0, 5}});
    EXPECT_FALSE(model.IsTotalOffset(1));
    Data::CElement element = model.Elem(1);
    element.SetOffset({0.5, -0.25, 0.1, 0.2});
    model.SetElem(1, element);
    Data::CSection section;
    section.SetCentroidOffset({0.0, -0.05});
    model.SetSection(1, section);
    EXPECT_TRUE(model.IsTotalOffset(1));
    EXPECT_DOUBLE_EQ(model.ElemLen(1), 4.25);
    ExpectNear(model.TotalLocalOffset(1, 1), {0.5, 0.1, 0.15});
    ExpectNear(model.TotalLocalOffset(1, 2), {-0.25, 0.1, 0.15});
    // x is up, y along global Y, z along -X.
    ExpectNear(model.TotalGlobalOffset(1, 1), {-0.15, 0.1, 0.5});
}

TEST(FaceAxes, FollowThePropertyAxis) {
    CVynData model = ModelOf(ElementType::Quad4, {{0, 0, 0}, {2, 0, 0}, {2, 1, 0}, {0, 1, 0}});
    ExpectAxes(model.ElemDC(1), {1, 0, 0}, {0, 1, 0}, {0, 0, 1});
    EXPECT_DOUBLE_EQ(model.ElemArea(1), 2.0);
    // A wall square to X: X has no projection, so Y gives the element's x.
    CVynData wall = ModelOf(ElementType::Tri3, {{0, 0, 0}, {0, 2, 0}, {0, 0, 2}});
    ExpectAxes(wall.ElemDC(1), {0, 1, 0}, {0, 0, 1}, {1, 0, 0});
    EXPECT_DOUBLE_EQ(wall.ElemArea(1), 2.0);
    Data::CAxis axis;
    axis.SetXAxis({1, 1, 0});
    model.SetAxis(3, axis);
    Data::CProp2D property;
    property.SetAxis(3);
    property.SetThickness(0.2);
    model.SetProp2D(1, property);
    const double h = std::sqrt(0.5);
    ExpectAxes(model.ElemDC(1), {h, h, 0}, {-h, h, 0}, {0, 0, 1});
    EXPECT_DOUBLE_EQ(model.ElementThickness(1), 0.2);
}

TEST(Axes, AreOrthogonalWhateverTheirDirections) {
    Data::CAxis axis;
    axis.SetXAxis({0, 2, 0});
    axis.SetXYPlane({-3, 5, 0});
    ExpectNear(axis.XAxis(), {0, 1, 0});
    ExpectNear(axis.YAxis(), {-1, 0, 0});
    ExpectNear(axis.ZAxis(), {0, 0, 1});
    axis.SetXYPlane({0, 1, 0});  // along x: fixes no plane
    EXPECT_NEAR(Length(axis.ZAxis()), 1.0, 1e-12);
    EXPECT_NEAR(Dot(axis.ZAxis(), axis.XAxis()), 0.0, 1e-12);
}

TEST(Axes, CurvedAxesDependOnThePoint) {
    CVynData model;
    Data::CAxis axis;
    axis.SetOrigin({1, 0, 0});
    axis.SetType(AxisType::Cylindrical);
    model.SetAxis(1, axis);
    axis.SetType(AxisType::Spherical);
    model.SetAxis(2, axis);
    ExpectAxes(model.AxisDC(1, {1, 3, 7}), {0, 1, 0}, {-1, 0, 0}, {0, 0, 1});
    ExpectAxes(model.AxisDC(1, {1, 0, 7}), {1, 0, 0}, {0, 1, 0}, {0, 0, 1});
    const double h = std::sqrt(0.5);
    ExpectAxes(model.AxisDC(2, {1, 3, 3}), {0, h, h}, {-1, 0, 0}, {0, -h, h});
    ExpectAxes(model.AxisDC(99, {1, 3, 3}), {1, 0, 0}, {0, 1, 0}, {0, 0, 1});
    model.SetNode(1, Data::CNode({1, 3, 0}));
    ExpectAxes(model.NodeDC(1), {1, 0, 0}, {0, 1, 0}, {0, 0, 1});
}

TEST(Axes, TurnVectorsBothWays) {
    const CVynData model = ModelOf(ElementType::Beam, {{0, 0, 0}, {0, 3, 0}});
    const Util::CDirCos axes = model.ElemDC(1);
    ExpectNear(axes.GtoL({1, 2, 3}), {2, -1, 3});
    ExpectNear(axes.LtoG(axes.GtoL({1, 2, 3})), {1, 2, 3});
}

TEST(Geometry, ElementsWithoutExtentAreGlobalAndHaveNoLength) {
    const CVynData same = ModelOf(ElementType::Beam, {{1, 1, 1}, {1, 1, 1}});
    ExpectAxes(same.ElemDC(1), {1, 0, 0}, {0, 1, 0}, {0, 0, 1});
    EXPECT_EQ(same.ElemLen(1), 0.0);
    CVynData missing;
    missing.SetElem(1, Data::CElement(ElementType::Quad4, {4, 5, 6, 7}, 3));
    ExpectAxes(missing.ElemDC(1), {1, 0, 0}, {0, 1, 0}, {0, 0, 1});
    EXPECT_EQ(missing.ElemArea(1), 0.0);
    EXPECT_EQ(missing.ElemLen(99), 0.0);
}

TEST(FaceLoads, ValuesAtCorners) {
    CVynData model = ModelOf(
        ElementType::Brick8,
        {{0, 0, 0}, {1, 0, 0}, {1, 1, 0}, {0, 1, 0}, {0, 0, 2}, {1, 0, 2}, {1, 1, 2}, {0, 1, 2}});
    Data::CFaceLoad load;
    load.SetType(FaceLoadType::Equation);
    load.SetEquation({10, 1, 100, 1000});
    load.SetFace(2);  // top, nodes 5 to 8
    EXPECT_EQ(load.GetFaceLoadValue(model, 1, 1), 2010.0);
    EXPECT_EQ(load.GetFaceLoadValue(model, 1, 3), 2111.0);
    load.SetFace(7);
    EXPECT_TRUE(std::isnan(load.GetFaceLoadValue(model, 1, 1)));
    const CVynData triangle = ModelOf(ElementType::Tri6, {{0, 0, 0}, {1, 0, 0}, {0, 1, 0}});
    load.SetType(FaceLoadType::Corners);
    load.SetValues({1, 2, 3, 4});
    EXPECT_EQ(load.GetFaceLoadValue(triangle, 1, 3), 3.0);
    EXPECT_TRUE(std::isnan(load.GetFaceLoadValue(triangle, 1, 4)));
    load.SetPosition({0.6, 0.5});
    EXPECT_FALSE(load.ValidatePointLoadPosition(triangle, 1));
    load.SetPosition({0.5, 0.5});
    EXPECT_TRUE(load.ValidatePointLoadPosition(triangle, 1));
}

}  // namespace
}  // namespace Tevra

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

#include "draw/DrawingView.h"
#include "draw/LoadArrows.h"
#include "support/PlainModels.h"

namespace Tevra {
namespace {

using TestSupport::BeamModel;
using TestSupport::LoadOn;
using TestSupport::PlateModel;

class LoadArrows : public ::testing::Test {
protected:
    static CLoadArrows Find(const CVynData& model, DrawingView view = DrawingView::XZ,
                            int loadCase = 1, double spacing = 1.0) {
        const CModelScene scene(model, AxesOf(view), 100);
        return {model, scene, AxesOf(view), loadCase, spacing};
    }
    static void ExpectNear(const Vec3<double>& found, const Vec3<double>& expected) {
        EXPECT_LT(Length(found - expected), 1e-9) << found.x << " " << found.y << " " << found.z;
    }
    static Data::CBeamLoad BeamLoad(BeamLoadType type, Direction direction) {
        auto load = LoadOn<Data::CBeamLoad>(L"all");
        load.SetType(type);
        load.SetDirection(direction);
        return load;
    }
};

TEST_F(LoadArrows, PointAsTheForcesOfNodes) {
    CVynData model = BeamModel();
    // z of axis 1 is global X.
    model.SetAxis(1, TestSupport::AxisOf({0, 1, 0}, {0, 0, 1}));
    struct Case {
        Direction direction;
        int axis;
        double value;
        ArrowKind kind;
        Vec3<double> seen;  ///< in the plane of X and Z, third towards -Y
    };
    const Case cases[] = {
        {Direction::Z, 0, -5e3, ArrowKind::Force, {0.0, -5e3, 0.0}},
        {Direction::X, 0, 2e3, ArrowKind::Force, {2e3, 0.0, 0.0}},
        {Direction::Y, 0, 3e3, ArrowKind::Force, {0.0, 0.0, -3e3}},
        {Direction::Z, 1, 4e3, ArrowKind::Force, {4e3, 0.0, 0.0}},
        {Direction::XX, 0, 7.0, ArrowKind::Moment, {7.0, 0.0, 0.0}},
    };
    for (const Case& c : cases) {
        auto load = LoadOn<Data::CNodeLoad>(L"2", SelType::Node);
        load.SetDirection(c.direction);
        load.SetAxis(c.axis);
        load.SetValue(c.value);
        model.SetNodeLoad(1, load);
        const CLoadArrows found = Find(model);
        ASSERT_EQ(found.Arrows().size(), 1U);
        EXPECT_EQ(found.Arrows()[0].kind, c.kind);
        ExpectNear(found.Arrows()[0].at, {4.0, 0.0, 0.0});
        ExpectNear(found.Arrows()[0].value, c.seen);
        EXPECT_EQ(found.Largest(c.kind), std::abs(c.value));
    }
}

TEST_F(LoadArrows, StandEvenlyAlongABeam) {
    CVynData model = BeamModel();
    Data::CBeamLoad load = BeamLoad(BeamLoadType::Linear, Direction::Z);
    load.SetPoint(1, {0.0, true, -1e3});
    load.SetPoint(2, {1.0, true, -3e3});
    model.SetBeamLoad(1, load);
    const CLoadArrows found = Find(model);
    ASSERT_EQ(found.Arrows().size(), 4U);
    ExpectNear(found.Arrows()[0].at, {0.5, 0.0, 0.0});
    ExpectNear(found.Arrows()[0].value, {0.0, -1250.0, 0.0});
    ExpectNear(found.Arrows()[3].at, {3.5, 0.0, 0.0});
    ExpectNear(found.Arrows()[3].value, {0.0, -2750.0, 0.0});
    ASSERT_EQ(found.Edges().size(), 1U);
    ExpectNear(found.Edges()[0].at[1], {4.0, 0.0, 0.0});
    ExpectNear(found.Edges()[0].value[1], {0.0, -3e3, 0.0});
    EXPECT_EQ(found.Largest(ArrowKind::LineForce), 3e3);
    EXPECT_FALSE(found.Arrows()[0].isAlong);
}

TEST_F(LoadArrows, StandBesideBeamsThatTheyPointAlong) {
    CVynData model = BeamModel({0, 0, 0}, {0, 0, 4});
    Data::CBeamLoad load = BeamLoad(BeamLoadType::Uniform, Direction::Z);
    load.SetPoint(1, {0.0, true, -1e3});
    model.SetBeamLoad(1, load);
    const CLoadArrows found = Find(model);
    ASSERT_EQ(found.Arrows().size(), 4U);
    EXPECT_TRUE(found.Arrows()[0].isAlong);
    EXPECT_TRUE(found.Edges().empty());
    // From above they are seen end on, at one place.
    EXPECT_EQ(Find(model, DrawingView::Plan).Arrows().size(), 1U);
}

TEST_F(LoadArrows, ShowPatchesAndPointsOfBeamsWhereTheyAre) {
    CVynData model = BeamModel();
    Data::CBeamLoad patch = BeamLoad(BeamLoadType::Patch, Direction::Z);
    patch.SetAxis(kLocalAxis);
    patch.SetPoint(1, {1.0, false, 2e3});
    patch.SetPoint(2, {0.75, true, 2e3});
    model.SetBeamLoad(1, patch);
    Data::CBeamLoad point = BeamLoad(BeamLoadType::Point, Direction::XX);
    point.SetPoint(1, {0.25, true, 9.0});
    model.SetBeamLoad(2, point);
    const CLoadArrows found = Find(model);
    ASSERT_EQ(found.Arrows().size(), 3U);
    ExpectNear(found.Arrows()[0].at, {1.5, 0.0, 0.0});
    ExpectNear(found.Arrows()[1].at, {2.5, 0.0, 0.0});
    EXPECT_EQ(found.Arrows()[2].kind, ArrowKind::Moment);
    ExpectNear(found.Arrows()[2].at, {1.0, 0.0, 0.0});
    EXPECT_EQ(found.Largest(ArrowKind::Moment), 9.0);
}

TEST_F(LoadArrows, ShowTheMeanPressureAtTheCentre) {
    CVynData model = PlateModel();
    auto load = LoadOn<Data::CFaceLoad>(L"all");
    load.SetType(FaceLoadType::Corners);
    load.SetAxis(kLocalAxis);
    load.SetDirection(Direction::Z);
    load.SetValues({-1e3, -2e3, -3e3, -4e3});
    model.SetFaceLoad(1, load);
    const CLoadArrows found = Find(model, DrawingView::Plan);
    ASSERT_EQ(found.Arrows().size(), 1U);
    EXPECT_EQ(found.Arrows()[0].kind, ArrowKind::Pressure);
    ExpectNear(found.Arrows()[0].at, {1.0, 1.0, 0.0});
    ExpectNear(found.Arrows()[0].value, {0.0, 0.0, -2500.0});
}

TEST_F(LoadArrows, ShowEdgeLoadsOnTheirEdge) {
    CVynData model = PlateModel();
    auto load = LoadOn<Data::CEdgeLoad>(L"all");
    load.SetDirection(Direction::X);
    load.SetEdge(4);  // from corner 4 to corner 1
    load.SetValues(5.0, 7.0);
    model.SetEdgeLoad(1, load);
    load.SetEdge(5);
    model.SetEdgeLoad(2, load);
    const CLoadArrows found = Find(model, DrawingView::Plan);
    ASSERT_EQ(found.Edges().size(), 1U);
    ExpectNear(found.Edges()[0].at[0], {0.0, 2.0, 0.0});
    ExpectNear(found.Edges()[0].at[1], {0.0, 0.0, 0.0});
    ExpectNear(found.Edges()[0].value[1], {7.0, 0.0, 0.0});
}

TEST_F(LoadArrows, AreThoseOfOneCase) {
    CVynData model = BeamModel();
    auto force = LoadOn<Data::CNodeLoad>(L"2", SelType::Node);
    force.SetValue(1.0);
    force.SetLoadCase(4);
    model.SetNodeLoad(1, force);
    model.SetGravityLoad(1, Data::CGravityLoad());
    auto heat = LoadOn<Data::CBeamThermalLoad>(L"all");
    heat.SetLoadCase(4);
    model.SetBeamThermalLoad(1, heat);
    EXPECT_EQ(FirstLoadedCase(model), 4);
    const CLoadArrows fourth = Find(model, DrawingView::XZ, 4);
    EXPECT_EQ(fourth.Arrows().size(), 1U);
    EXPECT_EQ(fourth.NumUndrawn(), 1);
    ExpectNear(fourth.Gravity(), {});
    const CLoadArrows first = Find(model, DrawingView::XZ, 1);
    EXPECT_TRUE(first.Arrows().empty());
    ExpectNear(first.Gravity(), {0.0, 0.0, -1.0});
    EXPECT_TRUE(Find(model, DrawingView::XZ, 0).Arrows().empty());
    model.DeleteNodeLoad(1);
    EXPECT_EQ(FirstLoadedCase(model), 1);
    EXPECT_EQ(FirstLoadedCase(CVynData()), 0);
}

TEST_F(LoadArrows, KeepTheirDistanceWhenThereAreMany) {
    CVynData model;
    constexpr int kSide = 100;
    for (int i = 0; i < kSide * kSide; ++i) {
        const double x = i % kSide;
        const double y = i / kSide;  // NOLINT(bugprone-integer-division): rows
        model.SetNode(i + 1, Data::CNode({x, y, 0.0}));
    }
    auto force = LoadOn<Data::CNodeLoad>(L"all", SelType::Node);
    force.SetValue(1.0);
    model.SetNodeLoad(1, force);
    const std::size_t count = Find(model, DrawingView::Plan, 1, 3.0).Arrows().size();
    EXPECT_GT(count, 200U);
    EXPECT_LT(count, 700U);
}

TEST_F(LoadArrows, WithoutANumberAreNotDrawn) {
    CVynData model = BeamModel();
    model.SetNode(3, Data::CNode({std::nan(""), 0, 0}));
    for (const double value : {std::nan(""), std::numeric_limits<double>::infinity(), 1e300}) {
        auto force = LoadOn<Data::CNodeLoad>(L"all", SelType::Node);
        force.SetValue(value);
        model.SetNodeLoad(1, force);
        Data::CBeamLoad line = BeamLoad(BeamLoadType::Uniform, Direction::Z);
        line.SetPoint(1, {0.0, true, value});
        model.SetBeamLoad(1, line);
        auto gravity = LoadOn<Data::CGravityLoad>(L"all");
        gravity.SetValue({0.0, 0.0, value});
        model.SetGravityLoad(1, gravity);
        const CLoadArrows found = Find(model);
        EXPECT_TRUE(found.Arrows().empty()) << value;
        EXPECT_TRUE(found.Edges().empty()) << value;
        EXPECT_EQ(found.Largest(ArrowKind::Force), 0.0) << value;
        EXPECT_EQ(Length(found.Gravity()), 0.0) << value;
    }
}

}  // namespace
}  // namespace Tevra

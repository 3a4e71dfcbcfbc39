#include <cmath>
#include <gtest/gtest.h>
#include <vector>

#include "draw/SupportMarks.h"
#include "support/PlainModels.h"

namespace Tevra {
namespace {

constexpr auto kIso = DrawingView::Isometric;
constexpr auto kPlan = DrawingView::Plan;
constexpr auto kXz = DrawingView::XZ;
constexpr auto kYz = DrawingView::YZ;
constexpr unsigned kAll = 63;
constexpr unsigned kX = 1;
constexpr unsigned kY = 2;
constexpr unsigned kZ = 4;
constexpr unsigned kYY = 16;

TEST(SupportMarks, ShowWhatHoldsANodeInTheView) {
    struct Case {
        unsigned restraint;
        DrawingView view;
        SupportKind kind;
    };
    using enum SupportKind;
    const Case cases[] = {
        {kAll, kIso, Fixed},
        {kAll, kPlan, Fixed},
        {kX | kY | kZ, kIso, Pinned},
        {kX | kY | kZ | kYY, kIso, Pinned},
        {kX | kY | kZ, kXz, Pinned},
        // What turns about Y is seen in the plane of X and Z alone.
        {kX | kY | kZ | kYY, kXz, Fixed},
        {kX | kY | kZ | kYY, kYz, Pinned},
        {kX | kZ, kIso, Guided},
        {kX | kZ, kXz, Pinned},
        {kX | kZ, kYz, Roller},
        {kX | kZ, kPlan, Roller},
        {kZ, kIso, Roller},
        {kZ, kXz, Roller},
        {kZ, kPlan, Across},
        {kYY, kIso, Turning},
        {kZ | 32U, kPlan, Turning},
        // Held in X alone, seen along X.
        {kX, kYz, Across},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(MarkOf(Vbool6::FromBits(c.restraint), {}, c.view).kind, c.kind)
            << c.restraint << " view " << static_cast<int>(c.view);
    }
}

TEST(SupportMarks, RollersStandOnTheSideThatHolds) {
    const SupportMark below = MarkOf(Vbool6::FromBits(kZ), {}, kXz);
    EXPECT_NEAR(below.ground.x, 0.0, 1e-12);
    EXPECT_NEAR(below.ground.y, 1.0, 1e-12);
    const SupportMark beside = MarkOf(Vbool6::FromBits(kX), {}, kXz);
    EXPECT_NEAR(std::abs(beside.ground.x), 1.0, 1e-12);
    EXPECT_NEAR(beside.ground.y, 0.0, 1e-12);
    // Along X in the isometric view: 30 degrees down to the right.
    const SupportMark guided = MarkOf(Vbool6::FromBits(kY | kZ), {}, kIso);
    EXPECT_NEAR(guided.slide.x, std::sqrt(0.75), 1e-12);
    EXPECT_NEAR(guided.slide.y, 0.5, 1e-12);
    EXPECT_EQ(guided.ground.y, 1.0);
}

TEST(SupportMarks, DirectionsAreThoseOfTheNodesAxis) {
    // The axis has its x along global Z.
    const Util::CDirCos axis({0, 0, 1}, {1, 0, 0}, {0, 1, 0});
    const SupportMark mark = MarkOf(Vbool6::FromBits(kX), axis, kXz);
    EXPECT_EQ(mark.kind, SupportKind::Roller);
    EXPECT_NEAR(mark.ground.y, 1.0, 1e-12);
    EXPECT_EQ(MarkOf(Vbool6::FromBits(kX), axis, kPlan).kind, SupportKind::Across);
}

TEST(SupportMarks, SpringsHoldNodesAndWholeModelsDoNot) {
    CVynData model = TestSupport::ModelOf({{0, 0, 0}, {1, 0, 0}, {2, 0, 0}, {3, 0, 0}});
    model.SetGlobalRestraint(Vbool6::FromBits(kY));
    model.SetElem(1, {ElementType::Beam, {1, 2}, 1});
    model.SetElem(2, {ElementType::Beam, {2, 3}, 1});
    model.SetElem(3, {ElementType::Spring, {3}, 1});
    Data::CNode sprung({0, 0, 0});
    sprung.SetSpringProperty(1);
    model.SetNode(1, sprung);
    Data::CNode held({1, 0, 0});
    held.SetRestraint(Vbool6::FromBits(kZ));
    held.SetSpringProperty(1);
    model.SetNode(2, held);
    const CModelScene scene(model, AxesOf(kXz), 100);
    const std::vector<PlacedSupport> supports = FindSupports(model, scene, kXz);
    ASSERT_EQ(supports.size(), 3U);
    EXPECT_EQ(supports[0].mark.kind, SupportKind::Spring);
    EXPECT_EQ(supports[1].mark.kind, SupportKind::Roller);
    EXPECT_EQ(supports[2].mark.kind, SupportKind::Spring);
    EXPECT_EQ(supports[2].place.x, 2.0);
}

}  // namespace
}  // namespace Tevra

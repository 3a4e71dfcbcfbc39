#include <cmath>
#include <gtest/gtest.h>

#include "model/LoadForces.h"
#include "model/LoadValues.h"
#include "support/PlainModels.h"

namespace Tevra {
namespace {

using namespace TestSupport;

TEST(LoadValues, RoundOffIsTakenByTheShareOfTheVector) {
    EXPECT_EQ(WithoutRoundOff({1e-14, -3.0, 2e-12}), (Vec3<double>{0.0, -3.0, 0.0}));
    EXPECT_EQ(WithoutRoundOff({1e-14, 0.0, -2e-14}), (Vec3<double>{1e-14, 0.0, -2e-14}));
    EXPECT_EQ(WithoutRoundOff({}), Vec3<double>{});
}

/// The mean pressure times the area is the force of a load at a point, and the pressure on the plan
/// times the plan.
TEST(LoadValues, MeanPressuresKeepTheForce) {
    CVynData model = PlateModel();
    model.SetNode(3, Data::CNode({2, 1.2, 1.6}));  // the plate of 2 by 2 stands at 3 in 4
    model.SetNode(4, Data::CNode({0, 1.2, 1.6}));
    auto load = LoadOn<Data::CFaceLoad>(L"1");
    load.SetValues({-500.0, 0, 0, 0});
    load.SetType(FaceLoadType::Point);
    EXPECT_NEAR(MeanPressure(model, load, 1) * 4.0, -500.0, 1e-9);
    load.SetType(FaceLoadType::Uniform);
    load.SetProjected(true);
    EXPECT_NEAR(MeanPressure(model, load, 1) * 4.0, -500.0 * 2.0 * 1.2, 1e-9);
    load.SetProjected(false);
    load.SetType(FaceLoadType::Equation);
    load.SetEquation({1.0, 0.0, 0.0, 10.0});
    EXPECT_NEAR(MeanPressure(model, load, 1), 9.0, 1e-12);  // at the middle, 0.8 m up
    model.SetElem(2, Data::CElement(ElementType::Bar, {1, 2}, 1));
    EXPECT_TRUE(std::isnan(MeanPressure(model, load, 2)));
}

/// On a trapezium of sides 4 and 2, 2 m high, the long side has more of the area than its half:
/// the sum of a pressure that falls from the long side to none at the other is 10000 N.
TEST(LoadValues, MeanPressureOfAFaceThatIsNoParallelogram) {
    CVynData model = PlateModel();
    model.SetNode(2, Data::CNode({4, 0, 0}));
    model.SetNode(3, Data::CNode({3, 2, 0}));
    model.SetNode(4, Data::CNode({1, 2, 0}));
    auto load = LoadOn<Data::CFaceLoad>(L"1");
    load.SetType(FaceLoadType::Corners);
    load.SetValues({-3000.0, -3000.0, 0.0, 0.0});
    EXPECT_NEAR(MeanPressure(model, load, 1) * 6.0, -10000.0, 1e-8);
    load.SetType(FaceLoadType::Equation);
    load.SetEquation({0.0, 0.0, -1000.0, 0.0});
    EXPECT_NEAR(MeanPressure(model, load, 1) * 6.0, -16000.0 / 3.0, 1e-8);
}

TEST(LoadValues, StretchesLieOnTheElement) {
    struct Case {
        Data::LoadPoint first;
        Data::LoadPoint second;
        bool asFractions;
        LoadedStretch on;
    };
    const Case cases[] = {
        {{0.25, true, 1.0}, {0.75, true, 3.0}, true, {0.25, 0.75, 1.0, 3.0}},
        {{0.25, true, 1.0}, {3.0, false, 3.0}, false, {1.0, 3.0, 1.0, 3.0}},
        {{0.75, true, 1.0}, {0.25, true, 3.0}, true, {0.25, 0.75, 3.0, 1.0}},
        {{3.0, false, 1.0}, {5.0, false, 3.0}, false, {3.0, 4.0, 1.0, 2.0}},
        {{-2.0, false, 0.0}, {2.0, false, 4.0}, false, {0.0, 2.0, 2.0, 4.0}},
        {{-1.0, false, 2.0}, {8.0, false, 2.0}, true, {0.0, 1.0, 2.0, 2.0}},
    };
    for (const Case& c : cases) {
        Data::CBeamLoad load;
        load.SetType(BeamLoadType::Patch);
        load.SetPoint(1, c.first);
        load.SetPoint(2, c.second);
        const LoadedStretch on = StretchOf(load, 4.0, c.asFractions);
        EXPECT_EQ(on.from, c.on.from);
        EXPECT_EQ(on.to, c.on.to);
        EXPECT_DOUBLE_EQ(on.fromValue, c.on.fromValue);
        EXPECT_DOUBLE_EQ(on.toValue, c.on.toValue);
        load.SetPoint(1, {4.5, false, 1.0});
        load.SetPoint(2, {5.0, false, 1.0});
        EXPECT_TRUE(StretchOf(load, 4.0, c.asFractions).IsEmpty());
    }
    EXPECT_TRUE(IsOnElement({1.0, true, 0.0}, 4.0));
    EXPECT_TRUE(IsOnElement({4.0, false, 0.0}, 4.0));
    EXPECT_FALSE(IsOnElement({1.25, true, 0.0}, 4.0));
    EXPECT_FALSE(IsOnElement({-0.5, false, 0.0}, 4.0));
}

TEST(LoadValues, TemperaturesThroughASection) {
    Data::CBeamThermalLoad beam;
    beam.SetType(BeamThermalType::GradientZ);
    beam.SetPoint(1, -0.1, 4.0);
    beam.SetPoint(2, 0.3, 12.0);
    beam.SetUniformPart(1.0);
    EXPECT_DOUBLE_EQ(TemperatureOf(beam).gradient, 20.0);
    EXPECT_DOUBLE_EQ(TemperatureOf(beam).mean, 7.0);
    Data::CFaceThermalLoad face;
    face.SetType(FaceThermalType::General);
    face.SetValues({1, 2, 3, 100, 4, 5, 6, 100});
    EXPECT_DOUBLE_EQ(TemperatureOf(face, 3, 0.5).mean, 3.5);
    EXPECT_DOUBLE_EQ(TemperatureOf(face, 3, 0.5).gradient, -6.0);
    EXPECT_FALSE(std::isfinite(TemperatureOf(face, 3, 0.0).gradient));
}

}  // namespace
}  // namespace Tevra

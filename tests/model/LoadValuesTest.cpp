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

#include <gtest/gtest.h>
#include <vector>

#include "BeamModel.h"
#include "model/SpanFrame.h"
#include "model/SpanLoadIndex.h"

namespace Tevra {
namespace {

using namespace TestBeam;
using Type = BeamLoadType;

/// Totals of the span loads of element 1 in analysis case 1, turned back into global axes.
struct Totals {
    Vec3<double> force;
    Vec3<double> moment;
};
Totals TotalsOf(const CVynData& model) {
    const SpanFrame frame = SpanFrame::Of(model, 1, -1);
    SpanLoads forces;
    SpanLoads moments;
    model.SpanLoadsByElement().AddLoads(frame, 1, forces, moments);
    const SpanPlace beyond{frame.length, CPosOn1D(CPosOn1D::kWhole + 1)};
    return {frame.axes.LtoG(forces.Integral(0, beyond)),
            frame.axes.LtoG(moments.Integral(0, beyond))};
}

void ExpectNear(const Vec3<double>& actual, const Vec3<double>& expected) {
    for (int i = 0; i < 3; ++i) {
        EXPECT_NEAR(actual[i], expected[i], 1e-8) << i;
    }
}

constexpr int kUserAxis = 3;  ///< x along global Y, y along global Z

CVynData Inclined() {
    CVynData model = Model({8, 0, 6});
    Data::CAxis axis;
    axis.SetXAxis({0, 1, 0});
    axis.SetXYPlane({0, 0, 1});
    model.SetAxis(kUserAxis, axis);
    return model;
}

TEST(SpanLoadIndex, TurnsLoadsIntoElementAxes) {
    const auto projected = [](Data::CBeamLoad load) {
        load.SetProjected(true);
        return load;
    };
    const std::vector<Data::LoadPoint> one{{0, true, -100}};
    struct Case {
        const char* what;
        Data::CBeamLoad load;
        Vec3<double> force;
        Vec3<double> moment;
    };
    const Case cases[] = {
        {"global", Load(Type::Uniform, Direction::Z, one), {0, 0, -1000}, {}},
        {"on the plan", projected(Load(Type::Uniform, Direction::Z, one)), {0, 0, -800}, {}},
        {"on the elevation", projected(Load(Type::Uniform, Direction::X, one)), {-600, 0, 0}, {}},
        {"square anyway", projected(Load(Type::Uniform, Direction::Y, one)), {0, -1000, 0}, {}},
        {"projected point", projected(Load(Type::Point, Direction::Z, one)), {0, 0, -100}, {}},
        {"along the element",
         Load(Type::Uniform, Direction::X, one, kLocalAxis),
         {-800, 0, -600},
         {}},
        {"across", Load(Type::Uniform, Direction::Z, one, kLocalAxis), {600, 0, -800}, {}},
        {"user axis", Load(Type::Uniform, Direction::Y, one, kUserAxis), {0, 0, -1000}, {}},
        {"torque", Load(Type::Uniform, Direction::XX, one, kLocalAxis), {}, {-800, 0, -600}},
        {"global moment", Load(Type::Point, Direction::YY, one), {}, {0, -100, 0}},
        {"triangle",
         Load(Type::Linear, Direction::Z, {{0, true, 0}, {0, true, -100}}),
         {0, 0, -500},
         {}},
        {"patch turned round",
         Load(Type::Patch, Direction::Z, {{6, false, -100}, {0.2, true, -50}}),
         {0, 0, -300},
         {}},
        {"patch beyond the end",
         Load(Type::Patch, Direction::Z, {{8, false, -100}, {12, false, 0}}),
         {0, 0, -150},
         {}},
        {"trilinear",
         Load(Type::Trilinear, Direction::Z,
              {{0, true, 0}, {0.2, true, -100}, {0.6, true, -100}, {1, true, 0}}),
         {0, 0, -700},
         {}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        CVynData model = Inclined();
        Add(model, c.load);
        ExpectNear(TotalsOf(model).force, c.force);
        ExpectNear(TotalsOf(model).moment, c.moment);
    }
}

TEST(SpanLoadIndex, WeightByStageAndKind) {
    CVynData model = Inclined();
    model.SetGravityLoad(1, Data::CGravityLoad());
    const double steel = 0.06 * 7850 * 9.80665 * kLength;
    ExpectNear(TotalsOf(model).force, {0, 0, -steel});
    model.SetAnalysisCase(1, CAnalysisCase(L"", 1, L"1.5L1 + L2"));
    ExpectNear(TotalsOf(model).force, {0, 0, -1.5 * steel});
    // Two components of their own materials.
    Data::CSection section = model.Section(1);
    section.SetComponents({section.Component(1), section.Component(1)});
    ExpectNear(TotalsOf(model).force, {0, 0, -1.5 * steel});
    model.SetSection(1, section);
    ExpectNear(TotalsOf(model).force, {0, 0, -3.0 * steel});
    // A cable by its mass per length.
    Data::CCableProp cable;
    cable.SetDensity(5.0);
    model.SetCableProp(1, cable);
    model.SetElem(1, Data::CElement(ElementType::Cable, {1, 2}, 1));
    ExpectNear(TotalsOf(model).force, {0, 0, -1.5 * 50 * 9.80665});
    cable.SetArea(0.01);
    model.SetCableProp(1, cable);
    ExpectNear(TotalsOf(model).force, {0, 0, -1.5 * 0.5 * 9.80665});
}

TEST(SpanLoadIndex, ElementsOfMembersAndListsOfNothing) {
    CVynData model = Inclined();
    Data::CElement element = model.Elem(1);
    element.SetParentMember(4);
    model.SetElem(1, element);
    model.SetMember(4, Data::CMember());
    Data::CBeamLoad load = Load(Type::Uniform, Direction::Z, {{0, true, -100}});
    load.SetLoadedEntities(CEntList(L"1 to 9", SelType::Member));
    Add(model, load);
    ExpectNear(TotalsOf(model).force, {0, 0, -1000});
    load.SetLoadedEntities(CEntList(L"5", SelType::Member));
    model.SetBeamLoad(1, load);
    ExpectNear(TotalsOf(model).force, {});
    load.SetLoadedEntities(CEntList(L"1 1 77", SelType::Element));
    model.SetBeamLoad(1, load);
    Add(model, load);
    ExpectNear(TotalsOf(model).force, {0, 0, -2000});
}

}  // namespace
}  // namespace Tevra

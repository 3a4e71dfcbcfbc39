#include <cmath>
#include <gtest/gtest.h>
#include <vector>

#include "BeamModel.h"
#include "model/InterCalc.h"

namespace Tevra {
namespace {

using namespace TestBeam;
using Type = BeamLoadType;

constexpr double L = kLength;
constexpr double W = 1000.0;   // N/m
constexpr double P = 20000.0;  // N
constexpr double C = 30000.0;  // Nm
constexpr double kL3 = L * L * L;
constexpr double kL4 = L * L * L * L;

InterResult At(const CVynData& model, InterKind kind, double t,
               const SCaseRef& ref = AnalysisRef(1)) {
    CInterCalc calc(model);
    CInterInfo info;
    const CPosOn1D at = CPosOn1D::FromFraction(t);
    info.Setup(kind, {&at, 1});
    calc.SetData(1, ref);
    calc.Calculate(info);
    return {info.Tran(0), info.Rot(0)};
}

void ExpectClose(const Vec3<double>& actual, const Vec3<double>& expected) {
    const double slack = 2e-6 * (1e-6 + Length(expected));
    EXPECT_NEAR(actual.x, expected.x, slack);
    EXPECT_NEAR(actual.y, expected.y, slack);
    EXPECT_NEAR(actual.z, expected.z, slack);
}

struct Place {
    double t;
    double deflection;  ///< times EI
    double shear;
    double moment;
};

/// A load in the x-z plane of a beam, and what textbooks have for it. Slopes (dw/dx) and
/// deflections are times EI; shear and moment are those on the positive face.
struct BeamCase {
    const char* what;
    Type type;
    bool isMoment;
    std::vector<Data::LoadPoint> points;
    double slope1, w2, slope2;
    double shear1, moment1;
    std::vector<Place> places;
};

const double kA = 4.0;  // of the loads at a point
const double kB = L - kA;
const double kThird = L / std::sqrt(3.0);

double HalfPatch(double x) {
    const double c = x <= L / 2 ? x * (9 * kL3 - 24 * L * x * x + 16 * x * x * x)
                                : L * (8 * x * x * x - 24 * L * x * x + 17 * L * L * x - kL3);
    return -W * c / 384;
}

// clang-format off
const BeamCase kBeamCases[] = {
    {"uniform, simply supported", Type::Uniform, false, {{0, true, -W}},
     -W * kL3 / 24, 0, W * kL3 / 24, -W * L / 2, 0,
     {{0.5, -5 * W * kL4 / 384, 0, -W * L * L / 8},
      {0.25, -57 * W * kL4 / 6144, -W * L / 4, -3 * W * L * L / 32},
      {1.0, 0, W * L / 2, 0}}},
    {"uniform, fixed at both ends", Type::Uniform, false, {{0, true, -W}},
     0, 0, 0, -W * L / 2, W * L * L / 12,
     {{0.5, -W * kL4 / 384, 0, -W * L * L / 24}, {1.0, 0, W * L / 2, W * L * L / 12}}},
    {"uniform, cantilever", Type::Uniform, false, {{0, true, -W}},
     0, -W * kL4 / 8, -W * kL3 / 6, -W * L, W * L * L / 2,
     {{0.5, -17 * W * kL4 / 384, -W * L / 2, W * L * L / 8}, {1.0, -W * kL4 / 8, 0, 0}}},
    {"triangular, simply supported", Type::Linear, false, {{0, true, 0}, {0, true, -W}},
     -7 * W * kL3 / 360, 0, 8 * W * kL3 / 360, -W * L / 6, 0,
     {{0.5, -2.5 * W * kL4 / 384, -W * L / 24, -W * L * L / 16},
      {kThird / L, -4 * W * kL4 / (360 * std::sqrt(3.0)), 0, -W * L * L / (9 * std::sqrt(3.0))},
      {1.0, 0, W * L / 3, 0}}},
    {"force at a point, simply supported", Type::Point, false, {{kA, false, -P}},
     -P * kB * (L * L - kB * kB) / (6 * L), 0, P * kA * (L * L - kA * kA) / (6 * L),
     -P * kB / L, 0,
     {{0.2, -P * kB * 2 * (L * L - kB * kB - 4) / (6 * L), -P * kB / L, -P * kB / L * 2},
      {0.4, -P * kA * kA * kB * kB / (3 * L), -P * kB / L, -P * kA * kB / L},
      {0.7, -P * kA * 3 * (L * L - kA * kA - 9) / (6 * L), P * kA / L, -P * kA / L * 3}}},
    {"moment at a point, simply supported", Type::Point, true, {{kA / L, true, C}},
     C * (6 * kA * L - 3 * kA * kA - 2 * L * L) / (6 * L), 0, C * (L * L - 3 * kA * kA) / (6 * L),
     C / L, 0,
     {{0.2, -C * 2 * (2 * L * L - 6 * kA * L + 3 * kA * kA + 4) / (6 * L), C / L, C / L * 2},
      {0.4, -C * kA * (L - kA) * (L - 2 * kA) / (3 * L), C / L, C / L * kA},
      {0.7, C * 3 * (3 * kA * kA + 49 - 14 * L) / (6 * L), C / L, -C / L * 3}}},
    {"uniform over the first half, simply supported", Type::Patch, false,
     {{0, true, -W}, {5.0, false, -W}},
     -3 * W * kL3 / 128, 0, 7 * W * kL3 / 384, -3 * W * L / 8, 0,
     {{0.375, HalfPatch(3.75), 0, -9 * W * L * L / 128},
      {0.5, HalfPatch(5.0), W * L / 8, -W * L * L / 16},
      {0.75, HalfPatch(7.5), W * L / 8, -W * L * L / 32}}},
    {"the same by two trapezoids", Type::Trilinear, false,
     {{0, true, -W}, {0.2, true, -W}, {0.4, true, -W}, {0.5, true, -W}},
     -3 * W * kL3 / 128, 0, 7 * W * kL3 / 384, -3 * W * L / 8, 0,
     {{0.375, HalfPatch(3.75), 0, -9 * W * L * L / 128},
      {0.75, HalfPatch(7.5), W * L / 8, -W * L * L / 32}}},
    {"moment spread evenly, fixed at both ends", Type::Uniform, true, {{0, true, C}},
     0, 0, 0, C, 0, {{0.25, 0, C, 0}, {0.5, 0, C, 0}, {1.0, 0, C, 0}}},
};
// clang-format on

/// Where the beam lies and in which of its planes it bends.
struct Setting {
    const char* what;
    Vec3<double> end;
    bool inXY;
};
const Setting kSettings[] = {{"x-z plane, along X", {L, 0, 0}, false},
                             {"x-y plane, along X", {L, 0, 0}, true},
                             {"x-z plane, upright", {0, 0, L}, false},
                             {"x-y plane, inclined", {6, 0, 8}, true}};

/// Turns a figure of the x-z plane into one of the x-y plane: a moment about y that bends like one
/// about z has the other sign.
Vec3<double> Across(const Setting& s, double v) {
    return s.inXY ? Vec3<double>{0, v, 0} : Vec3<double>{0, 0, v};
}
Vec3<double> About(const Setting& s, double v) {
    return s.inXY ? Vec3<double>{0, 0, -v} : Vec3<double>{0, v, 0};
}
std::vector<double> Six(const Vec3<double>& a, const Vec3<double>& b) {
    return {a.x, a.y, a.z, b.x, b.y, b.z};
}

CVynData ModelOf(const BeamCase& c, const Setting& s) {
    CVynData model = Model(s.end);
    std::vector<Data::LoadPoint> points = c.points;
    for (Data::LoadPoint& point : points) {
        point.value = c.isMoment && s.inXY ? -point.value : point.value;
    }
    const Direction force = s.inXY ? Direction::Y : Direction::Z;
    const Direction moment = s.inXY ? Direction::ZZ : Direction::YY;
    Add(model, Load(c.type, c.isMoment ? moment : force, points, kLocalAxis));
    const double ei = s.inXY ? kEIzz : kEIyy;
    const Util::CDirCos axes = model.ElemDC(1);
    SetEnds(model, 1, Six({}, axes.LtoG(About(s, -c.slope1 / ei))),
            Six(axes.LtoG(Across(s, c.w2 / ei)), axes.LtoG(About(s, -c.slope2 / ei))),
            Six(Across(s, c.shear1), About(s, c.moment1)));
    return model;
}

TEST(InterCalc, GivesWhatTextbooksHave) {
    for (const Setting& s : kSettings) {
        for (const BeamCase& c : kBeamCases) {
            SCOPED_TRACE(std::string(c.what) + ", " + s.what);
            const CVynData model = ModelOf(c, s);
            const Util::CDirCos axes = model.ElemDC(1);
            for (const Place& place : c.places) {
                SCOPED_TRACE(place.t);
                const double deflection = place.deflection / (s.inXY ? kEIzz : kEIyy);
                const InterResult force = At(model, InterKind::Force, place.t);
                ExpectClose(force.tran + Vec3<double>{W, 0, 0},
                            Across(s, place.shear) + Vec3<double>{W, 0, 0});
                ExpectClose(force.rot + Vec3<double>{W, 0, 0},
                            About(s, place.moment) + Vec3<double>{W, 0, 0});
                ExpectClose(At(model, InterKind::Displacement, place.t).tran,
                            axes.LtoG(Across(s, deflection)));
            }
        }
    }
}

TEST(InterCalc, UniformLoadOnASimpleBeamInFigures) {
    const CVynData model = ModelOf(kBeamCases[0], kSettings[0]);
    EXPECT_NEAR(At(model, InterKind::Displacement, 0.5).tran.z, -0.0013779, 5e-8);
    EXPECT_NEAR(At(model, InterKind::Displacement, 0.5).rot.y, 0.0, 1e-15);
    EXPECT_NEAR(At(model, InterKind::Force, 0.5).rot.y, -12500.0, 1e-8);
}

TEST(InterCalc, ReleasedEndsTurnAsTheirMomentsSay) {
    for (const bool isBar : {false, true}) {
        CVynData model = ModelOf(kBeamCases[0], kSettings[0]);
        Data::CElement element(isBar ? ElementType::Bar : ElementType::Beam, {1, 2}, 1);
        Data::CElemConnect hinge;
        hinge.SetReleased(Vbool6(false, false, false, false, true, true));
        element.SetConnect(1, hinge);
        element.SetConnect(2, hinge);
        model.SetElem(1, element);
        // The nodes turn otherwise, and one is lower.
        SetEnds(model, 1, {0, 0, 0, 0, 0.01, 0.02}, {0, 0, -0.002, 0, 0.03, 0},
                {0, 0, -W * L / 2, 0, 0, 0});
        const InterResult middle = At(model, InterKind::Displacement, 0.5);
        ExpectClose(middle.tran, {0, 0, -0.001 - 0.0013778660});
        EXPECT_NEAR(At(model, InterKind::Displacement, 0.0).rot.y, 0.0002 + W * kL3 / 24 / kEIyy,
                    1e-12);
    }
}

TEST(InterCalc, ReleaseAtOneEndOnly) {
    // Propped cantilever: held at end 1, hinged to a node that turns at end 2.
    CVynData model = ModelOf(kBeamCases[0], kSettings[0]);
    Data::CElement element = model.Elem(1);
    Data::CElemConnect hinge;
    hinge.SetReleased(Vbool6(false, false, false, false, true, false));
    element.SetConnect(2, hinge);
    model.SetElem(1, element);
    SetEnds(model, 1, std::vector<double>(6), {0, 0, 0, 0, 0.5, 0},
            {0, 0, -5 * W * L / 8, 0, W * L * L / 8, 0}, {0, 0, 3 * W * L / 8, 0, 0, 0});
    EXPECT_NEAR(At(model, InterKind::Displacement, 0.5).tran.z, -W * kL4 / 192 / kEIyy, 1e-12);
    // Rotations that are the element's own count as they are.
    model.EditResults().Edit(1).Edit(ResultKind::Elem1DDisp).Set(1, std::vector<double>(12));
    EXPECT_NEAR(At(model, InterKind::Displacement, 0.5).tran.z, -W * kL4 / 384 / kEIyy, 1e-12);
}

TEST(InterCalc, LoadsRightAtTheEnds) {
    CVynData model = Model();
    Add(model, Load(Type::Point, Direction::Z, {{0.0, true, -P}}));
    Add(model, Load(Type::Point, Direction::Z, {{1.0, true, -C}}));
    SetEnds(model, 1, std::vector<double>(6), std::vector<double>(6), {0, 0, -P, 0, 0, 0},
            {0, 0, C, 0, 0, 0});
    EXPECT_DOUBLE_EQ(At(model, InterKind::Force, 0.0).tran.z, -P);  // before the load
    EXPECT_DOUBLE_EQ(At(model, InterKind::Force, 0.5).tran.z, 0.0);
    EXPECT_DOUBLE_EQ(At(model, InterKind::Force, 1.0).tran.z, 0.0);
}

TEST(InterCalc, FactorsOfTheCaseAndItsKind) {
    CVynData model = ModelOf(kBeamCases[0], kSettings[0]);
    Add(model, Load(Type::Uniform, Direction::Z, {{0, true, -W}}, kLocalAxis, 2));
    const auto shear = [&](const wchar_t* description) {
        model.SetAnalysisCase(1, CAnalysisCase(L"", 1, description));
        return At(model, InterKind::Force, 0.5).tran.z + W * L / 2;
    };
    EXPECT_NEAR(shear(L"2L1 - 0.5L2"), 1.5 * W * L / 2, 1e-9);
    EXPECT_NEAR(shear(L"L3"), 0.0, 1e-9);
    EXPECT_NEAR(shear(L"L2 : P(L1)"), W * L / 2, 1e-9);
    EXPECT_NEAR(shear(L"M1"), 0.0, 1e-9);
    CAnalysisTask task;
    task.SetSolution(SolutionType::ResponseSpectrum);
    model.SetAnalysisTask(1, task);
    EXPECT_NEAR(shear(L"L1"), 0.0, 1e-9);
}

/// A plane frame's results leave out what stands square to its plane: the figures that are there
/// are those of a model that has zeros for the others.
TEST(InterCalc, AMissingFigureSpoilsNoOther) {
    const CVynData whole = ModelOf(kBeamCases[0], kSettings[0]);
    const double none = std::nan("");
    CVynData plane = whole;
    CaseResults& results = plane.EditResults().Edit(1);
    const auto blank = [&](ResultKind kind, int entity) {
        std::vector<double> values;
        for (int row = 0; row < results.Find(kind)->NumRow(entity); ++row) {
            const double* given = results.Find(kind)->Row(entity, row);
            values.insert(values.end(), {given[0], none, given[2], none, given[4], none});
        }
        results.Edit(kind).Set(entity, values);
    };
    blank(ResultKind::NodeDisp, 1);
    blank(ResultKind::NodeDisp, 2);
    blank(ResultKind::Elem1DForce, 1);
    for (const InterKind kind : {InterKind::Displacement, InterKind::Force}) {
        for (const double t : {0.0, 0.5, 1.0}) {
            const InterResult known = At(whole, kind, t);
            const InterResult found = At(plane, kind, t);
            EXPECT_TRUE(std::isnan(found.tran.y) && std::isnan(found.rot.z));
            EXPECT_EQ(found.tran.x, known.tran.x);
            EXPECT_EQ(found.tran.z, known.tran.z);
            EXPECT_EQ(found.rot.y, known.rot.y);
        }
    }
}

TEST(InterCalc, NoResultsWithoutLengthOrCase) {
    const auto isMissing = [](const InterResult& r) {
        return std::isnan(r.tran.x) && std::isnan(r.tran.z) && std::isnan(r.rot.y);
    };
    const CVynData whole = ModelOf(kBeamCases[0], kSettings[0]);
    for (const InterKind kind : {InterKind::Displacement, InterKind::Force}) {
        CVynData model = whole;
        EXPECT_FALSE(isMissing(At(model, kind, 0.5)));
        EXPECT_TRUE(isMissing(At(model, kind, 0.5, AnalysisRef(2))));
        EXPECT_TRUE(isMissing(At(model, kind, 0.5, SCaseRef())));
        EXPECT_TRUE(isMissing(At(model, kind, 0.5, {CaseOp::Combination, 9, 1})));
        model.SetNode(2, Data::CNode({0, 0, 0}));
        EXPECT_TRUE(isMissing(At(model, kind, 0.5)));
        model.DeleteElem(1);
        EXPECT_TRUE(isMissing(At(model, kind, 0.5)));
    }
}

TEST(InterCalc, CombinesPositionByPosition) {
    CVynData model = ModelOf(kBeamCases[0], kSettings[0]);
    Add(model, Load(Type::Point, Direction::Z, {{0.5, true, P}}, kLocalAxis, 2));
    model.SetAnalysisCase(2, CAnalysisCase(L"", 1, L"L2"));
    SetEnds(model, 2, std::vector<double>(6), std::vector<double>(6), {0, 0, P / 2, 0, 0, 0});
    model.SetCombinationCase(1, CCombinationCase(L"", L"2A1 + A2"));
    model.SetCombinationCase(2, CCombinationCase(L"", L"A1 or A2"));
    const double m1 = -W * L * L / 8;
    const double m2 = P * L / 4;
    struct Case {
        SCaseRef ref;
        double moment;
    };
    const Case cases[] = {{{4, 1, 0}, 2 * m1 + m2},
                          {{4, 1, 1}, 2 * m1 + m2},
                          {{4, 2, 2}, m2},
                          {{4, 2, kMinimumEnvelope}, m1},
                          {{4, 2, kMaximumEnvelope}, m2},
                          {{4, 2, kAbsoluteEnvelope}, m2},
                          {{4, 2, kSignedAbsoluteEnvelope}, m2}};
    for (const Case& c : cases) {
        SCOPED_TRACE(::testing::Message() << c.ref.Case() << "/" << c.ref.Permutation());
        EXPECT_NEAR(At(model, InterKind::Force, 0.5, c.ref).rot.y, c.moment, 1e-8);
    }
}

}  // namespace
}  // namespace Tevra

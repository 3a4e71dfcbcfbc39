#include <cmath>
#include <gtest/gtest.h>
#include <vector>

#include "BeamModel.h"
#include "model/InterCalc.h"

namespace Tevra {
namespace {

using namespace TestBeam;
using Type = BeamLoadType;

std::vector<int> Millionths(const std::vector<CPosOn1D>& positions) {
    std::vector<int> out;
    out.reserve(positions.size());
    for (const CPosOn1D& position : positions) {
        out.push_back(position.Millionths());
    }
    return out;
}

using Ints = std::vector<int>;

TEST(PosOn1D, RegularPositionsAreTruncated) {
    EXPECT_EQ(Millionths(CPosOn1D::Regular(5)), (Ints{0, 250000, 500000, 750000, 1000000}));
    EXPECT_EQ(Millionths(CPosOn1D::Regular(7)),
              (Ints{0, 166666, 333333, 500000, 666666, 833333, 1000000}));
    EXPECT_EQ(Millionths(CPosOn1D::Regular(2)), (Ints{0, 1000000}));
    EXPECT_EQ(Millionths(CPosOn1D::Regular(1)), (Ints{500000}));
    EXPECT_EQ(Millionths(CPosOn1D::Regular(0)), (Ints{}));
    EXPECT_EQ(Millionths(CPosOn1D::Regular(-3)), (Ints{}));
    EXPECT_EQ(CPosOn1D::Regular(2'000'000'000).size(), 1'000'001U);
}

TEST(PosOn1D, SortsAndDropsRepeats) {
    std::vector<CPosOn1D> positions{CPosOn1D(7), CPosOn1D(3), CPosOn1D(7), CPosOn1D(0)};
    CPosOn1D::Sort(positions);
    EXPECT_EQ(Millionths(positions), (Ints{0, 3, 7}));
    EXPECT_EQ(CPosOn1D::FromFraction(2.0 / 3.0).Millionths(), 666667);
    EXPECT_EQ(CPosOn1D::FromFraction(-1.0).Millionths(), 0);
    EXPECT_EQ(CPosOn1D::FromFraction(1e300).Millionths(), 1000000);
    EXPECT_EQ(CPosOn1D::FromFraction(std::nan("")).Millionths(), 0);
}

/// The interesting points of element 1 beside `regular` ones.
Ints Positions(const CVynData& model, const SCaseRef& ref, int regular) {
    CInterCalc calc(model);
    CInterPos pos(calc);
    pos.SetRegular(CPosOn1D::Regular(regular));
    pos.SetAutoPositionForCase(1, ref);
    return Millionths(pos.Positions());
}

TEST(InterPos, PointsOfInterest) {
    const double w = -1000.0;
    struct Case {
        const char* what;
        std::vector<Data::CBeamLoad> loads;
        double shearY;  ///< at end 1
        double shearZ;
        Ints expected;
    };
    const Case cases[] = {
        {"no load", {}, 0, 50, {}},
        {"uniform", {Load(Type::Uniform, Direction::Z, {{0, true, w}})}, 0, -5000, {500000}},
        {"uniform, no zero", {Load(Type::Uniform, Direction::Z, {{0, true, w}})}, 0, 10, {}},
        {"uniform, zero at the end",
         {Load(Type::Uniform, Direction::Z, {{0, true, w}})},
         0,
         -1e4,
         {}},
        {"triangle",
         {Load(Type::Linear, Direction::Z, {{0, true, 0}, {1, true, w}})},
         0,
         -10000 / 6.0,
         {577350}},
        {"two zeros of one triangle pair",
         {Load(Type::Linear, Direction::Z, {{0, true, 2 * w}, {1, true, -2 * w}})},
         0,
         -3200,
         {200000, 800000}},
        {"both planes",
         {Load(Type::Uniform, Direction::Z, {{0, true, w}}),
          Load(Type::Uniform, Direction::Y, {{0, true, w}})},
         -2500,
         -5000,
         {250000, 500000}},
        {"points, once each",
         {Load(Type::Point, Direction::Z, {{3.0, false, w}}),
          Load(Type::Point, Direction::ZZ, {{0.3, true, 5}}),
          Load(Type::Point, Direction::XX, {{0.9, true, 5}})},
         0,
         700,
         {300000, 900000}},
        {"patch ends and the zero within",
         {Load(Type::Patch, Direction::Z, {{2.0, false, w}, {0.6, true, w}})},
         0,
         -1000,
         {200000, 300000, 600000}},
        {"off the element", {Load(Type::Point, Direction::Z, {{11.0, false, w}})}, 0, -1000, {}},
        {"no number",
         {Load(Type::Patch, Direction::Z, {{std::nan(""), true, w}, {0.5, true, w}})},
         0,
         -1000,
         {}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        CVynData model = Model();
        for (const Data::CBeamLoad& load : c.loads) {
            Add(model, load);
        }
        SetEnds(model, 1, std::vector<double>(6), std::vector<double>(6),
                {0, c.shearY, c.shearZ, 0, 0, 0});
        EXPECT_EQ(Positions(model, AnalysisRef(1), 0), c.expected);
    }
}

TEST(InterPos, JoinRegularPositionsAndCases) {
    CVynData model = Model();
    Add(model, Load(Type::Point, Direction::Z, {{0.3, true, 1}}));
    Add(model, Load(Type::Point, Direction::Z, {{0.7, true, 1}}, kGlobalAxis, 2));
    model.SetAnalysisCase(2, CAnalysisCase(L"", 1, L"L2"));
    model.SetCombinationCase(1, CCombinationCase(L"", L"A1 or A2"));
    EXPECT_EQ(Positions(model, AnalysisRef(1), 3), (Ints{0, 300000, 500000, 1000000}));
    EXPECT_EQ(Positions(model, {4, 1, kMinimumEnvelope}, 2), (Ints{0, 300000, 700000, 1000000}));
    EXPECT_EQ(Positions(model, {4, 1, 2}, 0), (Ints{700000}));
    EXPECT_EQ(Positions(model, SCaseRef(), 3), (Ints{0, 500000, 1000000}));
}

}  // namespace
}  // namespace Tevra

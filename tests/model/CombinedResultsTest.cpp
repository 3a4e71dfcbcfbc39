#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <string>
#include <vector>

#include "model/VynData.h"

namespace Tevra {
namespace {

constexpr double kNone = std::numeric_limits<double>::quiet_NaN();
using Row = std::vector<double>;

void ExpectVector(const Vec3<double>& actual, const Vec3<double>& expected) {
    for (int i = 0; i < 3; ++i) {
        if (std::isnan(expected[i])) {
            EXPECT_TRUE(std::isnan(actual[i])) << i;
        } else {
            EXPECT_DOUBLE_EQ(actual[i], expected[i]) << i;
        }
    }
}

void SetNodeDisp(CVynData& model, int analysisCase, int node, const Row& row) {
    ASSERT_TRUE(model.EditResults().Edit(analysisCase).Edit(ResultKind::NodeDisp).Set(node, row));
}

/// Analysis cases 1 to 3; node 1 has a displacement in each, with the case's own pattern.
CVynData Model(const std::vector<std::wstring>& combinations) {
    CVynData model;
    model.SetNode(1, Data::CNode());
    for (int i = 1; i <= 3; ++i) {
        model.SetAnalysisCase(i, CAnalysisCase(L"", 1, L"L1"));
    }
    SetNodeDisp(model, 1, 1, {1, -2, 3, 0, 0, 0});
    SetNodeDisp(model, 2, 1, {-4, 1, kNone, 0, 0, 0});
    SetNodeDisp(model, 3, 1, {2, 2, -8, 0, 0, 0});
    int number = 0;
    for (const std::wstring& description : combinations) {
        model.SetCombinationCase(++number, CCombinationCase(L"", description));
    }
    return model;
}

SCaseRef Comb(int number, int permutation = 0) {
    return {CaseOp::Combination, number, permutation};
}

TEST(CombinedResults, AMissingFigureSpoilsASumButNotAnEnvelopeThatHasBegun) {
    const CVynData model = Model({L"A1 + A2", L"A1 or A2", L"A2 or A1", L"0A2 + A1"});
    ExpectVector(model.Disp(1, Comb(1)), {-3, -1, kNone});
    ExpectVector(model.Disp(1, Comb(2, kMinimumEnvelope)), {-4, -2, 3});
    ExpectVector(model.Disp(1, Comb(2, kAbsoluteEnvelope)), {4, 2, 3});
    ExpectVector(model.Disp(1, Comb(3, kMinimumEnvelope)), {-4, -2, kNone});
    ExpectVector(model.Disp(1, Comb(4)), {1, -2, 3});  // a factor of 0 asks for nothing
}

TEST(CombinedResults, AnEnvelopeOfOnePermutationKeepsItsSigns) {
    const CVynData model = Model({L"2A1 - A3"});
    for (const int code :
         {kMinimumEnvelope, kMaximumEnvelope, kAbsoluteEnvelope, kSignedAbsoluteEnvelope, 0, 1}) {
        ExpectVector(model.Disp(1, Comb(1, code)), {0, -6, 14});
    }
    ExpectVector(model.Disp(1, Comb(1, 2)), {kNone, kNone, kNone});
}

TEST(CombinedResults, SumsTakeEnvelopesOfOtherCombinations) {
    const CVynData model = Model({L"A1 or A3", L"10A1 + 2C1max", L"A1 + C2 - C1abs",
                                  L"C1min or C1max or 3A1", L"C1p2 + C4signabs"});
    ExpectVector(model.Disp(1, Comb(2)), {14, -16, 36});
    ExpectVector(model.Disp(1, Comb(3)), {13, -20, 31});
    // Permutations: min (1, -2, -8), max (2, 2, 3), 3A1 (3, -6, 9).
    ExpectVector(model.Disp(1, Comb(4, 1)), {1, -2, -8});
    ExpectVector(model.Disp(1, Comb(4, kMaximumEnvelope)), {3, 2, 9});
    ExpectVector(model.Disp(1, Comb(5)), {5, -4, 1});
}

TEST(CombinedResults, FollowTheModelAsItChanges) {
    CVynData model = Model({L"A1 + A3", L"2C1"});
    ExpectVector(model.Disp(1, Comb(2)), {6, 0, -10});
    model.SetCombinationCase(1, CCombinationCase(L"", L"A1"));
    ExpectVector(model.Disp(1, Comb(2)), {2, -4, 6});
    model.DeleteAnalysisCase(1);
    ExpectVector(model.Disp(1, Comb(2)), {kNone, kNone, kNone});
    model.SetAnalysisCase(1, CAnalysisCase());
    SetNodeDisp(model, 1, 1, {10, 10, 10, 0, 0, 0});
    ExpectVector(model.Disp(1, Comb(2)), {20, 20, 20});
    const CVynData copy = model;
    model = CVynData();
    ExpectVector(copy.Disp(1, Comb(2)), {20, 20, 20});
    ExpectVector(model.Disp(1, Comb(2)), {kNone, kNone, kNone});
}

TEST(CombinedResults, EnvelopesOfEnvelopesAreWorkedOutOnce) {
    // Each combination refers to the one before it twice: written out, 2 to the 200 terms.
    std::vector<std::wstring> descriptions{L"A1 or A3"};
    for (int i = 1; i <= 200; ++i) {
        const std::wstring former = L"C" + std::to_wstring(i);
        descriptions.push_back(L"0.5" + former + L"max + 0.5" + former + L"min");
    }
    const CVynData model = Model(descriptions);
    // Mean of the two, then the same again for ever.
    ExpectVector(model.Disp(1, Comb(201)), {1.5, 0, -2.5});
    const CVynData circle = Model({L"C2max + A1", L"C1min + A1"});
    ExpectVector(circle.Disp(1, Comb(1)), {kNone, kNone, kNone});
}

TEST(CombinedResults, ThousandsOfPermutationsAreAnswered) {
    std::wstring description = L"A1";
    for (int i = 0; i < 12; ++i) {
        description += L" + (1 or 0.5)A3";
    }
    const CVynData model = Model({description});
    ExpectVector(model.Disp(1, Comb(1, kMaximumEnvelope)), {25, 22, -45});
    ExpectVector(model.Disp(1, Comb(1, kMinimumEnvelope)), {13, 10, -93});
    ExpectVector(model.Disp(1, Comb(1, 4096)), {13, 10, -45});
    ExpectVector(model.Disp(1, Comb(1, 4097)), {kNone, kNone, kNone});
}

TEST(CombinedResults, WhatFollowsFromNodesIsEnvelopedAsAWhole) {
    CVynData model = Model({L"A1 or A3"});
    model.SetNode(2, Data::CNode({4, 0, 0}));
    Data::CElement element(ElementType::Beam, {1, 2}, 0);
    element.SetOffset({0, 0, 0, 2});
    model.SetElem(1, element);
    model.SetElem(2, Data::CElement(ElementType::Quad4, {1, 2, 1, 2}, 0));
    // Node 2 moves along x as it turns about y: a point 2 m above it stays where it is.
    SetNodeDisp(model, 1, 2, {-6, 0, 0, 0, 3, 0});
    SetNodeDisp(model, 3, 2, {8, 0, 0, 0, -4, 0});
    for (const int code : {kMinimumEnvelope, kMaximumEnvelope}) {
        ExpectVector(model.ElemDisp(1, Comb(1, code), 1), {0, 0, 0});
    }
    ExpectVector(model.ElemRotn(1, Comb(1, kMaximumEnvelope), 1), {0, 3, 0});
    // Means of nodes 1 and 2: (-2.5, -1, 1.5) and (5, 1, -4).
    ExpectVector(model.ElemDisp(2, Comb(1, kMaximumEnvelope), 0), {5, 1, 1.5});
    ExpectVector(model.ElemDisp(2, Comb(1, kMinimumEnvelope), 0), {-2.5, -1, -4});
}

TEST(ElementResults, EndsWithoutRowsFollowTheirNodes) {
    CVynData model = Model({});
    model.SetNode(2, Data::CNode({0, 0, 5}));
    model.SetElem(1, Data::CElement(ElementType::Bar, {1, 2}, 0));
    const SCaseRef ref = AnalysisRef(1);
    SetNodeDisp(model, 1, 2, {1, 2, 3, kNone, kNone, kNone});
    ExpectVector(model.ElemDisp(1, ref, 1), {1, 2, 3});  // a truss node does not turn
    ExpectVector(model.ElemRotn(1, ref, 1), {kNone, kNone, kNone});
    for (const int position : {-1, 2, std::numeric_limits<int>::max()}) {
        ExpectVector(model.ElemDisp(1, ref, position), {kNone, kNone, kNone});
        ExpectVector(model.ElemRotn(1, ref, position), {kNone, kNone, kNone});
    }
    // Rows of its own come first.
    ASSERT_TRUE(model.EditResults()
                    .Edit(1)
                    .Edit(ResultKind::Elem1DDisp)
                    .Set(1, Row{1, 1, 1, 2, 2, 2, 3, 3, 3, 4, 4, 4}));
    ExpectVector(model.ElemDisp(1, ref, 1), {3, 3, 3});
    ExpectVector(model.ElemRotn(1, ref, 0), {2, 2, 2});
    // A spring to the ground has one end.
    model.SetElem(2, Data::CElement(ElementType::Spring, {2}, 0));
    ExpectVector(model.ElemDisp(2, ref, 0), {1, 2, 3});
    ExpectVector(model.ElemDisp(2, ref, 1), {kNone, kNone, kNone});
}

TEST(ElementResults, StressesCombineLayerByLayer) {
    CVynData model = Model({L"A1 + 2A3"});
    Row row(18);
    for (std::size_t i = 0; i < row.size(); ++i) {
        row[i] = static_cast<double>(i);
    }
    model.EditResults().Edit(1).Edit(ResultKind::Elem2DStress).Set(5, row);
    model.EditResults().Edit(3).Edit(ResultKind::Elem2DStress).Set(5, row);
    EXPECT_EQ(model.Stress2D(5, Comb(1), 0, 1), (TensSym3<double>{18, 21, 24, 27, 30, 33}));
    for (const int layer : {-1, 3}) {
        EXPECT_TRUE(std::isnan(model.Stress2D(5, AnalysisRef(1), 0, layer).xx));
    }
    EXPECT_TRUE(std::isnan(model.Stress2D(5, AnalysisRef(1), 1, 0).xx));
    EXPECT_TRUE(std::isnan(model.Stress2D(5, AnalysisRef(1), -1, 0).zx));
    EXPECT_TRUE(std::isnan(model.Stress2D(5, AnalysisRef(2), 0, 0).xx));
    model.EditResults().Edit(1).Edit(ResultKind::Elem3DStress).Set(6, Row{1, 2, 3, 4, 5, 6});
    EXPECT_EQ(model.Stress3D(6, AnalysisRef(1), 0), (TensSym3<double>{1, 2, 3, 4, 5, 6}));
    EXPECT_TRUE(std::isnan(model.Stress3D(6, Comb(1), 0).yz));
}

TEST(ElementResults, LayersByKindOfProperty) {
    CVynData model;
    model.SetElem(1, Data::CElement(ElementType::Quad4, {1, 2, 3, 4}, 1));
    for (int type = 1; type <= 8; ++type) {
        Data::CProp2D property;
        property.SetType(static_cast<Prop2DType>(type));
        model.SetProp2D(1, property);
        const bool bends = type == 5 || type == 6 || type == 7;  // plate and shells
        EXPECT_EQ(model.Stress2DNumLayer(1), bends ? 3 : 1) << type;
        EXPECT_EQ(model.Elem2DFEInModel(), type != 8) << type;
    }
}

}  // namespace
}  // namespace Tevra

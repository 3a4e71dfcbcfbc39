#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <vector>

#include "model/VynData.h"

namespace Tevra {
namespace {

constexpr double kNone = std::numeric_limits<double>::quiet_NaN();

void SetDisp(CVynData& model, int analysisCase, int node, const std::vector<double>& row) {
    model.EditResults().Edit(analysisCase).Edit(ResultKind::NodeDisp).Set(node, row);
}

/// Analysis cases 1 to 3 with displacements x, y, z of node 1 (and rotations) in tens and units.
CVynData Model() {
    CVynData model;
    model.SetNode(1, Data::CNode({0, 0, 0}));
    model.SetNode(2, Data::CNode({2, 0, 0}));
    for (int i = 1; i <= 4; ++i) {
        model.SetAnalysisCase(i, CAnalysisCase(L"", 1, L"L1"));
    }
    SetDisp(model, 1, 1, {1, -2, 3, 0.1, 0.2, 0.3});
    SetDisp(model, 2, 1, {10, 20, -30, 1, 2, 3});
    SetDisp(model, 3, 1, {-40, 5, 6, 0, 0, 0});
    model.SetCombinationCase(1, CCombinationCase(L"", L"2A1 + A2"));
    model.SetCombinationCase(2, CCombinationCase(L"", L"A1 or A2 or A3"));
    model.SetCombinationCase(3, CCombinationCase(L"", L"A1 + C2max"));
    model.SetCombinationCase(4, CCombinationCase(L"", L"A1 + A4"));
    model.SetCombinationCase(5, CCombinationCase(L"", L"C5"));
    return model;
}

void ExpectVector(const Vec3<double>& actual, const Vec3<double>& expected) {
    for (int i = 0; i < 3; ++i) {
        if (std::isnan(expected[i])) {
            EXPECT_TRUE(std::isnan(actual[i])) << i;
        } else {
            EXPECT_DOUBLE_EQ(actual[i], expected[i]) << i;
        }
    }
}

TEST(Results, OfAnalysisCasesPermutationsAndEnvelopes) {
    const CVynData model = Model();
    struct Case {
        SCaseRef ref;
        Vec3<double> disp;
    };
    const Vec3<double> none{kNone, kNone, kNone};
    const Case cases[] = {{AnalysisRef(1), {1, -2, 3}},
                          {AnalysisRef(4), none},
                          {{0, 1, 0}, none},
                          {{4, 1, 0}, {12, 16, -24}},
                          {{4, 1, 1}, {12, 16, -24}},
                          {{4, 1, 2}, none},
                          {{4, 2, 0}, none},
                          {{4, 2, 3}, {-40, 5, 6}},
                          {{4, 2, kMinimumEnvelope}, {-40, -2, -30}},
                          {{4, 2, kMaximumEnvelope}, {10, 20, 6}},
                          {{4, 2, kAbsoluteEnvelope}, {40, 20, 30}},
                          {{4, 2, kSignedAbsoluteEnvelope}, {-40, 20, -30}},
                          {{4, 2, -5}, none},
                          {{4, 3, 0}, {11, 18, 9}},
                          {{4, 4, 0}, none},
                          {{4, 5, 0}, none},
                          {{4, 99, 0}, none}};
    for (const Case& c : cases) {
        SCOPED_TRACE(::testing::Message() << c.ref.Case() << "/" << c.ref.Permutation());
        ExpectVector(model.Disp(1, c.ref), c.disp);
    }
    ExpectVector(model.Rotn(1, {4, 1, 0}), {1.2, 2.4, 3.6});
    ExpectVector(model.Disp(2, AnalysisRef(1)), none);
    ExpectVector(model.Vel(1, AnalysisRef(1)), none);
}

TEST(Results, ExistWhereCasesThatTakePartHaveThem) {
    const CVynData model = Model();
    EXPECT_TRUE(model.AnyResults());
    EXPECT_TRUE(model.AnalysisCaseHasResults(2));
    EXPECT_FALSE(model.AnalysisCaseHasResults(4));
    EXPECT_FALSE(model.AnalysisCaseHasResults(77));
    EXPECT_TRUE(model.CombinationCaseHasResults(1));
    EXPECT_TRUE(model.CombinationCaseHasResults(3));
    EXPECT_FALSE(model.CombinationCaseHasResults(4));
    EXPECT_FALSE(model.CombinationCaseHasResults(5));
    EXPECT_TRUE(model.ResSetExist({AnalysisRef(1), 12001008}));
    EXPECT_TRUE(model.ResSetExist({AnalysisRef(1), 15501004}));
    EXPECT_FALSE(model.ResSetExist({AnalysisRef(1), 12004004}));
    EXPECT_FALSE(model.ResSetExist({AnalysisRef(1), 12345}));
    EXPECT_TRUE(model.ResSetExist({{4, 2, 0}, 12001004}));
    EXPECT_TRUE(model.ResSetExist({{4, 4, 0}, 12001004})) << "one of its cases has it";
    EXPECT_EQ(model.NumResult(), 3);
}

TEST(Results, OfOneDimensionalElements) {
    CVynData model = Model();
    model.SetElem(7, Data::CElement(ElementType::Beam, {1, 2}, 1));
    SetDisp(model, 1, 2, {0, 0, 5, 0, 0.5, 0});
    const SCaseRef ref = AnalysisRef(1);
    ExpectVector(model.ElemDisp(7, ref, 1), {0, 0, 5});
    Data::CElement element = model.Elem(7);
    element.SetOffset({0, -1.0, 0, 0});  // end 2 one metre inwards: it turns with the node
    model.SetElem(7, element);
    ExpectVector(model.ElemDisp(7, ref, 1), {0, 0, 5.5});
    const std::vector<double> ends{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12};
    EXPECT_TRUE(model.EditResults().Edit(1).Edit(ResultKind::Elem1DForce).Set(7, ends));
    ExpectVector(model.Force(7, ref, 0), {1, 2, 3});
    ExpectVector(model.Moment(7, ref, 1), {10, 11, 12});
    ExpectVector(model.Force(7, ref, 2), {kNone, kNone, kNone});
    model.EditResults()
        .Edit(1)
        .Edit(ResultKind::NodeSpringForce)
        .Set(1, std::vector<double>(6, 4.0));
    ExpectVector(model.ForceSpring({SelType::Node, 1}, ref, 0), {4, 4, 4});
    ExpectVector(model.ForceSpring({SelType::Element, 1}, ref, 0), {kNone, kNone, kNone});
}

TEST(Results, OfTwoAndThreeDimensionalElements) {
    CVynData model = Model();
    model.SetElem(8, Data::CElement(ElementType::Tri3, {1, 2, 3}, 1));
    model.SetProp2D(1, Data::CProp2D());
    const SCaseRef ref = AnalysisRef(1);
    std::vector<double> forces(16);
    std::vector<double> stresses(18);
    for (std::size_t i = 0; i < forces.size(); ++i) {
        forces[i] = static_cast<double>(i);
    }
    for (std::size_t i = 0; i < stresses.size(); ++i) {
        stresses[i] = 100.0 + static_cast<double>(i);
    }
    model.EditResults().Edit(1).Edit(ResultKind::Elem2DForce).Set(8, forces);
    model.EditResults().Edit(1).Edit(ResultKind::Elem2DStress).Set(8, stresses);
    EXPECT_EQ(model.Force2D(8, ref, 0), (Tens2<double>{0, 1, 2}));
    EXPECT_EQ(model.Moment2D(8, ref, 1), (Tens2<double>{11, 12, 13}));
    EXPECT_EQ(model.Shear2D(8, ref, 1), (Vec2<double>{14, 15}));
    EXPECT_TRUE(std::isnan(model.Force2D(8, ref, 2).xx));
    EXPECT_EQ(model.Stress2D(8, ref, 0, 2), (TensSym3<double>{112, 113, 114, 115, 116, 117}));
    EXPECT_EQ(model.Stress2DNumLayer(8), 3);
    EXPECT_EQ(model.NumResultPosition(8), 4);
    EXPECT_EQ(model.ResultPosition(8, 2), (Vec3<double>{1, 0, 0}));
    SetDisp(model, 1, 2, {4, 4, 6, 0, 0, 0});
    EXPECT_TRUE(std::isnan(model.ElemDisp(8, ref, 0).x));  // node 3 has none
    ExpectVector(model.ElemDisp(8, ref, 2), {4, 4, 6});
    EXPECT_TRUE(model.Elem2DFEInModel());
}

TEST(Results, OfCasesAsAWhole) {
    CVynData model = Model();
    GlobalResults& global = model.EditResults().Edit(1).EditGlobal();
    global.force = {1, 2, 3};
    global.mode = 4;
    global.frequency = 2.5;
    model.EditResults().Edit(2).EditGlobal().force = {10, 10, 10};
    ExpectVector(model.TotalForce({4, 1, 0}), {12, 14, 16});
    EXPECT_EQ(model.Mode(AnalysisRef(1)), 4);
    EXPECT_EQ(model.Frequency(AnalysisRef(1)), 2.5);
    EXPECT_TRUE(std::isnan(model.Frequency({4, 1, 0})));
    EXPECT_TRUE(std::isnan(model.ModalMass(AnalysisRef(1))));
    model.SetAnalysisCase(3, CAnalysisCase(L"", 1, L"M6 : P(L1)"));
    EXPECT_EQ(model.Mode(AnalysisRef(3)), 6);
    model.SetMass(AnalysisRef(3), 12.0);
    model.SetCentreOfMass(AnalysisRef(3), {1, 2, 3});
    EXPECT_EQ(model.Mass(AnalysisRef(3)), 12.0);
    ExpectVector(model.CentreOfMass(AnalysisRef(3)), {1, 2, 3});
}

TEST(ResultTable, StoresManyRowsAndRefusesBrokenOnes) {
    ResultTable table(6);
    EXPECT_FALSE(table.Set(0, std::vector<double>(6)));
    EXPECT_FALSE(table.Set(1, std::vector<double>(5)));
    EXPECT_FALSE(table.Set(1, std::vector<double>()));
    EXPECT_FALSE(table.Set(1, std::vector<double>(6 * 2000)));
    for (int i = 1; i <= 5000; ++i) {
        std::vector<double> rows(12, i);
        rows[11] = -i;
        ASSERT_TRUE(table.Set(i, rows));
    }
    const ResultTable copy = table;
    ASSERT_TRUE(table.Set(77, std::vector<double>{1, 1, 1, 1, 1, kNone}));
    ASSERT_TRUE(table.Set(78, std::vector<double>(18, 9.0)));
    EXPECT_EQ(table.NumRow(77), 1);
    EXPECT_EQ(table.Row(77, 1), nullptr);
    EXPECT_EQ(table.NumRow(78), 3);
    EXPECT_EQ(copy.Row(5000, 1)[5], -5000.0);
    EXPECT_EQ(copy.Row(77, 0)[5], 77.0);
    EXPECT_FALSE(copy == table);
    const ResultTable again = table;
    EXPECT_TRUE(again == table);
}

}  // namespace
}  // namespace Tevra

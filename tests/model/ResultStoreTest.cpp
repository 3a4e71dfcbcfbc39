#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <set>
#include <utility>
#include <vector>

#include "model/VynData.h"

namespace Tevra {
namespace {

constexpr double kNone = std::numeric_limits<double>::quiet_NaN();

TEST(ResultSets, ExistByTheHostsDataCodes) {
    const std::vector<int> codes{
        12001004, 12001008, 12002004, 12002008, 12003004, 12003008, 12004004, 12004008, 12005004,
        12005008, 14001004, 14001008, 14002004, 14002008, 15001004, 15001008, 15003001, 15004001,
        15004002, 15007000, 15501004, 15506000, 0,        -1,       12001000};
    using Codes = std::set<int>;
    const std::pair<ResultKind, Codes> kinds[] = {
        {ResultKind::NodeDisp,
         {12001004, 12001008, 14001004, 14001008, 15001004, 15001008, 15501004}},
        {ResultKind::NodeVel, {12002004, 12002008}},
        {ResultKind::NodeAcc, {12003004, 12003008}},
        {ResultKind::NodeReaction, {12004004, 12004008}},
        {ResultKind::NodeConstraint, {12005004, 12005008}},
        {ResultKind::NodeSpringForce, {14002004, 14002008}},
        {ResultKind::Elem1DDisp, {14001004, 14001008}},
        {ResultKind::Elem1DForce, {14002004, 14002008}},
        {ResultKind::SpringForce, {14002004, 14002008}},
        {ResultKind::Elem2DForce, {15003001, 15004001, 15004002}},
        {ResultKind::Elem2DStress, {15007000}},
        {ResultKind::Elem3DStress, {15506000}}};
    for (const auto& [kind, expected] : kinds) {
        CVynData model;
        model.SetAnalysisCase(3, CAnalysisCase());
        model.SetCombinationCase(1, CCombinationCase(L"", L"1.5A3"));
        ResultTable& table = model.EditResults().Edit(3).Edit(kind);
        EXPECT_FALSE(model.AnyResults());  // a table without rows
        table.Set(1, std::vector<double>(static_cast<std::size_t>(table.Components())));
        EXPECT_TRUE(model.AnalysisCaseHasResults(3));
        for (const int code : codes) {
            SCOPED_TRACE(::testing::Message() << InfoOf(kind).name << " " << code);
            EXPECT_EQ(model.ResSetExist({AnalysisRef(3), code}), expected.count(code) == 1);
            EXPECT_EQ(model.ResSetExist({{4, 1, 0}, code}), expected.count(code) == 1);
            EXPECT_FALSE(model.ResSetExist({AnalysisRef(1), code}));
            EXPECT_FALSE(model.ResSetExist({{}, code}));
        }
    }
}

TEST(ResultSets, OfAPermutationNeedItsOwnCasesOnly) {
    CVynData model;
    for (int i = 1; i <= 2; ++i) {
        model.SetAnalysisCase(i, CAnalysisCase());
    }
    model.EditResults().Edit(1).EditGlobal().force = {1, 0, 0};
    model.SetCombinationCase(1, CCombinationCase(L"", L"A1 or A1 + A2"));
    EXPECT_FALSE(model.CombinationCaseHasResults(1));
    EXPECT_TRUE(model.CombinationCaseHasResults(1, {4, 1, 1}));
    EXPECT_FALSE(model.CombinationCaseHasResults(1, {4, 1, 2}));
    EXPECT_FALSE(model.CombinationCaseHasResults(1, {4, 1, 3}));
    EXPECT_FALSE(model.CombinationCaseHasResults(1, {4, 1, kMinimumEnvelope}));
    EXPECT_FALSE(model.CombinationCaseHasResults(2));
    EXPECT_EQ(model.NumEnt(SelType::Case, false), 3);
    EXPECT_EQ(model.NumEnt(SelType::Case, true), 1);
    // Results of a case that the model does not know are nobody's.
    model.EditResults().Edit(9).EditGlobal().frequency = 1.0;
    EXPECT_FALSE(model.AnalysisCaseHasResults(9));
}

TEST(GlobalResults, OfACaseAreNotNumbersUntilTheyAreSet) {
    CVynData model;
    const SCaseRef ref = AnalysisRef(1);
    model.EditResults().Edit(1);
    EXPECT_FALSE(model.AnyResults());
    for (const double figure : GlobalResults().Figures()) {
        EXPECT_TRUE(std::isnan(figure));
    }
    GlobalResults& global = model.EditResults().Edit(1).EditGlobal();
    global.reactMoment = {1, 2, 3};
    global.loadFactor = 4;
    global.modalMass = 5;
    global.modalStiff = 6;
    global.modalGeoStiff = 7;
    global.effMass = {8, 9, 10};
    global.rotEffMass = {11, 12, 13};
    EXPECT_EQ(model.TotalReactMoment(ref), (Vec3<double>{1, 2, 3}));
    EXPECT_EQ(model.LoadFactor(ref), 4);
    EXPECT_EQ(model.ModalMass(ref), 5);
    EXPECT_EQ(model.ModalStiff(ref), 6);
    EXPECT_EQ(model.ModalGeoStiff(ref), 7);
    EXPECT_EQ(model.EffMass(ref), (Vec3<double>{8, 9, 10}));
    EXPECT_EQ(model.RotEffMass(ref), (Vec3<double>{11, 12, 13}));
    EXPECT_TRUE(std::isnan(model.TotalReactForce(ref).y));
    EXPECT_TRUE(std::isnan(model.Frequency(ref)));
    EXPECT_TRUE(std::isnan(model.LoadFactor({3, 1, 0})));
    model.SetMass({CaseOp::Combination, 1, 0}, 5.0);  // combinations have none
    EXPECT_TRUE(std::isnan(model.Mass({CaseOp::Combination, 1, 0})));
    EXPECT_EQ(model.HighestEnt(SelType::Mode), 0);
    model.SetAnalysisCase(1, CAnalysisCase());
    model.EditResults().Edit(1).EditGlobal().mode = 3;
    EXPECT_EQ(model.HighestEnt(SelType::Mode), 3);
}

TEST(ResultTable, RowsStayWhatTheyAreWhateverElseIsStored) {
    ResultTable table(6);
    // Rows of every length up to the largest, so that blocks of all sizes are filled and left.
    for (int entity = 1; entity <= 1365; ++entity) {
        std::vector<double> rows(static_cast<std::size_t>(entity) * 6);
        for (std::size_t i = 0; i < rows.size(); ++i) {
            rows[i] = entity + 1e-4 * static_cast<double>(i);
        }
        ASSERT_TRUE(table.Set(entity, rows));
    }
    EXPECT_FALSE(table.Set(1, std::vector<double>(6 * 1366)));
    const ResultTable copy = table;
    for (const ResultTable* each : {static_cast<const ResultTable*>(&table), &copy}) {
        for (int entity = 1; entity <= 1365; ++entity) {
            ASSERT_EQ(each->NumRow(entity), entity);
            ASSERT_EQ(each->Row(entity, 0)[0], entity);
            const int last = entity - 1;
            ASSERT_EQ(each->Row(entity, last)[5], entity + 1e-4 * (last * 6 + 5));
        }
    }
    EXPECT_TRUE(copy == table);
}

TEST(ResultTable, CopiesAndMovedFromTablesTakeNewRows) {
    const std::vector<double> ones(6, 1.0);
    const std::vector<double> twos(12, 2.0);
    ResultTable table(6);
    table.Set(1, ones);
    ResultTable copy = table;
    copy.Set(2, twos);
    copy.Set(1, twos);  // more rows than before
    EXPECT_EQ(table.NumRow(1), 1);
    EXPECT_EQ(table.Row(1, 0)[0], 1.0);
    EXPECT_EQ(table.NumEntity(), 1);
    const ResultTable moved = std::move(copy);
    EXPECT_EQ(moved.Row(1, 1)[5], 2.0);
    // NOLINTNEXTLINE(bugprone-use-after-move,clang-analyzer-cplusplus.Move)
    EXPECT_EQ(copy.NumEntity(), 0);
    EXPECT_TRUE(copy.Set(7, ones));
    EXPECT_EQ(copy.Row(7, 0)[3], 1.0);
    // A row of the table itself may be stored under another number.
    EXPECT_TRUE(copy.Set(8, {copy.Row(7, 0), 6}));
    EXPECT_EQ(copy.Row(8, 0)[5], 1.0);
    EXPECT_EQ(copy.Row(8, -1), nullptr);
    EXPECT_EQ(copy.Row(99, 0), nullptr);
}

TEST(ResultTable, AMissingFigureEqualsItself) {
    ResultTable a(6);
    ResultTable b(6);
    a.Set(1, std::vector<double>{1, 2, kNone, 4, 5, 6});
    b.Set(1, std::vector<double>{1, 2, kNone, 4, 5, 6});
    EXPECT_TRUE(a == b);
    b.Set(1, std::vector<double>{1, 2, 0, 4, 5, 6});
    EXPECT_FALSE(a == b);
    EXPECT_FALSE(ResultTable(6) == ResultTable(8));
}

TEST(ResultStore, BelongsToTheModelThatIsComparedAndCopied) {
    CVynData model;
    const CVynData empty;
    model.EditResults().Edit(2).Edit(ResultKind::NodeVel);
    model.EditResults().Edit(2).Edit(ResultKind::NodeVel).Set(1, std::vector<double>(6, 3.0));
    EXPECT_FALSE(model == empty);
    CVynData copy = model;
    EXPECT_TRUE(copy == model);
    copy.EditResults().Edit(2).Edit(ResultKind::NodeAcc);  // an empty table says nothing
    EXPECT_TRUE(copy == model);
    copy.EditResults().Edit(2).Edit(ResultKind::NodeVel).Set(1, std::vector<double>(6, 4.0));
    EXPECT_FALSE(copy == model);
    EXPECT_EQ(model.Vel(1, AnalysisRef(2)), (Vec3<double>{3, 3, 3}));
    EXPECT_EQ(copy.RotVel(1, AnalysisRef(2)), (Vec3<double>{4, 4, 4}));
    copy.EditResults().Clear();
    EXPECT_FALSE(copy.AnyResults());
    EXPECT_EQ(copy.NumResult(), 0);
}

}  // namespace
}  // namespace Tevra

#include <array>
#include <cmath>
#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "export/Database.h"
#include "export/ExportAccess.h"
#include "support/TempFolder.h"

namespace Tevra::Export {
namespace {

using Access = VynExportAccess;

/// Figures that count up from 0.
template <std::size_t N>
std::array<double, N> Counted() {
    std::array<double, N> figures{};
    for (std::size_t i = 0; i < N; ++i) {
        figures[i] = static_cast<double>(i);
    }
    return figures;
}

CVynData ModelWithCase() {
    CVynData model;
    for (int number = 1; number <= 4; ++number) {
        model.SetNode(number, Data::CNode({1.0 * number, 0, 0}));
    }
    model.SetAnalysisCase(1, CAnalysisCase(L"", 1, L"L1"));
    return model;
}

TEST(ResultAnalysis, StressesOfShellsAreTopMiddleBottom) {
    CVynData model = ModelWithCase();
    model.SetElem(1, Data::CElement(ElementType::Tri3, {1, 2, 3}, 1));
    model.EditResults().Edit(1).Edit(ResultKind::Elem2DStress).Set(1, Counted<4 * 18>());
    CSqlExport exporter;
    exporter.SetData(&model);
    struct Case {
        Prop2DType type;
        std::array<double, 3> xx;  ///< at the first node
    };
    const Case cases[] = {{Prop2DType::Shell, {18 + 12, 18 + 6, 18}},
                          {Prop2DType::PlaneStress, {18, 18, 18}}};
    for (const Case& c : cases) {
        Data::CProp2D property;
        property.SetType(c.type);
        model.SetProp2D(1, property);
        Elem2DSet set(4);
        Access::ResultAnalysis(exporter, 1, ElementFlags{.stress = true}, AnalysisRef(1), set);
        EXPECT_EQ(set[1].StressTop().xx.first, c.xx[0]);
        EXPECT_EQ(set[1].StressMiddle().xx.first, c.xx[1]);
        EXPECT_EQ(set[1].StressBottom().xx.first, c.xx[2]);
        EXPECT_EQ(set[1].StressBottom().zx.first, c.xx[2] + 5);
        EXPECT_TRUE(std::isnan(set[1].Force().xx.first));
    }
}

TEST(ResultAnalysis, LeavesAloneWhatIsNotAskedFor) {
    CVynData model = ModelWithCase();
    const struct {
        ResultKind kind;
        double first;
    } kinds[] = {{ResultKind::NodeDisp, 1},
                 {ResultKind::NodeVel, 2},
                 {ResultKind::NodeAcc, 3},
                 {ResultKind::NodeReaction, 4},
                 {ResultKind::NodeConstraint, 5}};
    for (const auto& [kind, first] : kinds) {
        model.EditResults().Edit(1).Edit(kind).Set(2,
                                                   std::array{first, 0.0, 0.0, -first, 0.0, 0.0});
    }
    CSqlExport exporter;
    exporter.SetData(&model);
    NodeSet set;
    set.Init(7.0);
    set.SetPermutation(3);
    Access::ResultAnalysis(exporter, 2, NodeFlags{.velocity = true, .constraint = true},
                           AnalysisRef(1), set);
    EXPECT_EQ(set.Vel().x, Pair(2, 0));
    EXPECT_EQ(set.RotVel().x, Pair(-2, 0));
    EXPECT_EQ(set.ConsForce().x, Pair(5, 0));
    EXPECT_EQ(set.ConsMoment().x, Pair(-5, 0));
    for (const Vector3& part :
         {set.Disp(), set.Rotn(), set.Acc(), set.RotAcc(), set.ReactForce()}) {
        EXPECT_EQ(part.x, Pair(7, 3));
    }
    // A reference that is no case asks for nothing.
    const NodeFlags all{true, true, true, true, true};
    Access::ResultAnalysis(exporter, 2, all, SCaseRef(3, 1, 0), set);
    EXPECT_EQ(set.Disp().x, Pair(7, 3));
    Access::ResultAnalysis(exporter, 2, all, AnalysisRef(1), set);
    EXPECT_EQ(set.Acc().x, Pair(3, 0));
    EXPECT_EQ(set.ReactMoment().x, Pair(-4, 0));
}

/// A beam of 10 m between nodes 1 and 2 with a point load in each of two load cases.
CVynData LoadedBeam() {
    CVynData model = ModelWithCase();
    model.SetNode(2, Data::CNode({11, 0, 0}));
    model.SetSection(1, Data::CSection(L"", L"STD%R%400%200", {}));
    model.SetElem(1, Data::CElement(ElementType::Beam, {1, 2}, 1));
    model.SetAnalysisCase(2, CAnalysisCase(L"", 1, L"L2"));
    for (int number = 1; number <= 2; ++number) {
        Data::CBeamLoad load;
        load.SetType(BeamLoadType::Point);
        load.SetDirection(Direction::Z);
        load.SetLoadCase(number);
        load.SetLoadedEntities(CEntList(L"1", SelType::Element));
        load.SetPoint(1, {number == 1 ? 3.0 : 6.0, false, -1000.0});
        model.SetBeamLoad(number, load);
        const double near = number == 1 ? 700.0 : 400.0;  // of a beam on two supports
        const std::array ends{0.0, 0.0, -near,         0.0, 0.0, 0.0,
                              0.0, 0.0, 1000.0 - near, 0.0, 0.0, 0.0};
        model.EditResults().Edit(number).Edit(ResultKind::Elem1DForce).Set(1, ends);
    }
    model.SetCombinationCase(1, CCombinationCase(L"ENV", L"A1 or 2A2"));
    return model;
}

/// Columns of the rows of a result table that the exporter writes by itself.
std::vector<std::string> RowsOf(CVynData& model, bool (CVynExport::*write)(),
                                const std::string& table, const std::string& columns,
                                const Param& param = {}) {
    const TestSupport::TempFolder folder;
    CSqlExport exporter;
    exporter.SetData(&model);
    exporter.SetPath((folder.Path() / "job.sql").string());
    exporter.SetParam(param);
    const CapturedOutput output;
    EXPECT_TRUE((exporter.*write)());
    Database database;
    const auto file = folder.Path() / "job" / table / (table + ".sql");
    for (const std::string& statement : StatementsOf(TestSupport::ReadFile(file))) {
        EXPECT_EQ(database.Execute(statement), "");
    }
    return database.Texts("SELECT " + columns + " FROM " + table + " ORDER BY rowid");
}

std::vector<std::string> LineRows(CVynData& model, bool interesting, int numPosition) {
    return RowsOf(model, &CVynExport::ResultElement1D, "result_elem_1d",
                  "case_id, round(position_r, 6), round(force_z), force_z_perm, round(moment_y), "
                  "moment_y_perm",
                  Param{.numBeamPosition = numPosition, .includeInteresting = interesting});
}

// Shear -near before the load and 1000 - near beyond; the moment falls to -2100 and -2400.
TEST(ResultElement1D, FollowsTheLoadsAtRegularPositions) {
    CVynData model = LoadedBeam();
    EXPECT_EQ(
        LineRows(model, false, 3),
        (std::vector<std::string>{"A1|0.0|-700.0|NULL|0.0|NULL", "A1|0.5|300.0|NULL|-1500.0|NULL",
                                  "A1|1.0|300.0|NULL|0.0|NULL", "A2|0.0|-400.0|NULL|0.0|NULL",
                                  "A2|0.5|-400.0|NULL|-2000.0|NULL", "A2|1.0|600.0|NULL|0.0|NULL",
                                  "ENV|0.0|-800.0|2|0.0|1", "ENV|0.5|-800.0|2|-4000.0|2",
                                  "ENV|1.0|300.0|1|0.0|1", "ENV|0.0|-700.0|1|0.0|1",
                                  "ENV|0.5|300.0|1|-1500.0|1", "ENV|1.0|1200.0|2|0.0|1"}));
    EXPECT_EQ(LineRows(model, false, 1)[0], "A1|0.5|300.0|NULL|-1500.0|NULL");
    EXPECT_TRUE(LineRows(model, false, 0).empty());
}

// The point of each case, and those of all of its cases in a combination.
TEST(ResultElement1D, TakesInInterestingPoints) {
    CVynData model = LoadedBeam();
    EXPECT_EQ(
        LineRows(model, true, 2),
        (std::vector<std::string>{"A1|0.0|-700.0|NULL|0.0|NULL", "A1|0.3|-700.0|NULL|-2100.0|NULL",
                                  "A1|1.0|300.0|NULL|0.0|NULL", "A2|0.0|-400.0|NULL|0.0|NULL",
                                  "A2|0.6|-400.0|NULL|-2400.0|NULL", "A2|1.0|600.0|NULL|0.0|NULL",
                                  "ENV|0.0|-800.0|2|0.0|1", "ENV|0.3|-800.0|2|-2400.0|2",
                                  "ENV|0.6|-800.0|2|-4800.0|2", "ENV|1.0|300.0|1|0.0|1",
                                  "ENV|0.0|-700.0|1|0.0|1", "ENV|0.3|-700.0|1|-2100.0|1",
                                  "ENV|0.6|300.0|1|-1200.0|1", "ENV|1.0|1200.0|2|0.0|1"}));
}

// Storeys are written from the lowest up, whatever their numbers; the first has no drift.
TEST(ResultAssembly, HasARecordForEachStorey) {
    CVynData model = ModelWithCase();
    model.SetNode(1, Data::CNode({0, 0, 0}));
    model.SetNode(2, Data::CNode({0, 0, 10}));
    model.SetElem(1, Data::CElement(ElementType::Beam, {1, 2}, 1));
    for (const auto& [number, elevation] : {std::pair{1, 7.5}, {2, 2.5}, {3, 5.0}}) {
        Data::CGridPlane plane;
        plane.SetStorey(true);
        plane.SetElevation(elevation);
        model.SetGridPlane(number, plane);
    }
    Data::CAssembly assembly;
    assembly.SetTopo(1, 1);
    assembly.SetTopo(2, 2);
    assembly.SetStoreys(CEntList(L"1 2", SelType::GridPlane));
    model.SetAssembly(4, assembly);
    ResultTable& disp = model.EditResults().Edit(1).Edit(ResultKind::NodeDisp);
    disp.Set(1, std::array{0.0, 0.0, 0.0, 0.0, 0.01, 0.0});
    disp.Set(2, std::array{0.1, 0.0, 0.0, 0.0, 0.01, 0.0});  // leans by 1 in 100
    model.EditResults()
        .Edit(1)
        .Edit(ResultKind::Elem1DForce)
        .Set(1, std::array{-3.0, 1.0, 0.0, 0.0, 0.0, 10.0, -3.0, 1.0, 0.0, 0.0, 0.0, 0.0});
    EXPECT_EQ(
        RowsOf(model, &CVynExport::ResultAssembly, "result_assembly",
               "id, position_r, round(disp_x, 6), round(drift_x, 6), force_x, moment_z"),
        (std::vector<std::string>{"4|0.25|0.025|NULL|-3.0|7.5", "4|0.75|0.075|0.01|-3.0|2.5"}));
}

TEST(BeamPositions, AreMillionthsOfTheLength) {
    struct Case {
        int count;
        std::vector<int> positions;
    };
    const Case cases[] = {
        {-3, {}},
        {0, {}},
        {1, {500000}},
        {2, {0, 1000000}},
        {5, {0, 250000, 500000, 750000, 1000000}},
        {7, {0, 166666, 333333, 500000, 666666, 833333, 1000000}},
    };
    for (const Case& c : cases) {
        CSqlExport exporter;
        exporter.SetNumBeamPosition(c.count);
        EXPECT_EQ(exporter.Get1DIntermediatePositions(), c.positions);
    }
    CSqlExport exporter;
    exporter.SetNumBeamPosition(81);
    EXPECT_EQ(exporter.Get1DIntermediatePositions()[41], 512500);
}

}  // namespace
}  // namespace Tevra::Export

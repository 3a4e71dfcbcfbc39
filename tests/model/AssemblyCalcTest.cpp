#include <cmath>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "model/AssemblyCalc.h"
#include "model/VynData.h"

namespace Tevra {
namespace {

using Util::CAssemblyCalc;
using V = Vec3<double>;

void ExpectNear(const V& actual, const V& expected, double slack) {
    EXPECT_NEAR(actual.x, expected.x, slack);
    EXPECT_NEAR(actual.y, expected.y, slack);
    EXPECT_NEAR(actual.z, expected.z, slack);
}

void Append(std::vector<double>& row, const V& v) {
    row.insert(row.end(), {v.x, v.y, v.z});
}

// A tower of four columns, 6 m by 4 m in plan, of two storeys of 4 m: wind along X of kH1 at level
// 1 and kH2 at level 2 (and as much again and half from the other side in case 2). Columns bend
// with the point of inflexion in the middle of the storey, floors move as rigid bodies.
constexpr double kHeight = 4.0;
constexpr double kH1 = 12000.0;
constexpr double kH2 = 20000.0;
const double kX[] = {-3, 3, 3, -3};
const double kY[] = {-2, -2, 2, 2};

struct Floor {
    V disp;
    V rotation;
};
const Floor kFloors[] = {{{}, {}},
                         {{0.010, -0.002, -0.001}, {0.0002, 0.0004, 0.001}},
                         {{0.024, -0.003, -0.002}, {0.0003, 0.0005, 0.002}}};

int NodeOf(int level, int column) {
    return 10 * level + column + 1;
}

void SetColumnForces(CVynData& model, int element, bool isReversed, const V& force,
                     const V& moment1, const V& moment2, double factor) {
    const Util::CDirCos axes = model.ElemDC(element);
    const double sign = isReversed ? -factor : factor;
    std::vector<double> row;
    for (const V& moment : {isReversed ? moment2 : moment1, isReversed ? moment1 : moment2}) {
        Append(row, axes.GtoL(force) * sign);
        Append(row, axes.GtoL(moment) * sign);
    }
    model.EditResults().Edit(factor > 0 ? 1 : 2).Edit(ResultKind::Elem1DForce).Set(element, row);
}

void AddColumn(CVynData& model, int storey, int column) {
    const int element = 100 * (storey + 1) + column + 1;
    const bool isReversed = column == 2;
    const int foot = NodeOf(storey, column);
    const int head = NodeOf(storey + 1, column);
    model.SetElem(element,
                  Data::CElement(
                      ElementType::Beam,
                      isReversed ? std::vector<int>{head, foot} : std::vector<int>{foot, head}, 1));
    const double shear = storey == 0 ? kH1 + kH2 : kH2;
    const double overturning = storey == 0 ? kH1 * 2 + kH2 * 6 : kH2 * 2;  // at the middle
    const V force{shear / 4, 0, -std::copysign(overturning / 12, kX[column])};
    const V bending{0, shear / 4 * kHeight / 2, 0};
    SetColumnForces(model, element, isReversed, force, bending, -bending, 1.0);
    SetColumnForces(model, element, isReversed, force, bending, -bending, -0.5);
}

CVynData Tower() {
    CVynData model;
    for (int level = 0; level < 3; ++level) {
        for (int column = 0; column < 4; ++column) {
            const V at{kX[column], kY[column], kHeight * level};
            model.SetNode(NodeOf(level, column), Data::CNode(at));
            const Floor& floor = kFloors[level];
            for (const int number : {1, 2}) {
                std::vector<double> row;
                const double factor = number == 1 ? 1.0 : -0.5;
                Append(row, (floor.disp + Cross(floor.rotation, V{at.x, at.y, 0})) * factor);
                Append(row, floor.rotation * (2.0 * factor));  // of the joints, not of the floor
                model.EditResults()
                    .Edit(number)
                    .Edit(ResultKind::NodeDisp)
                    .Set(NodeOf(level, column), row);
            }
        }
        model.SetNode(10 * level + 9, Data::CNode({0, 0, kHeight * level}));
        model.SetElem(10 * level + 1,
                      Data::CElement(ElementType::Beam, {NodeOf(level, 0), NodeOf(level, 1)}, 1));
        Data::CGridPlane plane;
        plane.SetElevation(kHeight * (2 - level));  // from the top down
        plane.SetStorey(true);
        model.SetGridPlane(level + 1, plane);
    }
    for (int column = 0; column < 4; ++column) {
        AddColumn(model, 0, column);
        AddColumn(model, 1, column);
    }
    // A mast beside the tower, outside its extents, without results.
    model.SetNode(91, Data::CNode({9, 0, 0}));
    model.SetNode(92, Data::CNode({9, 0, 9}));
    model.SetElem(91, Data::CElement(ElementType::Beam, {91, 92}, 1));
    Data::CAssembly assembly;
    assembly.SetTopo(1, 9);
    assembly.SetTopo(2, 29);
    assembly.SetDy(4.0);
    assembly.SetDz(6.0);
    model.SetAssembly(1, assembly);
    for (const int number : {1, 2}) {
        model.SetAnalysisCase(number, CAnalysisCase(L"", 0, L""));
    }
    model.SetCombinationCase(1, CCombinationCase(L"", L"1.5A1"));
    model.SetCombinationCase(2, CCombinationCase(L"", L"A1 or A2"));
    return model;
}

TEST(AssemblyCalc, ShearAndOverturningOfATower) {
    const CVynData model = Tower();
    struct Case {
        double height;
        double shear;
        double moment;
    };
    // At a level the storey below counts, at the base the one above.
    const Case cases[] = {{0, 32000, 12000 * 4 + 20000 * 8},
                          {1, 32000, 12000 * 3 + 20000 * 7},
                          {4, 32000, 20000 * 4},
                          {7, 20000, 20000},
                          {8, 20000, 0}};
    for (const Case& c : cases) {
        SCOPED_TRACE(c.height);
        const CAssemblyCalc cut(model, 1, false, c.height);
        EXPECT_EQ(cut.NumElem(), 4);
        const auto expect = [&](const SCaseRef& ref, double factor) {
            const InterResult force = cut.CalcForce(ref);
            // Upright: local x is up, y global Y, z against global X.
            ExpectNear(force.tran, {0, 0, -c.shear * factor}, 1e-6);
            ExpectNear(force.rot, {0, c.moment * factor, 0}, 1e-6 * 2e5);
        };
        expect(AnalysisRef(1), 1.0);
        expect({4, 1, 0}, 1.5);
        expect({4, 2, 2}, -0.5);
        EXPECT_NEAR(cut.CalcForce({4, 2, kMinimumEnvelope}).tran.z, -c.shear, 1e-6);
        EXPECT_NEAR(cut.CalcForce({4, 2, kMaximumEnvelope}).tran.z, 0.5 * c.shear, 1e-6);
    }
}

TEST(AssemblyCalc, StoreysMoveAndDrift) {
    CVynData model = Tower();
    Data::CAssembly assembly = model.Assembly(1);
    assembly.SetStoreys(CEntList(L"all", SelType::GridPlane));
    model.SetAssembly(1, assembly);
    const std::vector<double> positions = CAssemblyCalc::Positions(model, 1, 5);
    EXPECT_EQ(positions, (std::vector<double>{0.0, 0.5, 1.0}));
    const SCaseRef ref = AnalysisRef(1);
    for (std::size_t level = 0; level < 3; ++level) {
        SCOPED_TRACE(level);
        const CAssemblyCalc cut(model, 1, true, positions[level]);
        ExpectNear(cut.Coor(), {0, 0, kHeight * static_cast<double>(level)}, 1e-12);
        const InterResult movement = cut.CalcDisp(ref);
        ExpectNear(movement.tran, kFloors[level].disp, 1e-12);
        ExpectNear(movement.rot, kFloors[level].rotation, 1e-10);
        if (level > 0) {
            const CAssemblyCalc below(model, 1, true, positions[level - 1]);
            const V drift = (kFloors[level].disp - kFloors[level - 1].disp) * 0.25;
            ExpectNear(cut.CalcDrift(ref, below), drift, 1e-12);
            EXPECT_NEAR(cut.CalcDrift({4, 2, kMinimumEnvelope}, below).x, -0.5 * drift.x, 1e-12);
            EXPECT_TRUE(std::isnan(cut.CalcDrift(ref, cut).x));
        }
    }
}

TEST(AssemblyCalc, MiddleOffTheLineAndOneColumn) {
    CVynData model = Tower();
    Data::CAssembly assembly = model.Assembly(1);
    model.SetNode(50, Data::CNode({-3, -2, 0}));
    model.SetNode(51, Data::CNode({-3, -2, 8}));
    assembly.SetTopo(1, 50);
    assembly.SetTopo(2, 51);
    assembly.SetDy(0.0);
    assembly.SetDz(0.0);
    assembly.SetInternal(CEntList(L"101 to 204", SelType::Element));
    model.SetAssembly(1, assembly);
    const Floor& floor = kFloors[1];
    const V moved = floor.disp + Cross(floor.rotation, V{-3, -2, 0});
    ExpectNear(CAssemblyCalc(model, 1, true, 0.5).CalcDisp(AnalysisRef(1)).tran, moved, 1e-10);
    // One column alone: what its head does, rotation included.
    assembly.SetInternal(CEntList(L"101", SelType::Element));
    model.SetAssembly(1, assembly);
    const InterResult one = CAssemblyCalc(model, 1, true, 0.5).CalcDisp(AnalysisRef(1));
    ExpectNear(one.tran, moved, 1e-15);
    ExpectNear(one.rot, floor.rotation * 2.0, 1e-15);
    // Two columns in a row: they tell nothing of the rotation about the row.
    assembly.SetInternal(CEntList(L"101 102", SelType::Element));
    model.SetAssembly(1, assembly);
    const InterResult row = CAssemblyCalc(model, 1, true, 0.5).CalcDisp(AnalysisRef(1));
    ExpectNear(row.rot, {floor.rotation.x * 2.0, floor.rotation.y, floor.rotation.z}, 1e-8);
}

TEST(AssemblyCalc, AStoreyAlongTheLineHasNoPosition) {
    CVynData model;
    model.SetNode(1, Data::CNode({0.3, 0.1, 0.7}));
    model.SetNode(2, Data::CNode({1.1, 2.3, 0.7}));
    Data::CAssembly assembly;
    assembly.SetTopo(1, 1);
    assembly.SetTopo(2, 2);
    assembly.SetStoreys({L"1 2", SelType::GridPlane});
    model.SetAssembly(1, assembly);
    Data::CAxis axis;  // its z is square to the line but for round-off
    axis.SetXAxis({0.8, 2.2, 0.0});
    axis.SetXYPlane({0.1, 0.2, 1.0});
    model.SetAxis(1, axis);
    Data::CGridPlane plane;
    plane.SetAxis(1);
    plane.SetElevation(1.0);
    model.SetGridPlane(1, plane);
    EXPECT_TRUE(CAssemblyCalc::Positions(model, 1, 0).empty());
}

TEST(AssemblyCalc, MissingThingsGiveNoNumbers) {
    CVynData model = Tower();
    const auto isMissing = [&](const SCaseRef& ref, double position) {
        const CAssemblyCalc cut(model, 1, true, position);
        return std::isnan(cut.CalcForce(ref).tran.x) && std::isnan(cut.CalcDisp(ref).tran.x);
    };
    EXPECT_FALSE(isMissing(AnalysisRef(1), 0.5));
    EXPECT_TRUE(isMissing(AnalysisRef(3), 0.5));
    EXPECT_TRUE(isMissing(AnalysisRef(1), 7.0));
    EXPECT_TRUE(isMissing(AnalysisRef(1), std::nan("")));
    EXPECT_TRUE(std::isnan(CAssemblyCalc(model, 2, true, 0.5).Coor().x));
    // The wider cut meets the mast, of which nothing is known.
    Data::CAssembly assembly = model.Assembly(1);
    assembly.SetDz(0.0);
    model.SetAssembly(1, assembly);
    EXPECT_TRUE(isMissing(AnalysisRef(1), 0.5));
    // A stage without the mast does not ask for it.
    Data::CStage stage;
    stage.SetElements(CEntList(L"not 91", SelType::Element));
    model.SetStage(1, stage);
    CAnalysisTask task;
    task.SetStage(1);
    model.SetAnalysisTask(1, task);
    model.SetAnalysisCase(1, CAnalysisCase(L"", 1, L""));
    EXPECT_FALSE(isMissing(AnalysisRef(1), 0.5));
}

}  // namespace
}  // namespace Tevra

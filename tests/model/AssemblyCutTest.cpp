#include <gtest/gtest.h>
#include <span>
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

/// Nodes of a box, and an upright assembly through (1, y, 0).
CVynData Box(double y) {
    CVynData model;
    const V corners[] = {{0, 0, 0}, {2, 0, 0}, {2, 2, 0}, {0, 2, 0},
                         {0, 0, 3}, {2, 0, 3}, {2, 2, 3}, {0, 2, 3}};
    int number = 0;
    for (const V& corner : corners) {
        model.SetNode(++number, Data::CNode(corner));
    }
    model.SetNode(11, Data::CNode({1, y, 0}));
    model.SetNode(12, Data::CNode({1, y, 3}));
    Data::CAssembly assembly;
    assembly.SetTopo(1, 11);
    assembly.SetTopo(2, 12);
    model.SetAssembly(1, assembly);
    model.SetAnalysisCase(1, CAnalysisCase(L"", 0, L""));
    return model;
}

TEST(AssemblyCut, ThroughAWall) {
    CVynData model = Box(0.0);
    model.SetElem(1, Data::CElement(ElementType::Quad4, {1, 2, 6, 5}, 1));
    Data::CProp2D property;
    model.SetProp2D(1, property);
    // Element axes: x along X, y up, z against Y. Nx, Ny, Nxy, Mx, My, Mxy, Qx, Qy.
    std::vector<double> rows;
    const double ny[] = {1000, -1000, 3000, 6000, -2000};  // centre, foot, head
    for (const double n : ny) {
        rows.insert(rows.end(), {77, n, 500, 88, 200, 0, 99, 70});
    }
    model.EditResults().Edit(1).Edit(ResultKind::Elem2DForce).Set(1, rows);
    struct Case {
        double position;
        double factor;
    };
    for (const Case& c : {Case{0.0, 1.0}, Case{0.5, 1.5}, Case{1.0, 2.0}}) {
        SCOPED_TRACE(c.position);
        const InterResult force =
            CAssemblyCalc(model, 1, true, c.position).CalcForce(AnalysisRef(1));
        ExpectNear(force.tran, {2000 * c.factor, -140, -1000}, 1e-9);
        ExpectNear(force.rot, {0, -4000.0 / 3.0 * c.factor, 400}, 1e-9);
    }
    // The centre alone stands for the whole element.
    model.EditResults().Edit(1).Edit(ResultKind::Elem2DForce).Set(1, std::span(rows).first(8));
    const InterResult force = CAssemblyCalc(model, 1, true, 0.5).CalcForce(AnalysisRef(1));
    ExpectNear(force.tran, {2000, -140, -1000}, 1e-9);
    // A load panel carries nothing.
    property.SetType(Prop2DType::LoadPanel);
    model.SetProp2D(1, property);
    EXPECT_EQ(CAssemblyCalc(model, 1, true, 0.5).NumElem(), 0);
}

TEST(AssemblyCut, ThroughASolid) {
    CVynData model = Box(1.0);
    model.SetElem(1, Data::CElement(ElementType::Brick8, {1, 2, 3, 4, 5, 6, 7, 8}, 1));
    std::vector<double> rows;
    for (int k = 0; k <= 8; ++k) {
        const double x = k == 0 ? 0.0 : model.Node(k).Position().x - 1.0;
        rows.insert(rows.end(), {11, 22, 1000 + 500 * x, 33, 40, 200});
    }
    model.EditResults().Edit(1).Edit(ResultKind::Elem3DStress).Set(1, rows);
    for (const double position : {0.0, 0.3, 1.0}) {
        SCOPED_TRACE(position);
        const InterResult force = CAssemblyCalc(model, 1, true, position).CalcForce(AnalysisRef(1));
        ExpectNear(force.tran, {4000, 160, -800}, 1e-9);
        ExpectNear(force.rot, {0, -500.0 * 2 * 8 / 12, 0}, 1e-9);
    }
}

}  // namespace
}  // namespace Tevra

#include <cmath>

#include "vynx/samples/SampleParts.h"
#include "vynx/samples/Samples.h"

namespace Vynx {

namespace {

using Tevra::CVynData;
using Tevra::Direction;
using Tevra::Vbool6;

constexpr double kSide = 0.25;     // m, of an element
constexpr double kTension = 10e6;  // Pa along z
constexpr int kProperty = 1;
constexpr int kEndLoad = 1;

/// Held at the base so that it may become thinner: the first corner in all directions, the corner
/// on the x axis also along y.
Vbool6 RestraintOf(const NodeGrid& grid, int i, int j, int k) {
    Vbool6 restraint;
    restraint.SetZ(k == 0);
    restraint.SetX(i == 0 && j == 0 && k == 0);
    restraint.SetY(k == 0 && j == 0 && grid.IsEdge(0, i));
    return restraint;
}

void AddBlock(CVynData& model, const NodeGrid& grid) {
    Tevra::Data::CProp3D property;
    property.SetName(L"Block");
    property.SetMaterial({.analysis = 1});
    model.SetProp3D(kProperty, property);
    grid.ForEach([&](int number, int i, int j, int k) {
        Tevra::Data::CNode node(grid.Position(i, j, k));
        node.SetRestraint(RestraintOf(grid, i, j, k));
        model.SetNode(number, node);
        if (i > 0 && j > 0 && k > 0) {
            AddElement(model, Tevra::ElementType::Brick8,
                       {grid.Number(i - 1, j - 1, k - 1), grid.Number(i, j - 1, k - 1),
                        grid.Number(i, j, k - 1), grid.Number(i - 1, j, k - 1),
                        grid.Number(i - 1, j - 1, k), grid.Number(i, j - 1, k), number,
                        grid.Number(i - 1, j, k)},
                       kProperty);
        }
    });
}

/// The part of an element's face that belongs to a node of an end of the block: all of it, at the
/// edges a half, in the corners a quarter.
double EndForce(const NodeGrid& grid, int i, int j) {
    return kTension * kSide * kSide * (grid.IsEdge(0, i) ? 0.5 : 1.0) *
           (grid.IsEdge(1, j) ? 0.5 : 1.0);
}

void AddLoads(CVynData& model, const NodeGrid& grid) {
    const int last = grid.Count(0) - 1;
    const int top = grid.Count(2) - 1;
    for (int j = 0; j < grid.Count(1); ++j) {
        const int first = grid.Number(0, j, top);
        AddNodeLoad(model, kEndLoad, std::to_wstring(first) + L" " + std::to_wstring(first + last),
                    Direction::Z, EndForce(grid, 0, j));
        if (last > 1) {
            AddNodeLoad(model, kEndLoad, Range(first + 1, first + last - 1), Direction::Z,
                        EndForce(grid, 1, j));
        }
    }
    AddGravity(model, kEndLoad + 1);
}

void AddResults(CVynData& model, const NodeGrid& grid) {
    constexpr double kStrain = kTension / kSampleYoung;
    Tevra::CaseResults& results = model.EditResults().Edit(kEndLoad);
    Tevra::ResultTable& displacements = results.Edit(Tevra::ResultKind::NodeDisp);
    Tevra::ResultTable& reactions = results.Edit(Tevra::ResultKind::NodeReaction);
    grid.ForEach([&](int number, int i, int j, int k) {
        const Tevra::Vec3<double> place = grid.Position(i, j, k);
        displacements.Set(number, std::array{-kSamplePoisson * kStrain * place.x,
                                             -kSamplePoisson * kStrain * place.y, kStrain * place.z,
                                             0.0, 0.0, 0.0});
        if (k == 0) {
            reactions.Set(number, std::array{0.0, 0.0, -EndForce(grid, i, j), 0.0, 0.0, 0.0});
        }
    });
    Tevra::ResultTable& stresses = results.Edit(Tevra::ResultKind::Elem3DStress);
    const std::array<double, 6> stress{0.0, 0.0, kTension, 0.0, 0.0, 0.0};
    for (int element = 1; element <= model.HighestElem(); ++element) {
        stresses.Set(element, stress);
    }
    const double width = kSide * (grid.Count(0) - 1);
    const double total = kTension * width * width;
    results.EditGlobal().force = {0.0, 0.0, total};
    results.EditGlobal().moment = {total * width / 2.0, -total * width / 2.0, 0.0};
    results.EditGlobal().reactForce = {0.0, 0.0, -total};
    results.EditGlobal().reactMoment = {-total * width / 2.0, total * width / 2.0, 0.0};
}

}  // namespace

void FillSolids(CVynData& model, int nodes) {
    const int side = std::max(2, static_cast<int>(std::lround(std::cbrt(nodes))));
    const NodeGrid grid(side, side, side, {kSide, kSide, kSide});
    BeginSample(model, L"Block of solids", {L"Tension", L"Self weight"});
    AddBlock(model, grid);
    AddLoads(model, grid);
    AddResults(model, grid);
}

}  // namespace Vynx

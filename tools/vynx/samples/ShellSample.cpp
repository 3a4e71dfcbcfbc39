#include <cmath>

#include "vynx/samples/SampleParts.h"
#include "vynx/samples/Samples.h"

namespace Vynx {

namespace {

using Tevra::CVynData;
using Tevra::Direction;
using Tevra::Vec3;

constexpr double kSide = 1.0;        // m, of an element
constexpr double kThickness = 0.02;  // m
constexpr double kTension = 2e6;     // N/m along x
constexpr double kBending = 5e3;     // Nm/m, its stress along y
constexpr double kPressure = -1e3;   // Pa
constexpr int kProperty = 1;
constexpr int kEdgeLoads = 1;
constexpr int kSurfaceLoad = 2;

void AddPlate(CVynData& model, const NodeGrid& grid) {
    Tevra::Data::CProp2D property;
    property.SetName(L"Plate");
    property.SetThickness(kThickness);
    property.SetMaterial({.analysis = 1});
    model.SetProp2D(kProperty, property);
    grid.ForEach([&](int number, int i, int j, int) {
        Tevra::Data::CNode node(grid.Position(i, j, 0));
        if (number == 1) {
            node.SetRestraint(Tevra::Vbool6::FromBits(63));
        }
        model.SetNode(number, node);
        if (i > 0 && j > 0) {
            AddElement(model, Tevra::ElementType::Quad4,
                       {grid.Number(i - 1, j - 1, 0), grid.Number(i, j - 1, 0), number,
                        grid.Number(i - 1, j, 0)},
                       kProperty);
        }
    });
}

/// A load along an edge: what belongs to a node between its ends, half of that at the ends.
void AddEdge(CVynData& model, int first, int last, int step, Direction direction, double value) {
    AddNodeLoad(model, kEdgeLoads, std::to_wstring(first) + L" " + std::to_wstring(last), direction,
                value / 2.0);
    if (first + step < last) {
        AddNodeLoad(model, kEdgeLoads, Range(first + step, last - step, step), direction, value);
    }
}

void AddLoads(CVynData& model, const NodeGrid& grid) {
    const int alongX = grid.Count(0);
    const int last = model.HighestNode();
    const int lastRow = last - alongX + 1;
    AddEdge(model, 1, lastRow, alongX, Direction::X, -kTension * kSide);
    AddEdge(model, alongX, last, alongX, Direction::X, kTension * kSide);
    AddEdge(model, 1, alongX, 1, Direction::XX, kBending * kSide);
    AddEdge(model, lastRow, last, 1, Direction::XX, -kBending * kSide);
    Tevra::Data::CFaceLoad pressure;
    pressure.SetLoadCase(kSurfaceLoad);
    pressure.SetLoadedEntities(Tevra::CEntList(L"all", Tevra::SelType::Element));
    pressure.SetAxis(Tevra::kLocalAxis);
    pressure.SetValues({kPressure, kPressure, kPressure, kPressure});
    model.SetFaceLoad(1, pressure);
    AddGravity(model, kSurfaceLoad + 1);
}

/// Plane stress along x, and bending to a saddle (the plate is free to bend the other way too).
std::array<double, 6> DisplacementAt(const Vec3<double>& place) {
    const double strain = kTension / (kThickness * kSampleYoung);
    const double curvature = 12.0 * kBending / (kSampleYoung * std::pow(kThickness, 3));
    const double x = place.x;
    const double y = place.y;
    return {strain * x,
            -kSamplePoisson * strain * y,
            -0.5 * curvature * (y * y - kSamplePoisson * x * x),
            -curvature * y,
            -kSamplePoisson * curvature * x,
            0.0};
}

void AddResults(CVynData& model, const NodeGrid& grid) {
    Tevra::CaseResults& results = model.EditResults().Edit(kEdgeLoads);
    Tevra::ResultTable& displacements = results.Edit(Tevra::ResultKind::NodeDisp);
    grid.ForEach([&](int number, int i, int j, int) {
        displacements.Set(number, DisplacementAt(grid.Position(i, j, 0)));
    });
    results.Edit(Tevra::ResultKind::NodeReaction).Set(1, std::array<double, 6>{});
    Tevra::ResultTable& forces = results.Edit(Tevra::ResultKind::Elem2DForce);
    Tevra::ResultTable& stresses = results.Edit(Tevra::ResultKind::Elem2DStress);
    const double along = kTension / kThickness;
    const double across = 6.0 * kBending / (kThickness * kThickness);
    const std::array<double, 8> force{kTension, 0, 0, 0, kBending, 0, 0, 0};
    const std::array<double, 18> stress{along, -across, 0, 0,     0,      0, along, 0, 0,
                                        0,     0,       0, along, across, 0, 0,     0, 0};
    for (int element = 1; element <= model.HighestElem(); ++element) {
        forces.Set(element, force);
        stresses.Set(element, stress);
    }
    results.EditGlobal().force = {};
    results.EditGlobal().moment = {};
    results.EditGlobal().reactForce = {};
    results.EditGlobal().reactMoment = {};
}

}  // namespace

void FillShells(CVynData& model, int nodes) {
    const int side = std::max(2, static_cast<int>(std::lround(std::sqrt(nodes))));
    const NodeGrid grid(side, side, 1, {kSide, kSide, 0.0});
    BeginSample(model, L"Grid of shells", {L"Edge loads", L"Pressure", L"Self weight"});
    AddPlate(model, grid);
    AddLoads(model, grid);
    AddResults(model, grid);
}

}  // namespace Vynx

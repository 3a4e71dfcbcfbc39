#include <cmath>

#include "vynx/samples/SampleParts.h"
#include "vynx/samples/Samples.h"

namespace Vynx {

namespace {

using Tevra::CVynData;
using Tevra::Direction;
using Tevra::ElementType;
using Tevra::Vec3;

constexpr double kBay = 6.0;         // m
constexpr double kStorey = 3.5;      // m
constexpr double kNodeLoad = -50e3;  // N at each node of each storey
constexpr double kBeamLoad = -10e3;  // N/m
constexpr double kWindLoad = 5e3;    // N at each node of the windward side
constexpr int kColumnSection = 1;
constexpr int kBeamSection = 2;
constexpr int kDead = 1;
constexpr int kLive = 2;
constexpr int kWind = 3;

void AddNodes(CVynData& model, const NodeGrid& grid) {
    grid.ForEach([&](int number, int i, int j, int k) {
        Tevra::Data::CNode node(grid.Position(i, j, k));
        if (k == 0) {
            node.SetRestraint(Tevra::Vbool6::FromBits(63));
        }
        model.SetNode(number, node);
    });
}

void AddColumns(CVynData& model, const NodeGrid& grid) {
    grid.ForEach([&](int number, int i, int j, int k) {
        if (k > 0) {
            AddElement(model, ElementType::Beam, {grid.Number(i, j, k - 1), number},
                       kColumnSection);
        }
    });
}

void AddBeams(CVynData& model, const NodeGrid& grid) {
    grid.ForEach([&](int number, int i, int j, int k) {
        if (k > 0 && i > 0) {
            AddElement(model, ElementType::Beam, {grid.Number(i - 1, j, k), number}, kBeamSection);
        }
        if (k > 0 && j > 0) {
            AddElement(model, ElementType::Beam, {grid.Number(i, j - 1, k), number}, kBeamSection);
        }
    });
}

void AddLoads(CVynData& model, const NodeGrid& grid, int columns) {
    const int firstLoaded = grid.Number(0, 0, 1);
    AddNodeLoad(model, kDead, Range(firstLoaded, model.HighestNode()), Direction::Z, kNodeLoad);
    Tevra::Data::CBeamLoad live;
    live.SetLoadCase(kLive);
    live.SetLoadedEntities(
        Tevra::CEntList(Range(columns + 1, model.HighestElem()), Tevra::SelType::Element));
    live.SetPoint(1, {.value = kBeamLoad});
    model.SetBeamLoad(1, live);
    AddNodeLoad(model, kWind, Range(firstLoaded, model.HighestNode(), grid.Count(0)), Direction::X,
                kWindLoad);
    AddGravity(model, kDead + 3);
}

/// All columns carry the same, so a storey goes down as a whole, by the forces below it.
void AddResults(CVynData& model, const NodeGrid& grid, int columns) {
    const int storeys = grid.Count(2) - 1;
    const double stiffness = kSampleYoung * model.Section(kColumnSection).Properties().area;
    Tevra::CaseResults& results = model.EditResults().Edit(kDead);
    Tevra::ResultTable& displacements = results.Edit(Tevra::ResultKind::NodeDisp);
    Tevra::ResultTable& reactions = results.Edit(Tevra::ResultKind::NodeReaction);
    grid.ForEach([&](int number, int, int, int k) {
        const double carried = k * storeys - 0.5 * k * (k - 1.0);
        displacements.Set(
            number, std::array{0.0, 0.0, kNodeLoad * kStorey / stiffness * carried, 0.0, 0.0, 0.0});
        if (k == 0) {
            reactions.Set(number, std::array{0.0, 0.0, -kNodeLoad * storeys, 0.0, 0.0, 0.0});
        }
    });
    Tevra::ResultTable& forces = results.Edit(Tevra::ResultKind::Elem1DForce);
    const int lines = grid.Count(0) * grid.Count(1);
    for (int element = 1; element <= model.HighestElem(); ++element) {
        std::array<double, 12> ends{};
        if (element <= columns) {
            const int below = (element - 1) / lines;
            ends[0] = ends[6] = kNodeLoad * (storeys - below);
        }
        forces.Set(element, ends);
    }
    const double total = kNodeLoad * storeys * lines;
    const Vec3<double> middle = grid.Position(grid.Count(0) - 1, grid.Count(1) - 1, 0) * 0.5;
    results.EditGlobal().force = {0.0, 0.0, total};
    results.EditGlobal().moment = {total * middle.y, -total * middle.x, 0.0};
    results.EditGlobal().reactForce = {0.0, 0.0, -total};
    results.EditGlobal().reactMoment = {-total * middle.y, total * middle.x, 0.0};
}

}  // namespace

void FillFrame(CVynData& model, int nodes) {
    const int side = std::max(2, static_cast<int>(std::lround(std::cbrt(nodes))));
    const NodeGrid grid(side, side, side, {kBay, kBay, kStorey});
    BeginSample(model, L"Building frame", {L"Dead load", L"Live load", L"Wind", L"Self weight"});
    model.SetSection(kColumnSection, {L"Column", L"STD%RHS%400%400%20%20", {.analysis = 1}});
    model.SetSection(kBeamSection, {L"Beam", L"STD%I%400%180%8.6%13.5", {.analysis = 1}});
    AddNodes(model, grid);
    AddColumns(model, grid);
    const int columns = model.HighestElem();
    AddBeams(model, grid);
    AddLoads(model, grid, columns);
    AddResults(model, grid, columns);
}

}  // namespace Vynx

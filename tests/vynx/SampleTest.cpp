#include <array>
#include <cmath>
#include <gtest/gtest.h>

#include "document/ModelDocument.h"
#include "model/Util.h"
#include "support/TempFolder.h"
#include "vynx/CommandLine.h"
#include "vynx/Failure.h"
#include "vynx/samples/Samples.h"

namespace Vynx {
namespace {

using namespace Tevra;

constexpr SCaseRef kFirstCase{CaseOp::Analysis, 1, 0};

/// Force (0 to 2) and moment about the origin (3 to 5) of a force and a moment at a place.
std::array<double, 6> AtOrigin(const Vec3<double>& place, const Vec3<double>& force,
                               const Vec3<double>& moment) {
    return {force.x,
            force.y,
            force.z,
            moment.x + place.y * force.z - place.z * force.y,
            moment.y + place.z * force.x - place.x * force.z,
            moment.z + place.x * force.y - place.y * force.x};
}

void Add(std::array<double, 6>& sum, const std::array<double, 6>& term) {
    for (std::size_t i = 0; i < sum.size(); ++i) {
        sum[i] += term[i];
    }
}

std::array<double, 6> Loads(const CVynData& model) {
    std::array<double, 6> sum{};
    for (const int number : model.NodeLoadTable().Numbers()) {
        const Data::CNodeLoad& load = model.NodeLoad(number);
        if (load.LoadCase() != 1) {
            continue;
        }
        std::array<double, 6> value{};
        value[static_cast<std::size_t>(load.GetDirection())] = load.Value();
        for (const int node : load.LoadedNodes(model)) {
            Add(sum, AtOrigin(model.Node(node).Position(), {value[0], value[1], value[2]},
                              {value[3], value[4], value[5]}));
        }
    }
    return sum;
}

std::array<double, 6> Reactions(const CVynData& model) {
    std::array<double, 6> sum{};
    for (const int node : model.NodeTable().Numbers()) {
        if (!model.Node(node).Restraint().IsNone()) {
            Add(sum, AtOrigin(model.Node(node).Position(), model.ReactForce(node, kFirstCase),
                              model.ReactMoment(node, kFirstCase)));
        }
    }
    return sum;
}

TEST(Samples, AreInEquilibriumWithTheirReactions) {
    for (const SampleKind& kind : SampleKinds()) {
        SCOPED_TRACE(kind.name);
        CVynData model;
        kind.fill(model, 200);
        EXPECT_NEAR(model.NumNode(), 200, 20);
        const std::array<double, 6> loads = Loads(model);
        const std::array<double, 6> reactions = Reactions(model);
        const Vec3<double> force = model.TotalForce(kFirstCase);
        const Vec3<double> moment = model.TotalMoment(kFirstCase);
        const std::array<double, 6> totals{force.x, force.y, force.z, moment.x, moment.y, moment.z};
        for (std::size_t i = 0; i < 6; ++i) {
            EXPECT_NEAR(loads[i], -reactions[i], 1e-6 * std::fabs(loads[2]) + 1e-6) << i;
            EXPECT_NEAR(loads[i], totals[i], 1e-6 * std::fabs(loads[2]) + 1e-6) << i;
        }
    }
}

/// Strains of the displacements against the stresses, by Hooke's law.
TEST(Samples, DisplaceByTheirStresses) {
    CVynData plate;
    FillShells(plate, 100);
    // Curvature from three nodes in a row along y, at the top of the plate.
    const auto w = [&](int node) { return plate.Disp(node, kFirstCase).z; };
    const double thickness = plate.Prop2D(1).Thickness();
    const double curvature = w(1) - 2.0 * w(11) + w(21);
    const double acrossByX = w(1) - 2.0 * w(2) + w(3);
    const double young = plate.MatAnal(1).E();
    const TensSym3<double> top = plate.Stress2D(1, kFirstCase, 0, 2);
    const double strainY = -curvature * thickness / 2.0 + plate.Disp(11, kFirstCase).y;
    const double strainX = -acrossByX * thickness / 2.0 + plate.Disp(2, kFirstCase).x;
    EXPECT_NEAR(top.xx, young / 0.91 * (strainX + 0.3 * strainY), 1e-3);
    EXPECT_NEAR(top.yy, young / 0.91 * (strainY + 0.3 * strainX), 1e-3);
    EXPECT_NEAR(plate.Moment2D(1, kFirstCase, 0).yy, top.yy * thickness * thickness / 6.0, 1e-6);

    CVynData frame;
    FillFrame(frame, 64);
    const double area = frame.Section(1).Properties().area;
    for (const int storey : {1, 2, 3}) {
        const int upper = 16 * storey + 1;
        const double shortening =
            frame.Disp(upper, kFirstCase).z - frame.Disp(upper - 16, kFirstCase).z;
        EXPECT_NEAR(frame.Force(16 * (storey - 1) + 1, kFirstCase, 0).x,
                    shortening / 3.5 * frame.MatAnal(1).E() * area, 1e-3);
    }
}

TEST(Samples, AreWrittenByTheProgram) {
    const TestSupport::TempFolder folder;
    const std::string path = (folder.Path() / "block.json").string();
    const auto run = [](std::vector<const char*> words) {
        words.insert(words.begin(), {"vynx", "sample"});
        return Vynx::Run(static_cast<int>(words.size()), words.data());
    };
    ASSERT_EQ(run({"solids", "--size", "27", "-o", path.c_str()}), kDone);
    CVynData made;
    FillSolids(made, 27);
    CVynData read;
    std::string error;
    ASSERT_TRUE(Document::ReadDocument(path, read, error)) << error;
    EXPECT_EQ(read, made);
    EXPECT_EQ(read.NumElem(), 8);

    EXPECT_EQ(run({"towers", "-o", path.c_str()}), kUsage);
    EXPECT_EQ(run({"solids", "--size", "0", "-o", path.c_str()}), kUsage);
    EXPECT_EQ(run({"solids", "-o", "block.unknown"}), kUsage);
}

}  // namespace
}  // namespace Vynx

#include <cstdlib>
#include <filesystem>
#include <gtest/gtest.h>
#include <ostream>
#include <string>

#include "dyna/DynaImport.h"
#include "model/VynData.h"
#include "platform/text/HostPath.h"
#include "support/TestPaths.h"

namespace Tevra {
namespace {

/// What comes of a public deck: the counts were made by a script of its own, not by the reader.
struct Outcome {
    const char* file;
    int refusedAt = 0;  ///< line, 0 for decks that are read whole
    const char* reason = "";
    int nodes = 0;
    int highestNode = 0;
    Vec3<double> sum{};  ///< of all positions
    int quads = 0;
    int triangles = 0;
    int bricks = 0;
    int skipped = 0;  ///< blocks, when read whole
};

std::ostream& operator<<(std::ostream& out, const Outcome& outcome) {
    return out << outcome.file;
}

const Outcome kOutcomes[] = {
    {"wheel.k",
     0,
     "",
     11825,
     11825,
     {-12553353.94468, -9527520.6002, 3876726.5566},
     11553,
     0,
     0,
     17},
    {"bird.k",
     0,
     "",
     5185,
     1004160,
     {3270.89104991, -554.03618062904, 87.611313629356},
     960,
     0,
     0,
     34},
    {"EXP_SC_JOINT_SCREW.key",
     0,
     "",
     4576,
     10059661,
     {16104697.69976, 274393.1413822, 1942164.6116286},
     3972,
     28,
     336,
     34},
    // Its shells have as many further lines as they have layers.
    {"bird_strike_composite.k",
     3205,
     "ELEMENT_SHELL_OFFSET_COMPOSITE",
     2957,
     2957,
     {938414.1468931, 26.571951269992, 2217750.00894},
     0,
     0,
     0,
     0},
    // The nodes stand in an included file, which is not read.
    {"projectile_crlf.k", 0, "", 0, 0, {0, 0, 0}, 0, 0, 0, 32},
    // Comma-separated lines stand in skipped blocks only.
    {"joint_revolute_lowercase_comma.k", 0, "", 10, 10, {5, -4, 0}, 3, 0, 0, 22},
    {"small_i10.key", 1, "other widths", 0, 0, {0, 0, 0}, 0, 0, 0, 0},
    {"small_long.key", 1, "other widths", 0, 0, {0, 0, 0}, 0, 0, 0, 0},
};

std::filesystem::path DeckFolder() {
    const char* const folder = std::getenv("VYN_DECKS");  // NOLINT(concurrency-mt-unsafe)
    return folder != nullptr ? folder : TestSupport::SourceDir().parent_path() / "shared/decks";
}

class DynaDecks : public ::testing::TestWithParam<Outcome> {};

TEST_P(DynaDecks, IsReadWholeOrRefusedAtItsLine) {
    const Outcome& outcome = GetParam();
    const std::filesystem::path path = DeckFolder() / outcome.file;
    if (!std::filesystem::exists(path)) {
        GTEST_SKIP() << path << " is missing";
    }
    CVynData model;
    CDynaImport reader;
    reader.SetData(&model);
    EXPECT_EQ(reader.OpenRead(Text::FromPath(path)), outcome.refusedAt == 0);
    EXPECT_EQ(outcome.refusedAt == 0 ? 0 : reader.Line(), outcome.refusedAt) << reader.Error();
    EXPECT_NE(reader.Error().find(outcome.reason), std::string::npos) << reader.Error();

    EXPECT_EQ(model.NumNode(), outcome.nodes);
    EXPECT_EQ(model.HighestNode(), outcome.highestNode);
    EXPECT_EQ(model.NumElemType(ElementType::Quad4), outcome.quads);
    EXPECT_EQ(model.NumElemType(ElementType::Tri3), outcome.triangles);
    EXPECT_EQ(model.NumElemType(ElementType::Brick8), outcome.bricks);
    EXPECT_EQ(model.NumElem(), outcome.quads + outcome.triangles + outcome.bricks);
    Vec3<double> sum;
    for (const int number : model.NodeTable().Numbers()) {
        for (int i = 0; i < 3; ++i) {
            sum[i] += model.Node(number).Position()[i];
        }
    }
    for (int i = 0; i < 3; ++i) {
        EXPECT_NEAR(sum[i], outcome.sum[i], 1e-9 * (1.0 + std::abs(outcome.sum[i])));
    }
    for (const int number : model.ElemTable().Numbers()) {
        for (const int node : model.Elem(number).Topo()) {
            ASSERT_TRUE(model.NodeExist(node)) << "element " << number;
        }
    }
    std::int64_t skipped = 0;
    for (const auto& [name, count] : reader.Report().skipped.ByName()) {
        skipped += count;
    }
    EXPECT_TRUE(skipped == outcome.skipped || outcome.refusedAt != 0) << skipped;
}

INSTANTIATE_TEST_SUITE_P(Public, DynaDecks, ::testing::ValuesIn(kOutcomes));

}  // namespace
}  // namespace Tevra

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <string>

#include "vynx/Failure.h"
#include "vynx/VynxFixture.h"

namespace Vynx {
namespace {

/// Exports the portal sample as tables.
class SqlFormat : public VynxTest {
protected:
    int Export(const std::string& target, const Names& options = {}) {
        Names words{"export", Portal(), "--to", "sql", "-o", target};
        words.insert(words.end(), options.begin(), options.end());
        return Run(words);
    }
    static std::string Portal() {
        return (Tevra::TestSupport::SourceDir() / "examples/portal.json").string();
    }
    std::string Read(const std::string& name) const {
        return Tevra::TestSupport::ReadFile(Path(name));
    }
    static int NumRow(const std::string& text, const std::string& table) {
        int count = 0;
        const std::string begin = "INSERT INTO " + table + " ";
        for (std::size_t at = text.find(begin); at != std::string::npos;
             at = text.find(begin, at + 1)) {
            ++count;
        }
        return count;
    }
};

TEST_F(SqlFormat, WritesAFolderAndTellsAboutIt) {
    ASSERT_EQ(Export(Path("hall.sql")), kDone) << m_err;
    EXPECT_EQ(Files(), Names{"hall"});
    EXPECT_EQ(NumRow(Read("hall/node/node.sql"), "node"), 27);
    EXPECT_EQ(m_err, "");
    EXPECT_EQ(m_out.rfind("  File: " + Path("hall") + "\n  Type: .sql\n", 0), 0U) << m_out;
    EXPECT_NE(m_out.find("  No. result cases: 19\n    Node results (case A1) "), std::string::npos);
    EXPECT_EQ(m_out.find("(total)"), std::string::npos);
}

TEST_F(SqlFormat, EveryOptionReachesTheExport) {
    ASSERT_EQ(
        Export(Path("hall.sql"), {"--nodes", "11 12", "--elements", "1 to 40 not 12", "--members",
                                  "1", "--assemblies", "none", "--cases", "A1 C2", "--tables", "n1",
                                  "--beam-positions", "3", "--all-timings", "--single-file"}),
        kDone)
        << m_err;
    EXPECT_EQ(Files(), Names{"hall"});
    const std::string text = Read("hall/hall.sql");
    EXPECT_EQ(NumRow(text, "result_node"), 2 * 3);
    EXPECT_EQ(NumRow(text, "result_elem_1d") % (3 * 3), 0);
    EXPECT_EQ(text.find("INSERT INTO result_elem_1d VALUES(12,"), std::string::npos);
    EXPECT_EQ(text.find("result_global"), std::string::npos);
    EXPECT_EQ(NumRow(text, "member"), 26);  // lists choose results, not what the model is
    for (const char* const line :
         {"  Output: single file\n  Nodes: 11 12\n  Elements: 1 to 40 not 12\n  Members: 1\n"
          "  Assemblies: none\n  Cases: A1 C2\n  No. beam positions: 3\n"
          "  Include interesting points: false\n  No. result cases: 2\n",
          "    Model results (total) ", "    1D element results (case C2max) "}) {
        EXPECT_NE(m_out.find(line), std::string::npos) << m_out;
    }
    ASSERT_EQ(Export(Path("points.sql"), {"--tables", "1", "--interesting-points"}), kDone);
    EXPECT_GT(NumRow(Read("points/result_elem_1d/result_elem_1d.sql"), "result_elem_1d"),
              NumRow(text, "result_elem_1d"));
}

TEST_F(SqlFormat, WhatCanNotBeWrittenIsNamed) {
    std::ofstream(Path("file")) << "a file";
    fs::create_directories(Path("part/node/node.sql"));
    fs::create_directories(Path("full/element"));
    fs::create_symlink("/dev/full", Path("full/element/element.sql"));
    fs::create_directories(Path("whole"));
    fs::create_symlink("/dev/full", Path("whole/whole.sql"));
    std::ofstream(Path("late")) << "";
    fs::remove(Path("late"));
    fs::create_directories(Path("late"));
    std::ofstream(Path("late/list")) << "a file";
    struct Case {
        std::string target;
        Names options;
        int status;
        Names messages;
    };
    const Case cases[] = {
        {Path("file.sql"),
         {},
         kFailed,
         {"complete: nothing\n", Path("file/model") + ": can't be made: Not a directory",
          Path("file/") + ": not complete"}},
        {Path("file/x.sql"), {}, kFailed, {": can't be made: Not a directory"}},
        {Path("part.sql"),
         {},
         kFailed,
         {"complete: model location history axis member element",
          Path("part/node/node.sql") + ": not written, or not completely"}},
        {Path("full.sql"), {}, kFailed, {Path("full/element/element.sql") + ": not written, or"}},
        {Path("whole.sql"),
         {"--single-file"},
         kFailed,
         {Path("whole/whole.sql") + ": not written, or not completely"}},
        {Path("late.sql"),
         {},
         kFailed,
         {"complete: model location history axis node member element assembly section prop_2d "
          "prop_3d\n",
          Path("late/list") + ": can't be made"}},
        {Path("no") + "/", {}, kFailed, {"it is no file name"}},
        {"-", {}, kUsage, {"-: sql writes a folder"}},
        {Path("x.sql"),
         {"--tables", "GNX"},
         kUsage,
         {"--tables: expected letters of GN123SA, not \"GNX\""}},
        {Path("x.sql"), {"--cases", "A1 to"}, kUsage, {"--cases: expected a list"}},
        {Path("x.sql"), {"--beam-positions", "two"}, kUsage, {"expected a whole number"}},
        {Path("x.sql"), {"--beam-positions", "-1"}, kUsage, {"expected 0 to 1000001, not -1"}},
        {Path("x.sql"), {"--beam-positions", "1000002"}, kUsage, {"expected 0 to 1000001"}},
        {Path("x.sql"), {"--damping", "1"}, kUsage, {"sql has no such option"}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.target);
        EXPECT_EQ(Export(c.target, c.options), c.status);
        for (const std::string& message : c.messages) {
            EXPECT_NE(m_err.find(message), std::string::npos) << message << '\n' << m_err;
        }
    }
    EXPECT_FALSE(fs::exists(Path("x")));
}

}  // namespace
}  // namespace Vynx

#include <filesystem>
#include <gtest/gtest.h>
#include <string>

#include "export/ExportAccess.h"
#include "export/SmallModel.h"
#include "support/TempFolder.h"
#include "support/TestPaths.h"

namespace Tevra::Export {
namespace {

namespace fs = std::filesystem;

/// Everything that an export of a model writes, as a single file.
std::string Exported(CVynData& model, const Param& param) {
    const TestSupport::TempFolder folder;
    CSqlExport exporter;
    exporter.SetData(&model);
    exporter.SetPath((folder.Path() / "job.sql").string());
    exporter.SetParam(param);
    exporter.SetOneFilePerModule(false);
    const CapturedOutput output;
    EXPECT_TRUE(exporter.WriteTables());
    EXPECT_TRUE(exporter.FailedFiles().empty());
    return TestSupport::ReadFile(folder.Path() / "job" / "job.sql");
}

/// Compares with a file of tests/golden/sql.
void ExpectGolden(const std::string& text, const char* name) {
    const fs::path golden = TestSupport::SourceDir() / "tests/golden/sql" / name;
    EXPECT_EQ(text, TestSupport::ReadFile(golden)) << golden;
}

TEST(TablesOfTheModel, AreThoseOfTheGoldenFile) {
    CVynData model = MakeSmallModel();
    model.EditResults().Clear();
    ExpectGolden(Exported(model, {}), "model.sql");
}

TEST(TablesOfResults, AreThoseOfTheGoldenFile) {
    CVynData model = MakeSmallModel();
    Param param;
    param.numBeamPosition = 3;
    const std::string text = Exported(model, param);
    const std::size_t begin = text.find("CREATE TABLE 'case'");
    ASSERT_NE(begin, std::string::npos);
    ExpectGolden(text.substr(begin), "results.sql");
}

// Grid planes have a table that is written when it is asked for.
TEST(TablesOfTheModel, GridPlanesAreWrittenByThemselves) {
    CVynData model = MakeSmallModel();
    const TestSupport::TempFolder folder;
    CSqlExport exporter;
    exporter.SetData(&model);
    exporter.SetPath((folder.Path() / "job.sql").string());
    EXPECT_TRUE(exporter.GridPlane());
    EXPECT_EQ(TestSupport::ReadFile(folder.Path() / "job" / "grid_plane" / "grid_plane.sql"),
              "CREATE TABLE 'grid_plane'\n(\n  grid_plane INTEGER NOT NULL PRIMARY KEY,\n"
              "  name VARCHAR(32),\n  type VARCHAR(8),\n  axis INTEGER,\n  elevation REAL\n);\n"
              "INSERT INTO grid_plane VALUES(1, 'First floor', 'STOREY', 2, 3.500000);\n"
              "INSERT INTO grid_plane VALUES(3, 'Roof', 'PLANE', 2, 3.500000);\n");
}

// A model without members has nothing that parents could refer to.
TEST(TablesOfTheModel, ParentsReferToMembersWhenThereAreAny) {
    CVynData model = MakeSmallModel();
    const std::string reference = "  parent_member INTEGER REFERENCES member(member),\n";
    EXPECT_NE(Exported(model, {}).find(reference), std::string::npos);
    model.DeleteMember(1);
    model.DeleteMember(3);
    const std::string text = Exported(model, {});
    EXPECT_EQ(text.find(reference), std::string::npos);
    EXPECT_NE(text.find("  parent_member INTEGER,\n"), std::string::npos);
}

}  // namespace
}  // namespace Tevra::Export

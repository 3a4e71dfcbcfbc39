#include <algorithm>
#include <cmath>
#include <filesystem>
#include <gtest/gtest.h>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "document/ModelDocument.h"
#include "export/Database.h"
#include "export/ExportAccess.h"
#include "support/TempFolder.h"
#include "support/TestPaths.h"

namespace Tevra::Export {
namespace {

namespace fs = std::filesystem;

/// What the page on these tables tells to edit: the name of the reserved word in quotes, and no
/// key where names of combinations repeat.
std::string WithWorkAround(std::string statement) {
    const auto replace = [&statement](const std::string& from, const std::string& to) {
        const std::size_t at = statement.find(from);
        if (at != std::string::npos) {
            statement.replace(at, from.size(), to);
        }
    };
    replace("INSERT INTO case VALUES", "INSERT INTO \"case\" VALUES");
    if (statement.rfind("CREATE TABLE 'permutation'", 0) == 0) {
        replace(" NOT NULL PRIMARY KEY", " NOT NULL");
    }
    return statement;
}

/// A sample, exported and loaded for all tests of a suite.
class SampleTables : public ::testing::Test {
protected:
    static void Load(const std::string& sample) { s_loaded = new Loaded(sample); }
    static void TearDownTestSuite() {
        delete s_loaded;
        s_loaded = nullptr;
    }

    struct Loaded {
        explicit Loaded(const std::string& sample) {
            std::string error;
            const fs::path file = TestSupport::SourceDir() / "examples" / (sample + ".json");
            EXPECT_TRUE(Document::ReadDocument(file, model, error)) << error;
            const TestSupport::TempFolder folder;
            CSqlExport exporter;
            exporter.SetData(&model);
            exporter.SetPath((folder.Path() / (sample + ".sql")).string());
            const CapturedOutput output;
            EXPECT_TRUE(exporter.WriteTables());
            EXPECT_TRUE(exporter.FailedFiles().empty());
            for (const fs::path& table : exporter.WrittenFiles()) {
                Load(table.stem().string(), TestSupport::ReadFile(table));
            }
        }
        void Load(const std::string& table, const std::string& text) {
            for (const std::string& statement : StatementsOf(text)) {
                numStatement[table] += 1;
                const std::string refusal = plain.Execute(statement);
                if (!refusal.empty()) {
                    refused[table] = refusal;
                }
                EXPECT_EQ(database.Execute(WithWorkAround(statement)), "") << statement;
            }
        }

        CVynData model;
        Database plain;     ///< given the statements as they are
        Database database;  ///< given them with the work-arounds
        std::map<std::string, int> numStatement;
        std::map<std::string, std::string> refused;  ///< tables with the last complaint
    };

    CVynData& Model() { return s_loaded->model; }
    Database& Db() { return s_loaded->database; }
    double Count(const std::string& from) { return Db().Number("SELECT count(*) FROM " + from); }

    static Loaded* s_loaded;
};

SampleTables::Loaded* SampleTables::s_loaded = nullptr;

class PortalTables : public SampleTables {
protected:
    static void SetUpTestSuite() { Load("portal"); }
};

// Only what is kept although a database refuses it: the bare name of a table that is a reserved
// word, and a key that repeats with each permutation.
TEST_F(PortalTables, LoadStatementByStatement) {
    EXPECT_EQ(s_loaded->refused,
              (std::map<std::string, std::string>{
                  {"case", "near \"case\": syntax error"},
                  {"permutation", "UNIQUE constraint failed: permutation.case_id"}}));
    EXPECT_EQ(s_loaded->numStatement.size(), 18U);
}

TEST_F(PortalTables, HoldEveryRecord) {
    const CVynData& model = Model();
    EXPECT_EQ(Count("model"), 1);
    EXPECT_EQ(Count("location"), 1);
    EXPECT_EQ(Count("node"), model.NumNode());
    EXPECT_EQ(Count("element"), model.NumElem());
    EXPECT_EQ(Count("member"), model.NumMember());
    EXPECT_EQ(Count("section"), model.NumSection());
    EXPECT_EQ(Count("list"), model.NumList());
    EXPECT_EQ(Count("\"case\""), 12 + 7);
    EXPECT_EQ(Count("result_global"), 12 + 7);
    int rows = 12;
    int permutations = 0;
    for (const int number : model.CombinationCaseTable().Numbers()) {
        const int count = model.CombinationCase(number).Desc().NumPermutation(model);
        permutations += count;
        rows += count > 1 ? 2 : 1;
    }
    EXPECT_EQ(Count("permutation"), permutations);
    EXPECT_EQ(Count("result_node"), rows * model.NumNode());
    EXPECT_EQ(Count("result_elem_1d WHERE position_r = 0.25"), rows * model.NumElem());
    EXPECT_EQ(Count("result_elem_1d"), 5 * rows * model.NumElem());
}

TEST_F(PortalTables, ReferToWhatExists) {
    EXPECT_EQ(Db().Texts("PRAGMA foreign_key_check"), std::vector<std::string>());
    EXPECT_GT(Count("element WHERE parent_member IS NOT NULL"), 0);
    EXPECT_EQ(Count("element WHERE node_1 NOT IN (SELECT node FROM node) OR "
                    "node_2 NOT IN (SELECT node FROM node)"),
              0);
    EXPECT_EQ(Count("element WHERE prop_1d_id NOT IN (SELECT section FROM section)"), 0);
    EXPECT_EQ(Count("result_elem_1d r WHERE NOT EXISTS (SELECT 1 FROM element e WHERE "
                    "e.element = r.id)"),
              0);
    EXPECT_EQ(Count("result_node WHERE case_id NOT IN (SELECT case_id FROM \"case\")"), 0);
}

// Texts and figures come back as the model has them.
TEST_F(PortalTables, ComeBackAsTheyAreInTheModel) {
    const CVynData& model = Model();
    for (const auto& row :
         Db().Numbers("SELECT node, position_x, position_y, position_z FROM node")) {
        const Vec3<double>& position = model.Node(static_cast<int>(*row[0])).Position();
        EXPECT_NEAR(*row[1], position.x, 5e-7);
        EXPECT_NEAR(*row[2], position.y, 5e-7);
        EXPECT_NEAR(*row[3], position.z, 5e-7);
    }
    EXPECT_EQ(Db().Texts("SELECT job_number, initials, title FROM model"),
              std::vector<std::string>{"1001|VYN|Workshop hall"});
    for (const auto& row :
         Db().Numbers("SELECT id, case_number, disp_z, reaction_x FROM result_node WHERE case_type "
                      "= 'Analysis'")) {
        const int node = static_cast<int>(*row[0]);
        const SCaseRef ref = AnalysisRef(static_cast<int>(*row[1]));
        EXPECT_NEAR(*row[2], model.Disp(node, ref).z, 5e-7);
        const double reaction = model.ReactForce(node, ref).x;
        EXPECT_EQ(row[3].has_value(), !std::isnan(reaction));
        EXPECT_NEAR(row[3].value_or(0.0), std::isnan(reaction) ? 0.0 : reaction, 5e-7);
    }
}

// Bases with a restraint react, and so do the springs under others. In A7 a displacement is imposed
// where nothing is restrained: what it takes is no reaction.
TEST_F(PortalTables, ReactionsBalanceTheLoads) {
    std::string query = "SELECT load_x, load_y, load_z, reaction_x, reaction_y, reaction_z";
    for (const std::string direction : {"x", "y", "z"}) {
        query += ", (SELECT total(reaction_" + direction +
                 ") FROM result_node n WHERE n.case_id = g.case_id) + (SELECT total(force_" +
                 direction +
                 ") FROM result_spring s WHERE s.entity = 'NODE' AND s.case_id = g.case_id)";
    }
    const auto rows = Db().Numbers(query +
                                   " FROM result_global g WHERE case_type = 'Analysis' AND "
                                   "case_number <> 7");
    ASSERT_EQ(rows.size(), 11U);
    double largest = 0.0;
    for (const auto& row : rows) {
        for (std::size_t i = 0; i < 3; ++i) {
            EXPECT_NEAR(*row[i] + *row[i + 3], 0.0, 0.01);
            EXPECT_NEAR(*row[i + 6], *row[i + 3], 0.01);
            largest = std::max(largest, std::fabs(*row[i]));
        }
    }
    EXPECT_GT(largest, 1000.0);
}

/// The statements of a page that stand in blocks of SQL.
std::vector<std::string> QueriesOf(const std::string& page) {
    const std::string begin = "\n```sql\n";
    std::vector<std::string> queries;
    for (std::size_t at = page.find(begin); at != std::string::npos;
         at = page.find(begin, at + 1)) {
        const std::size_t first = at + begin.size();
        const std::string block = page.substr(first, page.find("\n```", first) + 1 - first);
        const std::vector<std::string> statements = StatementsOf(block);
        queries.insert(queries.end(), statements.begin(), statements.end());
    }
    return queries;
}

TEST_F(PortalTables, AnswerTheQuestionsOfTheirPage) {
    const auto queries = QueriesOf(TestSupport::ReadFile(TestSupport::SourceDir() / "docs/sql.md"));
    EXPECT_GE(queries.size(), 6U);
    for (const std::string& query : queries) {
        EXPECT_FALSE(Db().Texts(query).empty()) << query;
    }
}

/// Name of a table of results and what tells its rows of one case apart.
struct ResultTableName {
    const char* table;
    const char* position;
    std::vector<const char*> columns;
};

/// The rows of all analysis cases and of a combination, for comparison.
class Envelopes : public SampleTables {
protected:
    using Key = std::pair<double, double>;  ///< entity, position
    using Rows = std::map<Key, std::vector<std::vector<Database::Value>>>;

    Rows RowsOf(const ResultTableName& name, const std::string& type, int number) {
        std::string query = "SELECT id, " + std::string(name.position);
        for (const char* const column : name.columns) {
            query += std::string(", ") + column + ", " + column + "_perm";
        }
        query += " FROM " + std::string(name.table) + " WHERE case_type = '" + type +
                 "' AND case_number = " + std::to_string(number) + " ORDER BY rowid";
        Rows rows;
        for (auto& row : Db().Numbers(query)) {
            rows[{*row[0], *row[1]}].push_back({row.begin() + 2, row.end()});
        }
        return rows;
    }

    /// The value of every permutation of a combination, from the rows of the analysis cases.
    std::vector<double> Permutations(int combination, const std::map<int, Rows>& analysis,
                                     const Key& key, std::size_t column) {
        const CCombCaseDesc& desc = Model().CombinationCase(combination).Desc();
        std::vector<double> values(static_cast<std::size_t>(desc.NumPermutation(Model())));
        for (std::size_t p = 0; p < values.size(); ++p) {
            for (const auto& [number, rows] : analysis) {
                const double factor =
                    desc.CaseFactor(Model(), static_cast<int>(p) + 1, AnalysisRef(number));
                if (factor != 0.0) {
                    values[p] += factor * rows.at(key)[0][column].value_or(kMissing);
                }
            }
        }
        return values;
    }

    void Compare(const ResultTableName& name, int combination,
                 const std::map<int, Rows>& analysis) {
        for (const auto& [key, rows] : RowsOf(name, "Combination", combination)) {
            ASSERT_EQ(rows.size(), 2U);
            for (std::size_t i = 0; i < name.columns.size(); ++i) {
                const std::vector<double> values = Permutations(combination, analysis, key, 2 * i);
                if (std::isnan(values[0])) {
                    EXPECT_FALSE(rows[0][2 * i].has_value());
                    continue;
                }
                ++m_compared;
                const auto [least, most] = std::minmax_element(values.begin(), values.end());
                ExpectExtreme(rows[0], i, *least, values);
                ExpectExtreme(rows[1], i, *most, values);
            }
        }
    }

    void ExpectExtreme(const std::vector<Database::Value>& row, std::size_t i, double extreme,
                       const std::vector<double>& values) {
        constexpr double kRounding = 1e-5;  // six decimals of each case, times its factor
        EXPECT_NEAR(*row[2 * i], extreme, kRounding);
        const auto governing = static_cast<std::size_t>(*row[2 * i + 1]);
        ASSERT_GE(governing, 1U);
        ASSERT_LE(governing, values.size());
        EXPECT_NEAR(values[governing - 1], extreme, kRounding);
    }

    void CompareAll(const ResultTableName& name) {
        std::map<int, Rows> analysis;
        for (const int number : Model().AnalysisCaseTable().Numbers()) {
            analysis[number] = RowsOf(name, "Analysis", number);
        }
        m_compared = 0;
        for (const int number : Model().CombinationCaseTable().Numbers()) {
            if (Model().CombinationCase(number).Desc().NumPermutation(Model()) > 1) {
                Compare(name, number, analysis);
            }
        }
        EXPECT_GE(m_compared, 50) << name.table;
    }

    int m_compared = 0;
};

const ResultTableName kNodeTable{
    "result_node",
    "0",
    {"disp_x", "disp_y", "disp_z", "disp_yy", "reaction_x", "reaction_z", "reaction_yy"}};
const ResultTableName k1DTable{
    "result_elem_1d", "position_r", {"disp_z", "force_x", "force_z", "moment_y"}};

class PortalEnvelopes : public Envelopes {
protected:
    static void SetUpTestSuite() { Load("portal"); }
};

TEST_F(PortalEnvelopes, AreThoseOfThePermutations) {
    CompareAll(kNodeTable);
    CompareAll(k1DTable);
}

class BuildingEnvelopes : public Envelopes {
protected:
    static void SetUpTestSuite() { Load("building"); }
};

TEST_F(BuildingEnvelopes, AreThoseOfThePermutations) {
    CompareAll(kNodeTable);
    CompareAll(k1DTable);
    CompareAll(
        {"result_elem_2d", "10 * position_r + position_s", {"disp_z", "force_xx", "moment_yy"}});
    CompareAll({"result_assembly", "position_r", {"disp_x", "drift_x", "force_y", "moment_z"}});
}

TEST_F(BuildingEnvelopes, EveryTableLoads) {
    std::set<std::string> refused;
    for (const auto& [table, complaint] : s_loaded->refused) {
        refused.insert(table);
    }
    EXPECT_EQ(refused, (std::set<std::string>{"case", "permutation"}));
    for (const char* table : {"assembly", "prop_2d", "result_elem_2d", "result_assembly"}) {
        EXPECT_GT(Count(table), 0) << table;
    }
    EXPECT_EQ(Db().Texts("PRAGMA foreign_key_check"), std::vector<std::string>());
}

class IsolatedTables : public SampleTables {
protected:
    static void SetUpTestSuite() { Load("isolated"); }
};

TEST_F(IsolatedTables, SpringsAndSolids) {
    EXPECT_EQ(Db().Texts("PRAGMA foreign_key_check"), std::vector<std::string>());
    // The centre and the nodes of each solid, in seven cases and both rows of the combination.
    const double positions = Db().Number(
        "SELECT total(r) FROM (SELECT num_node + 1 AS r FROM "
        "element WHERE prop_3d_id IS NOT NULL)");
    EXPECT_GT(positions, 0);
    EXPECT_EQ(Count("result_elem_3d"), 9 * positions);
    EXPECT_GT(Count("result_spring WHERE entity = 'ELEMENT'"), 0);
    EXPECT_GT(Count("result_spring WHERE entity = 'NODE'"), 0);
}

}  // namespace
}  // namespace Tevra::Export

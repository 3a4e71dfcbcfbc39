#include <algorithm>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <stdexcept>
#include <string>
#include <system_error>
#include <vector>

#include "export/ExportAccess.h"
#include "platform/text/Utf8.h"
#include "support/TempFolder.h"

namespace Tevra::Export {
namespace {

namespace fs = std::filesystem;
using Access = VynExportAccess;
using Names = std::vector<std::string>;

SCaseRef Comb(int number, int permutation = 0) {
    return {CaseOp::Combination, number, permutation};
}

/// Two beams, a quad, a brick, a node spring and a spring element, with displacements in case A2.
CVynData MixedModel() {
    CVynData model;
    for (int number = 1; number <= 8; ++number) {
        const int row = number % 4 / 2;
        const int storey = number / 4;
        model.SetNode(number, Data::CNode({1.0 * (number % 2), 1.0 * row, 1.0 * storey}));
    }
    model.SetElem(1, Data::CElement(ElementType::Beam, {1, 2}, 1));
    model.SetElem(2, Data::CElement(ElementType::Quad4, {1, 2, 3, 4}, 1));
    model.SetElem(3, Data::CElement(ElementType::Brick8, {1, 2, 3, 4, 5, 6, 7, 8}, 1));
    model.SetElem(4, Data::CElement(ElementType::Spring, {1, 2}, 1));
    Data::CElement dummy(ElementType::Tie, {2, 3}, 1);
    dummy.SetDummy(true);
    model.SetElem(5, dummy);
    Data::CNode sprung;
    sprung.SetSpringProperty(3);
    model.SetNode(9, sprung);
    Data::CAssembly assembly;
    assembly.SetTopo(1, 1);
    assembly.SetTopo(2, 2);
    model.SetAssembly(1, assembly);
    model.SetAnalysisCase(1, CAnalysisCase(L"Empty", 1, L"L1"));
    model.SetAnalysisCase(2, CAnalysisCase(L"Dead", 1, L"L1"));
    model.SetAnalysisCase(4, CAnalysisCase(L"Live", 1, L"L2"));
    for (const int number : {2, 4, 7}) {  // A7 is no case of the model
        const double row[] = {0.1 * number, 0, 0, 0, 0, 0};
        model.EditResults().Edit(number).Edit(ResultKind::NodeDisp).Set(1, row);
    }
    return model;
}

class ExportDriver : public ::testing::Test {
protected:
    ExportDriver() {
        m_exporter.SetData(&m_model);
        m_exporter.SetPath((m_folder.Path() / "job.sql").string());
    }
    bool Run() {
        const CapturedOutput output;
        const bool written = m_exporter.WriteTables();
        m_printed = output.Text();
        return written;
    }
    fs::path Root() const { return m_folder.Path() / "job"; }
    std::string Read(const std::string& table) const {
        return TestSupport::ReadFile(Root() / table / (table + ".sql"));
    }
    static Names NamesIn(const fs::path& folder) {
        Names names;
        for (const auto& entry : fs::directory_iterator(folder)) {
            names.push_back(entry.path().filename().string());
        }
        std::sort(names.begin(), names.end());
        return names;
    }
    static Names NamesOf(const std::vector<fs::path>& files) {
        Names names;
        for (const fs::path& file : files) {
            names.push_back(file.stem().string());
        }
        return names;
    }

    TestSupport::TempFolder m_folder;
    CVynData m_model = MixedModel();
    CSqlExport m_exporter;
    std::string m_printed;
};

TEST(ExportPath, NamesTheFolder) {
    struct Case {
        const char* file;
        const wchar_t* stem;
        const char* path;
    };
    const Case cases[] = {
        {"D:\\jobs\\bridge.sql", L"bridge", "D:\\jobs\\bridge"},
        {"C:\\a\\b.c.sql", L"b.c", "C:\\a\\b.c"},
        {"/a/b.c/d", L"d", "/a/b.c/d"},
        {"bridge.sql", L"bridge", "bridge"},
        {"a/..", L"..", "a/.."},
        {"a/.", L".", "a/."},
        {"a/.sql", L"", "a/"},
        {"/x.sql", L"x", "/x"},
        {"a/Stra\xc3\x9f"
         "e.sql",
         L"Stra\u00dfe",
         "a/Stra\xc3\x9f"
         "e"},
    };
    for (const Case& c : cases) {
        CSqlExport exporter;
        exporter.SetPath(c.file);
        EXPECT_EQ(Access::Stem(exporter), c.stem);
        EXPECT_EQ(exporter.Path(), c.path);
    }
}

TEST_F(ExportDriver, OptionLettersAreTakenInEitherCase) {
    EXPECT_TRUE(m_exporter.FindOption('g'));
    Param param;
    param.option = "nx";
    m_exporter.SetParam(param);
    EXPECT_TRUE(m_exporter.FindOption('N'));
    EXPECT_TRUE(m_exporter.FindOption('X'));
    EXPECT_FALSE(m_exporter.FindOption('G'));
    param.option = "";
    m_exporter.SetParam(param);
    EXPECT_TRUE(m_exporter.FindOption('q'));
}

// A table is written when its letter is there and its list selects something for it.
TEST_F(ExportDriver, InclusionFollowsLettersAndLists) {
    struct Case {
        const char* option;
        const wchar_t* nodes;
        const wchar_t* elements;
        const wchar_t* assemblies;
        const char* included;  ///< letters of N 1 2 3 S A
    };
    const Case cases[] = {
        {"GN123SA", L"all", L"all", L"all", "N123SA"},
        {"n", L"all", L"all", L"all", "N"},
        {"", L"none", L"1 5", L"2", "1"},
        {"", L"1", L"2 5", L"none", "N2"},  // element 5 is a dummy
        {"", L"9", L"3", L"1", "N3SA"},     // a spring at the node
        {"", L"1", L"4", L"1", "NSA"},      // a spring element
        {"", L"20", L"5", L"none", ""},
    };
    for (const Case& c : cases) {
        Param param;
        param.option = c.option;
        param.nodeList = CEntList(c.nodes, SelType::Node);
        param.elementList = CEntList(c.elements, SelType::Element);
        param.assemblyList = CEntList(c.assemblies, SelType::Assembly);
        m_exporter.SetParam(param);
        std::string included;
        included += m_exporter.IncludeNode() ? "N" : "";
        included += m_exporter.Include1DElement() ? "1" : "";
        included += m_exporter.Include2DElement() ? "2" : "";
        included += m_exporter.Include3DElement() ? "3" : "";
        included += m_exporter.IncludeSpring() ? "S" : "";
        included += m_exporter.IncludeAssembly() ? "A" : "";
        EXPECT_EQ(included, c.included) << c.option;
    }
}

TEST_F(ExportDriver, SpringsAreThoseOfNodesThenElements) {
    using Springs = std::vector<std::pair<int, SelType>>;
    EXPECT_EQ(m_exporter.GetSpringElements(), (Springs{{9, SelType::Node}, {4, SelType::Element}}));
    ASSERT_EQ(m_exporter.Get1DElements().size(), 1U);
    EXPECT_EQ(m_exporter.Get1DElements()[0].first, 1);
    EXPECT_EQ(m_exporter.Get1DElements()[0].second, &m_model.Elem(1));
}

TEST_F(ExportDriver, ResultCasesAreAnalysisCasesThenCombinations) {
    m_model.SetCombinationCase(1, CCombinationCase(L"a", L"A2 + A4"));
    m_model.SetCombinationCase(2, CCombinationCase(L"b", L"A2 + A1"));   // A1 has no results
    m_model.SetCombinationCase(3, CCombinationCase(L"c", L"A2 + A99"));  // no such case
    m_model.SetCombinationCase(5, CCombinationCase(L"e", L"A2 or A4"));
    EXPECT_EQ(Access::MapResults(m_exporter), 4);
    EXPECT_EQ(Access::ResultCases(m_exporter),
              (std::vector<SCaseRef>{AnalysisRef(2), AnalysisRef(4), Comb(1), Comb(5)}));
    Param param;
    param.caseList = CEntList(L"A4 C5", SelType::Case);
    m_exporter.SetParam(param);
    EXPECT_EQ(Access::MapResults(m_exporter), 2);
    EXPECT_EQ(Access::ResultCases(m_exporter), (std::vector<SCaseRef>{AnalysisRef(4), Comb(5)}));

    EXPECT_EQ(Access::ExpandCases(m_exporter, AnalysisRef(4)),
              std::vector<SCaseRef>{AnalysisRef(4)});
    EXPECT_EQ(Access::ExpandCases(m_exporter, Comb(1)), std::vector<SCaseRef>{Comb(1)});
    EXPECT_EQ(Access::ExpandCases(m_exporter, Comb(5)),
              (std::vector<SCaseRef>{Comb(5, kMinimumEnvelope), Comb(5, kMaximumEnvelope)}));
}

TEST(ExportReport, NamesCasesInShort) {
    struct Case {
        SCaseRef ref;
        const char* text;
    };
    const Case cases[] = {
        {AnalysisRef(7), "A7"},     {Comb(3), "C3"},        {Comb(3, 2), "C3p2"},
        {Comb(3, -1), "C3min"},     {Comb(3, -2), "C3max"}, {Comb(3, -3), "C3abs"},
        {Comb(3, -4), "C3signabs"}, {Comb(3, -5), "C3"},    {{CaseOp(3), 1, 0}, ""},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(Access::CaseRefString(c.ref), c.text);
    }
}

TEST(ExportReport, TimingLines) {
    struct Case {
        bool all;
        const char* module;
        SCaseRef ref;
        int milliseconds;
        const char* text;
    };
    const Case cases[] = {
        {false, "node", AnalysisRef(2), 340, "    node results (case A2) 340ms\n"},
        {false, "Model", {}, 340, ""},
        {true, "Model", {}, 12345, "    Model results (total) 12s\n"},
        {true, "Model", {}, 10000, "    Model results (total) 10000ms\n"},
        {false, "Node", Comb(3), 10001, "    Node results (case C3) 10s\n"},
        {false, "Node", Comb(3, 4), 0, "    Node results (case C3) 0ms\n"},
        {false, "Node", Comb(3, -1), 1, "    Node results (case C3min) 1ms\n"},
        {false, "Node", Comb(3, -2), 1, "    Node results (case C3max) 1ms\n"},
        {false, "Node", Comb(3, -3), 1, "    Node results (case C3) 1ms\n"},
        {false, "Node", {CaseOp::Analysis, 0, 0}, 1, "    Node results (total) 1ms\n"},
        {true, "Node", {CaseOp(3), 1, 0}, 1, ""},
    };
    for (const Case& c : cases) {
        CSqlExport exporter;
        Param param;
        param.reportAllTimings = c.all;
        exporter.SetParam(param);
        const CapturedOutput output;
        exporter.ReportTime(c.module, c.ref, c.milliseconds);
        EXPECT_EQ(output.Text(), c.text);
    }
}

/// A dialect with another extension.
class Delimited : public CSqlExport {
public:
    explicit Delimited(const std::string& extension) { SetExtension(extension); }
};

TEST(ExportReport, SummaryTellsWhatWasChosen) {
    Param param;
    param.nodeList = CEntList(L" 1 to 5 ", SelType::Node);
    param.elementList = CEntList(L"none", SelType::Element);
    param.caseList = CEntList(L"A1 C2", SelType::Case);
    param.numBeamPosition = 7;
    param.includeInteresting = true;
    param.delimiter = ';';
    const std::string lists =
        "  Nodes: 1 to 5\n  Elements: none\n  Members: all\n  Assemblies: all\n  Cases: A1 C2\n"
        "  No. beam positions: 7\n  Include interesting points: true\n  No. result cases: 0\n";
    const std::pair<const char*, std::string> cases[] = {
        {"csv", "  File: a/job\n  Type: csv\n  Delimiter: ;\n  Output: single file\n"},
        {".csv", "  File: a/job\n  Type: .csv\n  Output: single file\n"},
    };
    for (const auto& [extension, begin] : cases) {
        Delimited exporter(extension);
        exporter.SetPath("a/job.x");
        exporter.SetParam(param);
        exporter.SetOneFilePerModule(false);
        const CapturedOutput output;
        Access::Summary(exporter);
        EXPECT_EQ(output.Text(), begin + lists);
    }
}

TEST_F(ExportDriver, WritesAFilePerTable) {
    Param param;
    param.option = "GN";
    param.reportAllTimings = true;
    m_exporter.SetParam(param);
    EXPECT_TRUE(Run()) << m_printed;
    EXPECT_EQ(NamesOf(m_exporter.WrittenFiles()),
              (Names{"model", "location", "history", "axis", "node", "member", "element",
                     "assembly", "section", "prop_2d", "prop_3d", "list", "case", "permutation",
                     "result_global", "result_node"}));
    EXPECT_TRUE(m_exporter.FailedFiles().empty());
    EXPECT_EQ(NamesIn(Root() / "node"), Names{"node.sql"});
    EXPECT_EQ(NamesIn(Root()).size(), 16U);
    const std::size_t model = m_printed.find("    Model results (total) ");
    const std::size_t first = m_printed.find("    Node results (case A2) ");
    const std::size_t second = m_printed.find("    Node results (case A4) ");
    EXPECT_LT(m_printed.find("  No. result cases: 2\n"), model);
    EXPECT_LT(model, first);
    EXPECT_LT(first, second);
    EXPECT_NE(second, std::string::npos);
}

TEST_F(ExportDriver, WritesOneFileWithTheSameStatements) {
    EXPECT_TRUE(Run());
    std::string all;
    for (const fs::path& file : m_exporter.WrittenFiles()) {
        all += TestSupport::ReadFile(file);
    }
    fs::remove_all(Root());
    m_model.SetHistory(CHistory());  // as it was the first time
    m_exporter.SetOneFilePerModule(false);
    EXPECT_TRUE(Run());
    EXPECT_EQ(NamesIn(Root()), Names{"job.sql"});
    EXPECT_EQ(TestSupport::ReadFile(Root() / "job.sql"), all);
    EXPECT_EQ(NamesOf(m_exporter.WrittenFiles()), Names{"job"});
}

TEST_F(ExportDriver, WritesTheSameAgain) {
    EXPECT_TRUE(Run());
    const std::string before = Read("node");
    EXPECT_TRUE(Run());
    EXPECT_EQ(Read("node"), before);
}

TEST_F(ExportDriver, ModelsWithoutResultsHaveNoTableOfCases) {
    m_model.EditResults().Clear();
    EXPECT_TRUE(Run());
    EXPECT_EQ(NamesIn(Root()).size(), 12U);
    EXPECT_FALSE(fs::exists(Root() / "case"));
    EXPECT_FALSE(fs::exists(Root() / "permutation"));
}

// The record is seen from the next export on; nothing else of the model changes.
TEST_F(ExportDriver, TheExportIsRecordedInTheHistory) {
    const CVynData before = m_model;
    EXPECT_TRUE(Run());
    EXPECT_EQ(Read("history").find("INSERT"), std::string::npos);
    ASSERT_EQ(m_model.History().NumRecord(), 1);
    EXPECT_EQ(m_model.History().Record(1).notes,
              L"Export of data to " + Text::FromUtf8(Root().string()));
    EXPECT_EQ(m_model.History().Record(1).date.size(), 10U);
    EXPECT_TRUE(Run());
    EXPECT_NE(Read("history").find("'Export of data to "), std::string::npos);
    EXPECT_EQ(m_model.History().NumRecord(), 2);
    m_model.SetHistory(CHistory());
    EXPECT_TRUE(m_model == before);
}

TEST_F(ExportDriver, ABusyModelLeavesEveryTableOut) {
    m_exporter.SetParam(Param{.option = "N"});
    {
        const CSingleLock lock(m_model.ShareResultsBusy(), true);
        EXPECT_FALSE(m_exporter.Node());
        m_model.EditResults().Clear();
        EXPECT_TRUE(m_exporter.Node());  // without results theirs does not count
    }
    const CSingleLock lock(m_model.ShareModelBusy(), true);
    EXPECT_FALSE(m_exporter.Axis());
    EXPECT_EQ(NamesOf(m_exporter.FailedFiles()), (Names{"node", "axis"}));
    EXPECT_FALSE(fs::exists(Root() / "axis"));
    // One file is opened without a look at the locks.
    m_exporter.SetOneFilePerModule(false);
    EXPECT_TRUE(Run());
    EXPECT_TRUE(m_exporter.FailedFiles().empty());
}

TEST_F(ExportDriver, WithoutAModelNothingIsWritten) {
    m_exporter.SetData(nullptr);
    EXPECT_FALSE(Run());
    EXPECT_FALSE(fs::exists(Root()));
}

TEST_F(ExportDriver, AFileThatCanNotBeOpenedIsNamedAndTheOthersAreWritten) {
    fs::create_directories(Root() / "node" / "node.sql");
    EXPECT_TRUE(Run());
    EXPECT_EQ(NamesOf(m_exporter.FailedFiles()), Names{"node"});
    EXPECT_NE(Read("element").find("INSERT"), std::string::npos);
}

TEST_F(ExportDriver, AFileOnAFullDiskIsNamed) {
    fs::create_directories(Root() / "node");
    fs::create_symlink("/dev/full", Root() / "node" / "node.sql");
    EXPECT_TRUE(Run());
    EXPECT_EQ(NamesOf(m_exporter.FailedFiles()), Names{"node"});
}

TEST_F(ExportDriver, AFolderThatCanNotBeMadeRaisesTheFileSystemsError) {
    std::ofstream(Root()) << "a file";
    for (const bool onePerModule : {true, false}) {
        m_exporter.SetOneFilePerModule(onePerModule);
        try {
            Run();
            ADD_FAILURE();
        } catch (const fs::filesystem_error& error) {
            EXPECT_NE(std::string(error.what()).find("create_directories"), std::string::npos);
        }
    }
}

// --- the folder before delimited output

TEST_F(ExportDriver, TheFolderLosesItsDelimitedFilesOnly) {
    fs::create_directories(Root() / "sub");
    for (const char* const name : {"a.csv", "b.CsV", "c.sql", "csv", "d.csv.txt", "sub/e.csv"}) {
        std::ofstream(Root() / name) << name;
    }
    Access::SetFolder(m_exporter);
    EXPECT_EQ(NamesIn(Root()), (Names{"c.sql", "csv", "d.csv.txt", "sub"}));
    EXPECT_EQ(NamesIn(Root() / "sub"), Names{"e.csv"});
}

TEST_F(ExportDriver, TheFolderIsMadeOneLevelDeep) {
    Access::SetFolder(m_exporter);
    EXPECT_TRUE(fs::is_directory(Root()));
    m_exporter.SetPath((m_folder.Path() / "no" / "job.sql").string());
    try {
        Access::SetFolder(m_exporter);
        ADD_FAILURE();
    } catch (const fs::filesystem_error& error) {
        EXPECT_NE(std::string(error.what()).find("create_directory"), std::string::npos);
        EXPECT_EQ(error.code(), std::errc::no_such_file_or_directory);
    }
}

TEST_F(ExportDriver, WhatCanNotBeListedOrRemovedRaisesTheFileSystemsError) {
    const auto wordOf = [this] {
        try {
            Access::SetFolder(m_exporter);
        } catch (const fs::filesystem_error& error) {
            return std::string(error.what());
        }
        return std::string();
    };
    std::ofstream(Root()) << "a file";
    EXPECT_NE(wordOf().find(" directory_iterator::directory_iterator:"), std::string::npos);
    fs::remove(Root());
    fs::create_directories(Root() / "full.csv" / "inside");
    EXPECT_NE(wordOf().find(" remove:"), std::string::npos);
}

// --- what exists

TEST_F(ExportDriver, ExistenceTestsRefuseOtherLetters) {
    const SCaseRef a2 = AnalysisRef(2);
    EXPECT_TRUE(Access::DisplacementExist(m_exporter, a2, 'N'));
    EXPECT_FALSE(Access::DisplacementExist(m_exporter, AnalysisRef(1), '3'));
    EXPECT_TRUE(Access::DisplacementExist(m_exporter, AnalysisRef(1), 'A'));
    EXPECT_FALSE(Access::ForceExist(m_exporter, a2, '1'));
    EXPECT_TRUE(Access::ForceExist(m_exporter, a2, 'A'));
    using ExistTest = bool (*)(const CVynExport&, const SCaseRef&, char);
    struct Case {
        ExistTest test;
        const char* letters;
        const char* message;
    };
    const Case cases[] = {
        {&Access::DisplacementExist, "0G~n", "invalid displacement option"},
        {&Access::ForceExist, "N3G", "invalid force option"},
        {&Access::StressExist, "1SAN", "invalid stress option"},
    };
    for (const Case& c : cases) {
        for (const char letter : std::string(c.letters)) {
            try {
                c.test(m_exporter, a2, letter);
                ADD_FAILURE() << letter;
            } catch (const std::logic_error& error) {
                EXPECT_STREQ(error.what(), c.message);
            }
        }
    }
}

}  // namespace
}  // namespace Tevra::Export

#include <gtest/gtest.h>
#include <limits>
#include <sstream>
#include <string>
#include <vector>

#include "dyna/CeapDampingFile.h"
#include "model/VynData.h"
#include "platform/text/HostPath.h"
#include "platform/ui/RecordingHost.h"
#include "support/TempFolder.h"
#include "support/TestPaths.h"

namespace Tevra {
namespace {

constexpr const wchar_t* kOpenError =
    L"<red>Error:          </red>Unable to open file\n%s\nfor writing.\n\nCheck that the file is "
    L"not "
    L"in use by another user\nand that you have permission to write to the file.";

void AddTask(CVynData& model, int number, SolutionType solution, bool analysed) {
    CAnalysisTask task;
    task.SetSolution(solution);
    task.SetAnalysed(analysed);
    model.SetAnalysisTask(number, task);
}

/// A mode of a task as an analysis case with results at the nodes 1 on.
void AddMode(CVynData& model, int caseNumber, int task, int mode, double frequency, double mass,
             const std::vector<Vec3<double>>& shape) {
    model.SetAnalysisCase(caseNumber, CAnalysisCase(L"", task, L"M" + std::to_wstring(mode)));
    CaseResults& results = model.EditResults().Edit(caseNumber);
    results.EditGlobal().mode = mode;
    results.EditGlobal().frequency = frequency;
    results.EditGlobal().modalMass = mass;
    for (std::size_t i = 0; i < shape.size(); ++i) {
        const double row[] = {shape[i].x, shape[i].y, shape[i].z, 0.0, 0.0, 0.0};
        results.Edit(ResultKind::NodeDisp).Set(static_cast<int>(i) + 1, row);
    }
}

CVynData ModelOf(int nodes, int modes) {
    CVynData model;
    for (int i = 1; i <= nodes; ++i) {
        model.SetNode(i, Data::CNode({1.0 * i, 0.0, 0.0}));
    }
    AddTask(model, 1, SolutionType::Modal, true);
    for (int i = 1; i <= modes; ++i) {
        AddMode(model, i, 1, i, 2.0 * i, 100.0 * i, {{0.5 * i, 0.0, -1.0}});
    }
    return model;
}

class DampingFile : public ::testing::Test {
protected:
    /// Writes and gives the text of the file.
    std::string Write(CVynData& model) {
        m_writer.SetData(&model);
        const ScopedHost scope(m_host);
        m_written = m_writer.OpenWrite(Text::FromPath(m_folder.Path() / "damping.txt"));
        return TestSupport::ReadFile(m_folder.Path() / "damping.txt");
    }
    static std::vector<std::string> LinesOf(const std::string& text) {
        std::vector<std::string> lines;
        std::istringstream stream(text);
        for (std::string line; std::getline(stream, line);) {
            lines.push_back(line);
        }
        return lines;
    }

    TestSupport::TempFolder m_folder;
    RecordingHost m_host;
    CCeapDampingFile m_writer;
    bool m_written = false;
};

// Two tasks that do not count, one that does, one too late; gaps in nodes; a mode that the list
// leaves out; a node without a shape; numbers of several magnitudes.
TEST_F(DampingFile, WholeFile) {
    CVynData model;
    for (const int number : {1, 2, 3, 9, 10}) {
        model.SetNode(number, Data::CNode({1.0 * number, 0.0, 0.0}));
    }
    AddTask(model, 1, SolutionType::Static, true);
    AddTask(model, 2, SolutionType::Modal, false);
    AddTask(model, 4, SolutionType::ModalPDelta, true);
    AddTask(model, 5, SolutionType::Modal, true);
    AddMode(model, 3, 4, 1, 3.125, 15400.0, {{1.0, 0.0, -0.25}, {0.5, 1e-5, 0.0}});
    AddMode(model, 4, 5, 1, 99.0, 99.0, {{9.0, 9.0, 9.0}});
    AddMode(model, 6, 4, 2, 999999.5, 1.0, {});
    AddMode(model, 7, 4, 3, 12.0, 1.0, {});
    AddMode(model, 8, 2, 1, 98.0, 98.0, {});
    m_writer.SetNodeList(CEntList(L"1 2 4 9", SelType::Node));
    m_writer.SetModeList(CEntList(L"1 2", SelType::Mode));
    m_writer.SetDamping(0.015);
    const std::string text = Write(model);
    EXPECT_TRUE(m_written);
    EXPECT_EQ(text,
              TestSupport::ReadFile(TestSupport::SourceDir() / "tests/golden/damping/gaps.txt"));
    EXPECT_TRUE(m_host.events.empty());
    EXPECT_EQ(
        m_writer.ErrorLog(),
        L"Note:           Displacements of nodes that the results do not have, written as 0: 4");
}

TEST_F(DampingFile, AWriterOutsideOpenWriteHasNoStream) {
    CVynData model = ModelOf(1, 1);
    m_writer.SetData(&model);
    EXPECT_FALSE(m_writer.Write());
}

TEST_F(DampingFile, ModesWithoutFiguresAreNoted) {
    CVynData model = ModelOf(1, 2);
    model.EditResults().Edit(2).EditGlobal().frequency = std::numeric_limits<double>::quiet_NaN();
    Write(model);
    EXPECT_TRUE(m_written);
    EXPECT_NE(m_writer.ErrorLog().find(L"Note:           Modes without frequency or modal mass: 1"),
              std::wstring::npos);
}

TEST_F(DampingFile, TwentyNodesMakeTwoLinesAndNoEmptyOne) {
    CVynData model = ModelOf(20, 1);
    const std::vector<std::string> lines = LinesOf(Write(model));
    ASSERT_GT(lines.size(), 11U);
    EXPECT_EQ(lines[4], "      20       1");
    EXPECT_EQ(lines[7], "$ Applicable nodes");
    EXPECT_EQ(lines[8],
              "       1       2       3       4       5       6       7       8       9      10");
    EXPECT_EQ(lines[9],
              "      11      12      13      14      15      16      17      18      19      20");
    EXPECT_EQ(lines[10], "$ 1");
}

TEST_F(DampingFile, SevenModesMakeTwoLinesInEachDirection) {
    CVynData model = ModelOf(1, 7);
    const std::vector<std::string> lines = LinesOf(Write(model));
    const std::vector<std::string> shape(lines.begin() + 15, lines.end());
    const std::vector<std::string> expected = {
        "$ 1",
        "$ x",
        "        0.500000         1.00000         1.50000         2.00000         2.50000",
        "         3.00000         3.50000",
        "$ y",
        "         0.00000         0.00000         0.00000         0.00000         0.00000",
        "         0.00000         0.00000",
        "$ z",
        "        -1.00000        -1.00000        -1.00000        -1.00000        -1.00000",
        "        -1.00000        -1.00000",
        "$ end of file"};
    EXPECT_EQ(shape, expected);
}

TEST_F(DampingFile, NothingToWriteIsRefusedAndLeavesAnEmptyFile) {
    struct Case {
        const char* what;
        void (*change)(CVynData&, CCeapDampingFile&);
    };
    const Case cases[] = {
        {"no modal task",
         [](CVynData& m, CCeapDampingFile&) { AddTask(m, 1, SolutionType::Ritz, true); }},
        {"task not analysed",
         [](CVynData& m, CCeapDampingFile&) { AddTask(m, 1, SolutionType::Modal, false); }},
        {"no node",
         [](CVynData&, CCeapDampingFile& w) { w.SetNodeList(CEntList(L"7", SelType::Node)); }},
        {"no mode",
         [](CVynData&, CCeapDampingFile& w) { w.SetModeList(CEntList(L"none", SelType::Mode)); }},
        {"modes of a later task only",
         [](CVynData& m, CCeapDampingFile&) {
             AddTask(m, 2, SolutionType::Modal, true);
             m.SetAnalysisCase(1, CAnalysisCase(L"", 2, L"M1"));
         }},
        {"list that can't be read",
         [](CVynData&, CCeapDampingFile& w) { w.SetNodeList(CEntList(L"1 to", SelType::Node)); }}};
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        CVynData model = ModelOf(2, 1);
        CCeapDampingFile writer;
        RecordingHost host;
        const ScopedHost scope(host);
        c.change(model, writer);
        writer.SetData(&model);
        const std::filesystem::path path = m_folder.Path() / "nothing.txt";
        EXPECT_FALSE(writer.OpenWrite(Text::FromPath(path)));
        EXPECT_EQ(TestSupport::ReadFile(path), "");
        EXPECT_EQ(host.Messages(), std::vector<std::wstring>{L"Errors writing file"});
        std::wstring log = kOpenError;
        log.replace(log.find(L"%s"), 2, Text::FromPath(path));
        EXPECT_EQ(writer.ErrorLog(), log);
    }
}

TEST_F(DampingFile, FullDiskIsReportedAndTheModelIsAsItWas) {
    CVynData model = ModelOf(3, 2);
    const CVynData before = model;
    m_writer.SetData(&model);
    const ScopedHost scope(m_host);
    EXPECT_FALSE(m_writer.OpenWrite(L"/dev/full"));
    EXPECT_EQ(m_host.Messages().size(), 1U);
    EXPECT_TRUE(model == before);
}

}  // namespace
}  // namespace Tevra

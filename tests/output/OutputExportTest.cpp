#include <algorithm>
#include <array>
#include <gtest/gtest.h>
#include <sstream>
#include <utility>

#include "model/VynData.h"
#include "output/OutputExport.h"
#include "platform/text/Utf8.h"
#include "platform/ui/RecordingHost.h"
#include "support/FullModel.h"
#include "support/TempFolder.h"

namespace Tevra {
namespace {

using Rows = std::vector<std::vector<std::string>>;

/// Delimited text as its standard reads it, by one character at a time.
Rows ReadDelimited(const std::string& text, char separator) {
    Rows rows;
    std::vector<std::string> row;
    std::string cell;
    bool quoted = false;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        if (quoted) {
            const bool isDoubled = c == '"' && i + 1 < text.size() && text[i + 1] == '"';
            quoted = c != '"' || isDoubled;
            i += isDoubled ? 1 : 0;
            cell += quoted ? std::string(1, c) : "";
        } else if (c == '"') {
            quoted = true;
        } else if (c == separator || c == '\n') {
            row.push_back(std::exchange(cell, {}));
            if (c == '\n') {
                rows.push_back(std::exchange(row, {}));
            }
        } else {
            cell += c;
        }
    }
    EXPECT_FALSE(quoted);
    EXPECT_TRUE(cell.empty() && row.empty()) << "no line end at the end";
    return rows;
}

constexpr std::size_t kTitleRows = 11;

class OutputExportTest : public testing::Test {
protected:
    OutputExportTest() {
        m_host.listSeparator = L",";
        m_model.SetNode(1, Named(L"A, \"quoted\"\nsecond", {1.0, -2.5, 1234567.0}));
        m_model.SetNode(3, Named(L"\u00C4ste \U0001F332", {0.001, 0.0, 1e-7}));
        CTitles titles;
        titles.SetJobTitle(L"Job; one");
        titles.SetFileName(L"model.json");
        titles.SetDateSaved(L"2026-11-21");
        m_model.SetTitle(titles);
        m_view.SetName(L"All nodes");
        m_view.SetData({Data::CDataRef(L"nodes")});
    }
    static Data::CNode Named(const wchar_t* name, const Vec3<double>& position) {
        Data::CNode node(position);
        node.SetName(name);
        return node;
    }
    std::string Export(const char* name) {
        OutputExport output(m_model);
        output.SetFileName(m_folder.Path() / name);
        output.SetOutputSpec(&m_view);
        EXPECT_TRUE(output.Export());
        m_complete = output.IsComplete();
        return TestSupport::ReadFile(m_folder.Path() / name);
    }
    /// The rows of the view behind the title block.
    Rows Body(const char* kind) {
        m_view.SetData({Data::CDataRef(Text::FromUtf8(kind))});
        Rows rows = ReadDelimited(Export("body.csv").substr(3), ',');
        rows.erase(rows.begin(), rows.begin() + kTitleRows);
        return rows;
    }

    TestSupport::TempFolder m_folder;
    RecordingHost m_host;
    ScopedHost m_scope{m_host};
    CVynData m_model;
    Data::COpView m_view;
    bool m_complete = false;
};

TEST_F(OutputExportTest, SeparatorsByExtensionAndHost) {
    struct Case {
        const char* name;
        const wchar_t* setting;
        char separator;
    };
    for (const Case& c :
         {Case{"a.csv", L",", ','}, Case{"a.csv", L";", ';'}, Case{"a.TXT", L";", '\t'},
          Case{"a.txt", L",", '\t'}, Case{"a", L"", ','}, Case{"a.dat", L"|x", '|'}}) {
        m_host.listSeparator = c.setting;
        const std::string text = Export(c.name);
        ASSERT_EQ(text.substr(0, 3), "\xEF\xBB\xBF");
        const Rows rows = ReadDelimited(text.substr(3), c.separator);
        ASSERT_EQ(rows.size(), kTitleRows + 6U);
        EXPECT_EQ(rows[0], (std::vector<std::string>{"All nodes : Nodes"}));
        EXPECT_EQ(rows[1][0], "Job; one");
        EXPECT_EQ(rows[2][0], "");
        EXPECT_EQ(rows[6][0], "64-bit");
        EXPECT_EQ(rows[8][0], "model.json");
        EXPECT_EQ(rows[9][0], "2026-11-21");
        EXPECT_EQ(rows[10][0], "");
        EXPECT_EQ(rows[14][1], "A, \"quoted\"\nsecond");
        EXPECT_EQ(rows[15][1], "\xC3\x84ste \xF0\x9F\x8C\xB2");
        EXPECT_EQ(rows[14][4], "1.23457e+06");
    }
}

TEST_F(OutputExportTest, TitleNamesOneItemAlone) {
    m_view.SetData({Data::CDataRef(L"nodes"), Data::CDataRef(L"cases")});
    EXPECT_EQ(ReadDelimited(Export("a.csv").substr(3), ',')[0][0], "All nodes");
}

TEST_F(OutputExportTest, FiguresAreInTheUnitsOfTheModel) {
    CUnit units;
    units.SetUnitString(2, L"mm");
    m_model.SetUnits(units);
    const Rows rows = Body("nodes");
    EXPECT_EQ(rows[0], (std::vector<std::string>{"Nodes"}));
    EXPECT_EQ(rows[1][2], "x");
    EXPECT_EQ(rows[2][2], "mm");
    EXPECT_EQ(rows[3][3], "-2500");
    EXPECT_EQ(rows[4][0], "3");
    EXPECT_EQ(rows[4][4], "0.0001");
}

TEST_F(OutputExportTest, EquationsOfPressureAreInTheUnitsOfTheModel) {
    CUnit units;
    units.SetUnitString(2, L"mm");
    units.SetUnitString(7, L"kN/m²");
    m_model.SetUnits(units);
    for (const int number : m_model.FaceLoadTable().Numbers()) {
        m_model.DeleteFaceLoad(number);
    }
    Data::CFaceLoad load;
    load.SetType(FaceLoadType::Equation);
    load.SetEquation({1000.0, 0.0, 0.0, -5000.0});
    m_model.SetFaceLoad(1, load);
    const Rows rows = Body("loads");
    const auto row = std::find_if(rows.begin(), rows.end(), [](const auto& cells) {
        return cells.front().starts_with("Face load");
    });
    ASSERT_NE(row, rows.end());
    EXPECT_EQ((*row)[row->size() - 2], "1 0 0 -0.005");
    EXPECT_EQ(row->back(), "kN/m²");
}

TEST_F(OutputExportTest, TheListsOfTheViewChoose) {
    m_view.SetNodes(CEntList(L"not 1", SelType::Node));
    const Rows rows = Body("nodes");
    ASSERT_EQ(rows.size(), 5U);
    EXPECT_EQ(rows[3][0], "3");
}

TEST_F(OutputExportTest, EveryProviderGivesRowsOfItsColumns) {
    m_model = TestSupport::MakeFullModel();
    for (const int number : m_model.ElemTable().Numbers()) {
        ResultTable& stresses = m_model.EditResults().Edit(1).Edit(ResultKind::Elem2DStress);
        stresses.Set(number, std::array<double, 36>{1.0, 2.0});
    }
    for (const std::wstring& name : Output::ProviderNames()) {
        const Rows rows = Body(Text::ToUtf8(name).c_str());
        EXPECT_TRUE(m_complete);
        ASSERT_GT(rows.size(), 4U) << Text::ToUtf8(name);
        EXPECT_EQ(rows.back(), (std::vector<std::string>{""}));
        for (std::size_t i = 1; i + 1 < rows.size(); ++i) {
            EXPECT_EQ(rows[i].size(), rows[1].size()) << Text::ToUtf8(name) << i;
        }
    }
}

TEST_F(OutputExportTest, ResultsByCase) {
    ResultTable& table = m_model.EditResults().Edit(2).Edit(ResultKind::NodeReaction);
    table.Set(3, std::array{1000.0, 0.0, -2500.0, 0.0, 4e3, 0.0});
    m_model.SetAnalysisCase(2, CAnalysisCase(L"Dead", 0, L"L1"));
    m_model.SetCombinationCase(1, CCombinationCase(L"Factored", L"1.5A2"));
    m_model.SetCombinationCase(2, CCombinationCase(L"Either", L"A2 or 2A2"));
    CUnit units;
    units.SetUnitString(1, L"kN");
    m_model.SetUnits(units);
    const Rows rows = Body("reactions");
    ASSERT_EQ(rows.size(), 8U);
    EXPECT_EQ(rows[2],
              (std::vector<std::string>{"", "", "kN", "kN", "kN", "kN.m", "kN.m", "kN.m"}));
    EXPECT_EQ(rows[3], (std::vector<std::string>{"A2", "3", "1", "0", "-2.5", "0", "4", "0"}));
    EXPECT_EQ(rows[4][4], "-3.75");
    EXPECT_EQ(rows[5][0] + rows[5][4], "C2 max-2.5");
    EXPECT_EQ(rows[6][0] + rows[6][4], "C2 min-5");
}

TEST_F(OutputExportTest, AHostAddsAProvider) {
    Output::RegisterProvider(L"own",
                             {{{L"Answer"}}, [](Output::CRows& rows) { rows.Int(42).EndRow(); }});
    const Rows rows = Body("own");
    EXPECT_EQ(rows, (Rows{{"own"}, {"Answer"}, {""}, {"42"}, {""}}));
    EXPECT_EQ(Body("none"), (Rows{{"none"}, {""}}));
    EXPECT_FALSE(m_complete);
}

TEST_F(OutputExportTest, AFileThatCanNotBeOpened) {
    OutputExport output(m_model);
    output.SetFileName(m_folder.Path() / "no" / "a.csv");
    output.SetOutputSpec(&m_view);
    EXPECT_FALSE(output.Export());
    output.SetFileName("/dev/full");
    EXPECT_TRUE(output.Export());
    EXPECT_FALSE(output.IsComplete());
}

TEST_F(OutputExportTest, ADocumentGetsTheSameLines) {
    struct Document : CUlmWrite {
        void Begin(const std::wstring& text) override { lines.push_back(text); }
        void WriteLine(std::wstring_view line) override { lines.emplace_back(line); }
        void End(const std::wstring& text) override { lines.push_back(text); }
        std::vector<std::wstring> lines;
    } document;
    m_view.SetData({Data::CDataRef(L"cases")});
    OutputExport output(m_model);
    output.SetOutputSpec(&m_view);
    output.SetDocument(&document, L"Head", L"Foot");
    std::ostringstream text;
    CUlmFormatCsv format(L',');
    format.SetFile(&text);
    output.DoOutput(format);
    EXPECT_TRUE(format.Flush());
    EXPECT_EQ(document.lines,
              (std::vector<std::wstring>{L"Head", L"Cases",
                                         L"Case\u001FName\u001FDescription\u001FSolution",
                                         L"\u001F\u001F\u001F", L"", L"Foot"}));
    EXPECT_EQ(std::ranges::count(text.str(), '\n'), static_cast<long>(kTitleRows) + 4);
}

}  // namespace
}  // namespace Tevra

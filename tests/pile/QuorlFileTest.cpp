#include <cmath>
#include <fstream>
#include <gtest/gtest.h>

#include "model/VynData.h"
#include "pile/QuorlFile.h"
#include "platform/text/HostPath.h"
#include "platform/ui/Logger.h"
#include "platform/ui/RecordingHost.h"
#include "support/TempFolder.h"

namespace Tevra {
namespace {

using TestSupport::ReadFile;
using TestSupport::TempFolder;
using Kind = RecordingHost::Kind;
using Texts = std::vector<std::wstring>;

/// Soil data of every kind, names that the file must escape among them.
void FillSoil(CVynData& model) {
    CTitles titles;
    titles.SetJobTitle(L"Silo, phase 2");
    titles.SetJobNumber(L"1005");
    titles.SetInitials(L"VYN");
    model.SetTitle(titles);
    CProgTitles program;
    program.SetProgramVersion(8, 7, 12);
    model.SetProgTitle(program);
    model.SetRaft({-45.0, 12.5, 0.3, 1});

    Data::CSoilProfile profile;
    profile.SetName(L"Bohrung \u00fc, back\\slash\nsecond line");
    profile.SetLayers({{0.0, 1.2e7, 2e7, 0.45, 4}, {-6.0, 3e7, 6e7, 0.1, 0}});
    model.SetSoilProfile(2, profile);
    Data::CSoilZone zone;
    zone.SetName(L"West");
    zone.SetProfile(2);
    zone.SetExtents({-20.0, -15.0}, {5.0, 30.0});
    model.SetSoilZone(1, zone);
    Data::CSoilCurve curve;
    curve.SetName(L"Clay");
    curve.SetPoints({{1e-5, 1.0}, {0.01, 0.1}});
    model.SetSoilCurve(4, curve);
    curve.SetName(L"Shaft");
    curve.SetPoints({{0.003, 4e5}});
    model.SetPileSoilCurve(7, curve);
    Data::CPileSoilProperty property;
    property.SetName(L"Bored pile");
    property.Set({7, 7, 0.2827, 7e4, 1.8e6});
    model.SetPileSoilProperty(3, property);
    for (const int loadCase : {1, 2}) {
        Data::CSoilRectLoad load;
        load.SetName(L"Yard");
        load.Set({loadCase, {18.0, 5.0, -0.5}, 10.0, {8.0, 20.0}, 15000.0, {500.0, -250.0}});
        model.SetSoilRectLoad(loadCase, load);
    }
}

bool HasSameSoil(const CVynData& a, const CVynData& b) {
    return a.SoilProfileTable() == b.SoilProfileTable() && a.SoilZoneTable() == b.SoilZoneTable() &&
           a.SoilCurveTable() == b.SoilCurveTable() &&
           a.PileSoilPropertyTable() == b.PileSoilPropertyTable() &&
           a.PileSoilCurveTable() == b.PileSoilCurveTable();
}

class QuorlFileTest : public testing::Test {
protected:
    QuorlFileTest() {
        std::tm clock{};
        clock.tm_year = 126;
        clock.tm_mon = 10;
        clock.tm_mday = 21;
        clock.tm_hour = 9;
        clock.tm_min = 5;
        m_host.clock = clock;
        FillSoil(m_model);
    }

    std::wstring Path(const char* name = "soil.qdf") const {
        return Text::FromPath(m_folder.Path() / name);
    }
    bool Export(int loadCase = 1, int raftCases = 1) {
        return CQuorlFile(m_model, &m_logger, Path(), loadCase, raftCases, false).DoExport();
    }
    bool Import(CVynData& model) {
        return CQuorlFile(model, &m_logger, Path(), 1, 1, false).DoImport();
    }
    std::string Exported() {
        EXPECT_TRUE(Export());
        m_host.events.clear();
        return ReadFile(m_folder.Path() / "soil.qdf");
    }
    void Put(const std::string& text) const {
        std::ofstream(m_folder.Path() / "soil.qdf", std::ios::binary) << text;
    }

    TempFolder m_folder;
    RecordingHost m_host;
    ScopedHost m_scope{m_host};
    Logger m_logger;
    CVynData m_model;
};

TEST_F(QuorlFileTest, WritesTheWholeFile) {
    const CVynData before = m_model;
    EXPECT_EQ(Exported(), ReadFile("tests/golden/pile/soil.qdf"));
    EXPECT_TRUE(m_model == before);
}

TEST_F(QuorlFileTest, SoilDataComeBackAsTheyWere) {
    ASSERT_TRUE(Export());
    CVynData read;
    read.SetProgTitle(m_model.ProgTitle());
    Data::CSoilProfile former;
    read.SetSoilProfile(9, former);
    read.SetSoilRectLoad(5, {});
    m_host.events.clear();
    m_host.answers = {true};
    ASSERT_TRUE(Import(read));
    EXPECT_TRUE(HasSameSoil(read, m_model));
    EXPECT_EQ(read.Raft(), m_model.Raft());
    ASSERT_EQ(read.NumSoilRectLoad(), 1) << "that of the exported case, in place of the former";
    EXPECT_EQ(read.SoilRectLoad(1), m_model.SoilRectLoad(1));
    EXPECT_EQ(m_host.Messages(), Texts());
    EXPECT_EQ(m_host.Texts(Kind::Question),
              Texts{L"There are soil load data in the Quorl file, circular and poly loads will not "
                    L"be imported into VYN, rectangular loads can be imported, "});
    EXPECT_EQ(m_host.Texts(Kind::Log),
              (Texts{L"Start importing Quorl file", L"Finish importing Quorl file"}));
}

TEST_F(QuorlFileTest, NoToTheQuestionLeavesTheFormerLoads) {
    ASSERT_TRUE(Export());
    CVynData read;
    read.SetSoilRectLoad(5, m_model.SoilRectLoad(2));
    m_host.answers = {false};
    ASSERT_TRUE(Import(read));
    EXPECT_EQ(read.NumSoilRectLoad(), 1);
    EXPECT_TRUE(read.SoilRectLoadExist(5));
    EXPECT_TRUE(HasSameSoil(read, m_model));
}

TEST_F(QuorlFileTest, LogsSayWhichCaseOfSeveral) {
    ASSERT_TRUE(Export(2, 3));
    const std::vector<RecordingHost::Event> expected{
        {Kind::Log, L"Start exporting Quorl file", 1, 1},
        {Kind::Log,
         L"There are 3 Fendra analysis cases in this model,\n the Soil Load data in the exported "
         L"Quorl file\n are corresponding to Analysis Case 2.",
         1, 1},
        {Kind::Log, L"Finish exporting Quorl file", 1, 1}};
    EXPECT_EQ(m_host.events, expected);
    EXPECT_NE(ReadFile(m_folder.Path() / "soil.qdf").find("\n2,Yard,2,"), std::string::npos);
}

TEST_F(QuorlFileTest, FilesThatCannotBeOpened) {
    CQuorlFile file(m_model, &m_logger, Path("missing/soil.qdf"), 1, 2, false);
    EXPECT_FALSE(file.DoExport());
    EXPECT_FALSE(file.DoImport());
    const std::vector<RecordingHost::Event> expected{
        {Kind::Log, L"Start exporting Quorl file", 1, 1},
        {Kind::Message, L"Cannot open file"},
        {Kind::Log, L"Exporting Quorl file failed", 1, 1},
        {Kind::Log, L"Start importing Quorl file", 1, 1},
        {Kind::Log, L"Fail to open the Quorl file", 1, 1},
        {Kind::Log, L"Importing Quorl file failed or abandoned", 1, 1}};
    EXPECT_EQ(m_host.events, expected);
    EXPECT_TRUE(file.QuorlDataExist()) << "the model is as it was";
}

TEST_F(QuorlFileTest, ANumberThatCannotBeReadBackFailsItsModule) {
    Data::CPileSoilProperty property;
    property.Set({0, 0, std::nan(""), 0.0, 0.0});
    m_model.SetPileSoilProperty(3, property);
    EXPECT_FALSE(Export());
    EXPECT_EQ(m_host.Messages(), Texts{L"Error writing data - PILE SOIL PROPERTIES"});
}

TEST_F(QuorlFileTest, AFullDeviceFails) {
    CQuorlFile file(m_model, nullptr, L"/dev/full", 1, 1, false);
    EXPECT_FALSE(file.DoExport());
    ASSERT_EQ(m_host.Messages().size(), 1U);
    EXPECT_TRUE(m_host.Messages().front().starts_with(L"Error writing data - "));
}

/// A change of the exported file, and what the reader must say of it.
struct Damage {
    const char* from;
    const char* to;
    std::wstring message;  ///< empty: none
    bool isRead;
};

const std::wstring kErrors = L"Errors reading data file modules:\n\n";
const std::wstring kWarnings = L"Warnings readiing data file modules:\n\n";

TEST_F(QuorlFileTest, DamageIsNamedByModule) {
    const std::string good = Exported();
    const std::wstring later =
        L"This Quorl file was written by a later version of Quorl - Quorl 8.10.0'\nSome modules "
        L"may not be readable in this version of Quorl. ";
    const Damage damages[] = {
        {"TEVRA DATA FILE", "TEVRA DATA", L"Not an Tevra File", false},
        {"PROGRAM,Quorl", "PROGRAM,Other", L"Not an Tevra File", false},
        {"VERSION,8.7.12", "VERSION,8.7", L"Not an Tevra File", false},
        {"END HEADER\n", "", L"Not an Tevra File", false},
        {"VERSION,8.7.12", "VERSION,8.10.0", later, true},
        {"VERSION,8.7.12", "VERSION,8.6.99", L"", true},
        {"SOIL ZONES,1,1", "SOIL ZONES,1,2", kErrors + L"SOIL ZONES\n", false},
        {"SOIL ZONES,1,1", "SOIL ZONES,1,2147483647", kErrors + L"SOIL ZONES\n", false},
        {"SOIL ZONES,1,1", "SOIL ZONES,1,0", kErrors + L"SOIL ZONES\n", false},
        {"SOIL ZONES,1,1", "SOIL ZONES,0,1", kErrors + L"SOIL ZONES\n", false},
        {"1,West,2,", "1,West,2,x", kErrors + L"SOIL ZONES\n", false},
        {"1,West,2,", "0,West,2,", kErrors + L"SOIL ZONES\n", false},
        {"1,West,2,", "1,West,2,1,", kErrors + L"SOIL ZONES\n", false},
        {"1,West,2,-20,", "1,West,2,", kErrors + L"SOIL ZONES\n", false},
        {"1,West,2,-20,", "1,West,2,inf,", kErrors + L"SOIL ZONES\n", false},
        {"END MODULE,SOIL ZONES", "END MODULE,SOIL CURVES", kErrors + L"SOIL ZONES\n", false},
        {"RIGID LEVEL", "RIGID LEVELS", kErrors + L"GENERAL\n", false},
        {"METHOD,0", "METHOD,2", kErrors + L"GENERAL\n", false},
        {"METHOD,0", "LEGACY MINDLIN,0", kErrors + L"GENERAL\n", false},
        {"GENERAL,1,15\nMETHOD,0\n", "GENERAL,1,14\n", kErrors + L"GENERAL\n", false},
        {"END FILE\n", "", kErrors + L"END FILE\n", false},
        {"4,Clay,2,", "4,Clay,3,", kErrors + L"SOIL CURVES\n" + kWarnings + L"SOIL PROFILES\n",
         false},
        {"4,Clay,2,", "4,Clay,-1,", kErrors + L"SOIL CURVES\n" + kWarnings + L"SOIL PROFILES\n",
         false},
        {"MODULE,SOIL ZONES,1,1\n", "MODULE,SOIL ZONES,2,1\n", kWarnings + L"SOIL ZONES\n", true},
        {"1,West,2,", "1,West,3,", kWarnings + L"SOIL ZONES\n", true},
        {"1,West,2,", "1,West,-2,", kWarnings + L"SOIL ZONES\n", true},
        {"3,Bored pile,7,", "3,Bored pile,8,", kWarnings + L"PILE SOIL PROPERTIES\n", true},
        {"MODULE,CIRC LOADS,1,0\nEND MODULE,CIRC LOADS\n", "", kWarnings + L"CIRC LOADS\n", true},
        {"END FILE\n", "MODULE,TUNNELS,1,1\nx\nEND MODULE,TUNNELS\nEND FILE\n",
         kWarnings + L"TUNNELS\n", true},
        {"MODULE,POLY LOADS,1,0\n", "MODULE,POLY LOADS,1,1\n1,Dump,1,0,3,0,0,1,0,0,1,5000,0,0\n",
         L"", true},
        {"END FILE\n", "END FILE\nwhat follows the end\n", L"", true},
    };
    for (const Damage& damage : damages) {
        std::string text = good;
        const std::size_t at = text.find(damage.from);
        ASSERT_NE(at, std::string::npos) << damage.from;
        Put(text.replace(at, std::string(damage.from).size(), damage.to));
        m_host.events.clear();
        m_host.answers = {true};
        CVynData model = m_model;
        EXPECT_EQ(Import(model), damage.isRead) << damage.to;
        EXPECT_EQ(m_host.Messages(), damage.message.empty() ? Texts() : Texts{damage.message})
            << damage.to;
        CQuorlFile after(model, nullptr, L"", 1, 1, false);
        EXPECT_EQ(after.QuorlDataExist(), damage.isRead) << damage.to;
    }
}

// Without general settings the raft keeps its own.
TEST_F(QuorlFileTest, RaftsWithoutSettings) {
    std::string text = Exported();
    const std::size_t begin = text.find("MODULE,GENERAL");
    Put(text.erase(begin, text.find("MODULE,SOIL PROFILES") - begin));
    m_model.SetRaftRigidLevel(-45.0);
    m_model.SetRaftMaxERatio(12.0);
    EXPECT_TRUE(Import(m_model));
    EXPECT_EQ(m_model.RaftRigidLevel(), -45.0);
    EXPECT_EQ(m_model.RaftMaxERatio(), 12.0);
}

TEST_F(QuorlFileTest, AllDamagedModulesAreNamed) {
    std::string text = Exported();
    for (const std::string name : {"SOIL PROFILES", "RECT LOADS"}) {
        text.replace(text.find("END MODULE," + name), 11, "END_MODULE,");
    }
    Put(text);
    EXPECT_FALSE(Import(m_model));
    EXPECT_EQ(m_host.Messages(),
              Texts{kErrors + L"SOIL PROFILES\nRECT LOADS\n" + kWarnings + L"SOIL ZONES\n"});
}

TEST_F(QuorlFileTest, NumbersThatAModelCanNotHold) {
    constexpr int kCount = 1200;
    std::string text = Exported();
    const std::size_t begin = text.find("MODULE,CIRC LOADS");
    const std::size_t end = text.find("END MODULE,CIRC LOADS");
    std::string module = "MODULE,CIRC LOADS,1," + std::to_string(kCount) + "\n";
    for (int i = 0; i < kCount; ++i) {
        module += std::to_string(1 + i * 20'000) + ",Load,1,0,0,0,1,1,0,0\n";
    }
    Put(text.replace(begin, end - begin, module));
    EXPECT_FALSE(Import(m_model));
    EXPECT_TRUE(m_host.Messages().front().starts_with(kErrors + L"CIRC LOADS\n"));
}

TEST_F(QuorlFileTest, EveryTruncationIsAnErrorAndLosesNothingElse) {
    const std::string good = Exported();
    for (std::size_t length = 0; length + 1 < good.size(); ++length) {
        Put(good.substr(0, length));
        CVynData model;
        model.SetNode(1, {});
        EXPECT_FALSE(Import(model)) << length;
        EXPECT_TRUE(model.NodeExist(1));
    }
}

}  // namespace
}  // namespace Tevra

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iostream>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "document/ModelDocument.h"
#include "support/FullModel.h"
#include "support/TempFolder.h"
#include "support/TestPaths.h"
#include "vynx/Failure.h"
#include "vynx/Format.h"
#include "vynx/VynxFixture.h"
#include "vynx/samples/Samples.h"

namespace Vynx {
namespace {

namespace fs = std::filesystem;

TEST_F(VynxTest, WritesADampingFileWithItsOptions) {
    ASSERT_EQ(Run({"export", Footbridge(), "--to", "damping", "-o", Path("d.txt"), "--nodes", "1 2",
                   "--modes", "1 to 3", "--damping", "0.01"}),
              kDone)
        << m_err;
    const std::string text = Tevra::TestSupport::ReadFile(Path("d.txt"));
    EXPECT_NE(text.find("\n       2       3\n"), std::string::npos);
    EXPECT_NE(text.find("       0.0100000\n"), std::string::npos);
    EXPECT_EQ(m_err, "");
    EXPECT_EQ(Files(), Names{"d.txt"});
}

TEST_F(VynxTest, StandardOutputTakesASingleFile) {
    ASSERT_EQ(Run({"export", Footbridge(), "--to", "damping", "-o", "-"}), kDone) << m_err;
    ASSERT_EQ(m_out.substr(0, 30), "$\n$ *DAMPING_MODAL data file\n$");
    const std::string piped = m_out;
    ASSERT_EQ(Run({"export", Footbridge(), "--to", "damping", "-o", Path("d.txt")}), kDone);
    EXPECT_EQ(piped, Tevra::TestSupport::ReadFile(Path("d.txt")));
}

TEST_F(VynxTest, ImportWritesTheSameModel) {
    const Tevra::CVynData model = Tevra::TestSupport::MakeFullModel();
    std::ofstream file(Path("full.json"), std::ios::binary);
    std::string error;
    ASSERT_TRUE(Tevra::Document::WriteDocument(model, file, error)) << error;
    file.close();
    ASSERT_EQ(Run({"import", Path("full.json"), "-o", Path("again.json")}), kDone) << m_err;
    Tevra::CVynData again;
    ASSERT_TRUE(Tevra::Document::ReadDocument(fs::path(Path("again.json")), again, error)) << error;
    EXPECT_TRUE(again == model);
}

TEST_F(VynxTest, WhatCanNotBeDoneEndsWithAMessageAndLeavesNoFile) {
    Write("empty.json", "");
    Write("half.json", R"({"version": 1, "nodes": [)");
    Write("binary.json", std::string("\x7f"
                                     "ELF\0\1\2",
                                     7));
    Write("static.json", R"({"version": 1, "nodes": [{"number": 1, "position": [0, 0, 0]}]})");
    Write("model.xyz", "{}");
    fs::create_directory(Path("folder.json"));
    struct Case {
        Names words;
        int status;
        const char* message;
    };
    const std::string out = Path("out.txt");
    const std::string bridge = Footbridge();
    const Case cases[] = {
        {{"export", Path("none.json"), "--to", "damping", "-o", out},
         kFailed,
         "No such file or directory"},
        {{"export", Path("folder.json"), "--to", "damping", "-o", out}, kFailed, "is a folder"},
        {{"info", Path("empty.json")}, kFailed, "is empty"},
        {{"info", Path("half.json")}, kFailed, "parse error at line 1"},
        {{"info", Path("binary.json")}, kFailed, "parse error at line 1"},
        {{"info", Path("model.xyz")}, kUsage, "the extension names no format"},
        {{"info", Path("model.xyz"), "--from", "document"}, kFailed, "\"version\" is missing"},
        {{"info", bridge, "--from", "damping"}, kUsage, "not a format that can be read"},
        {{"export", bridge, "--to", "nothing", "-o", out}, kUsage, "not a format"},
        {{"export", bridge, "--to", "document", "-o", out, "--damping", "1"},
         kUsage,
         "--damping: document has no such option"},
        {{"export", bridge, "--to", "damping", "-o", out, "--bogus"}, kUsage, "--bogus"},
        {{"export", bridge, "--to", "damping", "-o", out, "--damping", "x"},
         kUsage,
         "--damping: expected a number not below 0, not \"x\""},
        {{"export", bridge, "--to", "damping", "-o", out, "--damping", "-0.5"},
         kUsage,
         "--damping: expected a number not below 0"},
        {{"export", bridge, "--to", "damping", "-o", out, "--nodes", "1 to"},
         kUsage,
         "--nodes: expected a list"},
        {{"export", bridge, "--to", "damping", "-o", out, "--nodes", "9999"},
         kFailed,
         "no node of the model is in the list --nodes"},
        {{"export", Path("static.json"), "--to", "damping", "-o", out},
         kFailed,
         "the model has no analysed modal task"},
        {{"export", bridge, "--to", "damping", "-o", Path("no/such/out.txt")},
         kFailed,
         "No such file or directory"},
        {{"export", bridge, "--to", "damping", "-o", Path("folder.json")},
         kFailed,
         "it is a folder"},
        {{"export", bridge, "--to", "damping", "-o", "/dev/full"}, kFailed, "Errors writing file"},
        {{"export", bridge, "--to", "all", "-o", Path("all"), "--damping", "1"},
         kUsage,
         "--to all writes every format with its defaults"},
        {{"export", bridge, "--to", "damping"}, kUsage, "--output is required"},
        {{}, kUsage, "subcommand"},
        {{"frobnicate"}, kUsage, "subcommand"}};
    const Names before = Files();
    for (const Case& c : cases) {
        SCOPED_TRACE(::testing::PrintToString(c.words));
        EXPECT_EQ(Run(c.words), c.status);
        EXPECT_NE(m_err.find(c.message), std::string::npos) << m_err;
        EXPECT_EQ(Files(), before);
    }
}

TEST_F(VynxTest, AFailureLeavesTheFormerFileAlone) {
    Write("static.json", R"({"version": 1})");
    Write("out.txt", "precious");
    EXPECT_EQ(Run({"export", Path("static.json"), "--to", "damping", "-o", Path("out.txt")}),
              kFailed);
    EXPECT_EQ(Tevra::TestSupport::ReadFile(Path("out.txt")), "precious");
}

TEST_F(VynxTest, ALinkStaysALink) {
    Write("target.txt", "old");
    fs::create_symlink(Path("target.txt"), Path("link.txt"));
    ASSERT_EQ(Run({"export", Footbridge(), "--to", "damping", "-o", Path("link.txt")}), kDone);
    EXPECT_TRUE(fs::is_symlink(Path("link.txt")));
    EXPECT_EQ(Tevra::TestSupport::ReadFile(Path("target.txt")).substr(0, 2), "$\n");
}

TEST_F(VynxTest, ALinkToNothingMakesTheFile) {
    fs::create_symlink("target.txt", Path("link.txt"));
    ASSERT_EQ(Run({"export", Footbridge(), "--to", "damping", "-o", Path("link.txt")}), kDone)
        << m_err;
    EXPECT_TRUE(fs::is_symlink(Path("link.txt")));
    EXPECT_TRUE(fs::is_regular_file(Path("target.txt")));
}

TEST_F(VynxTest, ALinkToADeviceIsWrittenDirectly) {
    fs::create_symlink("/dev/null", Path("link.txt"));
    EXPECT_EQ(Run({"export", Footbridge(), "--to", "damping", "-o", Path("link.txt")}), kDone)
        << m_err;
    EXPECT_EQ(Files(), Names{"link.txt"});
}

TEST_F(VynxTest, AFileKeepsItsPermissions) {
    Write("private.txt", "old");
    const auto own = fs::perms::owner_read | fs::perms::owner_write;
    fs::permissions(Path("private.txt"), own);
    ASSERT_EQ(Run({"export", Footbridge(), "--to", "damping", "-o", Path("private.txt")}), kDone);
    EXPECT_EQ(fs::status(Path("private.txt")).permissions(), own);
}

TEST_F(VynxTest, AllLeavesTheModelAloneAndGoesOnAfterAFailure) {
    const std::string text = Tevra::TestSupport::ReadFile(Footbridge());
    Write("m.json", text + "\n");
    fs::create_directory(Path("m.damping.txt"));
    EXPECT_EQ(Run({"export", Path("m.json"), "--to", "all", "-o", m_folder.Path().string()}),
              kFailed);
    EXPECT_EQ(Tevra::TestSupport::ReadFile(Path("m.json")), text + "\n");
    EXPECT_NE(m_out.find("document: skipped, "), std::string::npos) << m_out;
    EXPECT_NE(m_err.find("m.damping.txt: can't be written: it is a folder"), std::string::npos);
    EXPECT_NE(m_err.find("not written: damping"), std::string::npos) << m_err;
}

TEST_F(VynxTest, TheLongestExtensionSaysTheFormat) {
    EXPECT_EQ(WriterOf("x.damping.txt")->id, "damping");
    EXPECT_EQ(WriterOf("X.DAMPING.TXT")->id, "damping");
    EXPECT_EQ(WriterOf("a.b.json")->id, "document");
    EXPECT_EQ(WriterOf("x.txt"), nullptr);
    EXPECT_EQ(WriterOf(".json"), nullptr);
}

TEST_F(VynxTest, AllWritesWhatTheModelCanFeed) {
    ASSERT_EQ(Run({"export", Footbridge(), "--to", "all", "-o", Path("all")}), kDone) << m_err;
    const std::map<std::string_view, std::string> lacks{
        {"ls-dyna", "the model has no explicit dynamics task"},
        {"quorl", "the model has no soil data"}};
    for (const Format& format : Formats()) {
        const std::string stem = "all/footbridge";
        if (const auto lack = lacks.find(format.id); lack != lacks.end()) {
            const std::string line = std::string(format.id) + ": skipped, " + lack->second;
            EXPECT_NE(m_out.find(line), std::string::npos) << m_out;
        } else if (format.write != nullptr) {
            EXPECT_TRUE(format.writesFolder
                            ? !fs::is_empty(Path(stem))
                            : fs::file_size(Path(stem + std::string(format.extensions[0]))) > 0)
                << format.id;
        }
    }
    const std::string portal = (Tevra::TestSupport::SourceDir() / "examples/portal.json").string();
    ASSERT_EQ(Run({"export", portal, "--to", "all", "-o", Path("all")}), kDone) << m_err;
    EXPECT_NE(m_out.find("damping: skipped, the model has no analysed modal task"),
              std::string::npos);
}

TEST_F(VynxTest, KeywordFileIsThatOfATask) {
    const std::string model = (Tevra::TestSupport::SourceDir() / "examples/isolated.json").string();
    const auto exportTask = [&](const std::string& task) {
        return Run({"export", model, "--to", "ls-dyna", "--task", task, "-o", Path("a.key"),
                    "--report", Path("a.html")});
    };
    EXPECT_EQ(exportTask("2"), kFailed);
    EXPECT_NE(m_err.find("analysis task 2 is not of explicit dynamics"), std::string::npos);
    EXPECT_EQ(exportTask("9"), kFailed);
    EXPECT_NE(m_err.find("analysis task 9 does not exist"), std::string::npos);
    EXPECT_FALSE(fs::exists(Path("a.key")) || fs::exists(Path("a.html")));
    ASSERT_EQ(exportTask("3"), kDone) << m_err;
    EXPECT_EQ(Content("a.html").find("<h4>VYN-DYNA Part Lookup</h4>"), 0U);
    const std::string asked = Content("a.key");
    ASSERT_EQ(exportTask("0"), kDone) << m_err;
    EXPECT_EQ(Content("a.key").size(), asked.size());
    ASSERT_EQ(Run({"import", Path("a.key"), "-o", Path("a.json")}), kDone) << m_err;
    for (const SampleKind& kind : SampleKinds()) {
        const std::string name(kind.name);
        EXPECT_EQ(Run({"sample", name, "--size", "100", "-o", Path("b.key")}), kDone) << m_err;
        EXPECT_EQ(Run({"import", Path("b.key"), "-o", Path("b.json")}), kDone) << m_err;
    }
}

TEST_F(VynxTest, NumbersWithoutARecordAreNamed) {
    Write("m.json", R"({"version": 1, "elements": [{"number": 5, "type": "bar", "nodes": [1, 2],
                       "property": 3}], "combination_cases": [{"number": 1, "description": "A9"}]})");
    EXPECT_EQ(Run({"info", Path("m.json")}), kDone);
    for (const char* finding :
         {"element 5: node 1 does not exist", "element 5: node 2 does not exist",
          "element 5: section 3 does not exist", "combination case 1: \"A9\" can't be resolved"}) {
        EXPECT_NE(m_err.find(finding), std::string::npos) << finding;
    }
}

TEST_F(VynxTest, FormatsAndHelpNameEveryOption) {
    ASSERT_EQ(Run({"formats"}), kDone);
    const std::string formats = m_out;
    EXPECT_NE(formats.find("&NASTRAN (Bulk data file)   .dat   33104"), std::string::npos);
    ASSERT_EQ(Run({"export", "--help"}), kDone);
    for (const Format& format : Formats()) {
        EXPECT_NE(formats.find(format.id), std::string::npos);
        for (const OptionRow& option : format.options) {
            EXPECT_NE(formats.find("--" + std::string(option.name)), std::string::npos);
            EXPECT_NE(m_out.find("--" + std::string(option.name)), std::string::npos);
            if (option.fallback.empty()) {
                continue;  // there is none
            }
            // A default must be a value that the option itself takes.
            const GivenOptions given{{std::string(option.name), std::string(option.fallback)}};
            EXPECT_NO_THROW(OptionValues(format.id, format.options, given));
        }
    }
    for (const char* command : {"import", "info", "formats"}) {
        EXPECT_EQ(Run({command, "--help"}), kDone);
    }
    EXPECT_EQ(Run({"--help"}), kDone);
    EXPECT_EQ(Run({"--version"}), kDone);
}

TEST_F(VynxTest, InfoTellsWhatAModelHolds) {
    ASSERT_EQ(Run({"info", Footbridge()}), kDone);
    for (const char* line : {"nodes                   51", "elements                116", "BEAM",
                             "analysis cases", "M1  (results)", "x  0 to 30"}) {
        EXPECT_NE(m_out.find(line), std::string::npos) << line << "\n" << m_out;
    }
}

TEST_F(VynxTest, KeywordFilesAreModels) {
    Write("deck.K",
          "*KEYWORD\n*NODE\n       1             1.0\n       2             2.0\n*PART\n"
          "*ELEMENT_BEAM\n       5       7       1       2\n*part\n"
          "*ELEMENT_SHELL\n       5       7       1       2       9\n*MAT\n*END\n");
    ASSERT_EQ(Run({"info", Path("deck.K")}), kDone) << m_err;
    EXPECT_NE(m_out.find("skipped\n       1  *MAT\n       2  *PART\n"), std::string::npos) << m_out;
    EXPECT_EQ(m_err, Path("deck.K") + ": elements replaced by later ones of the same number: 1\n" +
                         Path("deck.K") + ": element 5: node 9 does not exist\n");

    ASSERT_EQ(Run({"import", Path("deck.K"), "-o", Path("model.json")}), kDone) << m_err;
    EXPECT_NE(m_err.find("skipped 3 blocks of 2 kinds"), std::string::npos) << m_err;
    Tevra::CVynData model;
    std::string error;
    ASSERT_TRUE(Tevra::Document::ReadDocument(fs::path(Path("model.json")), model, error)) << error;
    EXPECT_EQ(model.Node(2).Position().x, 2.0);
    EXPECT_EQ(model.Elem(5).Type(), Tevra::ElementType::Tri3);
    EXPECT_EQ(model.Elem(5).Property(), 7);

    Write("bad.dyn", "*NODE\n       1\n       x\n");
    EXPECT_EQ(Run({"import", Path("bad.dyn"), "-o", Path("bad.json")}), kFailed);
    EXPECT_NE(m_err.find(Path("bad.dyn") + ":3: columns 1-8: \"x\" is not an integer"),
              std::string::npos)
        << m_err;
    EXPECT_FALSE(fs::exists(Path("bad.json")));
    EXPECT_EQ(Run({"export", Footbridge(), "--to", "dyna", "-o", Path("out.key")}), kUsage);
    EXPECT_EQ(Run({"export", Path("deck.K"), "--to", "damping", "-o", Path("d.txt")}), kFailed);
    EXPECT_NE(m_err.find("no analysed modal task"), std::string::npos) << m_err;
}

}  // namespace
}  // namespace Vynx

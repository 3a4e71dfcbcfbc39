#include <filesystem>

#include "document/ModelDocument.h"
#include "model/ProfileCatalogue.h"
#include "support/TempFolder.h"
#include "support/TestPaths.h"
#include "vynx/Failure.h"
#include "vynx/VynxFixture.h"

namespace Vynx {
namespace {

namespace fs = std::filesystem;

class QuorlFormat : public VynxTest {
protected:
    static std::string Raft() {
        return (Tevra::TestSupport::SourceDir() / "examples/piledraft.json").string();
    }
    Tevra::CVynData Read(const std::string& name) const {
        Tevra::CVynData model;
        std::string error;
        EXPECT_TRUE(Tevra::Document::ReadDocument(fs::path(Path(name)), model, error)) << error;
        return model;
    }
};

TEST_F(QuorlFormat, SoilDataGoOutAndComeBack) {
    ASSERT_EQ(Run({"export", Raft(), "--to", "quorl", "-o", Path("soil.qdf")}), kDone) << m_err;
    EXPECT_NE(m_err.find("There are 2 Fendra analysis cases"), std::string::npos);
    ASSERT_EQ(Run({"import", Path("soil.qdf"), "--into", Raft(), "-o", Path("new.json"), "--yes"}),
              kDone)
        << m_err;
    EXPECT_NE(m_err.find("rectangular loads can be imported,  [yes]"), std::string::npos);
    ASSERT_EQ(Run({"import", Raft(), "-o", Path("old.json")}), kDone);
    EXPECT_TRUE(Read("new.json") == Read("old.json"));
}

TEST_F(QuorlFormat, TheCaseAndTheMethodAreOptions) {
    ASSERT_EQ(Run({"export", Raft(), "--to", "quorl", "-o", "-", "--case", "2", "--method",
                   "boussinesq"}),
              kDone)
        << m_err;
    EXPECT_NE(m_out.find("\nMETHOD,1\n"), std::string::npos);
    EXPECT_NE(m_out.find("\nMODULE,RECT LOADS,1,0\n"), std::string::npos);
}

TEST_F(QuorlFormat, NoIsTheAnswerWhereNobodyIsAsked) {
    ASSERT_EQ(Run({"export", Raft(), "--to", "quorl", "-o", Path("soil.qdf")}), kDone);
    ASSERT_EQ(Run({"import", Path("soil.qdf"), "-o", Path("soil.json"), "--no"}), kDone) << m_err;
    const Tevra::CVynData model = Read("soil.json");
    EXPECT_EQ(model.NumSoilProfile(), 2);
    EXPECT_EQ(model.NumSoilRectLoad(), 0);
    EXPECT_EQ(model.NumNode(), 0);
}

TEST_F(QuorlFormat, WhatCanNotBeDone) {
    Write("bad.qdf", "TEVRA DATA FILE\nPROGRAM,Quorl\nVERSION,1.0.0\nEND HEADER\nEND FILE");
    Write("no.qdf", "what is this");
    struct Case {
        Names words;
        int status;
        const char* message;
    };
    const std::string out = Path("out.json");
    const Case cases[] = {
        {{"import", Path("no.qdf"), "--into", Raft(), "-o", out}, kFailed, "Not an Tevra File"},
        {{"import", Path("none.qdf"), "-o", out}, kFailed, "Fail to open the Quorl file"},
        {{"import", Raft(), "--into", Raft(), "-o", out}, kUsage, "holds a whole model"},
        {{"import", Path("bad.qdf"), "-o", out, "--yes", "--no"}, kUsage, "excludes"},
        {{"export", Footbridge(), "--to", "quorl", "-o", out}, kFailed, "no soil data"},
        {{"export", Raft(), "--to", "quorl", "-o", out, "--case", "9"}, kFailed, "case 9"},
        {{"export", Raft(), "--to", "quorl", "-o", out, "--method", "x"}, kUsage, "--method"}};
    for (const Case& c : cases) {
        EXPECT_EQ(Run(c.words), c.status) << c.message;
        EXPECT_NE(m_err.find(c.message), std::string::npos) << m_err;
        EXPECT_FALSE(fs::exists(out));
    }
}

TEST_F(QuorlFormat, CatalogueOfTheUser) {
    Write("cat.txt", "OWN G600x300 I 600 300 10 20\n");
    Write("bad.txt", "\nOWN X Q 1 2\n");
    Write("model.json", R"({"version": 1, "sections": [{"number": 1, "components":
        [{"description": "CAT%OWN%G600x300"}]}]})");
    EXPECT_EQ(Run({"info", Path("model.json")}), kDone);
    EXPECT_NE(m_err.find("section 1: \"CAT%OWN%G600x300\": "), std::string::npos) << m_err;
    EXPECT_EQ(Run({"info", Path("model.json"), "--catalogue", Path("bad.txt")}), kFailed);
    EXPECT_NE(m_err.find("bad.txt: line 2: unknown shape"), std::string::npos) << m_err;
    EXPECT_EQ(Run({"info", Path("model.json"), "--catalogue", Path("cat.txt")}), kDone);
    EXPECT_EQ(m_err.find("section 1"), std::string::npos) << m_err;
    Tevra::Data::CProfileCatalogue::SetCurrent(Tevra::Data::CProfileCatalogue::Shipped());
}

}  // namespace
}  // namespace Vynx

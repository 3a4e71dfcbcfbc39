#include "document/ModelDocument.h"
#include "support/VybWriter.h"
#include "vynx/Failure.h"
#include "vynx/VynxFixture.h"

namespace Vynx {
namespace {

using Tevra::TestSupport::SmallVyb;

class LegacyFormat : public VynxTest {
protected:
    bool Says(const char* text) const { return m_err.find(text) != std::string::npos; }
};

TEST_F(LegacyFormat, BothByteOrdersAreTried) {
    struct Case {
        bool swapped;
        bool option;
        int status;
        const char* message;
    };
    const Case cases[] = {{false, false, kDone, "read in the byte order of this machine"},
                          {true, false, kDone, "read in the other byte order than this machine's"},
                          {true, true, kDone, ""},
                          {false, true, kFailed, "Errors encountered while reading file"}};
    for (const Case& c : cases) {
        Write("old.vyb", SmallVyb().Bytes(c.swapped));
        Names words{"import", Path("old.vyb"), "-o", Path("new.json")};
        if (c.option) {
            words.emplace_back("--swap");
        }
        EXPECT_EQ(Run(words), c.status) << m_err;
        EXPECT_TRUE(Says(c.message)) << m_err;
        EXPECT_EQ(Says("Errors encountered"), c.status != kDone) << m_err;
    }
}

TEST_F(LegacyFormat, BoxesAndReasonsAreShownOnce) {
    auto old = SmallVyb();
    old.version = "00005";
    Write("old.vyb", old.Bytes());
    Write("short.vyb", "0000");
    EXPECT_EQ(Run({"info", Path("old.vyb")}), kFailed);
    EXPECT_EQ(m_err.find("This is not a VYN 6 file"), m_err.rfind("This is not a VYN 6 file"));
    EXPECT_TRUE(Says("This is not a VYN 6 file"));
    EXPECT_EQ(Run({"info", Path("short.vyb")}), kFailed);
    EXPECT_TRUE(Says("the legacy model can't be read"));
    EXPECT_EQ(Run({"info", Path("none.vyb")}), kFailed);
    EXPECT_TRUE(Says("Error:          Error\n\nNo such file")) << m_err;
}

TEST_F(LegacyFormat, TheModelGoesIntoOtherFormats) {
    Write("old.vyb", SmallVyb().Bytes());
    EXPECT_EQ(Run({"export", Path("old.vyb"), "--to", "all", "-o", Path("out")}), kDone) << m_err;
    EXPECT_EQ(Run({"import", Path("old.vyb"), "-o", Path("new.json")}), kDone);
    EXPECT_EQ(Run({"info", Path("new.json")}), kDone);
    EXPECT_NE(m_out.find("Static 1  1.L1  (results)"), std::string::npos) << m_out;
    EXPECT_TRUE(m_err.empty()) << m_err;
}

}  // namespace
}  // namespace Vynx

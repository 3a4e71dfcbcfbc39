#include "vynx/Failure.h"
#include "vynx/VynxFixture.h"

namespace Vynx {
namespace {

class DrawTest : public VynxTest {};

TEST_F(DrawTest, WritesTheViewAndTheCaseThatAreAskedFor) {
    struct Case {
        Names words;
        const char* part;
    };
    const Case cases[] = {{{}, "isometric view  ·  load case 2: Crowd"},
                          {{"--view", "plan"}, "plan  ·  load case 2"},
                          {{"--view", "xz", "--case", "4"}, "elevation X-Z  ·  load case 4: Wind"},
                          {{"--view", "yz", "--case", "0"}, "elevation Y-Z</text>"}};
    for (const Case& c : cases) {
        Names words{"draw", Footbridge(), "-o", Path("m.svg")};
        words.insert(words.end(), c.words.begin(), c.words.end());
        ASSERT_EQ(Run(words), kDone) << m_err;
        EXPECT_NE(Content("m.svg").find(c.part), std::string::npos) << c.part;
        EXPECT_EQ(m_err, "");
    }
    ASSERT_EQ(Run({"draw", Footbridge(), "--view", "yz", "--case", "0", "-o", "-"}), kDone);
    EXPECT_EQ(m_out, Content("m.svg"));
    EXPECT_EQ(Files(), Names{"m.svg"});
}

// The README shows this picture.
TEST_F(DrawTest, ThePictureOfTheReadmeIsTrue) {
    ASSERT_EQ(Run({"draw", Footbridge(), "-o", Path("m.svg")}), kDone);
    EXPECT_EQ(Content("m.svg"), Tevra::TestSupport::ReadFile(Tevra::TestSupport::SourceDir() /
                                                             "docs/footbridge.svg"));
}

TEST_F(DrawTest, SaysWhatCanNotBeDrawn) {
    Write("empty.json", R"({"version": 1})");
    Write("far.json", R"({"version": 1, "nodes": [{"number": 1, "position": [0, 0, 0]},
                          {"number": 2, "position": [1, 0, 0]}], "elements":
                          [{"number": 1, "type": "beam", "nodes": [1, 2]},
                           {"number": 2, "type": "beam", "nodes": [1, 9]}]})");
    const std::string out = Path("m.svg");
    struct Case {
        Names words;
        int status;
        const char* message;
    };
    const Case cases[] = {
        {{"draw", Path("empty.json"), "-o", out}, kFailed, "nothing to draw"},
        {{"draw", Footbridge(), "--case", "9", "-o", out}, kFailed, "there is no load case 9"},
        {{"draw", Footbridge(), "--case", "-1", "-o", out}, kUsage, "--case"},
        {{"draw", Footbridge(), "--view", "top", "-o", out}, kUsage, "--view"},
        {{"draw", Footbridge()}, kUsage, "--output"},
        {{"draw", Footbridge(), "-o", Path("no/m.svg")}, kFailed, "no/m.svg: can't be written"},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(Run(c.words), c.status) << c.message;
        EXPECT_NE(m_err.find(c.message), std::string::npos) << m_err;
        EXPECT_FALSE(fs::exists(out)) << c.message;
    }
    ASSERT_EQ(Run({"draw", Path("far.json"), "-o", out}), kDone);
    EXPECT_NE(m_err.find("1 elements without a place"), std::string::npos) << m_err;
}

TEST_F(DrawTest, HelpNamesEveryView) {
    ASSERT_EQ(Run({"draw", "--help"}), kDone);
    for (const char* word : {"--case", "--view", "iso", "plan", "xz", "yz", "--from"}) {
        EXPECT_NE(m_out.find(word), std::string::npos) << word;
    }
}

}  // namespace
}  // namespace Vynx

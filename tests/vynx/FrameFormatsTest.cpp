#include <gtest/gtest.h>
#include <string>

#include "vynx/Failure.h"
#include "vynx/VynxFixture.h"

namespace Vynx {
namespace {

/// Exports samples as OpenSees scripts and S2K files.
class FrameFormats : public VynxTest {
protected:
    int Export(const std::string& model, const std::string& format, Names options = {}) {
        options.insert(options.begin(), {"export", Example(model), "--to", format, "-o", "-"});
        return Run(options);
    }
    static std::string Example(const std::string& name) {
        return (Tevra::TestSupport::SourceDir() / "examples" / name).string();
    }
    bool Says(const std::string& part) const { return m_err.find(part) != std::string::npos; }
    bool Wrote(const std::string& part) const { return m_out.find(part) != std::string::npos; }
};

TEST_F(FrameFormats, TheCaseIsThatOfTheOption) {
    ASSERT_EQ(Export("portal.json", "opensees"), kDone) << m_err;
    EXPECT_FALSE(Wrote("pattern"));
    EXPECT_TRUE(Says("OpenSees does not support gravity loads."));
    ASSERT_EQ(Export("portal.json", "opensees", {"--case", "5"}), kDone) << m_err;
    EXPECT_TRUE(Wrote("pattern Plain 5 Linear {\n# load case 5\n"));
    EXPECT_NE(Export("portal.json", "opensees", {"--case", "2"}), kDone);
    EXPECT_TRUE(Says("beam load 5 varies along its elements"));
    EXPECT_NE(Export("portal.json", "opensees", {"--case", "99"}), kDone);
    EXPECT_TRUE(Says("there is no load case 99"));
    EXPECT_EQ(Export("portal.json", "opensees", {"--case", "0"}), kDone) << m_err;
}

TEST_F(FrameFormats, ShapesAreThoseOfTheOption) {
    for (const char* word : {"class", "code"}) {
        ASSERT_EQ(Export("footbridge.json", "sap2000", {"--sections", word}), kDone) << m_err;
        EXPECT_TRUE(Wrote(" SH=B T=")) << word;
    }
    ASSERT_EQ(Export("footbridge.json", "s2k", {"--sections", "general"}), kDone) << m_err;
    EXPECT_FALSE(Wrote(" T=0."));
    EXPECT_TRUE(Wrote(" SH=G A="));
    EXPECT_NE(Export("footbridge.json", "sap2000", {"--sections", "all"}), kDone);
    EXPECT_EQ(Export("portal.json", "sap2000"), kDone) << m_err;
}

}  // namespace
}  // namespace Vynx

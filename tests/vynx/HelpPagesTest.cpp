#include <cstdlib>

#include "vynx/Failure.h"
#include "vynx/Format.h"
#include "vynx/VynxFixture.h"

namespace Vynx {

namespace {

class HelpPages : public VynxTest {
protected:
    /// What bash offers behind words of a command line, the last of which is being typed.
    std::string Offered(const std::string& words) {
        const std::string script = Path("try.sh");
        std::ofstream(script) << ". '" << Path("vynx.bash") << "'\nCOMP_WORDS=(" << words
                              << ")\nCOMP_CWORD=$((${#COMP_WORDS[@]} - 1))\n_vynx\n"
                              << "echo \" ${COMPREPLY[*]} \" > '" << Path("offered") << "'\n";
        EXPECT_EQ(std::system(("bash '" + script + "'").c_str()), 0);  // NOLINT(cert-env33-c)
        return Content("offered");
    }
};

TEST_F(HelpPages, TheManualTellsOfEveryFormatAndOption) {
    ASSERT_EQ(Run({"manual"}), kDone);
    EXPECT_EQ(m_out.rfind(".TH VYNX 1", 0), 0U);
    for (const Format& format : Formats()) {
        EXPECT_NE(m_out.find(".SS "), std::string::npos);
        for (const auto* options : {&format.options, &format.readOptions}) {
            for (const OptionRow& option : *options) {
                std::string name = "\\fB\\-\\-";
                for (const char c : option.name) {
                    name += c == '-' ? "\\-" : std::string(1, c);
                }
                EXPECT_NE(m_out.find(name + "\\fR"), std::string::npos) << option.name;
            }
        }
    }
    // A line that began with a quote or a full stop would be lost as an unknown request.
    EXPECT_EQ(m_out.find("\n'"), std::string::npos);
}

TEST_F(HelpPages, BashOffersWhatFits) {
    ASSERT_EQ(Run({"completion"}), kDone);
    Write("vynx.bash", m_out);
    EXPECT_EQ(Offered("vynx exp"), " export \n");
    const std::string formats = Offered("vynx export model.json --to \"\"");
    for (const Format& format : Formats()) {
        EXPECT_EQ(formats.find(" " + std::string(format.id) + " ") != std::string::npos,
                  format.write != nullptr)
            << format.id;
    }
    EXPECT_EQ(Offered("vynx export model.json --to nastran --analysis m"), " modes \n");
    EXPECT_EQ(Offered("vynx export model.json --to nastran --sm"), " --small-field \n");
    EXPECT_EQ(Offered("vynx export model.json --to sql --sm"), "  \n");
    EXPECT_EQ(Offered("vynx import --fr"), " --from \n");
    EXPECT_EQ(Offered("vynx info " + Path("vynx.b")), " " + Path("vynx.bash") + " \n");
}

}  // namespace

}  // namespace Vynx

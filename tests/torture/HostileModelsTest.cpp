#include <clocale>
#include <cstdlib>
#include <fstream>
#include <gtest/gtest.h>
#include <locale>

#include "support/CommaLocale.h"
#include "support/TempFolder.h"
#include "torture/FormChecks.h"
#include "torture/HostileModel.h"
#include "torture/SpecialModels.h"
#include "torture/WriterRuns.h"

namespace Tevra::TestSupport {

namespace {

/// Models of each level that every writer gets. VYN_TORTURE_MODELS asks for more of them,
/// VYN_TORTURE_FIRST begins elsewhere.
constexpr int kModels = 6;

int FromEnvironment(const char* name, int fallback) {
    const char* text = std::getenv(name);                     // NOLINT(concurrency-mt-unsafe)
    const int value = text != nullptr ? std::atoi(text) : 0;  // NOLINT(cert-err34-c)
    return value > 0 ? value : fallback;
}

/// Switches between the locale of "C" and one with a decimal comma.
class LocaleSwitch {
public:
    static void SetPlain() {
        std::locale::global(std::locale::classic());
        static_cast<void>(std::setlocale(LC_ALL, "C"));
    }
    void SetComma() const {
        std::locale::global(m_cpp);
        static_cast<void>(std::setlocale(LC_ALL, m_c.c_str()));
    }

private:
    ScopedCommaLocale m_scope;
    std::string m_c = std::setlocale(LC_ALL, nullptr);
    std::locale m_cpp;
};

/// Puts one model through all formats.
class TortureTest : public ::testing::Test {
protected:
    void TortureAll() {
        for (const Vynx::Format& format : Vynx::Formats()) {
            SCOPED_TRACE(format.id);
            if (format.write != nullptr) {
                Torture(format);
            }
        }
    }

    TempFolder m_folder;
    LocaleSwitch m_locale;
    std::uint64_t m_seed = 0;  ///< of the options
    Hostility m_hostility;
    CVynData m_model;

private:
    /// Writes the model twice, and looks at what came.
    void Torture(const Vynx::Format& format) {
        HostileValues values(m_seed, m_hostility);
        const Vynx::GivenOptions options = HostileOptions(format, values);
        LocaleSwitch::SetPlain();
        const WriterRun plain = Write(format, options);
        m_locale.SetComma();
        const WriterRun again = Write(format, options);
        LocaleSwitch::SetPlain();
        EXPECT_EQ(again, plain) << "not the same in a second run";
        for (const std::string& fault : FaultsOf(format.id, plain)) {
            ADD_FAILURE() << fault;
        }
        if (format.read != nullptr && plain.written) {
            ReadBack(format, plain, options);
        }
    }

    WriterRun Write(const Vynx::Format& format, const Vynx::GivenOptions& options) {
        const CHistory history = m_model.History();  // the table export adds to it
        WriterRun run = RunWriter(format, m_model, options, m_folder.Path());
        m_model.SetHistory(history);
        return run;
    }

    /// What a format reads itself is the same when it is written again.
    void ReadBack(const Vynx::Format& format, const WriterRun& written,
                  const Vynx::GivenOptions& options) {
        const auto& [name, text] = *written.files.begin();
        const std::filesystem::path path = m_folder.Path() / name;
        std::ofstream(path, std::ios::binary) << text;
        CVynData copy = format.isPart ? m_model : CVynData();
        const Vynx::OptionValues none(format.id, format.readOptions, {});
        Vynx::ReadJob job{path, copy, none};
        SteadyHost host;
        const ScopedHost scope(host);
        EXPECT_TRUE(format.read(job)) << job.error;
        std::filesystem::remove(path);
        EXPECT_EQ(RunWriter(format, copy, options, m_folder.Path()).files, written.files)
            << "not the same when it was read and is written again";
        if (!format.isPart && m_hostility.isUnicode) {
            EXPECT_EQ(copy, m_model) << "another model when it was read";
        }
    }
};

/// Each parameter is a level of hostility.
class HostileModels : public TortureTest, public ::testing::WithParamInterface<int> {};

/// Each parameter is the place of a model.
class SpecialModelsTest : public TortureTest, public ::testing::WithParamInterface<std::size_t> {};

}  // namespace

TEST_P(HostileModels, AreWrittenAsTheFormatsAsk) {
    const int first = FromEnvironment("VYN_TORTURE_FIRST", 0);
    const int end = first + FromEnvironment("VYN_TORTURE_MODELS", kModels);
    for (int i = first; i < end && !HasFailure(); ++i) {
        SCOPED_TRACE("VYN_TORTURE_FIRST=" + std::to_string(i) + " VYN_TORTURE_MODELS=1");
        m_seed = static_cast<std::uint64_t>(i) * kHostilityLevels +
                 static_cast<std::uint64_t>(GetParam());
        m_hostility = HostilityOf(m_seed);
        m_model = MakeHostileModel(m_seed, m_hostility);
        TortureAll();
        if (m_hostility.isFinite) {  // what is not a number is never equal to itself
            EXPECT_EQ(m_model, MakeHostileModel(m_seed, m_hostility)) << "a writer changed it";
        }
    }
}

TEST_P(SpecialModelsTest, AreWrittenAsTheFormatsAsk) {
    m_hostility.isUnicode = true;
    m_model = SpecialModels()[GetParam()].make();
    for (m_seed = 0; m_seed < 2 && !HasFailure(); ++m_seed) {
        TortureAll();
    }
}

INSTANTIATE_TEST_SUITE_P(Levels, HostileModels, ::testing::Range(0, kHostilityLevels));

INSTANTIATE_TEST_SUITE_P(Models, SpecialModelsTest,
                         ::testing::Range(std::size_t{0}, SpecialModels().size()),
                         [](const auto& test) {
                             return std::string(SpecialModels()[test.param].name);
                         });

}  // namespace Tevra::TestSupport

#include <gtest/gtest.h>
#include <sstream>

#include "platform/ui/ConsoleHost.h"
#include "platform/ui/HostServices.h"
#include "platform/ui/Logger.h"
#include "platform/ui/RecordingHost.h"
#include "platform/ui/StringTable.h"
#include "support/CommaLocale.h"

using namespace Tevra;
using Kind = RecordingHost::Kind;

namespace {

TEST(HostServices, ScopesNestAndRestore) {
    HostServices* const standAlone = &Host();
    RecordingHost outer;
    RecordingHost inner;
    {
        const ScopedHost useOuter(outer);
        {
            const ScopedHost useInner(inner);
            Host().ShowMessage(L"to inner");
        }
        EXPECT_EQ(&Host(), &outer);
    }
    EXPECT_EQ(&Host(), standAlone);
    EXPECT_TRUE(outer.events.empty());
    EXPECT_EQ(inner.Messages(), std::vector<std::wstring>{L"to inner"});
}

TEST(HostServices, RecordingKeepsOrderAndGivesAnswers) {
    RecordingHost host;
    host.answers = {true, false};
    host.clock = std::tm{};
    host.clock->tm_year = 126;
    const ScopedHost use(host);
    Logger logger;

    Host().ShowMessage(L"first");
    EXPECT_TRUE(Host().AskYesNo(L"replace?"));
    EXPECT_FALSE(Host().AskYesNo(L"really?"));
    EXPECT_FALSE(Host().AskYesNo(L"no more answers"));
    logger.Log(L"done", 1, 2);

    const std::vector<RecordingHost::Event> expected = {{Kind::Message, L"first"},
                                                        {Kind::Question, L"replace?"},
                                                        {Kind::Question, L"really?"},
                                                        {Kind::Question, L"no more answers"},
                                                        {Kind::Log, L"done", 1, 2}};
    EXPECT_EQ(host.events, expected);
    EXPECT_EQ(Host().LocalTime().tm_year, 126);
}

TEST(HostServices, ConsoleWritesUtf8LinesAndAnswersNo) {
    std::ostringstream out;
    ConsoleHost host(out);
    host.ShowMessage(L"Träger\n3");
    host.Log(L"ends with a line end\n", 1, 1);
    EXPECT_FALSE(host.AskYesNo(L"Overwrite?"));
    EXPECT_EQ(out.str(), "Tr\xC3\xA4ger\n3\nends with a line end\nOverwrite? [no]\n");
}

TEST(HostServices, ClockGivesNow) {
    const std::tm local = ConsoleHost().LocalTime();
    std::tm copy = local;
    EXPECT_NEAR(std::difftime(std::mktime(&copy), std::time(nullptr)), 0.0, 5.0);
}

TEST(HostServices, ListSeparatorFollowsTheDecimalPoint) {
    std::ostringstream out;
    ConsoleHost host(out);
    EXPECT_EQ(host.ListSeparator(), L",");
    {
        const TestSupport::ScopedCommaLocale comma;
        EXPECT_EQ(host.ListSeparator(), L";");
        host.SetListSeparator(L"|");
        EXPECT_EQ(host.ListSeparator(), L"|");
    }
    RecordingHost recording;
    recording.listSeparator = L"\t";
    EXPECT_EQ(recording.ListSeparator(), L"\t");
}

TEST(StringTable, FileNameIsPutInAsItIs) {
    const std::wstring name = L"C:\\out\\100%s %n %d.key";
    EXPECT_EQ(
        FileMessage(13137, name),
        L"Unable to open file\nC:\\out\\100%s %n %d.key\nfor writing.\n\nCheck that the file is "
        L"not in use by another user\nand that you have permission to write to the file.");
    EXPECT_EQ(FileMessage(1, name), L"");
    EXPECT_EQ(Host().StringResource(-1), L"");
}

TEST(StringTable, HostMayHaveItsOwnTexts) {
    struct Translated : RecordingHost {
        std::wstring StringResource(int /*number*/) const override { return L"Datei %s, %s"; }
    } host;
    const ScopedHost use(host);
    EXPECT_EQ(FileMessage(13137, L"a"), L"Datei a, %s");
}

}  // namespace

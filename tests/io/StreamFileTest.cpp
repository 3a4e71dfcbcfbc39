#include <clocale>
#include <cstdio>
#include <functional>
#include <gtest/gtest.h>
#include <locale>
#include <stdexcept>
#include <thread>

#include "io/StreamFile.h"
#include "io/TextOut.h"
#include "model/VynData.h"
#include "platform/text/HostPath.h"
#include "platform/ui/RecordingHost.h"
#include "support/CommaLocale.h"
#include "support/TempFolder.h"

using namespace Tevra;
using TestSupport::ReadFile;
using TestSupport::TempFolder;

namespace {

/// A writer that does what each test tells it.
class Writer : public CStreamFile {
public:
    explicit Writer(std::function<bool(Writer&)> write) : m_write(std::move(write)) {}

    bool Write() override {
        ++calls;
        return m_write(*this);
    }
    std::ostream* Stream() const { return m_stream; }
    using CStreamFile::AddError;
    using CStreamFile::AddNote;

    int calls = 0;

private:
    std::function<bool(Writer&)> m_write;
};

constexpr const wchar_t* kFailed = L"Errors writing file";

std::wstring ErrorLine(const std::wstring& file) {
    return L"<red>Error:          </red>Unable to open file\n" + file +
           L"\nfor writing.\n\nCheck that the file is not in use by another user\nand that you "
           L"have "
           L"permission to write to the file.";
}

class StreamFile : public ::testing::Test {
protected:
    std::wstring PathOf(const wchar_t* name) const {
        return Text::FromPath(m_folder.Path() / Text::ToPath(name));
    }
    std::string Contents(const std::wstring& path) const { return ReadFile(Text::ToPath(path)); }

    RecordingHost m_host;

private:
    TempFolder m_folder;
    ScopedHost m_use{m_host};
};

TEST_F(StreamFile, WritesOverAnExistingFileByteForByte) {
    const std::wstring path = PathOf(L"Brücke – 橋 %s.txt");
    for (const char* text : {"a much longer first text\n", "a\nb\r\n"}) {
        Writer writer([&](Writer& w) {
            *w.Stream() << text;
            return true;
        });
        EXPECT_TRUE(writer.OpenWrite(path, L"second"));
        EXPECT_EQ(Contents(path), text);
        EXPECT_EQ(writer.calls, 1);
        EXPECT_EQ(writer.FileName(), path);
        EXPECT_EQ(writer.SecondName(), L"second");
        EXPECT_EQ(writer.Stream(), nullptr);
        EXPECT_EQ(writer.ErrorLog(), L"");
    }
    EXPECT_TRUE(m_host.events.empty());
}

TEST_F(StreamFile, FailuresShowABoxAndAddLogLines) {
    Writer writer([](Writer&) { return false; });
    const std::wstring path = PathOf(L"100%s.txt");
    EXPECT_FALSE(writer.OpenWrite(path, {}));
    EXPECT_EQ(writer.ErrorLog(), ErrorLine(path));
    EXPECT_FALSE(writer.OpenWrite(path, {}));
    EXPECT_EQ(writer.ErrorLog(), ErrorLine(path) + L"\n" + ErrorLine(path));
    EXPECT_EQ(m_host.Messages(), (std::vector<std::wstring>{kFailed, kFailed}));
}

TEST_F(StreamFile, NotesStandOnLinesOfTheirOwn) {
    Writer writer([](Writer& w) {
        w.AddNote(L"Cable elements not exported");
        w.AddError(L"No load case");
        w.AddNote(L"");
        return true;
    });
    EXPECT_TRUE(writer.OpenWrite(PathOf(L"a.txt")));
    EXPECT_EQ(writer.ErrorLog(),
              L"Note:           Cable elements not exported\n"
              L"<red>Error:          </red>No load case\n"
              L"Note:           ");
}

TEST_F(StreamFile, WriterDecidesAboutAFileThatCannotBeOpened) {
    const std::wstring path = PathOf(L"no/such/folder/a.txt");
    Writer honest([](Writer& w) {
        TextOut out(*w.Stream());
        out.Append("text");
        return out.Flush();
    });
    EXPECT_FALSE(honest.OpenWrite(path));
    EXPECT_EQ(honest.ErrorLog(), ErrorLine(path));
    EXPECT_EQ(m_host.Messages(), std::vector<std::wstring>{kFailed});

    Writer blind([](Writer&) { return true; });
    EXPECT_TRUE(blind.OpenWrite(path));
    EXPECT_EQ(blind.calls, 1);
    EXPECT_EQ(blind.ErrorLog(), L"");

    if (std::filesystem::exists("/dev/full")) {
        EXPECT_FALSE(honest.OpenWrite(L"/dev/full")) << "a small file fails at the flush";
    }
}

TEST_F(StreamFile, NumbersHaveADecimalPointInAnyLocale) {
    const std::wstring path = PathOf(L"a.txt");
    Writer writer([](Writer& w) {
        char text[32];
        *w.Stream() << 1234.5;
        return std::snprintf(text, sizeof text, " %.1f", 0.5) == 4 && (*w.Stream() << text);
    });
    const TestSupport::ScopedCommaLocale comma;
    const std::string formerC = std::setlocale(LC_ALL, nullptr);
    const std::locale formerCpp;

    EXPECT_TRUE(writer.OpenWrite(path));
    EXPECT_EQ(Contents(path), "1234.5 0.5");
    EXPECT_EQ(std::setlocale(LC_ALL, nullptr), formerC);
    EXPECT_TRUE(std::locale() == formerCpp);

    writer.SetLocaleMode(2);
    EXPECT_TRUE(writer.OpenWrite(path));
    EXPECT_EQ(Contents(path), comma.InCLibrary() ? "1.234,5 0,5" : "1.234,5 0.5");
}

TEST_F(StreamFile, ExceptionsLeaveNothingBehind) {
    const std::wstring path = PathOf(L"a.txt");
    Writer writer([](Writer& w) -> bool {
        *w.Stream() << "begun";
        throw std::runtime_error("in the writer");
    });
    const TestSupport::ScopedCommaLocale comma;
    const std::string formerC = std::setlocale(LC_ALL, nullptr);
    const std::locale formerCpp;
    EXPECT_THROW(writer.OpenWrite(path), std::runtime_error);
    EXPECT_EQ(writer.Stream(), nullptr);
    EXPECT_EQ(Contents(path), "begun");
    EXPECT_EQ(std::setlocale(LC_ALL, nullptr), formerC);
    EXPECT_TRUE(std::locale() == formerCpp);
}

TEST_F(StreamFile, BusyModelIsLeftAlone) {
    CVynData model;
    const std::wstring path = PathOf(L"a.txt");
    Writer writer([&](Writer&) { return ProbeLock(model.ShareModelBusy(), 0); });
    writer.SetData(&model);
    {
        CSingleLock held(model.ShareModelBusy());
        std::thread([&] { held.Lock(0); }).join();
        EXPECT_FALSE(writer.OpenWrite(path));
        EXPECT_EQ(writer.calls, 0);
        EXPECT_EQ(writer.ErrorLog(), L"");
        EXPECT_TRUE(m_host.events.empty());
        EXPECT_FALSE(std::filesystem::exists(Text::ToPath(path)));

        std::thread release([&] {
            std::this_thread::sleep_for(std::chrono::milliseconds(50));
            held.Unlock();
        });
        EXPECT_TRUE(writer.OpenWrite(path)) << "freed in time, and not held during the write";
        release.join();
    }
    Writer careless([](Writer&) { return true; });
    careless.SetData(&model);
    careless.SetLockModel(false);
    const CSingleLock held(model.ShareModelBusy(), true);
    EXPECT_TRUE(careless.OpenWrite(path));
}

TEST_F(StreamFile, StepMovesByOneWhenThereIsSomethingToCount) {
    CVynData empty;
    CVynData withCase;
    withCase.SetAnalysisCase(3, {});
    struct Case {
        CVynData* model;
        bool countingOn, lockModel, countResults;
        int steps;
    };
    const Case cases[] = {
        {&withCase, false, true, true, 0},  {nullptr, true, true, true, 1},
        {nullptr, true, true, false, 1},    {nullptr, true, false, true, 0},
        {&empty, true, false, true, 0},     {&withCase, true, false, true, 1},
        {&withCase, true, false, false, 0}, {&withCase, true, true, true, 1},
    };
    for (const Case& c : cases) {
        Writer writer([](Writer&) { return true; });
        writer.SetData(c.model);
        writer.SetCountingOn(c.countingOn);
        writer.SetLockModel(c.lockModel);
        writer.SetCountResults(c.countResults);
        writer.Step();
        writer.Step();
        EXPECT_EQ(writer.StepCount(), 2 * c.steps) << "row " << &c - cases;
    }
}

}  // namespace

#pragma once

#include <ctime>
#include <gtest/gtest.h>
#include <string>

#include "model/VynData.h"
#include "platform/text/HostPath.h"
#include "platform/ui/RecordingHost.h"
#include "support/TempFolder.h"

namespace Tevra::TestSupport {

/// Writes models with a writer of files at 9 o'clock on 21 November 2026.
template <class Writer>
class WriterFixture : public ::testing::Test {
protected:
    WriterFixture() {
        std::tm clock{};
        clock.tm_year = 126;
        clock.tm_mon = 10;
        clock.tm_mday = 21;
        clock.tm_wday = 6;
        clock.tm_hour = 9;
        host.clock = clock;
    }

    const std::string& WriteText(CVynData& model) {
        const ScopedHost scope(host);
        writer.SetData(&model);
        const auto path = folder.Path() / "file";
        written = writer.OpenWrite(Text::FromPath(path));
        text = ReadFile(path);
        return text;
    }

    bool Has(const std::string& part) const { return text.find(part) != std::string::npos; }
    bool HasNote(const std::wstring& part) const {
        return writer.ErrorLog().find(part) != std::wstring::npos;
    }

    RecordingHost host;
    TempFolder folder;
    Writer writer;
    bool written = false;
    std::string text;
};

}  // namespace Tevra::TestSupport

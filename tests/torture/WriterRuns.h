#pragma once

#include <algorithm>
#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include "model/VynData.h"
#include "platform/ui/RecordingHost.h"
#include "torture/HostileValues.h"
#include "vynx/Format.h"

namespace Tevra::TestSupport {

/// The formats that can be written, by their ids.
std::vector<std::string> WritableFormats();

/// Names the tests of a format.
struct FormatName {
    template <class Test>
    std::string operator()(const Test& test) const {
        std::string name = test.param;
        std::replace(name.begin(), name.end(), '-', '_');
        return name;
    }
};

/// Host services that are alike in every run: 9 o'clock on 21 November 2026, comma-separated lists.
struct SteadyHost : RecordingHost {
    SteadyHost();
};

/// Options of a format, each given or not, that `vynx` takes.
Vynx::GivenOptions HostileOptions(const Vynx::Format& format, HostileValues& values);

/// What a writer made of a model: the verdict, what it said, and its files by their names.
struct WriterRun {
    bool written = false;
    std::string log;
    std::vector<std::wstring> messages;
    std::map<std::string, std::string> files;

    /// All that can be compared between two runs.
    bool operator==(const WriterRun&) const = default;
};

/// Writes the model into the (empty) folder, and takes the files out of it again.
WriterRun RunWriter(const Vynx::Format& format, CVynData& model, const Vynx::GivenOptions& options,
                    const std::filesystem::path& folder);

}  // namespace Tevra::TestSupport

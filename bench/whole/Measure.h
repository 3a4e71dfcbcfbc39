#pragma once

#include <filesystem>
#include <functional>

namespace WholeBench {

/// What a run took.
struct Cost {
    bool done = false;
    double seconds = 0.0;   ///< of the processor
    double extraMiB = 0.0;  ///< most memory held beside what was held before
};

/// Runs `work` in a process of its own, a copy of this one, so that its memory can be told from
/// what was there; the least of `times` runs. What it prints is not shown.
Cost Measure(const std::function<bool()>& work, int times);

/// Processor time of a command of the shell, s; negative when it fails.
double MeasureCommand(const std::string& command);

/// Bytes of a file, or of all files in a folder.
double BytesOf(const std::filesystem::path& path);

}  // namespace WholeBench

#pragma once

#include <filesystem>

namespace Vynx {

/// A file and its folder that do not outlive the program when a signal (interrupt, hang-up,
/// termination) ends it. One at a time.
class RemovedOnSignal {
public:
    RemovedOnSignal() = default;
    RemovedOnSignal(const RemovedOnSignal&) = delete;
    RemovedOnSignal& operator=(const RemovedOnSignal&) = delete;
    ~RemovedOnSignal();

    /// Paths too long for the system are left alone.
    void Set(const std::filesystem::path& file, const std::filesystem::path& folder);
};

}  // namespace Vynx

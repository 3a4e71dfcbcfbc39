#pragma once

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <limits>

namespace Tevra::Export {

/// Time since it was made.
class Stopwatch {
public:
    /// Whole milliseconds, cut.
    int Milliseconds() const {
        const auto elapsed = std::chrono::steady_clock::now() - m_start;
        const auto whole = std::chrono::duration_cast<std::chrono::milliseconds>(elapsed).count();
        return static_cast<int>(std::min<std::int64_t>(whole, std::numeric_limits<int>::max()));
    }

private:
    std::chrono::steady_clock::time_point m_start = std::chrono::steady_clock::now();
};

}  // namespace Tevra::Export

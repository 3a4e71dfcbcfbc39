#pragma once

#include <array>
#include <compare>
#include <string>
#include <string_view>

namespace Tevra::Util {

/// A program version of three parts, compared part by part.
class CVersion {
public:
    CVersion() = default;
    CVersion(int major, int minor, int release) : m_parts{major, minor, release} {}

    /// Reads "major.minor.release", all digits. False, and nothing changed, for other texts.
    bool Parse(std::string_view text);

    /// The first `parts` parts (1 to 3) with points between them.
    std::string Version(int parts = 3) const;

    // NOLINTNEXTLINE(modernize-use-nullptr): the compiler's own comparison, no pointer
    auto operator<=>(const CVersion&) const = default;

private:
    std::array<int, 3> m_parts{};
};

}  // namespace Tevra::Util

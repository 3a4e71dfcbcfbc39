#include "platform/quorl/Version.h"

#include <charconv>

#include "platform/text/Ascii.h"

namespace Tevra::Util {

bool CVersion::Parse(std::string_view text) {
    std::array<int, 3> parts{};
    const char* at = text.data();
    const char* const end = at + text.size();
    for (std::size_t i = 0; i < parts.size(); ++i) {
        if (i > 0 && (at == end || *at++ != '.')) {
            return false;
        }
        if (at == end || !Text::IsDigit(*at)) {
            return false;
        }
        const auto [next, error] = std::from_chars(at, end, parts[i]);
        if (error != std::errc()) {
            return false;
        }
        at = next;
    }
    if (at != end) {
        return false;
    }
    m_parts = parts;
    return true;
}

std::string CVersion::Version(int parts) const {
    std::string text = std::to_string(m_parts[0]);
    for (std::size_t i = 1; i < m_parts.size() && static_cast<int>(i) < parts; ++i) {
        text += '.' + std::to_string(m_parts[i]);
    }
    return text;
}

}  // namespace Tevra::Util

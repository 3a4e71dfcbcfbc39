#include "platform/text/HostPath.h"

#include <type_traits>

#include "platform/text/Utf8.h"

namespace Tevra::Text {
namespace {

// The library's own conversion between wide texts and 8-bit paths throws on lone surrogates, so
// it is used only where a path is wide and nothing is converted.
constexpr bool kWidePaths = std::is_same_v<std::filesystem::path::value_type, wchar_t>;

}  // namespace

std::filesystem::path ToPath(std::wstring_view text) {
    if constexpr (kWidePaths) {
        return {text};
    } else {
        return {ToUtf8(text)};
    }
}

std::wstring FromPath(const std::filesystem::path& path) {
    if constexpr (kWidePaths) {
        return path.wstring();
    } else {
        return FromUtf8(path.string());
    }
}

}  // namespace Tevra::Text

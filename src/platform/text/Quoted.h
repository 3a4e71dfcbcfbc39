#pragma once

#include <string>
#include <string_view>

#include "platform/text/Ascii.h"

namespace Tevra::Text {

/// A text from a file between quotes for a message: cut where it is long, with question marks for
/// control characters (and, of narrow texts, for all that is not ASCII).
template <class Char>
std::basic_string<Char> Quoted(std::basic_string_view<Char> text) {
    constexpr std::size_t kMost = 60;
    std::basic_string<Char> quoted(1, Char('"'));
    for (const Char c : text.substr(0, kMost)) {
        const bool isPrinted = c >= Char(' ') && (sizeof(Char) > 1 ? c != 0x7F : c <= Char('~'));
        quoted += isPrinted ? c : Char('?');
    }
    if (text.size() > kMost) {
        quoted.append(3, Char('.'));
    }
    return quoted + Char('"');
}
inline std::string Quoted(std::string_view text) {
    return Quoted<char>(text);
}
inline std::wstring Quoted(std::wstring_view text) {
    return Quoted<wchar_t>(text);
}

}  // namespace Tevra::Text

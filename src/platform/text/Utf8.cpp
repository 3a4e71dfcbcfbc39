#include "platform/text/Utf8.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <type_traits>

namespace Tevra::Text {
namespace {

constexpr char32_t kReplacement = 0xFFFD;
constexpr char32_t kLastCodePoint = 0x10FFFF;

constexpr bool IsHighSurrogate(char32_t c) {
    return c >= 0xD800 && c <= 0xDBFF;
}
constexpr bool IsLowSurrogate(char32_t c) {
    return c >= 0xDC00 && c <= 0xDFFF;
}

char32_t UnitAt(std::wstring_view text, std::size_t i) {
    return static_cast<char32_t>(static_cast<std::make_unsigned_t<wchar_t>>(text[i]));
}

/// The code point at `i`, which moves past it.
char32_t NextCodePoint(std::wstring_view text, std::size_t& i) {
    const char32_t c = UnitAt(text, i++);
    if (IsHighSurrogate(c) && i < text.size() && IsLowSurrogate(UnitAt(text, i))) {
        return 0x10000 + ((c - 0xD800) << 10) + (UnitAt(text, i++) - 0xDC00);
    }
    return IsHighSurrogate(c) || IsLowSurrogate(c) || c > kLastCodePoint ? kReplacement : c;
}

void AppendCodePoint(std::string& out, char32_t c) {
    const auto trail = [c](int shift) { return static_cast<char>(0x80 | ((c >> shift) & 0x3F)); };
    if (c < 0x80) {
        out += static_cast<char>(c);
    } else if (c < 0x800) {
        out += {static_cast<char>(0xC0 | (c >> 6)), trail(0)};
    } else if (c < 0x10000) {
        out += {static_cast<char>(0xE0 | (c >> 12)), trail(6), trail(0)};
    } else {
        out += {static_cast<char>(0xF0 | (c >> 18)), trail(12), trail(6), trail(0)};
    }
}

void AppendCodePoint(std::wstring& out, char32_t c) {
    if (sizeof(wchar_t) == 2 && c > 0xFFFF) {
        out += static_cast<wchar_t>(0xD800 + ((c - 0x10000) >> 10));
        out += static_cast<wchar_t>(0xDC00 + ((c - 0x10000) & 0x3FF));
    } else {
        out += static_cast<wchar_t>(c);
    }
}

/// What a lead byte announces: the bytes that follow, its own bits, and the range that the first
/// of the following bytes must keep, which is what shuts out overlong forms and surrogates.
struct Lead {
    int following = 0;
    char32_t bits = 0;
    std::uint8_t low = 0x80;
    std::uint8_t high = 0xBF;
};

/// A byte that cannot begin a character has `following` -1.
Lead LeadOf(std::uint8_t byte) {
    if (byte < 0x80) {
        return {0, byte};
    }
    if (byte >= 0xC2 && byte <= 0xDF) {
        return {1, byte & 0x1FU};
    }
    if (byte >= 0xE0 && byte <= 0xEF) {
        return {2, byte & 0x0FU, static_cast<std::uint8_t>(byte == 0xE0 ? 0xA0 : 0x80),
                static_cast<std::uint8_t>(byte == 0xED ? 0x9F : 0xBF)};
    }
    if (byte >= 0xF0 && byte <= 0xF4) {
        return {3, byte & 0x07U, static_cast<std::uint8_t>(byte == 0xF0 ? 0x90 : 0x80),
                static_cast<std::uint8_t>(byte == 0xF4 ? 0x8F : 0xBF)};
    }
    return {-1};
}

/// The code point at `i`, which moves past it or past the piece that is wrong.
char32_t NextCodePoint(std::string_view bytes, std::size_t& i) {
    Lead lead = LeadOf(static_cast<std::uint8_t>(bytes[i++]));
    if (lead.following < 0) {
        return kReplacement;
    }
    char32_t c = lead.bits;
    for (int k = 0; k < lead.following; ++k) {
        const auto byte = static_cast<std::uint8_t>(i < bytes.size() ? bytes[i] : 0);
        if (byte < lead.low || byte > lead.high) {
            return kReplacement;
        }
        c = (c << 6) | (byte & 0x3FU);
        lead.low = 0x80;
        lead.high = 0xBF;
        ++i;
    }
    return c;
}

/// How many ASCII characters a text begins with, looked at in blocks as most text is nothing else.
template <class Char>
std::size_t NumAscii(std::basic_string_view<Char> text) {
    constexpr std::size_t kBlock = 16;
    using Unit = std::make_unsigned_t<Char>;
    std::size_t count = 0;
    for (; count + kBlock <= text.size(); count += kBlock) {
        std::uint32_t bits = 0;
        for (std::size_t k = 0; k < kBlock; ++k) {
            bits |= static_cast<Unit>(text[count + k]);
        }
        if (bits >= 0x80) {
            break;
        }
    }
    while (count < text.size() && static_cast<Unit>(text[count]) < 0x80) {
        ++count;
    }
    return count;
}

/// Appends the ASCII characters that a text begins with; how many.
template <class To, class From>
std::size_t AppendAscii(std::basic_string<To>& out, std::basic_string_view<From> text) {
    const std::size_t count = NumAscii(text);
    const std::size_t at = out.size();
    out.resize(at + count);
    std::transform(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(count),
                   out.begin() + static_cast<std::ptrdiff_t>(at),
                   [](From c) { return static_cast<To>(c); });
    return count;
}

}  // namespace

void AppendUtf8(std::string& out, std::wstring_view text) {
    for (std::size_t i = 0; i < text.size();) {
        i += AppendAscii(out, text.substr(i));
        if (i < text.size()) {
            AppendCodePoint(out, NextCodePoint(text, i));
        }
    }
}

std::string ToUtf8(std::wstring_view text) {
    std::string out;
    out.reserve(text.size());
    AppendUtf8(out, text);
    return out;
}

std::wstring FromUtf8(std::string_view bytes) {
    std::wstring out;
    out.reserve(bytes.size());
    for (std::size_t i = 0; i < bytes.size();) {
        i += AppendAscii(out, bytes.substr(i));
        if (i < bytes.size()) {
            AppendCodePoint(out, NextCodePoint(bytes, i));
        }
    }
    return out;
}

}  // namespace Tevra::Text

#pragma once

#include <concepts>
#include <string>
#include <string_view>

/// Trimming and case folding of the ASCII range, the same in every locale; other characters are
/// left as they are.
namespace Tevra::Text {

/// Blank, tab, line feed, carriage return, vertical tab or form feed.
template <std::integral Char>
constexpr bool IsSpace(Char c) {
    return c == Char(' ') || (c >= Char('\t') && c <= Char('\r'));
}

template <std::integral Char>
constexpr bool IsDigit(Char c) {
    return c >= Char('0') && c <= Char('9');
}

template <std::integral Char>
constexpr Char ToLower(Char c) {
    return c >= Char('A') && c <= Char('Z') ? static_cast<Char>(c - Char('A') + Char('a')) : c;
}

template <std::integral Char>
constexpr Char ToUpper(Char c) {
    return c >= Char('a') && c <= Char('z') ? static_cast<Char>(c - Char('a') + Char('A')) : c;
}

template <std::integral Char>
constexpr std::basic_string_view<Char> TrimLeft(std::basic_string_view<Char> text) {
    while (!text.empty() && IsSpace(text.front())) {
        text.remove_prefix(1);
    }
    return text;
}

template <std::integral Char>
constexpr std::basic_string_view<Char> TrimRight(std::basic_string_view<Char> text) {
    while (!text.empty() && IsSpace(text.back())) {
        text.remove_suffix(1);
    }
    return text;
}

/// The view without its leading white space.
constexpr std::wstring_view TrimLeft(std::wstring_view text) {
    return TrimLeft<wchar_t>(text);
}
constexpr std::string_view TrimLeft(std::string_view text) {
    return TrimLeft<char>(text);
}

/// The view without its trailing white space.
constexpr std::wstring_view TrimRight(std::wstring_view text) {
    return TrimRight<wchar_t>(text);
}
constexpr std::string_view TrimRight(std::string_view text) {
    return TrimRight<char>(text);
}

/// The view without white space at either end.
constexpr std::wstring_view Trim(std::wstring_view text) {
    return TrimLeft(TrimRight(text));
}
constexpr std::string_view Trim(std::string_view text) {
    return TrimLeft(TrimRight(text));
}

template <std::integral Char>
constexpr bool EqualNoCase(std::basic_string_view<Char> a, std::basic_string_view<Char> b) {
    if (a.size() != b.size()) {
        return false;
    }
    for (std::size_t i = 0; i < a.size(); ++i) {
        if (ToLower(a[i]) != ToLower(b[i])) {
            return false;
        }
    }
    return true;
}

/// Whether two texts are the same but for the case of ASCII letters.
constexpr bool EqualNoCase(std::wstring_view a, std::wstring_view b) {
    return EqualNoCase<wchar_t>(a, b);
}
constexpr bool EqualNoCase(std::string_view a, std::string_view b) {
    return EqualNoCase<char>(a, b);
}

/// The text with its ASCII letters in lower case.
inline std::wstring ToLower(std::wstring_view text) {
    std::wstring out(text);
    for (wchar_t& c : out) {
        c = ToLower(c);
    }
    return out;
}
inline std::string ToLower(std::string_view text) {
    std::string out(text);
    for (char& c : out) {
        c = ToLower(c);
    }
    return out;
}

}  // namespace Tevra::Text

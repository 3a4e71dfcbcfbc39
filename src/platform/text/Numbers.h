#pragma once

#include <charconv>
#include <cmath>
#include <string_view>

/// Numbers from the whole of a text, in the "C" locale.
namespace Tevra::Text {

/// The text without a plus sign before its digits, which std::from_chars does not know.
constexpr std::string_view WithoutPlus(std::string_view text) {
    const bool plus = text.size() > 1 && text[0] == '+' && text[1] != '-' && text[1] != '+';
    return plus ? text.substr(1) : text;
}

/// False, with `value` as it was, for texts that are no integer or none that an int can hold.
inline bool ReadInt(std::string_view text, int& value) {
    text = WithoutPlus(text);
    const char* const end = text.data() + text.size();
    int read = 0;
    const auto [stop, error] = std::from_chars(text.data(), end, read);
    if (error != std::errc() || stop != end) {
        return false;
    }
    value = read;
    return true;
}

/// False, with `value` as it was, for texts that are no finite number of a double's range.
inline bool ReadReal(std::string_view text, double& value) {
    text = WithoutPlus(text);
    const char* const end = text.data() + text.size();
    double read = 0.0;
    const auto [stop, error] = std::from_chars(text.data(), end, read);
    if (error != std::errc() || stop != end || !std::isfinite(read)) {
        return false;
    }
    value = read;
    return true;
}

}  // namespace Tevra::Text

#include "dyna/DynaCard.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

#include "dyna/DynaCodes.h"

namespace Tevra {

namespace {

/// A field never has more characters than this.
constexpr std::size_t kLongestNumber = 32;

std::string_view WithoutBlanks(std::string_view field) {
    const std::size_t first = field.find_first_not_of(' ');
    if (first == std::string_view::npos) {
        return {};
    }
    return field.substr(first, field.find_last_not_of(' ') - first + 1);
}

/// Takes off a plus sign that a digit or decimal point follows: std::from_chars does not know it.
std::string_view WithoutPlus(std::string_view text) {
    const bool plus = text.size() > 1 && text[0] == '+' && text[1] != '-';
    return plus ? text.substr(1) : text;
}

bool ParseInt(std::string_view text, int& value) {
    text = WithoutPlus(text);
    const char* end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, value);
    return error == std::errc() && stop == end;
}

/// 1.0+5 for 1.0e+5: `stop` is where the mantissa ends.
bool ParseBareExponent(std::string_view text, const char* stop, double& value) {
    const auto length = static_cast<std::size_t>(stop - text.data());
    if ((*stop != '+' && *stop != '-') || text.size() >= kLongestNumber ||
        text.find_first_of("eE") < length) {
        return false;
    }
    std::array<char, kLongestNumber> full{};
    char* end = std::copy_n(text.data(), length, full.data());
    *end++ = 'e';
    end = std::copy(stop, text.data() + text.size(), end);
    const auto [fullStop, error] = std::from_chars(full.data(), end, value);
    return error == std::errc() && fullStop == end;
}

bool ParseReal(std::string_view text, double& value) {
    text = WithoutPlus(text);
    const char* end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, value);
    if (error != std::errc()) {
        return false;
    }
    const bool whole = stop == end || ParseBareExponent(text, stop, value);
    return whole && std::isfinite(value);
}

}  // namespace

std::string_view CDynaCard::Cut(int width) {
    const auto count = static_cast<std::size_t>(width);
    const std::string_view field =
        m_next < m_line.size() ? WithoutBlanks(m_line.substr(m_next, count)) : std::string_view();
    m_next += count;
    return field;
}

int CDynaCard::IntIn(int low, int high, Fault outside) {
    const std::string_view field = Cut(kNumberWidth);
    int value = 0;
    if (!field.empty() && !ParseInt(field, value)) {
        Spoil(Fault::NoInteger, field, kNumberWidth);
        return 0;
    }
    if (value < low || value > high) {
        Spoil(outside, field, kNumberWidth);
        return 0;
    }
    return value;
}

int CDynaCard::Int() {
    constexpr std::numeric_limits<int> kAny;
    return IntIn(kAny.min(), kAny.max(), Fault::NoInteger);
}

int CDynaCard::Number() {
    return IntIn(1, std::numeric_limits<int>::max(), Fault::BelowOne);
}

int CDynaCard::Reference() {
    return IntIn(0, std::numeric_limits<int>::max(), Fault::Negative);
}

int CDynaCard::Code() {
    return IntIn(0, static_cast<int>(kDynaDirections.size()) - 1, Fault::NoCode);
}

double CDynaCard::Real(int width) {
    const std::string_view field = Cut(width);
    double value = 0.0;
    if (!field.empty() && !ParseReal(field, value)) {
        Spoil(Fault::NoNumber, field, width);
        return 0.0;
    }
    return value;
}

void CDynaCard::Spoil(Fault fault, std::string_view field, int width) {
    if (m_fault == Fault::None) {
        m_fault = fault;
        m_badField = field;
        m_badWidth = width;
        m_badColumn = m_next - static_cast<std::size_t>(width) + 1;
    }
}

std::string CDynaCard::Error() const {
    constexpr std::array<std::string_view, 6> kFaults = {
        "",
        "is not an integer",
        "is not a number",
        "is not the number of an entity, which is 1 or more",
        "is not the number of an entity or 0",
        "is not a code from 0 to 7"};
    if (Good()) {
        return {};
    }
    const std::size_t last = m_badColumn + static_cast<std::size_t>(m_badWidth) - 1;
    std::string text = "columns ";
    text += std::to_string(m_badColumn);
    text += '-';
    text += std::to_string(last);
    text += ": ";
    text += m_badField.empty() ? "blank" : Quoted(m_badField);
    text += ' ';
    text += kFaults[static_cast<std::size_t>(m_fault)];
    return text;
}

std::string Quoted(std::string_view text) {
    constexpr std::size_t kMost = 60;
    std::string quoted(1, '"');
    quoted += text.substr(0, kMost);
    std::replace_if(
        quoted.begin(), quoted.end(), [](char c) { return c < ' ' || c > '~'; }, '?');
    return quoted + (text.size() > kMost ? "...\"" : "\"");
}

}  // namespace Tevra

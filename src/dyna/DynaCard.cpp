#include "dyna/DynaCard.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

#include "dyna/DynaCodes.h"
#include "platform/text/Ascii.h"
#include "platform/text/Numbers.h"
#include "platform/text/Quoted.h"

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

/// Digits with nothing but blanks round them, as most fields are; false for anything else.
bool ReadDigits(std::string_view field, int& value) {
    const char* at = field.data();
    const char* const end = at + field.size();
    while (at != end && *at == ' ') {
        ++at;
    }
    const char* const first = at;
    int number = 0;
    for (; at != end && Text::IsDigit(*at); ++at) {
        number = number * 10 + (*at - '0');
    }
    const bool hasDigits = at != first;
    while (at != end && *at == ' ') {
        ++at;
    }
    value = number;
    return hasDigits && at == end;
}

enum class RealFault { None, NoNumber, TooLarge };

/// Reads `text`; numbers too small for a double are 0.
RealFault ParsePlain(std::string_view text, double& value) {
    const char* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, value);
    if (stop != end || error == std::errc::invalid_argument) {
        return RealFault::NoNumber;
    }
    if (error == std::errc::result_out_of_range) {
        const std::size_t exponent = text.find_first_of("eE");
        const bool isSmall = exponent < text.size() - 1 && text[exponent + 1] == '-';
        value = 0.0;
        return isSmall ? RealFault::None : RealFault::TooLarge;
    }
    return std::isfinite(value) ? RealFault::None : RealFault::NoNumber;
}

/// A number, also one with an exponent as Fortran writes it: 1.0d+5, or 1.0+5 without a letter.
RealFault ParseReal(std::string_view text, double& value) {
    text = Text::WithoutPlus(text);
    const std::size_t mark = text.find_first_not_of("+-.0123456789");
    const std::size_t sign = text.find_first_of("+-", 1);
    const bool isFortran =
        mark != std::string_view::npos && (text[mark] == 'd' || text[mark] == 'D');
    const bool isBare = mark == std::string_view::npos && sign != std::string_view::npos;
    if ((!isFortran && !isBare) || text.size() >= kLongestNumber) {
        return ParsePlain(text, value);
    }
    const std::size_t length = isBare ? sign : mark;
    std::array<char, kLongestNumber> full{};
    char* end = std::copy_n(text.data(), length, full.data());
    *end++ = 'e';
    end = std::copy(text.begin() + static_cast<std::ptrdiff_t>(isBare ? sign : mark + 1),
                    text.end(), end);
    return ParsePlain({full.data(), static_cast<std::size_t>(end - full.data())}, value);
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
    int value = 0;
    if (m_next + kNumberWidth <= m_line.size() &&
        ReadDigits(m_line.substr(m_next, kNumberWidth), value) && value >= low && value <= high) {
        m_next += kNumberWidth;
        return value;
    }
    value = 0;
    const std::string_view field = Cut(kNumberWidth);
    if (!field.empty() && !Text::ReadInt(field, value)) {
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
    const RealFault fault = field.empty() ? RealFault::None : ParseReal(field, value);
    if (fault != RealFault::None) {
        Spoil(fault == RealFault::TooLarge ? Fault::TooLarge : Fault::NoNumber, field, width);
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
    constexpr std::array<std::string_view, 7> kFaults = {
        "",
        "is not an integer",
        "is not a number",
        "is too large a number",
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
    text += m_badField.empty() ? "blank" : Text::Quoted(m_badField);
    text += ' ';
    text += kFaults[static_cast<std::size_t>(m_fault)];
    return text;
}

}  // namespace Tevra

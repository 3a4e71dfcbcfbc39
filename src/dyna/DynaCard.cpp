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

/// Digits with nothing but blanks round them, as most fields are, or blanks alone, which are 0;
/// false for anything else.
bool ReadDigits(std::string_view field, int& value) {
    const char* at = field.data();
    const char* const end = at + field.size();
    while (at != end && *at == ' ') {
        ++at;
    }
    int number = 0;
    for (; at != end && Text::IsDigit(*at); ++at) {
        number = number * 10 + (*at - '0');
    }
    while (at != end && *at == ' ') {
        ++at;
    }
    value = number;
    return at == end;
}

enum class RealFault { None, NoNumber, TooLarge };

/// What from_chars says of a whole text; numbers too small for a double are 0.
RealFault FaultOf(std::string_view text, std::errc error, double& value) {
    if (error == std::errc()) {
        return std::isfinite(value) ? RealFault::None : RealFault::NoNumber;
    }
    const std::size_t exponent = text.find_first_of("eE");
    const bool isSmall = exponent < text.size() - 1 && text[exponent + 1] == '-';
    value = 0.0;
    return isSmall ? RealFault::None : RealFault::TooLarge;
}

/// A number whose exponent is as Fortran writes it, 1.0d+5 or 1.0+5: `length` is where its mantissa
/// ends.
RealFault ParseFortran(std::string_view text, std::size_t length, double& value) {
    const char mark = text[length];
    const bool hasLetter = mark == 'd' || mark == 'D';
    if ((!hasLetter && mark != '+' && mark != '-') || text.size() >= kLongestNumber ||
        text.find_first_of("eE") != std::string_view::npos) {
        return RealFault::NoNumber;
    }
    std::array<char, kLongestNumber> full{};
    char* end = std::copy_n(text.data(), length, full.data());
    *end++ = 'e';
    const std::string_view exponent = text.substr(length + (hasLetter ? 1 : 0));
    end = std::copy(exponent.begin() + (exponent.starts_with('+') ? 1 : 0), exponent.end(), end);
    const auto [stop, error] = std::from_chars(full.data(), end, value);
    const std::string_view whole(full.data(), static_cast<std::size_t>(end - full.data()));
    return stop == end && error != std::errc::invalid_argument ? FaultOf(whole, error, value)
                                                               : RealFault::NoNumber;
}

RealFault ParseReal(std::string_view text, double& value) {
    text = Text::WithoutPlus(text);
    const char* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, value);
    if (error == std::errc::invalid_argument) {
        return RealFault::NoNumber;
    }
    return stop == end ? FaultOf(text, error, value)
                       : ParseFortran(text, static_cast<std::size_t>(stop - text.data()), value);
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
    const std::string_view columns =
        m_next < m_line.size() ? m_line.substr(m_next, kNumberWidth) : std::string_view();
    if (ReadDigits(columns, value) && value >= low && value <= high) {
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

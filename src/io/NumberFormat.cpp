#include "io/NumberFormat.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>

#include "io/DecimalDigits.h"

namespace Tevra {
namespace {

int ClampPrecision(int precision) {
    return std::clamp(precision, 0, kMaxNumberPrecision);
}

/// Moves the text from `first` to `last` to the right so that it fills `width`.
char* Justify(char* first, char* last, int width) {
    const std::ptrdiff_t length = last - first;
    const std::ptrdiff_t blanks = std::min(width, kMaxNumberWidth) - length;
    if (blanks <= 0) {
        return last;
    }
    std::memmove(first + blanks, first, static_cast<std::size_t>(length));
    std::memset(first, ' ', static_cast<std::size_t>(blanks));
    return last + blanks;
}

char* Copy(char* out, const char* text, int length) {
    std::memcpy(out, text, static_cast<std::size_t>(length));
    return out + length;
}

char* Fill(char* out, char c, int count) {
    std::memset(out, c, static_cast<std::size_t>(count));
    return out + count;
}

/// Writes the sign, and the whole of a value that has no digits; the latter makes it true.
bool SignOrSpecial(char*& out, double value, bool plus) {
    if (std::signbit(value)) {
        *out++ = '-';
    } else if (plus) {
        *out++ = '+';
    }
    if (std::isfinite(value)) {
        return false;
    }
    out = Copy(out, std::isnan(value) ? "nan" : "inf", 3);
    return true;
}

constexpr auto kPairs = [] {
    std::array<char, 200> pairs{};
    for (std::size_t i = 0; i < pairs.size(); ++i) {
        const std::size_t digit = i % 2 == 0 ? i / 20 : i / 2 % 10;
        pairs[i] = static_cast<char>('0' + digit);
    }
    return pairs;
}();

/// The last `count` digits of a number, with leading zeros.
char* WriteDigits(char* out, std::uint64_t number, int count) {
    char* at = out + count;
    for (; at - out >= 2; number /= 100) {
        at -= 2;
        std::memcpy(at, &kPairs[number % 100 * 2], 2);
    }
    if (at != out) {
        *out = static_cast<char>('0' + number % 10);
    }
    return out + count;
}

char* WriteExponent(char* out, int exponent) {
    *out++ = 'e';
    *out++ = exponent < 0 ? '-' : '+';
    const int size = std::abs(exponent);
    return WriteDigits(out, static_cast<std::uint64_t>(size), size < 100 ? 2 : 3);
}

char* WriteExp(char* out, double magnitude, int precision) {
    std::uint64_t digits = 0;
    int exponent = 0;
    const bool isShort =
        precision < kMaxDecimalDigits &&
        (magnitude == 0.0 || SignificantDigits(magnitude, precision + 1, digits, exponent));
    if (!isShort) {
        return std::to_chars(out, out + kMaxNumberText - 1, magnitude,
                             std::chars_format::scientific, precision)
            .ptr;
    }
    char* const last = WriteDigits(out + 1, digits, precision + 1);
    out[0] = out[1];
    out[1] = '.';
    return WriteExponent(precision > 0 ? last : out + 1, exponent);
}

char* WriteFixed(char* out, double magnitude, int precision) {
    std::uint64_t scaled = 0;
    if (precision > kMaxDecimalDigits || !ScaleToInteger(magnitude, precision, scaled)) {
        return std::to_chars(out, out + kMaxNumberText - 1, magnitude, std::chars_format::fixed,
                             precision)
            .ptr;
    }
    const std::uint64_t one = IntegerPowerOfTen(precision);
    out = std::to_chars(out, out + kMaxNumberText - 1, scaled / one).ptr;
    if (precision > 0) {
        *out++ = '.';
        out = WriteDigits(out, scaled % one, precision);
    }
    return out;
}

/// A sign, the digits with a given number of decimals, a width.
template <char* (*kWrite)(char*, double, int)>
char* AppendDecimals(char* out, double value, int width, int precision, bool plus) {
    char* const first = out;
    if (!SignOrSpecial(out, value, plus)) {
        out = kWrite(out, std::fabs(value), ClampPrecision(precision));
    }
    return Justify(first, out, width);
}

/// Significant digits of a magnitude, rounded as printf does, and its decimal exponent.
struct Scientific {
    char digits[kMaxNumberPrecision] = {};
    int count = 0;
    int exponent = 0;
};

Scientific RoundedDigits(double magnitude, int significant) {
    Scientific result;
    result.count = significant;
    std::uint64_t digits = 0;
    if (significant <= kMaxDecimalDigits &&
        (magnitude == 0.0 || SignificantDigits(magnitude, significant, digits, result.exponent))) {
        WriteDigits(result.digits, digits, significant);
        return result;
    }
    char text[kMaxNumberPrecision + 16];
    const char* end = std::to_chars(text, text + sizeof text, magnitude,
                                    std::chars_format::scientific, significant - 1)
                          .ptr;
    result.digits[0] = text[0];
    // Past the first digit stands the decimal point, unless no digit follows.
    const char* mark = text + 1;
    if (significant > 1) {
        Copy(result.digits + 1, text + 2, significant - 1);
        mark += significant;
    }
    const bool negative = mark[1] == '-';
    std::from_chars(mark + 2, end, result.exponent);
    result.exponent = negative ? -result.exponent : result.exponent;
    return result;
}

/// Digits in fixed notation, the decimal point after the one of `exponent`.
char* WritePlain(char* out, const Scientific& number, bool keepPoint) {
    if (number.exponent < 0) {
        out = Copy(out, "0.", 2);
        out = Fill(out, '0', -number.exponent - 1);
        return Copy(out, number.digits, number.count);
    }
    const int whole = number.exponent + 1;
    if (number.count <= whole) {
        out = Copy(out, number.digits, number.count);
        out = Fill(out, '0', whole - number.count);
        return keepPoint ? Copy(out, ".", 1) : out;
    }
    out = Copy(out, number.digits, whole);
    *out++ = '.';
    return Copy(out, number.digits + whole, number.count - whole);
}

char* WriteScientific(char* out, const Scientific& number, bool keepPoint) {
    *out++ = number.digits[0];
    if (number.count > 1 || keepPoint) {
        *out++ = '.';
        out = Copy(out, number.digits + 1, number.count - 1);
    }
    return WriteExponent(out, number.exponent);
}

char* AppendSignificant(char* out, double value, int width, int precision, bool padded) {
    char* const first = out;
    if (SignOrSpecial(out, value, false)) {
        return Justify(first, out, width);
    }
    const int significant = std::max(ClampPrecision(precision), 1);
    Scientific number = RoundedDigits(std::fabs(value), significant);
    const bool plain = number.exponent >= -4 && number.exponent < significant;
    while (!padded && number.count > 1 && number.digits[number.count - 1] == '0') {
        --number.count;
    }
    out = plain ? WritePlain(out, number, padded) : WriteScientific(out, number, padded);
    return Justify(first, out, width);
}

/// The form that appends to a string, of one that writes into a buffer.
template <class Write>
void AppendTo(std::string& out, Write&& write) {
    char text[kMaxNumberText];
    out.append(text, write(text));
}

}  // namespace

char* AppendInt(char* out, long long value, int width, int digits) {
    if (width <= 1 && digits <= 1) {
        return std::to_chars(out, out + kMaxNumberText, value).ptr;
    }
    char text[24];
    const char* from = text;
    const char* to = std::to_chars(text, text + sizeof text, value).ptr;
    char* const first = out;
    if (*from == '-') {
        *out++ = *from++;
    }
    const int count = static_cast<int>(to - from);
    out = Fill(out, '0', std::max(std::clamp(digits, 1, kMaxNumberPrecision) - count, 0));
    return Justify(first, Copy(out, from, count), width);
}

char* AppendExp(char* out, double value, int width, int precision) {
    return AppendDecimals<WriteExp>(out, value, width, precision, false);
}

char* AppendFixed(char* out, double value, int width, int precision) {
    return AppendDecimals<WriteFixed>(out, value, width, precision, false);
}

char* AppendSignedFixed(char* out, double value, int width, int precision) {
    return AppendDecimals<WriteFixed>(out, value, width, precision, true);
}

char* AppendGeneral(char* out, double value, int width, int precision) {
    return AppendSignificant(out, value, width, precision, false);
}

char* AppendPadded(char* out, double value, int width, int precision) {
    return AppendSignificant(out, value, width, precision, true);
}

char* AppendShortest(char* out, double value) {
    if (SignOrSpecial(out, value, false)) {
        return out;
    }
    return std::to_chars(out, out + kMaxNumberText - 1, std::fabs(value)).ptr;
}

void AppendInt(std::string& out, long long value, int width, int digits) {
    AppendTo(out, [=](char* at) { return AppendInt(at, value, width, digits); });
}

void AppendExp(std::string& out, double value, int width, int precision) {
    AppendTo(out, [=](char* at) { return AppendExp(at, value, width, precision); });
}

void AppendFixed(std::string& out, double value, int width, int precision) {
    AppendTo(out, [=](char* at) { return AppendFixed(at, value, width, precision); });
}

void AppendSignedFixed(std::string& out, double value, int width, int precision) {
    AppendTo(out, [=](char* at) { return AppendSignedFixed(at, value, width, precision); });
}

void AppendGeneral(std::string& out, double value, int width, int precision) {
    AppendTo(out, [=](char* at) { return AppendGeneral(at, value, width, precision); });
}

void AppendPadded(std::string& out, double value, int width, int precision) {
    AppendTo(out, [=](char* at) { return AppendPadded(at, value, width, precision); });
}

void AppendShortest(std::string& out, double value) {
    AppendTo(out, [=](char* at) { return AppendShortest(at, value); });
}

}  // namespace Tevra

#include "io/NumberFormat.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <cstdlib>
#include <cstring>

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

char* Digits(char* out, double magnitude, std::chars_format format, int precision) {
    return std::to_chars(out, out + kMaxNumberText - 1, magnitude, format, precision).ptr;
}

/// A sign, a format with a given number of decimals, a width.
char* AppendDecimals(char* out, double value, int width, int precision, std::chars_format format,
                     bool plus) {
    char* const first = out;
    if (!SignOrSpecial(out, value, plus)) {
        out = Digits(out, std::fabs(value), format, ClampPrecision(precision));
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
    char text[kMaxNumberPrecision + 16];
    const char* end = std::to_chars(text, text + sizeof text, magnitude,
                                    std::chars_format::scientific, significant - 1)
                          .ptr;
    Scientific result;
    result.count = significant;
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

char* WriteExponent(char* out, int exponent) {
    *out++ = 'e';
    *out++ = exponent < 0 ? '-' : '+';
    return AppendInt(out, std::abs(exponent), 0, 2);
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
    return AppendDecimals(out, value, width, precision, std::chars_format::scientific, false);
}

char* AppendFixed(char* out, double value, int width, int precision) {
    return AppendDecimals(out, value, width, precision, std::chars_format::fixed, false);
}

char* AppendSignedFixed(char* out, double value, int width, int precision) {
    return AppendDecimals(out, value, width, precision, std::chars_format::fixed, true);
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

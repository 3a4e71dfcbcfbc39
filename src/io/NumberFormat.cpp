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

/// Characters that are copied or moved without a call: nearly every number has no more. There is
/// room for as many past the end of a text no longer than that, and past significant digits.
constexpr std::size_t kBlock = 32;

/// Moves the text from `first` to `last` to the right so that it fills `width`.
char* Justify(char* first, char* last, int width) {
    const auto length = static_cast<std::size_t>(last - first);
    const auto filled = static_cast<std::size_t>(std::clamp(width, 0, kMaxNumberWidth));
    if (filled <= length) {
        return last;
    }
    const std::size_t blanks = filled - length;
    if (length <= kBlock && blanks <= kBlock) {
        char text[kBlock];
        std::memcpy(text, first, kBlock);
        std::memset(first, ' ', kBlock);
        std::memcpy(first + blanks, text, kBlock);
    } else {
        std::memmove(first + blanks, first, length);
        std::memset(first, ' ', blanks);
    }
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
    char digits[kMaxNumberPrecision + kBlock];  ///< `count` of them are set
    int count = 0;
    int exponent = 0;
};

/// Copies digits of a number from the one at `from` to the one before `to`.
char* CopyDigits(char* out, const Scientific& number, int from, int to) {
    if (to - from > static_cast<int>(kBlock)) {
        return Copy(out, number.digits + from, to - from);
    }
    std::memcpy(out, number.digits + from, kBlock);
    return out + (to - from);
}

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

/// Digits in fixed notation, the decimal point after the one of `exponent`, which is -4 or more.
char* WritePlain(char* out, const Scientific& number, bool keepPoint) {
    if (number.exponent < 0) {
        constexpr std::array<char, 5> kZeros{'0', '.', '0', '0', '0'};
        std::memcpy(out, kZeros.data(), kZeros.size());
        out += 1 - number.exponent;
        return CopyDigits(out, number, 0, number.count);
    }
    const int whole = number.exponent + 1;
    if (number.count <= whole) {
        out = CopyDigits(out, number, 0, number.count);
        out = Fill(out, '0', whole - number.count);
        return keepPoint ? Copy(out, ".", 1) : out;
    }
    out = CopyDigits(out, number, 0, whole);
    *out++ = '.';
    return CopyDigits(out, number, whole, number.count);
}

char* WriteScientific(char* out, const Scientific& number, bool keepPoint) {
    *out++ = number.digits[0];
    if (number.count > 1 || keepPoint) {
        *out++ = '.';
        out = CopyDigits(out, number, 1, number.count);
    }
    return WriteExponent(out, number.exponent);
}

char* AppendSignificant(char* out, double value, int width, int precision, bool padded) {
    char* const first = out;
    if (SignOrSpecial(out, value, false)) {
        return Justify(first, out, width);
    }
    if (value == 0.0 && !padded) {
        *out++ = '0';
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
    if (digits <= 1) {
        return Justify(out, std::to_chars(out, out + kMaxNumberText, value).ptr, width);
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

#include "io/CardFields.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

#include "io/DecimalDigits.h"
#include "io/NumberFormat.h"

namespace Tevra {
namespace {

/// Narrowest field that can hold a digit, a point and an exponent.
constexpr int kMinRealWidth = 6;
/// Narrowest field that can spare a place for the sign.
constexpr int kMinSignWidth = 8;

char* Fill(char* out, char c, int count) {
    std::memset(out, c, static_cast<std::size_t>(std::max(count, 0)));
    return out + std::max(count, 0);
}

char* Copy(char* out, const char* from, const char* to) {
    std::memcpy(out, from, static_cast<std::size_t>(to - from));
    return out + (to - from);
}

/// Removes the character `fromEnd` places before the end (1 = the last one) if it is `c`.
char* DeleteIf(char* first, char* last, std::ptrdiff_t fromEnd, char c) {
    if (last - first < fromEnd || *(last - fromEnd) != c) {
        return last;
    }
    std::memmove(last - fromEnd, last - fromEnd + 1, static_cast<std::size_t>(fromEnd - 1));
    return last - 1;
}

/// Takes a character out of the exponent of "%e" text: the leading zero of a two-digit exponent.
/// Kept as files in the field have it: of three-digit exponents the plus goes, and a zero in the
/// middle goes with it, so that 1e100 reads as 1.000000e10 and 1e-308 as 1.000000e-38.
char* ShortenExponent(char* first, char* last) {
    last = DeleteIf(first, last, 4, '+');
    return DeleteIf(first, last, 2, '0');
}

/// Digits of "%e".
constexpr int kDigits = 7;
/// No text of "%e" is longer.
constexpr std::size_t kRealText = 16;

/// Writes the text with its short exponent straight from the digits; null, and nothing is written,
/// where they can't be told in the short way or the exponent has three digits.
char* ShortText(char* out, double value) {
    std::uint64_t digits = 0;
    int exponent = 0;
    if (value == 0.0) {
        constexpr std::string_view kZero = "-0.000000e+0";
        return Copy(out, kZero.data() + (std::signbit(value) ? 0 : 1), kZero.data() + kZero.size());
    }
    if (!SignificantDigits(std::abs(value), kDigits, digits, exponent) || exponent < -99 ||
        exponent > 99) {
        return nullptr;
    }
    if (value < 0.0) {
        *out++ = '-';
    }
    WriteDigits(out + 1, digits, kDigits);
    out[0] = out[1];
    out[1] = '.';
    out += kDigits + 1;
    *out++ = 'e';
    *out++ = exponent < 0 ? '-' : '+';
    const int size = std::abs(exponent);
    return WriteDigits(out, static_cast<std::uint64_t>(size), size < 10 ? 1 : 2);
}

/// Widths that are filled without a call: nearly every field has no more.
constexpr int kBlock = 32;

/// A number right-justified in a field of up to kBlock characters, from its last digit; null, and
/// nothing is kept, when it does not fit.
char* ShortInt(char* out, std::uint64_t value, int width) {
    std::memset(out, ' ', kBlock);
    char* at = out + width;
    for (; value >= 10 && at - out >= 2; value /= 100) {
        at -= 2;
        std::memcpy(at, &kDigitPairs[value % 100 * 2], 2);
    }
    if (value >= 10 || (value > 0 && at == out)) {
        return nullptr;
    }
    if (value > 0 || at == out + width) {
        *--at = static_cast<char>('0' + value);
    }
    return out + width;
}

}  // namespace

char* AppendIntField(char* out, long long value, int width) {
    width = std::clamp(width, -kMaxFieldWidth, kMaxFieldWidth);
    if (value >= 0 && width > 0 && width <= kBlock) {
        if (char* const end = ShortInt(out, static_cast<std::uint64_t>(value), width)) {
            return end;
        }
    }
    char* const end = AppendInt(out, value, width);
    const int length = static_cast<int>(end - out);
    if (width >= 1 && length > width) {
        return Fill(end, '*', width);
    }
    return Fill(end, ' ', -width - length);
}

char* AppendRealField(char* out, double value, int width, bool signSpace) {
    width = std::min(width, kMaxFieldWidth);
    if (width < kMinRealWidth) {
        return Fill(out, '*', width);
    }
    char text[kMaxNumberText];
    const char* end = std::isfinite(value) ? ShortText(text, value) : nullptr;
    if (end == nullptr) {
        end = ShortenExponent(text, AppendExp(text, value));
    }
    const int length = static_cast<int>(end - text);
    const bool reserve = signSpace && width >= kMinSignWidth && value > 0.0;
    const int room = reserve ? width - 1 : width;
    if (length == room) {
        // Kept: a text that just fits has no blank before it, even where one was set aside.
        return Copy(out, text, end);
    }
    if (length < room && width <= kBlock) {
        std::memset(out, ' ', kBlock);
        std::memcpy(out + width - length, text, kRealText);
        return out + width;
    }
    out = Fill(out, ' ', width - std::min(length, room));
    if (length < room) {
        return Copy(out, text, end);
    }
    const char* exponent = end - 1;  // only numbers with an exponent are ever this long
    while (*exponent != 'e') {
        --exponent;
    }
    out = Copy(out, text, text + room - (end - exponent));
    return Copy(out, exponent, end);
}

std::string FormatIntField(long long value, int width) {
    std::string field;
    AppendIntField(field, value, width);
    return field;
}

std::string FormatRealField(double value, int width, bool signSpace) {
    std::string field;
    AppendRealField(field, value, width, signSpace);
    return field;
}

void AppendIntField(std::string& out, long long value, int width) {
    char field[kMaxFieldWidth];
    out.append(field, AppendIntField(field, value, width));
}

void AppendRealField(std::string& out, double value, int width, bool signSpace) {
    char field[kMaxFieldWidth];
    out.append(field, AppendRealField(field, value, width, signSpace));
}

}  // namespace Tevra

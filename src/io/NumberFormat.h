#pragma once

#include <string>

/// Numbers as text, byte for byte what the C library's printf gives in the "C" locale, for every
/// value (infinities as "inf", values that are not numbers as "nan" or "-nan", negative zero with
/// its sign), but with no locale, no heap and no hidden state.
///
/// Each function has two forms. One writes at `out`, where kMaxNumberText characters of room are
/// needed, and returns the end of what it wrote, without a terminating zero. The other appends to a
/// string. `width` is the least number of characters, filled with blanks on the left. Widths and
/// precisions above their limits, and negative ones, are brought into range.
namespace Tevra {

inline constexpr int kMaxNumberWidth = 128;
inline constexpr int kMaxNumberPrecision = 64;
/// Sign, the 309 digits of the largest double, decimal point and decimals, rounded up.
inline constexpr int kMaxNumberText = 384;
inline constexpr int kDefaultPrecision = 6;

/// %i, %8i (width 8) and %4.4i (digits 4).
char* AppendInt(char* out, long long value, int width = 0, int digits = 1);

/// %e: one digit before the point, `precision` after it, an exponent of two digits or three.
char* AppendExp(char* out, double value, int width = 0, int precision = kDefaultPrecision);

/// %f: `precision` decimals, no exponent.
char* AppendFixed(char* out, double value, int width = 0, int precision = kDefaultPrecision);

/// %+f: as %f, with the sign of positive values too.
char* AppendSignedFixed(char* out, double value, int width = 0, int precision = kDefaultPrecision);

/// %g: `precision` significant digits without trailing zeros; with an exponent when that is below
/// -4 or not below the precision. With the default precision also what a C++ stream makes of a
/// double.
char* AppendGeneral(char* out, double value, int width = 0, int precision = kDefaultPrecision);

/// `%#g`: as `%g`, with a decimal point and all its significant digits always. A value that rounds
/// up to a power of ten keeps its zeros too (999999.5 is 1.00000e+06), which some C libraries cut
/// to "1.e+06".
char* AppendPadded(char* out, double value, int width = 0, int precision = kDefaultPrecision);

/// The shortest text that reads back as the same double; with an exponent where that is shorter.
char* AppendShortest(char* out, double value);

void AppendInt(std::string& out, long long value, int width = 0, int digits = 1);
void AppendExp(std::string& out, double value, int width = 0, int precision = kDefaultPrecision);
void AppendFixed(std::string& out, double value, int width = 0, int precision = kDefaultPrecision);
void AppendSignedFixed(std::string& out, double value, int width = 0,
                       int precision = kDefaultPrecision);
void AppendGeneral(std::string& out, double value, int width = 0,
                   int precision = kDefaultPrecision);
void AppendPadded(std::string& out, double value, int width = 0, int precision = kDefaultPrecision);
void AppendShortest(std::string& out, double value);

}  // namespace Tevra

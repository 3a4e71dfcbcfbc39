#pragma once

#include <string>

/// Number fields of the card formats: texts of a fixed width in characters. The functions have no
/// state and never fail.
namespace Tevra {

/// The widest field; wider ones are brought down to it.
inline constexpr int kMaxFieldWidth = 128;

/// Integer right-justified in `width` characters. A number that is longer keeps its digits and
/// gains `width` asterisks, so that the card shows where it broke. A negative width justifies to
/// the left.
std::string FormatIntField(long long value, int width);

/// Real number in `width` characters, right-justified: "%e" with a short exponent, its mantissa cut
/// (never rounded) where the field is narrow. Below six characters the field is all asterisks. With
/// `signSpace` and at least eight characters, a positive number leaves room for a sign, so that it
/// lines up with negative ones.
std::string FormatRealField(double value, int width, bool signSpace = false);

/// The same at the end of a string, and in a buffer with room for kMaxFieldWidth characters, where
/// the end of the field is returned.
void AppendIntField(std::string& out, long long value, int width);
void AppendRealField(std::string& out, double value, int width, bool signSpace = false);
char* AppendIntField(char* out, long long value, int width);
char* AppendRealField(char* out, double value, int width, bool signSpace = false);

}  // namespace Tevra

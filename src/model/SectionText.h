#pragma once

#include <string_view>
#include <vector>

/// Numbers, units and lists, as section descriptions and profile files write them.
namespace Tevra::Data {

/// A decimal number and nothing else but blanks around it; false for anything else, numbers that a
/// double can't hold, infinities and NaN included.
bool ReadNumber(std::wstring_view text, double& value);

/// Metres in a unit of length (mm, cm, m, in, ft) in either case; 0 when it is none of them.
double LengthUnit(std::wstring_view word);

/// The parts between separators, without blanks around them.
std::vector<std::wstring_view> SplitAt(std::wstring_view text, wchar_t separator);

}  // namespace Tevra::Data

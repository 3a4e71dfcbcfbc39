#pragma once

#include <string>

#include "draw/LoadArrows.h"

namespace Tevra {

class CUnit;

/// A value of a kind of load with its unit, "12.5 kN/m": in the units of the model, but in N, kN or
/// MN by its size, and per metre, where they are metric.
std::wstring ValueText(ArrowKind kind, double value, const CUnit& units);

/// A figure of three significant digits, with all digits before the point and no exponent where it
/// can be read without.
std::wstring ShortNumber(double value);

}  // namespace Tevra

#pragma once

#include "model/Types.h"

/// Directions as the digits 1 to 6 of the target.
namespace Tevra::Nas {

/// Stiffness (N/m, Nm/rad) below which a direction of a spring is none.
inline constexpr double kLeastStiffness = 1e-10;

constexpr int DigitOf(Direction d) {
    return static_cast<int>(d) + 1;
}

/// The directions of a record in their order, as one number: X, Y and ZZ are 126; 0 for none.
constexpr int DigitsOf(Vbool6 directions) {
    int digits = 0;
    for (const Direction d : kDirections) {
        if (directions.IncludesDirection(d)) {
            digits = digits * 10 + DigitOf(d);
        }
    }
    return digits;
}

}  // namespace Tevra::Nas

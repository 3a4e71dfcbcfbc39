#pragma once

#include <string>
#include <string_view>

#include "model/Types.h"

/// Words of load directions.
namespace Tevra {

/// "UX" to "RZ".
std::string_view GlobalKey(Direction d);

/// The same as node forces, spring displacements, distributed and face loads have it: kept as files
/// in the field have it, the two letters of the key as one character of 16 bits, the first letter
/// in its low byte ("UZ" is U+5A55, here in UTF-8).
const std::string& JoinedKey(Direction d);

/// A direction of an element in the target's axes.
struct LocalKey {
    std::string_view word;  ///< "U1" to "R3"
    double sign = 1.0;
};
/// The target's axis 2 is the host's z, of vertical elements its opposite; its axis 3 the host's y
/// reversed, of vertical elements the host's y.
LocalKey LocalKeyOf(Direction d, bool isVertical);

}  // namespace Tevra

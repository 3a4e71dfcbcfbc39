#pragma once

#include <array>

namespace Tevra {

/// Directions that the constraint and release codes 0 to 7 stand for, as flags 1 x, 2 y, 4 z (of
/// translations, or of rotations).
inline constexpr std::array<unsigned, 8> kDynaDirections = {0,     1,     2,     4,
                                                            1 | 2, 2 | 4, 4 | 1, 1 | 2 | 4};

}  // namespace Tevra

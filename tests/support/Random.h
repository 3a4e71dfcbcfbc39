#pragma once

#include <cstdint>
#include <random>

namespace Tevra::TestSupport {

/// A generator that gives the same numbers in every run, so that a failure can be looked at again.
inline std::mt19937_64 SeededRandom(std::uint64_t seed) {
    return std::mt19937_64(seed);
}

}  // namespace Tevra::TestSupport

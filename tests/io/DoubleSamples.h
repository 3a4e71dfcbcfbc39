#pragma once

#include <array>
#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <random>
#include <vector>

#include "support/Random.h"

namespace Tevra::TestSupport {

/// Doubles on which number formatting goes wrong when it goes wrong: every special value, powers of
/// ten and of two with their neighbours, subnormals, ties at every decimal, decimals of few digits,
/// all magnitudes and any bit pattern. The same ones for a seed, in both signs.
inline std::vector<double> DoubleSamples(std::size_t perKind, std::uint64_t seed) {
    using Limits = std::numeric_limits<double>;
    constexpr std::array kSpecial{0.0,
                                  Limits::infinity(),
                                  Limits::quiet_NaN(),
                                  Limits::max(),
                                  Limits::denorm_min(),
                                  Limits::min(),
                                  Limits::epsilon(),
                                  999999.5,
                                  9999995.0,
                                  0.00009999995,
                                  999999.4999999999,
                                  1e22,
                                  1e23,
                                  9007199254740993.0};
    std::vector<double> samples(kSpecial.begin(), kSpecial.end());
    const auto withNeighbours = [&](double v) {
        samples.insert(samples.end(),
                       {v, std::nextafter(v, 0.0), std::nextafter(v, Limits::max())});
    };
    for (int e = -323; e <= 308; ++e) {
        const double power = std::pow(10.0, e);
        withNeighbours(power);
        withNeighbours(power * 0.9999995);
        withNeighbours(power * 5.0);
    }
    for (int e = -1074; e <= 1023; ++e) {
        samples.push_back(std::ldexp(1.0, e));
    }
    std::mt19937_64 random = SeededRandom(seed);
    std::uniform_real_distribution<double> mantissa(1.0, 10.0);
    const auto below = [&](int n) { return static_cast<int>(random() % static_cast<unsigned>(n)); };
    for (std::size_t i = 0; i < perKind; ++i) {
        samples.push_back(std::bit_cast<double>(random()));
        samples.push_back(mantissa(random) * std::pow(10.0, below(24) - 12));
        samples.push_back(std::ldexp(static_cast<double>(random() >> 44), -below(24)));  // ties
        samples.push_back(std::round(mantissa(random) * 1e4) / std::pow(10.0, below(10)));
        samples.push_back(std::bit_cast<double>(random() >> 12));  // subnormal
    }
    const std::size_t count = samples.size();
    for (std::size_t i = 0; i < count; i += 2) {
        samples[i] = -samples[i];
    }
    samples.insert(samples.end(), {0.0, Limits::infinity(), Limits::quiet_NaN(), 999999.5});
    return samples;
}

}  // namespace Tevra::TestSupport

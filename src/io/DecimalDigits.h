#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace Tevra {

/// Powers of ten that DecimalDigits.cpp has: 10^-kMaxDecimalPower to 10^kMaxDecimalPower.
inline constexpr int kMaxDecimalPower = 64;
/// Digits that always fit into the 64 bits of a result.
inline constexpr int kMaxDecimalDigits = 17;

/// Rounds `magnitude` * 10^`power` to an integer as printf rounds: to the nearest of the exact
/// value, ties to even. False where this short way can't tell (a power or a result out of range, a
/// value too close to a tie): the caller then takes the long way.
bool ScaleToInteger(double magnitude, int power, std::uint64_t& integer);

/// The first `count` significant digits (1 to kMaxDecimalDigits) of a magnitude above 0, rounded in
/// the same way: `digits` * 10^(`exponent` - count + 1). False where the short way can't tell.
bool SignificantDigits(double magnitude, int count, std::uint64_t& digits, int& exponent);

/// 10^`power` for 0 to 19.
std::uint64_t IntegerPowerOfTen(int power);

/// The numbers 0 to 99 as two digits each.
inline constexpr auto kDigitPairs = [] {
    std::array<char, 200> pairs{};
    for (std::size_t i = 0; i < pairs.size(); ++i) {
        const std::size_t digit = i % 2 == 0 ? i / 20 : i / 2 % 10;
        pairs[i] = static_cast<char>('0' + digit);
    }
    return pairs;
}();

/// Writes the last `count` digits of a number, with leading zeros; the end of them.
inline char* WriteDigits(char* out, std::uint64_t number, int count) {
    char* at = out + count;
    for (; at - out >= 2; number /= 100) {
        at -= 2;
        std::memcpy(at, &kDigitPairs[number % 100 * 2], 2);
    }
    if (at != out) {
        *out = static_cast<char>('0' + number % 10);
    }
    return out + count;
}

}  // namespace Tevra

#include "io/DecimalDigits.h"

#include <array>
#include <bit>
#include <cstddef>

namespace Tevra {
namespace {

__extension__ using Wide = unsigned __int128;

/// 10^power = `mantissa` * 2^`exponent`, cut to the 64 leading bits.
struct PowerOfTen {
    std::uint64_t mantissa = 0;
    int exponent = 0;
};

/// Powers up to this one have no more than 64 bits, but for factors of two.
constexpr int kLastExactPower = 27;

struct WidePower {
    Wide mantissa = Wide{1} << 127;  ///< its first bit is set
    int exponent = -127;

    constexpr void Normalise() {
        while ((mantissa >> 127) == 0) {
            mantissa <<= 1;
            --exponent;
        }
    }
    constexpr void TimesTen() {
        mantissa = (mantissa >> 4) * 10;  // 128 bits of a number that has zeros or is cut
        exponent += 4;
        Normalise();
    }
    constexpr void ByTen() {
        // Two steps of long division by ten: the remainder of the first gives the bits that the
        // shift makes room for.
        const Wide quotient = mantissa / 10;
        const Wide remainder = mantissa % 10;
        mantissa = (quotient << 3) + (remainder << 3) / 10;
        exponent -= 3;
        Normalise();
    }
    constexpr PowerOfTen Cut() const {
        return {static_cast<std::uint64_t>(mantissa >> 64), exponent + 64};
    }
};

using PowerTable = std::array<PowerOfTen, 2 * kMaxDecimalPower + 1>;

constexpr std::size_t PlaceOf(int power) {
    const int place = kMaxDecimalPower + power;
    return static_cast<std::size_t>(place);
}

constexpr PowerTable MakePowers() {
    PowerTable table{};
    WidePower up;
    WidePower down;
    for (int power = 0; power <= kMaxDecimalPower; ++power) {
        table[PlaceOf(power)] = up.Cut();
        table[PlaceOf(-power)] = down.Cut();
        up.TimesTen();
        down.ByTen();
    }
    return table;
}

constexpr PowerTable kPowers = MakePowers();

constexpr auto kIntegerPowers = [] {
    std::array<std::uint64_t, 20> powers{};
    std::uint64_t value = 1;
    for (std::uint64_t& power : powers) {
        power = value;
        value *= 10;
    }
    return powers;
}();

/// Error of the product's upper half, in its last bit: that of a cut power of ten, with a margin.
constexpr std::uint64_t kCutError = 3;

/// Rounds `whole` up or not by the fraction whose upper 64 bits are `upper`, of which `half` is a
/// half, and the rest `lower`.
bool RoundAtHalf(std::uint64_t whole, std::uint64_t upper, std::uint64_t lower, std::uint64_t half,
                 bool exact, std::uint64_t& integer) {
    if (!exact && upper <= half && upper + kCutError >= half) {
        return false;
    }
    const bool tie = upper == half && lower == 0;
    const bool above = upper >= half && !tie;
    integer = whole + (above || (tie && (whole & 1U) != 0) ? 1 : 0);
    return true;
}

}  // namespace

std::uint64_t IntegerPowerOfTen(int power) {
    return kIntegerPowers[static_cast<std::size_t>(power)];
}

bool ScaleToInteger(double magnitude, int power, std::uint64_t& integer) {
    constexpr int kMantissaBits = 52;
    constexpr int kExponentBias = 1075;
    const auto bits = std::bit_cast<std::uint64_t>(magnitude);
    const int biased = static_cast<int>(bits >> kMantissaBits);
    if (bits == 0) {
        integer = 0;
        return true;
    }
    if (biased == 0 || biased > 2046 || power < -kMaxDecimalPower || power > kMaxDecimalPower) {
        return false;  // subnormal, not finite, negative, or beyond the table
    }
    const std::uint64_t mantissa = (bits << 11) | (std::uint64_t{1} << 63);
    const PowerOfTen& ten = kPowers[PlaceOf(power)];
    const Wide product = Wide{mantissa} * ten.mantissa;
    const auto upper = static_cast<std::uint64_t>(product >> 64);
    const auto lower = static_cast<std::uint64_t>(product);
    // The value is upper / 2^fractionBits, and the little that `lower` adds to it.
    const int fractionBits = -(biased - kExponentBias - 11 + ten.exponent) - 64;
    if (fractionBits > 65) {
        integer = 0;  // below a quarter
        return true;
    }
    if (fractionBits < 2 || fractionBits > 63) {
        return false;
    }
    const std::uint64_t one = std::uint64_t{1} << fractionBits;
    const bool exact = power >= 0 && power <= kLastExactPower;
    return RoundAtHalf(upper >> fractionBits, upper & (one - 1), lower, one >> 1, exact, integer);
}

bool SignificantDigits(double magnitude, int count, std::uint64_t& digits, int& exponent) {
    const int biased = static_cast<int>(std::bit_cast<std::uint64_t>(magnitude) >> 52);
    // log10(2) as a fraction; the estimate is right or one too low.
    exponent = ((biased - 1023) * 78913) >> 18;
    if (!ScaleToInteger(magnitude, count - 1 - exponent, digits)) {
        return false;
    }
    if (digits < IntegerPowerOfTen(count)) {
        return digits >= IntegerPowerOfTen(count - 1);
    }
    ++exponent;
    return ScaleToInteger(magnitude, count - 1 - exponent, digits);
}

}  // namespace Tevra

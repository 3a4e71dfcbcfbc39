#pragma once

#include <compare>
#include <vector>

namespace Tevra {

/// A place along a 1D element or an assembly, in whole millionths of its length: 0 is end 1,
/// 1000000 end 2.
class CPosOn1D {
public:
    static constexpr int kWhole = 1'000'000;

    constexpr CPosOn1D() = default;
    constexpr explicit CPosOn1D(int millionths) : m_millionths(millionths) {}
    /// The nearest millionth; ends for fractions beyond them and for those that are no number.
    static CPosOn1D FromFraction(double fraction);

    constexpr int Millionths() const { return m_millionths; }
    constexpr double Fraction() const { return static_cast<double>(m_millionths) / kWhole; }
    constexpr auto operator<=>(const CPosOn1D&) const = default;  // NOLINT(modernize-use-nullptr)

    /// Ascending, each position once.
    static void Sort(std::vector<CPosOn1D>& positions);
    /// `count` positions at equal distances, ends included, truncated to millionths: 7 gives 0,
    /// 166666, 333333, 500000, ... One is the middle; none below that.
    static std::vector<CPosOn1D> Regular(int count);

private:
    int m_millionths = 0;
};

}  // namespace Tevra

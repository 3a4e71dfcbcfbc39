#pragma once

#include <array>
#include <cmath>
#include <cstddef>
#include <limits>
#include <stdexcept>

#include "export/ResultValues.h"

namespace Tevra::Export {

/// How the records of two permutations become one.
enum class CombineOption : int {
    Minimum = 0,
    Maximum = 1,
    Absolute = 2,       ///< the largest magnitude, as a magnitude
    SignedAbsolute = 3  ///< the largest magnitude with its sign
};

/// The envelope that a permutation code of a case reference asks for: minus one minus the code.
constexpr CombineOption OptionOf(int permutationCode) {
    return static_cast<CombineOption>(-1 - permutationCode);
}

inline constexpr double kMissing = std::numeric_limits<double>::quiet_NaN();

/// Folds the value of a permutation into what there is. On ties, and where either is not a number,
/// what there is stays.
template <CombineOption Option>
void FoldValue(double& value, int& permutation, double next, int nextPermutation) {
    constexpr bool kByMagnitude =
        Option == CombineOption::Absolute || Option == CombineOption::SignedAbsolute;
    const double a = kByMagnitude ? std::fabs(value) : value;
    const double b = kByMagnitude ? std::fabs(next) : next;
    const bool takesNext = Option == CombineOption::Minimum ? a > b : b > a;
    if constexpr (Option == CombineOption::Absolute) {
        value = takesNext ? b : a;
    } else {
        value = takesNext ? next : value;
    }
    permutation = takesNext ? nextPermutation : permutation;
}

/// Calls `visit.template operator()<Option>()` for an option that is known at run time.
template <class Visit>
void ForOption(CombineOption option, Visit visit) {
    switch (option) {
        case CombineOption::Minimum:
            return visit.template operator()<CombineOption::Minimum>();
        case CombineOption::Maximum:
            return visit.template operator()<CombineOption::Maximum>();
        case CombineOption::Absolute:
            return visit.template operator()<CombineOption::Absolute>();
        case CombineOption::SignedAbsolute:
            return visit.template operator()<CombineOption::SignedAbsolute>();
    }
    throw std::logic_error("invalid combination option");
}

/// A result record: `N` pairs, which begin without a value and without a permutation.
template <std::size_t N>
class ResultRecord {
public:
    static constexpr std::size_t kNumPair = N;

    ResultRecord() { Init(kMissing); }

    /// Gives every pair the value and no permutation.
    void Init(double value) { m_pairs.fill({value, 0}); }
    void SetPermutation(int permutation) {
        for (Pair& pair : m_pairs) {
            pair.second = permutation;
        }
    }
    /// Adds the values of another record times a factor.
    void Add(const ResultRecord& other, double factor) {
        for (std::size_t i = 0; i < N; ++i) {
            m_pairs[i].first += factor * other.m_pairs[i].first;
        }
    }
    /// Folds another record in, pair by pair. An option that is none raises a logic error.
    void CombineResult(CombineOption option, const ResultRecord& other) {
        ForOption(option, [&]<CombineOption Option>() {
            for (std::size_t i = 0; i < N; ++i) {
                FoldValue<Option>(m_pairs[i].first, m_pairs[i].second, other.m_pairs[i].first,
                                  other.m_pairs[i].second);
            }
        });
    }

    Pair& operator[](std::size_t i) { return m_pairs[i]; }
    const Pair& operator[](std::size_t i) const { return m_pairs[i]; }

protected:
    // The pairs from `first` on as a value.
    Vector2 Vector2At(std::size_t first) const { return {m_pairs[first], m_pairs[first + 1]}; }
    Vector3 Vector3At(std::size_t first) const {
        return {m_pairs[first], m_pairs[first + 1], m_pairs[first + 2]};
    }
    Tensor2 Tensor2At(std::size_t first) const {
        return {m_pairs[first], m_pairs[first + 1], m_pairs[first + 2]};
    }
    Tensor3 Tensor3At(std::size_t first) const {
        return {m_pairs[first],     m_pairs[first + 1], m_pairs[first + 2],
                m_pairs[first + 3], m_pairs[first + 4], m_pairs[first + 5]};
    }

private:
    std::array<Pair, N> m_pairs;
};

}  // namespace Tevra::Export

#pragma once

#include <memory>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "model/Types.h"

namespace Tevra {

class CModelData;
class CombExpansion;
struct CombDescription;

/// A factor and the case it multiplies.
struct FactoredCase {
    double factor = 0.0;
    SCaseRef ref;
    bool operator==(const FactoredCase&) const = default;
};

/// Description of a combination case, for example "1.35A1 + 1.5(A2 or A3)".
///
///     description = alternative { "or" alternative }
///     alternative = [sign] term { sign term }
///     term        = [factors] ref | [factors] "(" description ")"
///     factors     = number | "(" number { "or" number } ")"
///     ref         = ("A" | "C") integer [ "p" integer | "min" | "max" | "abs" | "signabs" ]
///                 | ("A" | "C") integer "to" ("A" | "C") integer     (an "or" of those that exist)
///
/// Every "or" is a choice and so is a combination with several permutations that is referred to
/// without a suffix. Permutations are numbered from 1; the leftmost choice varies slowest.
class CCombCaseDesc {
public:
    /// More permutations than these make a description invalid.
    static constexpr int kMostPermutations = 1'000'000;

    CCombCaseDesc() = default;
    explicit CCombCaseDesc(const std::wstring& text) { SetDescription(text); }

    /// Reads a description; false when it can't be read. The text is kept either way.
    bool SetDescription(const std::wstring& text);
    const std::wstring& Description() const { return m_text; }

    /// False for a text that can't be read, an unknown case, a combination that refers to itself,
    /// and more than a million permutations.
    bool IsValid(const CModelData& model) const;
    /// True when the one permutation multiplies out to a factored sum of analysis cases.
    bool IsSimpleCombination(const CModelData& model) const;
    /// Number of permutations; 0 for an invalid description.
    int NumPermutation(const CModelData& model) const;
    /// Factor of an analysis case in permutation `permutation`, nested combinations multiplied out
    /// and repeats summed. 0 when absent or when there is no such permutation, NaN when the case
    /// is reached only through an envelope, which a linear sum can't express.
    double CaseFactor(const CModelData& model, int permutation, const SCaseRef& ref) const;
    /// The same against the model that this very description (not one it was copied from) was last
    /// asked with, which must still live. 0 before that.
    double CaseFactor(int permutation, const SCaseRef& ref) const;
    /// The factored cases of one permutation: analysis cases ascending, then envelopes of
    /// combinations in the order of the text (those of nested combinations last). Repeats are
    /// summed, factors of 0 kept.
    std::vector<FactoredCase> Permutation(const CModelData& model, int permutation) const;
    /// The same for every permutation in order.
    std::vector<std::vector<FactoredCase>> Permutations(const CModelData& model) const;

    /// The analysis cases that take part: in the permutation, or (0) in any; through envelopes too.
    std::set<int> AnalysisCases(const CModelData& model, int permutation) const;

    /// The parsed text; null when it can't be read.
    const CombDescription* Parsed() const { return m_parsed.get(); }

    bool operator==(const CCombCaseDesc& o) const { return m_text == o.m_text; }

private:
    /// What the last model made of the description. It is that model's, so copies begin without.
    struct Kept {
        Kept() = default;
        Kept(const Kept& /*o*/) {}
        Kept& operator=(const Kept& o) {
            if (this != &o) {
                expansion.reset();
            }
            return *this;
        }
        ~Kept() = default;
        std::shared_ptr<CombExpansion> expansion;
    };

    CombExpansion& Expansion(const CModelData& model) const;

    std::wstring m_text;
    std::shared_ptr<const CombDescription> m_parsed;
    mutable Kept m_kept;
};

}  // namespace Tevra

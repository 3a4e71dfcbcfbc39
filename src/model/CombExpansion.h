#pragma once

#include <cstdint>
#include <map>
#include <set>
#include <tuple>
#include <vector>

#include "model/CombCaseDesc.h"
#include "model/CombParser.h"

namespace Tevra {

class CModelData;

/// A permutation multiplied out. A factor that no number can hold is NaN.
struct CombSum {
    std::vector<FactoredCase> analysis;   ///< ascending, repeats summed
    std::vector<FactoredCase> envelopes;  ///< as they were met, repeats summed
};

/// What a description comes to in a model: the number of its permutations and the factored cases
/// of each. Counts are kept for every combination that it names, directly or through others, and so
/// is the permutation asked for last.
class CombExpansion {
public:
    explicit CombExpansion(const CModelData& model);

    /// Whether the model is still the one that this was made for, unchanged.
    bool Holds(const CModelData& model) const;
    const CModelData& Model() const { return *m_model; }

    /// Number of permutations; 0 when the description is invalid.
    int Count(const CombDescription& description);
    /// A permutation (from 1); without cases when there is none of that number.
    const CombSum& Permutation(const CombDescription& description, int permutation);
    /// The analysis cases that a combination names, itself or through others, in any permutation.
    const std::set<int>& CasesOf(int combination);
    std::set<int> CasesOf(const CombDescription& description) const;

private:
    /// What can be chosen from: the permutations up to and with each alternative. Empty when one of
    /// them is invalid.
    struct Choices {
        std::vector<int> upTo;
        int height = 0;  ///< levels of brackets and combinations inside
        int Count() const { return upTo.empty() ? 0 : upTo.back(); }
    };
    /// The existing cases of "A1 to A9", each an alternative.
    struct CaseRange : Choices {
        std::vector<int> numbers;
    };
    struct Content {
        long long count = 0;
        int height = 0;
    };
    /// A permutation of a combination that is still to be multiplied out, the highest first: minus
    /// its height, number, permutation (from 0).
    using Pending = std::tuple<int, int, int>;
    struct Sum {
        std::map<int, double> analysis;
        std::vector<FactoredCase> envelopes;
        std::map<Pending, double> pending;
    };

    const Choices& ChoicesOf(const CombDescription& description);
    const Choices& ChoicesOf(int combination);
    const CaseRange& RangeOf(const CombTerm& term);
    Choices CountAlternatives(const CombDescription& description);
    Content ContentOf(const CombTerm& term);
    void AddDescription(const CombDescription& description, int permutation, double factor,
                        Sum& sum);
    void AddTerm(const CombTerm& term, int choice, double factor, Sum& sum);
    void AddCase(const CombTerm& term, int number, int choice, double factor, Sum& sum);

    const CModelData* m_model;
    std::uint64_t m_revision;
    int m_depth = 0;  ///< of descriptions being counted
    std::map<const CombDescription*, Choices> m_choices;
    std::map<const CombTerm*, CaseRange> m_ranges;
    std::map<int, std::set<int>> m_cases;
    CombSum m_last;  ///< permutation `m_lastPermutation` of `m_lastDescription`
    const CombDescription* m_lastDescription = nullptr;
    int m_lastPermutation = 0;
};

}  // namespace Tevra

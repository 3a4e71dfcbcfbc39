#include "model/ResultQuery.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <map>
#include <set>
#include <utility>

#include "model/VynDerived.h"

namespace Tevra {

namespace {

constexpr double kNone = std::numeric_limits<double>::quiet_NaN();
/// Parts of all combinations that a model keeps at most; what goes beyond is multiplied out anew
/// for each question.
constexpr std::size_t kMostKept = 4'000'000;

/// One figure of an envelope with the next permutation's: the rule of each envelope code. A NaN on
/// either side keeps what is there.
double Fold(int code, double a, double b) {
    switch (code) {
        case kMinimumEnvelope:
            return a > b ? b : a;
        case kMaximumEnvelope:
            return b > a ? b : a;
        case kAbsoluteEnvelope:
            return std::fabs(b) > std::fabs(a) ? std::fabs(b) : std::fabs(a);
        case kSignedAbsoluteEnvelope:
            return std::fabs(b) > std::fabs(a) ? b : a;
        default:
            return kNone;
    }
}

}  // namespace

const CombinationSums& CVynData::SumsOf(int combination) const {
    DerivedData& derived = Derived();
    const auto [entry, isNew] = derived.sums.try_emplace(combination);
    CombinationSums& sums = entry->second;
    if (!isNew) {
        return sums;
    }
    const CCombCaseDesc& desc = CombinationCase(combination).Desc();
    sums.count = desc.NumPermutation(*this);
    for (int p = 1; p <= sums.count; ++p) {
        const std::vector<FactoredCase> parts = desc.Permutation(*this, p);
        if (derived.keptParts + sums.parts.size() + parts.size() > kMostKept) {
            sums = {sums.count, false, {}, {}};
            break;
        }
        sums.parts.insert(sums.parts.end(), parts.begin(), parts.end());
        sums.ends.push_back(sums.parts.size());
    }
    derived.keptParts += sums.parts.size();
    return sums;
}

/// Works out the figures of one case.
class CaseCombiner {
public:
    CaseCombiner(const CVynData& model, const FetchFigures& fetch)
        : m_model(model), m_fetch(fetch) {}

    void Case(const SCaseRef& ref, std::span<double> out) {
        std::fill(out.begin(), out.end(), kNone);
        if (ref.IsAnalysis()) {
            m_fetch(ref.Case(), out);
        } else if (ref.IsCombination()) {
            Combination(ref, out);
        }
    }

private:
    using Figures = std::array<double, kMostFigures>;

    void Combination(const SCaseRef& ref, std::span<double> out) {
        const CombinationSums& sums = m_model.SumsOf(ref.Case());
        if (ref.Permutation() > sums.count || sums.count == 0) {
            return;
        }
        if (ref.Permutation() > 0 || sums.count == 1) {
            Permutation(ref.Case(), std::max(ref.Permutation(), 1), out);
        } else if (ref.Permutation() < 0) {
            Envelope(ref, sums.count, out);
        }
    }

    void Permutation(int combination, int permutation, std::span<double> out) {
        const CombinationSums& sums = m_model.SumsOf(combination);
        if (!sums.kept) {
            Sum(m_model.CombinationCase(combination).Desc().Permutation(m_model, permutation), out);
            return;
        }
        const auto p = static_cast<std::size_t>(permutation);
        const std::size_t begin = p == 1 ? 0 : sums.ends[p - 2];
        Sum(std::span(sums.parts).subspan(begin, sums.ends[p - 1] - begin), out);
    }

    void Sum(std::span<const FactoredCase> parts, std::span<double> out) {
        Figures figures{};
        const std::span<double> term(figures.data(), out.size());
        std::fill(out.begin(), out.end(), 0.0);
        for (const FactoredCase& part : parts) {
            if (part.factor == 0.0) {
                continue;  // takes no part, whether it has results or not
            }
            Part(part.ref, term);
            for (std::size_t i = 0; i < out.size(); ++i) {
                out[i] += part.factor * term[i];
            }
        }
    }

    /// A case that a sum refers to. Envelopes are worked out once, however often and at whatever
    /// depth they are referred to.
    void Part(const SCaseRef& ref, std::span<double> out) {
        if (ref.IsAnalysis()) {
            Case(ref, out);
            return;
        }
        const std::pair key{ref.Case(), ref.Permutation()};
        const auto known = m_envelopes.find(key);
        if (known == m_envelopes.end()) {
            Case(ref, out);
            std::copy(out.begin(), out.end(), m_envelopes[key].begin());
        } else {
            std::copy_n(known->second.begin(), out.size(), out.begin());
        }
    }

    void Envelope(const SCaseRef& ref, int count, std::span<double> out) {
        Figures figures{};
        const std::span<double> next(figures.data(), out.size());
        Permutation(ref.Case(), 1, out);
        for (int p = 2; p <= count; ++p) {
            Permutation(ref.Case(), p, next);
            for (std::size_t i = 0; i < out.size(); ++i) {
                out[i] = Fold(ref.Permutation(), out[i], next[i]);
            }
        }
    }

    const CVynData& m_model;
    const FetchFigures& m_fetch;
    std::map<std::pair<int, int>, Figures> m_envelopes;  ///< by combination and code
};

void CombineFigures(const CVynData& model, const SCaseRef& ref, std::span<double> out,
                    const FetchFigures& fetch) {
    CaseCombiner(model, fetch).Case(ref, out);
}

namespace {

std::set<int> CasesIn(const CVynData& model, int combination, int permutation) {
    return model.CombinationCase(combination).Desc().AnalysisCases(model, permutation);
}

}  // namespace

bool EveryAnalysisCase(const CVynData& model, int combination, int permutation,
                       const std::function<bool(int)>& has) {
    const std::set<int> cases = CasesIn(model, combination, permutation);
    return !cases.empty() && std::all_of(cases.begin(), cases.end(), has);
}

bool AnyAnalysisCase(const CVynData& model, int combination, int permutation,
                     const std::function<bool(int)>& has) {
    const std::set<int> cases = CasesIn(model, combination, permutation);
    return std::any_of(cases.begin(), cases.end(), has);
}

}  // namespace Tevra

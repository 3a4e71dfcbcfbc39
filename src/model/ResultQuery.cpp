#include "model/ResultQuery.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <set>

namespace Tevra {

namespace {

constexpr double kNone = std::numeric_limits<double>::quiet_NaN();
/// Envelopes of envelopes deeper than this are no combinations that anybody wrote.
constexpr int kDeepest = 32;

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

class Combiner {
public:
    Combiner(const CVynData& model, const FetchFigures& fetch) : m_model(model), m_fetch(fetch) {}

    void Case(const SCaseRef& ref, std::span<double> out, int depth) const {
        std::fill(out.begin(), out.end(), kNone);
        if (ref.IsAnalysis()) {
            m_fetch(ref.Case(), out);
            return;
        }
        if (!ref.IsCombination() || depth > kDeepest) {
            return;
        }
        const CCombCaseDesc& desc = m_model.CombinationCase(ref.Case()).Desc();
        const int count = desc.NumPermutation(m_model);
        if (ref.Permutation() > 0) {
            Sum(desc, ref.Permutation(), out, depth);
        } else if (count == 1) {
            Sum(desc, 1, out, depth);
        } else if (ref.Permutation() < 0) {
            Envelope(desc, count, ref.Permutation(), out, depth);
        }
    }

private:
    void Sum(const CCombCaseDesc& desc, int permutation, std::span<double> out, int depth) const {
        if (permutation > desc.NumPermutation(m_model)) {
            return;
        }
        std::array<double, kMostFigures> figures{};
        const std::span<double> term(figures.data(), out.size());
        std::fill(out.begin(), out.end(), 0.0);
        for (const FactoredCase& part : desc.Permutation(m_model, permutation)) {
            Case(part.ref, term, depth + 1);
            for (std::size_t i = 0; i < out.size(); ++i) {
                out[i] += part.factor * term[i];
            }
        }
    }

    void Envelope(const CCombCaseDesc& desc, int count, int code, std::span<double> out,
                  int depth) const {
        std::array<double, kMostFigures> figures{};
        const std::span<double> next(figures.data(), out.size());
        for (int p = 1; p <= count; ++p) {
            Sum(desc, p, p == 1 ? out : next, depth);
            for (std::size_t i = 0; p > 1 && i < out.size(); ++i) {
                out[i] = Fold(code, out[i], next[i]);
            }
        }
    }

    const CVynData& m_model;
    const FetchFigures& m_fetch;
};

}  // namespace

void CombineFigures(const CVynData& model, const SCaseRef& ref, std::span<double> out,
                    const FetchFigures& fetch) {
    Combiner(model, fetch).Case(ref, out, 0);
}

bool EveryAnalysisCase(const CVynData& model, int combination, int permutation,
                       const std::function<bool(int)>& has) {
    const std::set<int> cases =
        model.CombinationCase(combination).Desc().AnalysisCases(model, permutation);
    return !cases.empty() && std::all_of(cases.begin(), cases.end(), has);
}

}  // namespace Tevra

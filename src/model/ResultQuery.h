#pragma once

#include <functional>
#include <span>

#include "model/VynData.h"

namespace Tevra {

/// Fills the figures of one analysis case; NaN where there are none.
using FetchFigures = std::function<void(int analysisCase, std::span<double> figures)>;

/// The figures of any case: of an analysis case as they are; of a permutation of a combination as
/// the factored sum of its cases; of an envelope as the minimum, maximum, absolute or signed
/// absolute maximum over the permutations, figure by figure. NaN for what is none of these.
/// At most `kMostFigures` figures.
inline constexpr std::size_t kMostFigures = 18;
void CombineFigures(const CVynData& model, const SCaseRef& ref, std::span<double> out,
                    const FetchFigures& fetch);

/// `CombineFigures`, without the cost of its general form for analysis cases.
template <class Out, class Fetch>
void ForCase(const CVynData& model, const SCaseRef& ref, Out& out, Fetch fetch) {
    if (ref.IsAnalysis()) {
        fetch(ref.Case(), std::span<double>(out));
    } else {
        CombineFigures(model, ref, out, std::ref(fetch));
    }
}

/// Whether `has` holds for every analysis case that takes part in a combination, in one of its
/// permutations or (0) in any; false when there is none, or when the combination is invalid.
bool EveryAnalysisCase(const CVynData& model, int combination, int permutation,
                       const std::function<bool(int)>& has);

/// Whether it holds for one of them.
bool AnyAnalysisCase(const CVynData& model, int combination, int permutation,
                     const std::function<bool(int)>& has);

}  // namespace Tevra

#include <cmath>
#include <cstddef>
#include <cstdint>

#include "fuzz/Require.h"
#include "model/VynData.h"
#include "platform/text/Utf8.h"

using FuzzSupport::Require;

namespace {

Tevra::CVynData MakeModel() {
    Tevra::CVynData model;
    for (int i = 1; i <= 9; ++i) {
        model.SetAnalysisCase(i, Tevra::CAnalysisCase());
    }
    model.SetCombinationCase(1, Tevra::CCombinationCase(L"", L"A1 + 0.5A2"));
    model.SetCombinationCase(2, Tevra::CCombinationCase(L"", L"A3 or C1 or A4"));
    model.SetCombinationCase(3, Tevra::CCombinationCase(L"", L"C2max - C4"));
    model.SetCombinationCase(4, Tevra::CCombinationCase(L"", L"C3"));
    return model;
}

}  // namespace

// Case and combination descriptions keep their text; permutations refer to cases that exist, and
// factors agree with them.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const Tevra::CVynData kModel = MakeModel();
    const std::wstring text =
        Tevra::Text::FromUtf8({reinterpret_cast<const char*>(data), size});  // NOLINT
    const Tevra::CCaseDesc desc(text);
    Require(desc.Description() == text && (desc.IsValid() || desc.NumPart() == 0));
    const Tevra::CCombCaseDesc combination(text);
    const int count = combination.NumPermutation(kModel);
    Require(count >= 0 && count <= Tevra::CCombCaseDesc::kMostPermutations);
    Require(combination.Permutation(kModel, count + 1).empty());
    for (int p = 1; p <= count && p <= 20; ++p) {
        for (const Tevra::FactoredCase& part : combination.Permutation(kModel, p)) {
            if (part.ref.IsAnalysis()) {
                Require(kModel.AnalysisCaseExist(part.ref.Case()));
                const double factor = combination.CaseFactor(kModel, p, part.ref);
                Require(factor == part.factor || std::isnan(part.factor));
            } else {
                Require(part.ref.Permutation() < 0);
            }
        }
    }
    return 0;
}

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "fuzz/Require.h"
#include "model/VynData.h"
#include "platform/text/Utf8.h"

using namespace Tevra;
using FuzzSupport::Require;

namespace {

constexpr int kNumAnalysisCase = 6;

/// A model whose combinations are the lines of the input, after a few of its own.
CVynData MakeModel(std::string_view& lines) {
    CVynData model;
    for (int i = 1; i <= kNumAnalysisCase; ++i) {
        model.SetAnalysisCase(i, CAnalysisCase());
    }
    int number = 0;
    for (const wchar_t* text : {L"A1 + 0.5A2", L"A3 or A4", L"C4", L"C3 + A1", L"1.5C1 - C2max"}) {
        model.SetCombinationCase(++number, CCombinationCase(L"", text));
    }
    for (std::size_t end = lines.find('\n'); end != lines.npos; end = lines.find('\n')) {
        model.SetCombinationCase(++number,
                                 CCombinationCase(L"", Text::FromUtf8(lines.substr(0, end))));
        lines.remove_prefix(end + 1);
    }
    return model;
}

/// Analysis cases that exist, ascending, then envelopes; factors as `CaseFactor` gives them.
void CheckPermutation(const CCombCaseDesc& desc, const CVynData& model, int permutation) {
    int last = 0;
    bool envelopes = false;
    std::set<int> named;
    for (const FactoredCase& part : desc.Permutation(model, permutation)) {
        Require(!std::isinf(part.factor));
        if (part.ref.IsAnalysis()) {
            Require(!envelopes && part.ref.Case() > last &&
                    model.AnalysisCaseExist(part.ref.Case()));
            last = part.ref.Case();
            named.insert(last);
            const double factor = desc.CaseFactor(model, permutation, part.ref);
            Require(factor == part.factor || (std::isnan(factor) && std::isnan(part.factor)));
        } else {
            envelopes = true;
            Require(part.ref.Permutation() < 0 && model.CombinationCaseExist(part.ref.Case()));
        }
    }
    Require(!envelopes || !desc.IsSimpleCombination(model));
    for (int i = 1; i <= kNumAnalysisCase; ++i) {
        const double factor = desc.CaseFactor(permutation, AnalysisRef(i));
        Require(named.count(i) > 0 || factor == 0.0 || (envelopes && std::isnan(factor)));
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::string_view lines(reinterpret_cast<const char*>(data), size);
    const CVynData model = MakeModel(lines);
    const std::wstring text = Text::FromUtf8(lines);
    CCombCaseDesc desc(L"A1");
    const bool read = desc.SetDescription(text);
    Require(desc.Description() == text && read == (desc.Parsed() != nullptr));

    const int count = desc.NumPermutation(model);
    Require(count >= 0 && count <= CCombCaseDesc::kMostPermutations && (read || count == 0));
    Require(desc.IsValid(model) == (count > 0));
    Require(!desc.IsSimpleCombination(model) || count == 1);
    Require(desc.Permutation(model, 0).empty() && desc.Permutation(model, count + 1).empty());
    for (int p = 1; p <= std::min(count, 20); ++p) {
        CheckPermutation(desc, model, p);
    }
    if (count > 0) {
        CheckPermutation(desc, model, count);
    }
    Require(count > 1000 || static_cast<int>(desc.Permutations(model).size()) == count);
    return 0;
}

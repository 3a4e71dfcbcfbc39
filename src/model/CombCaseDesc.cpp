#include "model/CombCaseDesc.h"

#include <algorithm>
#include <limits>

#include "model/CombExpansion.h"
#include "model/CombParser.h"
#include "model/ModelData.h"

namespace Tevra {

bool CCombCaseDesc::SetDescription(const std::wstring& text) {
    m_text = text;
    m_kept.expansion.reset();
    std::optional<CombDescription> parsed = ParseCombination(text);
    m_parsed = parsed ? std::make_shared<const CombDescription>(std::move(*parsed)) : nullptr;
    return m_parsed != nullptr;
}

CombExpansion& CCombCaseDesc::Expansion(const CModelData& model) const {
    if (!m_kept.expansion || !m_kept.expansion->Holds(model)) {
        m_kept.expansion = std::make_shared<CombExpansion>(model);
    }
    return *m_kept.expansion;
}

bool CCombCaseDesc::IsValid(const CModelData& model) const {
    return NumPermutation(model) > 0;
}

int CCombCaseDesc::NumPermutation(const CModelData& model) const {
    return m_parsed != nullptr ? Expansion(model).Count(*m_parsed) : 0;
}

bool CCombCaseDesc::IsSimpleCombination(const CModelData& model) const {
    return NumPermutation(model) == 1 &&
           Expansion(model).Permutation(*m_parsed, 1).envelopes.empty();
}

std::vector<FactoredCase> CCombCaseDesc::Permutation(const CModelData& model,
                                                     int permutation) const {
    if (m_parsed == nullptr) {
        return {};
    }
    const CombSum& sum = Expansion(model).Permutation(*m_parsed, permutation);
    std::vector<FactoredCase> cases = sum.analysis;
    cases.insert(cases.end(), sum.envelopes.begin(), sum.envelopes.end());
    return cases;
}

std::vector<std::vector<FactoredCase>> CCombCaseDesc::Permutations(const CModelData& model) const {
    std::vector<std::vector<FactoredCase>> all;
    const int count = NumPermutation(model);
    all.reserve(static_cast<std::size_t>(count));
    for (int p = 1; p <= count; ++p) {
        all.push_back(Permutation(model, p));
    }
    return all;
}

double CCombCaseDesc::CaseFactor(const CModelData& model, int permutation,
                                 const SCaseRef& ref) const {
    if (m_parsed == nullptr || !ref.IsAnalysis()) {
        return 0.0;
    }
    CombExpansion& expansion = Expansion(model);
    const CombSum& sum = expansion.Permutation(*m_parsed, permutation);
    const auto direct = std::lower_bound(
        sum.analysis.begin(), sum.analysis.end(), ref.Case(),
        [](const FactoredCase& part, int number) { return part.ref.Case() < number; });
    if (direct != sum.analysis.end() && direct->ref.Case() == ref.Case()) {
        return direct->factor;
    }
    const bool reached =
        std::any_of(sum.envelopes.begin(), sum.envelopes.end(), [&](const FactoredCase& envelope) {
            return envelope.factor != 0.0 &&
                   expansion.CasesOf(envelope.ref.Case()).count(ref.Case()) > 0;
        });
    return reached ? std::numeric_limits<double>::quiet_NaN() : 0.0;
}

std::set<int> CCombCaseDesc::AnalysisCases(const CModelData& model, int permutation) const {
    std::set<int> all;
    if (NumPermutation(model) == 0) {
        return all;
    }
    if (permutation == 0) {
        return Expansion(model).CasesOf(*m_parsed);
    }
    for (const FactoredCase& part : Permutation(model, permutation)) {
        if (part.factor == 0.0) {
            continue;
        }
        if (part.ref.IsAnalysis()) {
            all.insert(part.ref.Case());
        } else {
            const std::set<int>& inner = Expansion(model).CasesOf(part.ref.Case());
            all.insert(inner.begin(), inner.end());
        }
    }
    return all;
}

double CCombCaseDesc::CaseFactor(int permutation, const SCaseRef& ref) const {
    return m_kept.expansion ? CaseFactor(m_kept.expansion->Model(), permutation, ref) : 0.0;
}

}  // namespace Tevra

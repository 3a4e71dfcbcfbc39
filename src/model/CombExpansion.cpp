#include "model/CombExpansion.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "model/ModelData.h"

namespace Tevra {

namespace {

constexpr long long kMost = CCombCaseDesc::kMostPermutations;
/// Descriptions with more levels of brackets and combinations than this are taken for invalid.
constexpr int kDeepest = 256;

/// Calls `visit(number)` for the existing cases of a range while it returns true.
template <class Table, class Visit>
void VisitRange(const Table& table, const CombTerm& term, Visit visit) {
    for (int number = table.NextAtOrAbove(term.from); number != 0 && number <= term.to;
         number = number == term.to ? 0 : table.NextAtOrAbove(number + 1)) {
        if (!visit(number)) {
            return;
        }
    }
}

template <class Visit>
void VisitCases(const CModelData& model, const CombTerm& term, Visit visit) {
    if (term.op == CaseOp::Analysis) {
        VisitRange(model.AnalysisCaseTable(), term, visit);
    } else {
        VisitRange(model.CombinationCaseTable(), term, visit);
    }
}

/// Which alternative a permutation falls in; the permutation becomes the one within it.
std::size_t Pick(const std::vector<int>& upTo, int& permutation) {
    const auto next = std::upper_bound(upTo.begin(), upTo.end(), permutation);
    permutation -= next == upTo.begin() ? 0 : *(next - 1);
    return static_cast<std::size_t>(next - upTo.begin());
}

void AddEnvelope(double factor, const SCaseRef& ref, std::vector<FactoredCase>& envelopes) {
    const auto same =
        std::find_if(envelopes.begin(), envelopes.end(),
                     [&ref](const FactoredCase& envelope) { return envelope.ref == ref; });
    if (same == envelopes.end()) {
        envelopes.push_back({factor, ref});
    } else {
        same->factor += factor;
    }
}

double FiniteOrNaN(double factor) {
    return std::isfinite(factor) ? factor : std::numeric_limits<double>::quiet_NaN();
}

}  // namespace

CombExpansion::CombExpansion(const CModelData& model)
    : m_model(&model), m_revision(model.Revision()) {}

bool CombExpansion::Holds(const CModelData& model) const {
    return m_model == &model && m_revision == model.Revision();
}

int CombExpansion::Count(const CombDescription& description) {
    return ChoicesOf(description).Count();
}

const CombExpansion::Choices& CombExpansion::ChoicesOf(const CombDescription& description) {
    // While it is being counted the entry is empty, which is what a description that refers to
    // itself comes to.
    const auto [entry, isNew] = m_choices.try_emplace(&description);
    if (isNew && m_depth < kDeepest) {
        ++m_depth;
        entry->second = CountAlternatives(description);
        --m_depth;
    }
    return entry->second;
}

const CombExpansion::Choices& CombExpansion::ChoicesOf(int combination) {
    static const Choices kNone;
    const CombDescription* parsed = m_model->CombinationCase(combination).Desc().Parsed();
    return parsed != nullptr ? ChoicesOf(*parsed) : kNone;
}

CombExpansion::Choices CombExpansion::CountAlternatives(const CombDescription& description) {
    Choices choices;
    long long total = 0;
    for (const std::vector<CombTerm>& terms : description.alternatives) {
        long long product = 1;
        for (const CombTerm& term : terms) {
            const Content content = ContentOf(term);
            product *= content.count * static_cast<long long>(term.factors.size());
            choices.height = std::max(choices.height, content.height);
            if (product == 0 || product > kMost) {
                return {};
            }
        }
        total += product;
        if (total > kMost) {
            return {};
        }
        choices.upTo.push_back(static_cast<int>(total));
    }
    ++choices.height;
    return choices.height > kDeepest ? Choices() : choices;
}

CombExpansion::Content CombExpansion::ContentOf(const CombTerm& term) {
    if (term.op == CaseOp::None) {
        const Choices& choices = ChoicesOf(term.inner);
        return {choices.Count(), choices.height};
    }
    if (term.from != term.to) {
        const CaseRange& range = RangeOf(term);
        return {range.Count(), range.height};
    }
    if (term.op == CaseOp::Analysis) {
        return {m_model->AnalysisCaseExist(term.from) ? 1 : 0, 0};
    }
    const Choices& choices = ChoicesOf(term.from);
    if (term.permutation == 0) {
        return {choices.Count(), choices.height};
    }
    // One permutation, or one envelope of all.
    return {choices.Count() >= std::max(term.permutation, 1) ? 1 : 0, choices.height};
}

const CombExpansion::CaseRange& CombExpansion::RangeOf(const CombTerm& term) {
    const auto [entry, isNew] = m_ranges.try_emplace(&term);
    CaseRange& range = entry->second;
    if (!isNew) {
        return range;
    }
    long long total = 0;
    CombTerm single;
    single.op = term.op;
    VisitCases(*m_model, term, [&](int number) {
        single.from = number;
        single.to = number;
        const Content content = ContentOf(single);
        total += content.count;
        if (content.count == 0 || total > kMost) {
            range = {};
            return false;
        }
        range.numbers.push_back(number);
        range.upTo.push_back(static_cast<int>(total));
        range.height = std::max(range.height, content.height);
        return true;
    });
    return range;
}

const CombSum& CombExpansion::Permutation(const CombDescription& description, int permutation) {
    if (m_lastDescription == &description && m_lastPermutation == permutation) {
        return m_last;
    }
    m_lastDescription = &description;
    m_lastPermutation = permutation;
    m_last = {};
    if (permutation < 1 || permutation > Count(description)) {
        return m_last;
    }
    Sum sum;
    AddDescription(description, permutation - 1, 1.0, sum);
    // Whatever names a combination is higher than it, so that its factor is complete by its turn.
    while (!sum.pending.empty()) {
        const auto [key, factor] = *sum.pending.begin();
        sum.pending.erase(sum.pending.begin());
        const auto [height, number, choice] = key;
        AddDescription(*m_model->CombinationCase(number).Desc().Parsed(), choice, factor, sum);
    }
    for (const auto& [number, factor] : sum.analysis) {
        m_last.analysis.push_back({FiniteOrNaN(factor), AnalysisRef(number)});
    }
    for (const FactoredCase& envelope : sum.envelopes) {
        m_last.envelopes.push_back({FiniteOrNaN(envelope.factor), envelope.ref});
    }
    return m_last;
}

void CombExpansion::AddDescription(const CombDescription& description, int permutation,
                                   double factor, Sum& sum) {
    const std::size_t alternative = Pick(ChoicesOf(description).upTo, permutation);
    const std::vector<CombTerm>& terms = description.alternatives[alternative];
    std::vector<int> counts;
    int rest = 1;
    for (const CombTerm& term : terms) {
        counts.push_back(
            static_cast<int>(ContentOf(term).count * static_cast<long long>(term.factors.size())));
        rest *= counts.back();
    }
    // The choice of the first term varies slowest.
    for (std::size_t i = 0; i < terms.size(); ++i) {
        rest /= counts[i];
        AddTerm(terms[i], permutation / rest, factor, sum);
        permutation %= rest;
    }
}

void CombExpansion::AddTerm(const CombTerm& term, int choice, double factor, Sum& sum) {
    const int perFactor = static_cast<int>(ContentOf(term).count);
    factor *= term.factors[static_cast<std::size_t>(choice / perFactor)];
    choice %= perFactor;
    if (term.op == CaseOp::None) {
        AddDescription(term.inner, choice, factor, sum);
    } else if (term.from == term.to) {
        AddCase(term, term.from, choice, factor, sum);
    } else {
        const CaseRange& range = RangeOf(term);
        const int number = range.numbers[Pick(range.upTo, choice)];
        AddCase(term, number, choice, factor, sum);
    }
}

void CombExpansion::AddCase(const CombTerm& term, int number, int choice, double factor, Sum& sum) {
    if (term.op == CaseOp::Analysis) {
        sum.analysis[number] += factor;
    } else if (term.permutation < 0) {
        AddEnvelope(factor, {CaseOp::Combination, number, term.permutation}, sum.envelopes);
    } else {
        const int height = ChoicesOf(number).height;
        const int permutation = term.permutation > 0 ? term.permutation - 1 : choice;
        sum.pending[{-height, number, permutation}] += factor;
    }
}

const std::set<int>& CombExpansion::CasesOf(int combination) {
    const auto [entry, isNew] = m_cases.try_emplace(combination);
    const CombDescription* parsed = m_model->CombinationCase(combination).Desc().Parsed();
    if (isNew && parsed != nullptr) {
        entry->second = CasesOf(*parsed);
    }
    return entry->second;
}

std::set<int> CombExpansion::CasesOf(const CombDescription& description) const {
    std::set<int> cases;
    std::set<const CombDescription*> seen{&description};
    std::vector<const CombDescription*> open{&description};
    const auto addInner = [&](const CombDescription* inner) {
        if (inner != nullptr && seen.insert(inner).second) {
            open.push_back(inner);
        }
        return true;
    };
    const auto addTerm = [&](const CombTerm& term) {
        if (term.op == CaseOp::None) {
            addInner(&term.inner);
        } else {
            VisitCases(*m_model, term, [&](int number) {
                return term.op == CaseOp::Analysis
                           ? (cases.insert(number), true)
                           : addInner(m_model->CombinationCase(number).Desc().Parsed());
            });
        }
    };
    while (!open.empty()) {
        const CombDescription* next = open.back();
        open.pop_back();
        for (const std::vector<CombTerm>& terms : next->alternatives) {
            for (const CombTerm& term : terms) {
                const bool counts = std::any_of(term.factors.begin(), term.factors.end(),
                                                [](double factor) { return factor != 0.0; });
                if (counts) {
                    addTerm(term);
                }
            }
        }
    }
    return cases;
}

}  // namespace Tevra

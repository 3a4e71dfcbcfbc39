#include "export/CaseFigures.h"

#include <cmath>

#include "model/VynData.h"

namespace Tevra::Export {

namespace {

bool IsEnvelopeOfSums(int permutation) {
    return permutation == kMinimumEnvelope || permutation == kMaximumEnvelope;
}

/// A permutation that refers to an envelope is no linear sum: its figures are missing.
std::vector<FactoredCase> LinearTerms(std::vector<FactoredCase> factored) {
    const auto envelope = std::find_if(
        factored.begin(), factored.end(),
        [](const FactoredCase& one) { return !one.ref.IsAnalysis() && one.factor != 0.0; });
    if (envelope != factored.end()) {
        return {{kMissing, AnalysisRef(0)}};
    }
    return factored;
}

}  // namespace

CaseFigures::CaseFigures(const CVynData& model, const SCaseRef& ref, std::size_t mostTerms)
    : m_model(&model), m_revision(model.Revision()), m_ref(ref), m_mostTerms(mostTerms) {
    if (ref.IsAnalysis()) {
        m_cases.push_back(ref.Case());
    } else if (ref.IsCombination()) {
        AddCombination(ref.Case(), ref.Permutation());
    }
}

bool CaseFigures::Holds(const CVynData& model, const SCaseRef& ref) const {
    return m_model == &model && m_revision == model.Revision() && m_ref == ref;
}

// --- what the case comes to

int CaseFigures::AddCombination(int combination, int permutation) {
    const std::pair key{combination, permutation};
    const auto known = m_partOf.find(key);
    if (known != m_partOf.end()) {
        return known->second;
    }
    const int place = AddPart(combination, permutation);
    m_partOf[key] = place;
    return place;
}

/// Which rule holds for a combination: the one permutation of a sum, the envelope over several, and
/// nothing for single permutations and magnitudes of combinations that are no plain sum.
int CaseFigures::AddPart(int combination, int permutation) {
    const CCombCaseDesc& desc = m_model->CombinationCase(combination).Desc();
    const int count = desc.NumPermutation(*m_model);
    Part part;
    if (desc.IsSimpleCombination(*m_model)) {
        part.kind = Kind::Sum;
        AddTerms(part, desc.Permutation(*m_model, std::max(permutation, 1)));
    } else if (count == 1) {
        part.kind = Kind::Sum;
        AddTerms(part, desc.Permutation(*m_model, 1));
    } else if (count > 1 && IsEnvelopeOfSums(permutation)) {
        part = EnvelopeOf(combination, count, OptionOf(permutation));
    }
    m_parts.push_back(std::move(part));
    return static_cast<int>(m_parts.size()) - 1;
}

void CaseFigures::AddTerms(Part& part, const std::vector<FactoredCase>& factored) {
    for (const FactoredCase& one : factored) {
        if (one.factor == 0.0) {
            continue;  // takes no part, whether it has results or not
        }
        part.terms.push_back({one.factor, SourceOf(one)});
    }
    part.ends.push_back(part.terms.size());
}

/// Where the figures of a case are; a factor that is not a number asks for none.
int CaseFigures::SourceOf(const FactoredCase& one) {
    if (std::isnan(one.factor)) {
        return 0;
    }
    return one.ref.IsAnalysis() ? RowOf(one.ref.Case())
                                : -1 - AddCombination(one.ref.Case(), one.ref.Permutation());
}

CaseFigures::Part CaseFigures::EnvelopeOf(int combination, int count, CombineOption option) {
    const CCombCaseDesc& desc = m_model->CombinationCase(combination).Desc();
    Part part;
    part.kind = Kind::Envelope;
    part.combination = combination;
    part.count = count;
    part.option = option;
    for (int p = 1; p <= count && part.kept; ++p) {
        AddTerms(part, LinearTerms(desc.Permutation(*m_model, p)));
        part.kept = part.terms.size() <= m_mostTerms;
    }
    if (!part.kept) {
        part.terms = {};
        part.ends = {};
        for (const int number : desc.AnalysisCases(*m_model, 0)) {
            RowOf(number);
        }
    }
    return part;
}

int CaseFigures::RowOf(int analysisCase) {
    const auto [entry, isNew] = m_rowOf.try_emplace(analysisCase, static_cast<int>(m_cases.size()));
    if (isNew) {
        m_cases.push_back(analysisCase);
    }
    return entry->second;
}

// --- the figures of an entity

void CaseFigures::SetWidth(std::size_t width) {
    if (width == m_width) {
        return;
    }
    m_width = width;
    m_rows.resize(m_cases.size() * width);
    m_partFigures.resize(m_parts.size() * width);
    m_next.resize(width);
    m_values.resize(width);
    m_permutations.resize(width);
}

void CaseFigures::Combine() {
    std::fill(m_permutations.begin(), m_permutations.end(), 0);
    if (m_parts.empty()) {
        std::copy(m_rows.begin(), m_rows.end(), m_values.begin());
        return;
    }
    for (std::size_t k = 0; k < m_parts.size(); ++k) {
        const Part& part = m_parts[k];
        const std::span<double> out = std::span(m_partFigures).subspan(k * m_width, m_width);
        std::fill(m_permutations.begin(), m_permutations.end(), 0);
        if (part.kind == Kind::Missing) {
            std::fill(out.begin(), out.end(), kMissing);
        } else if (part.kind == Kind::Sum) {
            Sum(part, 1, out);
        } else {
            Envelope(part, out);
        }
    }
    std::copy_n(m_partFigures.end() - static_cast<std::ptrdiff_t>(m_width), m_width,
                m_values.begin());
}

void CaseFigures::Envelope(const Part& part, std::span<double> out) {
    Sum(part, 1, out);
    std::fill(m_permutations.begin(), m_permutations.end(), 1);
    ForOption(part.option, [&]<CombineOption Option>() {
        for (int p = 2; p <= part.count; ++p) {
            Sum(part, p, m_next);
            for (std::size_t i = 0; i < out.size(); ++i) {
                FoldValue<Option>(out[i], m_permutations[i], m_next[i], p);
            }
        }
    });
}

void CaseFigures::Sum(const Part& part, int permutation, std::span<double> out) {
    if (!part.kept) {
        const CCombCaseDesc& desc = m_model->CombinationCase(part.combination).Desc();
        m_unkept.terms.clear();
        m_unkept.ends.clear();
        AddTerms(m_unkept, LinearTerms(desc.Permutation(*m_model, permutation)));
        AddUp(m_unkept.terms, out);
        return;
    }
    const auto p = static_cast<std::size_t>(permutation);
    const std::size_t begin = p == 1 ? 0 : part.ends[p - 2];
    AddUp(std::span(part.terms).subspan(begin, part.ends[p - 1] - begin), out);
}

void CaseFigures::AddUp(std::span<const Term> terms, std::span<double> out) {
    std::fill(out.begin(), out.end(), 0.0);
    for (const Term& term : terms) {
        if (std::isnan(term.factor)) {
            std::fill(out.begin(), out.end(), kMissing);
            return;
        }
        const double* const figures = Source(term.source).data();
        for (std::size_t i = 0; i < out.size(); ++i) {
            out[i] += term.factor * figures[i];
        }
    }
}

std::span<const double> CaseFigures::Source(int source) {
    if (source >= 0) {
        return Row(static_cast<std::size_t>(source));
    }
    return std::span(m_partFigures)
        .subspan(static_cast<std::size_t>(-1 - source) * m_width, m_width);
}

}  // namespace Tevra::Export

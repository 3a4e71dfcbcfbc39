#include "model/InterCalc.h"

#include <algorithm>
#include <array>
#include <set>

#include "model/ResultQuery.h"
#include "model/VynData.h"

namespace Tevra {

void CInterInfo::Setup(InterKind kind, std::span<const CPosOn1D> positions) {
    m_kind = kind;
    m_positions.assign(positions.begin(), positions.end());
    m_results.assign(positions.size(), NoInterResult());
}

const std::vector<int>& CInterCalc::CasesOf(const SCaseRef& ref) {
    if (m_revision != m_model->Revision()) {
        m_cases.clear();
        m_revision = m_model->Revision();
    }
    const int permutation = std::max(ref.Permutation(), 0);  // envelopes: all of them
    const auto [entry, isNew] = m_cases.try_emplace({ref.Case(), permutation});
    if (isNew) {
        const std::set<int> cases =
            m_model->CombinationCase(ref.Case()).Desc().AnalysisCases(*m_model, permutation);
        entry->second.assign(cases.begin(), cases.end());
    }
    return entry->second;
}

void CInterCalc::SetData(int element, const SCaseRef& ref) {
    m_ref = ref;
    m_numSpan = 0;
    const int own = ref.Case();
    std::span<const int> cases;
    if (m_model->Elem(element).Is1D() && ref.IsAnalysis()) {
        cases = std::span(&own, 1);
    } else if (m_model->Elem(element).Is1D() && ref.IsCombination()) {
        cases = CasesOf(ref);
    }
    if (m_spans.size() < cases.size()) {
        m_spans.resize(cases.size());
    }
    for (const int number : cases) {
        m_spans[m_numSpan++].Set(*m_model, element, number);
    }
}

InterResult CInterCalc::Single(int analysisCase, InterKind kind, const CPosOn1D& at) const {
    const auto end = m_spans.begin() + static_cast<std::ptrdiff_t>(m_numSpan);
    const auto span = std::lower_bound(
        m_spans.begin(), end, analysisCase,
        [](const InterSpan& item, int number) { return item.AnalysisCase() < number; });
    if (span == end || span->AnalysisCase() != analysisCase) {
        return NoInterResult();
    }
    return kind == InterKind::Force ? span->Force(at) : span->Displacement(at);
}

InterResult CInterCalc::Combined(InterKind kind, const CPosOn1D& at) const {
    std::array<double, 6> out{};
    ForCase(*m_model, m_ref, out, [&](int number, std::span<double> figures) {
        const InterResult result = Single(number, kind, at);
        for (int i = 0; i < 3; ++i) {
            figures[static_cast<std::size_t>(i)] = result.tran[i];
            figures[static_cast<std::size_t>(i) + 3] = result.rot[i];
        }
    });
    return {{out[0], out[1], out[2]}, {out[3], out[4], out[5]}};
}

void CInterCalc::Calculate(CInterInfo& info) const {
    for (std::size_t k = 0; k < info.m_positions.size(); ++k) {
        const CPosOn1D& at = info.m_positions[k];
        info.m_results[k] =
            m_ref.IsAnalysis() ? Single(m_ref.Case(), info.m_kind, at) : Combined(info.m_kind, at);
    }
}

void CInterCalc::AddInteresting(std::vector<CPosOn1D>& positions) const {
    for (std::size_t i = 0; i < m_numSpan; ++i) {
        m_spans[i].AddInteresting(positions);
    }
}

void CInterPos::SetAutoPositionForCase(int element, const SCaseRef& ref) {
    m_calc->SetData(element, ref);
    m_positions = m_regular;
    m_calc->AddInteresting(m_positions);
    // Regular positions are cut to millionths and the others are rounded: one millionth off a
    // regular position is that position.
    std::erase_if(m_positions, [this](const CPosOn1D& at) {
        const auto isRegular = [this](int millionths) {
            return std::binary_search(m_regular.begin(), m_regular.end(), CPosOn1D(millionths));
        };
        return !isRegular(at.Millionths()) &&
               (isRegular(at.Millionths() - 1) || isRegular(at.Millionths() + 1));
    });
    CPosOn1D::Sort(m_positions);
}

}  // namespace Tevra

#include "output/engine/DataProvider.h"

#include <map>
#include <utility>

#include "model/Util.h"
#include "output/engine/Providers.h"

namespace Tevra::Output {

namespace {

using Table = std::map<std::wstring, DataProvider>;

Table& Providers() {
    static Table table{
        {L"nodes", NodesProvider()},         {L"elements", ElementsProvider()},
        {L"members", MembersProvider()},     {L"sections", SectionsProvider()},
        {L"materials", MaterialsProvider()}, {L"loads", LoadsProvider()},
        {L"cases", CasesProvider()},         {L"displacements", DisplacementsProvider()},
        {L"reactions", ReactionsProvider()}, {L"forces", ForcesProvider()},
        {L"stresses", StressesProvider()}};
    return table;
}

std::wstring CaseText(const SCaseRef& ref) {
    std::wstring text = (ref.IsAnalysis() ? L"A" : L"C") + std::to_wstring(ref.Case());
    if (ref.Permutation() < 0) {
        text += ref.Permutation() == kMaximumEnvelope ? L" max" : L" min";
    }
    return text;
}

}  // namespace

void RegisterProvider(const std::wstring& name, DataProvider provider) {
    Providers().insert_or_assign(name, std::move(provider));
}

const DataProvider* FindProvider(const std::wstring& name) {
    const auto found = Providers().find(name);
    return found != Providers().end() ? &found->second : nullptr;
}

std::vector<std::wstring> ProviderNames() {
    std::vector<std::wstring> names;
    for (const auto& [name, provider] : Providers()) {
        names.push_back(name);
    }
    return names;
}

CRows::CRows(const CVynData& model, const Data::COpView& view, const std::vector<Column>& columns,
             const LineSink& sink)
    : m_model(model), m_view(view), m_sink(sink) {
    for (const Column& column : columns) {
        m_factors.push_back(UnitFactor(model.Units(), column.quantity));
    }
    FindCases();
}

void CRows::FindCases() {
    const Util::CaseSet cases = Util::Cases(m_view.Cases(), m_model);
    cases.analysis.ForEach([this](int number) {
        if (m_model.AnalysisCaseHasResults(number)) {
            m_cases.push_back(AnalysisRef(number));
        }
    });
    cases.combination.ForEach([this](int number) { AddCombination(number); });
}

void CRows::AddCombination(int number) {
    if (!m_model.CombinationCaseHasResults(number)) {
        return;
    }
    if (m_model.CombinationCase(number).Desc().NumPermutation(m_model) == 1) {
        m_cases.emplace_back(CaseOp::Combination, number, 1);
        return;
    }
    m_cases.emplace_back(CaseOp::Combination, number, kMaximumEnvelope);
    m_cases.emplace_back(CaseOp::Combination, number, kMinimumEnvelope);
}

CRows& CRows::Real(double value) {
    const std::size_t column = m_line.Cells().size();
    m_line.Real(column < m_factors.size() ? value * m_factors[column] : value);
    return *this;
}

CRows& CRows::CaseName(const SCaseRef& ref) {
    if (m_name.empty() || !(ref == m_named)) {
        m_named = ref;
        m_name = CaseText(ref);
    }
    return Text(m_name);
}

void CRows::EndRow() {
    m_sink(m_line);
    m_line.Clear();
}

}  // namespace Tevra::Output

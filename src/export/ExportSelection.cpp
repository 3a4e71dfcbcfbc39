#include <algorithm>

#include "export/VynExport.h"
#include "model/Util.h"
#include "platform/text/Ascii.h"
#include "platform/text/Utf8.h"

// What is exported: the chosen tables, entities and cases.
namespace Tevra::Export {

bool CVynExport::FindOption(char letter) const {
    return m_param.option.empty() ||
           m_param.option.find_first_of({Text::ToLower(letter), Text::ToUpper(letter)}) !=
               std::string::npos;
}

const CVynData& CVynExport::TheModel() const {
    static const CVynData kNone;
    return m_model != nullptr ? *m_model : kNone;
}

// --- entities

namespace {

bool Includes(const CEntList& list, const CVynData& model, SelType kind, int number) {
    return Util::IsItemIncluded(list, {kind, number}, model, -1, true);
}

/// The selected records of a table with their numbers; `chosen(record)` may leave some out.
template <class Record, class Chosen>
std::vector<std::pair<int, const Record*>> Selected(const NumberedTable<Record>& table,
                                                    const CEntList& list, const CVynData& model,
                                                    SelType kind, Chosen chosen) {
    std::vector<std::pair<int, const Record*>> selected;
    for (const int number : table.Numbers()) {
        const Record& record = table.Get(number);
        if (chosen(record) && Includes(list, model, kind, number)) {
            selected.emplace_back(number, &record);
        }
    }
    return selected;
}

template <class Record, class Chosen>
bool AnySelected(const NumberedTable<Record>& table, const CEntList& list, const CVynData& model,
                 SelType kind, Chosen chosen) {
    const auto numbers = table.Numbers();
    return std::any_of(numbers.begin(), numbers.end(), [&](int number) {
        return chosen(table.Get(number)) && Includes(list, model, kind, number);
    });
}

constexpr auto kAny = [](const auto& /*record*/) { return true; };

bool HasSpring(const Data::CNode& node) {
    return node.SpringProperty() > 0;
}
bool IsSpring(const Data::CElement& element) {
    return !element.IsDummy() && element.IsSpring();
}
bool Is1D(const Data::CElement& element) {
    return !element.IsDummy() && element.IsSection();
}
bool Is2D(const Data::CElement& element) {
    return !element.IsDummy() && element.Is2D();
}
bool Is3D(const Data::CElement& element) {
    return !element.IsDummy() && element.Is3D();
}

}  // namespace

bool CVynExport::IncludeNode() const {
    return FindOption('N') &&
           AnySelected(TheModel().NodeTable(), m_param.nodeList, TheModel(), SelType::Node, kAny);
}
bool CVynExport::IncludeAssembly() const {
    return FindOption('A') && AnySelected(TheModel().AssemblyTable(), m_param.assemblyList,
                                          TheModel(), SelType::Assembly, kAny);
}
bool CVynExport::IncludeSpring() const {
    return FindOption('S') && (AnySelected(TheModel().NodeTable(), m_param.nodeList, TheModel(),
                                           SelType::Node, HasSpring) ||
                               AnySelected(TheModel().ElemTable(), m_param.elementList, TheModel(),
                                           SelType::Element, IsSpring));
}
bool CVynExport::Include1DElement() const {
    return FindOption('1') && AnySelected(TheModel().ElemTable(), m_param.elementList, TheModel(),
                                          SelType::Element, Is1D);
}
bool CVynExport::Include2DElement() const {
    return FindOption('2') && AnySelected(TheModel().ElemTable(), m_param.elementList, TheModel(),
                                          SelType::Element, Is2D);
}
bool CVynExport::Include3DElement() const {
    return FindOption('3') && AnySelected(TheModel().ElemTable(), m_param.elementList, TheModel(),
                                          SelType::Element, Is3D);
}

std::vector<std::pair<int, const Data::CNode*>> CVynExport::GetNodes() const {
    return Selected(TheModel().NodeTable(), m_param.nodeList, TheModel(), SelType::Node, kAny);
}
std::vector<std::pair<int, const Data::CAssembly*>> CVynExport::GetAssemblies() const {
    return Selected(TheModel().AssemblyTable(), m_param.assemblyList, TheModel(), SelType::Assembly,
                    kAny);
}
std::vector<std::pair<int, const Data::CElement*>> CVynExport::Get1DElements() const {
    return Selected(TheModel().ElemTable(), m_param.elementList, TheModel(), SelType::Element,
                    Is1D);
}
std::vector<std::pair<int, const Data::CElement*>> CVynExport::Get2DElements() const {
    return Selected(TheModel().ElemTable(), m_param.elementList, TheModel(), SelType::Element,
                    Is2D);
}
std::vector<std::pair<int, const Data::CElement*>> CVynExport::Get3DElements() const {
    return Selected(TheModel().ElemTable(), m_param.elementList, TheModel(), SelType::Element,
                    Is3D);
}

std::vector<std::pair<int, SelType>> CVynExport::GetSpringElements() const {
    std::vector<std::pair<int, SelType>> springs;
    for (const auto& [number, node] :
         Selected(TheModel().NodeTable(), m_param.nodeList, TheModel(), SelType::Node, HasSpring)) {
        springs.emplace_back(number, SelType::Node);
    }
    for (const auto& [number, element] : Selected(TheModel().ElemTable(), m_param.elementList,
                                                  TheModel(), SelType::Element, IsSpring)) {
        springs.emplace_back(number, SelType::Element);
    }
    return springs;
}

// --- cases

int CVynExport::MapResults() {
    m_resultCases.clear();
    for (const int number : TheModel().AnalysisCaseTable().Numbers()) {
        const SCaseRef ref = AnalysisRef(number);
        if (Util::IsCaseIncluded(m_param.caseList, ref, TheModel()) &&
            TheModel().AnalysisCaseHasResults(number)) {
            m_resultCases.push_back(ref);
        }
    }
    for (const int number : TheModel().CombinationCaseTable().Numbers()) {
        const SCaseRef ref(CaseOp::Combination, number, 0);
        if (Util::IsCaseIncluded(m_param.caseList, ref, TheModel()) &&
            TheModel().CombinationCase(number).Desc().IsValid(TheModel()) &&
            TheModel().CombinationCaseHasResults(number, {})) {
            m_resultCases.push_back(ref);
        }
    }
    return static_cast<int>(m_resultCases.size());
}

std::vector<SCaseRef> CVynExport::ResultCases() {
    if (m_resultCases.empty()) {
        MapResults();
    }
    return m_resultCases;
}

std::vector<SCaseRef> CVynExport::ExpandCases(const SCaseRef& ref) const {
    if (!ref.IsCombination() ||
        TheModel().CombinationCase(ref.Case()).Desc().NumPermutation(TheModel()) == 1) {
        return {ref};
    }
    return {{CaseOp::Combination, ref.Case(), kMinimumEnvelope},
            {CaseOp::Combination, ref.Case(), kMaximumEnvelope}};
}

const CAnalysisTask& CVynExport::TaskOf(const SCaseRef& ref) const {
    return TheModel().AnalysisTask(ref.IsAnalysis() ? TheModel().AnalysisCase(ref.Case()).Task()
                                                    : 0);
}
bool CVynExport::IsDynamic(const SCaseRef& ref) const {
    return TaskOf(ref).IsDynamic();
}
bool CVynExport::IsBuckling(const SCaseRef& ref) const {
    return TaskOf(ref).IsBuckling();
}
bool CVynExport::IsModal(const SCaseRef& ref) const {
    return TaskOf(ref).IsModal() || TaskOf(ref).IsRitz();
}

std::string CVynExport::CaseId(const SCaseRef& ref) const {
    if (ref.IsAnalysis()) {
        return std::string("A").append(std::to_string(ref.Case()));
    }
    return ref.IsCombination() ? Text::ToUtf8(TheModel().CombinationCase(ref.Case()).Name()) : "";
}

std::string CVynExport::CaseDescription(const SCaseRef& ref) const {
    if (ref.IsAnalysis()) {
        return Text::ToUtf8(TheModel().AnalysisCase(ref.Case()).Name());
    }
    return ref.IsCombination()
               ? Text::ToUtf8(TheModel().CombinationCase(ref.Case()).Desc().Description())
               : "";
}

std::string CVynExport::RevitId(const Data::BaseEntity& entity) const {
    return Text::ToUtf8(SidTagValue(entity.Sid(), L"Revit"));
}

}  // namespace Tevra::Export

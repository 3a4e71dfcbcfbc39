#include "model/ReferenceFinder.h"

#include <cwchar>

namespace Tevra::Util {

using namespace Data;

void Finder::Say(const std::wstring& what) {
    ++m_report.total;
    if (m_report.findings.size() < m_most) {
        m_report.findings.push_back(std::wstring(m_kind) + L" " + std::to_wstring(m_number) +
                                    L": " + what);
    }
}

void Finder::Material(const MaterialChoice& choice) {
    Material(choice.analysis);
    if (const auto* grades = m_model.DesignTable(choice.type)) {
        Need(*grades, L"design grade", choice.grade);
    }
}

void Finder::Property(PropertyType kind, int number) {
    if (m_scope == ReferenceScope::NoProperties) {
        return;
    }
    switch (kind) {
        case PropertyType::Section:
            return Need(m_model.SectionTable(), L"section", number);
        case PropertyType::Prop2D:
            return Need(m_model.Prop2DTable(), L"2D property", number);
        case PropertyType::Prop3D:
            return Need(m_model.Prop3DTable(), L"3D property", number);
        case PropertyType::Spring:
            return Need(m_model.SpringPropTable(), L"spring property", number);
        case PropertyType::Damper:
            return Need(m_model.DamperPropTable(), L"damper property", number);
        case PropertyType::Mass:
            return Need(m_model.MassPropTable(), L"mass property", number);
        case PropertyType::Cable:
            return Need(m_model.CablePropTable(), L"cable property", number);
        case PropertyType::Link:
            return Need(m_model.LinkPropTable(), L"link property", number);
        case PropertyType::None:
            return;
    }
}

void Finder::LoadCase(int number) {
    if (number != 0 && !m_model.LoadCaseExist(number)) {
        Say(L"load case " + std::to_wstring(number) + L" does not exist");
    }
}

void Finder::List(const CEntList& list) {
    if (!list.IsValid()) {
        Say(L"the list \"" + list.Text() + L"\" can't be read");
    } else if (list.Terms()->namesLists) {
        SavedLists(list.Terms()->terms);
    }
}

void Finder::SavedLists(const std::vector<ListTerm>& terms) {
    for (const ListTerm& term : terms) {
        SavedLists(term.inner);
        if (term.kind == ListTermKind::List) {
            for (const NumberRange& range : term.ranges) {
                // A range of lists means those that exist.
                if (range.from == range.to) {
                    Need(m_model.ListTable(), L"list", range.from);
                }
            }
        }
    }
}

void Finder::NodesOf(const std::wstring& topology) {
    const wchar_t* at = topology.c_str();
    while (true) {
        wchar_t* end = nullptr;
        const long number = std::wcstol(at, &end, 10);
        if (end == at) {
            return;
        }
        if (number < 1 || number > m_model.HighestNode() ||
            !m_model.NodeExist(static_cast<int>(number))) {
            Say(L"node " + std::to_wstring(number) + L" does not exist");
        }
        at = end;
    }
}

void Finder::Description(const CCaseDesc& description) {
    if (!description.IsValid()) {
        Say(L"\"" + description.Description() + L"\" can't be read");
    }
    for (const CaseDescPart& part : description.Parts()) {
        for (const CaseDescPart::Load& load : part.loads) {
            LoadCase(load.loadCase);
        }
    }
}

}  // namespace Tevra::Util

#include "model/MaterialMap.h"

#include <algorithm>

#include "model/Names.h"
#include "model/VynData.h"

namespace Tevra {

void CMaterialMap::Clear() {
    *this = CMaterialMap();
}

bool CMaterialMap::CreateMap(const CVynData& model) {
    Clear();
    const std::int64_t highest = model.HighestMatAnal();
    m_nextMid = highest + model.HighestCableProp() + 1;
    m_nextPid =
        std::max({std::int64_t{model.HighestSection()} * 2, std::int64_t{model.HighestProp2D()},
                  std::int64_t{model.HighestProp3D()}, std::int64_t{model.HighestSpringProp()},
                  std::int64_t{model.HighestDamperProp()}}) +
        1;
    for (const int number : model.MatAnalTable().Numbers()) {
        m_materials.push_back({number, {MatType::Generic, 0, number}});
        m_names.push_back(model.MatAnal(number).Name());
    }
    AddProperties(model);
    if (m_isTooHigh) {
        Clear();
        return false;
    }
    return true;
}

void CMaterialMap::AddProperties(const CVynData& model) {
    const StageMaterials staged = MaterialsOfStages(model);
    for (const int number : model.SectionTable().Numbers()) {
        std::vector<Data::MaterialChoice> choices;
        for (const Data::CSecComp& component : model.Section(number).Components()) {
            choices.push_back(component.Material());
        }
        Add(model, PropertyType::Section, number, std::move(choices), staged, m_sections);
    }
    for (const int number : model.Prop2DTable().Numbers()) {
        const Data::CProp2D& property = model.Prop2D(number);
        if (property.Is2DFE()) {
            std::vector<Data::MaterialChoice> choices{property.Material()};
            for (const Data::PropLayer& layer : property.Layers()) {
                choices.push_back({MatType::Generic, 0, layer.material});
            }
            Add(model, PropertyType::Prop2D, number, std::move(choices), staged, m_properties2D);
        }
    }
    for (const int number : model.Prop3DTable().Numbers()) {
        Add(model, PropertyType::Prop3D, number, {model.Prop3D(number).Material()}, staged,
            m_properties3D);
    }
}

/// Analysis materials by the property that has them in some stage, in the order of the stages.
CMaterialMap::StageMaterials CMaterialMap::MaterialsOfStages(const CVynData& model) {
    StageMaterials found;
    for (const int number : model.StageTable().Numbers()) {
        for (const Data::StageReplacement& r : model.Stage(number).Replacements()) {
            if (r.material != 0) {
                found[{r.kind, r.property != 0 ? r.property : r.from}].push_back(r.material);
            }
        }
    }
    return found;
}

/// The next of the numbers that the map gives; one that is too high fails the map as a whole.
int CMaterialMap::Next(std::int64_t& next) {
    m_isTooHigh = m_isTooHigh || next > kHighestNumber;
    return static_cast<int>(std::min<std::int64_t>(next++, kHighestNumber));
}

int CMaterialMap::MidOf(const CVynData& model, const Data::MaterialChoice& choice) {
    const Data::CMatAnal* material = model.FindMaterial(choice);
    if (material == nullptr) {
        return 0;
    }
    if (choice.analysis != 0) {
        return choice.analysis;
    }
    const auto [entry, isNew] = m_grades.try_emplace({choice.type, choice.grade});
    if (isNew) {
        entry->second = Next(m_nextMid);
        m_materials.push_back({entry->second, {choice.type, choice.grade, 0}});
        m_names.push_back(model.DesignTable(choice.type)->Get(choice.grade).Name());
    }
    return entry->second;
}

void CMaterialMap::Add(const CVynData& model, PropertyType kind, int number,
                       std::vector<Data::MaterialChoice> choices, const StageMaterials& staged,
                       Table& table) {
    if (const auto found = staged.find({kind, number}); found != staged.end()) {
        for (const int material : found->second) {
            choices.push_back({MatType::Generic, 0, material});
        }
    }
    std::vector<ExportedProperty> entries;
    for (const Data::MaterialChoice& choice : choices) {
        const int mid = MidOf(model, choice);
        const bool isKnown =
            std::any_of(entries.begin(), entries.end(),
                        [mid](const ExportedProperty& entry) { return entry.mid == mid; });
        if (mid == 0 || isKnown) {
            continue;
        }
        entries.push_back({entries.empty() ? number : Next(m_nextPid), mid});
    }
    if (!entries.empty()) {
        table.Set(number, std::move(entries));
    }
}

namespace {

/// A name in a cell of a table: tabs and line ends would end the cell, brackets begin a mark.
std::wstring Cell(std::wstring text) {
    for (wchar_t& c : text) {
        c = c < L' ' || c == L'<' || c == L'>' ? L' ' : c;
    }
    return text;
}

}  // namespace

void CMaterialMap::ReportProperties(const wchar_t* kind, const Table& table, std::wstring& rows) {
    for (const int number : table.Numbers()) {
        const std::vector<ExportedProperty>& entries = table.Get(number);
        for (const ExportedProperty& entry : entries) {
            if (entries.size() > 1) {
                rows += std::wstring(kind) + L"\t" + std::to_wstring(number) + L"\t" +
                        std::to_wstring(entry.pid) + L"\t" + std::to_wstring(entry.mid) + L"\n";
            }
        }
    }
}

std::wstring CMaterialMap::Report() const {
    std::wstring text =
        L"<h4>Materials</h4>\n<table><tableheader>Material\tType\tVYN "
        L"Material\tName</tableheader>\n";
    for (std::size_t i = 0; i < m_materials.size(); ++i) {
        const auto& [mid, source] = m_materials[i];
        const bool isAnalysis = source.analysis != 0;
        text += std::to_wstring(mid) + L"\t";
        text += isAnalysis ? L"ANALYSIS" : MatTypeLabel(source.type);
        text += L"\t" + std::to_wstring(isAnalysis ? source.analysis : source.grade) + L"\t" +
                Cell(m_names[i]) + L"\n";
    }
    text += L"</table>\n";
    std::wstring rows;
    ReportProperties(L"Section", m_sections, rows);
    ReportProperties(L"2D property", m_properties2D, rows);
    ReportProperties(L"3D property", m_properties3D, rows);
    if (!rows.empty()) {
        text +=
            L"<h4>Properties with several materials</h4>\n<table><tableheader>Type\tVYN "
            L"Property\tProperty\tMaterial</tableheader>\n" +
            rows + L"</table>\n";
    }
    return text;
}

}  // namespace Tevra

#include <climits>

#include "dyna/DynaAnalysis.h"
#include "dyna/DynaCards.h"
#include "dyna/DynaElementKind.h"
#include "dyna/DynaOut.h"
#include "model/VynData.h"

// Parts, the numbers of their sections and materials, and the report of them.

namespace Tevra {

namespace {

std::wstring_view WordOf(DynaPart type) {
    switch (type) {
        case DynaPart::Undefined:
            return L"<undefined>";
        case DynaPart::Beam:
            return L"Beam";
        case DynaPart::Shell:
            return L"Shell";
        case DynaPart::Spring:
            return L"Spring";
        case DynaPart::Damper:
            return L"Damper";
        case DynaPart::Link:
            return L"Link";
        case DynaPart::Rigid:
            return L"Rigid";
        case DynaPart::Cable:
            return L"Cable";
        case DynaPart::Solid:
            return L"Solid";
    }
    return L"";
}

}  // namespace

int CDynaAnalysis::NextMaterial() {
    m_nextMaterial += m_nextMaterial < INT_MAX ? 1 : 0;
    return m_nextMaterial;
}

/// The analysis material of a property, else a new number for its design grade.
int CDynaAnalysis::StageMaterial(PropertyType kind, int property,
                                 const Data::MaterialChoice& choice) {
    const int material = m_model->StageMatAnal(kind, property, m_stage);
    return material != 0 ? material : DesignMaterial({choice.type, choice.grade});
}

/// Kept as files in the field have it: every part that stands on a design grade gets a number of
/// its own, but the material is written under the first one alone.
int CDynaAnalysis::DesignMaterial(const DesignGrade& grade) {
    const int material = NextMaterial();
    const auto [entry, isNew] = m_designMaterials.emplace(grade, material);
    const int part = static_cast<int>(m_parts.size()) + 1;
    const NumberedTable<Data::CMatDesign>* const family = m_model->DesignTable(grade.first);
    if (family == nullptr || !family->Exist(grade.second)) {
        AddNote(L"Part", part,
                L"has a material that is not in the file: its property has none, or layers with "
                L"their own");
    } else if (!isNew) {
        AddNote(L"Part", part,
                L"has a material that is not in the file: its design grade is there as material " +
                    std::to_wstring(entry->second));
    }
    return material;
}

void CDynaAnalysis::AddPart(DynaPart type, int property, int material) {
    const int number = static_cast<int>(m_parts.size()) + 1;
    m_parts.push_back({type, property, number, material});
    NumberedTable<int>& table =
        type == DynaPart::Beam ? m_sectionTable : m_partsOf[static_cast<std::size_t>(type)];
    if (!table.Exist(property)) {
        table.Set(property, number);
    }
}

template <class Record, class MaterialOf>
void CDynaAnalysis::WritePartsOf(const NumberedTable<Record>& table, DynaPart type,
                                 const wchar_t* word, MaterialOf materialOf) {
    for (const int number : table.Numbers()) {
        const Record& record = table.Get(number);
        if constexpr (std::is_same_v<Record, Data::CSpringProp>) {
            if (!HasPart(record)) {
                Skip(L"Spring property", number, L"springs between surfaces have no card");
                continue;
            }
        }
        AddPart(type, number, materialOf(number, record));
        const PartRecord& part = m_parts.back();
        m_out->Keyword(DynaCards::kPart);
        m_out->Title(record.Name() + L" : " + word + L" " + std::to_wstring(number));
        m_out->Line<DynaCards::kPart>(part.section, part.section, part.material);
    }
}

bool CDynaAnalysis::WriteParts() {
    const auto staged = [this](PropertyType kind) {
        return [this, kind](int number, const auto& record) {
            if constexpr (requires { record.Material(); }) {
                return StageMaterial(kind, number, record.Material());
            } else {
                return StageMaterial(kind, number, record.Component(1).Material());
            }
        };
    };
    const auto own = [this](int, const auto&) { return NextMaterial(); };
    WritePartsOf(m_model->SectionTable(), DynaPart::Beam, L"section",
                 staged(PropertyType::Section));
    WritePartsOf(m_model->Prop2DTable(), DynaPart::Shell, L"2D prop", staged(PropertyType::Prop2D));
    WritePartsOf(m_model->Prop3DTable(), DynaPart::Solid, L"3D prop", staged(PropertyType::Prop3D));
    WritePartsOf(m_model->SpringPropTable(), DynaPart::Spring, L"spring prop", own);
    WritePartsOf(m_model->DamperPropTable(), DynaPart::Damper, L"damper prop", own);
    WritePartsOf(m_model->CablePropTable(), DynaPart::Cable, L"cable prop", own);
    AddBodies();
    return true;
}

/// Links and rigid constraints are rigid bodies, whose parts have no card.
void CDynaAnalysis::AddBodies() {
    if (m_hasKind[static_cast<std::size_t>(DynaPart::Link)]) {
        for (const int number : m_model->ElemTable().Numbers()) {
            if (m_model->Elem(number).IsLink()) {
                AddPart(DynaPart::Link, number, 0);
            }
        }
    }
    for (const int number : m_model->RigidTable().Numbers()) {
        AddPart(DynaPart::Rigid, number, 0);
    }
}

int CDynaAnalysis::FindPart(DynaPart type, int property) const {
    return type == DynaPart::Beam ? m_sectionTable.Get(property)
                                  : m_partsOf[static_cast<std::size_t>(type)].Get(property);
}

int CDynaAnalysis::PartOf(int element) const {
    const DynaPart kind = KindOf(m_model->Elem(element));
    if (kind == DynaPart::Undefined) {
        return 0;
    }
    return FindPart(
        kind, kind == DynaPart::Link ? element : m_model->ElemStageProperty(element, m_stage));
}

void CDynaAnalysis::BuildReport() {
    m_report =
        L"<h4>VYN-DYNA Part Lookup</h4>\n<table><tableheader>DYNA Part\tPart type\tVYN "
        L"Property\tDYNA Section\tDYNA Material\tNotes</tableheader>\n";
    int number = 0;
    for (const PartRecord& part : m_parts) {
        m_report += std::to_wstring(++number) + L"\t";
        m_report.append(WordOf(part.type)).append(L"\t");
        for (const int value : {part.property, part.section, part.material}) {
            m_report += std::to_wstring(value) + L"\t";
        }
        m_report += part.type == DynaPart::Link    ? L"element"
                    : part.type == DynaPart::Rigid ? L"constraint"
                                                   : L"";
        m_report += L"\n";
    }
    m_report += L"</table>";
    m_indexFile = true;
}

}  // namespace Tevra

#include "output/engine/Providers.h"

namespace Tevra::Output {

namespace {

void SectionRows(CRows& rows) {
    for (const int number : rows.Model().SectionTable().Numbers()) {
        const Data::CSection& section = rows.Model().Section(number);
        const SectionProperties p = rows.Model().SectionProp(number, 0, 0.0, false);
        rows.Int(number).Text(section.Name()).Text(section.Description());
        rows.Int(section.MaterialAnalysis()).Real(p.area).Real(p.iyy).Real(p.izz).Real(p.j);
        rows.Real(p.avy).Real(p.avz).EndRow();
    }
}

void MaterialRows(CRows& rows) {
    for (const int number : rows.Model().MatAnalTable().Numbers()) {
        const Data::CMatAnal& material = rows.Model().MatAnal(number);
        rows.Int(number).Text(material.Name()).Int(static_cast<int>(material.Model()));
        rows.Real(material.E()).Real(material.Nu()).Real(material.G());
        rows.Real(material.Density()).Real(material.Alpha()).EndRow();
    }
}

}  // namespace

DataProvider SectionsProvider() {
    return {{{L"Section"},
             {L"Name"},
             {L"Description"},
             {L"Material"},
             {L"A", Quantity::Area},
             {L"Iyy", Quantity::SecondMoment},
             {L"Izz", Quantity::SecondMoment},
             {L"J", Quantity::SecondMoment},
             {L"Avy", Quantity::Area},
             {L"Avz", Quantity::Area}},
            &SectionRows};
}

DataProvider MaterialsProvider() {
    return {{{L"Material"},
             {L"Name"},
             {L"Model"},
             {L"E", Quantity::Stress},
             {L"Nu"},
             {L"G", Quantity::Stress},
             {L"Density", Quantity::Density},
             {L"Expansion", Quantity::Expansion}},
            &MaterialRows};
}

}  // namespace Tevra::Output

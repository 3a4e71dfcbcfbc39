#include <string>

#include "export/TableColumns.h"
#include "io/NumberFormat.h"
#include "model/Names.h"
#include "model/SecGeom.h"
#include "model/Util.h"
#include "platform/text/Ascii.h"

// Tables of sections, 2D and 3D properties and saved lists.
namespace Tevra::Export {

namespace {

/// The outlines of all components where they stand in the section: "(y,z) (y,z) ; (y,z) ...".
std::string Perimeter(const Data::CSection& section) {
    std::string text;
    for (const Data::CSecComp& component : section.Components()) {
        for (const Data::SectionPolygon& polygon : component.Geometry().Polygons()) {
            text += text.empty() ? "" : "; ";
            for (const Vec2<double>& point : polygon) {
                text += '(';
                AppendFixed(text, component.Position().x + point.x);
                text += ',';
                AppendFixed(text, component.Position().y + point.y);
                text += ") ";
            }
        }
    }
    return std::string(Text::Trim(text));
}

using SectionRow = RecordRow<Data::CSection>;
constexpr Column<SectionRow> kSection[] = {
    {"section", [](const SectionRow& r) { return r.number; }, kKey},
    {"name", 32, [](const SectionRow& r) { return r.record.Name(); }},
    {"colour", [](const SectionRow& r) { return Colour{r.record.Colour()}; }},
    {"material", 12, [](const SectionRow& r) { return MatTypeLabel(r.record.MaterialType()); }},
    {"grade_id", [](const SectionRow& r) { return r.record.MaterialGrade(); }},
    {"description", 256, [](const SectionRow& r) { return Text::Trim(r.record.Description()); }},
    {"perimeter", 256, [](const SectionRow& r) { return Perimeter(r.record); }},
    {"pool", [](const SectionRow& r) { return r.record.Pool(); }},
    {"area", [](const SectionRow& r) { return r.record.Properties().area; }},
    {"iyy", [](const SectionRow& r) { return r.record.Iyy(); }},
    {"izz", [](const SectionRow& r) { return r.record.Izz(); }},
    {"j", [](const SectionRow& r) { return r.record.Properties().j; }},
    {"ky", [](const SectionRow& r) { return r.record.Kyy(); }},
    {"kz", [](const SectionRow& r) { return r.record.Kzz(); }},
    {"volume_per_length", [](const SectionRow& r) { return r.record.VolPerL(); }},
};

using Prop2DRow = RecordRow<Data::CProp2D>;
constexpr Column<Prop2DRow> kProp2D[] = {
    {"prop_2d", [](const Prop2DRow& r) { return r.number; }, kKey},
    {"name", 32, [](const Prop2DRow& r) { return r.record.Name(); }},
    {"colour", [](const Prop2DRow& r) { return Colour{r.record.Colour()}; }},
    {"material", 12, [](const Prop2DRow& r) { return MatTypeLabel(r.record.MaterialType()); }},
    {"grade_id", [](const Prop2DRow& r) { return r.record.MaterialGrade(); }},
    {"description", 256, [](const Prop2DRow& r) { return r.record.Description(); }},
    {"thickness", [](const Prop2DRow& r) { return r.record.Thickness(); }},
};

using Prop3DRow = RecordRow<Data::CProp3D>;
constexpr Column<Prop3DRow> kProp3D[] = {
    {"prop_3d", [](const Prop3DRow& r) { return r.number; }, kKey},
    {"name", 32, [](const Prop3DRow& r) { return r.record.Name(); }},
    {"colour", [](const Prop3DRow& r) { return Colour{r.record.Colour()}; }},
    {"material", 12, [](const Prop3DRow& r) { return MatTypeLabel(r.record.MaterialType()); }},
    {"grade_id", [](const Prop3DRow& r) { return r.record.MaterialGrade(); }},
};

using ListRow = RecordRow<Data::CList>;
constexpr Column<ListRow> kList[] = {
    {"list", [](const ListRow& r) { return r.number; }, kKey},
    {"name", 32, [](const ListRow& r) { return r.record.Name(); }},
    {"type", 32, [](const ListRow& r) { return SelTypeString(r.record.TypeOf()); }},
    {"description", 256, [](const ListRow& r) { return r.record.Definition().Text(); }},
    {"expanded", 256,
     [](const ListRow& r) { return Util::ExpandedText(r.record.Definition(), r.model); }},
};

}  // namespace

bool CVynExport::Section() {
    return WriteRecords(*this, "section", kSection, &CModelData::SectionTable);
}
bool CVynExport::Property2D() {
    return WriteRecords(*this, "prop_2d", kProp2D, &CModelData::Prop2DTable);
}
bool CVynExport::Property3D() {
    return WriteRecords(*this, "prop_3d", kProp3D, &CModelData::Prop3DTable);
}
bool CVynExport::List() {
    return WriteRecords(*this, "list", kList, &CModelData::ListTable);
}

}  // namespace Tevra::Export

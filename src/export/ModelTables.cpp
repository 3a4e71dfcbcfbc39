#include "export/TableColumns.h"
#include "model/Names.h"

// Tables of the model as a whole, its axes and grid planes.
namespace Tevra::Export {

namespace {

constexpr Column<CVynData> kModel[] = {
    {"job_number", 10, [](const CVynData& m) { return m.Title().JobNumber(); }, kKey},
    {"initials", 5, [](const CVynData& m) { return m.Title().Initials(); }},
    {"title", 64, [](const CVynData& m) { return m.Title().JobTitle(); }, kNotNull},
    {"subtitle", 64, [](const CVynData& m) { return m.Title().SubTitle(); }},
    {"calculation_header", 64, [](const CVynData& m) { return m.Title().CalcHeading(); }},
    {"steel_code", 32, [](const CVynData& m) { return m.SteelCode(); }},
    {"concrete_code", 32, [](const CVynData& m) { return m.ConcreteCode(); }},
    {"notes", 256, [](const CVynData& m) { return m.Title().Notes(); }},
};

/// A number in a column that is declared as text.
struct NumberInText {
    double value;
};

}  // namespace

template <>
struct ColumnType<NumberInText> {
    static constexpr SqlField kField = TextField(10);
    static void Write(CVynExport& out, NumberInText number) { out.WriteDouble(number.value); }
};

namespace {

constexpr Column<CVynData> kLocation[] = {
    {"country", 10, [](const CVynData& m) { return m.Location().CountryAbbreviation(); }, kNotNull},
    {"north", [](const CVynData& m) { return m.Location().North(); }},
    {"elevation", [](const CVynData& m) { return m.Location().Elevation(); }},
    {"latitude", [](const CVynData& m) { return NumberInText{m.Location().Latitude()}; }},
    {"longitude", [](const CVynData& m) { return NumberInText{m.Location().Longitude()}; }},
    {"currency", 4, [](const CVynData& m) { return m.CurrencyLabel(); }},
};

constexpr Column<CHistoryRec> kHistory[] = {
    {"date", 12, [](const CHistoryRec& r) { return r.date; }},
    {"time", 12, [](const CHistoryRec& r) { return r.time; }},
    {"user", 32, [](const CHistoryRec& r) { return r.user; }},
    {"notes", 64, [](const CHistoryRec& r) { return r.notes; }},
};

using AxisRow = RecordRow<Data::CAxis>;
constexpr Column<AxisRow> kAxis[] = {
    {"axis", [](const AxisRow& r) { return r.number; }, kKey},
    {"name", 32, [](const AxisRow& r) { return r.record.Name(); }, kNotNull},
    {"type", 12, [](const AxisRow& r) { return AxisTypeString(r.record.TypeOf()); }},
    {"origin", [](const AxisRow& r) { return r.record.Origin(); }},
    {"xaxis", [](const AxisRow& r) { return r.record.XAxis(); }},
    {"yaxis", [](const AxisRow& r) { return r.record.YAxis(); }},
    {"zaxis", [](const AxisRow& r) { return r.record.ZAxis(); }},
};

using GridPlaneRow = RecordRow<Data::CGridPlane>;
constexpr Column<GridPlaneRow> kGridPlane[] = {
    {"grid_plane", [](const GridPlaneRow& r) { return r.number; }, kKey},
    {"name", 32, [](const GridPlaneRow& r) { return r.record.Name(); }},
    {"type", 8,
     [](const GridPlaneRow& r) {
         return std::wstring_view(r.record.IsStorey() ? L"STOREY" : L"PLANE");
     }},
    {"axis", [](const GridPlaneRow& r) { return r.record.Axis(); }},
    {"elevation", [](const GridPlaneRow& r) { return r.record.Elevation(); }},
};

}  // namespace

bool CVynExport::Model() {
    return WriteTable(*this, "model", kModel, [this](auto visit) { visit(*m_model); });
}

bool CVynExport::Location() {
    return WriteTable(*this, "location", kLocation, [this](auto visit) { visit(*m_model); });
}

bool CVynExport::History() {
    return WriteTable(*this, "history", kHistory, [this](auto visit) {
        const CHistory& history = m_model->History();
        for (int i = 1; i <= history.NumRecord(); ++i) {
            visit(history.Record(i));
        }
    });
}

bool CVynExport::Axis() {
    return WriteRecords(*this, "axis", kAxis, &CModelData::AxisTable);
}

// Not one of the tables that WriteTables writes; for hosts that call it by itself.
bool CVynExport::GridPlane() {
    return WriteRecords(*this, "grid_plane", kGridPlane, &CModelData::GridPlaneTable);
}

}  // namespace Tevra::Export

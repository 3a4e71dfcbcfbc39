#include "torture/HostileModel.h"

#include <algorithm>
#include <map>
#include <utility>

#include "document/Sections.h"
#include "support/FullModel.h"

namespace Tevra::TestSupport {

namespace {

using Document::Json;

/// Makes values of a JSON schema.
class ValueMaker {
public:
    ValueMaker(HostileValues& values, std::string_view section)
        : m_values(values), m_section(section) {}

    Json Make(const Json& schema, const std::string& key) {
        if (schema.contains("anyOf")) {
            return MakeAny(schema["anyOf"], key);
        }
        if (schema.contains("enum")) {
            return OneOf(schema["enum"]);
        }
        const Json& type = schema["type"];
        if (type.is_array()) {
            return m_values.Chance(0.2) ? Json() : Json(m_values.Real());
        }
        if (type == "object") {
            return MakeObject(schema);
        }
        if (type == "array") {
            return MakeArray(schema, key);
        }
        return MakePlain(type.get<std::string>(), schema, key);
    }

private:
    Json MakePlain(const std::string& type, const Json& schema, const std::string& key) {
        if (type == "number") {
            return key == "position" ? m_values.Coordinate() : m_values.Real();
        }
        if (type == "integer") {
            return MakeInteger(schema, key);
        }
        if (type == "boolean") {
            return m_values.Chance(0.5);
        }
        return schema.contains("pattern") ? std::string("#0080ff")
                                          : m_values.TextOf(m_section, key);
    }

    /// Numbers without a range of their own mostly name records.
    Json MakeInteger(const Json& schema, const std::string& key) {
        if (key == "load_case" || (key == "number" && m_section == "load_cases")) {
            return m_values.LoadCase();
        }
        if (key == "number") {
            return m_values.RecordNumber();
        }
        if (key == "link_type" || (m_section == "link_properties" && key == "type")) {
            return m_values.Chance(0.5) ? 4095 : m_values.Below(4096);
        }
        const int value = m_values.Chance(0.2) ? m_values.Integer() : m_values.Reference();
        return schema.contains("minimum") ? std::max(value, schema["minimum"].get<int>()) : value;
    }

    /// An entity list is a text or an object of its kind and text.
    Json MakeAny(const Json& choices, const std::string& key) {
        const bool isList = choices[1].contains("properties");
        if (!isList) {
            return Make(choices[m_values.Chance(0.9) ? 0 : 1], key);
        }
        Json text = m_values.ListText();
        if (m_values.Chance(0.8)) {
            return text;
        }
        const Json& kinds = choices[1]["properties"]["kind"]["enum"];
        return {{"kind", OneOf(kinds)}, {"list", std::move(text)}};
    }

    Json MakeArray(const Json& schema, const std::string& key) {
        int size = m_values.Chance(0.05) ? 9 + m_values.Below(30) : m_values.Below(5);
        if (schema.contains("minItems")) {
            size = schema["minItems"].get<int>();
        }
        Json list = Json::array();
        for (int i = 0; i < size; ++i) {
            list.push_back(Make(schema["items"], key));
        }
        return list;
    }

    Json MakeObject(const Json& schema) {
        Json object = Json::object();
        const Json required = schema.value("required", Json::array());
        for (const auto& [key, value] : schema["properties"].items()) {
            const bool isNeeded =
                std::find(required.begin(), required.end(), key) != required.end();
            if (isNeeded || m_values.Chance(0.6)) {
                object[key] = Make(value, key);
            }
        }
        return object;
    }

    const Json& OneOf(const Json& list) {
        return list[static_cast<std::size_t>(m_values.Below(static_cast<int>(list.size())))];
    }

    HostileValues& m_values;
    std::string_view m_section;
};

/// Schemas by key; making them takes longer than making the records.
template <class Part>
const Json& SchemaOf(const Part& part) {
    static std::map<std::string_view, Json> schemas;
    const auto [entry, isNew] = schemas.try_emplace(part.key);
    if (isNew) {
        entry->second = part.schema();
    }
    return entry->second;
}

ElementType TypeOf(const Json& value) {
    ElementType type = ElementType::None;
    Document::Codec<ElementType>::Read(value, type);
    return type;
}

/// Gives an element the number of nodes of its type, most of them different.
void MendTopology(Json& element, HostileValues& values) {
    const ElementTypeInfo& info = InfoOf(TypeOf(element["type"]));
    Json nodes = Json::array();
    const int first = values.Below(9);
    for (int k = 0; k < info.maxNodes; ++k) {
        nodes.push_back(values.Chance(0.9) ? 1 + (first + k) % 9 : values.Reference());
    }
    element["nodes"] = nodes;
}

/// Fits parts of a record to each other, where documents ask for it or nearly all models have it.
void Mend(std::string_view section, Json& record, HostileValues& values) {
    if (section == "elements" && !values.Chance(values.Level().oddRefer)) {
        MendTopology(record, values);
    }
    // Two formats stop at trilinear loads.
    if (section == "beam_loads" && record.contains("type") && values.Chance(0.9)) {
        record["type"] = record["type"] == "trilinear" ? "uniform" : record["type"];
    }
    if (section == "analysis_tasks" && values.Chance(0.5)) {
        record["solution"] = Document::Codec<SolutionType>::Write(SolutionType::Modal);
        record["analysed"] = true;
        record.erase("explicit_dynamics");
    }
    if (section == "analysis_tasks" && record.contains("explicit_dynamics")) {
        record["solution"] = Document::Codec<SolutionType>::Write(SolutionType::ExplicitDynamics);
    }
}

void AddRecords(const Document::Section& section, HostileValues& values, CVynData& model) {
    ValueMaker maker(values, section.key);
    constexpr std::string_view kMany[] = {"nodes", "elements", "analysis_tasks", "analysis_cases"};
    const bool isMany =
        std::find(std::begin(kMany), std::end(kMany), section.key) != std::end(kMany);
    const int count = isMany ? 4 + values.Below(9) : values.Below(5);
    for (int i = 0; i < count; ++i) {
        Json record = maker.Make(SchemaOf(section), {});
        Mend(section.key, record, values);
        try {
            section.read(record, model);
        } catch (const Document::FieldError&) {
            continue;  // the number is in use
        }
    }
}

void AddResultRows(CaseResults& results, HostileValues& values) {
    for (int k = 0; k < kNumResultKind; ++k) {
        const auto kind = static_cast<ResultKind>(k);
        for (int i = values.Below(7); i > 0; --i) {
            std::vector<double> rows(
                static_cast<std::size_t>((1 + values.Below(9)) * InfoOf(kind).components));
            std::generate(rows.begin(), rows.end(), [&values] { return values.Real(); });
            results.Edit(kind).Set(values.RecordNumber(), rows);
        }
    }
}

void AddResults(HostileValues& values, CVynData& model) {
    for (int i = values.Below(4); i > 0; --i) {
        CaseResults& results = model.EditResults().Edit(values.RecordNumber());
        AddResultRows(results, values);
        if (values.Chance(0.7)) {
            GlobalResults& global = results.EditGlobal();
            global.force = {values.Real(), values.Real(), values.Real()};
            global.mode = values.Integer();
            global.frequency = values.Real();
            global.effMass = {values.Real(), values.Real(), values.Real()};
            global.mass = values.Real();
        }
    }
}

template <class Record>
void Rename(const NumberedTable<Record>& table, bool (CModelData::*set)(int, Record),
            HostileValues& values, CVynData& model) {
    for (const int number : table.Numbers()) {
        Record record = table.Get(number);
        record.SetName(values.Name());
        record.SetSid(values.Name());
        (model.*set)(number, std::move(record));
    }
}

/// Names that no document can say.
void AddStrayNames(HostileValues& values, CVynData& model) {
#define VYN_RENAME(Kind, Record) \
    Rename<Record>(model.Kind##Table(), &CModelData::Set##Kind, values, model);
    VYN_RECORD_KINDS(VYN_RENAME)
#undef VYN_RENAME
    CTitles titles = model.Title();
    titles.SetJobTitle(values.Name());
    titles.SetSubTitle(values.Name());
    titles.SetJobNumber(values.Name());
    titles.SetNotes(values.Name());
    model.SetTitle(titles);
}

}  // namespace

Hostility HostilityOf(std::uint64_t seed) {
    constexpr Hostility kLevels[kHostilityLevels] = {
        {.oddText = 0.05, .oddRefer = 0.03, .isFinite = true, .isUnicode = true},
        {.oddText = 0.5, .isFinite = true, .isUnicode = true},
        {.oddNumber = 0.05, .oddRefer = 0.05, .isFinite = true, .isUnicode = true},
        {.oddNumber = 0.1, .oddText = 0.3, .oddRefer = 0.2, .isUnicode = true},
        {.oddNumber = 0.02, .oddText = 0.2, .oddRefer = 0.02},
        {.oddNumber = 0.4, .oddText = 0.5, .oddRefer = 0.1, .isHuge = true, .isFinite = true},
        {.oddNumber = 0.4, .oddText = 0.8, .oddRefer = 0.5, .isHuge = true},
        {.oddRefer = 0.2, .isFinite = true, .isUnicode = true}};
    return kLevels[seed % kHostilityLevels];
}

CVynData MakeHostileModel(std::uint64_t seed, const Hostility& hostility) {
    HostileValues values(seed, hostility);
    CVynData model = values.Chance(0.2) ? MakeFullModel() : CVynData();
    for (const Document::Block& block : Document::Blocks()) {
        if (values.Chance(0.5)) {
            block.read(ValueMaker(values, block.key).Make(SchemaOf(block), std::string(block.key)),
                       model);
        }
    }
    for (const Document::Section& section : Document::Sections()) {
        if (values.Chance(0.85)) {
            AddRecords(section, values, model);
        }
    }
    if (values.Chance(0.6)) {
        AddResults(values, model);
    }
    if (!hostility.isUnicode) {
        AddStrayNames(values, model);
    }
    return model;
}

}  // namespace Tevra::TestSupport

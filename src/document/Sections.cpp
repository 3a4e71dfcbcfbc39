#include "document/Sections.h"

#include "document/ModelDocument.h"
#include "document/RecordFields.h"

namespace Tevra::Document {

namespace {

/// Key and words of every kind of record. A kind without an entry does not compile.
struct KindName {
    std::string_view key;
    std::string_view kind;
};
constexpr KindName kNode{"nodes", "node"};
constexpr KindName kElem{"elements", "element"};
constexpr KindName kMember{"members", "member"};
constexpr KindName kAssembly{"assemblies", "assembly"};
constexpr KindName kAxis{"axes", "axis"};
constexpr KindName kGridPlane{"grid_planes", "grid plane"};
constexpr KindName kSection{"sections", "section"};
constexpr KindName kProp2D{"properties_2d", "2D property"};
constexpr KindName kProp3D{"properties_3d", "3D property"};
constexpr KindName kSpringProp{"spring_properties", "spring property"};
constexpr KindName kDamperProp{"damper_properties", "damper property"};
constexpr KindName kMassProp{"mass_properties", "mass property"};
constexpr KindName kCableProp{"cable_properties", "cable property"};
constexpr KindName kLinkProp{"link_properties", "link property"};
constexpr KindName kMatAnal{"materials", "analysis material"};
constexpr KindName kMatConcrete{"concrete_grades", "concrete grade"};
constexpr KindName kMatSteel{"steel_grades", "steel grade"};
constexpr KindName kMatFrp{"frp_grades", "FRP grade"};
constexpr KindName kMatAluminium{"aluminium_grades", "aluminium grade"};
constexpr KindName kMatGlass{"glass_grades", "glass grade"};
constexpr KindName kMatTimber{"timber_grades", "timber grade"};
constexpr KindName kMatFabric{"fabric_grades", "fabric grade"};
constexpr KindName kMatRebar{"rebar_grades", "rebar grade"};
constexpr KindName kMatCurve{"material_curves", "material curve"};
constexpr KindName kLoadCurve{"load_curves", "load curve"};
constexpr KindName kList{"lists", "list"};
constexpr KindName kLoadCaseTitle{"load_cases", "load case"};
constexpr KindName kAnalysisTask{"analysis_tasks", "analysis task"};
constexpr KindName kAnalysisCase{"analysis_cases", "analysis case"};
constexpr KindName kCombinationCase{"combination_cases", "combination case"};
constexpr KindName kStage{"stages", "stage"};
constexpr KindName kNodeLoad{"node_loads", "node load"};
constexpr KindName kSettlement{"settlements", "settlement"};
constexpr KindName kAppliedDisplacement{"applied_displacements", "applied displacement"};
constexpr KindName kBeamLoad{"beam_loads", "beam load"};
constexpr KindName kBeamDist{"beam_distortions", "beam distortion"};
constexpr KindName kAxialLoad{"axial_loads", "axial load"};
constexpr KindName kBeamThermalLoad{"beam_thermal_loads", "beam thermal load"};
constexpr KindName kFaceLoad{"face_loads", "face load"};
constexpr KindName kEdgeLoad{"edge_loads", "edge load"};
constexpr KindName kInPlaneLoad{"in_plane_loads", "in-plane load"};
constexpr KindName kFaceThermalLoad{"face_thermal_loads", "face thermal load"};
constexpr KindName kGravityLoad{"gravity_loads", "gravity load"};
constexpr KindName kRigid{"rigid_constraints", "rigid constraint"};
constexpr KindName kJoint{"joints", "joint"};
constexpr KindName kConstraintEqn{"constraint_equations", "constraint equation"};
constexpr KindName kTiedInterface{"tied_interfaces", "tied interface"};
constexpr KindName kSoilProfile{"soil_profiles", "soil profile"};
constexpr KindName kSoilZone{"soil_zones", "soil zone"};
constexpr KindName kSoilCurve{"soil_curves", "soil curve"};
constexpr KindName kPileSoilProperty{"pile_soil_properties", "pile-soil property"};
constexpr KindName kPileSoilCurve{"pile_soil_curves", "pile-soil curve"};
constexpr KindName kSoilRectLoad{"soil_loads", "soil load"};
constexpr KindName kView{"views", "output view"};

constexpr std::string_view kNumberKey = "number";

Json NumberedObject(int number, const KindName& name, Fields fields, const void* record) {
    Json object = Json::object();
    object[std::string(kNumberKey)] = number;
    At(std::string(name.kind) + " " + std::to_string(number),
       [&] { WriteFields(fields, record, object); });
    return object;
}

/// The number that an object gives, which its table must not have yet.
int FreeNumber(const Json& object, const NumberedPages& table) {
    int number = 0;
    At(kNumberKey, [&] {
        const auto given = object.find(kNumberKey);
        if (given == object.end()) {
            throw FieldError("missing");
        }
        Codec<int>::Read(*given, number);
        if (number < 1) {
            Refuse("a whole number from 1");
        }
        if (table.Exist(number)) {
            throw FieldError(std::to_string(number) + " is used twice");
        }
        if (!table.HasRoomFor(number)) {
            throw FieldError(std::to_string(number) + ": the numbers are too scattered");
        }
    });
    return number;
}

Json NumberedSchema(Fields fields) {
    return ObjectSchema(
        fields, {{kNumberKey, {{"type", "integer"}, {"minimum", 1}, {"maximum", 2147483647}}}});
}

template <class Record>
void WriteRecords(const NumberedTable<Record>& table, const KindName& name,
                  const std::function<void(const Json&)>& emit) {
    for (const int number : table.Numbers()) {
        emit(NumberedObject(number, name, FieldsOf<Record>(), table.Find(number)));
    }
}

template <class Record>
void ReadRecord(const Json& json, const NumberedTable<Record>& table, CVynData& model,
                bool (CModelData::*set)(int, Record)) {
    Record record;
    ReadFields(FieldsOf<Record>(), json, &record, kNumberKey);
    (model.*set)(FreeNumber(json, table), std::move(record));
}

template <class Record>
Json RecordSchema() {
    return NumberedSchema(FieldsOf<Record>());
}

Json NotIfDefault(Json value, bool isDefault) {
    return isDefault ? Json() : std::move(value);
}

/// A block that is one record of the model with a table of fields.
template <class T, const T& (CModelData::*Get)() const, void (CModelData::*Set)(T)>
Block RecordBlock(std::string_view key, std::string_view meaning) {
    return {key, meaning,
            [](const CVynData& model) {
                const T& value = (model.*Get)();
                return NotIfDefault(Codec<T>::Write(value), value == T());
            },
            [](const Json& json, CVynData& model) {
                T value = (model.*Get)();
                Codec<T>::Read(json, value);
                (model.*Set)(std::move(value));
            },
            &Codec<T>::Schema};
}

Json WriteHistory(const CVynData& model) {
    std::vector<CHistoryRec> records;
    for (int i = 1; i <= model.History().NumRecord(); ++i) {
        records.push_back(model.History().Record(i));
    }
    return NotIfDefault(Codec<std::vector<CHistoryRec>>::Write(records), records.empty());
}

void ReadHistory(const Json& json, CVynData& model) {
    std::vector<CHistoryRec> records;
    Codec<std::vector<CHistoryRec>>::Read(json, records);
    CHistory history;
    for (CHistoryRec& record : records) {
        history.SetRecord(history.NumRecord() + 1, std::move(record));
    }
    model.SetHistory(std::move(history));
}

Settings SettingsOf(const CVynData& model) {
    return {model.StructType(), model.GlobalRestraint(), model.MassSettings(), model.Raft(),
            model.IsLockedByResults()};
}

Json WriteSettings(const CVynData& model) {
    const Settings settings = SettingsOf(model);
    return NotIfDefault(Codec<Settings>::Write(settings), settings == Settings());
}

void ReadSettings(const Json& json, CVynData& model) {
    Settings settings = SettingsOf(model);
    Codec<Settings>::Read(json, settings);
    model.SetStructType(settings.structureType);
    model.SetGlobalRestraint(settings.globalRestraint);
    model.SetMassSettings(settings.mass);
    model.SetRaft(settings.raft);
    if (settings.lockedByResults) {
        model.DataLock().LockByResults();
    }
}

}  // namespace

const std::vector<Section>& Sections() {
#define VYN_SECTION(Kind, Record)                                                      \
    {k##Kind.key,                                                                      \
     k##Kind.kind,                                                                     \
     [](const CVynData& model, const std::function<void(const Json&)>& emit) {         \
         WriteRecords(model.Kind##Table(), k##Kind, emit);                             \
     },                                                                                \
     [](const Json& json, CVynData& model) {                                           \
         ReadRecord<Record>(json, model.Kind##Table(), model, &CModelData::Set##Kind); \
     },                                                                                \
     [](const CVynData& model) { return model.Num##Kind(); },                          \
     &RecordSchema<Record>},
    static const std::vector<Section> kSections{VYN_RECORD_KINDS(VYN_SECTION)};
#undef VYN_SECTION
    return kSections;
}

const std::vector<Block>& Blocks() {
    static const std::vector<Block> kBlocks{
        RecordBlock<CTitles, &CModelData::Title, &CModelData::SetTitle>("titles",
                                                                        "Titles of the job"),
        RecordBlock<CProgTitles, &CModelData::ProgTitle, &CModelData::SetProgTitle>(
            "program", "The host program"),
        RecordBlock<CLocation, &CModelData::Location, &CModelData::SetLocation>(
            "location", "Where the structure stands"),
        RecordBlock<std::wstring, &CModelData::CurrencyLabel, &CModelData::SetCurrencyLabel>(
            "currency", "Label of the currency"),
        RecordBlock<DesignOptions, &CModelData::Design, &CModelData::SetDesign>(
            "design_codes", "Names of the design codes"),
        RecordBlock<CUnit, &CModelData::Units, &CModelData::SetUnits>("units", "Units of reports"),
        {"settings", "Settings of the model", &WriteSettings, &ReadSettings,
         &Codec<Settings>::Schema},
        {"history", "What was done to the model", &WriteHistory, &ReadHistory,
         &Codec<std::vector<CHistoryRec>>::Schema}};
    return kBlocks;
}

std::vector<RecordCount> CountRecords(const CVynData& model) {
    std::vector<RecordCount> counts;
    for (const Section& section : Sections()) {
        if (section.count(model) > 0) {
            counts.push_back({section.key, section.count(model)});
        }
    }
    return counts;
}

const Section* FindSection(std::string_view key) {
    for (const Section& section : Sections()) {
        if (section.key == key) {
            return &section;
        }
    }
    return nullptr;
}

const Block* FindBlock(std::string_view key) {
    for (const Block& block : Blocks()) {
        if (block.key == key) {
            return &block;
        }
    }
    return nullptr;
}

}  // namespace Tevra::Document

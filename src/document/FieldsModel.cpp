#include "document/RecordFields.h"

namespace Tevra::Document {

namespace {

std::wstring VersionOf(const CProgTitles& titles) {
    return titles.ProgramVersion();
}
void SetVersionOf(CProgTitles& titles, const std::wstring& version) {
    titles.SetProgramVersion(version);
}

void SetCountryOf(CLocation& location, std::wstring name) {
    location.SetCountry(std::move(name), location.CountryAbbreviation());
}
void SetAbbreviationOf(CLocation& location, std::wstring abbreviation) {
    location.SetCountry(location.Country(), std::move(abbreviation));
}

template <UnitKind Kind>
std::wstring UnitOf(const CUnit& units) {
    return units.UnitString(Kind);
}
template <UnitKind Kind>
void SetUnitOf(CUnit& units, std::wstring text) {
    units.SetUnitString(static_cast<int>(Kind), std::move(text));
}
template <UnitKind Kind>
constexpr Field UnitKey(std::string_view key) {
    return Key<CUnit, &UnitOf<Kind>, &SetUnitOf<Kind>>(key, "Unit of reports; the model is SI");
}

template <class T>
bool Missing(const T& value) {
    if constexpr (std::is_same_v<T, double>) {
        return std::isnan(value);
    } else {
        return std::isnan(value.x) && std::isnan(value.y) && std::isnan(value.z);
    }
}

Json WriteFigure(double value) {
    return std::isnan(value) ? Json() : Codec<double>::Write(value);
}
Json WriteFigure(const Vec3<double>& v) {
    return Json::array({WriteFigure(v.x), WriteFigure(v.y), WriteFigure(v.z)});
}
void ReadFigure(const Json& json, double& value) {
    if (!json.is_null()) {
        Codec<double>::Read(json, value);
    }
}
void ReadFigure(const Json& json, Vec3<double>& value) {
    if (!json.is_array() || json.size() != 3) {
        Refuse("a list of three numbers, null where there is none");
    }
    for (int i = 0; i < 3; ++i) {
        At(static_cast<std::size_t>(i),
           [&] { ReadFigure(json[static_cast<std::size_t>(i)], value[i]); });
    }
}
Json FigureSchema(double /*unused*/) {
    return {{"type", {"number", "null"}}};
}
Json FigureSchema(const Vec3<double>& /*unused*/) {
    return {{"type", "array"}, {"items", FigureSchema(0.0)}, {"minItems", 3}, {"maxItems", 3}};
}

/// A key of global results: missing figures are left out or null.
template <auto Member>
constexpr Field FigureKey(std::string_view key, std::string_view meaning) {
    return {
        key,
        meaning,
        [](const void* r) { return WriteFigure(static_cast<const GlobalResults*>(r)->*Member); },
        [](const Json& json, void* r) {
            ReadFigure(json, static_cast<GlobalResults*>(r)->*Member);
        },
        [](const void* r) { return Missing(static_cast<const GlobalResults*>(r)->*Member); },
        [] { return FigureSchema(std::remove_cvref_t<decltype(GlobalResults().*Member)>{}); }};
}

}  // namespace

VYN_FIELDS(
    CTitles,
    std::array{
        Key<CTitles, &CTitles::JobTitle, &CTitles::SetJobTitle>("job_title", "Title"),
        Key<CTitles, &CTitles::SubTitle, &CTitles::SetSubTitle>("sub_title", "Subtitle"),
        Key<CTitles, &CTitles::CalcHeading, &CTitles::SetCalcHeading>("calc_heading",
                                                                      "Heading of calculations"),
        Key<CTitles, &CTitles::JobNumber, &CTitles::SetJobNumber>("job_number", "Job number"),
        Key<CTitles, &CTitles::Initials, &CTitles::SetInitials>("initials", "Engineer"),
        Key<CTitles, &CTitles::DateSaved, &CTitles::SetDateSaved>("date_saved",
                                                                  "When the host saved the model"),
        Key<CTitles, &CTitles::FileName, &CTitles::SetFileName>("file_name", "The host's file"),
        Key<CTitles, &CTitles::Notes, &CTitles::SetNotes>("notes", "Notes")})

VYN_FIELDS(CProgTitles,
           std::array{Key<CProgTitles, &CProgTitles::ProgramName, &CProgTitles::SetProgramName>(
                          "name", "Host program"),
                      Key<CProgTitles, &VersionOf, &SetVersionOf>("version", "Its version"),
                      Key<CProgTitles, &CProgTitles::Notice, &CProgTitles::SetNotice>(
                          "notice", "Its notice of rights")})

VYN_FIELDS(
    CLocation,
    std::array{
        Key<CLocation, &CLocation::Country, &SetCountryOf>("country", "Country"),
        Key<CLocation, &CLocation::CountryAbbreviation, &SetAbbreviationOf>("abbreviation",
                                                                            "Short form"),
        Key<CLocation, &CLocation::North, &CLocation::SetNorth>("north", "From global Y, degrees"),
        Key<CLocation, &CLocation::Elevation, &CLocation::SetElevation>("elevation", "m"),
        Key<CLocation, &CLocation::Latitude, &CLocation::SetLatitude>("latitude",
                                                                      "Degrees, north positive"),
        Key<CLocation, &CLocation::Longitude, &CLocation::SetLongitude>("longitude",
                                                                        "Degrees, east positive")})

VYN_FIELDS(CHistoryRec, std::array{Key<CHistoryRec, &CHistoryRec::date>("date", "YYYY-MM-DD"),
                                   Key<CHistoryRec, &CHistoryRec::time>("time", "HH:MM:SS"),
                                   Key<CHistoryRec, &CHistoryRec::user>("user", "User"),
                                   Key<CHistoryRec, &CHistoryRec::notes>("notes", "What was done")})

VYN_FIELDS(DesignOptions,
           std::array{Key<DesignOptions, &DesignOptions::steelCode>("steel", "Steel design code"),
                      Key<DesignOptions, &DesignOptions::concreteCode>("concrete",
                                                                       "Concrete design code")})

VYN_FIELDS(CUnit, std::array{UnitKey<UnitKind::Force>("force"), UnitKey<UnitKind::Length>("length"),
                             UnitKey<UnitKind::Mass>("mass"), UnitKey<UnitKind::Time>("time"),
                             UnitKey<UnitKind::Temperature>("temperature"),
                             UnitKey<UnitKind::Displacement>("displacement"),
                             UnitKey<UnitKind::Stress>("stress"),
                             UnitKey<UnitKind::Acceleration>("acceleration")})

VYN_FIELDS(MassOptions,
           std::array{
               Key<MassOptions, &MassOptions::option>("option",
                                                      "0 elements and nodes, 1 nodes, 2 elements"),
               Key<MassOptions, &MassOptions::additionalMass>("additional",
                                                              "Loads are turned into mass"),
               Key<MassOptions, &MassOptions::massCase>("case", "Those loads"),
               Key<MassOptions, &MassOptions::direction>("direction", "1 X, 2 Y, 3 Z"),
               Key<MassOptions, &MassOptions::scale>("scale", "Factor on that mass")})

VYN_FIELDS(
    Data::RaftSettings,
    std::array{
        Key<Data::RaftSettings, &Data::RaftSettings::rigidLevel>("rigid_level",
                                                                 "Level of the rigid boundary, m"),
        Key<Data::RaftSettings, &Data::RaftSettings::maxERatio>("max_e_ratio",
                                                                "Largest ratio of Young's moduli"),
        Key<Data::RaftSettings, &Data::RaftSettings::globalPoissonRatio>("poisson_ratio",
                                                                         "Of the soil as a whole"),
        Key<Data::RaftSettings, &Data::RaftSettings::mindlinOption>(
            "mindlin_option", "Stiffness in Mindlin's solution")})

VYN_FIELDS(Settings,
           std::array{Key<Settings, &Settings::structureType>("structure_type",
                                                              "0 space, 3 to 5 plane kinds"),
                      Key<Settings, &Settings::globalRestraint>("global_restraint",
                                                                "Directions restrained everywhere"),
                      Key<Settings, &Settings::mass>("mass", "How mass is got"),
                      Key<Settings, &Settings::raft>("raft", "Piled-raft analysis"),
                      Key<Settings, &Settings::lockedByResults>("locked_by_results",
                                                                "The model may not be changed")})

VYN_FIELDS(GlobalResults,
           std::array{
               FigureKey<&GlobalResults::force>("force", "Applied load total, N"),
               FigureKey<&GlobalResults::moment>("moment", "About the origin, Nm"),
               FigureKey<&GlobalResults::reactForce>("reaction_force", "N"),
               FigureKey<&GlobalResults::reactMoment>("reaction_moment", "About the origin, Nm"),
               Key<GlobalResults, &GlobalResults::mode>("mode", "Mode number"),
               FigureKey<&GlobalResults::frequency>("frequency", "Hz"),
               FigureKey<&GlobalResults::loadFactor>("load_factor", "Of buckling"),
               FigureKey<&GlobalResults::modalMass>("modal_mass", "kg"),
               FigureKey<&GlobalResults::modalStiff>("modal_stiffness", "N/m"),
               FigureKey<&GlobalResults::modalGeoStiff>("modal_geometric_stiffness", "N/m"),
               FigureKey<&GlobalResults::effMass>("effective_mass", "kg"),
               FigureKey<&GlobalResults::rotEffMass>("rotational_effective_mass", "kg m2"),
               FigureKey<&GlobalResults::mass>("mass", "Total mass, kg"),
               FigureKey<&GlobalResults::centreOfMass>("centre_of_mass", "m")})

}  // namespace Tevra::Document

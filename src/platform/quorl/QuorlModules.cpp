#include <algorithm>
#include <array>
#include <type_traits>

#include "platform/quorl/QuorlData.h"
#include "platform/quorl/QuorlFields.h"

// The modules of the file: one table drives writing, reading and the checks.

namespace Tevra {

namespace {

constexpr std::string_view kBegin = "MODULE";
constexpr std::string_view kEnd = "END MODULE";
constexpr std::string_view kEndOfFile = "END FILE";
constexpr int kVersion = 1;

/// Calls `visit(key, value)` for each general setting, in the order of the file.
template <class Settings, class Visit>
void VisitSettings(Settings& s, Visit visit) {
    visit("METHOD", s.method);
    visit("LEGACY MINDLIN", s.legacyMindlin);
    visit("MODIFY ABOVE LOADS", s.modifyAboveLoads);
    visit("HORIZONTAL DISPLACEMENTS", s.calculateHorizontal);
    visit("CORRECTION 2009", s.correction2009);
    visit("HOST RAFT DATA", s.hostRaftData);
    visit("INCLUDE CENTRES", s.includeCentres);
    visit("DAMPING VERTICAL LOAD HORIZONTAL PLANE", s.dampVerticalInHorizontal);
    visit("DAMPING VERTICAL LOAD VERTICAL PLANE", s.dampVerticalInVertical);
    visit("DAMPING HORIZONTAL LOAD VERTICAL PLANE", s.dampHorizontalInVertical);
    visit("DAMPING HORIZONTAL LOAD HORIZONTAL PLANE", s.dampHorizontalInHorizontal);
    visit("RIGID LEVEL", s.rigidLevel);
    visit("MAX E RATIO", s.maxERatio);
    visit("POISSON RATIO", s.poissonRatio);
    visit("STIFFNESS OPTION", s.stiffnessOption);
}

struct WriteValue {
    QuorlText& text;
    void operator()(bool value) const { text.Flag(value); }
    void operator()(int value) const { text.Int(value); }
    void operator()(double value) const { text.Real(value); }
    void operator()(QuorlMethod value) const { text.Int(static_cast<int>(value)); }
};

struct ReadValue {
    QuorlFields& fields;
    void operator()(bool& value) const { value = fields.Flag(); }
    void operator()(int& value) const { value = fields.Int(); }
    void operator()(double& value) const { value = fields.Real(); }
    void operator()(QuorlMethod& value) const {
        const bool second = fields.Flag();
        value = second ? QuorlMethod::Boussinesq : QuorlMethod::Mindlin;
    }
};

}  // namespace

/// The general settings, one to a line.
struct SettingsModule {
    static int Count(const QuorlData& data) {
        int count = 0;
        VisitSettings(data.settings, [&count](std::string_view, const auto&) { ++count; });
        return count;
    }
    static void Write(const QuorlData& data, QuorlText& text) {
        VisitSettings(data.settings, [&text](std::string_view key, const auto& value) {
            text.Word(key);
            WriteValue{text}(value);
            text.EndLine();
        });
    }
    static bool Read(QuorlFields& fields, QuorlData& data, bool isNewer) {
        const std::wstring name = fields.Text();
        bool isKnown = false;
        int place = 0;
        VisitSettings(data.settings, [&](std::string_view key, auto& value) {
            ++place;
            if (std::equal(key.begin(), key.end(), name.begin(), name.end())) {
                isKnown = true;
                data.m_settingsRead.push_back(place);
                ReadValue{fields}(value);
            }
        });
        data.hasSettings = true;
        return (isKnown || isNewer) && fields.Good();
    }
    static void Clear(QuorlData& data) {
        data.settings = {};
        data.hasSettings = false;
        data.m_settingsRead.clear();
    }
    /// The settings count as records: none may stand there twice.
    static std::vector<int> Refs(const QuorlData& data) {
        std::vector<int> places = data.m_settingsRead;
        std::sort(places.begin(), places.end());
        return places;
    }
    static bool IsCount(int count) { return count == Count({}); }
};

namespace {

/// A list of records, one to a line.
template <auto kList>
struct RecordModule {
    using Record = typename std::remove_cvref_t<decltype(QuorlData().*kList)>::value_type;

    static int Count(const QuorlData& data) { return static_cast<int>((data.*kList).size()); }
    static void Write(const QuorlData& data, QuorlText& text) {
        for (const Record& record : data.*kList) {
            record.Write(text);
            text.EndLine();
        }
    }
    static bool Read(QuorlFields& fields, QuorlData& data, bool /*isNewer*/) {
        return (data.*kList).emplace_back().Read(fields);
    }
    static void Clear(QuorlData& data) { (data.*kList).clear(); }
    static bool IsCount(int /*count*/) { return true; }
    static std::vector<int> Refs(const QuorlData& data) {
        std::vector<int> refs;
        for (const Record& record : data.*kList) {
            refs.push_back(record.Ref());
        }
        std::sort(refs.begin(), refs.end());
        return refs;
    }
};

struct Module {
    std::string_view name;
    int (*count)(const QuorlData& data);
    void (*write)(const QuorlData& data, QuorlText& text);
    /// Reads one line; a later version may have more than is known here.
    bool (*read)(QuorlFields& fields, QuorlData& data, bool isNewer);
    void (*clear)(QuorlData& data);
    /// Reference numbers of the records, sorted.
    std::vector<int> (*refs)(const QuorlData& data);
    /// Whether a module of this version may have so many records.
    bool (*isCount)(int count);
};

template <class Of>
constexpr Module MakeModule(std::string_view name) {
    return {name, &Of::Count, &Of::Write, &Of::Read, &Of::Clear, &Of::Refs, &Of::IsCount};
}

constexpr std::array kModules = {
    MakeModule<SettingsModule>("GENERAL"),
    MakeModule<RecordModule<&QuorlData::soilProfiles>>("SOIL PROFILES"),
    MakeModule<RecordModule<&QuorlData::soilZones>>("SOIL ZONES"),
    MakeModule<RecordModule<&QuorlData::soilCurves>>("SOIL CURVES"),
    MakeModule<RecordModule<&QuorlData::pileSoilProperties>>("PILE SOIL PROPERTIES"),
    MakeModule<RecordModule<&QuorlData::pileSoilCurves>>("PILE SOIL CURVES"),
    MakeModule<RecordModule<&QuorlData::rectLoads>>("RECT LOADS"),
    MakeModule<RecordModule<&QuorlData::circLoads>>("CIRC LOADS"),
    MakeModule<RecordModule<&QuorlData::polyLoads>>("POLY LOADS"),
};

void AddOnce(std::vector<std::string>& names, std::string_view name) {
    if (std::find(names.begin(), names.end(), name) == names.end()) {
        names.emplace_back(name);
    }
}

bool Begins(std::string_view line, std::string_view word) {
    return line.starts_with(word) && line.substr(word.size()).starts_with(',');
}

/// Whether a line can't be a record.
bool IsMark(std::string_view line) {
    return Begins(line, kBegin) || Begins(line, kEnd) || line == kEndOfFile;
}

bool EndsModule(std::string_view line, std::string_view name) {
    return Begins(line, kEnd) && line.substr(kEnd.size() + 1) == name;
}

/// Whether no number of a sorted list stands twice, and whether they lie so close together that a
/// model can hold them: it keeps them in ranges, of which a few records may not have many.
bool AreNumbers(const std::vector<int>& refs) {
    constexpr int kRangeBits = 14;
    constexpr std::size_t kFreeRanges = 1024;
    constexpr std::size_t kRecordsPerRange = 16;
    std::size_t ranges = 0;
    for (std::size_t i = 0; i < refs.size(); ++i) {
        if (i > 0 && refs[i] == refs[i - 1]) {
            return false;
        }
        ranges += i == 0 || refs[i] >> kRangeBits != refs[i - 1] >> kRangeBits ? 1U : 0U;
    }
    return ranges <= kFreeRanges + refs.size() / kRecordsPerRange;
}

/// Reads the modules of one file.
class ModuleReader {
public:
    ModuleReader(FileIO::CDataFile& file, QuorlData& data, QuorlData::ReadReport& report)
        : m_file(file), m_data(data), m_report(report) {}

    void Run() {
        bool more = m_file.NextLine(m_line);
        while (more && m_line != kEndOfFile) {
            more = Begins(m_line, kBegin) ? ReadModule() : m_file.NextLine(m_line);
        }
        if (!more) {
            AddOnce(m_report.errors, kEndOfFile);
        }
        for (std::size_t i = 0; i < kModules.size(); ++i) {
            if (!m_seen[i]) {
                AddOnce(m_report.warnings, kModules[i].name);
            }
        }
    }

private:
    /// Reads the module that the current line begins, and goes to the line after it; false at the
    /// end of the file.
    bool ReadModule() {
        const std::string heading(m_line.substr(kBegin.size() + 1));
        const std::string name = heading.substr(0, heading.find(','));
        QuorlFields fields(heading);
        fields.Text();
        const int version = fields.Number();
        const int count = fields.Count();
        const auto found = std::find_if(kModules.begin(), kModules.end(),
                                        [&name](const Module& m) { return m.name == name; });
        if (found == kModules.end()) {
            AddOnce(m_report.warnings, name);
            return m_file.NextLine(m_line);
        }
        bool& seen = m_seen[static_cast<std::size_t>(found - kModules.begin())];
        const bool isFirst = !seen;
        seen = true;
        bool more = m_file.NextLine(m_line);
        if (version > kVersion) {
            AddOnce(m_report.warnings, name);
        }
        const bool isNewer = version > kVersion;
        const bool isGood = isFirst && fields.Good() &&
                            (isNewer || (fields.AtEnd() && found->isCount(count))) &&
                            ReadRecords(*found, count, isNewer, more);
        if (!isGood) {
            found->clear(m_data);
            AddOnce(m_report.errors, name);
            return more;
        }
        return m_file.NextLine(m_line);
    }

    /// Whether the lines are so many good records and the end of the module, where the current line
    /// is then; `more` is false when the file ended before.
    bool ReadRecords(const Module& module, int count, bool isNewer, bool& more) {
        for (int left = count; left > 0; --left) {
            if (!more || IsMark(m_line)) {
                return false;
            }
            QuorlFields fields(m_line);
            if (!module.read(fields, m_data, isNewer) || !(fields.AtEnd() || isNewer)) {
                return false;
            }
            more = m_file.NextLine(m_line);
        }
        return more && EndsModule(m_line, module.name) && AreNumbers(module.refs(m_data));
    }

    FileIO::CDataFile& m_file;
    QuorlData& m_data;
    QuorlData::ReadReport& m_report;
    std::string_view m_line;
    std::array<bool, kModules.size()> m_seen{};
};

}  // namespace

bool QuorlData::WriteData(FileIO::CDataFile& file, std::string& failed) const {
    QuorlText text;
    for (const Module& module : kModules) {
        text.Clear();
        text.Word(kBegin);
        text.Word(module.name);
        text.Int(kVersion);
        text.Int(module.count(*this));
        text.EndLine();
        module.write(*this, text);
        text.Word(kEnd);
        text.Word(module.name);
        text.EndLine();
        failed = module.name;
        if (!text.Good() || !file.Write(text.Lines())) {
            return false;
        }
    }
    if (!file.Write(std::string(kEndOfFile) + '\n') || !file.Close()) {
        return false;
    }
    failed.clear();
    return true;
}

bool QuorlData::ReadData(FileIO::CDataFile& file, ReadReport& report) {
    for (const Module& module : kModules) {
        module.clear(*this);
    }
    ModuleReader(file, *this, report).Run();
    FindDanglingReferences(report);
    return report.errors.empty();
}

void QuorlData::FindDanglingReferences(ReadReport& report) const {
    const auto check = [&report](std::string_view module, const std::vector<int>& refs, int ref) {
        if (ref != 0 && !std::binary_search(refs.begin(), refs.end(), ref)) {
            AddOnce(report.warnings, module);
        }
    };
    const std::vector<int> curves = RecordModule<&QuorlData::soilCurves>::Refs(*this);
    for (const GeoSoilProfile& profile : soilProfiles) {
        for (const GeoSoilLayer& layer : profile.layers) {
            check("SOIL PROFILES", curves, layer.curve);
        }
    }
    const std::vector<int> profiles = RecordModule<&QuorlData::soilProfiles>::Refs(*this);
    for (const GeoSoilZone& zone : soilZones) {
        check("SOIL ZONES", profiles, zone.profile);
    }
    const std::vector<int> pileCurves = RecordModule<&QuorlData::pileSoilCurves>::Refs(*this);
    for (const GeoPileSoilInteraction& property : pileSoilProperties) {
        check("PILE SOIL PROPERTIES", pileCurves, property.baseCurve);
        check("PILE SOIL PROPERTIES", pileCurves, property.shaftCurve);
    }
}

}  // namespace Tevra

#pragma once

#include <ctime>
#include <string>
#include <string_view>
#include <vector>

#include "platform/quorl/DataFile.h"
#include "platform/quorl/GeoRecords.h"
#include "platform/quorl/Version.h"

namespace Tevra {

/// What stands at the head of a data file of the program family.
struct TevraHeader {
    std::wstring program;  ///< that the data are for
    Util::CVersion version;
    std::wstring writtenBy;
    std::wstring jobTitle;
    std::wstring jobNumber;
    std::wstring initials;
    std::tm date{};  ///< local
};

/// Method of the settlement analysis.
enum class QuorlMethod : int { Mindlin = 0, Boussinesq = 1 };

/// General settings of the pile-settlement program.
struct QuorlSettings {
    QuorlMethod method = QuorlMethod::Mindlin;
    bool legacyMindlin = false;
    bool modifyAboveLoads = false;
    bool calculateHorizontal = false;
    bool correction2009 = false;
    bool hostRaftData = false;
    bool includeCentres = false;
    bool dampVerticalInHorizontal = false;
    bool dampVerticalInVertical = false;
    bool dampHorizontalInVertical = false;
    bool dampHorizontalInHorizontal = false;
    double rigidLevel = 0.0;  ///< of the rigid boundary, m
    double maxERatio = 0.0;   ///< of Young's moduli of neighbouring layers
    double poissonRatio = 0.0;
    int stiffnessOption = 0;
};

/// The data of the pile-settlement program, and its file: a header, then modules of records, each
/// between a line that begins it with its name, version and number of records and one that ends it.
/// docs/quorl.md has the layout.
class QuorlData {
public:
    QuorlSettings settings;
    bool hasSettings = true;  ///< false when a file that was read has none
    std::vector<GeoSoilProfile> soilProfiles;
    std::vector<GeoSoilZone> soilZones;
    std::vector<GeoCurve> soilCurves;
    std::vector<GeoPileSoilInteraction> pileSoilProperties;
    std::vector<GeoSymmetricCurve> pileSoilCurves;
    std::vector<GeoRectLoad> rectLoads;
    std::vector<GeoCircLoad> circLoads;
    std::vector<GeoPolyLoad> polyLoads;

    bool HasLoads() const { return !rectLoads.empty() || !circLoads.empty() || !polyLoads.empty(); }

    /// Writes the header; false when the file does not take it.
    static bool WriteTevraHeader(FileIO::CDataFile& file, const TevraHeader& header);
    /// Reads the header up to its end; false when it is none, or none of this program.
    static bool ReadTevraHeader(FileIO::CDataFile& file, TevraHeader& header);

    /// Writes all modules. False when one can't be written, whose name is then in `failed`: the
    /// file took no more, or a number is not finite.
    bool WriteData(FileIO::CDataFile& file, std::string& failed) const;

    /// Names of modules, each once, in the order in which they were found wrong.
    struct ReadReport {
        /// Modules that are damaged, and are left out: a count, field, number or end that is wrong,
        /// a reference number used twice. "END FILE" when the file ends before its end.
        std::vector<std::string> errors;
        /// Modules that are missing, unknown or of a later version, or that refer to records that
        /// do not exist.
        std::vector<std::string> warnings;
    };

    /// Reads the modules after the header, in any order, on to the end of the file. False when
    /// there were errors; what was read without is there all the same.
    bool ReadData(FileIO::CDataFile& file, ReadReport& report);

private:
    friend struct SettingsModule;
    void FindDanglingReferences(ReadReport& report) const;

    std::vector<int> m_settingsRead;  ///< places of the settings in the file's order, as they came
};

}  // namespace Tevra

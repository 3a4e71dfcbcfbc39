#pragma once

#include <string>

#include "platform/quorl/QuorlData.h"

namespace Tevra {

class CVynData;
class Logger;

/// Exchanges the soil data and raft settings of a model with the pile-settlement program, through
/// that program's data file.
///
///     CQuorlFile file(model, &logger, L"raft.qdf", 1, 1, false);
///     const bool written = file.DoExport();
///
/// Progress goes to the logger, files that can't be used and damaged modules to message boxes.
class CQuorlFile {
public:
    /// `logger` may be null. `caseNumber` is the analysis case whose loads on the soil are
    /// exported, `numRaftCases` the number of raft analysis cases of the model, `boussinesq` the
    /// method of analysis (Mindlin's unless true).
    CQuorlFile(CVynData& model, Logger* logger, std::wstring path, int caseNumber, int numRaftCases,
               bool boussinesq);

    /// Writes the file.
    bool DoExport();

    /// Replaces the model's soil data by those of the file; the rectangular loads only if the user
    /// says so. On failure after the file was opened the model has no soil data any more.
    bool DoImport();

    /// Fills `data` with the general settings, the soil records and the loads of the case.
    void VYN2QuorlData(QuorlData& data) const;

    /// Copies the soil records, the rectangular loads of all cases, and the raft settings.
    static void VynData2Quorl(const CVynData& model, QuorlData& data);

    /// Whether the model holds any soil record.
    bool QuorlDataExist() const;

    /// Removes all soil records of the model.
    void RemoveAllData();

private:
    void Log(const std::wstring& text) const;
    bool Write() const;
    TevraHeader Header() const;
    bool Read();
    bool ReadModules(FileIO::CDataFile& file);
    void WarnOfLaterVersion(const Util::CVersion& version) const;

    CVynData& m_model;
    Logger* m_logger;
    std::wstring m_path;
    int m_case;
    int m_numRaftCases;
    bool m_boussinesq;
};

}  // namespace Tevra

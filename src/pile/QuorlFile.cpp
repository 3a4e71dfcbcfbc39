#include "pile/QuorlFile.h"

#include <utility>

#include "model/VynData.h"
#include "platform/text/Utf8.h"
#include "platform/ui/HostServices.h"
#include "platform/ui/Logger.h"

namespace Tevra {

namespace {

constexpr int kLevel = 1;
constexpr int kFlag = 1;

Util::CVersion VersionOf(const CProgTitles& titles) {
    Util::CVersion version;
    version.Parse(Text::ToUtf8(titles.ProgramVersion()));
    return version;
}

void AppendModules(std::wstring& message, const wchar_t* heading,
                   const std::vector<std::string>& modules) {
    if (modules.empty()) {
        return;
    }
    message += heading;
    for (const std::string& module : modules) {
        message += Text::FromUtf8(module) + L'\n';
    }
}

}  // namespace

CQuorlFile::CQuorlFile(CVynData& model, Logger* logger, std::wstring path, int caseNumber,
                       int numRaftCases, bool boussinesq)
    : m_model(model),
      m_logger(logger),
      m_path(std::move(path)),
      m_case(caseNumber),
      m_numRaftCases(numRaftCases),
      m_boussinesq(boussinesq) {}

void CQuorlFile::Log(const std::wstring& text) const {
    if (m_logger != nullptr) {
        m_logger->Log(text, kLevel, kFlag);
    }
}

bool CQuorlFile::DoExport() {
    Log(L"Start exporting Quorl file");
    const bool written = Write();
    if (written && m_numRaftCases > 1) {
        Log(L"There are " + std::to_wstring(m_numRaftCases) +
            L" Fendra analysis cases in this model,\n the Soil Load data in the exported Quorl "
            L"file\n are corresponding to Analysis Case " +
            std::to_wstring(m_case) + L".");
    }
    Log(written ? L"Finish exporting Quorl file" : L"Exporting Quorl file failed");
    return written;
}

bool CQuorlFile::Write() const {
    QuorlData data;
    VYN2QuorlData(data);
    FileIO::CDataFile file;
    if (!file.OpenWrite(m_path)) {
        Host().ShowMessage(L"Cannot open file");
        return false;
    }
    std::string failed = "Tevra Header";
    if (QuorlData::WriteTevraHeader(file, Header()) && data.WriteData(file, failed)) {
        return true;
    }
    Host().ShowMessage(L"Error writing data - " + Text::FromUtf8(failed));
    return false;
}

TevraHeader CQuorlFile::Header() const {
    const CTitles& titles = m_model.Title();
    return {.program = L"Quorl",
            .version = VersionOf(m_model.ProgTitle()),
            .writtenBy = m_model.ProgTitle().ProgramName(),
            .jobTitle = titles.JobTitle(),
            .jobNumber = titles.JobNumber(),
            .initials = titles.Initials(),
            .date = Host().LocalTime()};
}

bool CQuorlFile::DoImport() {
    Log(L"Start importing Quorl file");
    const bool read = Read();
    Log(read ? L"Finish importing Quorl file" : L"Importing Quorl file failed or abandoned");
    return read;
}

bool CQuorlFile::Read() {
    FileIO::CDataFile file;
    if (!file.OpenRead(m_path)) {
        Log(L"Fail to open the Quorl file");
        return false;
    }
    if (ReadModules(file)) {
        return true;
    }
    file.Close();
    RemoveAllData();
    return false;
}

bool CQuorlFile::ReadModules(FileIO::CDataFile& file) {
    TevraHeader header;
    if (!QuorlData::ReadTevraHeader(file, header)) {
        Host().ShowMessage(L"Not an Tevra File");
        return false;
    }
    WarnOfLaterVersion(header.version);
    QuorlData data;
    QuorlData::ReadReport report;
    const bool read = data.ReadData(file, report);
    std::wstring message;
    AppendModules(message, L"Errors reading data file modules:\n\n", report.errors);
    AppendModules(message, L"Warnings readiing data file modules:\n\n", report.warnings);
    if (!message.empty()) {
        Host().ShowMessage(message);
    }
    if (!read) {
        return false;
    }
    file.Close();
    m_model.ProcessQuorlData(data);
    if (data.HasLoads() &&
        Host().AskYesNo(L"There are soil load data in the Quorl file, circular and poly loads will "
                        L"not be imported into VYN, rectangular loads can be imported, ")) {
        m_model.ReplaceSoilRectLoads(data);
    }
    return true;
}

void CQuorlFile::WarnOfLaterVersion(const Util::CVersion& version) const {
    if (version > VersionOf(m_model.ProgTitle())) {
        Host().ShowMessage(L"This Quorl file was written by a later version of Quorl - Quorl " +
                           Text::FromUtf8(version.Version()) +
                           L"'\nSome modules may not be readable in this version of Quorl. ");
    }
}

bool CQuorlFile::QuorlDataExist() const {
    return m_model.HasSoilData();
}

void CQuorlFile::RemoveAllData() {
    m_model.DeleteSoilData();
}

}  // namespace Tevra

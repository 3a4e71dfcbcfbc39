#include "io/StreamFile.h"

#include <fstream>
#include <memory>
#include <optional>
#include <utility>

#include "io/ScopedCLocale.h"
#include "io/ScopedPointer.h"
#include "model/VynData.h"
#include "platform/text/HostPath.h"
#include "platform/ui/HostServices.h"
#include "platform/ui/StringTable.h"
#include "platform/ui/Sync.h"

namespace Tevra {
namespace {

constexpr int kBusyTimeOut = 200;  // ms
constexpr int kCLocaleMode = 1;
constexpr std::size_t kStreamBuffer = std::size_t{256} * 1024;

}  // namespace

void CStreamFile::SetLocaleMode(int mode) {
    m_localeMode = mode;
}

void CStreamFile::Step() {
    if (!m_countingOn) {
        return;
    }
    // Kept: the amount counted is only asked to be other than zero; locking alone makes it so.
    long long amount = m_lockModel ? 242 : 0;
    if (m_countResults && m_model != nullptr) {
        amount += m_model->NumEnt(SelType::Case, false);
        amount += m_model->NumResult();
    }
    if (amount != 0) {
        ++m_stepCount;
    }
}

bool CStreamFile::WriteChecked() {
    if (Write()) {
        return true;
    }
    Host().ShowMessage(L"Errors writing file");
    return false;
}

bool CStreamFile::OpenWrite(std::wstring fileName, std::wstring secondName) {
    if (m_model != nullptr && m_lockModel && !ProbeLock(m_model->ShareModelBusy(), kBusyTimeOut)) {
        return false;
    }
    std::optional<ScopedCLocale> locale;
    if (m_localeMode == kCLocaleMode) {
        locale.emplace();
    }
    m_fileName = std::move(fileName);
    m_secondName = std::move(secondName);
    m_notes.Clear();
    const bool written = WriteToFile();
    AddGroupedNotes();
    if (!written) {
        AddError(FileMessage(kCannotOpenForWriting, m_fileName));
    }
    return written;
}

bool CStreamFile::WriteToFile() {
    const auto buffer = std::make_unique_for_overwrite<char[]>(kStreamBuffer);
    std::ofstream stream;
    stream.rdbuf()->pubsetbuf(buffer.get(), static_cast<std::streamsize>(kStreamBuffer));
    stream.open(Text::ToPath(m_fileName), std::ios::out | std::ios::trunc | std::ios::binary);
    std::ostream& asStream = stream;
    const ScopedPointer valid(m_stream, asStream);
    const bool written = WriteChecked();
    stream.close();
    return written;
}

void CStreamFile::AddError(const std::wstring& text) {
    AddLogLine(L"<red>Error:          </red>", text);
}

void CStreamFile::AddNote(const std::wstring& text) {
    AddLogLine(L"Note:           ", text);
}

void CStreamFile::AddNote(const wchar_t* kind, int number, const std::wstring& what) {
    m_notes.Add(kind, number, what);
}

void CStreamFile::AddGroupedNotes() {
    for (const std::wstring& sentence : m_notes.Sentences()) {
        AddNote(sentence);
    }
    m_notes.Clear();
}

void CStreamFile::AddLogLine(const wchar_t* mark, const std::wstring& text) {
    if (!m_errorLog.empty()) {
        m_errorLog += L'\n';
    }
    m_errorLog += mark;
    m_errorLog += text;
}

}  // namespace Tevra

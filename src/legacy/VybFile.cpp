#include "legacy/VybFile.h"

#include <new>

#include "legacy/VybConverter.h"
#include "legacy/VybDirectory.h"
#include "model/VynData.h"
#include "platform/text/Utf8.h"
#include "platform/ui/HostServices.h"
#include "platform/ui/Sync.h"

namespace Tevra {

namespace {

constexpr int kBusyTimeOut = 200;  // ms

bool Refuse(const wchar_t* reason) {
    Host().ShowMessage(reason);
    return false;
}

void AddOpenError(std::wstring& messages, const std::string& reason) {
    if (!messages.empty()) {
        messages += L'\n';
    }
    messages += L"<red>Error:          </red>Error\n\n" + Text::FromUtf8(reason);
}

/// Type of structure of the host for a legacy one.
int StructType(int legacy) {
    switch (legacy) {
        case 1:
            return 3;
        case 2:
            return 5;
        case 3:
            return 4;
        default:
            return 0;
    }
}

/// The host's way of getting mass for a legacy one; `now` when it has none.
int MassOption(int legacy, int now) {
    switch (legacy) {
        case 1:
            return 0;
        case 2:
            return 2;
        case 3:
            return 1;
        default:
            return now;
    }
}

}  // namespace

bool CVybFile::OpenRead(const std::wstring& path, std::wstring& messages) {
    m_path = path;
    std::string reason;
    if (!m_stream.Open(m_path, reason)) {
        AddOpenError(messages, reason);
        return false;
    }
    const bool read = ReadLocked();
    m_stream.Close();
    return read;
}

bool CVybFile::ReadLocked() {
    CSingleLock modelLock(m_model.ShareModelBusy());
    CSingleLock resultsLock(m_model.ShareResultsBusy());
    if (!modelLock.Lock(kBusyTimeOut) || !resultsLock.Lock(kBusyTimeOut)) {
        return false;
    }
    const bool read = Read();
    if (!read) {
        m_model = CVynData();
    }
    return read;
}

bool CVybFile::Read() {
    m_header = VybHeader();
    m_stream.SetSwap(m_swop);
    if (!ReadHeader()) {
        return false;
    }
    bool read = false;
    try {
        read = ReadRecords();
    } catch (const std::bad_alloc&) {
        read = false;  // as any other file that can't be read
    }
    return read || Refuse(L"Errors encountered while reading file");
}

bool CVybFile::ReadHeader() {
    if (!m_header.ReadTexts(m_stream)) {
        return false;
    }
    if (!VybHeader::SkipFirstBlock(m_stream) || !m_header.ReadSecondBlock(m_stream)) {
        return Refuse(L"Not a VYN file");
    }
    return m_header.IsVersion6() || Refuse(L"This is not a VYN 6 file");
}

bool CVybFile::ReadRecords() {
    CVybDirectory directory;
    if (m_header.numLoadCase < 0 || !directory.Read(m_stream, m_header.numDirectory)) {
        return false;
    }
    m_units = m_header.Units();
    if (!ReadSettings()) {
        return false;
    }
    CVybConverter converter(m_stream, m_header, directory, m_model);
    if (!converter.Records(m_units) || !converter.LoadCaseTitles() || !converter.Combinations()) {
        return false;
    }
    if (m_header.HasResults()) {
        if (!converter.Results(m_units)) {
            return false;
        }
        m_model.DataLock().LockByResults();
    }
    return true;
}

/// The settings of the model as a whole; false when the additional mass makes no sense.
bool CVybFile::ReadSettings() {
    m_model.SetStructType(StructType(m_header.structType));
    m_model.SetGlobalRestraint(m_header.restraint);
    m_model.SetMassOption(MassOption(m_header.massOption, m_model.MassOption()));
    if (m_header.massCase == 0) {
        return true;
    }
    CCaseDesc massCase;
    massCase.SetDescription(L"L" + std::to_wstring(m_header.massCase));
    m_model.SetMassCase(std::move(massCase));
    m_model.SetAdditionalMass(true);
    m_model.SetMassDirection(m_header.massDirection);
    m_model.SetMassScale(static_cast<double>(m_header.massScale));
    return m_header.HasGoodMass();
}

}  // namespace Tevra

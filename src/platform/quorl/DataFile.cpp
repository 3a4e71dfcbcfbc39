#include "platform/quorl/DataFile.h"

#include <filesystem>

#include "platform/text/HostPath.h"

namespace Tevra::FileIO {

bool CDataFile::OpenRead(const std::wstring& path) {
    Close();
    const std::filesystem::path file = Text::ToPath(path);
    std::error_code error;
    if (std::filesystem::is_directory(file, error)) {
        return false;
    }
    m_file.open(file, std::ios::in | std::ios::binary);
    if (!m_file.is_open()) {
        return false;
    }
    m_lines = std::make_unique<CLineReader>(m_file);
    return true;
}

bool CDataFile::OpenWrite(const std::wstring& path) {
    Close();
    m_file.open(Text::ToPath(path), std::ios::out | std::ios::trunc | std::ios::binary);
    return m_file.is_open();
}

bool CDataFile::Write(std::string_view text) {
    m_file.write(text.data(), static_cast<std::streamsize>(text.size()));
    return m_file.good();
}

bool CDataFile::NextLine(std::string_view& line) {
    line = {};
    return m_lines != nullptr && m_lines->Next(line);
}

bool CDataFile::Close() {
    bool good = true;
    if (m_file.is_open()) {
        good = m_lines != nullptr || m_file.flush().good();
        m_file.close();
        good = good && (m_lines != nullptr || !m_file.fail());
    }
    m_lines.reset();
    m_file.clear();
    return good;
}

}  // namespace Tevra::FileIO

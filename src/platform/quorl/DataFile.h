#pragma once

#include <fstream>
#include <memory>
#include <string>
#include <string_view>

#include "platform/text/LineReader.h"

namespace Tevra::FileIO {

/// A text data file of the program family, open for reading or for writing: UTF-8, lines that end
/// with LF.
class CDataFile {
public:
    CDataFile() = default;
    CDataFile(const CDataFile&) = delete;
    CDataFile& operator=(const CDataFile&) = delete;

    /// Opens a file that exists; what was open before is closed.
    bool OpenRead(const std::wstring& path);
    /// Makes the file, or empties it.
    bool OpenWrite(const std::wstring& path);

    /// Adds text as it is; whether the file has taken everything so far.
    bool Write(std::string_view text);
    /// The next line; see CLineReader::Next.
    bool NextLine(std::string_view& line);

    /// Hands what was written to the system and closes the file; false when something could not be
    /// written.
    bool Close();

private:
    std::fstream m_file;
    std::unique_ptr<CLineReader> m_lines;
};

}  // namespace Tevra::FileIO

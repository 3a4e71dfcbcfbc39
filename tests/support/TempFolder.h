#pragma once

#include <filesystem>
#include <string>

namespace Tevra::TestSupport {

/// A new, empty folder that is removed with all it holds at the end of its scope.
class TempFolder {
public:
    TempFolder();
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;
    ~TempFolder();

    const std::filesystem::path& Path() const { return m_path; }

private:
    std::filesystem::path m_path;
};

/// All bytes of a file; empty when it cannot be read.
std::string ReadFile(const std::filesystem::path& path);

}  // namespace Tevra::TestSupport

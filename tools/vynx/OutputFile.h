#pragma once

#include <filesystem>
#include <string>

#include "vynx/Interrupt.h"

namespace Vynx {

/// A file that appears whole or not at all: it is written under its own name in a temporary folder
/// beside the target and moved there when it is complete. Targets that are no regular files (a
/// device, a pipe) are written directly, "-" is copied to standard output at the end.
class OutputFile {
public:
    /// `suggestedName` is the name of the file behind "-". Fails with `kFailed` where nothing can
    /// be written.
    OutputFile(const std::string& target, const std::string& suggestedName);
    OutputFile(const OutputFile&) = delete;
    OutputFile& operator=(const OutputFile&) = delete;
    ~OutputFile();

    /// Where to write.
    const std::filesystem::path& WorkPath() const { return m_work; }
    /// What the user called it.
    const std::string& Target() const { return m_target; }
    /// A text of a writer with the user's name of the file in it.
    std::wstring WithTarget(std::wstring text) const;
    /// Moves the complete file to its place; fails with `kFailed` when it can't.
    void Commit();

private:
    void MakeFolder(const std::filesystem::path& parent);
    void CopyToStandardOutput() const;

    std::string m_target;
    std::filesystem::path m_final;   ///< empty for standard output
    std::filesystem::path m_folder;  ///< temporary folder, empty when written directly
    std::filesystem::path m_work;
    RemovedOnSignal m_onSignal;
};

}  // namespace Vynx

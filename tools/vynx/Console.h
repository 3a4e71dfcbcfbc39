#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/ui/ConsoleHost.h"

namespace Vynx {

class OutputFile;

/// One line on standard error.
void Say(std::string_view line);

/// The log of a writer (errors and notes in the host's mark-up), line by line on standard error.
void SayLog(const std::wstring& log);

/// A line that stands on a terminal while something takes long, and is wiped afterwards. Nothing
/// elsewhere.
class Progress {
public:
    explicit Progress(const std::string& what);
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;
    ~Progress();

private:
    bool m_shown;
};

/// Message boxes and logs of the library on standard error, with the user's names of files.
class ToolHost : public Tevra::ConsoleHost {
public:
    void ShowMessage(const std::wstring& text) override;
    void Log(const std::wstring& text, int level, int flag) override;
    /// Shows the question, and reads the answer where standard input is a terminal; elsewhere it
    /// is the one that was set, or no.
    bool AskYesNo(const std::wstring& text) override;
    /// Answers all questions of all hosts of this program.
    static void SetAnswer(std::optional<bool> answer) { s_answer = answer; }
    /// The file that is being written, null for none.
    void SetOutput(const OutputFile* output) { m_output = output; }

private:
    const OutputFile* m_output = nullptr;
    inline static std::optional<bool> s_answer;
};

}  // namespace Vynx

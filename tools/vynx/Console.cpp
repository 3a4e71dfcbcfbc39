#include "vynx/Console.h"

#include <iostream>
#include <unistd.h>

#include "platform/text/Utf8.h"
#include "vynx/OutputFile.h"

namespace Vynx {

namespace {

constexpr std::string_view kWipe = "\r\x1b[K";

/// Takes the host's tags ("<red>", "</red>") out of a line of the log.
std::string WithoutTags(std::string line) {
    for (const std::string_view tag : {"<red>", "</red>"}) {
        for (std::size_t at = line.find(tag); at != std::string::npos; at = line.find(tag)) {
            line.erase(at, tag.size());
        }
    }
    return line;
}

}  // namespace

void Say(std::string_view line) {
    std::cerr << line << '\n';
}

void SayLog(const std::wstring& log) {
    if (!log.empty()) {
        Say(WithoutTags(Tevra::Text::ToUtf8(log)));
    }
}

Progress::Progress(const std::string& what) : m_shown(isatty(STDERR_FILENO) != 0) {
    if (m_shown) {
        std::cerr << what << " ..." << std::flush;
    }
}

Progress::~Progress() {
    if (m_shown) {
        std::cerr << kWipe << std::flush;
    }
}

void ToolHost::ShowMessage(const std::wstring& text) {
    ConsoleHost::ShowMessage(m_output != nullptr ? m_output->WithTarget(text) : text);
}

void ToolHost::Log(const std::wstring& text, int level, int flag) {
    ConsoleHost::Log(m_output != nullptr ? m_output->WithTarget(text) : text, level, flag);
}

bool ToolHost::AskYesNo(const std::wstring& text) {
    const std::string question = Tevra::Text::ToUtf8(text);
    if (s_answer) {
        Say(question + (*s_answer ? " [yes]" : " [no]"));
        return *s_answer;
    }
    if (isatty(STDIN_FILENO) == 0) {
        return ConsoleHost::AskYesNo(text);
    }
    std::string line;
    std::cerr << question << " [y/N] " << std::flush;
    std::getline(std::cin, line);
    return line.starts_with('y') || line.starts_with('Y');
}

}  // namespace Vynx

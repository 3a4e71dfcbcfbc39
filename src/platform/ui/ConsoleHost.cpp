#include "platform/ui/ConsoleHost.h"

#include "platform/text/Utf8.h"

namespace Tevra {
namespace {

void WriteLine(std::ostream& out, const std::wstring& text) {
    std::string line = Text::ToUtf8(text);
    if (line.empty() || line.back() != '\n') {
        line += '\n';
    }
    out << line << std::flush;
}

}  // namespace

void ConsoleHost::ShowMessage(const std::wstring& text) {
    WriteLine(m_out, text);
}

bool ConsoleHost::AskYesNo(const std::wstring& text) {
    WriteLine(m_out, text + L" [no]");
    return false;
}

void ConsoleHost::Log(const std::wstring& text, int /*level*/, int /*flag*/) {
    WriteLine(m_out, text);
}

std::wstring ConsoleHost::ListSeparator() const {
    return m_listSeparator ? *m_listSeparator : HostServices::ListSeparator();
}

}  // namespace Tevra

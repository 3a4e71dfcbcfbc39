#pragma once

#include <iostream>
#include <optional>
#include <string>
#include <utility>

#include "platform/ui/HostServices.h"

namespace Tevra {

/// The services of a program without windows: boxes and log lines go to a stream, each text on
/// lines of its own in UTF-8; questions are answered with no, so that nothing is overwritten
/// unasked.
class ConsoleHost : public HostServices {
public:
    /// `out` (standard error by default) must outlive the object.
    explicit ConsoleHost(std::ostream& out = std::cerr) : m_out(out) {}

    void ShowMessage(const std::wstring& text) override;
    bool AskYesNo(const std::wstring& text) override;
    void Log(const std::wstring& text, int level, int flag) override;
    std::wstring ListSeparator() const override;

    /// Sets the list separator in place of the locale's.
    void SetListSeparator(std::wstring separator) { m_listSeparator = std::move(separator); }

private:
    std::ostream& m_out;
    std::optional<std::wstring> m_listSeparator;
};

}  // namespace Tevra

#pragma once

#include <ctime>
#include <string>

namespace Tevra {

/// What the host program offers to the library: message boxes, the string table, the log and a few
/// settings. A program that embeds the library derives from this and puts its object in place with
/// ScopedHost; until then the services are those of a ConsoleHost.
///
///     class QuietHost : public HostServices {
///         void ShowMessage(const std::wstring& text) override { m_messages.push_back(text); }
///         bool AskYesNo(const std::wstring&) override { return true; }
///         void Log(const std::wstring&, int, int) override {}
///         std::vector<std::wstring> m_messages;
///     };
///     QuietHost host;
///     const ScopedHost inForce(host);  // until the end of this block
class HostServices {
public:
    HostServices() = default;
    HostServices(const HostServices&) = delete;
    HostServices& operator=(const HostServices&) = delete;
    virtual ~HostServices() = default;

    /// Shows a modal message box without caption, with the default buttons.
    virtual void ShowMessage(const std::wstring& text) = 0;

    /// Asks a question in a modal box; true for yes.
    virtual bool AskYesNo(const std::wstring& text) = 0;

    /// Adds a line to the host's log.
    virtual void Log(const std::wstring& text, int level, int flag) = 0;

    /// Text of the string table; empty for a number that it does not have. The table of the library
    /// unless the host has its own (a translated one, say).
    virtual std::wstring StringResource(int number) const;

    /// The separator of lists in delimited text files, a regional setting of the host. By default
    /// ";" when the decimal point of the process's locale is a comma, else ",".
    virtual std::wstring ListSeparator() const;

    /// The local date and time of now.
    virtual std::tm LocalTime() const;

    /// Name of the user of the session, as the model's history records it. Empty by default.
    virtual std::wstring UserName() const;
};

/// The services in force in this process.
HostServices& Host();

/// Puts other services in force for its lifetime; the former ones come back at its end. Scopes
/// nest, and are entered and left while no other thread calls the library.
class ScopedHost {
public:
    explicit ScopedHost(HostServices& services);
    ScopedHost(const ScopedHost&) = delete;
    ScopedHost& operator=(const ScopedHost&) = delete;
    ~ScopedHost();

private:
    HostServices* m_former;
};

}  // namespace Tevra

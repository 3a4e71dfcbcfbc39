#include "platform/ui/HostServices.h"

#include <atomic>
#include <clocale>
#include <locale>
#include <string_view>

#include "platform/ui/ConsoleHost.h"
#include "platform/ui/StringTable.h"

namespace Tevra {
namespace {

/// The services put in force by the innermost ScopedHost; null when there is none.
std::atomic<HostServices*> currentHost{nullptr};

/// Either of the two locales of the process, the C library's or that of C++, may hold the user's
/// regional setting.
bool DecimalPointIsComma() {
    const std::lconv* conventions = std::localeconv();
    return std::string_view(conventions->decimal_point) == "," ||
           std::use_facet<std::numpunct<wchar_t>>(std::locale()).decimal_point() == L',';
}

}  // namespace

std::wstring HostServices::StringResource(int number) const {
    return std::wstring(StringTableText(number));
}

std::wstring HostServices::ListSeparator() const {
    return DecimalPointIsComma() ? L";" : L",";
}

std::tm HostServices::LocalTime() const {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
#ifdef _WIN32
    localtime_s(&local, &now);
#else
    localtime_r(&now, &local);
#endif
    return local;
}

std::wstring HostServices::UserName() const {
    return {};
}

HostServices& Host() {
    static ConsoleHost standAlone;
    HostServices* services = currentHost.load();
    return services != nullptr ? *services : standAlone;
}

ScopedHost::ScopedHost(HostServices& services) : m_former(currentHost.exchange(&services)) {}

ScopedHost::~ScopedHost() {
    currentHost.store(m_former);
}

}  // namespace Tevra

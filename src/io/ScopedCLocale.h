#pragma once

#include <locale>
#include <string>

namespace Tevra {

/// Puts the classic "C" locale in force for the process, for the C library and for C++, and puts
/// both former locales back at the end of its scope.
class ScopedCLocale {
public:
    ScopedCLocale();
    ScopedCLocale(const ScopedCLocale&) = delete;
    ScopedCLocale& operator=(const ScopedCLocale&) = delete;
    ~ScopedCLocale();

private:
    std::string m_formerC;
    std::locale m_formerCpp;
};

}  // namespace Tevra

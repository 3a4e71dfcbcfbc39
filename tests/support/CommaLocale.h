#pragma once

#include <locale>
#include <optional>
#include <string>

#include "support/TempFolder.h"

namespace Tevra::TestSupport {

/// Puts locales with a decimal comma in force, for C++ streams always and for the C library where
/// one can be had, and puts the former ones back at the end of its scope.
class ScopedCommaLocale {
public:
    ScopedCommaLocale();
    ScopedCommaLocale(const ScopedCommaLocale&) = delete;
    ScopedCommaLocale& operator=(const ScopedCommaLocale&) = delete;
    ~ScopedCommaLocale();

    /// Whether the C library writes a decimal comma now.
    bool InCLibrary() const { return m_inCLibrary; }

private:
    bool SetCLibrary();
    bool CompileLocale();

    std::string m_formerC;
    std::locale m_formerCpp;
    std::optional<std::string> m_formerSearchPath;
    TempFolder m_folder;
    bool m_inCLibrary = false;
};

}  // namespace Tevra::TestSupport

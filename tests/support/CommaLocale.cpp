#include "support/CommaLocale.h"

#include <clocale>
#include <cstdlib>
#include <fstream>

namespace Tevra::TestSupport {
namespace {

constexpr const char* kSearchPath = "LOCPATH";

constexpr const char* kDefinition = R"(LC_CTYPE
copy "POSIX"
END LC_CTYPE
LC_COLLATE
copy "POSIX"
END LC_COLLATE
LC_MONETARY
copy "POSIX"
END LC_MONETARY
LC_NUMERIC
decimal_point ","
thousands_sep "."
grouping 3
END LC_NUMERIC
LC_TIME
copy "POSIX"
END LC_TIME
LC_MESSAGES
copy "POSIX"
END LC_MESSAGES
)";

template <class Char>
struct CommaPoint : std::numpunct<Char> {
    Char do_decimal_point() const override { return Char(','); }
    Char do_thousands_sep() const override { return Char('.'); }
    std::string do_grouping() const override { return "\3"; }
};

std::locale CommaLocale() {
    return {std::locale(std::locale(), new CommaPoint<char>), new CommaPoint<wchar_t>};
}

void SetVariable(const char* name, const std::optional<std::string>& value) {
    if (value) {
        setenv(name, value->c_str(), 1);
    } else {
        unsetenv(name);
    }
}

}  // namespace

ScopedCommaLocale::ScopedCommaLocale()
    : m_formerC(std::setlocale(LC_ALL, nullptr)),
      m_formerCpp(std::locale::global(CommaLocale())),
      m_inCLibrary(SetCLibrary()) {}

ScopedCommaLocale::~ScopedCommaLocale() {
    SetVariable(kSearchPath, m_formerSearchPath);
    std::locale::global(m_formerCpp);
    static_cast<void>(std::setlocale(LC_ALL, m_formerC.c_str()));
}

bool ScopedCommaLocale::SetCLibrary() {
    if (const char* path = std::getenv(kSearchPath); path != nullptr) {
        m_formerSearchPath = path;
    }
    for (const char* name : {"de_DE.UTF-8", "fr_FR.UTF-8", "nl_NL.UTF-8"}) {
        if (std::setlocale(LC_ALL, name) != nullptr) {
            return true;
        }
    }
    return CompileLocale();
}

/// Compiles a locale that differs from "C" in its numbers alone, and takes it from its own folder.
bool ScopedCommaLocale::CompileLocale() {
    const std::string source = (m_folder.Path() / "source").string();
    std::ofstream(source) << kDefinition;
    const std::string command = "localedef -c -i '" + source + "' -f ANSI_X3.4-1968 '" +
                                (m_folder.Path() / "comma").string() + "' >/dev/null 2>&1";
    // It warns of what the definition leaves out; whether it worked shows in the locale it made.
    // NOLINTNEXTLINE(cert-env33-c): the command is made here, of nothing that comes from outside
    [[maybe_unused]] const int status = std::system(command.c_str());
    setenv(kSearchPath, m_folder.Path().c_str(), 1);
    return std::setlocale(LC_ALL, "comma") != nullptr;
}

}  // namespace Tevra::TestSupport

#include "io/ScopedCLocale.h"

#include <clocale>

namespace Tevra {
namespace {

std::string CurrentCLocale() {
    const char* name = std::setlocale(LC_ALL, nullptr);
    return name != nullptr ? name : "C";
}

}  // namespace

ScopedCLocale::ScopedCLocale()
    : m_formerC(CurrentCLocale()), m_formerCpp(std::locale::global(std::locale::classic())) {
    static_cast<void>(std::setlocale(LC_ALL, "C"));
}

ScopedCLocale::~ScopedCLocale() {
    // Setting the C++ locale may set that of the C library too, so that one comes last.
    std::locale::global(m_formerCpp);
    static_cast<void>(std::setlocale(LC_ALL, m_formerC.c_str()));
}

}  // namespace Tevra

#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <sstream>
#include <string>

#include "model/ProfileCatalogue.h"
#include "model/SecGeom.h"

using namespace Tevra;

// A catalogue file that is read whole gives profiles that can be asked for by name; one that is
// refused gives none, and says why.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::istringstream text(std::string(reinterpret_cast<const char*>(data), size));
    Data::CProfileCatalogue catalogue;
    std::wstring error;
    const bool read = catalogue.Load(text, error);
    if (read != error.empty() || (!read && !catalogue.Profiles().empty())) {
        std::abort();
    }
    for (const Data::Profile& profile : catalogue.Profiles()) {
        const Data::Profile* found = catalogue.Find(profile.group, profile.name);
        const Data::CSecGeom geometry(L"CAT%" + profile.group + L"%" + profile.name, catalogue);
        if (found != &profile || !std::isfinite(geometry.Properties().iyy)) {
            std::abort();
        }
    }
    return 0;
}

#pragma once

#include <cstdlib>

namespace FuzzSupport {

/// Ends the process, which is a finding, when something does not hold that must.
inline void Require(bool holds) {
    if (!holds) {
        std::abort();
    }
}

}  // namespace FuzzSupport

#pragma once

#include <map>
#include <vector>

#include "model/AssemblyCalc.h"

namespace Tevra::Export {

/// The cuts through assemblies at their positions, kept from case to case as long as they are not
/// too many.
struct AssemblyWork {
    static constexpr int kMostCutElements = 100'000;
    std::map<int, std::vector<Util::CAssemblyCalc>> cuts;  ///< by assembly
    int cutElements = 0;                                   ///< in all cuts
};

}  // namespace Tevra::Export

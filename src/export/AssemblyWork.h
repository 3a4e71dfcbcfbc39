#pragma once

#include <map>
#include <vector>

#include "model/AssemblyCalc.h"

namespace Tevra::Export {

/// The cuts through each assembly at its positions, found once for all cases.
struct AssemblyWork {
    std::map<int, std::vector<Util::CAssemblyCalc>> cuts;  ///< by assembly
};

}  // namespace Tevra::Export

#pragma once

#include <cstdint>
#include <map>

#include "model/BitSet.h"
#include "model/NumberedTable.h"

namespace Tevra {

class CVynData;

/// Nodes and elements of a selection.
struct ActiveSet {
    CBitSet nodes;
    CBitSet elements;
};

/// What a model has worked out from its records, valid for one revision of them.
struct DerivedData {
    std::uint64_t revision = 0;
    bool hasLoadCases = false;
    NumberedTable<bool> loadCases;    ///< those with a title or a load
    std::map<int, ActiveSet> active;  ///< by selection number
};

}  // namespace Tevra

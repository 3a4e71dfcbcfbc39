#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <utility>
#include <vector>

#include "model/BitSet.h"
#include "model/CombCaseDesc.h"
#include "model/NumberedTable.h"
#include "model/SpanLoadIndex.h"

namespace Tevra {

class CVynData;

/// Nodes and elements of a selection.
struct ActiveSet {
    CBitSet nodes;
    CBitSet elements;
};

/// The permutations of a combination multiplied out, one after the other.
struct CombinationSums {
    int count = 0;                    ///< of permutations, 0 for an invalid description
    bool kept = true;                 ///< false when the parts are too many to be kept
    std::vector<FactoredCase> parts;  ///< of all permutations
    std::vector<std::size_t> ends;    ///< of each permutation in `parts`
};

/// What a model has worked out from its records, valid for one revision of them.
struct DerivedData {
    std::uint64_t revision = 0;
    bool hasLoadCases = false;
    NumberedTable<bool> loadCases;        ///< those with a title or a load
    std::map<int, ActiveSet> active;      ///< by selection number
    std::map<int, CombinationSums> sums;  ///< by combination number
    std::size_t keptParts = 0;            ///< of all `sums`
    std::unique_ptr<const SpanLoadIndex> spanLoads;
    bool hasMemberElements = false;
    std::vector<std::pair<int, int>> memberElements;  ///< member and element, ascending
};

}  // namespace Tevra

#pragma once

#include <string>
#include <vector>

#include "model/VynData.h"

namespace Tevra::Util {

/// What `FindDanglingReferences` found: the first sentences, and how many there would be.
struct ReferenceReport {
    std::vector<std::wstring> findings;  ///< for example "element 12: node 99 does not exist"
    long total = 0;
};

/// Looks at every number in a model that refers to another record (nodes of elements, properties,
/// axes, materials, curves, cases, results) and reports those whose record does not exist, and
/// descriptions of combinations that can't be resolved. Keeps the first `most` findings.
ReferenceReport FindDanglingReferences(const CVynData& model, std::size_t most = 20);

}  // namespace Tevra::Util

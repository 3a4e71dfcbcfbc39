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

/// Which references are looked at: all, or all but those to properties, for models that come from a
/// source without them.
enum class ReferenceScope { All, NoProperties };

/// Looks at the numbers in a model that refer to another record (nodes of elements and members,
/// properties, axes, materials, curves, cases, stages, saved lists, results) and reports those
/// whose record does not exist, and lists, case descriptions and sections that can't be read or
/// resolved.
/// Keeps the first `most` findings.
ReferenceReport FindDanglingReferences(const CVynData& model,
                                       ReferenceScope scope = ReferenceScope::All,
                                       std::size_t most = 20);

}  // namespace Tevra::Util

#pragma once

#include <cstdint>

#include "model/VynData.h"
#include "torture/HostileValues.h"

namespace Tevra::TestSupport {

inline constexpr int kHostilityLevels = 8;

/// How bad the model of a seed is, by its remainder: from whole structures with a few gaps to
/// nonsense throughout.
Hostility HostilityOf(std::uint64_t seed);

/// A model of every kind of record and of results, filled at random from what a model document can
/// say and beyond: the fields come from the schema of documents, so new ones take part by
/// themselves. The same for the same seed.
CVynData MakeHostileModel(std::uint64_t seed, const Hostility& hostility);
inline CVynData MakeHostileModel(std::uint64_t seed) {
    return MakeHostileModel(seed, HostilityOf(seed));
}

}  // namespace Tevra::TestSupport

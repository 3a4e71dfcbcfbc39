#pragma once

#include <optional>
#include <string_view>

#include "model/ListTerms.h"
#include "model/Types.h"

namespace Tevra {

/// Reads a list text as `CEntList` describes it; nothing when it can't be read.
std::optional<ListTerms> ParseList(std::wstring_view text, SelType kind);

}  // namespace Tevra

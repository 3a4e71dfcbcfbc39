#pragma once

#include "model/VynData.h"

namespace Tevra::TestSupport {

/// A small model with every kind of record and every kind of result, most fields away from their
/// defaults, a few figures missing (NaN).
CVynData MakeFullModel();

}  // namespace Tevra::TestSupport

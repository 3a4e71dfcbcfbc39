#pragma once

#include "model/VynData.h"

namespace Tevra::Export {

/// A table of records of every kind with a few figures each, so that a person can follow every
/// statement of its export: a cantilever (1), a plate (2) and a solid (5) on four corner nodes, a
/// spring element (3) and a spring at node 3, dummies (6, 7), results in A1 (static), A2 (modal),
/// and the combinations C1 = A1 or -2A1 and C2 = 1.5A1.
CVynData MakeSmallModel();

}  // namespace Tevra::Export

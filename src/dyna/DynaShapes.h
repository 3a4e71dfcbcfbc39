#pragma once

#include <array>
#include <vector>

#include "model/ElementType.h"

namespace Tevra {

/// What the node fields of an element line describe.
struct DynaShape {
    ElementType type = ElementType::None;
    std::vector<int> topology;  ///< in the model's order
    bool hasMidSideNodes = false;
};

using DynaNodes = std::array<int, 8>;

/// The 2D element of the node fields of a shell, 0 for fields without a node: a triangle when the
/// fourth corner is missing or repeats the third, else a quadrilateral; the fields 5 on are
/// mid-side nodes. False when nodes are missing.
bool ShellShape(const DynaNodes& nodes, DynaShape& shape);

/// The 3D element of the eight node fields of a solid, which repeats nodes where it has less than
/// eight of them. False when nodes are missing.
bool SolidShape(const DynaNodes& nodes, DynaShape& shape);

}  // namespace Tevra

#pragma once

#include <vector>

#include "model/Faces.h"

namespace Tevra {

/// A face of a solid element.
struct OuterFace {
    int element = 0;
    SolidFace corners{};  ///< places in the topology of the element
};

/// The faces of solids that belong to one solid alone, in the order of the elements. Elements whose
/// nodes are not all placed have none.
std::vector<OuterFace> OuterFacesOf(const CVynData& model);

}  // namespace Tevra

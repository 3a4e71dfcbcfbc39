#pragma once

#include <array>
#include <span>

#include "model/ElementType.h"
#include "model/Types.h"

namespace Tevra {

class CVynData;
namespace Data {
class CElement;
}

/// One face of a solid: places of its corners in the topology (from 1), counter-clockwise as seen
/// from outside, so that the normal points outwards; the fourth is 0 for triangles.
using SolidFace = std::array<int, 4>;

/// Faces of a solid element type in the order of their numbers, from 1: bottom, top (where there
/// are two), then the sides round from the edge between nodes 1 and 2. Empty for other types.
std::span<const SolidFace> FacesOf(ElementType type);

/// Number of corner nodes of a 2D element type, which come first in its topology: 3 or 4; 0 for
/// other types.
int CornerCount(ElementType type);

/// Places in the topology (from 1) of the corners of a loaded face: of a 2D element, whatever the
/// number, or of a face of a solid; the fourth 0 for triangles, all 0 where there is no such face.
SolidFace CornersOfFace(ElementType type, int face);

/// Twice the area of a face of an element whose nodes exist, along its normal, m2.
Vec3<double> DoubleArea(const CVynData& model, const Data::CElement& element,
                        const SolidFace& face);

/// Mean of the corners of a face, global, m.
Vec3<double> CentreOfFace(const CVynData& model, const Data::CElement& element,
                          const SolidFace& face);

}  // namespace Tevra

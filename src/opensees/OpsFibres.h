#pragma once

#include <vector>

#include "model/SecGeom.h"

namespace Tevra {

/// A rectangle of fibres, about the centroid of the section, m.
struct FibrePatch {
    Vec2<double> low;   ///< least y and z
    Vec2<double> high;  ///< greatest y and z
    int alongY = 1;     ///< number of fibres
    int alongZ = 1;
};

/// The rectangles that make up a shape of plates, or a solid rectangle; none for other shapes.
std::vector<FibrePatch> RectangularPatches(const Data::CSecGeom& geometry);

/// A ring of fibres about the centroid, m.
struct FibreRing {
    double inner = 0.0;
    double outer = 0.0;
    int around = 16;
    int radial = 8;
};

/// Whether the shape is round, and its ring.
bool IsRound(const Data::CSecGeom& geometry, FibreRing& ring);

/// Whether fibres can be laid out for the shape.
bool HasFibreShape(const Data::CSecGeom& geometry);

}  // namespace Tevra

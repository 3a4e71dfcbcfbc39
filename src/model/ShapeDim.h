#pragma once

#include <cstddef>

#include "model/SecGeom.h"

namespace Tevra::Data {

/// A dimension of a shape as another program has it: one of ours (see ShapeSize) times a factor,
/// less another one (-1 none). Without an index there is no such dimension.
struct ShapeDim {
    int index = -1;
    double factor = 1.0;
    int less = -1;

    constexpr bool Exists() const { return index >= 0; }
    double Of(const CSecGeom& geometry) const {
        return geometry.Dimension(index) * factor - (less >= 0 ? geometry.Dimension(less) : 0.0);
    }
};

/// The first of a table of shapes that has a class among its `classes`; null when none has.
template <class Shape, std::size_t N>
const Shape* FindShape(const Shape (&shapes)[N], SectionClass shapeClass) {
    if (shapeClass == SectionClass::None) {
        return nullptr;
    }
    for (const Shape& shape : shapes) {
        for (const SectionClass known : shape.classes) {
            if (known == shapeClass) {
                return &shape;
            }
        }
    }
    return nullptr;
}

}  // namespace Tevra::Data

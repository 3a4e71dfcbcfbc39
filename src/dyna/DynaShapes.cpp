#include "dyna/DynaShapes.h"

#include <algorithm>

namespace Tevra {

namespace {

bool AnyOf(const DynaNodes& nodes, std::size_t first, std::size_t last) {
    return std::any_of(nodes.begin() + static_cast<std::ptrdiff_t>(first),
                       nodes.begin() + static_cast<std::ptrdiff_t>(last),
                       [](int node) { return node != 0; });
}

/// Sets the topology to the nodes of the given fields, counted from 1; false when one is missing.
bool Pick(const DynaNodes& nodes, std::initializer_list<std::size_t> fields, ElementType type,
          DynaShape& shape) {
    shape.type = type;
    shape.topology.clear();
    for (const std::size_t field : fields) {
        shape.topology.push_back(nodes[field - 1]);
    }
    return std::find(shape.topology.begin(), shape.topology.end(), 0) == shape.topology.end();
}

}  // namespace

bool ShellShape(const DynaNodes& nodes, DynaShape& shape) {
    const bool triangle = nodes[3] == 0 || nodes[3] == nodes[2];
    shape.hasMidSideNodes = AnyOf(nodes, 4, 8);
    if (triangle) {
        return shape.hasMidSideNodes ? Pick(nodes, {1, 2, 3, 5, 6, 7}, ElementType::Tri6, shape)
                                     : Pick(nodes, {1, 2, 3}, ElementType::Tri3, shape);
    }
    return shape.hasMidSideNodes ? Pick(nodes, {1, 2, 3, 4, 5, 6, 7, 8}, ElementType::Quad8, shape)
                                 : Pick(nodes, {1, 2, 3, 4}, ElementType::Quad4, shape);
}

bool SolidShape(const DynaNodes& nodes, DynaShape& shape) {
    const auto& [n1, n2, n3, n4, n5, n6, n7, n8] = nodes;
    shape.hasMidSideNodes = false;
    if (n5 == n6 && n6 == n7 && n7 == n8) {
        if (n4 == n5) {
            return Pick(nodes, {1, 2, 3, 4}, ElementType::Tetra4, shape);
        }
        if (n3 == n4) {
            return Pick(nodes, {1, 2, 3, 5}, ElementType::Tetra4, shape);
        }
        return Pick(nodes, {1, 2, 3, 4, 5}, ElementType::Pyramid5, shape);
    }
    if (n5 == n6 && n7 == n8) {
        return Pick(nodes, {4, 3, 7, 1, 2, 5}, ElementType::Wedge6, shape);
    }
    return Pick(nodes, {1, 2, 3, 4, 5, 6, 7, 8}, ElementType::Brick8, shape);
}

}  // namespace Tevra

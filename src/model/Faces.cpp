#include "model/Faces.h"

namespace Tevra {

namespace {

constexpr SolidFace kBrick[] = {{1, 4, 3, 2}, {5, 6, 7, 8}, {1, 2, 6, 5},
                                {2, 3, 7, 6}, {3, 4, 8, 7}, {4, 1, 5, 8}};
constexpr SolidFace kWedge[] = {
    {1, 3, 2, 0}, {4, 5, 6, 0}, {1, 2, 5, 4}, {2, 3, 6, 5}, {3, 1, 4, 6}};
constexpr SolidFace kTetra[] = {{1, 3, 2, 0}, {1, 2, 4, 0}, {2, 3, 4, 0}, {3, 1, 4, 0}};
constexpr SolidFace kPyramid[] = {
    {1, 4, 3, 2}, {1, 2, 5, 0}, {2, 3, 5, 0}, {3, 4, 5, 0}, {4, 1, 5, 0}};

}  // namespace

std::span<const SolidFace> FacesOf(ElementType type) {
    switch (type) {
        case ElementType::Brick8:
            return kBrick;
        case ElementType::Wedge6:
            return kWedge;
        case ElementType::Tetra4:
            return kTetra;
        case ElementType::Pyramid5:
            return kPyramid;
        default:
            return {};
    }
}

int CornerCount(ElementType type) {
    switch (type) {
        case ElementType::Quad4:
        case ElementType::Quad8:
            return 4;
        case ElementType::Tri3:
        case ElementType::Tri6:
            return 3;
        default:
            return 0;
    }
}

SolidFace CornersOfFace(ElementType type, int face) {
    const int corners = CornerCount(type);
    if (corners > 0) {
        return {1, 2, 3, corners == 4 ? 4 : 0};
    }
    const auto faces = FacesOf(type);
    return face >= 1 && face <= static_cast<int>(faces.size())
               ? faces[static_cast<std::size_t>(face - 1)]
               : SolidFace{};
}

}  // namespace Tevra

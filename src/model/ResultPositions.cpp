#include <span>

#include "model/VynData.h"

namespace Tevra {

namespace {

// Natural coordinates of the centre and the topology nodes of each element type: r, s from -1 to 1
// (triangles: area coordinates), t from -1 to 1 through solids (tetrahedra: volume coordinates).
constexpr double kThird = 1.0 / 3.0;
constexpr Vec3<double> kQuad[] = {{0, 0, 0},  {-1, -1, 0}, {1, -1, 0}, {1, 1, 0}, {-1, 1, 0},
                                  {0, -1, 0}, {1, 0, 0},   {0, 1, 0},  {-1, 0, 0}};
constexpr Vec3<double> kTriangle[] = {{kThird, kThird, 0}, {0, 0, 0},     {1, 0, 0},  {0, 1, 0},
                                      {0.5, 0, 0},         {0.5, 0.5, 0}, {0, 0.5, 0}};
constexpr Vec3<double> kBrick[] = {{0, 0, 0},   {-1, -1, -1}, {1, -1, -1}, {1, 1, -1}, {-1, 1, -1},
                                   {-1, -1, 1}, {1, -1, 1},   {1, 1, 1},   {-1, 1, 1}};
constexpr Vec3<double> kWedge[] = {{kThird, kThird, 0}, {0, 0, -1}, {1, 0, -1}, {0, 1, -1},
                                   {0, 0, 1},           {1, 0, 1},  {0, 1, 1}};
constexpr Vec3<double> kTetra[] = {{0.25, 0.25, 0.25}, {0, 0, 0}, {1, 0, 0}, {0, 1, 0}, {0, 0, 1}};
constexpr Vec3<double> kPyramid[] = {{0, 0, -0.5}, {-1, -1, -1}, {1, -1, -1},
                                     {1, 1, -1},   {-1, 1, -1},  {0, 0, 1}};

std::span<const Vec3<double>> PositionsOf(ElementType type) {
    switch (type) {
        case ElementType::Quad4:
        case ElementType::Quad8:
            return kQuad;
        case ElementType::Tri3:
        case ElementType::Tri6:
            return kTriangle;
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

}  // namespace

int CVynData::NumResultPosition(int element) const {
    const Data::CElement& record = Elem(element);
    return record.Is2D() || record.Is3D() ? 1 + record.NumTopo() : 0;
}

Vec3<double> CVynData::ResultPosition(int element, int position) const {
    const auto positions = PositionsOf(Elem(element).Type());
    return position >= 0 && position < static_cast<int>(positions.size())
               ? positions[static_cast<std::size_t>(position)]
               : Vec3<double>{};
}

}  // namespace Tevra

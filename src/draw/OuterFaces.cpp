#include "draw/OuterFaces.h"

#include <algorithm>
#include <cstdint>

#include "model/Placed.h"
#include "model/VynData.h"

namespace Tevra {

namespace {

struct NumberedFace {
    std::array<int, 4> nodes;  ///< ascending, so that the faces of two solids compare equal
    int element;
    std::int8_t face;
};

void AddFaces(const Data::CElement& element, int number, std::vector<NumberedFace>& faces) {
    std::int8_t place = 0;
    for (const SolidFace& corners : FacesOf(element.Type())) {
        NumberedFace face{{}, number, place++};
        std::transform(corners.begin(), corners.end(), face.nodes.begin(),
                       [&element](int corner) { return element.Topo(corner); });
        std::sort(face.nodes.begin(), face.nodes.end());
        faces.push_back(face);
    }
}

bool IsSame(const NumberedFace& a, const NumberedFace& b) {
    return a.nodes == b.nodes;
}

/// Keeps the faces whose nodes no other face has.
void KeepSingle(std::vector<NumberedFace>& faces) {
    std::sort(faces.begin(), faces.end(),
              [](const NumberedFace& a, const NumberedFace& b) { return a.nodes < b.nodes; });
    auto kept = faces.begin();
    for (auto first = faces.begin(); first != faces.end();) {
        const auto next = std::find_if(first, faces.end(), [first](const NumberedFace& face) {
            return !IsSame(face, *first);
        });
        if (next - first == 1) {
            *kept++ = *first;
        }
        first = next;
    }
    faces.erase(kept, faces.end());
}

}  // namespace

std::vector<OuterFace> OuterFacesOf(const CVynData& model) {
    std::vector<NumberedFace> faces;
    for (const int number : model.ElemTable().Numbers()) {
        const Data::CElement& element = model.Elem(number);
        if (element.Is3D() && HasPlacedNodes(model, element)) {
            AddFaces(element, number, faces);
        }
    }
    KeepSingle(faces);
    std::sort(faces.begin(), faces.end(), [](const NumberedFace& a, const NumberedFace& b) {
        return a.element != b.element ? a.element < b.element : a.face < b.face;
    });
    std::vector<OuterFace> outer;
    outer.reserve(faces.size());
    for (const NumberedFace& face : faces) {
        const auto all = FacesOf(model.Elem(face.element).Type());
        outer.push_back({face.element, all[static_cast<std::size_t>(face.face)]});
    }
    return outer;
}

}  // namespace Tevra

#include "model/Placed.h"

#include <algorithm>
#include <cmath>

#include "model/VynData.h"

namespace Tevra {

bool IsPlaced(const CVynData& model, int node) {
    const Data::CNode* record = model.NodeTable().Find(node);
    return record != nullptr && std::isfinite(record->Position().x) &&
           std::isfinite(record->Position().y) && std::isfinite(record->Position().z);
}

bool HasPlacedNodes(const CVynData& model, const Data::CElement& element) {
    bool has = element.NumTopo() >= InfoOf(element.Type()).minNodes;
    for (int k = 1; k <= element.NumTopo(); ++k) {
        has = has && IsPlaced(model, element.Topo(k));
    }
    return has;
}

bool HasLength(const CVynData& model, const Data::CElement& element) {
    return Length(model.TopoPosition(element, 2) - model.TopoPosition(element, 1)) > 0.0;
}

bool HasPlacedNodes(const CVynData& model, const Data::CJoint& joint) {
    return IsPlaced(model, joint.Node(1)) && IsPlaced(model, joint.Node(2));
}

std::wstring NoteOfCoarseCoordinates(const CVynData& model, int digits) {
    constexpr double kMillimetre = 1e-3;
    double farthest = 0.0;
    for (const int number : model.NodeTable().Numbers()) {
        const Vec3<double>& at = model.Node(number).Position();
        for (const double coordinate : {at.x, at.y, at.z}) {
            farthest = std::max(farthest, std::isfinite(coordinate) ? std::fabs(coordinate) : 0.0);
        }
    }
    // One step of the last digit of 10^n, of which there are `digits`, is 10^(n + 1 - digits).
    if (!(farthest >= kMillimetre * std::pow(10.0, digits))) {
        return {};
    }
    return L"The model lies far from the origin: coordinates keep " + std::to_wstring(digits) +
           L" digits, whose steps are more than a millimetre";
}

}  // namespace Tevra

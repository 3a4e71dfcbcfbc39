#include "model/Placed.h"

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

}  // namespace Tevra

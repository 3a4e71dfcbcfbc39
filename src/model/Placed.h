#pragma once

namespace Tevra {

class CVynData;

namespace Data {
class CElement;
}

/// Whether a node exists and its coordinates are numbers.
bool IsPlaced(const CVynData& model, int node);

/// Whether an element has the nodes that its type needs, all of them placed.
bool HasPlacedNodes(const CVynData& model, const Data::CElement& element);

}  // namespace Tevra

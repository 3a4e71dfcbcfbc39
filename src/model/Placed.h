#pragma once

#include <string>

#include "model/Util.h"

namespace Tevra {

class CVynData;

namespace Data {
class CElement;
class CJoint;
}  // namespace Data

/// Whether a node exists and its coordinates are numbers.
bool IsPlaced(const CVynData& model, int node);

/// Whether an element has the nodes that its type needs, all of them placed.
bool HasPlacedNodes(const CVynData& model, const Data::CElement& element);
/// Whether the ends of a 1D element lie apart.
bool HasLength(const CVynData& model, const Data::CElement& element);
/// Whether both nodes of a joint are placed.
bool HasPlacedNodes(const CVynData& model, const Data::CJoint& joint);

/// What there is to say of a model that lies so far from the origin that coordinates of so many
/// significant digits have steps of more than a millimetre; empty for others.
std::wstring NoteOfCoarseCoordinates(const CVynData& model, int digits);

/// Calls `use` with the nodes of a list that are placed, ascending.
template <class Use>
void ForEachPlaced(const CVynData& model, const CEntList& nodes, Use use) {
    Util::Item(nodes, model, -1, true).ForEach([&](int node) {
        if (IsPlaced(model, node)) {
            use(node);
        }
    });
}

}  // namespace Tevra

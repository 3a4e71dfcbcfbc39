#include <cmath>
#include <cstddef>
#include <cstdint>
#include <string>

#include "fuzz/Require.h"
#include "support/DeckReader.h"

using namespace Tevra;
using FuzzSupport::Require;

namespace {

/// What holds for every element that was read: as many nodes as its type has, none below 1.
void Check(const Data::CElement& element) {
    const ElementTypeInfo& info = InfoOf(element.Type());
    Require(element.NumTopo() >= info.minNodes && element.NumTopo() <= info.maxNodes);
    for (int k = 1; k <= element.NumTopo(); ++k) {
        Require(element.Topo(k) > 0);
    }
    Require(element.Property() >= 0 && element.OrientationNode() >= 0);
}

}  // namespace

// A deck is read whole, or refused with a reason; either way the model holds good records only.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    TestSupport::DeckReader reader;
    const bool read = reader.ReadText(std::string(reinterpret_cast<const char*>(data), size));
    Require(read == reader.Error().empty());
    Require(read || reader.Line() > 0);
    const CVynData& model = reader.Model();
    for (const int number : model.NodeTable().Numbers()) {
        const Vec3<double>& position = model.Node(number).Position();
        Require(std::isfinite(position.x + position.y * 0.0 + position.z * 0.0));
        Require(model.MassPropExist(model.Node(number).MassProperty()) ||
                model.Node(number).MassProperty() == 0);
    }
    for (const int number : model.ElemTable().Numbers()) {
        Check(model.Elem(number));
    }
    Require(reader.Report().nodes - reader.Report().nodesReplaced == model.NumNode());
    Require(reader.Report().elements - reader.Report().elementsReplaced == model.NumElem());
    return 0;
}

#pragma once

#include <array>
#include <string_view>
#include <vector>

#include "io/RecordText.h"
#include "model/BitSet.h"
#include "model/MaterialMap.h"
#include "model/Placed.h"
#include "model/VynData.h"
#include "sap/LoadsByCase.h"

namespace Tevra {

/// The block that an element is written in; None for those that have no block.
enum class SapBlock { None, Frame, Spring, Shell, Plane, Link };

/// By the type of an element and the kind of its property.
SapBlock BlockOf(const CVynData& model, const Data::CElement& element);

/// Whether the nodes and the property of an element are there.
bool IsSound(const CVynData& model, int element);

/// What one run of the writer works with.
struct SapContext {
    SapContext(const CVynData& from, TextOut& target);

    /// The block that an element stands in, None for those that are not in the file.
    SapBlock WrittenIn(int element) const {
        return written.Test(element) ? BlockOf(model, model.Elem(element)) : SapBlock::None;
    }

    const CVynData& model;
    TextOut& out;
    RecordText line;
    CBitSet written;  ///< the elements of the file
    CMaterialMap materials;
    LoadsByCase gravity;
    LoadsByCase nodeLoads;
    LoadsByCase settlements;
    LoadsByCase beamLoads;
    LoadsByCase axialLoads;
    LoadsByCase beamTemperatures;
    LoadsByCase faceLoads;
    LoadsByCase faceTemperatures;
};

/// The property of an element as the stage that is written has it; without stages its own.
int SapProperty(const CVynData& model, int element);
inline constexpr int kSapStage = 1;

/// "001": materials, sections, shells, link properties and constraints by number.
inline constexpr int kNameDigits = 3;

/// Directions by their index, in the target's words.
inline constexpr std::array<std::string_view, 6> kSapDofs{"U1", "U2", "U3", "R1", "R2", "R3"};

/// Appends the directions of a set, "U1,U3": of `order`, where the place of a direction gives its
/// word.
void AddDofs(RecordText& line, Vbool6 directions, const std::array<Direction, 6>& order);

/// Nodes that a load acts on and that are in the file; of gravity those with mass.
template <class Load>
std::vector<int> SapLoadedNodes(const CVynData& model, const Load& load) {
    std::vector<int> nodes = load.LoadedNodes(model);
    std::erase_if(nodes, [&](int node) { return !IsPlaced(model, node); });
    return nodes;
}

/// Elements of a dimension that a load acts on and that are in the file.
std::vector<int> SapLoadedFrames(const SapContext& c, const Data::CLoadBase& load);
std::vector<int> SapLoadedFaces(const SapContext& c, const Data::CLoadBase& load);

/// Appends the material item of a section or 2D property: "MAT=001".
void AddMaterial(RecordText& line, const Data::MaterialChoice& choice,
                 const std::vector<ExportedProperty>& exported);

}  // namespace Tevra

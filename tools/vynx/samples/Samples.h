#pragma once

#include <string_view>
#include <vector>

#include "model/VynData.h"

namespace Vynx {

/// Models of any size, for measuring: regular, loaded, and with the results of one load case in
/// closed form.
struct SampleKind {
    std::string_view name;
    std::string_view help;
    void (*fill)(Tevra::CVynData& model, int nodes);  ///< with about that many nodes
};

const std::vector<SampleKind>& SampleKinds();

/// The kind with a name, null when there is none.
const SampleKind* FindSampleKind(std::string_view name);

inline constexpr int kLargestSample = 20'000'000;

/// A building of columns and beams. Its dead load stands on the nodes alike, so that columns
/// shorten alike and beams only go down with them.
void FillFrame(Tevra::CVynData& model, int nodes);
/// A square plate of shells, drawn in one direction and bent about the other by edge loads.
void FillShells(Tevra::CVynData& model, int nodes);
/// A cube of hexahedra under uniform tension.
void FillSolids(Tevra::CVynData& model, int nodes);

}  // namespace Vynx

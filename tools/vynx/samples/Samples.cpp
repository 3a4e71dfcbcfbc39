#include "vynx/samples/Samples.h"

#include <algorithm>

namespace Vynx {

const std::vector<SampleKind>& SampleKinds() {
    static const std::vector<SampleKind> kKinds = {
        {"frame", "a building of columns and beams", &FillFrame},
        {"shells", "a square plate of shells, drawn and bent", &FillShells},
        {"solids", "a cube of hexahedra in tension", &FillSolids},
    };
    return kKinds;
}

const SampleKind* FindSampleKind(std::string_view name) {
    const auto& kinds = SampleKinds();
    const auto kind = std::find_if(kinds.begin(), kinds.end(),
                                   [&](const SampleKind& k) { return k.name == name; });
    return kind != kinds.end() ? &*kind : nullptr;
}

}  // namespace Vynx

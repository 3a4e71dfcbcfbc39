#include <cmath>
#include <cstdint>
#include <string_view>

#include "fuzz/Require.h"
#include "model/SecGeom.h"
#include "platform/text/Utf8.h"

using namespace Tevra;
using FuzzSupport::Require;

namespace {

/// What holds for every description: finite properties, polygons when there is an outline.
void Check(const Data::CSecGeom& geometry) {
    const SectionProperties& p = geometry.Properties();
    for (const double value : {p.area, p.j, p.iyy, p.izz, p.iyz, p.avy, p.avz,
                               geometry.Centroid().x, geometry.Centroid().y}) {
        Require(std::isfinite(value));
    }
    const bool hasOutline = geometry.Kind() != Data::SectionKind::None &&
                            geometry.Kind() != Data::SectionKind::Explicit;
    Require(hasOutline == !geometry.Polygons().empty());
    Require(hasOutline == (geometry.ShapeFlags() != 0));
    Require((geometry.Kind() == Data::SectionKind::None) == !geometry.Problem().empty());
    Require(!hasOutline || (p.area > 0.0 && p.iyy > 0.0 && p.izz > 0.0));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    Check(Data::CSecGeom(Text::FromUtf8(bytes)));
    return 0;
}

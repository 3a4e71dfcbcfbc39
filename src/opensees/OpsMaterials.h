#pragma once

#include "model/Material.h"

namespace Tevra {

/// Whether fibres can be made of the material: one that yields, cracks or crushes. The others make
/// elastic sections.
bool HasFibreModel(const Data::CMatAnal& material);

}  // namespace Tevra

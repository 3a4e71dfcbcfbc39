#pragma once

#include <string_view>
#include <vector>

#include "model/VynData.h"

namespace Tevra::TestSupport {

/// A model that random ones hardly meet.
struct SpecialModel {
    std::string_view name;
    CVynData (*make)();
};

const std::vector<SpecialModel>& SpecialModels();

}  // namespace Tevra::TestSupport

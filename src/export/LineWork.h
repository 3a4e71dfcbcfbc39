#pragma once

#include <vector>

#include "model/InterCalc.h"

namespace Tevra::Export {

/// What works along 1D elements, kept from one element to the next.
struct LineWork {
    LineWork(const CVynData& model, int numPosition) : calc(model), positions(calc) {
        positions.SetRegular(CPosOn1D::Regular(numPosition));
    }

    CInterCalc calc;
    CInterPos positions;       ///< regular and interesting ones
    std::vector<CPosOn1D> at;  ///< those of the element
    CInterInfo displacement;
    CInterInfo force;
};

}  // namespace Tevra::Export

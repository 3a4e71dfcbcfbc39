#include "model/PosOn1D.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace Tevra {

CPosOn1D CPosOn1D::FromFraction(double fraction) {
    if (!(fraction > 0.0)) {
        return CPosOn1D(0);
    }
    return CPosOn1D(static_cast<int>(std::lround(std::min(fraction, 1.0) * kWhole)));
}

void CPosOn1D::Sort(std::vector<CPosOn1D>& positions) {
    std::sort(positions.begin(), positions.end());
    positions.erase(std::unique(positions.begin(), positions.end()), positions.end());
}

std::vector<CPosOn1D> CPosOn1D::Regular(int count) {
    if (count == 1) {
        return {CPosOn1D(kWhole / 2)};
    }
    // No more positions differ than there are millionths.
    const std::int64_t last = std::min(count, kWhole + 1) - 1;
    std::vector<CPosOn1D> positions;
    for (std::int64_t i = 0; i <= last; ++i) {
        positions.emplace_back(static_cast<int>(i * kWhole / last));
    }
    return positions;
}

}  // namespace Tevra

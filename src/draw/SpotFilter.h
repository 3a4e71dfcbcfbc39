#pragma once

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <unordered_set>

#include "model/Types.h"

namespace Tevra {

/// Lets one thing of a kind pass at each spot of a drawing.
class CSpotFilter {
public:
    /// `size` of a spot in the unit of the places asked for.
    explicit CSpotFilter(double size) : m_size(size) {}

    /// Whether nothing of the kind has passed at this spot before.
    bool Passes(const Vec2<double>& place, std::uint32_t kind) {
        return m_taken.insert({Cell(place.x), Cell(place.y), kind}).second;
    }

private:
    using Spot = std::array<std::int64_t, 3>;
    struct Mix {
        std::size_t operator()(const Spot& spot) const {
            std::uint64_t mixed = 0;
            for (const std::int64_t part : spot) {
                mixed = (mixed ^ static_cast<std::uint64_t>(part)) * 0x9E3779B97F4A7C15U;
                mixed ^= mixed >> 29U;
            }
            return static_cast<std::size_t>(mixed);
        }
    };
    std::int64_t Cell(double at) const {
        constexpr double kMost = 1e15;
        return static_cast<std::int64_t>(std::clamp(std::floor(at / m_size), -kMost, kMost));
    }

    double m_size;
    std::unordered_set<Spot, Mix> m_taken;
};

}  // namespace Tevra

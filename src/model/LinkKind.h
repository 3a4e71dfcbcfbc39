#pragma once

#include <array>

namespace Tevra {

/// Type code of a rigid constraint or link that ties all freedoms.
inline constexpr int kAllLinked = 4095;

/// What a rigid constraint or a link ties together.
struct LinkKind {
    int code = 0;           ///< of its type: the linked freedoms, twelve bits
    int normal = 0;         ///< 1 to 3, X to Z, square to the plane that is tied; 0 all directions
    bool isPinned = false;  ///< whether the tied nodes turn freely
};

/// The kinds that have a name of their own; other codes tie freedoms one by one.
inline constexpr std::array kLinkKinds = {
    LinkKind{kAllLinked, 0, false}, LinkKind{1911, 0, true},  // all
    LinkKind{2101, 3, false},       LinkKind{856, 1, false},  // in the planes XY, YZ,
    LinkKind{1411, 2, false},       LinkKind{53, 3, true},    // ZX, XY,
    LinkKind{848, 1, true},         LinkKind{1283, 2, true},  // YZ, ZX
};

/// The kind of a type code, null for codes that have none.
constexpr const LinkKind* FindLinkKind(int code) {
    for (const LinkKind& kind : kLinkKinds) {
        if (kind.code == code) {
            return &kind;
        }
    }
    return nullptr;
}

}  // namespace Tevra

#pragma once

#include <array>
#include <optional>
#include <string_view>

#include "model/Types.h"

namespace Tevra {

/// Element types with the host's codes; the codes between are reserved.
enum class ElementType : int {
    None = 0,
    Bar = 1,
    Beam = 2,
    Spring = 3,
    Damper = 4,
    Quad4 = 5,
    Quad8 = 6,
    Tri3 = 7,
    Tri6 = 8,
    Link = 9,
    Cable = 10,
    Mass = 11,
    Brick8 = 12,
    Wedge6 = 14,
    Tetra4 = 16,
    Spacer = 19,
    Tie = 20,
    Strut = 21,
    Rod = 23,
    Pyramid5 = 26
};

inline constexpr int kHighestElementType = 26;

/// What is known of an element type: its text (at most 12 characters), how many nodes it may have,
/// its dimension (0 for point and reserved types) and the kind of its property.
struct ElementTypeInfo {
    std::wstring_view text;
    int minNodes = 0;
    int maxNodes = 0;
    int dimension = 0;
    PropertyType property = PropertyType::None;
};

/// The record of a type; reserved and unknown codes give the text "RESERVED" and no nodes.
const ElementTypeInfo& InfoOf(ElementType type);

/// The text of an element type, in capitals.
std::wstring_view ElementTypeString(ElementType type);

/// The type with a text (letters in either case); nothing when no type has it.
std::optional<ElementType> ElementTypeOf(std::wstring_view text);

}  // namespace Tevra

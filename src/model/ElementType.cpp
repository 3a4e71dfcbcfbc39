#include "model/ElementType.h"

#include "platform/text/Ascii.h"

namespace Tevra {

namespace {

using P = PropertyType;

constexpr ElementTypeInfo kReserved{L"RESERVED", 0, 0, 0, P::None};

// In code order, from 0.
constexpr std::array<ElementTypeInfo, kHighestElementType + 1> kTypes{{
    kReserved,
    {L"BAR", 2, 2, 1, P::Section},
    {L"BEAM", 2, 2, 1, P::Section},
    {L"SPRING", 1, 2, 1, P::Spring},
    {L"DAMPER", 1, 2, 1, P::Damper},
    {L"QUAD4", 4, 4, 2, P::Prop2D},
    {L"QUAD8", 8, 8, 2, P::Prop2D},
    {L"TRI3", 3, 3, 2, P::Prop2D},
    {L"TRI6", 6, 6, 2, P::Prop2D},
    {L"LINK", 2, 2, 1, P::Link},
    {L"CABLE", 2, 2, 1, P::Cable},
    {L"MASS", 1, 1, 0, P::Mass},
    {L"BRICK8", 8, 8, 3, P::Prop3D},
    kReserved,
    {L"WEDGE6", 6, 6, 3, P::Prop3D},
    kReserved,
    {L"TETRA4", 4, 4, 3, P::Prop3D},
    kReserved,
    kReserved,
    {L"SPACER", 2, 2, 1, P::None},
    {L"TIE", 2, 2, 1, P::Section},
    {L"STRUT", 2, 2, 1, P::Section},
    kReserved,
    {L"ROD", 2, 2, 1, P::Section},
    kReserved,
    kReserved,
    {L"PYRAMID5", 5, 5, 3, P::Prop3D},
}};

}  // namespace

const ElementTypeInfo& InfoOf(ElementType type) {
    const int code = static_cast<int>(type);
    return code >= 0 && code <= kHighestElementType ? kTypes[static_cast<std::size_t>(code)]
                                                    : kReserved;
}

std::wstring_view ElementTypeString(ElementType type) {
    return InfoOf(type).text;
}

std::optional<ElementType> ElementTypeOf(std::wstring_view text) {
    for (int code = 1; code <= kHighestElementType; ++code) {
        const auto type = static_cast<ElementType>(code);
        if (InfoOf(type).maxNodes > 0 && Text::EqualNoCase(InfoOf(type).text, text)) {
            return type;
        }
    }
    return std::nullopt;
}

}  // namespace Tevra

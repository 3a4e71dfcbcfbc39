#pragma once

#include "dyna/DynaAnalysis.h"

namespace Tevra {

/// What kind of part an element belongs to; `Undefined` for elements that are not written.
inline DynaPart KindOf(const Data::CElement& element) {
    switch (InfoOf(element.Type()).property) {
        case PropertyType::Section:
            return DynaPart::Beam;
        case PropertyType::Prop2D:
            return DynaPart::Shell;
        case PropertyType::Prop3D:
            return DynaPart::Solid;
        case PropertyType::Spring:
            return DynaPart::Spring;
        case PropertyType::Damper:
            return DynaPart::Damper;
        case PropertyType::Cable:
            return DynaPart::Cable;
        case PropertyType::Link:
            return DynaPart::Link;
        default:
            return DynaPart::Undefined;
    }
}

/// Springs that lie between surfaces have no part.
inline bool HasPart(const Data::CSpringProp& spring) {
    return spring.Type() != SpringType::Contact && spring.Type() != SpringType::Friction;
}

}  // namespace Tevra

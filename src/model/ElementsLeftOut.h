#pragma once

#include <string>
#include <vector>

#include "model/VynData.h"

namespace Tevra {

/// Elements of a model that a frame format has no place for, and faulty ones that it leaves out.
struct ElementsLeftOut {
    bool hasCable = false;
    bool hasLink = false;
    bool hasSpacer = false;
    bool hasDummy = false;  ///< of the kinds that the format writes
    int faults = 0;
    int firstFault = 0;  ///< number of the first faulty element

    /// A note for each kind, and one on the faulty elements that begins with `faultText`.
    std::vector<std::wstring> Notes(const wchar_t* faultText) const;
};

/// Goes over all elements: `hasPlace(element)` tells of a record whether the format writes its
/// kind, `isWritten(number)` whether the element itself is written.
template <class HasPlace, class IsWritten>
ElementsLeftOut FindElementsLeftOut(const CVynData& model, HasPlace hasPlace, IsWritten isWritten) {
    ElementsLeftOut found;
    for (const int number : model.ElemTable().Numbers()) {
        const Data::CElement& element = model.Elem(number);
        found.hasCable = found.hasCable || element.IsCable();
        found.hasLink = found.hasLink || element.IsLink();
        found.hasSpacer = found.hasSpacer || element.IsSpacer();
        if (isWritten(number) || !hasPlace(element)) {
            continue;
        }
        if (element.IsDummy()) {
            found.hasDummy = true;
        } else if (++found.faults == 1) {
            found.firstFault = number;
        }
    }
    return found;
}

}  // namespace Tevra

#include "model/ElementsLeftOut.h"

#include <utility>

namespace Tevra {

std::vector<std::wstring> ElementsLeftOut::Notes(const wchar_t* faultText) const {
    const std::pair<bool, const wchar_t*> kinds[] = {
        {hasCable, L"Cable elements not exported"},
        {hasLink, L"Link elements not exported"},
        {hasSpacer, L"Spacer elements not exported"},
        {hasDummy, L"Dummy elements not exported"},
    };
    std::vector<std::wstring> notes;
    for (const auto& [has, text] : kinds) {
        if (has) {
            notes.emplace_back(text);
        }
    }
    if (faults > 0) {
        notes.push_back(faultText + std::to_wstring(faults) + L", the first is " +
                        std::to_wstring(firstFault));
    }
    return notes;
}

}  // namespace Tevra

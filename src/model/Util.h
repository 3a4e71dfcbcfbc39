#pragma once

#include <string>
#include <vector>

#include "model/BitSet.h"
#include "model/EntList.h"
#include "model/Types.h"

namespace Tevra {
class CVynData;
}

/// Entity lists against a model. `highest` bounds the numbers (-1 asks the model); with
/// `existingOnly`, only items that exist count.
namespace Tevra::Util {

/// The included numbers. A list that can't be read includes nothing. Case lists give the analysis
/// cases; see `Cases`.
CBitSet Item(const CEntList& list, const CVynData& model, int highest, bool existingOnly);

/// The same as ascending numbers; existing items only.
void Items(const CEntList& list, std::vector<int>& numbers, const CVynData& model);

int NumItem(const CEntList& list, const CVynData& model, int highest, bool existingOnly);

/// Whether one entity is included; false for an entity of another kind. Expands the list anew when
/// the model or the bound has changed since the last question about the same list.
bool IsItemIncluded(const CEntList& list, const SEntRef& entity, const CVynData& model, int highest,
                    bool existingOnly);

/// Analysis and combination cases that a case list includes, and whether it includes one.
struct CaseSet {
    CBitSet analysis;
    CBitSet combination;
};
CaseSet Cases(const CEntList& list, const CVynData& model);
bool IsCaseIncluded(const CEntList& list, const SCaseRef& ref, const CVynData& model);

/// The expansion as text: existing numbers ascending, one blank between; those of cases with their
/// letters, "A1 A3 C2".
std::wstring ExpandedText(const CEntList& list, const CVynData& model);

}  // namespace Tevra::Util

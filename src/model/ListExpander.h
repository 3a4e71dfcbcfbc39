#pragma once

#include <vector>

#include "model/BitSet.h"
#include "model/ListTerms.h"
#include "model/Types.h"

namespace Tevra {
class CVynData;
}

namespace Tevra::Util {

/// What a list is expanded against.
struct ListScope {
    const CVynData& model;
    SelType kind;
    CaseOp caseOp;  ///< which cases a case list gives
    int bound;      ///< highest number
    bool existingOnly;
};

/// The numbers that the terms of a list include.
CBitSet ExpandTerms(const std::vector<ListTerm>& terms, const ListScope& scope);

}  // namespace Tevra::Util

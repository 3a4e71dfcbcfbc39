#pragma once

#include <optional>
#include <string>
#include <vector>

#include "model/Types.h"

namespace Tevra {

struct CombTerm;

/// A combination description as it was read: alternatives, each a sum of terms.
struct CombDescription {
    std::vector<std::vector<CombTerm>> alternatives;
};

/// A term: factors to choose from, times a case, a range of cases to choose from, or a description
/// in brackets.
struct CombTerm {
    std::vector<double> factors{1.0};  ///< the sign of the term is in them
    CaseOp op = CaseOp::None;          ///< `None` for brackets
    int from = 0;
    int to = 0;           ///< `from` for a single case
    int permutation = 0;  ///< of the suffix: 1 on, an envelope code, or 0 without one
    CombDescription inner{};
};

/// Reads a description; nothing when it can't be read.
std::optional<CombDescription> ParseCombination(const std::wstring& text);

}  // namespace Tevra

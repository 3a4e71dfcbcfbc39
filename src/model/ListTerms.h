#pragma once

#include <vector>

#include "model/Types.h"

namespace Tevra {

/// What a term of a list names.
enum class ListTermKind {
    All,       ///< everything of the kind; for cases, of the kind of case
    Range,     ///< numbers
    Bracket,   ///< the terms in brackets
    List,      ///< saved lists, by number
    Group,     ///< what belongs to groups
    Property,  ///< what has property numbers, of kind `property` when that is given
    Member,    ///< elements meshed from members
    Type       ///< elements of types, by code
};

/// Numbers `from` to `to` by `step`; none when `to` is below `from`.
struct NumberRange {
    int from = 1;
    int to = 0;
    int step = 1;

    bool Contains(int number) const {
        return number >= from && number <= to && (number - from) % step == 0;
    }
};

/// One term of a list: what it names, and whether it is put in or taken away. Numbers of the same
/// kind that follow each other are one term.
struct ListTerm {
    ListTermKind kind = ListTermKind::Range;
    bool take = false;
    CaseOp caseOp = CaseOp::None;  ///< of case lists
    PropertyType property = PropertyType::None;
    std::vector<NumberRange> ranges{};
    std::vector<ListTerm> inner{};
};

/// A list, term by term.
struct ListTerms {
    std::vector<ListTerm> terms;
    int largest = 0;          ///< the largest number in the text
    bool namesLists = false;  ///< saved lists are among the terms
};

}  // namespace Tevra

#pragma once

#include <array>
#include <string_view>

namespace Tevra::TestSupport {

/// The lines of a keyword as the solver reads them. Fields are NAME(widthKind) from the left. The
/// lines from `repeatFrom` (1 the first, 0 none) come again, as a group, until the next keyword.
struct KeywordCard {
    std::string_view keyword;
    int repeatFrom;
    std::array<std::string_view, 8> lines;  ///< empty beyond the last

    int NumLine() const {
        int count = 0;
        for (const std::string_view line : lines) {
            count += line.empty() ? 0 : 1;
        }
        return count;
    }
};

/// The layout of a keyword; null for keywords that are not known.
const KeywordCard* FindKeywordCard(std::string_view keyword);

/// The layout of the second line of a beam section, by its formulation (2 when it has none).
std::string_view BeamSectionLine(long formulation);

}  // namespace Tevra::TestSupport

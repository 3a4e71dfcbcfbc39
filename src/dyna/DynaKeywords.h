#pragma once

#include <cstdint>
#include <map>
#include <span>
#include <string>
#include <string_view>

namespace Tevra {

/// A line that stands behind the line (or lines) of an entry because of an option of its keyword.
struct DynaFurtherLine {
    std::uint8_t bit = 0;           ///< of a set of further lines
    int fields = 0;                 ///< that it has at most, all numbers
    int width = 0;                  ///< of each, columns
    bool withMidSideNodes = false;  ///< stands behind elements with mid-side nodes only
};

/// All kinds of further lines, in the order in which they follow one another.
std::span<const DynaFurtherLine> DynaFurtherLines();

/// What the options of a keyword mean for the lines below it.
struct DynaForm {
    bool hasHeading = false;        ///< one line before the first entry
    std::uint8_t furtherLines = 0;  ///< bits of DynaFurtherLines() behind each entry
};

/// Reads what follows the name `base` in a keyword line (without blanks at its ends, in capitals).
/// False, with the reason, for options whose lines are not known and for field widths other than
/// the standard ones.
bool ReadDynaForm(std::string_view keywordLine, std::string_view base, DynaForm& form,
                  std::string& error);

/// False, with the reason, for a line *KEYWORD (in capitals) that asks for other field widths than
/// the standard ones. Any other line is fine.
bool HasStandardFields(std::string_view keywordLine, std::string& error);

/// Counts of keywords by their names in capitals; a limited number of names of a limited length,
/// whatever the file holds.
class CDynaKeywordCounts {
public:
    /// Counts the keyword of a line, which may have text behind its name.
    void Add(std::string_view keywordLine);
    const std::map<std::string, std::int64_t, std::less<>>& ByName() const { return m_counts; }
    bool Empty() const { return m_counts.empty(); }

private:
    std::map<std::string, std::int64_t, std::less<>> m_counts;
};

}  // namespace Tevra

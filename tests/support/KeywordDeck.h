#pragma once

#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace Tevra::TestSupport {

/// A data line of a keyword file, cut into its fields by the layout of its card.
struct KeywordRow {
    std::string keyword;  ///< with its options, without the asterisk
    int card = 1;         ///< which of the keyword's lines
    int line = 0;         ///< in the file
    std::vector<std::pair<std::string, std::string>> fields;  ///< names and texts, trimmed

    /// Text of a field; empty when the line ends before it.
    std::string Text(std::string_view name) const;
    /// The same as a number; a value that no test expects when it is none.
    long Int(std::string_view name) const;
    double Real(std::string_view name) const;
};

/// A keyword file read by position. What breaks the form of the file is in `faults`.
struct KeywordDeck {
    std::vector<std::string> keywords;  ///< in their order
    std::vector<KeywordRow> rows;
    std::vector<std::string> faults;

    /// The rows of a keyword, of one of its cards or (0) of all.
    std::vector<KeywordRow> Rows(std::string_view keyword, int card = 1) const;
    int Count(std::string_view keyword) const;
};

/// Cuts a file by the layouts of the solver's own reader.
KeywordDeck ReadKeywordDeck(const std::string& text);

/// Numbers that nothing in the deck defines, and numbers defined twice, but for those that the
/// writer keeps on purpose: "LOAD_NODE_POINT line 12: LCID 3".
std::vector<std::string> OpenReferences(const KeywordDeck& deck);

}  // namespace Tevra::TestSupport

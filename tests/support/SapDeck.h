#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace Tevra::TestSupport {

/// A line of a block: the number that it begins with, where it does, and its items.
struct SapLine {
    std::string number;
    std::vector<std::pair<std::string, std::string>> items;

    bool Has(std::string_view key) const;
    /// Value of an item; empty when there is none.
    std::string Value(std::string_view key) const;
    /// Number `k` (from 0) of a value; one that no test expects when it is none.
    double Real(std::string_view key, std::size_t k = 0) const;
};

struct SapBlockText {
    std::string keyword;
    std::vector<SapLine> lines;
};

/// An S2K file: the lines before the first block, then the blocks. What breaks the form of the file
/// is in `faults`.
struct SapDeck {
    std::vector<std::string> head;
    std::vector<SapBlockText> blocks;
    std::vector<std::string> faults;

    bool Has(std::string_view keyword) const;
    /// The lines of a block; none when there is no such block.
    const std::vector<SapLine>& Block(std::string_view keyword) const;
    /// The first line of a block that begins with a number, or has a NAME that is it.
    const SapLine& Line(std::string_view keyword, std::string_view number) const;
};

SapDeck ReadSapDeck(const std::string& text);

/// References that nothing resolves, as "FRAME 3: no JOINT 7". Materials and link properties of
/// kinds that the format leaves out are among them.
std::vector<std::string> OpenReferences(const SapDeck& deck);

}  // namespace Tevra::TestSupport

#pragma once

#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace Tevra::TestSupport {

/// A card of a NASTRAN file: its name and its data fields in order, without blanks around them.
struct NasCard {
    std::string name;
    std::vector<std::string> fields;

    /// Data field `k` from 1; empty when the card ends before it.
    std::string Field(int k) const;
    /// The same as a number; a value that no test expects when it is none.
    long Int(int k) const;
    double Real(int k) const;
};

/// A NASTRAN file as it is read by position: control lines, then cards with their continuations
/// joined. What breaks the form of the file is in `faults`.
struct NasDeck {
    std::vector<std::string> control;
    std::vector<NasCard> cards;
    std::vector<std::string> faults;

    std::vector<NasCard> Named(std::string_view name) const;
    int Count(std::string_view name) const { return static_cast<int>(Named(name).size()); }
};

NasDeck ReadNasDeck(const std::string& text);

/// References of a deck that nothing of the right kind resolves: "CBAR 3: field 3 refers to 7".
std::vector<std::string> OpenReferences(const NasDeck& deck);

/// Numbers that two cards have which number the same kind of thing: "CBAR 3".
std::vector<std::string> SharedNumbers(const NasDeck& deck);

/// Sets that case control and LOAD cards name and that have no cards: "LOAD 3". Cases without loads
/// have none.
std::vector<std::string> OpenSets(const NasDeck& deck, const std::set<std::string>& emptyCases);

}  // namespace Tevra::TestSupport

#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace Tevra::TestSupport {

/// A command of an OpenSees script: its words, without the brace that opens a block.
struct OpsCommand {
    std::vector<std::string> words;
    std::string block;  ///< first word of the command in whose block it stands

    /// Words from `first` on, with blanks between.
    std::string Rest(std::size_t first = 0) const;
    /// A word as a number; one that no test expects when it is none.
    double Real(std::size_t k) const;
};

/// The commands of a script in their order, and its comments. What breaks the form of the script is
/// in `faults`.
struct OpsScript {
    std::vector<OpsCommand> commands;
    std::vector<std::string> comments;
    std::vector<std::string> faults;

    /// Commands that begin with this word, each without it.
    std::vector<std::string> Named(std::string_view word) const;
};

OpsScript ReadOpsScript(const std::string& text);

/// Tags that nothing resolves, as "element 3: no node 7", and tags given twice.
std::vector<std::string> OpenReferences(const OpsScript& script);

}  // namespace Tevra::TestSupport

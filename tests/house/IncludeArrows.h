#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace Tevra::House {

/// The room that a file belongs to, by its path from the root of the tree ("src/io/Card.h"): "io".
/// A room within a room goes first ("platform/quorl" before "platform"); everything under tools/ is
/// "tools". Empty for a folder that the house does not have.
std::string_view RoomOf(const std::filesystem::path& file);

/// What is wrong with the include lines of a text that stands in a file of this room: one
/// "line: complaint" each, empty when every arrow is allowed.
std::vector<std::string> CheckText(std::string_view text, std::string_view room);

/// Checks every C++ file under src/ and tools/ of a tree: "file:line: complaint", and a complaint
/// for each folder in src/ that the house does not have.
struct TreeReport {
    std::vector<std::string> complaints;
    int numFile = 0;
};
TreeReport CheckTree(const std::filesystem::path& root);

}  // namespace Tevra::House

#include "house/IncludeArrows.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace Tevra::House {

namespace {

namespace fs = std::filesystem;

/// A room and the rooms that its files may include, besides itself.
struct Room {
    std::string_view name;
    std::string_view mayInclude;
};

/// The arrows of the house. A room within a room stands before the one that it is in.
constexpr std::array kRooms = {
    Room{"platform/quorl", "platform"},
    Room{"platform", ""},
    Room{"model", "platform platform/quorl"},
    Room{"io", "model platform"},
    Room{"export", "io model platform"},
    Room{"dyna", "io model platform"},
    Room{"nastran", "io model platform"},
    Room{"opensees", "io model platform"},
    Room{"sap", "io model platform"},
    Room{"legacy", "io model platform"},
    Room{"pile", "io model platform platform/quorl"},
    Room{"output/engine", "io model platform"},
    Room{"output", "io model platform output/engine"},
    Room{"draw", "io model platform"},
    Room{"document", "model platform"},
};

/// May include every room, and headers of its own and of libraries.
constexpr std::string_view kTools = "tools";

/// The libraries that a room may include besides the standard one.
constexpr std::string_view kLibraryOfDocument = "nlohmann/json.hpp";

bool IsInFolder(std::string_view path, std::string_view folder) {
    return path.starts_with(folder) && path.substr(folder.size()).starts_with('/');
}

/// The room of a path from src/: "io" for "io/Card.h".
std::string_view RoomFromSrc(std::string_view path) {
    const auto found = std::find_if(kRooms.begin(), kRooms.end(), [path](const Room& room) {
        return IsInFolder(path, room.name);
    });
    return found == kRooms.end() ? std::string_view{} : found->name;
}

bool MayInclude(std::string_view from, std::string_view target) {
    if (from == target || from == kTools) {
        return true;
    }
    const auto found = std::find_if(kRooms.begin(), kRooms.end(),
                                    [from](const Room& room) { return room.name == from; });
    if (found == kRooms.end()) {
        return false;
    }
    std::string_view words = found->mayInclude;
    while (!words.empty()) {
        const std::string_view word = words.substr(0, words.find(' '));
        if (word == target) {
            return true;
        }
        words.remove_prefix(std::min(words.size(), word.size() + 1));
    }
    return false;
}

void SkipBlanks(std::string_view& line) {
    line.remove_prefix(std::min(line.size(), line.find_first_not_of(" \t")));
}

/// Whether the line is an include directive; leaves what it includes: "<...>", "\"...\"" or a
/// macro.
bool TakeInclude(std::string_view& line) {
    SkipBlanks(line);
    if (!line.starts_with('#')) {
        return false;
    }
    line.remove_prefix(1);
    SkipBlanks(line);
    constexpr std::string_view kWord = "include";
    if (!line.starts_with(kWord)) {
        return false;
    }
    line.remove_prefix(kWord.size());
    SkipBlanks(line);
    return true;
}

std::string ComplaintOnHeader(std::string_view header, std::string_view room) {
    const std::string_view target = RoomFromSrc(header);
    const std::string quoted = '"' + std::string(header) + '"';
    if (target.empty()) {
        const bool isOwn = room == kTools && IsInFolder(header, "vynx");
        return isOwn ? "" : quoted + " does not name a room: headers are named from src/";
    }
    if (!MayInclude(room, target)) {
        return quoted + ": " + std::string(room) + " may not include " + std::string(target);
    }
    return "";
}

/// The headers of the standard library, and no others, have names without a point or a folder.
std::string ComplaintOnLibrary(std::string_view header, std::string_view room) {
    const bool isStandard = header.find_first_of("./") == std::string_view::npos;
    const bool isAllowed =
        isStandard || room == kTools || (room == "document" && header == kLibraryOfDocument);
    return isAllowed ? "" : "<" + std::string(header) + "> is not of the standard library";
}

/// What is wrong with what an include directive names; empty when nothing is.
std::string Complaint(std::string_view included, std::string_view room) {
    const char open = included.empty() ? ' ' : included.front();
    const std::string_view rest = included.substr(included.empty() ? 0 : 1);
    const std::size_t length = rest.find(open == '<' ? '>' : '"');
    if ((open != '<' && open != '"') || length == std::string_view::npos) {
        return "an include line that names no header";
    }
    const std::string_view header = rest.substr(0, length);
    return open == '<' ? ComplaintOnLibrary(header, room) : ComplaintOnHeader(header, room);
}

bool IsSource(const fs::path& path) {
    static constexpr std::array kExtensions = {".h", ".hpp", ".inc", ".cpp", ".cc"};
    return std::find(kExtensions.begin(), kExtensions.end(), path.extension()) != kExtensions.end();
}

std::string ReadText(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    if (!file) {
        throw std::runtime_error("cannot read " + path.string());
    }
    return {std::istreambuf_iterator<char>(file), {}};
}

void CheckFile(const fs::path& root, const fs::path& path, TreeReport& report) {
    const fs::path name = path.lexically_relative(root);
    ++report.numFile;
    const std::string_view room = RoomOf(name);
    if (room.empty()) {
        report.complaints.push_back(name.generic_string() + ": in a folder that is not a room");
        return;
    }
    for (const std::string& complaint : CheckText(ReadText(path), room)) {
        report.complaints.push_back(name.generic_string() + ":" + complaint);
    }
}

}  // namespace

std::string_view RoomOf(const fs::path& file) {
    const std::string path = file.generic_string();
    constexpr std::string_view kSrc = "src/";
    if (IsInFolder(path, kTools)) {
        return kTools;
    }
    return path.starts_with(kSrc) ? RoomFromSrc(std::string_view(path).substr(kSrc.size()))
                                  : std::string_view{};
}

std::vector<std::string> CheckText(std::string_view text, std::string_view room) {
    std::vector<std::string> complaints;
    for (int number = 1; !text.empty(); ++number) {
        std::string_view line = text.substr(0, text.find('\n'));
        text.remove_prefix(std::min(text.size(), line.size() + 1));
        if (!TakeInclude(line)) {
            continue;
        }
        if (const std::string complaint = Complaint(line, room); !complaint.empty()) {
            complaints.push_back(std::to_string(number) + ": " + complaint);
        }
    }
    return complaints;
}

TreeReport CheckTree(const fs::path& root) {
    TreeReport report;
    for (const std::string_view folder : {"src", "tools"}) {
        for (const auto& entry : fs::recursive_directory_iterator(root / folder)) {
            if (entry.is_regular_file() && IsSource(entry.path())) {
                CheckFile(root, entry.path(), report);
            }
        }
    }
    return report;
}

}  // namespace Tevra::House

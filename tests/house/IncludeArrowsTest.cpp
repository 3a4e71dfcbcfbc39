#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <string>
#include <string_view>
#include <vector>

#include "house/IncludeArrows.h"
#include "support/TestPaths.h"

namespace Tevra::House {

namespace {

namespace fs = std::filesystem;

std::string Joined(const std::vector<std::string>& lines) {
    std::string all;
    for (const std::string& line : lines) {
        all += line + '\n';
    }
    return all;
}

TEST(IncludeArrows, TheTreeKeepsToThem) {
    const TreeReport report = CheckTree(TestSupport::SourceDir());
    EXPECT_GT(report.numFile, 10) << "the walk did not reach the sources";
    EXPECT_EQ(Joined(report.complaints), "");
}

TEST(IncludeArrows, FilesBelongToRooms) {
    EXPECT_EQ(RoomOf("src/io/StreamFile.cpp"), "io");
    EXPECT_EQ(RoomOf("src/platform/ui/MessageBox.h"), "platform");
    EXPECT_EQ(RoomOf("src/platform/quorl/Record.h"), "platform/quorl");
    EXPECT_EQ(RoomOf("src/output/engine/Task.cpp"), "output/engine");
    EXPECT_EQ(RoomOf("tools/vynx/main.cpp"), "tools");
    EXPECT_EQ(RoomOf("src/iona/StreamFile.cpp"), "");
    EXPECT_EQ(RoomOf("src/io.h"), "");
}

struct TextInRoom {
    std::string_view room;
    std::string_view text;
};

struct ForbiddenText {
    std::string_view room;
    std::string_view text;
    std::string_view complaint;  ///< a part of it
};

constexpr TextInRoom kAllowed[] = {
    {"platform", "#include \"platform/ui/Log.h\"\n"},
    {"model", "#include <vector>\n\n#include \"platform/ui/Log.h\"\n"},
    {"model", "#include \"platform/quorl/Record.h\""},
    {"pile", "#include \"platform/quorl/Record.h\""},
    {"dyna", "#include \"dyna/Deck.h\"\n#include \"io/StreamFile.h\""},
    {"document", "#include <nlohmann/json.hpp>"},
    {"tools", "#include <CLI/CLI.hpp>\n#include \"document/Reader.h\""},
    {"tools", "#include \"vynx/Formats.h\"\n#include \"dyna/Deck.h\""},
    {"io", "// #include \"dyna/Deck.h\"\nint include = 1;"},
};

constexpr ForbiddenText kForbidden[] = {
    {"platform", "#include \"model/VynData.h\"", "1: \"model/VynData.h\": platform"},
    {"platform", "#include \"platform/quorl/Record.h\"", "may not include"},
    {"model", "\n\n  #  include\t\"io/StreamFile.h\"", "3: \"io/StreamFile.h\""},
    {"io", "#include\"dyna/Deck.h\"", "io may not include dyna"},
    {"io", "#include \"platform/quorl/Record.h\"", "may not include"},
    {"dyna", "#include \"nastran/NasFile.h\"", "dyna may not include nastran"},
    {"sap", "#include \"document/Reader.h\"", "sap may not include document"},
    {"document", "#include \"io/StreamFile.h\"", "document may not include io"},
    {"document", "#include \"dyna/Deck.h\"", "document may not include dyna"},
    {"dyna", "#include <nlohmann/json.hpp>", "not of the standard library"},
    {"document", "#include <CLI/CLI.hpp>", "not of the standard library"},
    {"output", "#include <CLI/App.hpp>", "not of the standard library"},
    {"export", "#include <sqlite3.h>", "not of the standard library"},
    {"dyna", "#include \"vynx/Formats.h\"", "does not name a room"},
    {"dyna", "#include \"Deck.h\"", "does not name a room"},
    {"dyna", "#include \"../io/StreamFile.h\"", "does not name a room"},
    {"tools", "#include \"support/TestPaths.h\"", "does not name a room"},
    {"legacy", "#include HEADER_NAME", "names no header"},
    {"legacy", "#include \"io/StreamFile.h", "names no header"},
};

TEST(IncludeArrows, AllowedOnesPass) {
    for (const auto& [room, text] : kAllowed) {
        EXPECT_EQ(Joined(CheckText(text, room)), "") << text;
    }
}

TEST(IncludeArrows, ForbiddenOnesAreFound) {
    for (const auto& [room, text, complaint] : kForbidden) {
        const std::string found = Joined(CheckText(text, room));
        EXPECT_NE(found.find(complaint), std::string::npos) << text << "\nfound: " << found;
    }
}

TEST(IncludeArrows, AFolderThatIsNoRoomIsFound) {
    const fs::path root = fs::path(testing::TempDir()) / "vyn-house-with-a-shed";
    fs::create_directories(root / "src" / "shed" / "corner");
    fs::create_directories(root / "src" / "io");
    fs::create_directories(root / "tools" / "vynx");
    std::ofstream(root / "src" / "shed" / "corner" / "Tool.h") << "#pragma once\n";
    std::ofstream(root / "src" / "io" / "Card.h") << "#pragma once\n#include \"dyna/Deck.h\"\n";
    std::ofstream(root / "tools" / "vynx" / "main.cpp") << "#include <CLI/CLI.hpp>\n";

    const TreeReport report = CheckTree(root);
    fs::remove_all(root);
    const std::string found = Joined(report.complaints);
    EXPECT_EQ(report.numFile, 3);
    EXPECT_EQ(report.complaints.size(), 2U) << found;
    EXPECT_NE(found.find("src/shed/corner/Tool.h: in a folder that is not a room"),
              std::string::npos)
        << found;
    EXPECT_NE(found.find("src/io/Card.h:2: "), std::string::npos) << found;
}

}  // namespace

}  // namespace Tevra::House

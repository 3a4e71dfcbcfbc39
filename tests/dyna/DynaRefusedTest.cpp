#include <algorithm>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <string>

#include "platform/text/HostPath.h"
#include "support/DeckReader.h"
#include "support/TempFolder.h"

namespace Tevra {
namespace {

using namespace std::string_literals;
using TestSupport::DeckReader;

struct Refused {
    std::string text;
    int line;
    const char* reason;
};

void ExpectRefused(const Refused& deck) {
    SCOPED_TRACE(deck.text.substr(0, 300));
    DeckReader reader;
    EXPECT_FALSE(reader.ReadText(deck.text));
    EXPECT_EQ(reader.Line(), deck.line);
    EXPECT_NE(reader.Error().find(deck.reason), std::string::npos) << reader.Error();
}

TEST(DynaRefused, FieldsThatAreNoNumbersOfTheirKind) {
    const std::string beam = "       1       1       1       2       0";
    const Refused decks[] = {
        {"*NODE\n     1.0\n", 2, "columns 1-8: \"1.0\" is not an integer"},
        {"*NODE\n    1  2\n", 2, "columns 1-8: \"1  2\" is not an integer"},
        {"*NODE\n       1        1.0 2.0\n", 2, "columns 9-24: \"1.0 2.0\" is not a number"},
        {"*NODE\n       1            0.5            0.5            1,5\n", 2, "comma-separated"},
        {"*NODE\n       1            1.0m\n", 2, "columns 9-24: \"1.0m\""},
        {"*NODE\n       1            1.0e\n", 2, "columns 9-24"},
        {"*NODE\n       1          1.0+5+\n", 2, "columns 9-24"},
        {"*NODE\n       1         1.0e5+5\n", 2, "columns 9-24"},
        {"*NODE\n       1              +\n", 2, "columns 9-24"},
        {"*NODE\n       1            +-1\n", 2, "columns 9-24"},
        {"*NODE\n       1             nan\n", 2, "columns 9-24"},
        {"*NODE\n       1            -inf\n", 2, "columns 9-24"},
        {"*NODE\n       1           1e999\n", 2, "columns 9-24"},
        {"*NODE\n       1            0x10\n", 2, "columns 9-24"},
        {"*NODE\n       1           &edge\n", 2, "columns 9-24: \"&edge\""},
        {"*NODE\n\t1\t1.0\n", 2, "columns 1-8: \"?1?1.0\""},
        {"*NODE\n       1"s + '\0' + "\n", 2, "columns 9-24: \"?\""},
        {"*NODE\n       1" + std::string(48, ' ') + "       8\n", 2,
         "columns 57-64: \"8\" is not a code from 0 to 7"},
        {"*NODE\n       1" + std::string(56, ' ') + "      -1\n", 2, "columns 65-72"},
        {"*NODE\n       1" + std::string(48, ' ') + "     1.0\n", 2, "columns 57-64"},
        {"*NODE\n       1\n   $ a comment needs column 1\n", 3, "columns 1-8"},
        {"*ELEMENT_BEAM\n" + beam + "       0       0       0       9\n", 2, "columns 65-72"},
        {"*ELEMENT_BEAM\n" + beam + std::string(32, ' ') + "       x\n", 2, "columns 73-80"},
        {"*ELEMENT_BEAM\n       1       x       1       2\n", 2, "columns 9-16"},
        {"*ELEMENT_SHELL\n       1       1       1       2       3       4       x\n", 2,
         "columns 49-56"},
        {"*ELEMENT_DISCRETE\n       1       1       1       x\n", 2, "columns 25-32"},
        {"*ELEMENT_MASS\n       1       1               x\n", 2, "columns 17-32"},
        {"*ELEMENT_INERTIA\n       1       1       x\n       1.0\n", 2, "columns 17-24"},
        {"*ELEMENT_INERTIA\n       1       1\n       1.0       2.0         x\n", 3,
         "columns 21-30"},
        {"*ELEMENT_SOLID\n       1       1\n       1       2       3       x\n", 3,
         "columns 25-32"},
        {"$\r\n*NODE\r\n       1\r\n\r\n       x\r\n", 5, "\"x\""},
    };
    for (const Refused& deck : decks) {
        ExpectRefused(deck);
    }
}

TEST(DynaRefused, NumbersBelowOneAndEntriesThatLackNodes) {
    const Refused decks[] = {
        {"*NODE\n       1\n       0\n", 3, "columns 1-8: \"0\" is not the number of an entity"},
        {"*NODE\n      -5\n", 2, "columns 1-8: \"-5\" is not the number of an entity"},
        {"*NODE\n             1.0\n", 2, "columns 1-8: blank is not the number of an entity"},
        {"*ELEMENT_BEAM\n       0       1       1       2\n", 2, "columns 1-8"},
        {"*ELEMENT_BEAM\n       1      -1       1       2\n", 2, "columns 9-16"},
        {"*ELEMENT_BEAM\n       1       1\n", 2, "columns 17-24: blank"},
        {"*ELEMENT_BEAM\n       1       1       1       2      -3\n", 2, "columns 33-40"},
        {"*ELEMENT_DISCRETE\n       1       1               2\n", 2, "columns 17-24: blank"},
        {"*ELEMENT_MASS\n       1       0             1.0\n", 2, "columns 9-16"},
        {"*ELEMENT_INERTIA\n       0       1\n       1.0\n", 2, "columns 1-8"},
        {"*ELEMENT_SHELL\n       7       1       1       2\n", 2, "shell 7 lacks nodes"},
        {"*ELEMENT_SHELL\n       7       1       1       2       3       4       5\n", 2,
         "shell 7 lacks nodes"},
        {"*ELEMENT_SHELL\n       7       1       1      -2       3\n", 2, "columns 25-32"},
        {"*ELEMENT_SOLID\n       7       1\n       1       2       3       4\n", 3,
         "solid 7 lacks nodes"},
        {"*ELEMENT_SOLID\n       7       1\n       1       2       3       4       5       6"
         "       7       8       9      10\n",
         3, "more than eight nodes"},
        {"*ELEMENT_SOLID\n       7       1\n*END\n", 3, "lacks its second line"},
        {"*ELEMENT_SOLID\n       7       1\n$\n", 3, "lacks its second line"},
        {"*ELEMENT_INERTIA\n       7       1", 2, "lacks its second line"},
    };
    for (const Refused& deck : decks) {
        ExpectRefused(deck);
    }
}

TEST(DynaRefused, NumbersThatAModelCanNotHold) {
    std::string nodes = "*NODE\n";
    for (int i = 0; i < 1200; ++i) {
        nodes += std::to_string(10'000'000 + i * 20'000) + "\n";
    }
    ExpectRefused({nodes, 1094, "node 31840000: the numbers are too scattered"});
}

TEST(DynaRefused, LinesThatCanNotBeTold) {
    const std::string beam = "       1       1       1       2       3\n";
    const std::string shell8 =
        "       1       1       1       2       3       4       5       6       7       8\n";
    const Refused decks[] = {
        {"*KEYWORD LONG=Y\n", 1, "other widths"},
        {"*KEYWORD long = s\n", 1, "other widths"},
        {"*KEYWORD I10=N LONG=K\n", 1, "other widths"},
        {"\n*KEYWORD MEMORY=10 I10=Y\n", 2, "other widths"},
        {"*NODE+\n", 1, "other widths"},
        {"*NODE %\n", 1, "other widths"},
        {"*ELEMENT_SHELL_MCID +\n", 1, "other widths"},
        {"*NODE LONG=S\n", 1, "other widths"},
        {"*NODE\n1,0.5,0.5,0.5\n", 2, "comma-separated"},
        {"*ELEMENT_SOLID\n       1       1\n1,2,3,4,5,6,7,8\n", 3, "comma-separated"},
        {"*NODES\n", 1, "\"*NODES\" of *NODE is not read"},
        {"*NODE_TRANSFORM\n", 1, "not read"},
        {"*ELEMENT_MASS_NODE_SET\n", 1, "not read"},
        {"*ELEMENT_SHELL_OFFSET_COMPOSITE\n", 1, "not read"},
        {"*ELEMENT_SHELL_\n", 1, "not read"},
        {"*ELEMENT_SHELL_PID\n", 1, "not read"},
        {"*element_solid_ortho\n", 1, "\"*ELEMENT_SOLID_ORTHO\" of *ELEMENT_SOLID is not read"},
        {"*ELEMENT_BEAM_OFFSET\n" + beam, 2, "lacks a further line"},
        {"*ELEMENT_BEAM_OFFSET\n" + beam + "*END\n", 3, "lacks a further line"},
        {"*ELEMENT_BEAM_OFFSET\n" + beam + "       x\n", 3, "a further line"},
        {"*ELEMENT_BEAM_THICKNESS\n" + beam + beam, 3, "a further line"},
        {"*ELEMENT_SHELL_MCID\n" + shell8 + "             0.0\n" + shell8, 4, "a further line"},
        {"*ELEMENT_SHELL_TITLE\n*END\n", 2, "lacks its heading line"},
        {"*ELEMENT_SHELL_TITLE", 1, "lacks its heading line"},
    };
    for (const Refused& deck : decks) {
        ExpectRefused(deck);
    }
}

TEST(DynaRefused, WhatStandsAboveTheFailingLineStays) {
    DeckReader reader;
    EXPECT_FALSE(reader.ReadText(
        "*NODE\n       1     1.5\n       2     2.5\n"
        "*ELEMENT_BEAM\n       4       1       1       2\n       5       1       x\n"
        "*NODE\n       3\n"));
    EXPECT_EQ(reader.Line(), 6);
    EXPECT_EQ(reader.Model().NumNode(), 2);
    EXPECT_EQ(reader.Model().Node(2).Position().x, 2.5);
    EXPECT_TRUE(reader.Model().ElemExist(4));
    EXPECT_EQ(reader.Model().HighestElem(), 4);
}

/// A deck with each keyword, and what is left of it when it is damaged.
const std::string& SmallDeck() {
    static const std::string kDeck =
        "*KEYWORD\n*NODE\n"
        "       1             0.5             0.5             0.5       1       7\n"
        "       2          1.5e+2            -2.5            3.+1       0       0\n"
        "*ELEMENT_BEAM_OFFSET\n"
        "       1       2       1       2       3       1       0       0       6\n"
        "       0.0       0.0       0.1       0.0       0.0       0.1\n"
        "*ELEMENT_SHELL_MCID\r\n"
        "       2       1       1       2       3       3\r\n"
        "             0.0             0.0             0.0             0.0               1\r\n"
        "*ELEMENT_SOLID\n$ two lines\n       3       1\n"
        "       1       2       3       4       5       6       7       8\n"
        "*PART\nx\n       1       1       1\n"
        "*ELEMENT_INERTIA\n       1       1       0\n"
        "       1.0       2.0       3.0       4.0       5.0       6.0       7.0\n"
        "*ELEMENT_MASS\n       1       2             8.0\n"
        "*ELEMENT_DISCRETE\n       4       1       1       2\n*END\n";
    return kDeck;
}

/// Reads a damaged deck; it must be read, or refused at one of its lines with a reason.
void ExpectOutcome(const std::string& text) {
    DeckReader reader;
    const bool read = reader.ReadText(text);
    const auto lines = static_cast<int>(std::count(text.begin(), text.end(), '\n'));
    const int last = lines + (text.empty() || text.back() == '\n' ? 0 : 1);
    EXPECT_EQ(read, reader.Error().empty()) << text;
    EXPECT_LE(reader.Line(), last) << text;
    EXPECT_TRUE(read ? reader.Line() == last : reader.Line() > 0) << text;
    EXPECT_LE(reader.Model().NumNode(), lines);
    EXPECT_LE(reader.Model().NumElem(), lines);
}

TEST(DynaRefused, TheDeckThatIsDamagedBelowIsWholeItself) {
    DeckReader reader;
    EXPECT_TRUE(reader.ReadText(SmallDeck())) << reader.Line() << ": " << reader.Error();
    EXPECT_EQ(reader.Model().NumNode(), 2);
    EXPECT_EQ(reader.Model().NumElem(), 4);
    EXPECT_EQ(reader.Model().NumMassProp(), 2);
}

TEST(DynaRefused, ADeckCutAtAnyByteIsReadOrRefusedAtALine) {
    for (std::size_t length = 0; length <= SmallDeck().size(); ++length) {
        ExpectOutcome(SmallDeck().substr(0, length));
    }
}

TEST(DynaRefused, ADeckWithAnyByteChangedIsReadOrRefusedAtALine) {
    const std::string bytes = "\0\t\n\r $*,+-.09AZez~\x7f\x80\xff"s;
    for (std::size_t i = 0; i < SmallDeck().size(); ++i) {
        for (const char byte : bytes) {
            std::string text = SmallDeck();
            text[i] = byte;
            ExpectOutcome(text);
        }
    }
}

TEST(DynaRefused, LongLinesAreLines) {
    constexpr std::size_t kMegabyte = 1'000'000;
    const std::string node = "*NODE\n       1     0.5" + std::string(kMegabyte, ' ') + "\n";
    const std::string comment = "$" + std::string(kMegabyte, 'x') + "\n";
    DeckReader reader;
    ASSERT_TRUE(reader.ReadText(comment + node + comment + "       2     1.5")) << reader.Error();
    EXPECT_EQ(reader.Line(), 5);
    EXPECT_EQ(reader.Model().Node(2).Position().x, 1.5);
    const std::string digits(kMegabyte, '1');
    ExpectRefused(
        {"*NODE\n       1\n       2" + std::string(56, ' ') + digits, 3, "columns 65-72"});
    ExpectRefused({"*NODE" + digits + "\n", 1, "not read"});
    ExpectRefused({"*NODE\n" + std::string(kMegabyte * 20, '1'), 2, "no text file"});
}

TEST(DynaRefused, DecksWithNextToNothing) {
    for (const std::string& text : {""s, "*"s, "\n"s, "*\n*\n"s, "\0"s, "\0\0\n\0"s, "$"s, "*NODE"s,
                                    "*ELEMENT_SOLID\n"s, "\xEF\xBB\xBF"s, "\xEF\xBB"s}) {
        DeckReader reader;
        EXPECT_TRUE(reader.ReadText(text)) << text << reader.Error();
        EXPECT_EQ(reader.Model().NumNode(), 0);
    }
}

TEST(DynaRefused, HighNumbersCostNothing) {
    // Records up to these numbers would take gigabytes side by side.
    std::string deck = "*NODE\n";
    for (int number = 99'999'999; number > 99'000'000; number -= 999) {
        deck += std::to_string(number) + "     1.5\n";
    }
    deck += "*ELEMENT_BEAM\n99999999       199999999       1\n";
    DeckReader reader;
    ASSERT_TRUE(reader.ReadText(deck)) << reader.Error();
    EXPECT_EQ(reader.Model().HighestNode(), 99'999'999);
    EXPECT_EQ(reader.Model().NumNode(), 1001);
    EXPECT_EQ(reader.Model().Elem(99'999'999).Topo(1), 99'999'999);
}

TEST(DynaRefused, FilesThatCanNotBeOpenedOrRead) {
    const TestSupport::TempFolder folder;
    DeckReader reader;
    const auto open = [&](const std::filesystem::path& path) {
        return reader.OpenRead(Text::FromPath(path));
    };
    const auto write = [&](const char* name, const char* text) {
        std::ofstream(folder.Path() / name, std::ios::binary) << text;
        return folder.Path() / name;
    };
    EXPECT_FALSE(open(write("bad.k", "*NODE\n       x\n")));
    EXPECT_EQ(reader.Line(), 2);
    EXPECT_FALSE(open(folder.Path() / "none.k"));
    EXPECT_EQ(reader.Line(), 0);
    EXPECT_EQ(reader.Error(), "the file can't be opened");
    EXPECT_FALSE(open(folder.Path()));
    EXPECT_EQ(reader.Line(), 0);
    EXPECT_EQ(reader.Error(), "the file can't be read");
    EXPECT_EQ(reader.Model().HighestNode(), 0);
    EXPECT_TRUE(open(write("good.k", "*NODE\n       1\n*PART\n")));
    EXPECT_EQ(reader.Line(), 3);
    EXPECT_EQ(reader.Error(), "");
    EXPECT_EQ(reader.Report().nodes, 1);
    EXPECT_EQ(reader.Model().HighestNode(), 1);
    CDynaImport without;
    EXPECT_FALSE(without.OpenRead(Text::FromPath(folder.Path() / "good.k")));
    EXPECT_EQ(without.Error(), "there is no model");
}

}  // namespace
}  // namespace Tevra

#include <gtest/gtest.h>
#include <sstream>
#include <string>

#include "platform/text/Utf8.h"
#include "support/DeckReader.h"

namespace Tevra {
namespace {

using TestSupport::DeckReader;

std::string Letters(Vbool6 flags) {
    std::string letters;
    for (const Direction d : kDirections) {
        letters += flags.IncludesDirection(d) ? "xyzXYZ"[static_cast<int>(d)] : '\0';
    }
    std::erase(letters, '\0');
    return letters;
}

/// All that the reader can put into a model, a line per record: nodes with coordinates, restrained
/// directions and mass; elements with type, property, nodes, orientation node and released
/// directions; masses with axis, mass and xx yy zz xy yz zx.
std::string Describe(const CVynData& model) {
    std::ostringstream out;
    for (const int i : model.NodeTable().Numbers()) {
        const Data::CNode& node = model.Node(i);
        const Vec3<double>& p = node.Position();
        out << "N" << i << ' ' << p.x << ' ' << p.y << ' ' << p.z;
        out << (node.Restraint().IsNone() ? "" : " held ") << Letters(node.Restraint());
        if (node.MassProperty() != 0) {
            out << " mass " << node.MassProperty();
        }
        out << '\n';
    }
    for (const int i : model.ElemTable().Numbers()) {
        const Data::CElement& element = model.Elem(i);
        out << "E" << i << ' ' << Text::ToUtf8(ElementTypeString(element.Type())) << ' '
            << element.Property() << ':';
        for (const int node : element.Topo()) {
            out << ' ' << node;
        }
        if (element.OrientationNode() != 0) {
            out << " up " << element.OrientationNode();
        }
        if (!element.Connect(1).IsFixed() || !element.Connect(2).IsFixed()) {
            out << " free " << Letters(element.Connect(1)) << '|' << Letters(element.Connect(2));
        }
        out << '\n';
    }
    for (const int i : model.MassPropTable().Numbers()) {
        const Data::CMassProp& mass = model.MassProp(i);
        const TensSym3<double>& t = mass.Inertia();
        out << "M" << i << " axis " << mass.Axis() << ' ' << mass.Mass() << ": " << t.xx << ' '
            << t.yy << ' ' << t.zz << ' ' << t.xy << ' ' << t.yz << ' ' << t.zx << '\n';
    }
    return out.str();
}

struct Deck {
    const char* about;
    std::string text;
    const char* model;
};

void ExpectRead(const Deck& deck) {
    SCOPED_TRACE(deck.about);
    DeckReader reader;
    EXPECT_TRUE(reader.ReadText(deck.text)) << reader.Line() << ": " << reader.Error();
    EXPECT_EQ(Describe(reader.Model()), deck.model);
}

TEST(DynaImport, EachKeywordMakesItsEntities) {
    const Deck decks[] = {
        {"node",
         "*NODE\n"
         "       7            1.25         -2.5e-3           3.E+2       1       6\n",
         "N7 1.25 -0.0025 300 held xXZ\n"},
        {"a line that ends early leaves the rest at 0", "*NODE\n       3\n       4      1.5\n",
         "N3 0 0 0\nN4 1.5 0 0\n"},
        {"fields that touch one another",
         "*NODE\n"
         "12345678-1.234567890E-10-2.345678901E+10-3.456789012E-01       7       7\n",
         "N12345678 -1.23457e-10 -2.34568e+10 -0.345679 held xyzXYZ\n"},
        {"beam, its last field without use here",
         "*ELEMENT_BEAM\n"
         "      11       2       5       6       9       1       6       7       0       2\n",
         "E11 BEAM 2: 5 6 up 9 free xXZ|xyz\n"},
        {"beam without orientation and releases",
         "*ELEMENT_BEAM\n"
         "      11       2       5       6\n",
         "E11 BEAM 2: 5 6\n"},
        {"discrete beam that holds its node to the ground",
         "*ELEMENT_BEAM\n"
         "      11       2       5       0       0\n",
         "E11 SPRING 2: 5\n"},
        {"spring, and one that holds its node to the ground",
         "*ELEMENT_DISCRETE\n"
         "       1       4       5       6       3             1.0       0             0.0\n"
         "       2       4       5       0\n",
         "E1 SPRING 4: 5 6\nE2 SPRING 4: 5\n"},
        {"mass",
         "*NODE\n       5\n"
         "*ELEMENT_MASS\n"
         "       1       5          1250.5       9\n",
         "N5 0 0 0 mass 1\nM1 axis 0 1250.5: 0 0 0 0 0 0\n"},
        {"inertia: xx, xy, xz, yy, yz, zz, mass",
         "*NODE\n       5\n"
         "*ELEMENT_INERTIA\n"
         "       1       5       8\n"
         "       1.0       2.0       3.0       4.0       5.0       6.0      70.0\n",
         "N5 0 0 0 mass 1\nM1 axis 8 70: 1 4 6 2 5 3\n"},
        {"masses are numbered on; one on a node that comes later keeps its property alone",
         "*ELEMENT_MASS\n       1       5             2.0\n"
         "*NODE\n       5\n"
         "*ELEMENT_MASS\n       2       5             3.0\n",
         "N5 0 0 0 mass 2\nM1 axis 0 2: 0 0 0 0 0 0\nM2 axis 0 3: 0 0 0 0 0 0\n"},
        {"no part", "*ELEMENT_BEAM\n       1               5       6\n", "E1 BEAM 0: 5 6\n"},
    };
    for (const Deck& deck : decks) {
        ExpectRead(deck);
    }
}

TEST(DynaImport, CodesChooseDirections) {
    constexpr const char* kLetters[] = {"", "x", "y", "z", "xy", "yz", "xz", "xyz"};
    constexpr const char* kTurns[] = {"", "X", "Y", "Z", "XY", "YZ", "XZ", "XYZ"};
    for (int t = 0; t <= 7; ++t) {
        for (int r = 0; r <= 7; ++r) {
            const std::string codes = "       " + std::to_string(t) + "       " + std::to_string(r);
            DeckReader reader;
            ASSERT_TRUE(reader.ReadText("*NODE\n       1" + std::string(48, ' ') + codes + "\n" +
                                        "*ELEMENT_BEAM\n       1       1       1       2       0" +
                                        std::string(16, ' ') + codes + "\n"))
                << reader.Error();
            const std::string expected = std::string(kLetters[t]) + kTurns[r];
            EXPECT_EQ(Letters(reader.Model().Node(1).Restraint()), expected);
            EXPECT_EQ(Letters(reader.Model().Elem(1).Connect(1)), "");
            EXPECT_EQ(Letters(reader.Model().Elem(1).Connect(2)), expected);
        }
    }
}

/// The eight node fields of a shell or solid, and what they are.
struct Shape {
    const char* about;
    const char* fields;
    const char* element;
};

constexpr Shape kShells[] = {
    {"four corners", "       1       2       3       4", "QUAD4 2: 1 2 3 4"},
    {"zeros behind", "       1       2       3       4       0       0       0       0",
     "QUAD4 2: 1 2 3 4"},
    {"no fourth corner", "       1       2       3", "TRI3 2: 1 2 3"},
    {"fourth corner 0", "       1       2       3       0", "TRI3 2: 1 2 3"},
    {"fourth corner is the third", "       1       2       3       3", "TRI3 2: 1 2 3"},
    {"with mid-side nodes", "       1       2       3       4       5       6       7       8",
     "QUAD8 2: 1 2 3 4 5 6 7 8"},
    {"a triangle with mid-side nodes", "       1       2       3       3       5       6       7",
     "TRI6 2: 1 2 3 5 6 7"},
    {"and without a fourth corner", "       1       2       3               5       6       7",
     "TRI6 2: 1 2 3 5 6 7"}};

constexpr Shape kSolids[] = {
    {"eight nodes", "       1       2       3       4       5       6       7       8",
     "BRICK8 2: 1 2 3 4 5 6 7 8"},
    {"four nodes, the last repeated",
     "       1       2       3       4       4       4       4       4", "TETRA4 2: 1 2 3 4"},
    {"four nodes, two repeated", "       1       2       3       3       5       5       5       5",
     "TETRA4 2: 1 2 3 5"},
    {"five nodes", "       1       2       3       4       5       5       5       5",
     "PYRAMID5 2: 1 2 3 4 5"},
    {"six nodes, as 4 5 2 1 6 6 3 3 of a wedge 1 to 6",
     "       4       5       2       1       6       6       3       3", "WEDGE6 2: 1 2 3 4 5 6"},
    {"pairs in other places are a collapsed hexahedron",
     "       1       2       3       3       5       6       7       7",
     "BRICK8 2: 1 2 3 3 5 6 7 7"}};

TEST(DynaImport, NodeFieldsMakeTheShapeOfShells) {
    for (const Shape& shape : kShells) {
        const std::string element = std::string("E9 ") + shape.element + "\n";
        ExpectRead({shape.about, std::string("*ELEMENT_SHELL\n       9       2") + shape.fields,
                    element.c_str()});
    }
}

TEST(DynaImport, NodeFieldsMakeTheShapeOfSolidsOnOneLineOrTwo) {
    for (const Shape& shape : kSolids) {
        const std::string element = std::string("E9 ") + shape.element + "\n";
        for (const char* between : {"", "\n", "   \n$ between\n\n"}) {
            ExpectRead(
                {shape.about,
                 std::string("*ELEMENT_SOLID\n       9       2") + between + shape.fields + "\n",
                 element.c_str()});
        }
    }
}

TEST(DynaImport, LinesAreWhatTheyAreHoweverTheyLook) {
    const char* const two = "N1 0.5 0 0\nN2 1.5 0 0\n";
    const Deck decks[] = {
        {"CR LF", "*NODE\r\n       1     0.5\r\n       2     1.5\r\n*END\r\n", two},
        {"no last line end", "*NODE\n       1     0.5\n       2     1.5", two},
        {"lower case and blanks round the keyword",
         "  *node  \n       1     0.5\n       2     1.5\n*end\n", two},
        {"comments and empty lines in the block",
         "$ a\n*NODE\n$\n       1     0.5\n\n  \n$ *NODE\n       2     1.5\n", two},
        {"lines before, between and after the blocks",
         "title, with a comma\n*TITLE\n*KEYWORDS come later\n*NODE\n       1     0.5\n"
         "*PART\n       9\n*NODE\n       2     1.5\n*END\n       3\n",
         two},
        {"the words of the keyword line that do not matter",
         "*KEYWORD I10=N LONG=N\n*NODE $ nodes\n       1     0.5\n*NODE - \n       2     1.5\n",
         two},
        {"a mark of UTF-8 at the beginning",
         "\xEF\xBB\xBF*NODE\n       1     0.5\n       2     1.5", two},
        {"numbers anywhere in their fields",
         "*NODE\n1       0.5\n  +2    +1.5             0               0\n", two},
        {"exponents without a letter",
         "*NODE\n       1         5.0-1           +0+0            -0-7\n"
         "       2         0.15+1\n",
         "N1 0.5 0 -0\nN2 1.5 0 0\n"},
        {"more behind the last field",
         "*NODE\n       1     0.5" + std::string(56, ' ') + " corner\n       2     1.5\n", two},
    };
    for (const Deck& deck : decks) {
        ExpectRead(deck);
    }
}

// Entries of one element each, with the lines that the options of their keyword put behind them.
constexpr const char* kBeam = "       1       2       3       4       5\n";
constexpr const char* kShell = "       1       2       3       4       5       6\n";
constexpr const char* kShell8 =
    "       1       2       3       4       5       6       7       8       9      10\n";
constexpr const char* kTens = "       0.1       0.2       0.3       0.4\n";
constexpr const char* kSixteens = "             0.1             0.2             0.3\n";
constexpr const char* kWhole = "       1       2\n";

TEST(DynaImport, LinesOfOptionsBelongToTheirEntries) {
    const std::string beam = "E1 BEAM 2: 3 4 up 5\n";
    const std::string shell = "E1 QUAD4 2: 3 4 5 6\n";
    const std::string shell8 = "E1 QUAD8 2: 3 4 5 6 7 8 9 10\n";
    struct Form {
        const char* keyword;
        std::string entry;
        std::string element;
    };
    const std::string heading = "$ a comment\n   *text, with $ of any kind\n";
    const Form forms[] = {
        {"*ELEMENT_BEAM_OFFSET", std::string(kBeam) + kTens, beam},
        {"*ELEMENT_BEAM_ORIENTATION", std::string(kBeam) + kTens, beam},
        {"*ELEMENT_BEAM_THICKNESS", std::string(kBeam) + kSixteens, beam},
        {"*ELEMENT_BEAM_PID", std::string(kBeam) + kWhole, beam},
        {"*ELEMENT_BEAM_PID_OFFSET", std::string(kBeam) + kWhole + kTens, beam},
        {"*element_beam_offset_orientation", std::string(kBeam) + kTens + "$\n" + kTens, beam},
        {"*ELEMENT_SHELL_THICKNESS", std::string(kShell) + kSixteens, shell},
        {"*ELEMENT_SHELL_BETA", std::string(kShell) + "\n", shell},
        {"*ELEMENT_SHELL_MCID", std::string(kShell) + kSixteens, shell},
        {"*ELEMENT_SHELL_OFFSET", std::string(kShell8) + kSixteens, shell8},
        {"*ELEMENT_SHELL_MCID_OFFSET", std::string(kShell) + kSixteens + kSixteens, shell},
        {"*ELEMENT_SHELL_THICKNESS", std::string(kShell8) + kSixteens + kSixteens, shell8},
        {"*ELEMENT_SHELL_MCID", std::string(kShell) + "1.0,2.0,3.0,4.0,5\n", shell},
    };
    for (const Form& form : forms) {
        // A second entry tells whether the first took the right number of lines.
        std::string second = form.entry;
        second.replace(0, 8, "       2");
        std::string element = form.element + form.element;
        element[form.element.size() + 1] = '2';
        ExpectRead({form.keyword, std::string(form.keyword) + "\n" + form.entry + second,
                    element.c_str()});
        ExpectRead({form.keyword,
                    std::string(form.keyword) + "_TITLE\n" + heading + form.entry + second + "*END",
                    element.c_str()});
    }
    ExpectRead({"inertia offset",
                "*ELEMENT_INERTIA_OFFSET\n       1       5\n       1.0\n" + std::string(kTens) +
                    "       2       5\n       2.0\n" + kTens,
                "M1 axis 0 0: 1 0 0 0 0 0\nM2 axis 0 0: 2 0 0 0 0 0\n"});
}

TEST(DynaImport, WhatDoesNotBecomeAnEntityIsReported) {
    DeckReader reader;
    ASSERT_TRUE(
        reader.ReadText("*KEYWORD\n*TITLE\nx\n*Part $ one\n*PART_INERTIA\n*part\t2\n*\n"
                        "*NODE\n       1\n       1\n       2\n"
                        "*ELEMENT_BEAM\n       1       1       1       2\n"
                        "*ELEMENT_SHELL\n       1       1       1       2       3\n"
                        "*ELEMENT_MASS\n       1       1\n       2       1\n"
                        "       3       9\n*END\n"))
        << reader.Error();
    const DynaReport& report = reader.Report();
    EXPECT_EQ(report.nodes, 3);
    EXPECT_EQ(report.nodesReplaced, 1);
    EXPECT_EQ(report.elements, 2);
    EXPECT_EQ(report.elementsReplaced, 1);
    EXPECT_EQ(report.massesReplaced, 1);
    EXPECT_EQ(report.massesWithoutNode, 1);
    const std::map<std::string, std::int64_t, std::less<>> skipped{
        {"*", 1}, {"*PART", 2}, {"*PART_INERTIA", 1}, {"*TITLE", 1}};
    EXPECT_EQ(report.skipped.ByName(), skipped);
}

TEST(DynaImport, NamesOfSkippedKeywordsAreBoundedInNumberAndLength) {
    std::string deck = "*" + std::string(1'000'000, 'A') + "\n";
    for (int i = 0; i < 5000; ++i) {
        deck += "*K" + std::to_string(i) + "\n";
    }
    DeckReader reader;
    ASSERT_TRUE(reader.ReadText(deck));
    const auto& counts = reader.Report().skipped.ByName();
    std::int64_t total = 0;
    for (const auto& [name, count] : counts) {
        EXPECT_LE(name.size(), 80U);
        total += count;
    }
    EXPECT_LE(counts.size(), 1001U);
    EXPECT_EQ(total, 5001);
}

}  // namespace
}  // namespace Tevra

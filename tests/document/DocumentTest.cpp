#include <bit>
#include <cmath>
#include <cstdlib>
#include <fstream>
#include <gtest/gtest.h>
#include <limits>
#include <random>
#include <sstream>
#include <string>

#include "document/ModelDocument.h"
#include "model/VynData.h"
#include "support/FullModel.h"
#include "support/Random.h"
#include "support/TempFolder.h"
#include "support/TestPaths.h"

namespace Tevra {
namespace {

std::string Written(const CVynData& model) {
    std::ostringstream text;
    std::string error;
    EXPECT_TRUE(Document::WriteDocument(model, text, error)) << error;
    return text.str();
}

/// Reads a document; the message when it can't be read.
std::string Refusal(const std::string& text, CVynData& model) {
    std::istringstream input(text);
    std::string error;
    return Document::ReadDocument(input, model, error) ? "" : error;
}

TEST(Document, AModelWithEveryKindOfRecordComesBackTheSame) {
    const CVynData model = TestSupport::MakeFullModel();
    const std::string text = Written(model);
    CVynData again;
    ASSERT_EQ(Refusal(text, again), "");
    EXPECT_TRUE(again == model);
    EXPECT_EQ(Written(again), text);
    EXPECT_TRUE(again.IsLockedByResults());
}

// Every key that the schema knows stands in the document of the full model, so that a new field
// without a place in it is noticed.
TEST(Document, TheFullModelUsesEveryKindOfRecord) {
    const CVynData model = TestSupport::MakeFullModel();
#define VYN_EXPECT_SOME(Kind, Record) EXPECT_GT(model.Num##Kind(), 0) << #Kind;
    VYN_RECORD_KINDS(VYN_EXPECT_SOME)
#undef VYN_EXPECT_SOME
    for (int kind = 0; kind < kNumResultKind; ++kind) {
        EXPECT_NE(model.Results().Find(1)->Find(static_cast<ResultKind>(kind)), nullptr) << kind;
    }
}

TEST(Document, NumbersAreKeptToTheLastBit) {
    auto random = TestSupport::SeededRandom(7);
    CVynData model;
    int number = 0;
    const auto add = [&](double value) { model.SetNode(++number, Data::CNode({value, 0.0, 1.0})); };
    for (const double value :
         {-0.0, 5e-324, 2.2250738585072014e-308, 0.1, 1e23, std::numeric_limits<double>::max()}) {
        add(value);
    }
    while (number < 20'000) {
        const auto value = std::bit_cast<double>(random());
        if (std::isfinite(value)) {
            add(value);
        }
    }
    CVynData again;
    ASSERT_EQ(Refusal(Written(model), again), "");
    for (int i = 1; i <= number; ++i) {
        ASSERT_EQ(std::bit_cast<std::uint64_t>(again.Node(i).Position().x),
                  std::bit_cast<std::uint64_t>(model.Node(i).Position().x))
            << i;
    }
}

TEST(Document, TextsAndNumbersAtTheirLimitsComeBack) {
    CVynData model;
    Data::CNode node;
    node.SetName(L"\"quoted\" \\ tab\t line\n caf\x00e9 \x65e5\x672c \x1f600");
    node.SetSid(L"a=1;b=\x00fc");
    node.SetColour(0x123456);
    model.SetNode(2'147'483'647, node);
    CVynData again;
    ASSERT_EQ(Refusal(Written(model), again), "");
    EXPECT_TRUE(again == model);
    EXPECT_NE(Written(model).find("#563412"), std::string::npos);  // red stands in the low bits
}

// What the host could not read either is kept as it stands.
TEST(Document, TextsThatCanNotBeReadAndReservedCodesComeBack) {
    CVynData model;
    model.SetAnalysisCase(1, {L"", 0, L"bad junk"});
    model.SetCombinationCase(1, {L"", L"A1 ++ B"});
    model.SetCombinationCase(2, {L"", L""});
    model.SetList(1, {L"", CEntList(L"1 to", SelType::Node)});
    model.SetMassCase(CCaseDesc(L"nonsense"));
    model.SetElem(1, Data::CElement(static_cast<ElementType>(13), {1, 2}, 3));
    Data::CMatAnal material;
    material.SetModel(static_cast<MatModel>(2));
    model.SetMatAnal(1, material);
    CVynData again;
    ASSERT_EQ(Refusal(Written(model), again), "");
    EXPECT_TRUE(again == model);
}

struct Broken {
    const char* document;
    const char* message;
};

TEST(Document, WhatIsWrongIsNamedWithItsPath) {
    const Broken cases[] = {
        {"", "is empty"},
        {"[]", "the document: expected an object"},
        {"7", "the document: expected an object"},
        {"{}", "the key \"version\" is missing: this is not a model document"},
        {R"({"version": 2})", "version: version 2 can't be read; this program reads version 1"},
        {R"({"version": "1"})", "version: expected a whole number"},
        {R"({"version": 1, "knots": []})", "knots: unknown key"},
        {R"({"version": 1, "nodes": [], "nodes": []})", "nodes: given twice"},
        {R"({"version": 1, "nodes": {}})", "nodes: expected a list"},
        {R"({"version": 1, "nodes": [7]})", "nodes[0]: expected an object"},
        {R"({"version": 1, "nodes": [{"number": 1}]})", "nodes[0].position: missing"},
        {R"({"version": 1, "nodes": [{"position": [0, 0, 0]}]})", "nodes[0].number: missing"},
        {R"({"version": 1, "nodes": [{"number": 0, "position": [0, 0, 0]}]})",
         "nodes[0].number: expected a whole number from 1"},
        {R"({"version": 1, "nodes": [{"number": 1.5, "position": [0, 0, 0]}]})",
         "nodes[0].number: expected a whole number"},
        {R"({"version": 1, "nodes": [{"number": 3000000000, "position": [0, 0, 0]}]})",
         "nodes[0].number: expected a whole number"},
        {R"({"version": 1, "nodes": [{"number": 4, "position": [0, 0, 0]},
                                     {"number": 4, "position": [0, 0, 0]}]})",
         "nodes[1].number: 4 is used twice"},
        {R"({"version": 1, "nodes": [{"number": 1, "position": [0, 0]}]})",
         "nodes[0].position: expected a list of 3 numbers"},
        {R"({"version": 1, "nodes": [{"number": 1, "position": [0, "a", 0]}]})",
         "nodes[0].position[1]: expected a number"},
        {R"({"version": 1, "nodes": [{"number": 1, "position": [0, null, 0]}]})",
         "nodes[0].position[1]: expected a number"},
        {R"({"version": 1, "nodes": [{"number": 1, "position": [0, 0, 0], "mas": 1}]})",
         "nodes[0].mas: unknown key"},
        {R"({"version": 1, "nodes": [{"number": 1, "number": 1}]})",
         "nodes[0]: \"number\" is given twice"},
        {R"({"version": 1, "nodes": [{"number": 1, "position": [0, 0, 0], "restraint": ["w"]}]})",
         "nodes[0].restraint[0]: expected one of \"x\", \"y\", \"z\", \"xx\", \"yy\", \"zz\""},
        {R"({"version": 1, "members": [{"number": 1, "type": "beam", "topology": 5}]})",
         "members[0].topology: expected a list of node numbers"},
        {R"({"version": 1, "members": [{"number": 1, "type": "beam", "topology": [1, -2]}]})",
         "members[0].topology: expected a list of node numbers"},
        {R"({"version": 1, "lists": [{"number": 1, "definition": {"kind": "node", "list": 1}}]})",
         "lists[0].definition.list: expected a text"},
        {R"({"version": 1, "analysis_cases": [{"number": 1, "description": 1.35}]})",
         "analysis_cases[0].description: expected a text"},
        {R"({"version": 1, "elements": [{"number": 1, "type": "bean", "nodes": [1, 2]}]})",
         "elements[0].type: expected one of \"bar\", \"beam\", \"spring\", \"damper\", \"quad4\", "
         "\"quad8\", \"tri3\", \"tri6\", \"link\", \"cable\", \"mass\", \"brick8\", \"wedge6\", "
         "\"tetra4\", \"spacer\", \"tie\", \"strut\", \"rod\", \"pyramid5\""},
        {R"({"version": 1, "nodes": [{"number": 1, "position": [1e999, 0, 0]}]})",
         "nodes[0]: number overflow parsing '1e999'"},
        {R"({"version": 1, "results": [{"global": {}}]})",
         "results[0].global: the key \"case\" must come first"},
        {R"({"version": 1, "results": [{}]})", "results[0]: the key \"case\" is missing"},
        {R"({"version": 1, "results": [{"case": 1, "node_displacement": [[1, 2, 3]]}]})",
         "results[0].node_displacement[0]: expected an entity number and a multiple of 6 figures"},
        {R"({"version": 1, "results": [{"case": 1, "node_displacement": [[1.5, 2, 3]]}]})",
         "results[0].node_displacement[0]: expected an entity number first"},
        {R"({"version": 1, "results": [{"case": 1, "node_displacement": [7]}]})",
         "results[0].node_displacement[0]: expected a row: a list of an entity number and its "
         "figures"},
        {R"({"version": 1, "results": [{"case": 1}, {"case": 1}]})",
         "results[1].case: the results of case 1 are given twice"},
        {R"({"version": 1, "results": [{"case": 1, "node_jump": []}]})",
         "results[0].node_jump: unknown key"}};
    for (const Broken& broken : cases) {
        SCOPED_TRACE(broken.document);
        CVynData model;
        model.SetNode(5, Data::CNode());
        EXPECT_EQ(Refusal(broken.document, model), broken.message);
        EXPECT_TRUE(model.NodeExist(5));
    }
}

TEST(Document, BrokenTextIsRefusedWithItsPlace) {
    const std::string texts[] = {
        R"({"version": 1)",
        R"({"version": 1, "nodes": [{"number": 1e999}]})",
        std::string("{\"version\": 1, \"titles\": {\"job_title\": \"\xff\"}}"),
        std::string("\0\0\0\0", 4),
        std::string(100'000, '['),
        "{\"version\": 1, \"nodes\": " + std::string(100'000, '[') + "}"};
    for (const std::string& text : texts) {
        CVynData model;
        EXPECT_NE(Refusal(text, model), "") << text.substr(0, 60);
    }
    CVynData model;
    EXPECT_EQ(Refusal("{\n\"version\": 1\n\"nodes\"", model).substr(0, 36),
              "parse error at line 3, column 7: syn");
}

TEST(Document, EveryTruncationIsRefused) {
    CVynData model;
    model.SetNode(1, Data::CNode({1, 2, 3}));
    model.EditResults().Edit(1).Edit(ResultKind::NodeDisp).Set(1, std::vector<double>(6, 1.0));
    std::string text = Written(model);
    text.erase(text.find_last_of('}'));
    for (std::size_t length = 0; length <= text.size(); ++length) {
        CVynData read;
        EXPECT_NE(Refusal(text.substr(0, length), read), "") << length;
    }
}

TEST(Document, FiguresThatAreNotFiniteAreRefusedByTheWriter) {
    struct Case {
        void (*change)(CVynData&);
        const char* message;
    };
    constexpr double kInfinity = std::numeric_limits<double>::infinity();
    const Case cases[] = {
        {[](CVynData& m) {
             m.SetNode(3, Data::CNode({0, kInfinity, 0}));
         },
         "node 3.position[1]: a value that is not a finite number can't be written"},
        {[](CVynData& m) {
             Data::CElement element(ElementType::Bar, {1, 2}, 1);
             element.SetOrientationAngle(std::nan(""));
             m.SetElem(8, element);
         },
         "element 8.orientation_angle: a value that is not a finite number can't be written"},
        {[](CVynData& m) {
             m.EditResults()
                 .Edit(2)
                 .Edit(ResultKind::NodeDisp)
                 .Set(4, std::vector<double>(6, -kInfinity));
         },
         "results of case 2.node_displacement: the result of 4 is infinite"}};
    for (const Case& c : cases) {
        CVynData model;
        c.change(model);
        std::ostringstream text;
        std::string error;
        EXPECT_FALSE(Document::WriteDocument(model, text, error));
        EXPECT_EQ(error, c.message);
    }
}

TEST(Document, AStreamThatTakesNoMoreIsReported) {
    std::ofstream full("/dev/full");
    std::string error;
    EXPECT_FALSE(Document::WriteDocument(CVynData(), full, error));
    EXPECT_EQ(error, "the document can't be written to the end");
}

TEST(Document, SchemaFileIsTheOneOfTheReader) {
    const std::filesystem::path file = TestSupport::SourceDir() / "docs/model.schema.json";
    if (std::getenv("VYN_UPDATE_GOLDEN") != nullptr) {  // NOLINT(concurrency-mt-unsafe)
        std::ofstream(file) << Document::DocumentSchema();
    }
    EXPECT_EQ(TestSupport::ReadFile(file), Document::DocumentSchema())
        << "run this test with VYN_UPDATE_GOLDEN=1 to write docs/model.schema.json anew";
}

}  // namespace
}  // namespace Tevra

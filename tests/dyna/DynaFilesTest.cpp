#include <cmath>
#include <filesystem>

#include "document/ModelDocument.h"
#include "dyna/DynaFixture.h"
#include "support/DeckReader.h"
#include "support/FullModel.h"

namespace Tevra {
namespace {

using TestSupport::KeywordDeck;
using TestSupport::KeywordRow;
using TestSupport::SourceDir;

CVynData ReadModel(const std::filesystem::path& file) {
    CVynData model;
    std::string error;
    EXPECT_TRUE(Document::ReadDocument(file, model, error)) << error;
    return model;
}

class DynaFiles : public DynaFixture {
protected:
    static CVynData Example(const std::string& name) {
        return ReadModel(SourceDir() / "examples" / (name + ".json"));
    }
    static std::string Golden(const std::string& name) {
        return TestSupport::ReadFile(SourceDir() / "tests/golden/dyna" / name);
    }
};

/// A portal: columns, a turned beam with releases and an offset, a mass, loads and an axis.
CVynData SmallFrame() {
    CVynData model = ModelOf({{0, 0, 0}, {0, 0, 4}, {5, 0, 4}, {5, 0, 0}});
    CTitles titles;
    titles.SetJobTitle(L"Portal, 5 m");
    titles.SetSubTitle(L"Small");
    titles.SetCalcHeading(L"Frame");
    titles.SetJobNumber(L"7");
    titles.SetInitials(L"VYN");
    titles.SetFileName(L"portal.vyn");
    model.SetTitle(titles);
    model.SetSection(1, Data::CSection(L"Column", L"STD%RHS%200%200%10%10", Generic(1)));
    model.SetSection(3, Data::CSection(L"Beam", L"STD%R%400%200", Generic(1)));
    model.SetElem(1, Data::CElement(ElementType::Beam, {1, 2}, 1));
    model.SetElem(2, Data::CElement(ElementType::Beam, {4, 3}, 1));
    Data::CElement beam(ElementType::Beam, {2, 3}, 3);
    beam.SetOrientationAngle(30.0);
    beam.SetOffset({0.1, -0.1, 0.0, -0.2});
    Data::CElemConnect pinned;
    pinned.SetReleased({false, false, false, false, true, true});
    beam.SetConnect(2, pinned);
    model.SetElem(5, beam);
    for (const int number : {1, 4}) {
        Data::CNode base = model.Node(number);
        base.SetRestraint(number == 1 ? Vbool6::FromBits(63) : Vbool6::FromBits(7));
        model.SetNode(number, base);
    }
    Data::CMassProp mass;
    mass.SetMass(1250.0);
    model.SetMassProp(2, mass);
    Data::CNode top = model.Node(3);
    top.SetMassProperty(2);
    model.SetNode(3, top);
    Data::CGravityLoad weight;
    model.SetGravityLoad(1, weight);
    Data::CNodeLoad push;
    push.SetLoadCase(2);
    push.SetLoadedEntities(CEntList(L"2", SelType::Node));
    push.SetDirection(Direction::X);
    push.SetValue(2.5e4);
    model.SetNodeLoad(1, push);
    Data::CBeamLoad live;
    live.SetLoadCase(2);
    live.SetLoadedEntities(CEntList(L"5", SelType::Element));
    live.SetPoint(1, {.value = -1e4});
    model.SetBeamLoad(1, live);
    CDynaTask dyna;
    dyna.SetLoadCurveDescription(L"1 2");
    dyna.SetEndTime(5.0);
    dyna.SetMassScalingTimeStep(9e-6);
    dyna.SetNodeSelection(CEntList(L"all", SelType::Node));
    dyna.SetElementSelection(CEntList(L"1 5", SelType::Element));
    dyna.SetExcitation(ExcitationOption::OneCurve);
    dyna.SetDamping({true, 0.3, 1e-4});
    SetTask(model, dyna);
    return model;
}

TEST_F(DynaFiles, SmallFrame) {
    CVynData model = SmallFrame();
    Write(model);
    EXPECT_TRUE(written);
    EXPECT_EQ(text, Golden("frame.key"));
}

TEST_F(DynaFiles, IsolatedFrame) {
    CVynData model = Example("isolated");
    Write(model);
    EXPECT_TRUE(written);
    EXPECT_EQ(text, Golden("isolated.key"));
    EXPECT_TRUE(writer.IndexFile());
    EXPECT_TRUE(writer.Report().starts_with(
        L"<h4>VYN-DYNA Part Lookup</h4>\n<table><tableheader>DYNA Part\tPart type\tVYN "
        L"Property\tDYNA Section\tDYNA Material\tNotes</tableheader>\n1\tBeam\t1\t1\t1\t\n"));
    EXPECT_NE(writer.Report().find(L"15\tLink\t102\t15\t0\telement\n"
                                   L"16\tRigid\t1\t16\t0\tconstraint\n"
                                   L"17\tRigid\t2\t17\t0\tconstraint\n</table>"),
              std::wstring::npos);
}

/// All models that there are: those without a task of explicit dynamics get one.
std::vector<std::pair<std::string, CVynData>> AllModels() {
    std::vector<std::pair<std::string, CVynData>> models;
    models.emplace_back("full", TestSupport::MakeFullModel());
    models.emplace_back("frame", SmallFrame());
    for (const auto& entry : std::filesystem::directory_iterator(SourceDir() / "examples")) {
        if (entry.path().extension() == ".json") {
            models.emplace_back(entry.path().stem().string(), ReadModel(entry.path()));
        }
    }
    for (auto& [name, model] : models) {
        if (CDynaAnalysis::FirstTask(model) == 0) {
            CDynaTask dyna;
            dyna.SetLoadCurveDescription(L"all");
            dyna.SetExcitation(ExcitationOption::OneCurve);
            dyna.SetNodeSelection(CEntList(L"all", SelType::Node));
            dyna.SetElementSelection(CEntList(L"all", SelType::Element));
            dyna.SetAssemblyList(CEntList(L"all", SelType::Assembly));
            CAnalysisTask task;
            task.SetDyna(dyna);
            model.SetAnalysisTask(model.HighestAnalysisTask() + 1, task);
        }
    }
    return models;
}

TEST_F(DynaFiles, KeepToTheLayoutsOfTheSolver) {
    for (auto& [name, model] : AllModels()) {
        for (const bool integration : {false, true}) {
            SCOPED_TRACE(name);
            writer.SetIntegration(integration);
            const CVynData before = model;
            const KeywordDeck deck = Write(model);
            EXPECT_TRUE(written);
            EXPECT_EQ(deck.faults, std::vector<std::string>());
            // The full model refers to what it does not have.
            if (name != "full") {
                EXPECT_EQ(TestSupport::OpenReferences(deck), std::vector<std::string>());
            }
            EXPECT_TRUE(model == before);
        }
    }
}

/// What an element comes back as: discrete beams as beams (to the ground as springs), cables as
/// beams, dampers as springs, planes without their mid-side nodes.
ElementType BackType(const CVynData& model, const Data::CElement& element) {
    switch (element.Type()) {
        case ElementType::Spring:
            return model.SpringProp(element.Property()).IsSimple() || element.NumTopo() == 1
                       ? ElementType::Spring
                       : ElementType::Beam;
        case ElementType::Damper:
            return ElementType::Spring;
        case ElementType::Quad8:
            return ElementType::Quad4;
        case ElementType::Tri6:
            return ElementType::Tri3;
        default:
            return element.Is1D() ? ElementType::Beam : element.Type();
    }
}

void ExpectElement(const CVynData& model, int number, const CVynData& back) {
    SCOPED_TRACE("element " + std::to_string(number));
    const Data::CElement& element = model.Elem(number);
    const Data::CElement& read = back.Elem(number);
    ASSERT_TRUE(back.ElemExist(number));
    EXPECT_EQ(read.Type(), BackType(model, element));
    EXPECT_EQ(read.NumTopo(),
              InfoOf(read.Type()).maxNodes == 2 ? element.NumTopo() : InfoOf(read.Type()).minNodes);
    for (int k = 1; k <= read.NumTopo(); ++k) {
        EXPECT_EQ(read.Topo(k), element.Topo(k)) << k;
    }
    EXPECT_GT(read.Property(), 0);
    if (element.IsSection()) {
        for (const int end : {1, 2}) {
            EXPECT_EQ(read.Connect(end).Released(), element.Connect(end).Released());
        }
        // A node of its own lies in the plane of the element's y.
        const Vec3<double> y = model.ElemDC(number).AxisVec(1);
        EXPECT_NEAR(Dot(back.ElemDC(number).AxisVec(1), y), 1.0, 1e-5);
    }
}

TEST_F(DynaFiles, ComeBackByTheReader) {
    for (auto& [name, model] : AllModels()) {
        SCOPED_TRACE(name);
        Write(model);
        TestSupport::DeckReader reader;
        ASSERT_TRUE(reader.ReadText(text)) << reader.Error();
        const CVynData& back = reader.Model();
        double mass = 0.0;
        for (const int number : model.NodeTable().Numbers()) {
            const Vec3<double>& at = model.Node(number).Position();
            const Vec3<double>& read = back.Node(number).Position();
            for (int i = 0; i < 3; ++i) {
                EXPECT_NEAR(read[i], at[i], 5.1e-7 * std::abs(at[i])) << number;
            }
            mass += model.MassProp(model.Node(number).MassProperty()).Mass();
        }
        for (const int number : model.ElemTable().Numbers()) {
            const Data::CElement& element = model.Elem(number);
            const bool isWritten = InfoOf(element.Type()).property != PropertyType::None &&
                                   !element.IsLink() && element.Type() != ElementType::Mass;
            if (isWritten && name != "full") {
                ExpectElement(model, number, back);
            }
        }
        double massBack = 0.0;
        for (const int number : back.NodeTable().Numbers()) {
            massBack += back.MassProp(back.Node(number).MassProperty()).Mass();
        }
        EXPECT_NEAR(massBack, mass, 1e-6 * mass);
    }
}

TEST_F(DynaFiles, CrossSectionsOfAssemblies) {
    CVynData model = Example("isolated");
    Data::CAssembly assembly = model.Assembly(1);
    assembly.SetDy(30.0);
    assembly.SetDz(20.0);
    model.SetAssembly(1, assembly);
    const KeywordDeck deck = Write(model);
    const KeywordRow set = deck.Rows("SET_PART_LIST", 2).at(0);
    EXPECT_EQ(set.fields.size(), 1U);
    EXPECT_EQ(set.Int("ID1"), 1);
    // The line goes up from the origin, its y along X, its z along Y: a corner at (-15, -10).
    const KeywordRow plane = deck.Rows("DATABASE_CROSS_SECTION_PLANE_ID", 2).at(0);
    EXPECT_EQ(plane.Real("XCT"), -15.0);
    EXPECT_EQ(plane.Real("YCT"), -10.0);
    EXPECT_EQ(plane.Real("ZCT"), 0.9);
    EXPECT_EQ(plane.Real("ZCH"), 1.9);
    const KeywordRow edges = deck.Rows("DATABASE_CROSS_SECTION_PLANE_ID", 3).at(0);
    EXPECT_EQ(edges.Real("XHEV"), -14.0);
    EXPECT_EQ(edges.Real("LENL"), 30.0);
    EXPECT_EQ(edges.Real("LENM"), 20.0);
    EXPECT_EQ(deck.Rows("DATABASE_CROSS_SECTION_PLANE_ID", 1).at(1).Int("CSID"), 2);
}

// Set 1 is that of all parts.
TEST_F(DynaFiles, CutsOfAModelWithoutOtherSets) {
    CVynData model = Example("isolated");
    for (int number = model.HighestElem(); number > 0; --number) {
        if (model.Elem(number).IsLink()) {
            model.DeleteElem(number);
        }
    }
    for (int number = model.HighestTiedInterface(); number > 0; --number) {
        model.DeleteTiedInterface(number);
    }
    for (int number = model.HighestRigid(); number > 0; --number) {
        model.DeleteRigid(number);
    }
    for (int number = model.HighestList(); number > 0; --number) {
        model.DeleteList(number);
    }
    const KeywordDeck deck = Write(model);
    ASSERT_GT(deck.Count("SET_PART_LIST"), 0);
    EXPECT_EQ(deck.Rows("SET_PART_LIST").at(0).Int("SID"), 2);
}

TEST_F(DynaFiles, HistoriesAreEightToALine) {
    for (const int count : {0, 8, 9}) {
        CVynData model;
        for (int node = 1; node <= count; ++node) {
            model.SetNode(node, Data::CNode({1.0 * node, 0, 0}));
        }
        CDynaTask dyna;
        dyna.SetNodeSelection(CEntList(L"all", SelType::Node));
        SetTask(model, dyna);
        const KeywordDeck deck = Write(model);
        EXPECT_EQ(deck.Count("DATABASE_HISTORY_NODE"), 1);
        EXPECT_EQ(static_cast<int>(deck.Rows("DATABASE_HISTORY_NODE").size()), (count + 7) / 8);
        EXPECT_EQ(text.find("8\n\n"), std::string::npos);
        EXPECT_EQ(deck.Count("NODE"), count == 0 ? 0 : 1);
        EXPECT_EQ(deck.Count("BOUNDARY_SPC_NODE"), count == 0 ? 0 : 1);
        EXPECT_EQ(deck.Rows("DEFINE_COORDINATE_SYSTEM").at(0).Int("CID"), 1);
        EXPECT_EQ(deck.Rows("SET_PART_LIST_GENERATE", 2).at(0).Int("ID2"), 0);
    }
}

TEST_F(DynaFiles, WithoutTheTaskNothingIsWritten) {
    CVynData model = SmallFrame();
    CAnalysisTask modal;
    modal.SetSolution(SolutionType::Modal);
    model.SetAnalysisTask(2, modal);
    Write(model);
    EXPECT_TRUE(writer.IndexFile());
    for (const int task : {0, 2, 3, -1}) {
        writer.SetTask(task);
        WriteTask(model);
        EXPECT_FALSE(written) << task;
        EXPECT_EQ(text, "") << task;
        EXPECT_FALSE(writer.IndexFile());
        EXPECT_EQ(writer.Report(), L"");
    }
    // The object writes again, as if for the first time.
    const std::string golden = Golden("frame.key");
    Write(model);
    EXPECT_EQ(text, golden);
}

TEST_F(DynaFiles, NothingIsDampedWithoutRayleigh) {
    CVynData model = SmallFrame();
    CDynaTask dyna;
    dyna.SetDamping({false, 0.3, 1e-4});
    SetTask(model, dyna);
    const KeywordDeck deck = Write(model);
    EXPECT_EQ(deck.Count("SET_PART_LIST_GENERATE"), 1);
    EXPECT_EQ(text.find("*DAMPING"), std::string::npos);
}

/// The check of these tests sees what is wrong.
TEST(KeywordDeckCheck, FindsFaultsAndOpenReferences) {
    const struct {
        const char* lines;
        const char* fault;
    } cases[] = {
        {"*NODE\n       1     0.000000e+0     0.000000e+0     0.000000e+0\n", ""},
        {"*NODE\n      1     0.000000e+0     0.000000e+0     0.000000e+0\n", "Z is"},
        {"*NODE\n      1x     0.000000e+0\n", "NID is"},
        {"*NODE\n       1           nan\n", "X is"},
        {"*SECTION_DISCRETE\n         1         0\n", "lacks lines"},
        {"*LOAD_BODY_Z\n         19.80665e+0\n         1\n", "more lines"},
        {"*BOUNDARY_SPC_NODE\n         1         0         1         1         1         1"
         "         1         1         1\n",
         "longer"},
        {"*ELEMENT_PLOTEL\n", "unknown"},
    };
    for (const auto& c : cases) {
        const KeywordDeck deck =
            TestSupport::ReadKeywordDeck(std::string("*KEYWORD\n") + c.lines + "*END\n");
        ASSERT_EQ(deck.faults.empty(), *c.fault == '\0') << c.lines;
        if (!deck.faults.empty()) {
            EXPECT_NE(deck.faults.front().find(c.fault), std::string::npos) << deck.faults.front();
        }
    }
    const KeywordDeck deck = TestSupport::ReadKeywordDeck(
        "*KEYWORD\n*MAT_SPRING_ELASTIC\n         41.00000e+0\n*MAT_SPRING_ELASTIC\n"
        "         41.00000e+0\n*ELEMENT_DISCRETE\n       1       7       8       0       "
        "0\n*END\n");
    EXPECT_EQ(TestSupport::OpenReferences(deck),
              (std::vector<std::string>{"MAT_SPRING_ELASTIC line 5: MID 4 is there twice",
                                        "ELEMENT_DISCRETE line 7: PID 7",
                                        "ELEMENT_DISCRETE line 7: N1 8"}));
}

}  // namespace
}  // namespace Tevra

#include <filesystem>

#include "document/ModelDocument.h"
#include "nastran/NasFixture.h"
#include "support/FullModel.h"
#include "support/TestPaths.h"

namespace Tevra {
namespace {

using Fields = std::vector<std::string>;

class NasStructure : public NasFixture {};

TEST_F(NasStructure, BeamHasReleasesAndOffsetsInTheAxesOfItsNodes) {
    CVynData model = BeamModel();
    Data::CElement beam = model.Elem(1);
    Data::CElemConnect connect;
    connect.SetReleased({false, true, false, false, true, false});
    beam.SetConnect(1, connect);
    beam.SetOffset({0.0, 0.0, 0.3, 0.5});
    model.SetElem(1, beam);
    Data::CAxis axis;
    axis.SetXAxis({0, 0, 1});
    axis.SetXYPlane({1, 0, 0});
    model.SetAxis(1, axis);
    Data::CNode node = model.Node(2);
    node.SetAxis(1);
    model.SetNode(2, node);
    const auto card = Write(model).Named("CBAR").at(0);
    EXPECT_EQ(card.Field(8), "BGG");
    EXPECT_DOUBLE_EQ(card.Real(7), 1.0);  // local z is global Z
    EXPECT_EQ(card.Field(9), "36");
    EXPECT_EQ(card.Field(10), "");
    EXPECT_DOUBLE_EQ(card.Real(12), 0.3);
    EXPECT_DOUBLE_EQ(card.Real(13), 0.5);
    EXPECT_DOUBLE_EQ(card.Real(14), 0.5);  // X of the axis is global Z
    EXPECT_DOUBLE_EQ(card.Real(16), 0.3);
}

struct ShapeCase {
    const wchar_t* description;
    const char* type;
    std::vector<double> dimensions;
};

TEST_F(NasStructure, LibraryShapes) {
    const ShapeCase cases[] = {
        {L"STD%R%400%200", "BAR", {0.2, 0.4}},
        {L"STD%C%100", "ROD", {0.05}},
        {L"STD%CHS%100%10", "TUBE", {0.05, 0.04}},
        {L"STD%RHS%400%200%8%12", "BOX", {0.2, 0.4, 0.012, 0.008}},
        {L"STD%I%500%200%12%20", "I", {0.5, 0.2, 0.2, 0.012, 0.02, 0.02}},
        {L"STD%CH%300%100%8%12", "CHAN", {0.1, 0.3, 0.008, 0.012}},
        {L"STD%T%300%150%8%12", "T", {0.15, 0.3, 0.012, 0.008}},
    };
    for (const ShapeCase& c : cases) {
        CVynData model = BeamModel();
        model.SetSection(1, Data::CSection(L"", c.description, Generic(1)));
        const auto cards = Write(model).Named("PBARL");
        ASSERT_EQ(cards.size(), 1U) << c.type;
        EXPECT_EQ(cards[0].Field(3), "MSCBML0");
        EXPECT_EQ(cards[0].Field(4), c.type);
        const int count = static_cast<int>(c.dimensions.size());
        ASSERT_EQ(cards[0].fields.size(), 9U + c.dimensions.size());
        for (int k = 0; k < count; ++k) {
            EXPECT_NEAR(cards[0].Real(9 + k), c.dimensions[static_cast<std::size_t>(k)], 1e-9)
                << c.type << k;
        }
    }
}

TEST_F(NasStructure, AngleHasItsProductOfInertia) {
    CVynData model = BeamModel();
    model.SetSection(1, Data::CSection(L"", L"STD%A%100%100%10%10", Generic(1)));
    const auto card = Write(model).Named("PBAR").at(0);
    ASSERT_EQ(card.fields.size(), 19U);
    EXPECT_EQ(card.Field(8) + card.Field(17) + card.Field(18), "");
    EXPECT_NEAR(card.Real(19), model.SectionProp(1, 0, 0.0, true).iyz, 1e-11);
}

TEST_F(NasStructure, LinksSpringsAndConstraints) {
    CVynData model = ModelOf({{0, 0, 0}, {1, 0, 0}, {2, 0, 0}, {3, 0, 0}});
    Data::CLinkProp link;
    link.SetType(2101);
    model.SetLinkProp(1, link);
    model.SetElem(1, Data::CElement(ElementType::Link, {1, 2}, 1));
    Data::CSpringProp spring;
    spring.SetStiff(Direction::Y, 5e6);
    spring.SetStiff(Direction::ZZ, 2e3);
    model.SetSpringProp(1, spring);
    model.SetElem(2, Data::CElement(ElementType::Spring, {2, 3}, 1));
    model.SetElem(3, Data::CElement(ElementType::Spacer, {1, 2}, 1));
    Data::CRigid rigid;
    rigid.SetPrimaryNode(1);
    rigid.SetNodes({L"all", SelType::Node});
    rigid.SetType(1411);
    model.SetRigid(1, rigid);
    Data::CConstraintEqn equation;
    equation.SetConstrained(1, Direction::Z);
    equation.SetTerms({{2, Direction::X, 0.5}, {3, Direction::XX, 2.0}});
    model.SetConstraintEqn(1, equation);
    const auto deck = Write(model);
    EXPECT_EQ(deck.Named("RBAR").at(0).fields, (Fields{"1", "1", "2", "123456", "", "", "126"}));
    const auto springs = deck.Named("CELAS2");
    ASSERT_EQ(springs.size(), 2U);
    EXPECT_EQ(springs[0].fields, (Fields{"2", "5.000000e+6", "2", "2", "3", "2"}));
    EXPECT_EQ(springs[1].fields, (Fields{"4", "2.000000e+3", "2", "6", "3", "6"}));
    EXPECT_EQ(deck.Named("RBE2").at(0).fields, (Fields{"5", "1", "135", "2", "3", "4"}));
    EXPECT_EQ(deck.Named("MPC").at(0).fields,
              (Fields{"1", "1", "3", "-1.000000e+0", "2", "1", "5.000000e-1", "", "", "3", "4",
                      "2.000000e+0"}));
    EXPECT_EQ(host.Messages(),
              std::vector<std::wstring>{L"WARNING\n\nSpacer elements are not exported"});
}

TEST_F(NasStructure, PlanesAndTheirProperties) {
    CVynData model = PlateModel();
    Data::CProp2D stress = model.Prop2D(1);
    stress.SetType(Prop2DType::PlaneStress);
    stress.SetAdditionalMass(12.5);
    model.SetProp2D(2, stress);
    stress.SetBending(0.1);
    model.SetProp2D(3, stress);
    model.SetElem(2, Data::CElement(ElementType::Quad4, {1, 2, 3, 4, 1}, 1));  // a node too many
    const auto deck = Write(model);
    EXPECT_EQ(deck.Named("CQUAD4").at(0).fields,
              (Fields{"1", "1", "1", "2", "3", "4", "0.000000e+0", "0.000000e+0"}));
    EXPECT_EQ(deck.Named("CQUAD4").at(1).fields,
              (Fields{"2", "1", "1", "2", "3", "4", "0.000000e+0", "0.000000e+0"}));
    const auto shells = deck.Named("PSHELL");
    ASSERT_EQ(shells.size(), 3U);
    EXPECT_EQ(shells[0].fields, (Fields{"1", "1", "2.000000e-1", "1", "1.000000e+0", "1",
                                        "1.000000e+0", "0.000000e+0"}));
    EXPECT_EQ(shells[1].fields, (Fields{"2", "1", "2.000000e-1", "", "", "", "", "1.250000e+1"}));
    EXPECT_EQ(shells[2].fields,
              (Fields{"3", "1", "2.000000e-1", "1", "1.250000e-1", "", "", "1.250000e+1"}));
}

TEST_F(NasStructure, TwentySeventhContinuation) {
    std::vector<Vec3<double>> points(230);
    for (std::size_t i = 0; i < points.size(); ++i) {
        points[i].x = static_cast<double>(i);
    }
    CVynData model = ModelOf(points);
    Data::CRigid rigid;
    rigid.SetPrimaryNode(1);
    rigid.SetNodes({L"all", SelType::Node});
    model.SetRigid(1, rigid);
    writer.SetLargeField(false);
    const auto deck = Write(model);
    EXPECT_NE(text.find("+AA\n+AA     "), std::string::npos);
    EXPECT_EQ(deck.Named("RBE2").at(0).fields.size(), 232U);
    EXPECT_TRUE(deck.faults.empty());
}

TEST_F(NasStructure, EmptyModelsAndOtherAnalyses) {
    CVynData model;
    writer.SetAnalysisType(4);
    Write(model);
    EXPECT_TRUE(written);
    EXPECT_EQ(text.find("SOL"), std::string::npos);
    EXPECT_EQ(text.find("SUBCASE"), std::string::npos);
    writer.SetAnalysisType(CNasFile::kBuckling);
    writer.SetBucklingDescription(L"1.0L1");
    writer.SetNumModes(7);
    const auto deck = Write(model);
    EXPECT_NE(text.find("SOL 105\nCEND\nTITLE = \nMETHOD = 1\n"), std::string::npos);
    EXPECT_NE(text.find("\nLOAD = 1\nBEGIN BULK\n"), std::string::npos);
    EXPECT_EQ(deck.Named("EIGRL").at(0).fields, (Fields{"1", "", "", "7", "", "", "", "MAX"}));
    writer.SetBucklingDescription(L"rubbish");
    Write(model);
    EXPECT_FALSE(written);
    EXPECT_EQ(text, "");
}

/// Load cases that have no load that FORCE, PLOAD, SPCD or GRAV cards carry.
std::set<std::string> EmptyCases(const CVynData& model) {
    std::set<std::string> cases;
    for (int i = 1; i <= model.HighestLoadCase(); ++i) {
        cases.insert(std::to_string(i));
    }
    const auto remove = [&cases](const auto& table) {
        for (const int number : table.Numbers()) {
            cases.erase(std::to_string(table.Get(number).LoadCase()));
        }
    };
    remove(model.NodeLoadTable());
    remove(model.SettlementTable());
    remove(model.AppliedDisplacementTable());
    remove(model.BeamLoadTable());
    remove(model.GravityLoadTable());
    for (const int number : model.FaceLoadTable().Numbers()) {
        const Data::CFaceLoad& load = model.FaceLoad(number);
        std::vector<int> planes = load.GetLoadedElements(model, 2);
        std::erase_if(planes, [&model](int element) {
            return model.Prop2D(model.Elem(element).Property()).IsLoadPanel();
        });
        if (!planes.empty() || !load.GetLoadedElements(model, 3).empty()) {
            cases.erase(std::to_string(load.LoadCase()));
        }
    }
    return cases;
}

/// Elements that have a card of their own number.
int CountOfElements(const TestSupport::NasDeck& deck) {
    int count = 0;
    for (const char* name : {"CBAR", "CBEAM", "CROD", "CGAP", "CONROD", "CQUAD4", "CQUAD8",
                             "CTRIA3", "CTRIA6", "CHEXA8", "CPENTA", "CTETRA", "CPYRA", "RBAR"}) {
        count += deck.Count(name);
    }
    return count;
}

int NotCounted(const CVynData& model) {
    int count = 0;
    for (const int number : model.ElemTable().Numbers()) {
        const Data::CElement& element = model.Elem(number);
        const bool isPanel = element.Is2D() && model.Prop2D(element.Property()).IsLoadPanel();
        count += isPanel || element.IsSpring() || element.IsSpacer() || element.IsDamper() ||
                         element.Type() == ElementType::Mass
                     ? 1
                     : 0;
    }
    return count;
}

TEST_F(NasStructure, EveryModelReadsBack) {
    std::vector<CVynData> models{TestSupport::MakeFullModel()};
    for (const auto& entry :
         std::filesystem::directory_iterator(TestSupport::SourceDir() / "examples")) {
        if (entry.path().extension() == ".json") {
            std::string error;
            ASSERT_TRUE(Document::ReadDocument(entry.path(), models.emplace_back(), error))
                << error;
        }
    }
    for (CVynData& model : models) {
        Data::CBeamLoad uniform;
        for (const int number : model.BeamLoadTable().Numbers()) {
            if (model.BeamLoad(number).TypeOf() == BeamLoadType::Trilinear) {
                model.SetBeamLoad(number, uniform);
            }
        }
        for (const bool large : {true, false}) {
            CNasFile file;
            const ScopedHost scope(host);
            file.SetData(&model);
            file.SetLargeField(large);
            const CVynData before = model;
            ASSERT_TRUE(file.OpenWrite(Text::FromPath(folder.Path() / "deck.dat")));
            EXPECT_TRUE(model == before);
            const auto deck =
                TestSupport::ReadNasDeck(TestSupport::ReadFile(folder.Path() / "deck.dat"));
            EXPECT_EQ(deck.faults, Fields{});
            EXPECT_EQ(TestSupport::OpenReferences(deck), Fields{});
            EXPECT_EQ(TestSupport::SharedNumbers(deck), Fields{});
            EXPECT_EQ(deck.Count("GRID"), model.NumNode());
            if (&model != &models.front()) {  // which has loads and elements that name nothing
                EXPECT_EQ(TestSupport::OpenSets(deck, EmptyCases(model)), Fields{});
                EXPECT_EQ(CountOfElements(deck), model.NumElem() - NotCounted(model));
            }
        }
    }
}

/// A portal: fixed and pinned base, a beam of an I with a release and offsets; self weight, a load
/// along the beam, wind and a warm beam, and a combination of the cases.
CVynData Portal() {
    CVynData model = ModelOf({{0, 0, 0}, {0, 0, 3}, {4, 0, 3}, {4, 0, 0}});
    CTitles titles;
    titles.SetJobTitle(L"Portal");
    model.SetTitle(titles);
    for (const int base : {1, 4}) {
        Data::CNode node = model.Node(base);
        node.SetRestraint({true, true, true, base == 1, base == 1, true});
        model.SetNode(base, node);
    }
    model.SetSection(1, Data::CSection(L"Column", L"STD%R%400%200", Generic(1)));
    model.SetSection(2, Data::CSection(L"Beam", L"STD%I%300%150%8%12", Generic(1)));
    model.SetElem(1, Data::CElement(ElementType::Beam, {1, 2}, 1));
    model.SetElem(2, Data::CElement(ElementType::Beam, {4, 3}, 1));
    Data::CElement beam(ElementType::Beam, {2, 3}, 2);
    Data::CElemConnect pin;
    pin.SetReleased({false, false, false, false, true, true});
    beam.SetConnect(2, pin);
    beam.SetOffset(Data::COffset(0.2, -0.2, 0.0, 0.05));
    model.SetElem(3, beam);

    Data::CGravityLoad weight;
    weight.SetValue({0, 0, -1});
    model.SetGravityLoad(1, weight);
    Data::CBeamLoad along;
    along.SetLoadedEntities({L"3", SelType::Element});
    along.SetPoint(1, {0.0, true, -2500.0});
    model.SetBeamLoad(1, along);
    Data::CNodeLoad wind;
    wind.SetLoadCase(2);
    wind.SetDirection(Direction::X);
    wind.SetValue(8000.0);
    wind.SetLoadedEntities({L"2", SelType::Node});
    model.SetNodeLoad(1, wind);
    Data::CBeamThermalLoad warm;
    warm.SetLoadCase(2);
    warm.SetPoint(1, 0.0, 15.0);
    warm.SetLoadedEntities({L"3", SelType::Element});
    model.SetBeamThermalLoad(1, warm);
    model.SetLoadCaseTitle(1, Data::NamedEntity(L"Dead"));
    model.SetLoadCaseTitle(2, Data::NamedEntity(L"Wind"));
    model.SetAnalysisCase(1, CAnalysisCase(L"Dead", 1, L"L1"));
    model.SetAnalysisCase(2, CAnalysisCase(L"Wind", 1, L"L2"));
    model.SetCombinationCase(1, CCombinationCase(L"ULS", L"1.35A1 + 1.5A2"));
    return model;
}

TEST_F(NasStructure, GoldenFrame) {
    CVynData model = Portal();
    for (const bool large : {true, false}) {
        CNasFile file;
        const ScopedHost scope(host);
        file.SetData(&model);
        file.SetLargeField(large);
        const auto path = folder.Path() / (large ? "large.dat" : "small.dat");
        ASSERT_TRUE(file.OpenWrite(Text::FromPath(path)));
        EXPECT_EQ(TestSupport::ReadFile(path),
                  TestSupport::ReadFile(TestSupport::SourceDir() / "tests/golden/nastran" /
                                        path.filename()));
    }
}

}  // namespace
}  // namespace Tevra

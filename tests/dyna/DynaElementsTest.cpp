#include <cmath>

#include "dyna/DynaFixture.h"

namespace Tevra {
namespace {

using TestSupport::KeywordDeck;
using TestSupport::KeywordRow;

class DynaElements : public DynaFixture {};

std::vector<long> Ints(const KeywordRow& row) {
    std::vector<long> numbers;
    for (const auto& field : row.fields) {
        numbers.push_back(row.Int(field.first));
    }
    return numbers;
}

void ExpectAt(const KeywordRow& node, const Vec3<double>& at) {
    EXPECT_NEAR(node.Real("X"), at.x, 1e-6);
    EXPECT_NEAR(node.Real("Y"), at.y, 1e-6);
    EXPECT_NEAR(node.Real("Z"), at.z, 1e-6);
}

struct OrientationCase {
    const char* name;
    double angle;
    int node;
    long third;  ///< orientation node in the file
    Vec3<double> at;
};

TEST_F(DynaElements, OrientationNodesLieAlongLocalY) {
    const OrientationCase cases[] = {
        {"none", 0.0, 0, 4, {0, 2, 3}},
        {"own", 0.0, 3, 3, {}},
        {"own and an angle", 90.0, 3, 4, {1, 2, 4}},
        {"one that does not exist", 0.0, 77, 4, {0, 2, 3}},
    };
    for (const OrientationCase& c : cases) {
        SCOPED_TRACE(c.name);
        CVynData model = BeamModel();
        model.SetNode(3, Data::CNode({-1, 2, 3}));
        Data::CElement beam = model.Elem(1);
        beam.SetOrientationNode(c.node);
        beam.SetOrientationAngle(c.angle);
        model.SetElem(1, beam);
        const KeywordDeck deck = Write(model);
        EXPECT_EQ(deck.faults, std::vector<std::string>());
        EXPECT_EQ(Ints(deck.Rows("ELEMENT_BEAM").at(0)),
                  (std::vector<long>{1, 1, 1, 2, c.third, 0, 0, 0, 0}));
        const auto nodes = deck.Rows("NODE");
        ASSERT_EQ(nodes.size(), c.third == 4 ? 4U : 3U);
        if (c.third == 4) {
            EXPECT_EQ(nodes.back().Int("NID"), 4);
            ExpectAt(nodes.back(), c.at);
            EXPECT_EQ(deck.Count("NODE"), 2);
        }
    }
}

/// An angle that is no number is not zero: the node goes where that leads.
TEST_F(DynaElements, AngleThatIsNoNumberMakesANode) {
    CVynData model = BeamModel();
    Data::CElement beam = model.Elem(1);
    beam.SetOrientationNode(2);
    beam.SetOrientationAngle(std::nan(""));
    model.SetElem(1, beam);
    const KeywordDeck deck = Write(model);
    EXPECT_TRUE(written);
    EXPECT_EQ(deck.Rows("ELEMENT_BEAM").at(0).Int("N3"), 3);
    EXPECT_TRUE(
        HasNote(L"values that are not numbers, which the solver does not read; the first "
                L"is *NODE 3"));
}

TEST_F(DynaElements, ReleasesAreCodes) {
    const struct {
        Vbool6 released;
        long translations;
        long rotations;
    } cases[] = {
        {{true, false, false, true, false, false}, 1, 1},
        {{false, true, false, false, true, false}, 2, 2},
        {{false, false, true, false, false, true}, 3, 3},
        {{true, true, false, false, true, true}, 4, 5},
        {{false, true, true, true, true, false}, 5, 4},
        {{true, false, true, true, false, true}, 6, 6},
        {{true, true, true, true, true, true}, 7, 7},
    };
    for (const auto& c : cases) {
        for (const int end : {1, 2}) {
            CVynData model = BeamModel();
            Data::CElement beam = model.Elem(1);
            Data::CElemConnect connect;
            connect.SetReleased(c.released);
            beam.SetConnect(end, connect);
            model.SetElem(1, beam);
            const KeywordRow row = Write(model).Rows("ELEMENT_BEAM").at(0);
            const std::string own = std::to_string(end);
            const std::string other = std::to_string(3 - end);
            EXPECT_EQ(row.Int("RT" + own), c.translations);
            EXPECT_EQ(row.Int("RR" + own), c.rotations);
            EXPECT_EQ(row.Int("RT" + other), 0);
            EXPECT_EQ(row.Int("RR" + other), 0);
        }
    }
}

TEST_F(DynaElements, OffsetsFollowTheirElement) {
    CVynData model = BeamModel();
    Data::CElement beam = model.Elem(1);
    beam.SetOffset({0.1, -0.2, 0.3, 0.4});
    model.SetElem(1, beam);
    const KeywordDeck deck = Write(model);
    EXPECT_EQ(deck.Count("ELEMENT_BEAM"), 0);
    const KeywordRow row = deck.Rows("ELEMENT_BEAM_OFFSET", 2).at(0);
    const double values[] = {0.1, 0.3, 0.4, -0.2, 0.3, 0.4};
    for (std::size_t i = 0; i < 6; ++i) {
        EXPECT_DOUBLE_EQ(row.Real(row.fields.at(i).first), values[i]) << i;
    }
}

struct ShapeCase {
    ElementType type;
    std::vector<int> topology;
    std::vector<long> written;  ///< of the line of nodes
};

TEST_F(DynaElements, NodesOfShells) {
    const ShapeCase cases[] = {
        {ElementType::Tri3, {2, 3, 4}, {2, 3, 4, 4}},
        {ElementType::Tri6, {1, 2, 3, 5, 6, 7}, {1, 2, 3, 3}},
        {ElementType::Quad4, {4, 3, 2, 1}, {4, 3, 2, 1}},
        {ElementType::Quad8, {1, 2, 3, 4, 5, 6, 7, 8}, {1, 2, 3, 4}},
    };
    for (const ShapeCase& c : cases) {
        CVynData model = CubeModel();
        model.SetProp2D(1, PlateModel().Prop2D(1));
        model.SetElem(1, Data::CElement(c.type, c.topology, 1));
        const std::vector<long> row = Ints(Write(model).Rows("ELEMENT_SHELL_MCID").at(0));
        EXPECT_EQ(std::vector<long>(row.begin() + 2, row.end()), c.written);
        EXPECT_EQ(row.at(1), 1);
    }
}

TEST_F(DynaElements, NodesOfSolids) {
    const ShapeCase cases[] = {
        {ElementType::Brick8, {1, 2, 3, 4, 5, 6, 7, 8}, {1, 2, 3, 4, 5, 6, 7, 8}},
        {ElementType::Wedge6, {11, 12, 13, 14, 15, 16}, {14, 15, 12, 11, 16, 16, 13, 13}},
        {ElementType::Pyramid5, {1, 2, 3, 4, 5}, {1, 2, 3, 4, 5, 5, 5, 5}},
        {ElementType::Tetra4, {1, 2, 3, 4}, {1, 2, 3, 4, 4, 4, 4, 4}},
    };
    for (const ShapeCase& c : cases) {
        CVynData model = CubeModel();
        model.SetElem(7, Data::CElement(c.type, c.topology, 1));
        model.DeleteElem(1);
        const KeywordDeck deck = Write(model);
        EXPECT_EQ(Ints(deck.Rows("ELEMENT_SOLID", 1).at(0)), (std::vector<long>{7, 1}));
        EXPECT_EQ(Ints(deck.Rows("ELEMENT_SOLID", 2).at(0)), c.written);
    }
}

TEST_F(DynaElements, AxesAreGivenByThreePoints) {
    CVynData model = ModelOf({});
    Data::CAxis axis;
    axis.SetOrigin({1, 2, 3});
    axis.SetXAxis({0, 0, 4});
    axis.SetXYPlane({-2, 0, 7});
    axis.SetType(AxisType::Cylindrical);
    model.SetAxis(5, axis);
    Write(model);
    EXPECT_NE(text.find("*DEFINE_COORDINATE_SYSTEM\n"
                        "         51.00000e+02.00000e+03.00000e+01.00000e+02.00000e+04.00000e+0\n"
                        "0.00000e+02.00000e+03.00000e+0\n"
                        "         60.00000e+00.00000e+00.00000e+01.00000e+00.00000e+00.00000e+0\n"
                        "0.00000e+01.00000e+00.00000e+0\n"),
              std::string::npos)
        << text;
    EXPECT_TRUE(HasNote(L"Axis 5 is written as cartesian"));
}

TEST_F(DynaElements, AxisOfThePropertyOrientsShells) {
    CVynData model = PlateModel();
    model.SetAxis(4, Data::CAxis());
    EXPECT_EQ(Write(model).Rows("ELEMENT_SHELL_MCID", 2).at(0).Int("MCID"), 5);  // global
    Data::CProp2D property = model.Prop2D(1);
    property.SetAxis(4);
    model.SetProp2D(1, property);
    const KeywordRow row = Write(model).Rows("ELEMENT_SHELL_MCID", 2).at(0);
    EXPECT_EQ(row.Int("MCID"), 4);
    EXPECT_EQ(row.Real("THIC4"), 0.0);
    model.DeleteProp2D(1);
    EXPECT_EQ(Ints(Write(model).Rows("ELEMENT_SHELL").at(0)),
              (std::vector<long>{1, 0, 1, 2, 3, 4}));
}

/// One stiffness is a discrete element, several a discrete beam; the same at nodes, whose elements
/// are numbered on.
TEST_F(DynaElements, SpringsAndDampers) {
    CVynData model = ModelOf({{0, 0, 0}, {1, 0, 0}});
    Data::CSpringProp simple;
    simple.SetStiff(Direction::YY, 5e3);
    model.SetSpringProp(1, simple);
    Data::CSpringProp general = simple;
    general.SetStiff(Direction::X, 2e6);
    model.SetSpringProp(3, general);
    Data::CDamperProp damper;
    damper.SetCoefficients({0, 7e4, 0, 0, 0, 0});
    model.SetDamperProp(2, damper);
    model.SetElem(5, Data::CElement(ElementType::Spring, {1, 2}, 1));
    model.SetElem(6, Data::CElement(ElementType::Spring, {1, 2}, 3));
    model.SetElem(7, Data::CElement(ElementType::Damper, {1, 2}, 2));
    Data::CNode node = model.Node(2);
    node.SetSpringProperty(1);
    node.SetDamperProperty(2);
    model.SetNode(2, node);
    node = model.Node(1);
    node.SetSpringProperty(3);
    model.SetNode(1, node);
    const KeywordDeck deck = Write(model);
    EXPECT_EQ(deck.faults, std::vector<std::string>());
    const auto discrete = deck.Rows("ELEMENT_DISCRETE");
    ASSERT_EQ(discrete.size(), 4U);
    EXPECT_EQ(Ints(discrete[0]), (std::vector<long>{5, 1, 1, 2, 0}));
    EXPECT_EQ(Ints(discrete[1]), (std::vector<long>{7, 3, 1, 2, 0}));
    EXPECT_EQ(Ints(discrete[2]), (std::vector<long>{9, 1, 2, 0, 0}));
    EXPECT_EQ(Ints(discrete[3]), (std::vector<long>{10, 3, 2, 0, 0}));
    const auto beams = deck.Rows("ELEMENT_BEAM");
    ASSERT_EQ(beams.size(), 2U);
    EXPECT_EQ(Ints(beams[0]), (std::vector<long>{6, 2, 1, 2, 0}));
    EXPECT_EQ(Ints(beams[1]), (std::vector<long>{8, 2, 1, 0, 0}));
    EXPECT_EQ(deck.Rows("SECTION_DISCRETE").at(0).Int("DRO"), 1);
    EXPECT_EQ(deck.Rows("SECTION_DISCRETE").at(1).Int("DRO"), 0);
    EXPECT_EQ(deck.Rows("MAT_SPRING_ELASTIC").at(0).Real("K"), 5e3);
    EXPECT_EQ(deck.Rows("MAT_DAMPER_VISCOUS").at(0).Real("DC"), 7e4);
    const KeywordRow beam = deck.Rows("MAT_LINEAR_ELASTIC_DISCRETE_BEAM").at(0);
    EXPECT_EQ(beam.Real("TKR"), 2e6);
    EXPECT_EQ(beam.Real("RKS"), 5e3);
    EXPECT_EQ(TestSupport::OpenReferences(deck), std::vector<std::string>());
}

TEST_F(DynaElements, MassesAreNumberedOn) {
    CVynData model = BeamModel();
    Data::CMassProp mass;
    mass.SetMass(40.0);
    model.SetMassProp(1, mass);
    mass.SetInertia({1, 2, 3, 4, 5, 6});  // xx yy zz xy yz zx
    model.SetMassProp(2, mass);
    model.SetAxis(3, Data::CAxis());
    for (const int number : {1, 2}) {
        Data::CNode node = model.Node(number);
        node.SetMassProperty(number);
        node.SetAxis(3);
        model.SetNode(number, node);
    }
    const KeywordDeck deck = Write(model);
    EXPECT_EQ(deck.Rows("ELEMENT_MASS").at(0).Int("EID"), 2);
    EXPECT_EQ(deck.Rows("ELEMENT_MASS").at(0).Real("MASS"), 40.0);
    EXPECT_EQ(Ints(deck.Rows("ELEMENT_INERTIA", 1).at(0)), (std::vector<long>{3, 2, 3}));
    const KeywordRow row = deck.Rows("ELEMENT_INERTIA", 2).at(0);
    const double values[] = {1, 4, 6, 2, 5, 3, 40};
    for (std::size_t i = 0; i < 7; ++i) {
        EXPECT_EQ(row.Real(row.fields.at(i).first), values[i]) << i;
    }
}

TEST_F(DynaElements, LinkIsABodyWithAxesOfItsOwn) {
    CVynData model = ModelOf({{1, 2, 3}, {1, 6, 3}});
    model.SetAxis(4, Data::CAxis());
    model.SetList(1, Data::CList(L"", CEntList(L"2", SelType::Node)));
    model.SetElem(9, Data::CElement(ElementType::Link, {1, 2}, 1));
    const KeywordDeck deck = Write(model);
    EXPECT_EQ(Ints(deck.Rows("CONSTRAINED_NODAL_RIGID_BODY").at(0)),
              (std::vector<long>{1, 2, 2}));  // one axis is written, set 1 is the list
    EXPECT_EQ(Ints(deck.Rows("SET_NODE_LIST", 2).at(0)), (std::vector<long>{1, 2}));
    const KeywordRow x = deck.Rows("DEFINE_COORDINATE_SYSTEM", 1).at(2);
    EXPECT_EQ(x.Int("CID"), 2);
    EXPECT_EQ(x.Real("YO"), 2.0);
    EXPECT_EQ(x.Real("YL"), 3.0);
    EXPECT_EQ(deck.Rows("DEFINE_COORDINATE_SYSTEM", 2).at(2).Real("XP"), 0.0);
    EXPECT_NE(writer.Report().find(L"1\tLink\t9\t1\t0\telement\n"), std::wstring::npos);
}

/// Weight downwards is mass; what pulls up takes it away.
TEST_F(DynaElements, LoadsBecomeMass) {
    CVynData model = PlateModel();
    model.SetNode(5, Data::CNode({2, 2, 5}));
    model.SetSection(1, Data::CSection(L"R", L"STD%R%400%200", Generic(1)));
    model.SetElem(4, Data::CElement(ElementType::Beam, {3, 5}, 1));
    Data::CFaceLoad pressure;
    pressure.SetLoadCase(2);
    pressure.SetLoadedEntities(CEntList(L"1", SelType::Element));
    pressure.SetValues({-980.665, -980.665, -980.665, -980.665});
    model.SetFaceLoad(1, pressure);
    Data::CBeamLoad line;
    line.SetLoadCase(2);
    line.SetLoadedEntities(CEntList(L"4", SelType::Element));
    line.SetType(BeamLoadType::Linear);
    line.SetPoint(1, {.position = 0.0, .value = -98.0665});
    line.SetPoint(2, {.position = 1.0, .value = 0.0});
    model.SetBeamLoad(1, line);
    Data::CNodeLoad pull;
    pull.SetLoadCase(2);
    pull.SetLoadedEntities(CEntList(L"1", SelType::Node));
    pull.SetValue(9806.65);
    model.SetNodeLoad(1, pull);
    pull.SetLoadCase(1);
    model.SetNodeLoad(2, pull);
    CDynaTask dyna;
    dyna.SetMass({true, 2, Direction::Z, 0.5});
    SetTask(model, dyna);
    const KeywordDeck deck = Write(model);
    const auto masses = deck.Rows("ELEMENT_MASS");
    ASSERT_EQ(masses.size(), 4U);  // node 1 is pulled up
    const double expected[] = {50.0, 50.0 + 6.25, 50.0, 6.25};
    for (std::size_t i = 0; i < 4; ++i) {
        EXPECT_EQ(masses[i].Int("EID"), 5 + static_cast<long>(i));
        EXPECT_EQ(masses[i].Int("NID"), 2 + static_cast<long>(i));
        EXPECT_NEAR(masses[i].Real("MASS"), expected[i], 1e-4);
    }
    EXPECT_NE(text.find("$ mass elements for additional mass\n*ELEMENT_MASS\n"), std::string::npos);
}

}  // namespace
}  // namespace Tevra

#include "dyna/DynaFixture.h"

namespace Tevra {
namespace {

using TestSupport::KeywordDeck;
using TestSupport::KeywordRow;

class DynaLoads : public DynaFixture {};

CEntList Nodes(const wchar_t* text) {
    return {text, SelType::Node};
}
CEntList Elements(const wchar_t* text) {
    return {text, SelType::Element};
}

TEST_F(DynaLoads, NodeLoadsInTheirAxes) {
    const struct {
        Direction direction;
        int axis;
        std::string line;
    } cases[] = {
        {Direction::X, 0, "         1         1         25.00000e+3"},
        {Direction::Y, 4, "         1         2         25.00000e+3         4"},
        {Direction::Z, kLocalAxis, "         1         3         25.00000e+3         3"},
        {Direction::XX, 77, "         1         5         25.00000e+3"},
        {Direction::YY, 0, "         1         6         25.00000e+3"},
        {Direction::ZZ, 0, "         1         7         25.00000e+3"},
    };
    for (const auto& c : cases) {
        CVynData model = BeamModel();
        model.SetAxis(3, Data::CAxis());
        model.SetAxis(4, Data::CAxis());
        Data::CNode node = model.Node(1);
        node.SetAxis(3);
        model.SetNode(1, node);
        Data::CNodeLoad load;
        load.SetLoadCase(2);
        load.SetLoadedEntities(Nodes(L"1"));
        load.SetDirection(c.direction);
        load.SetAxis(c.axis);
        load.SetValue(5e3);
        model.SetNodeLoad(1, load);
        Write(model);
        EXPECT_NE(text.find("*LOAD_NODE_POINT\n" + c.line + "\n"), std::string::npos) << text;
    }
}

TEST_F(DynaLoads, OnlyCasesOfTheTaskAreWritten) {
    const struct {
        const wchar_t* cases;
        int lines;
    } cases[] = {{L"", 0},       {L"none", 0}, {L"all", 3}, {L"2", 2},
                 {L"1 to 9", 3}, {L"7", 0},    {L"?", 0}};
    for (const auto& c : cases) {
        CVynData model = BeamModel();
        for (const int loadCase : {1, 2}) {
            Data::CNodeLoad load;
            load.SetLoadCase(loadCase);
            load.SetLoadedEntities(Nodes(loadCase == 1 ? L"1" : L"1 2"));
            model.SetNodeLoad(loadCase, load);
        }
        CDynaTask dyna;
        dyna.SetLoadCurveDescription(c.cases);
        SetTask(model, dyna);
        const KeywordDeck deck = Write(model);
        EXPECT_EQ(static_cast<int>(deck.Rows("LOAD_NODE_POINT").size()), c.lines) << c.cases;
        EXPECT_EQ(deck.Count("LOAD_NODE_POINT"), c.lines > 0 ? 1 : 0);
    }
    EXPECT_TRUE(HasNote(L"can't be read: \"?\""));
}

/// The beam runs along Y, its y along -X and its z along Z.
TEST_F(DynaLoads, BeamLoadsAlongTheAxesOfTheElement) {
    struct Component {
        long axis;
        double value;
    };
    const struct {
        const char* name;
        int axis;
        Direction direction;
        bool projected;
        std::vector<Component> components;
    } cases[] = {
        {"global X", 0, Direction::X, false, {{2, -6e3}}},
        {"global Z", 0, Direction::Z, false, {{3, 6e3}}},
        {"local z", kLocalAxis, Direction::Z, false, {{3, 6e3}}},
        {"local x", kLocalAxis, Direction::X, false, {{1, 6e3}}},
        {"turned axis", 4, Direction::X, false, {{2, -6e3 * 0.6}, {3, 6e3 * 0.8}}},
        {"along the element, projected", 0, Direction::Y, true, {}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        CVynData model = BeamModel();
        Data::CAxis axis;
        axis.SetXAxis({0.6, 0, 0.8});
        axis.SetXYPlane({0, 1, 0});
        model.SetAxis(4, axis);
        Data::CBeamLoad load;
        load.SetLoadedEntities(Elements(L"1"));
        load.SetDirection(c.direction);
        load.SetAxis(c.axis);
        load.SetProjected(c.projected);
        load.SetPoint(1, {.value = 6e3});
        model.SetBeamLoad(1, load);
        const auto rows = Write(model).Rows("LOAD_BEAM_ELEMENT");
        ASSERT_EQ(rows.size(), c.components.size());
        for (std::size_t i = 0; i < rows.size(); ++i) {
            EXPECT_EQ(rows[i].Int("DAL"), c.components[i].axis);
            EXPECT_NEAR(rows[i].Real("SF"), c.components[i].value, 0.1);
        }
        EXPECT_EQ(log, L"");
    }
}

TEST_F(DynaLoads, OtherBeamLoadsByTheirMean) {
    const struct {
        BeamLoadType type;
        std::vector<Data::LoadPoint> points;
        double mean;
    } cases[] = {
        {BeamLoadType::Point, {{0.25, true, 8e3}}, 2e3},
        {BeamLoadType::Linear, {{0, true, 0.0}, {1, true, 4e3}}, 2e3},
        {BeamLoadType::Patch, {{1.0, false, 4e3}, {0.75, true, 4e3}}, 2e3},
        {BeamLoadType::Trilinear,
         {{0, true, 0}, {0.25, true, 4e3}, {0.75, true, 4e3}, {1, true, 0}},
         3e3},
    };
    for (const auto& c : cases) {
        CVynData model = BeamModel();
        Data::CBeamLoad load;
        load.SetLoadedEntities(Elements(L"1"));
        load.SetType(c.type);
        for (std::size_t k = 0; k < c.points.size(); ++k) {
            load.SetPoint(static_cast<int>(k) + 1, c.points[k]);
        }
        model.SetBeamLoad(1, load);
        EXPECT_NEAR(Write(model).Rows("LOAD_BEAM_ELEMENT").at(0).Real("SF"), c.mean, 0.01);
        EXPECT_TRUE(HasNote(L"Beam load 1 is written as a uniform load of the same sum"));
    }
    CVynData model = BeamModel();
    Data::CBeamLoad moment;
    moment.SetLoadedEntities(Elements(L"1"));
    moment.SetDirection(Direction::YY);
    moment.SetPoint(1, {.value = 6e3});
    model.SetBeamLoad(1, moment);
    EXPECT_EQ(Write(model).Count("LOAD_BEAM_ELEMENT"), 0);
    EXPECT_TRUE(HasNote(L"Beam load 1 is not written: the card has no moments"));
}

/// A load along +z presses from below, which is against what the card takes for positive.
TEST_F(DynaLoads, PressuresOnShells) {
    const struct {
        const char* name;
        FaceLoadType type;
        Direction direction;
        int axis;
        double pressure;
        const wchar_t* note;
    } cases[] = {
        {"normal", FaceLoadType::Uniform, Direction::Z, kLocalAxis, -1e3, L""},
        {"global", FaceLoadType::Uniform, Direction::Z, 0, -1e3, L""},
        {"inclined", FaceLoadType::Uniform, Direction::X, 4, -0.8e3, L"along the normals"},
        {"corners", FaceLoadType::Corners, Direction::Z, 0, -2.5e3, L"of the same sum"},
        {"point", FaceLoadType::Point, Direction::Z, 0, -0.25e3, L"of the same sum"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        CVynData model = PlateModel();
        Data::CAxis axis;
        axis.SetXAxis({0.6, 0, 0.8});
        axis.SetXYPlane({0, 1, 0});
        model.SetAxis(4, axis);
        Data::CFaceLoad load;
        load.SetLoadCase(3);
        load.SetLoadedEntities(Elements(L"1"));
        load.SetType(c.type);
        load.SetDirection(c.direction);
        load.SetAxis(c.axis);
        load.SetValues({1e3, 2e3, 3e3, 4e3});
        model.SetFaceLoad(1, load);
        const KeywordDeck deck = Write(model);
        const KeywordRow row = deck.Rows("LOAD_SHELL_ELEMENT").at(0);
        EXPECT_EQ(row.Int("EID"), 1);
        EXPECT_EQ(row.Int("LCID"), 3);
        EXPECT_NEAR(row.Real("SF"), c.pressure, 0.01);
        EXPECT_EQ(deck.Count("LOAD_SEGMENT"), 0);
        EXPECT_TRUE(HasNote(c.note)) << "missing a note";
    }
}

TEST_F(DynaLoads, PressuresOnFacesOfSolids) {
    CVynData model = CubeModel();
    model.SetElem(2, Data::CElement(ElementType::Tetra4, {1, 2, 3, 5}, 1));
    Data::CFaceLoad load;
    load.SetLoadedEntities(Elements(L"1"));
    load.SetFace(2);  // the top, whose normal is Z
    load.SetValues({-7e3, -7e3, -7e3, -7e3});
    model.SetFaceLoad(1, load);
    load.SetLoadedEntities(Elements(L"2"));
    load.SetFace(1);  // the bottom
    model.SetFaceLoad(2, load);
    load.SetFace(9);
    model.SetFaceLoad(3, load);
    Write(model);
    EXPECT_NE(
        text.find("*LOAD_SEGMENT\n$ LCID | SF | ST | N1 | N2 | N3  | N4 | N5\n"
                  "         17.00000e+30.00000e+0         5         6         7         8\n"
                  "         1-7.0000e+30.00000e+0         1         3         2         2\n*"),
        std::string::npos)
        << text;
    EXPECT_TRUE(HasNote(
        L"Face load 3 is not written on elements that have no such face, or one without area: 1"));
}

TEST_F(DynaLoads, GravityInItsFirstDirection) {
    const struct {
        Vec3<double> factors;
        std::string lines;
    } cases[] = {
        {{0, 0, -1}, "*LOAD_BODY_Z\n         19.80665e+0\n"},
        {{1e-11, 1, 0}, "*LOAD_BODY_Y\n         1-9.8066e+0\n"},
        {{-0.5, 0, -1}, "*LOAD_BODY_X\n         14.90332e+0\n"},
        {{0, 0, 0}, ""},
    };
    for (const auto& c : cases) {
        CVynData model = BeamModel();
        Data::CGravityLoad load;
        load.SetValue(c.factors);
        model.SetGravityLoad(1, load);
        Write(model);
        const std::size_t at = text.find("*LOAD_BODY");
        EXPECT_EQ(at == std::string::npos ? "" : text.substr(at, text.find("*END") - at), c.lines);
        EXPECT_EQ(HasNote(L"first of its directions alone"), c.factors.x == -0.5);
    }
}

/// A model of five nodes, restrained but for node 3, that is shaken at nodes 1, 3 and 4.
CVynData ShakenModel(ExcitationOption option, int curve, const std::array<int, 3>& numbers) {
    CVynData model = ModelOf({{0, 0, 0}, {1, 0, 0}, {2, 0, 0}, {3, 0, 0}, {4, 0, 0}});
    for (const int number : {1, 2, 4, 5}) {
        Data::CNode node = model.Node(number);
        node.SetRestraint(number == 4 ? Vbool6(true, false, false, false, false, true)
                                      : Vbool6::FromBits(63));
        node.SetAxis(number == 2 ? 6 : 0);
        model.SetNode(number, node);
    }
    model.SetAxis(6, Data::CAxis());
    Data::CLoadCurve motion;
    motion.SetPoints({{0.0, 1.0}, {0.5, -2.0}});
    motion.SetType(LoadCurveType::Acceleration);
    model.SetLoadCurve(2, motion);
    motion.SetType(LoadCurveType::Displacement);
    model.SetLoadCurve(3, motion);
    model.SetMatCurve(10, Data::CMatCurve());
    CDynaTask dyna;
    dyna.SetExcitation(option);
    dyna.SetLoadCurve(curve);
    dyna.SetExcitationNumbers(numbers);
    dyna.SetBaseList(Nodes(L"1 3 4"));
    SetTask(model, dyna);
    return model;
}

TEST_F(DynaLoads, SupportsByExcitation) {
    constexpr auto kOne = ExcitationOption::OneCurve;
    constexpr auto kEach = ExcitationOption::CurvePerDirection;
    const struct {
        ExcitationOption option;
        std::array<int, 3> numbers;
        std::string lines;
    } cases[] = {
        {ExcitationOption::None, {1, 0, 0}, ""},
        {static_cast<ExcitationOption>(7), {1, 0, 0}, ""},
        {kOne,
         {1, 0, 0},
         "         1         0         1         1         1         1         1         1\n"
         "         2         6         1         1         1         1         1         1\n"
         "         4         0         1         0         0         0         0         1\n"
         "         5         0         1         1         1         1         1         1\n"},
        {kEach,
         {2, 0, 3},
         "         1         0         0         1         0         1         1         1\n"
         "         4         0         0         0         0         0         0         1\n"},
    };
    for (const auto& c : cases) {
        CVynData model = ShakenModel(c.option, 2, c.numbers);
        Write(model);
        const std::size_t at = text.find("*BOUNDARY_SPC_NODE\n") + 19;
        EXPECT_EQ(text.substr(at, text.find('*', at) - at), c.lines);
    }
}

TEST_F(DynaLoads, CurvesAndMotionsOfTheBase) {
    constexpr auto kOne = ExcitationOption::OneCurve;
    constexpr auto kEach = ExcitationOption::CurvePerDirection;
    const struct {
        ExcitationOption option;
        int curve;
        std::array<int, 3> numbers;
        std::vector<long> curves;                  ///< besides the material's
        std::vector<std::array<long, 3>> motions;  ///< of each node: dof, kind, curve
    } cases[] = {
        {kOne, 2, {9, 0, 9}, {12}, {{1, 0, 12}, {3, 0, 12}}},
        {kOne, 3, {1, 0, 0}, {13}, {{1, 2, 13}}},
        {kOne, 5, {1, 1, 1}, {}, {}},
        {kOne, 2, {0, 0, -1}, {12}, {}},
        {kEach, 2, {3, 2, 3}, {13, 12}, {{1, 2, 13}, {2, 0, 12}, {3, 2, 13}}},
        {kEach, 2, {0, 77, 2}, {12}, {{3, 0, 12}}},
    };
    for (const auto& c : cases) {
        CVynData model = ShakenModel(c.option, c.curve, c.numbers);
        const KeywordDeck deck = Write(model);
        EXPECT_EQ(deck.Count("BOUNDARY_PRESCRIBED_MOTION_NODE"), 1);
        std::vector<long> curves;
        for (const KeywordRow& row : deck.Rows("DEFINE_CURVE", 1)) {
            curves.push_back(row.Int("LCID"));
        }
        std::vector<long> expected{10};
        expected.insert(expected.end(), c.curves.begin(), c.curves.end());
        EXPECT_EQ(curves, expected);
        const auto rows = deck.Rows("BOUNDARY_PRESCRIBED_MOTION_NODE");
        ASSERT_EQ(rows.size(), 3 * c.motions.size());
        for (std::size_t i = 0; i < rows.size(); ++i) {
            const auto& motion = c.motions[i % c.motions.size()];
            EXPECT_EQ(rows[i].Int("NID"), (std::array<long, 3>{1, 3, 4})[i / c.motions.size()]);
            EXPECT_EQ(rows[i].Int("DOF"), motion[0]);
            EXPECT_EQ(rows[i].Int("VAD"), motion[1]);
            EXPECT_EQ(rows[i].Int("LCID"), motion[2]);
        }
    }
    EXPECT_NE(text.find("        12         0\n         0.000000e+0         1.000000e+0\n"
                        "         5.000000e-1        -2.000000e+0\n"),
              std::string::npos);
    CVynData model = ShakenModel(ExcitationOption::None, 2, {2, 2, 2});
    EXPECT_EQ(Write(model).Count("BOUNDARY_PRESCRIBED_MOTION_NODE"), 0);
}

TEST_F(DynaLoads, SetsOfLists) {
    CVynData model = PlateModel();
    model.SetSection(1, Data::CSection(L"R", L"STD%R%400%200", Generic(1)));
    model.SetElem(3, Data::CElement(ElementType::Bar, {1, 2}, 1));
    model.SetList(2, Data::CList(L"", Nodes(L"2 to 9")));
    model.SetList(3, Data::CList(L"", Elements(L"all")));
    model.SetList(4, Data::CList(L"", Nodes(L"")));
    model.SetList(5, Data::CList(L"", CEntList(L"all", SelType::Case)));
    Write(model);
    const std::size_t at = text.find("*SET_NODE_LIST");
    EXPECT_EQ(text.substr(at, text.find("*END") - at),
              "*SET_NODE_LIST\n         2\n         2         3         4\n"
              "*SET_BEAM\n         3\n         3\n"
              "*SET_SHELL_LIST\n         3\n         1\n");
}

TEST_F(DynaLoads, TiedInterfaces) {
    const struct {
        CEntList slave;
        std::string lines;
    } cases[] = {
        {Nodes(L"3 4"),
         "*SET_NODE\n         2\n         3         4\n*SET_SHELL\n         3\n         1\n"
         "*CONTACT_TIED_SHELL_EDGE_TO_SURFACE_ID\n         7Tied interface 7\n"
         "         2         3         4         1         1         1\n\n\n"},
        {Elements(L"1"),
         "*SET_SHELL\n         2\n         1\n*SET_SHELL\n         3\n         1\n"
         "*CONTACT_TIED_SHELL_EDGE_TO_SURFACE_ID\n         7Tied interface 7\n"
         "         2         3         1         1         1         1\n\n\n"},
        {Nodes(L"77"), ""},
    };
    for (const auto& c : cases) {
        CVynData model = PlateModel();
        model.SetList(1, Data::CList());
        Data::CTiedInterface tie;
        tie.SetSlave(c.slave);
        tie.SetMaster(Elements(L"all"));
        model.SetTiedInterface(7, tie);
        Write(model);
        const std::size_t at = text.find("*SET_", text.find("*SECTION_SHELL"));
        EXPECT_EQ(at == std::string::npos ? "" : text.substr(at, text.find("*END") - at), c.lines);
    }
    EXPECT_TRUE(HasNote(L"Tied interface 7 is not written: one of its sides is empty"));
}

TEST_F(DynaLoads, ConstraintsAndBodies) {
    CVynData model = ModelOf({{0, 0, 0}, {1, 0, 0}, {2, 0, 0}, {3, 0, 0}, {4, 0, 0}, {5, 0, 0}});
    model.SetAxis(6, Data::CAxis());
    Data::CNode turned = model.Node(2);
    turned.SetAxis(6);
    model.SetNode(2, turned);
    Data::CJoint joint;
    joint.SetNodes(1, 2);
    joint.SetFreedom({false, true, false, false, false, true});
    model.SetJoint(1, joint);
    joint.SetNodes(1, 99);
    model.SetJoint(2, joint);
    Data::CConstraintEqn equation;
    equation.SetConstrained(3, Direction::YY);
    equation.SetTerms({{1, Direction::X, 0.25}, {2, Direction::ZZ, -3.0}});
    model.SetConstraintEqn(1, equation);
    const auto rigid = [&](int number, int primary, const wchar_t* nodes) {
        Data::CRigid record;
        record.SetPrimaryNode(primary);
        record.SetNodes(Nodes(nodes));
        model.SetRigid(number, record);
    };
    rigid(1, 5, L"4 5");
    rigid(2, 6, L"3");
    rigid(3, 3, L"4");  // one with both
    rigid(4, 99, L"1");
    const KeywordDeck deck = Write(model);
    const std::size_t at = text.find("*CONSTRAINED");
    EXPECT_EQ(text.substr(at, text.find("*END") - at),
              "*CONSTRAINED_LINEAR_LOCAL\n         1\n"
              "         1         2         0-1.0000e+0\n"
              "         2         2         61.00000e+0\n"
              "*CONSTRAINED_LINEAR_LOCAL\n         2\n"
              "         1         6         0-1.0000e+0\n"
              "         2         6         61.00000e+0\n"
              "*CONSTRAINED_LINEAR_LOCAL\n         3\n"
              "         3         5         0-1.0000e+0\n"
              "         1         1         02.50000e-1\n"
              "         2         6         6-3.0000e+0\n"
              "*CONSTRAINED_NODAL_RIGID_BODY\n         1         0         1\n"
              "*SET_NODE_LIST\n         1\n         5         4\n"
              "*CONSTRAINED_NODAL_RIGID_BODY\n         2         0         2\n"
              "*SET_NODE_LIST\n         2\n         6         3\n"
              "*CONSTRAINED_NODAL_RIGID_BODY\n         3         0         3\n"
              "*SET_NODE_LIST\n         3\n         3         4\n"
              "*CONSTRAINED_RIGID_BODIES\n         1         2\n         1         3\n");
    EXPECT_TRUE(HasNote(L"Joint 2 is not written"));
    EXPECT_TRUE(HasNote(L"Rigid constraint 4 is not written"));
}

}  // namespace
}  // namespace Tevra

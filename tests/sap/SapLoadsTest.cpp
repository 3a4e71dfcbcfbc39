#include <cmath>

#include "sap/SapFixture.h"

namespace Tevra {
namespace {

// The keys of two letters as one character each: U+5855 and so on.
constexpr const char* kUx = "\xE5\xA1\x95";
constexpr const char* kUy = "\xE5\xA5\x95";
constexpr const char* kUz = "\xE5\xA9\x95";
constexpr const char* kRy = "\xE5\xA5\x92";

class SapLoads : public SapFixture {
protected:
    /// What stands below the name of load case 1, when it has no title.
    std::string Case1(CVynData& model) {
        const std::string loads = LoadText(model);
        const std::string name = "   NAME=LC0001\n";
        EXPECT_EQ(loads.substr(0, name.size()), name);
        return loads.size() < name.size() ? loads : loads.substr(name.size());
    }
    std::wstring Notes() const { return writer.ErrorLog(); }
};

Data::CBeamLoad BeamLoad(BeamLoadType type, Direction d, int axis, double first,
                         double second = 0.0) {
    auto load = LoadOn<Data::CBeamLoad>(L"1");
    load.SetType(type);
    load.SetDirection(d);
    load.SetAxis(axis);
    load.SetPoint(1, {0.25, true, first});
    load.SetPoint(2, {0.75, true, second});
    return load;
}

TEST_F(SapLoads, NamesOfCases) {
    struct Case {
        int number;
        const wchar_t* title;
        const char* line;
    };
    const Case cases[] = {
        {7, L"Dead load (perm)", "  NAME=Deadlo7\n"},
        {7, L"(a)_b", "  NAME=+a+-b7\n"},
        {12, L"Imposed", "  NAME=Impos12\n"},
        {345, L"Wind", "  NAME=Wind345\n"},
        {345, L"Windy", "  NAME=Wind345\n"},
        {1200, L"Temperature", "  NAME=Tempera\n"},
        {1200, nullptr, "   NAME=LC1200\n"},
        {12, nullptr, "   NAME=LC0012\n"},
        {3, L"", "  NAME=3\n"},
    };
    for (const Case& c : cases) {
        CVynData model = BeamModel();
        auto load = LoadOn<Data::CNodeLoad>(L"none", SelType::Node);
        load.SetLoadCase(c.number);
        model.SetNodeLoad(1, load);
        if (c.title != nullptr) {
            model.SetLoadCaseTitle(c.number, Data::NamedEntity(c.title));
        }
        EXPECT_EQ(LoadText(model), std::string(c.line) + "  TYPE=FORCE\n");
    }
}

TEST_F(SapLoads, GravityByKindOfEntity) {
    CVynData model = PlateModel();
    model.SetSection(1, Data::CSection(L"", L"STD%R%400%200", Generic(1)));
    model.SetElem(2, Data::CElement(ElementType::Bar, {1, 3}, 1));
    model.SetElem(3, Data::CElement(ElementType::Cable, {1, 4}, 1));
    Data::CNode node = model.Node(4);
    node.SetMassProperty(1);
    model.SetNode(4, node);
    model.SetMassProp(1, {});
    Data::CGravityLoad load;
    model.SetGravityLoad(1, load);
    load.SetValue({0.1, -0.2, 0.0});
    load.SetLoadedEntities({L"2", SelType::Element});
    load.SetNodeList({L"none", SelType::Node});
    model.SetGravityLoad(2, load);
    EXPECT_EQ(Case1(model),
              "  CSYS=0\n  TYPE=GRAVITY  ELEM=FRAME\n"
              "    ADD=2 UX=0.00000 UY=0.00000 UZ=-1.00000 \n"
              "    ADD=2 UX=0.100000 UY=-0.200000 UZ=0.00000 \n"
              "  CSYS=0\n  TYPE=GRAVITY  ELEM=SHELL\n"
              "    ADD=1 UX=0.00000 UY=0.00000 UZ=-1.00000 \n"
              "  CSYS=0\n  TYPE=GRAVITY  ELEM=JOINT\n"
              "    ADD=4 UX=0.00000 UY=0.00000 UZ=-1.00000 \n");
}

TEST_F(SapLoads, ForcesAtJointsByAxis) {
    CVynData model = BeamModel();
    model.SetAxis(2, AxisOf({0, 1, 0}, {1, 0, 0}));
    model.SetAxis(3, AxisOf({1, 0, 0}, {0, 1, 0}, AxisType::Cylindrical));
    Data::CNode node = model.Node(2);
    node.SetAxis(2);
    model.SetNode(2, node);
    auto load = LoadOn<Data::CNodeLoad>(L"1 2", SelType::Node);
    load.SetValue(-1500.0);
    model.SetNodeLoad(1, load);
    load.SetAxis(3);
    model.SetNodeLoad(2, load);
    load.SetAxis(kLocalAxis);
    load.SetDirection(Direction::YY);
    model.SetNodeLoad(3, load);
    load.SetAxis(9);
    load.SetDirection(Direction::X);
    model.SetNodeLoad(4, load);
    const std::string z = kUz;
    const std::string yy = kRy;
    EXPECT_EQ(Case1(model), "  TYPE=FORCE\n   CSYS=0\n   ADD=1    " + z +
                                "=-1500.00\n   ADD=2    " + z + "=-1500.00\n   ADD=1    " + yy +
                                "=-1500.00\n   CSYS=2\n   ADD=2    " + yy +
                                "=-1500.00\n   CSYS=0\n   ADD=1    " + kUx +
                                "=-1500.00\n   ADD=2    " + kUx + "=-1500.00\n");
    EXPECT_EQ(Notes(),
              L"Note:           Nodal Loads in Cylindrical and Spherical coordinate systems not "
              L"exported");
}

TEST_F(SapLoads, SettlementsInGlobalComponents) {
    CVynData model = BeamModel();
    model.SetAxis(2, AxisOf({0.6, 0.8, 0}, {-0.8, 0.6, 0}));
    auto load = LoadOn<Data::CSettlement>(L"2", SelType::Node);
    load.SetValue(-0.01);
    model.SetSettlement(1, load);
    load.SetAxis(2);
    load.SetDirection(Direction::X);
    model.SetSettlement(2, load);
    EXPECT_EQ(Case1(model), std::string("  TYPE=SPRING DISPLACEMENT\n    ADD=2 ") + kUz +
                                "=-0.0100000\n    ADD=2 " + kUx + "=-0.00600000\n    ADD=2 " + kUy +
                                "=-0.00800000\n");
    load.SetAxis(0);
    load.SetValue(0.0);
    model.DeleteSettlement(1);
    model.SetSettlement(2, load);
    EXPECT_EQ(Case1(model),
              std::string("  TYPE=SPRING DISPLACEMENT\n    ADD=2 ") + kUx + "=0.00000\n")
        << "a support that is held where it is";
}

TEST_F(SapLoads, PointLoadsInElementAxes) {
    struct Case {
        Direction direction;
        const char* horizontal;
        const char* vertical;
    };
    const Case cases[] = {
        {Direction::X, "U1=250.000", "U1=250.000"},   {Direction::Y, "U3=-250.000", "U3=250.000"},
        {Direction::Z, "U2=250.000", "U2=-250.000"},  {Direction::XX, "R1=250.000", "R1=250.000"},
        {Direction::YY, "R3=-250.000", "R3=250.000"}, {Direction::ZZ, "R2=250.000", "R2=-250.000"},
    };
    for (const Case& c : cases) {
        for (const bool isVertical : {false, true}) {
            CVynData model = isVertical ? BeamModel({0, 0, 0}, {0, 0, 4}) : BeamModel();
            auto load = BeamLoad(BeamLoadType::Point, c.direction, kLocalAxis, 250.0);
            model.SetBeamLoad(1, load);
            load.SetPoint(1, {1.5, false, 0.0});
            model.SetBeamLoad(2, load);
            const std::string item = isVertical ? c.vertical : c.horizontal;
            EXPECT_EQ(Case1(model), "  TYPE=CONCENTRATED SPAN\n    ADD=1 " + item +
                                        "    RD=0.250000\n    ADD=1 " + item.substr(0, 3) +
                                        "0.00000    D=1.50000\n");
        }
    }
}

TEST_F(SapLoads, PointLoadsInOtherAxesAreGlobal) {
    CVynData model = BeamModel({0, 0, 0}, {3, 0, 4});
    model.SetAxis(2, AxisOf({0, 0.6, 0.8}, {1, 0, 0}));
    model.SetAxis(3, AxisOf({1, 0, 0}, {0, 1, 0}, AxisType::Spherical));
    model.SetBeamLoad(1, BeamLoad(BeamLoadType::Point, Direction::X, 2, 1000.0));
    model.SetBeamLoad(2, BeamLoad(BeamLoadType::Point, Direction::XX, 2, 1000.0));
    model.SetBeamLoad(3, BeamLoad(BeamLoadType::Point, Direction::X, 3, 1000.0));
    auto projected = BeamLoad(BeamLoadType::Point, Direction::Z, 0, -7.0);
    projected.SetProjected(true);  // a point has no length to project
    model.SetBeamLoad(4, projected);
    EXPECT_EQ(Case1(model),
              "  TYPE=CONCENTRATED SPAN\n    CSYS=0\n"
              "    ADD=1 UX=0.00000 UY=600.000 UZ=800.000    RD=0.250000\n"
              "    ADD=1 RX=0.00000 RY=600.000 RZ=800.000    RD=0.250000\n"
              "    ADD=1 UX=0.00000 UY=0.00000 UZ=-7.00000    RD=0.250000\n");
    EXPECT_EQ(
        Notes(),
        L"Note:           Loads in Cylindrical and Spherical coordinate systems not exported");
}

TEST_F(SapLoads, DistributedLoads) {
    CVynData model = BeamModel();
    model.SetAxis(2, AxisOf({0, 1, 0}, {1, 0, 0}));
    model.SetBeamLoad(1, BeamLoad(BeamLoadType::Uniform, Direction::Z, 0, -5.0));
    model.SetBeamLoad(2, BeamLoad(BeamLoadType::Linear, Direction::X, 2, 1.0, 3.0));
    auto patch = BeamLoad(BeamLoadType::Patch, Direction::Y, kLocalAxis, 2.0, 4.0);
    model.SetBeamLoad(3, patch);
    patch.SetPoint(1, {1.0, false, 2.0});  // a metre of four, the other end a fraction
    model.SetBeamLoad(4, patch);
    patch.SetPoint(2, {3.0, false, 0.0});
    model.SetBeamLoad(5, patch);
    EXPECT_EQ(Case1(model), std::string("  TYPE=DISTRIBUTED SPAN\n    CSYS=0\n    ADD=1 ") + kUz +
                                "=-5.00000, -5.00000    RD=0.00000    RD=1.00000\n    CSYS=2\n"
                                "    ADD=1 " +
                                kUx +
                                "=1.00000, 3.00000    RD=0.00000    RD=1.00000\n"
                                "    ADD=1 U3=-2.00000,-4.00000    RD=0.250000    RD=0.750000\n"
                                "    ADD=1 U3=-2.00000,-4.00000    RD=0.250000    RD=0.750000\n"
                                "    ADD=1 U3=-2.00000,0.00000    D=1.00000    D=3.00000\n");
}

TEST_F(SapLoads, OnlyWhatLiesOnTheFrame) {
    CVynData model = BeamModel();
    auto patch = BeamLoad(BeamLoadType::Patch, Direction::Y, kLocalAxis, 1.0, 3.0);
    patch.SetPoint(1, {3.0, false, 1.0});
    patch.SetPoint(2, {5.0, false, 3.0});
    model.SetBeamLoad(1, patch);
    auto point = BeamLoad(BeamLoadType::Point, Direction::Y, kLocalAxis, 1.0);
    point.SetPoint(1, {4.5, false, 1.0});
    model.SetBeamLoad(2, point);
    EXPECT_EQ(Case1(model),
              "  TYPE=CONCENTRATED SPAN\n  TYPE=DISTRIBUTED SPAN\n"
              "    ADD=1 U3=-1.00000,-2.00000    D=3.00000    D=4.00000\n");
    EXPECT_NE(writer.ErrorLog().find(L"on which none of it lies: 1"), std::wstring::npos);
}

TEST_F(SapLoads, ProjectedLoadsKeepTheirTotal) {
    // Snow of 10 N per metre of plan on a rafter of 5 m over 3 m of plan, wind on its height of 4
    // m.
    const std::pair<Direction, double> cases[] = {{Direction::Z, 30.0}, {Direction::X, 40.0}};
    for (const auto& [direction, total] : cases) {
        CVynData model = BeamModel({1, 1, 0}, {4, 1, 4});
        auto load = BeamLoad(BeamLoadType::Uniform, direction, 0, 10.0);
        load.SetProjected(true);
        model.SetBeamLoad(1, load);
        const SapDeck deck = Write(model);
        const SapLine& line = deck.Block("LOAD").back();
        EXPECT_NEAR(line.Real(direction == Direction::Z ? kUz : kUx, 0) * 5.0, total, 1e-4);
        EXPECT_NEAR(line.Real(direction == Direction::Z ? kUz : kUx, 1) * 5.0, total, 1e-4);
    }
}

TEST_F(SapLoads, TrilinearLoadsEndTheFile) {
    CVynData model = BeamModel();
    model.SetBeamLoad(1, BeamLoad(BeamLoadType::Trilinear, Direction::Z, 0, -5.0));
    Write(model);
    EXPECT_FALSE(written);
    EXPECT_FALSE(Has("END\n"));
    EXPECT_EQ(Notes().find(L"<red>Error:          </red>this feature does not suppor non-uniform "
                           L"member loads\n<red>Error:          </red>Unable to open file\n"),
              0U);
    EXPECT_EQ(host.Messages(), std::vector<std::wstring>{L"Errors writing file"});
}

TEST_F(SapLoads, PrestressAsForce) {
    CVynData model = BeamModel();  // E 200e9, A 0.08, L 4
    const std::pair<AxialLoadType, double> kinds[] = {{AxialLoadType::Force, 5e5},
                                                      {AxialLoadType::Strain, 1e-4},
                                                      {AxialLoadType::LackOfFit, 2e-3}};
    int number = 0;
    for (const auto& [type, value] : kinds) {
        auto load = LoadOn<Data::CAxialLoad>(L"1");
        load.SetType(type);
        load.SetValue(value);
        model.SetAxialLoad(++number, load);
        if (type == AxialLoadType::Force) {
            load.SetOffset(0.0, -0.1);
            model.SetAxialLoad(++number, load);
        }
    }
    EXPECT_EQ(Case1(model),
              "    TYPE=PRESTRESS\n      ADD=1   P=500000. \n      ADD=1   P=1.60000e+06 \n"
              "      ADD=1   P=8.00000e+06 \n");
    EXPECT_EQ(Notes(),
              L"Note:           Tendon prestress force in beam with offsets specified not "
              L"exported. ");
}

TEST_F(SapLoads, FacesInEveryAxis) {
    CVynData model = PlateModel();
    // Tilted about Y: the normal is (-0.6, 0, 0.8).
    model.SetNode(2, Data::CNode({1.6, 0, 1.2}));
    model.SetNode(3, Data::CNode({1.6, 2, 1.2}));
    model.SetAxis(2, AxisOf({1, 0, 0}, {0, 1, 0}));
    model.SetAxis(3, AxisOf({1, 0, 0}, {0, 1, 0}, AxisType::Cylindrical));
    auto load = LoadOn<Data::CFaceLoad>(L"1");
    load.SetValues({-1000.0, 0, 0, 0});
    model.SetFaceLoad(1, load);
    load.SetAxis(2);
    model.SetFaceLoad(2, load);
    load.SetProjected(true);
    model.SetFaceLoad(3, load);
    load.SetProjected(false);
    load.SetAxis(kLocalAxis);
    model.SetFaceLoad(4, load);
    load.SetAxis(3);
    model.SetFaceLoad(5, load);
    const std::string z = kUz;
    EXPECT_EQ(Case1(model), "    TYPE=UNIFORM \n    CSYS=0\n      ADD=1 " + z +
                                "=-1000.00\n    CSYS=2\n      ADD=1 " + z +
                                "=-1000.00\n      ADD=1 " + z +
                                "=-800.000\n    CSYS=0\n      ADD=1 " + kUx +
                                "=600.000\n      ADD=1 " + z + "=-800.000\n");
    EXPECT_EQ(Notes(),
              L"Note:           Face Loads in Cylindrical and Spherical coordinate systems "
              L"not exported");
}

TEST_F(SapLoads, FacesUnderPressuresThatVary) {
    CVynData model = PlateModel();
    auto load = LoadOn<Data::CFaceLoad>(L"1");
    load.SetType(FaceLoadType::Corners);
    load.SetValues({-1000.0, -2000.0, -3000.0, -4000.0});
    model.SetFaceLoad(1, load);
    load.SetValues({-8.0, -8.0, -8.0, -8.0});
    model.SetFaceLoad(2, load);  // the same at all corners
    load.SetType(FaceLoadType::Equation);
    load.SetEquation({100.0, 10.0, 0.0, 0.0});
    model.SetFaceLoad(3, load);
    load.SetType(FaceLoadType::Point);
    model.SetFaceLoad(4, load);  // 8 N on 4 m2
    std::string lines;
    for (const char* value : {"-2500.00", "-8.00000", "110.000", "-2.00000"}) {
        lines += std::string("      ADD=1 ") + kUz + "=" + value + "\n";
    }
    EXPECT_EQ(Case1(model), "    TYPE=UNIFORM \n    CSYS=0\n" + lines);
    const std::wstring note = L"Note:            Non-uniform face loads are averaged not exported.";
    EXPECT_EQ(Notes(), note + L"\n" + note + L"\n" + note);
}

TEST_F(SapLoads, TemperaturesOfFrames) {
    for (const bool isVertical : {false, true}) {
        CVynData model = isVertical ? BeamModel({0, 0, 0}, {0, 0, 4}) : BeamModel();
        auto load = LoadOn<Data::CBeamThermalLoad>(L"1");
        load.SetPoint(1, 0.0, 15.0);
        model.SetBeamThermalLoad(1, load);
        load.SetType(BeamThermalType::GradientY);
        load.SetPoint(1, -0.1, -10.0);
        load.SetPoint(2, 0.1, 10.0);
        model.SetBeamThermalLoad(2, load);
        load.SetType(BeamThermalType::GradientZ);
        load.SetUniformPart(5.0);
        model.SetBeamThermalLoad(3, load);
        const char* expected =
            isVertical ? "      ADD=1   T3=100.000\n      ADD=1   T2=-100.000  T=5.00000\n"
                       : "      ADD=1   T3=-100.000\n      ADD=1   T2=100.000  T=5.00000\n";
        EXPECT_EQ(
            Case1(model),
            std::string("    TYPE=TEMPERATURE ELEM=FRAME\n      ADD=1   T=15.0000\n") + expected);
    }
}

TEST_F(SapLoads, TemperaturesOfShells) {
    CVynData model = PlateModel();  // 0.2 m thick
    auto load = LoadOn<Data::CFaceThermalLoad>(L"1");
    load.SetValues({12.0, 0, 0, 0, 0, 0, 0, 0});
    model.SetFaceThermalLoad(1, load);
    load.SetType(FaceThermalType::Gradient);
    load.SetValues({6.0, -6.0, 0, 0, 0, 0, 0, 0});
    model.SetFaceThermalLoad(2, load);
    load.SetValues({6.0, -2.0, 0, 0, 0, 0, 0, 0});
    model.SetFaceThermalLoad(3, load);
    load.SetType(FaceThermalType::General);
    model.SetFaceThermalLoad(4, load);
    EXPECT_EQ(Case1(model),
              "    TYPE=TEMPERATURE ELEM=SHELL\n      ADD=1 T=12.0000\n      ADD=1 T3=60.0000\n"
              "      ADD=1 T3=40.0000\n      ADD=1 T=2.00000\n");
    EXPECT_EQ(Notes(), L"Note:            Generalized thermal loads on 2D element not exported.");
}

TEST_F(SapLoads, GroupsStandInTheirOrderCaseByCase) {
    CVynData model = BeamModel();
    auto node = LoadOn<Data::CNodeLoad>(L"none", SelType::Node);
    node.SetLoadCase(2);
    model.SetNodeLoad(1, node);
    model.SetFaceThermalLoad(1, LoadOn<Data::CFaceThermalLoad>(L"none"));
    model.SetBeamThermalLoad(1, LoadOn<Data::CBeamThermalLoad>(L"none"));
    model.SetFaceLoad(1, LoadOn<Data::CFaceLoad>(L"none"));
    model.SetAxialLoad(1, LoadOn<Data::CAxialLoad>(L"none"));
    model.SetBeamLoad(1, LoadOn<Data::CBeamLoad>(L"none"));
    auto point = LoadOn<Data::CBeamLoad>(L"none");
    point.SetType(BeamLoadType::Point);
    model.SetBeamLoad(2, point);
    model.SetSettlement(1, LoadOn<Data::CSettlement>(L"none", SelType::Node));
    EXPECT_EQ(Case1(model),
              "  TYPE=SPRING DISPLACEMENT\n  TYPE=CONCENTRATED SPAN\n  TYPE=DISTRIBUTED SPAN\n"
              "    TYPE=PRESTRESS\n    TYPE=UNIFORM \n    TYPE=TEMPERATURE ELEM=FRAME\n"
              "    TYPE=TEMPERATURE ELEM=SHELL\n   NAME=LC0002\n  TYPE=FORCE\n");
}

TEST_F(SapLoads, KindsWithoutAPlaceAreNoted) {
    CVynData model = BeamModel();
    model.SetInPlaneLoad(1, {});
    model.SetEdgeLoad(1, {});
    model.SetBeamDist(1, {});
    EXPECT_EQ(LoadText(model), "");  // none of them opens the block
    EXPECT_EQ(Notes(),
              L"Note:            1D distortions are not exported.\n"
              L"Note:            Edge loads are not exported.\n"
              L"Note:            Prestress loads in 2D elements are not exported.");
    model.SetAppliedDisplacement(1, {});
    EXPECT_EQ(LoadText(model), "   NAME=LC0001\n");
    EXPECT_TRUE(HasNote(L"\nNote:            Applied displacements are not exported.\n"));
}

}  // namespace
}  // namespace Tevra

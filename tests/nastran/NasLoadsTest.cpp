#include <cmath>
#include <limits>

#include "nastran/NasFixture.h"

namespace Tevra {
namespace {

class NasLoads : public NasFixture {};

CEntList One() {
    return {L"1", SelType::Element};
}

struct AxialCase {
    AxialLoadType type;
    double value;
    double y;
    double z;
    double expected[3];  ///< T, gradient 1, gradient 2
};

// Rectangle 0.2 x 0.4: A 0.08, Iyy 0.2 0.4^3 / 12 = 1.0666667e-3, Izz 0.4 0.2^3 / 12
// = 2.6666667e-4; E alpha = 2e6.
TEST_F(NasLoads, AxialLoadsAreTemperatures) {
    const AxialCase cases[] = {
        {AxialLoadType::Force, 160e3, 0, 0, {-1.0, 0, 0}},
        {AxialLoadType::Strain, 1e-4, 0, 0, {-10.0, 0, 0}},
        {AxialLoadType::LackOfFit, 4e-4, 0, 0, {-10.0, 0, 0}},
        {AxialLoadType::Force, 160e3, 0, 0.1, {-1.0, -7.5, 0}},
        {AxialLoadType::Force, 160e3, 0.05, 0, {-1.0, 0, 15.0}},
    };
    for (const AxialCase& c : cases) {
        CVynData model = BeamModel();
        Data::CAxialLoad load;
        load.SetType(c.type);
        load.SetValue(c.value);
        load.SetOffset(c.y, c.z);
        load.SetLoadedEntities(One());
        model.SetAxialLoad(1, load);
        const auto cards = Write(model).Named("TEMPRB");
        ASSERT_EQ(cards.size(), 1U);
        for (int k = 0; k < 3; ++k) {
            EXPECT_NEAR(cards[0].Real(3 + 2 * k), c.expected[k], 1e-4) << c.value << ' ' << k;
            EXPECT_EQ(cards[0].Field(3 + 2 * k), cards[0].Field(4 + 2 * k));
        }
    }
}

TEST_F(NasLoads, BeamTemperaturesAreTakenAtTheCentroid) {
    CVynData model = BeamModel();
    Data::CBeamThermalLoad load;
    load.SetLoadedEntities(One());
    load.SetPoint(1, -0.1, 10.0);
    load.SetPoint(2, 0.3, 50.0);
    load.SetType(BeamThermalType::GradientZ);
    model.SetBeamThermalLoad(1, load);
    load.SetType(BeamThermalType::GradientY);
    model.SetBeamThermalLoad(2, load);
    const auto deck = Write(model);
    const auto cards = deck.Named("TEMPRB");
    ASSERT_EQ(cards.size(), 2U);
    EXPECT_DOUBLE_EQ(cards[0].Real(3), 20.0);
    EXPECT_DOUBLE_EQ(cards[0].Real(5), 100.0);
    EXPECT_DOUBLE_EQ(cards[0].Real(7), 0.0);
    EXPECT_DOUBLE_EQ(cards[1].Real(5), 0.0);
    EXPECT_DOUBLE_EQ(cards[1].Real(7), -100.0);
    EXPECT_EQ(deck.Count("TEMPD"), 1);
    EXPECT_NE(text.find("$ Refernce temperature\n"), std::string::npos);
    EXPECT_NE(text.find("\nTEMPERATURE(LOAD) = 1\n"), std::string::npos);
}

TEST_F(NasLoads, PlaneTemperatures) {
    CVynData model = PlateModel();
    const CEntList one = One();
    Data::CInPlaneLoad inPlane;
    inPlane.SetValue(4e5);
    inPlane.SetOffset(0.05);
    inPlane.SetLoadedEntities(one);
    model.SetInPlaneLoad(1, inPlane);
    Data::CFaceThermalLoad thermal;
    thermal.SetType(FaceThermalType::Gradient);
    thermal.SetValues({30.0, 10.0, 0, 0, 0, 0, 0, 0});
    thermal.SetLoadedEntities(one);
    model.SetFaceThermalLoad(1, thermal);
    const auto cards = Write(model).Named("TEMPP1");
    ASSERT_EQ(cards.size(), 2U);
    EXPECT_NEAR(cards[0].Real(3), -1.0, 1e-6);   // 4e5 / (2e11 0.2 1e-5)
    EXPECT_NEAR(cards[0].Real(4), -15.0, 1e-5);  // 12 1.0 0.05 / 0.04
    EXPECT_DOUBLE_EQ(cards[1].Real(3), 20.0);
    EXPECT_DOUBLE_EQ(cards[1].Real(4), 100.0);
}

// The membrane is thin, the bending thickness and the distance of the faces are not.
TEST_F(NasLoads, PlaneTemperaturesByTheThicknessThatActs) {
    CVynData model = PlateModel();
    Data::CProp2D property = model.Prop2D(1);
    property.SetThickness(0.25);
    property.SetInplane(0.001);
    model.SetProp2D(1, property);
    Data::CInPlaneLoad inPlane;
    inPlane.SetValue(1e3);
    inPlane.SetOffset(0.05);
    inPlane.SetLoadedEntities(One());
    model.SetInPlaneLoad(1, inPlane);
    Data::CFaceThermalLoad thermal;
    thermal.SetType(FaceThermalType::Gradient);
    thermal.SetValues({10.0, -10.0, 0, 0, 0, 0, 0, 0});
    thermal.SetLoadedEntities(One());
    model.SetFaceThermalLoad(1, thermal);
    const auto cards = Write(model).Named("TEMPP1");
    ASSERT_EQ(cards.size(), 2U);
    EXPECT_NEAR(cards[0].Real(3), -0.5, 1e-6);     // 1e3 / (2e11 0.001 1e-5)
    EXPECT_NEAR(cards[0].Real(4), -0.0192, 1e-8);  // 12 1e3 0.05 / (2e11 0.25^3 1e-5)
    EXPECT_DOUBLE_EQ(cards[1].Real(4), 80.0);
}

// Along (0.6, 0.8) in plan the beam along X has the sine 0.8; its components are not projected
// again.
TEST_F(NasLoads, ProjectedBeamLoadInAUserAxis) {
    CVynData model = BeamModel();
    Data::CAxis axis;
    axis.SetXAxis({0.6, 0.8, 0.0});
    axis.SetXYPlane({-0.8, 0.6, 0.0});
    model.SetAxis(3, axis);
    Data::CBeamLoad load;
    load.SetAxis(3);
    load.SetDirection(Direction::X);
    load.SetProjected(true);
    load.SetPoint(1, {0.0, true, 100.0});
    load.SetLoadedEntities(One());
    model.SetBeamLoad(1, load);
    const auto cards = Write(model).Named("PLOAD1");
    ASSERT_EQ(cards.size(), 2U);
    EXPECT_EQ(cards[0].Field(3), "FX");
    EXPECT_DOUBLE_EQ(cards[0].Real(6), 48.0);
    EXPECT_EQ(cards[1].Field(3), "FY");
    EXPECT_DOUBLE_EQ(cards[1].Real(6), 64.0);
}

TEST_F(NasLoads, SettlementInOtherAxesThanTheNode) {
    CVynData model = BeamModel();
    Data::CAxis axis;
    axis.SetXAxis({0.0, 1.0, 0.0});
    axis.SetXYPlane({-1.0, 0.0, 0.0});
    model.SetAxis(1, axis);
    Data::CNode node = model.Node(2);
    node.SetAxis(1);
    model.SetNode(2, node);
    Data::CSettlement settlement;
    settlement.SetValue(-0.01);
    settlement.SetLoadedEntities({L"1 2", SelType::Node});
    model.SetSettlement(1, settlement);
    EXPECT_EQ(Write(model).Count("SPCD"), 2);
    EXPECT_TRUE(HasNote(L"The displacement imposed on node 2 is written in the axes of the node"));
    EXPECT_FALSE(HasNote(L"node 1"));
}

TEST_F(NasLoads, LoadCasesWithoutBound) {
    CVynData model = BeamModel();
    Data::CNodeLoad load;
    load.SetLoadCase(99'999'999);
    load.SetLoadedEntities({L"2", SelType::Node});
    model.SetNodeLoad(1, load);
    Write(model);
    EXPECT_FALSE(written);
    EXPECT_TRUE(writer.ErrorLog().starts_with(
        L"<red>Error:          </red>There is a subcase for every number"));
}

struct BeamCase {
    BeamLoadType type;
    int axis;
    bool projected;
    Data::LoadPoint first;
    Data::LoadPoint second;
    std::vector<std::string> expected;
};

TEST_F(NasLoads, BeamLoads) {
    const BeamCase cases[] = {
        {BeamLoadType::Uniform,
         0,
         false,
         {0, true, 7},
         {},
         {"FZ", "LE", "0.000000e+0", "7.000000e+0", "4.000000e+0", "7.000000e+0"}},
        {BeamLoadType::Linear,
         0,
         true,
         {0, true, 1},
         {0, true, 2},
         {"FZE", "LE", "0.000000e+0", "1.000000e+0", "4.000000e+0", "2.000000e+0"}},
        {BeamLoadType::Point,
         -1,
         false,
         {0.25, true, 3},
         {},
         {"FZ", "PR", "2.500000e-1", "3.000000e+0", "", ""}},
        {BeamLoadType::Patch,
         0,
         false,
         {0.25, true, 3},
         {3.0, false, 5},
         {"FZ", "LE", "1.000000e+0", "3.000000e+0", "3.000000e+0", "5.000000e+0"}},
        {BeamLoadType::Patch,
         0,
         false,
         {3.0, false, 1},
         {5.0, false, 3},
         {"FZ", "LE", "3.000000e+0", "1.000000e+0", "4.000000e+0", "2.000000e+0"}},
    };
    for (const BeamCase& c : cases) {
        CVynData model = BeamModel();
        Data::CBeamLoad load;
        load.SetType(c.type);
        load.SetAxis(c.axis);
        load.SetProjected(c.projected);
        load.SetPoint(1, c.first);
        load.SetPoint(2, c.second);
        load.SetLoadedEntities(One());
        model.SetBeamLoad(1, load);
        const auto cards = Write(model).Named("PLOAD1");
        ASSERT_EQ(cards.size(), 1U);
        EXPECT_EQ(std::vector<std::string>(cards[0].fields.begin() + 2, cards[0].fields.end()),
                  c.expected);
    }
}

TEST_F(NasLoads, NothingOfALoadBeyondTheEnds) {
    CVynData model = BeamModel();
    Data::CBeamLoad load;
    load.SetType(BeamLoadType::Point);
    load.SetPoint(1, {1.5, true, 3});
    load.SetLoadedEntities(One());
    model.SetBeamLoad(1, load);
    EXPECT_EQ(Write(model).Count("PLOAD1"), 0);
    EXPECT_TRUE(HasNote(L"none of it lies on them"));
}

TEST_F(NasLoads, TrilinearLoadStopsTheExport) {
    CVynData model = BeamModel();
    Data::CBeamLoad load;
    load.SetType(BeamLoadType::Trilinear);
    load.SetLoadedEntities(One());
    model.SetBeamLoad(1, load);
    Write(model);
    EXPECT_FALSE(written);
    EXPECT_EQ(text.find("ENDDATA"), std::string::npos);
    EXPECT_TRUE(writer.ErrorLog().starts_with(
        L"<red>Error:          </red>this feature does not support non-uniform member loads"));
    EXPECT_TRUE(HasNote(L"Beam load 1 is trilinear"));
}

TEST_F(NasLoads, FaceLoadsNameTheirDirection) {
    CVynData model = PlateModel();
    Data::CFaceLoad load;
    load.SetLoadedEntities(One());
    load.SetType(FaceLoadType::Corners);
    load.SetValues({1, 2, 3, 4});
    load.SetAxis(kLocalAxis);
    model.SetFaceLoad(1, load);
    load.SetAxis(0);
    load.SetDirection(Direction::X);
    load.SetProjected(true);
    model.SetFaceLoad(2, load);
    load.SetProjected(false);
    load.SetType(FaceLoadType::Point);
    model.SetFaceLoad(3, load);
    load.SetPosition({1.5, 0.0});
    model.SetFaceLoad(4, load);
    const auto cards = Write(model).Named("PLOAD4");
    ASSERT_EQ(cards.size(), 3U);
    EXPECT_EQ(cards[0].fields.size(), 6U);
    EXPECT_DOUBLE_EQ(cards[0].Real(6), 4.0);
    EXPECT_DOUBLE_EQ(cards[1].Real(3), 0.0);  // along the plate
    EXPECT_EQ(cards[1].Int(9), 0);
    EXPECT_DOUBLE_EQ(cards[1].Real(10), 1.0);
    EXPECT_DOUBLE_EQ(cards[2].Real(3), 0.25);  // 1 N on 4 m2
    EXPECT_TRUE(HasNote(L"Face load 4 is not written: its point does not lie on element 1"));
}

TEST_F(NasLoads, GravityBesideOtherLoadsMoves) {
    CVynData model = BeamModel();
    Data::CNodeLoad load;
    load.SetLoadCase(3);
    load.SetLoadedEntities({L"2", SelType::Node});
    model.SetNodeLoad(1, load);
    Data::CGravityLoad gravity;
    gravity.SetLoadCase(3);
    model.SetGravityLoad(1, gravity);
    model.SetLoadCaseTitle(5, Data::NamedEntity(L"Last"));
    model.SetAnalysisCase(1, CAnalysisCase(L"A", 1, L"2L3"));
    model.SetCombinationCase(1, CCombinationCase(L"C", L"1.5A1"));
    model.SetCombinationCase(2, CCombinationCase(L"two", L"A1 or 2A1"));
    const auto deck = Write(model);
    EXPECT_NE(text.find("SUBCASE 6\nSUBTITLE = Load case 3 (gravity)\nLOAD = 6\nSUBCASE 7\n"
                        "SUBTITLE = C (combination)\nLOAD = 7\nBEGIN BULK\n"),
              std::string::npos);
    EXPECT_EQ(deck.Named("GRAV").at(0).Int(1), 6);
    const auto sums = deck.Named("LOAD");
    ASSERT_EQ(sums.size(), 1U);
    EXPECT_EQ(sums[0].fields, (std::vector<std::string>{"7", "1.000000e+0", "3.000000e+0", "3",
                                                        "3.000000e+0", "6"}));
    EXPECT_EQ(host.Messages(),
              std::vector<std::wstring>{
                  L"WARNING\n\nLoading and gravity options conflict in the following "
                  L"case(s).\nGravity loads will be assigned to a new case number:\n3  "});
}

TEST_F(NasLoads, LoadsOfWhatIsNotWritten) {
    CVynData model = BeamModel();
    model.SetNode(3, Data::CNode({std::numeric_limits<double>::quiet_NaN(), 0, 0}));
    model.SetElem(2, Data::CElement(ElementType::Beam, {1, 3}, 1));
    model.SetElem(3, Data::CElement(ElementType::Beam, {2, 2}, 1));
    model.SetElem(4, Data::CElement(ElementType::Beam, {1, 9}, 1));
    model.SetElem(5, Data::CElement(ElementType::Beam, {1, 2}, 8));
    Data::CNodeLoad load;
    load.SetLoadedEntities({L"1 to 3", SelType::Node});
    model.SetNodeLoad(1, load);
    const auto deck = Write(model);
    EXPECT_TRUE(written);
    EXPECT_EQ(deck.Count("FORCE"), 2);
    EXPECT_EQ(deck.Count("CBAR"), 1);
    EXPECT_EQ(deck.Count("GRID"), 2);
    EXPECT_TRUE(HasNote(L"Element 2, 4 (2 in all) are not written: one of its nodes"));
    EXPECT_TRUE(HasNote(L"Element 3 is not written: it has no length"));
    EXPECT_TRUE(HasNote(L"Element 5 is not written: its property is not in the file"));
    EXPECT_TRUE(HasNote(L"Node load 1 is not written for 1 of its nodes"));
    EXPECT_TRUE(deck.faults.empty());
    EXPECT_EQ(TestSupport::OpenReferences(deck), std::vector<std::string>{});
}

}  // namespace
}  // namespace Tevra

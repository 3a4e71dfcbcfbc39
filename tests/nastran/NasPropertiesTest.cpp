#include <cmath>

#include "nastran/NasFixture.h"

namespace Tevra {
namespace {

using Fields = std::vector<std::string>;

class NasProperties : public NasFixture {};

// EA / L of the rectangle 0.2 x 0.4 over 4 m: 2e11 0.08 / 4.
TEST_F(NasProperties, TiesAndStrutsOfOneSection) {
    CVynData model = BeamModel();
    model.SetElem(1, Data::CElement(ElementType::Strut, {1, 2}, 1));
    model.SetElem(2, Data::CElement(ElementType::Tie, {1, 2}, 1));
    const auto deck = Write(model);
    const auto gaps = deck.Named("PGAP");
    ASSERT_EQ(gaps.size(), 2U);
    EXPECT_EQ(gaps[0].fields, (Fields{"1", "0.000000e+0", "0.000000e+0", "4.000000e+9",
                                      "0.000000e+0", "0.000000e+0"}));
    EXPECT_EQ(gaps[1].fields, (Fields{"2", "1.000000e-9", "0.000000e+0", "0.000000e+0",
                                      "4.000000e+9", "0.000000e+0"}));
    EXPECT_EQ(deck.Named("CGAP").at(1).Int(2), 2);
    EXPECT_EQ(deck.Count("PBARL"), 0);
}

TEST_F(NasProperties, GapsOfASectionThatBarsAndRodsHave) {
    CVynData model = BeamModel();
    model.SetElem(2, Data::CElement(ElementType::Rod, {1, 2}, 1));
    model.SetElem(3, Data::CElement(ElementType::Tie, {1, 2}, 1));
    model.SetElem(4, Data::CElement(ElementType::Strut, {1, 2}, 1));
    const auto deck = Write(model);
    EXPECT_EQ(deck.Named("CGAP").at(0).Int(2), 2);
    EXPECT_EQ(deck.Named("CGAP").at(1).Int(2), 3);
    EXPECT_EQ(TestSupport::SharedNumbers(deck), Fields{});
    EXPECT_EQ(TestSupport::OpenReferences(deck), Fields{});
}

// The material of a plane of layers is that of its first layer, in the card and in its loads.
TEST_F(NasProperties, MaterialOfLayers) {
    CVynData model = PlateModel();
    Data::CProp2D property;
    property.SetThickness(0.2);
    property.SetLayers({{1, 0.2, 0.0}});
    model.SetProp2D(1, property);
    Data::CInPlaneLoad load;
    load.SetValue(4e5);
    load.SetLoadedEntities({L"1", SelType::Element});
    model.SetInPlaneLoad(1, load);
    const auto deck = Write(model);
    EXPECT_EQ(deck.Named("PSHELL").at(0).Int(2), 1);
    ASSERT_EQ(deck.Count("TEMPP1"), 1) << "not dropped for want of a modulus";
    EXPECT_NEAR(deck.Named("TEMPP1")[0].Real(3), -1.0, 1e-6);
}

TEST_F(NasProperties, WhatIsNotANumberTakesItsUsersAlong) {
    CVynData model = BeamModel();
    model.SetMatAnal(2, Data::CMatAnal(L"Odd", std::nan(""), 0.25, 7850.0, 1e-5));
    model.SetSection(2, Data::CSection(L"R", L"STD%R%400%200", Generic(2)));
    model.SetElem(2, Data::CElement(ElementType::Beam, {1, 2}, 2));
    Data::CBeamLoad load;
    load.SetLoadedEntities({L"all", SelType::Element});
    model.SetBeamLoad(1, load);
    const auto deck = Write(model);
    EXPECT_TRUE(written);
    EXPECT_EQ(TestSupport::OpenReferences(deck), Fields{});
    EXPECT_EQ(deck.Count("CBAR"), 1);
    EXPECT_EQ(deck.Count("PLOAD1"), 1);
    EXPECT_TRUE(HasNote(L"Material 2 is not written"));
    EXPECT_TRUE(HasNote(L"Section 2 is not written"));
}

TEST_F(NasProperties, RodsAndCables) {
    CVynData model = BeamModel();
    model.SetElem(1, Data::CElement(ElementType::Rod, {1, 2}, 1));
    Data::CCableProp cable;
    cable.SetE(5e6);
    model.SetCableProp(2, cable);
    model.SetElem(2, Data::CElement(ElementType::Cable, {1, 2}, 2));
    const auto deck = Write(model);
    EXPECT_EQ(deck.Count("PBARL"), 0);
    EXPECT_NEAR(deck.Named("PROD").at(0).Real(3), 0.08, 1e-9);
    EXPECT_EQ(
        deck.Named("CONROD").at(0).fields,
        (Fields{"2", "1", "2", "3", "1.000000e+0", "0.000000e+0", "0.000000e+0", "0.000000e+0"}));
    EXPECT_EQ(deck.Named("MAT1").at(1).fields,
              (Fields{"3", "5.000000e+6", "0.000000e+0", "0.000000e+0", "0.000000e+0"}));
}

TEST_F(NasProperties, BarsAndBeamsOfOneSection) {
    CVynData model = BeamModel();
    model.SetElem(2, Data::CElement(ElementType::Bar, {1, 2}, 1));
    writer.SetWriteCbeam(true);
    const auto deck = Write(model);
    EXPECT_EQ(deck.Count("CBEAM"), 1);
    EXPECT_EQ(deck.Count("CBAR"), 1);
    EXPECT_EQ(deck.Count("PBARL"), 1);
    EXPECT_EQ(deck.Count("PBEAML"), 1);
}

TEST_F(NasProperties, MassesAndSpringsAtNodes) {
    CVynData model = ModelOf({{0, 0, 0}});
    Data::CMassProp mass;
    mass.SetMass(100.0);
    mass.SetInertia({1, 2, 3, 4, 5, 6});
    model.SetMassProp(1, mass);
    Data::CSpringProp spring;
    spring.SetStiff(Direction::Z, 1e7);
    model.SetSpringProp(4, spring);
    Data::CNode node = model.Node(1);
    node.SetMassProperty(1);
    node.SetSpringProperty(4);
    model.SetNode(1, node);
    const auto deck = Write(model);
    EXPECT_EQ(deck.Named("CELAS1").at(0).fields, (Fields{"1", "4", "1", "3"}));
    EXPECT_EQ(deck.Named("CELAS2").at(0).fields, (Fields{"3", "1.000000e+7", "1", "3"}));
    const auto card = deck.Named("CONM2").at(0);
    ASSERT_EQ(card.fields.size(), 14U);
    EXPECT_EQ(card.Field(8), "");
    const double terms[] = {1, 4, 2, 6, 5, 3};  // xx, xy, yy, zx, yz, zz
    for (int k = 0; k < 6; ++k) {
        EXPECT_DOUBLE_EQ(card.Real(9 + k), terms[k]);
    }
}

struct SolidCase {
    ElementType type;
    int face;
    Fields nodes;  ///< from field 7
};

TEST_F(NasProperties, FacesOfSolidsAreNamedByTwoNodes) {
    const SolidCase cases[] = {
        {ElementType::Brick8, 2, {"5", "7"}},
        {ElementType::Wedge6, 2, {"4"}},
        {ElementType::Tetra4, 1, {"1", "4"}},
        {ElementType::Pyramid5, 2, {"2", "1"}},
    };
    for (const SolidCase& c : cases) {
        CVynData model = ModelOf({{0, 0, 0},
                                  {1, 0, 0},
                                  {1, 1, 0},
                                  {0.2, 0.8, 0.5},
                                  {0, 0, 1},
                                  {1, 0, 1},
                                  {1, 1, 1},
                                  {0, 1, 1}});
        Data::CProp3D property;
        property.SetMaterial(Generic(1));
        model.SetProp3D(1, property);
        std::vector<int> topo;
        for (int k = 1; k <= InfoOf(c.type).minNodes; ++k) {
            topo.push_back(k);
        }
        model.SetElem(1, Data::CElement(c.type, topo, 1));
        Data::CFaceLoad load;
        load.SetFace(c.face);
        load.SetAxis(kLocalAxis);
        load.SetValues({5, 0, 0, 0});
        load.SetLoadedEntities({L"1", SelType::Element});
        model.SetFaceLoad(1, load);
        const auto deck = Write(model);
        const auto card = deck.Named("PLOAD4").at(0);
        ASSERT_GE(card.fields.size(), 7U);
        EXPECT_EQ(Fields(card.fields.begin() + 6, card.fields.end()), c.nodes);
        EXPECT_EQ(deck.Count("PSOLID"), 2);
    }
}

}  // namespace
}  // namespace Tevra

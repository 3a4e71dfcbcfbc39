#include "opensees/OpsFixture.h"

namespace Tevra {
namespace {

class OpsStructure : public OpsFixture {};

TEST_F(OpsStructure, NodesAndFixities) {
    CVynData model = ModelOf({{0, 0, 0}, {1.5, -2, 1e-7}, {0, 0, 0}, {1, 1, 1}, {1234567.8, 0, 0}});
    Data::CNode node = model.Node(5);
    node.SetRestraint({true, true, true, false, false, false});
    model.SetNode(5, node);
    node = model.Node(2);
    node.SetRestraint({false, true, false, true, false, true});
    model.SetNode(2, node);
    const OpsScript script = Write(model);
    EXPECT_EQ(script.Named("node").at(1), "2 1.5 -2 1e-07");
    EXPECT_EQ(script.Named("node").at(4), "5 1.23457e+06 0 0");
    EXPECT_EQ(script.Named("fix"), (Lines{"2010101", "5111000"}));
}

struct MaterialCase {
    MatModel model;
    std::vector<double> values;
    const char* command;
};

TEST_F(OpsStructure, UniaxialMaterials) {
    const MaterialCase cases[] = {
        {MatModel::ElasticIsotropic, {}, "Elastic 1 2e+11"},
        {MatModel::Fabric, {1, 2}, "Elastic 1 2e+11"},
        {MatModel::UniaxialElastic, {3e10}, "Elastic 1 3e+10"},
        {MatModel::UniaxialElastic, {}, "Elastic 1 2e+11"},
        {MatModel::UniaxialElasticPP, {2e11, 0.00175}, "ElasticPP 1 2e+11 0.00175"},
        {MatModel::UniaxialHardening, {1, 2, 3, 4}, "Hardening 1 1 2 3 4"},
        {MatModel::UniaxialHysteretic,
         {1, 2, 3, 4, 5, 6, -1, -2, -3, -4, -5, -6, 0.8, 0.2, 0, 0, 0.5},
         "Hysteretic 1 1 2 3 4 5 6 -1 -2 -3 -4 -5 -6 0.8 0.2 0 0 0.5"},
        {MatModel::UniaxialViscous, {250000, 0.3}, "Viscous 1 250000 0.3"},
        {MatModel::UniaxialConcrete01,
         {-3e7, -0.002, -6e6, -0.0035},
         "Concrete01 1 -3e+07 -0.002 -6e+06 -0.0035"},
        {MatModel::UniaxialConcrete02,
         {-3e7, -0.002, -6e6, -0.0035, 0.1, 2.9e6, 1.5e9},
         "Concrete02 1 -3e+07 -0.002 -6e+06 -0.0035 0.1 2.9e+06 1.5e+09"},
        {MatModel::UniaxialConcrete03,
         {-3e7, -0.002, -6e6, -0.0035, 0.1, 3e6, 1e-4, 1e6, 2, 0.01},
         "Concrete03 1 -3e+07 -0.002 -6e+06 -0.0035 0.1 3e+06 0.0001 1e+06 2 0.01"},
        {MatModel::UniaxialConcrete04,
         {-3e7, -0.002, -0.0035, 3e10},
         "Concrete04 1 -3e+07 -0.002 -0.0035 3e+10"},
        {MatModel::UniaxialSteel01, {5e8, 2e11, 0.01}, "Steel01 1 5e+08 2e+11 0.01"},
        {MatModel::UniaxialSteel02,
         {5e8, 2e11, 0.01, 18, 0.925, 0.15},
         "Steel02 1 5e+08 2e+11 0.01 18 0.925 0.15"},
    };
    for (const MaterialCase& c : cases) {
        CVynData model;
        model.SetMatAnal(1, Uniaxial(c.model, c.values));
        EXPECT_EQ(Write(model).Named("uniaxialMaterial"), Lines{c.command});
        EXPECT_EQ(writer.ErrorLog(), L"") << c.command;
    }
}

TEST_F(OpsStructure, PlasticMaterialsByTheirModulus) {
    CVynData model;
    Data::CMatAnal steel(L"", 200e9, 0.3, 7850, 0);
    steel.SetModel(MatModel::PlasticKinematic);
    steel.SetYieldStress(400e6);
    model.SetMatAnal(1, steel);
    steel.SetTangentModulus(40e9);  // H = 200 x 40 / 160 = 50 GPa
    steel.SetHardeningParameter(0.25);
    model.SetMatAnal(2, steel);
    EXPECT_EQ(Write(model).Named("uniaxialMaterial"),
              (Lines{"ElasticPP 1 2e+11 0.002", "Hardening 2 2e+11 4e+08 1.25e+10 3.75e+10"}));
}

TEST_F(OpsStructure, GroupsAndWordsOfMaterials) {
    CVynData model;
    Data::CMatAnal bar =
        Uniaxial(MatModel::UniaxialReinforcingSteel, {5e8, 6e8, 2e11, 6e9, 0.01, 0.09});
    bar.SetOpsGroups({{L"-IsoHard", {4.3, 0.01}},
                      {L"MPCurveParams", {0.33, 18, 4}},
                      {L"-gabuck", {6, 1, 0.5, 0.5}},
                      {L"-Unknown", {1}}});
    model.SetMatAnal(1, bar);
    Data::CMatAnal slip =
        Uniaxial(MatModel::UniaxialBarSlip, {3e7, 5e8, 2e11, 6e8, 6e9, 0.016, 0.45, 4, 0.4, 0.4});
    slip.SetOpsTexts({L"weak", L"column", L"no damage"});
    model.SetMatAnal(2, slip);
    slip.SetOpsTexts({L"[exec date]", L"$x", L"a;b"});
    model.SetMatAnal(3, slip);
    Data::CMatAnal limit = Uniaxial(MatModel::UniaxialLimitState, std::vector<double>(17, 0.5));
    limit.SetOpsTexts({L"shear"});
    limit.SetCurves({6});
    model.SetMatAnal(4, limit);
    const Lines commands = Write(model).Named("uniaxialMaterial");
    EXPECT_EQ(commands.at(0),
              "ReinforcingSteel 1 5e+08 6e+08 2e+11 6e+09 0.01 0.09 -GABuck 6 1 -IsoHard 4.3 0.01 "
              "-MPCurveParams 0.33 18 4");
    const std::string values = " 3e+07 5e+08 2e+11 6e+08 6e+09 0.016 0.45 4 0.4 0.4 ";
    EXPECT_EQ(commands.at(1), "BarSlip 2" + values + "weak column damage Pa");
    EXPECT_EQ(commands.at(2), "BarSlip 3" + values + "strong beamtop damage Pa");
    EXPECT_EQ(commands.at(3).substr(commands.at(3).find("limit")), "limitCurve Shear 6");
}

TEST_F(OpsStructure, ElasticSectionsAndShells) {
    CVynData model = PlateModel();
    model.SetSection(4, Data::CSection(L"", L"EXP%0.01%2E-4%1E-4%3E-6", Generic(1)));
    model.SetSection(7, Data::CSection(L"", L"EXP%0.01%2E-4%1E-4%3E-6", Generic(99)));
    const OpsScript script = Write(model);
    EXPECT_EQ(script.Named("section"),
              (Lines{"Elastic 4 2e+11 0.01 0.0001 0.0002 8e+10 3e-06",
                     "ElasticMembranePlateSection 8 2e+11 0.25 0.2 7850"}));
    EXPECT_EQ(script.Named("element"), Lines{"ShellMITC4 1 1 2 3 4 8"});
    EXPECT_TRUE(HasNote(L"Section 7 is not exported: it has no material"));
}

// The modulus of an elastic section is what its uniaxial model begins with: E, 2 fpc / epsc0, none.
TEST_F(OpsStructure, ElasticSectionsOfUniaxialMaterials) {
    CVynData model = BeamModel();
    model.SetMatAnal(1, Uniaxial(MatModel::UniaxialSteel01, {5e8, 2e11, 0.01}));
    model.SetMatAnal(2, Uniaxial(MatModel::UniaxialConcrete01, {-3e7, -0.002, -2e7, -0.006}));
    model.SetMatAnal(3, Uniaxial(MatModel::UniaxialViscous, {1e5, 0.5}));
    for (int n = 1; n <= 3; ++n) {
        Data::CMatAnal material = model.MatAnal(n);
        material.SetE({});
        model.SetMatAnal(n, material);
        model.SetSection(n, Data::CSection(L"", L"EXP%0.01%2E-4%1E-4%3E-6", Generic(n)));
    }
    const Lines sections = Write(model).Named("section");
    ASSERT_EQ(sections.size(), 3U);
    EXPECT_EQ(sections[0], "Elastic 1 2e+11 0.01 0.0001 0.0002 7.69231e+10 3e-06");
    EXPECT_EQ(sections[1].substr(0, 20), "Elastic 2 3e+10 0.01");
    EXPECT_EQ(sections[2].substr(0, 16), "Elastic 3 0 0.01");
    EXPECT_TRUE(HasNote(L"Section 3 is without stiffness"));
}

/// A beam of fibres along X.
CVynData FibreModel() {
    CVynData model = BeamModel();
    model.SetMatAnal(1, Uniaxial(MatModel::UniaxialSteel01, {5e8, 2e11, 0.01}));
    return model;
}

TEST_F(OpsStructure, FibreSections) {
    CVynData model = FibreModel();
    model.SetSection(2, Data::CSection(L"", L"STD%CHS%100%10", Generic(1)));
    WriteText(model);
    EXPECT_TRUE(
        Has("# sections\nsection Fiber 1 {\n"
            "patch quad 1 8 8 -0.1 -0.2 0.1 -0.2 0.1 0.2 -0.1 0.2\n}\n"
            "section Fiber 2 {\npatch circ 1 16 4 0 0 0.04 0.05 0 360\n}\n\n# 2D"))
        << text;
}

TEST_F(OpsStructure, BeamsOfEveryKind) {
    CVynData model = FibreModel();
    Data::CElement beam = model.Elem(1);
    beam.SetParentMember(3);
    model.SetElem(2, beam);
    beam.SetOffset({-0.1, 0.25, 0.0, 0.0});
    model.SetElem(3, beam);
    model.SetMatAnal(2, Data::CMatAnal(L"", 2e11, 0.25, 7850, 0));
    model.SetSection(2, Data::CSection(L"", L"EXP%0.01%2E-4%1E-4%3E-6", Generic(2)));
    beam.SetProperty(2);
    model.SetElem(4, beam);
    // Of two components: fibres of one would leave the other out.
    Data::CSection pair = model.Section(1);
    std::vector<Data::CSecComp> components = pair.Components();
    components.push_back(components.front());
    pair.SetComponents(components);
    model.SetSection(3, pair);
    const ElementType trusses[] = {ElementType::Bar, ElementType::Rod, ElementType::Tie,
                                   ElementType::Strut};
    for (int k = 0; k < 4; ++k) {
        model.SetElem(5 + k, Data::CElement(trusses[k], {2, 1}, 2));
    }
    const OpsScript script = Write(model);
    const Lines elements = script.Named("element");
    EXPECT_EQ(elements.at(0), "nonlinearBeamColumn 1 1 2 5 1 1");
    EXPECT_EQ(elements.at(1), "dispBeamColumn 2 1 2 5 1 2");
    EXPECT_EQ(elements.at(2).substr(0, 45), "beamWithHinges 3 1 2 1 0.1 1 0.25 2e+11 0.08 ");
    EXPECT_EQ(elements.at(3), "elasticBeamColumn 4 1 2 0.01 2e+11 8e+10 3e-06 0.0002 0.0001 4");
    EXPECT_EQ(Lines(elements.begin() + 4, elements.end()),
              (Lines{"truss 5 2 1 0.01 2", "truss 6 2 1 0.01 2", "corotTruss 7 2 1 0.01 2",
                     "corotTruss 8 2 1 0.01 2"}));
    EXPECT_EQ(script.Named("geomTransf"),
              (Lines{"Linear 1 0 0 1", "Linear 2 0 0 1", "Linear 3 0 0 1", "Linear 4 0 0 1"}));
    EXPECT_EQ(script.Named("section").at(2).substr(0, 10), "Elastic 3 ");
    EXPECT_EQ(OpenReferences(script), Lines{});
}

TEST_F(OpsStructure, PlanesByKind) {
    CVynData model = PlateModel();
    int number = 1;
    for (const Prop2DType type :
         {Prop2DType::PlaneStress, Prop2DType::PlaneStrain, Prop2DType::Axisymmetric,
          Prop2DType::Membrane, Prop2DType::LoadPanel}) {
        Data::CProp2D property = model.Prop2D(1);
        property.SetType(type);
        model.SetProp2D(++number, property);
        model.SetElem(number, Data::CElement(ElementType::Tri3, {1, 2, 3}, number));
    }
    EXPECT_EQ(Write(model).Named("element"),
              (Lines{"ShellMITC4 1 1 2 3 4 1", "quad 2 1 2 3 3 0.2 PlaneStress 1",
                     "quad 3 1 2 3 3 0.2 PlaneStrain 1", "ShellMITC4 5 1 2 3 3 5"}));
}

TEST_F(OpsStructure, DesignGradesHaveMaterialsOfTheirOwn) {
    CVynData model = BeamModel();
    Data::CMatDesign grade;
    grade.SetMatAnal(Data::CMatAnal(L"S355", 210e9, 0.3, 7850, 0));
    model.SetMatSteel(2, grade);
    model.SetSection(1, Data::CSection(L"", L"EXP%0.01", {MatType::Steel, 2, 0}));
    model.SetElem(1, Data::CElement(ElementType::Bar, {1, 2}, 1));
    const OpsScript script = Write(model);
    EXPECT_EQ(script.Named("uniaxialMaterial"), (Lines{"Elastic 1 2e+11", "Elastic 2 2.1e+11"}));
    EXPECT_EQ(script.Named("element"), Lines{"truss 1 1 2 0.01 2"});
}

TEST_F(OpsStructure, LinksDiaphragmsAndJoints) {
    const std::pair<int, const char*> codes[] = {
        {4095, "beam 0"}, {1911, "rod 0"}, {2101, "beam 3"}, {53, "rod 3"}, {1411, "beam 2"},
        {1283, "rod 2"},  {856, "beam 1"}, {848, "rod 1"},   {7, "beam 0"},
    };
    for (const auto& [code, words] : codes) {
        CVynData model = ModelOf({{0, 0, 0}, {1, 0, 0}, {2, 0, 0}});
        Data::CLinkProp link;
        link.SetType(code);
        model.SetLinkProp(1, link);
        model.SetElem(1, Data::CElement(ElementType::Link, {3, 1}, 1));
        model.SetElem(2, Data::CElement(ElementType::Link, {3, 1}, 2));  // has no property
        Data::CRigid rigid;
        rigid.SetPrimaryNode(2);
        rigid.SetNodes({L"1 3", SelType::Node});
        rigid.SetType(code);
        model.SetRigid(1, rigid);
        Data::CJoint joint;
        joint.SetNodes(3, 1);
        joint.SetFreedom({true, false, true, false, false, true});
        model.SetJoint(1, joint);
        const OpsScript script = Write(model);
        const std::string both = words;
        EXPECT_EQ(script.Named("rigidLink"), Lines{both.substr(0, both.find(' ')) + " 3 1"});
        EXPECT_EQ(script.Named("rigidDiaphragm"),
                  Lines{both.substr(both.find(' ') + 1) + " 2 1 3"});
        EXPECT_EQ(script.Named("equalDOF"), Lines{"3 1 1 3 6"});
    }
}

TEST_F(OpsStructure, KindsLeftOutAreNotedInTheirOrder) {
    CVynData model = BeamModel();
    int number = 1;
    for (const ElementType type : {ElementType::Spacer, ElementType::Cable, ElementType::Link,
                                   ElementType::Cable, ElementType::Spring}) {
        model.SetElem(++number, Data::CElement(type, {1, 2}, 1));
    }
    Write(model);
    EXPECT_EQ(writer.ErrorLog(),
              L"Note:           Cable elements not exported\n"
              L"Note:           Link elements not exported\n"
              L"Note:           Spacer elements not exported");
}

}  // namespace
}  // namespace Tevra

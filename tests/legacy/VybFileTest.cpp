#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>

#include "legacy/VybFixture.h"
#include "platform/text/Utf8.h"
#include "support/TestPaths.h"

namespace Tevra {
namespace {

Data::COffset Offset(float x1, float x2, float y, float z) {
    return {static_cast<double>(x1), static_cast<double>(x2), static_cast<double>(y),
            static_cast<double>(z)};
}

TEST_F(VybFileTest, Settings) {
    ASSERT_TRUE(Read(SmallVyb()));
    EXPECT_TRUE(m_host.events.empty());
    EXPECT_EQ(m_model.StructType(), 5);
    EXPECT_EQ(m_model.GlobalRestraint(), Vbool6(false, true, false, true, false, false));
    EXPECT_EQ(m_model.MassOption(), 1);
    EXPECT_TRUE(m_model.AdditionalMass());
    EXPECT_EQ(m_model.MassCase().Description(), L"L2");
    EXPECT_EQ(m_model.MassDirection(), 3);
    EXPECT_EQ(m_model.MassScale(), 0.5);
    EXPECT_EQ(m_model.Units().UnitString(UnitKind::Force), L"kN");
    EXPECT_EQ(m_model.Units().UnitString(UnitKind::Length), L"mm");
    EXPECT_EQ(m_model.Units().UnitString(UnitKind::Mass), L"t");
    EXPECT_EQ(m_model.Units().UnitString(UnitKind::Displacement), L"mm");
    EXPECT_EQ(m_model.Units().UnitString(UnitKind::Stress), L"kN/mm\u00B2");
}

TEST_F(VybFileTest, CodesOfTheHeader) {
    struct Case {
        int legacyStruct, structType, legacyMass, massOption, unitFlag;
        const wchar_t* force;
    };
    for (const Case& c :
         {Case{0, 0, 0, 7, 0, L"N"}, Case{1, 3, 1, 0, 10, L"N"}, Case{2, 5, 2, 2, -20, L"N"},
          Case{3, 4, 3, 1, 11, L"kN"}, Case{4, 0, 4, 7, -1, L"kN"}, Case{-1, 0, -1, 7, 1, L"kN"}}) {
        VybWriter file;
        file.structType = c.legacyStruct;
        file.massOption = c.legacyMass;
        file.unitFlag = c.unitFlag;
        file.units = "m    kN   kg   ";
        m_model.SetMassOption(7);
        ASSERT_TRUE(Read(file));
        EXPECT_EQ(m_model.StructType(), c.structType);
        EXPECT_EQ(m_model.MassOption(), c.massOption);
        EXPECT_EQ(m_model.Units().UnitString(UnitKind::Force), c.force);
        EXPECT_FALSE(m_model.AdditionalMass());
    }
}

TEST_F(VybFileTest, PropertiesAndLists) {
    ASSERT_TRUE(Read(SmallVyb()));
    const Data::CAxis& axis = m_model.Axis(4);
    EXPECT_EQ(axis.Name(), L"Axis 4");
    EXPECT_EQ(axis.TypeOf(), AxisType::Cylindrical);
    EXPECT_EQ(axis.Origin(), (Vec3<double>{1, 2, 3}));
    EXPECT_EQ(axis.XDirection(), (Vec3<double>{0, 1, 0}));
    EXPECT_EQ(axis.XYPlane(), (Vec3<double>{0, 0, 1}));
    const Data::CMatAnal& steel = m_model.MatAnal(1);
    EXPECT_EQ(steel.Name(), L"Material 1");
    EXPECT_EQ(steel.E(), static_cast<double>(2.05e11F));
    EXPECT_DOUBLE_EQ(steel.G(), steel.E() / (2.0 * (1.0 + steel.Nu())));
    EXPECT_EQ(steel.Density(), 7850.0);
    EXPECT_EQ(m_model.MatAnal(2).G(), static_cast<double>(1.1e10F));
    EXPECT_EQ(m_model.Section(1).Name(), L"Section 1");
    EXPECT_EQ(m_model.Section(1).Description(), L"CAT%UB%UB457x191x67");
    EXPECT_EQ(m_model.Section(2).Description(), L"STD%I%500%200%12%20");
    EXPECT_EQ(m_model.Section(3).Description(), L"EXP%0.1%0.001%0.002%3e-04%0.5%0.6");
    EXPECT_EQ(m_model.Section(3).MaterialAnalysis(), 2);
    EXPECT_DOUBLE_EQ(m_model.SectionProp(3, 0, 0.0, false).area, 0.1);
    const Data::CMassProp& mass = m_model.MassProp(3);
    EXPECT_EQ(mass.Name(), L"Mass prop. 3");
    EXPECT_EQ(mass.Mass(), 1250.0);
    EXPECT_EQ(mass.Inertia().zz, 3.0);
    EXPECT_EQ(mass.Inertia().zx, static_cast<double>(0.3F));
    const Data::CProp2D& shell = m_model.Prop2D(1);
    EXPECT_EQ(shell.Name(), L"2D prop. 1");
    EXPECT_EQ(shell.Type(), Prop2DType::Shell);
    EXPECT_EQ(shell.MaterialAnalysis(), 2);
    EXPECT_EQ(shell.Thickness(), 0.25);
    const Data::CRigid& rigid = m_model.Rigid(1);
    EXPECT_EQ(rigid.PrimaryNode(), 6);
    EXPECT_EQ(rigid.TypeOf(), 2101);
    EXPECT_EQ(rigid.Nodes(), CEntList(L"1 4 ", SelType::Node));
}

TEST_F(VybFileTest, SectionTexts) {
    struct Case {
        int shape;
        const char* stored;
        const wchar_t* description;
    };
    const Case cases[] = {{17, "ABCxx6", L"STD%CHS%%%6"},
                          {16, "ab", L"STD%C%"},
                          {2, "UCxx", L"CAT%UC%UCxx"},
                          {22, "STD%R%1%2", L"STD%R%1%2"},
                          {50, "HD260x54", L"CAT%HD%HD260x54"},
                          {51, "any", L"any"},
                          {-1, "any", L"any"},
                          {0, "gone", L"EXP%0%0%0%0%0%0"},
                          {35, "W\tx\x01\xE9  ", L"CAT%W%W x \u00E9"}};
    for (const Case& c : cases) {
        ASSERT_TRUE(ReadRecords(
            4, {VybFields{9, 1, c.shape}.Text(c.stored, 32).Reals({0, 0, 0, 0, 0, 0})}));
        EXPECT_EQ(m_model.Section(9).Description(), c.description);
    }
}

// Every shape code, so that no two of them change places.
TEST_F(VybFileTest, SectionPrefixes) {
    const char* const catalogue[] = {"UB", "UC", "UJ",  "BP",  "CHS", "SHS", "RHS", "CH",
                                     "EA", "UA", "CUB", "CUC", "CJ",  "TUB", "TUC"};
    const char* const standard[] = {"C", "CHS", "R", "RHS", "I"};
    const char* const later[] = {"IPE", "HE", "HL", "HX", "EP", "E-H", "E-J", "E-M", "E-W",
                                 "W",   "M",  "S",  "HP", "C",  "MC",  "WT",  "MT",  "ST",
                                 "L",   "LL", "TS", "P",  "PX", "PXX", "HD"};
    std::vector<VybFields> records;
    std::vector<std::string> expected;
    const auto add = [&](int shape, const std::string& description) {
        const int number = static_cast<int>(records.size()) + 1;
        records.push_back(VybFields{number, 1, shape}.Text("xyz1x2", 32).Reals({0, 0, 0, 0, 0, 0}));
        expected.push_back(description);
    };
    for (int i = 0; i < 15; ++i) {
        add(1 + i, std::string("CAT%") + catalogue[i] + "%xyz1x2");
    }
    for (int i = 0; i < 5; ++i) {
        add(16 + i, std::string("STD%") + standard[i] + "%1%2");
    }
    for (int i = 0; i < 25; ++i) {
        add(26 + i, std::string("CAT%") + later[i] + "%xyz1x2");
    }
    for (const int shape : {22, 23, 24, 25, 51, 1000}) {
        add(shape, "xyz1x2");
    }
    ASSERT_TRUE(ReadRecords(4, records));
    for (int number = 1; number <= static_cast<int>(expected.size()); ++number) {
        EXPECT_EQ(Text::ToUtf8(m_model.Section(number).Description()),
                  expected[static_cast<std::size_t>(number - 1)]);
    }
}

TEST_F(VybFileTest, ListTexts) {
    struct Case {
        VybFields items;
        const wchar_t* text;
    };
    const Case cases[] = {{{2, 0, 0, 3, 0, 12}, L"3 12 "},
                          {{1, 2, 1, 5, 0, 3, 0, 4}, L"G5 NOT  (3 4 )"},
                          {{2, 2, 0, 1, 0, 2, 2, 3, 2, 4}, L"1 2 NOT  (P3 4 )"},
                          {{0, 1, 1, 9}, L"NOT G9 "},
                          {{2, 0, 1, 5, 0, 3}, L"3 G5 "},
                          {{1, 1, 2, 5, 0, 3}, L"P5 NOT  (3 )"},
                          {{0, 0}, L""}};
    for (const Case& c : cases) {
        VybFields list{6, 2};
        for (const auto& field : c.items.All()) {
            list.Add(field);
        }
        VybWriter file;
        file.Add(1, list.PadTo(176));
        file.Add(11, VybFields{1, 6}.Reals({0, 0, -1}));
        m_model = CVynData();
        ASSERT_TRUE(Read(file));
        EXPECT_EQ(m_model.GravityLoad(1).LoadedEntities(), CEntList(c.text, SelType::Element));
        EXPECT_TRUE(m_model.GravityLoad(1).LoadedEntities().IsValid());
    }
}

TEST_F(VybFileTest, SpringsAreSplit) {
    ASSERT_TRUE(Read(SmallVyb()));
    EXPECT_EQ(m_model.NumSpringProp(), 3);
    const Data::CSpringProp& moved = m_model.SpringProp(2);
    EXPECT_EQ(moved.Name(), L"Spring prop. 2 (Tran)");
    EXPECT_EQ(moved.Stiffnesses(), (std::array<double, 6>{1e6, 2e6, 3e6, 0, 0, 0}));
    const Data::CSpringProp& turned = m_model.SpringProp(6);
    EXPECT_EQ(turned.Name(), L"Spring prop. 2 (Rotn)");
    EXPECT_EQ(turned.Stiffnesses(), (std::array<double, 6>{0, 0, 0, 4e5, 0, 0}));
    EXPECT_EQ(m_model.SpringProp(5).Name(), L"Spring prop. 5");
    EXPECT_EQ(m_model.SpringProp(5).Axis(), 4);
    // The element and the node that use it have a second element for the rotations.
    EXPECT_EQ(m_model.NumElem(), 7);
    EXPECT_EQ(m_model.Elem(5).Property(), 2);
    EXPECT_EQ(m_model.Elem(9).Property(), 6);
    EXPECT_EQ(m_model.Elem(9).Topo(), (std::vector{4, 6}));
    EXPECT_EQ(m_model.Elem(10).Property(), 6);
    EXPECT_EQ(m_model.Elem(10).Topo(), (std::vector{3}));
    EXPECT_EQ(m_model.Elem(10).Type(), ElementType::Spring);
    EXPECT_EQ(m_model.Node(3).SpringProperty(), 2);
}

TEST_F(VybFileTest, NodesAndElements) {
    ASSERT_TRUE(Read(SmallVyb()));
    EXPECT_EQ(m_model.NumNode(), 5);
    const Data::CNode& node = m_model.Node(4);
    EXPECT_EQ(node.Position(), (Vec3<double>{6, 5, 4.5}));
    EXPECT_EQ(node.Axis(), 4);
    EXPECT_EQ(node.Restraint(), Vbool6(true, true, true, false, false, false));
    EXPECT_EQ(m_model.Node(2).MassProperty(), 3);
    const Data::CElement& beam = m_model.Elem(1);
    EXPECT_EQ(beam.Type(), ElementType::Beam);
    EXPECT_EQ(beam.Property(), 2);
    EXPECT_EQ(beam.Group(), 1);
    EXPECT_EQ(beam.OrientationAngle(), 30.0);
    EXPECT_TRUE(beam.Connect(1).IsFixed());
    EXPECT_EQ(beam.Connect(2).Released(), Vbool6(false, false, false, false, true, true));
    EXPECT_EQ(beam.Offset(), Offset(0.1F, -0.2F, 0.3F, 0.4F));
    EXPECT_TRUE(m_model.Elem(2).IsDummy());
    EXPECT_EQ(m_model.Elem(2).OrientationNode(), 6);
    EXPECT_EQ(m_model.Elem(3).Topo(), (std::vector{2, 3, 4, 6}));
    EXPECT_EQ(m_model.Elem(8).Type(), ElementType::Tie);
}

TEST_F(VybFileTest, KindsOfElementsPropertiesAndConstraints) {
    constexpr int kTypes[] = {2, 1, 21, 20, 3, 5, 7, 6, 8, 9, 10, 19};
    for (int kind = 1; kind <= 12; ++kind) {
        const auto type = static_cast<ElementType>(kTypes[kind - 1]);
        const int count = InfoOf(type).minNodes;
        VybFields record{1, kind, 1, 0, 0};
        record.Reals({0}).Ints({0, 0}).Reals({0, 0, 0, 0}).Ints({0, count, 1, 2, 3, 4, 5, 6, 7, 8});
        ASSERT_TRUE(ReadRecords(10, {record})) << kind;
        EXPECT_EQ(m_model.Elem(1).Type(), type);
        EXPECT_EQ(m_model.Elem(1).NumTopo(), count);
    }
    constexpr int kRigids[] = {4095, 1911, 2101, 856, 1411, 53, 848, 1283};
    for (int kind = 1; kind <= 8; ++kind) {
        ASSERT_TRUE(ReadRecords(8, {VybFields{3, 1, kind, 2}}));
        EXPECT_EQ(m_model.Rigid(3).TypeOf(), kRigids[kind - 1]);
        EXPECT_EQ(m_model.Rigid(3).Nodes().Text(), L"list 2");  // not in the file
    }
    constexpr int kProps[] = {1, 2, 3, 5, 6, 4};
    for (int kind = 1; kind <= 6; ++kind) {
        ASSERT_TRUE(ReadRecords(7, {VybFields{3, kind, 0, 0, 0.1F}}));
        EXPECT_EQ(static_cast<int>(m_model.Prop2D(3).Type()), kProps[kind - 1]);
    }
}

TEST_F(VybFileTest, Loads) {
    ASSERT_TRUE(Read(SmallVyb()));
    EXPECT_EQ(m_model.GravityLoad(1).LoadedEntities().Text(), L"all");
    EXPECT_EQ(m_model.NodeLoad(1).LoadCase(), 2);
    EXPECT_EQ(m_model.NodeLoad(1).GetDirection(), Direction::Z);
    EXPECT_EQ(m_model.NodeLoad(1).Value(), -1e4);
    EXPECT_EQ(m_model.Settlement(1).Axis(), -1);
    EXPECT_EQ(m_model.Settlement(1).LoadedEntities(), CEntList(L"2 ", SelType::Node));
    const Data::CBeamLoad& patch = m_model.BeamLoad(1);
    EXPECT_EQ(patch.TypeOf(), BeamLoadType::Patch);
    EXPECT_TRUE(patch.IsProjected());
    EXPECT_EQ(patch.Point(2), (Data::LoadPoint{0.75, true, -6}));
    EXPECT_EQ(patch.LoadedEntities(), CEntList(L"G1 NOT  (P3 4 )", SelType::Element));
    EXPECT_EQ(m_model.BeamLoad(2).TypeOf(), BeamLoadType::Uniform);
    EXPECT_EQ(m_model.BeamLoad(2).Value(2), -5.0);
    const Data::CAxialLoad& prestress = m_model.AxialLoad(1);
    EXPECT_EQ(prestress.TypeOf(), AxialLoadType::Force);
    EXPECT_EQ(prestress.Value(), 8e5);
    EXPECT_EQ(prestress.ZOffset(), static_cast<double>(-0.15F));
    EXPECT_EQ(m_model.FaceLoad(1).Values(), (std::array<double, 4>{1, 2, 3, 4}));
    EXPECT_EQ(m_model.FaceLoad(1).Axis(), -1);
    const Data::CBeamThermalLoad& gradient = m_model.BeamThermalLoad(1);
    EXPECT_EQ(gradient.TypeOf(), BeamThermalType::GradientY);
    EXPECT_EQ((gradient.Value(2) - gradient.Value(1)) / (gradient.Pos(2) - gradient.Pos(1)), 12.0);
    EXPECT_EQ(gradient.UniformPart(), 5.0);
    EXPECT_EQ(m_model.FaceThermalLoad(1).Value(1), 7.0);
    EXPECT_EQ(m_model.FaceThermalLoad(1).Value(2), -1.0);
}

// Prestress has no direction; other loads of beams must have one, and axes are -1 and on.
TEST_F(VybFileTest, DirectionsOfBeamLoads) {
    const auto load = [](int axis, int direction, int kind) {
        return VybFields{1, 0, axis, direction, kind, 0, 0}.Reals({0, 2, 0, 3, 0, 0});
    };
    EXPECT_TRUE(ReadRecords(14, {load(-9, 0, 12), load(0, 0, 13)}));
    EXPECT_EQ(m_model.AxialLoad(1).TypeOf(), AxialLoadType::Strain);
    EXPECT_EQ(m_model.AxialLoad(2).TypeOf(), AxialLoadType::LackOfFit);
    EXPECT_EQ(m_model.AxialLoad(1).Value(), 2.0);
    EXPECT_FALSE(ReadRecords(14, {load(0, 0, 1)}));
    EXPECT_FALSE(ReadRecords(14, {load(-2, 3, 1)}));
    EXPECT_TRUE(ReadRecords(14, {load(-1, 3, 1), load(0, 3, 3)}));
    EXPECT_EQ(m_model.BeamLoad(1).TypeOf(), BeamLoadType::Point);
    EXPECT_EQ(m_model.BeamLoad(2).TypeOf(), BeamLoadType::Linear);
}

TEST_F(VybFileTest, MaterialsWithoutAShearModulusAreRefused) {
    EXPECT_FALSE(ReadRecords(3, {VybFields{1}.Reals({2e11F, -1.0F, 7850, 0, 0})}));
    EXPECT_TRUE(ReadRecords(3, {VybFields{1}.Reals({2e11F, -1.0F, 7850, 0, 8e10F})}));
}

TEST_F(VybFileTest, TrilinearLoads) {
    ASSERT_TRUE(ReadRecords(14, {VybFields{1, 0, 0, 3, 5, 0, 0}.Reals({1, -5, 2, -6, 0, 0})}));
    const Data::CBeamLoad& load = m_model.BeamLoad(1);
    EXPECT_EQ(load.Point(1), (Data::LoadPoint{0, true, -5}));
    EXPECT_EQ(load.Point(2), (Data::LoadPoint{1, false, -5}));
    EXPECT_EQ(load.Point(3), (Data::LoadPoint{2, false, -6}));
    EXPECT_EQ(load.Point(4), (Data::LoadPoint{1, true, -6}));
}

TEST_F(VybFileTest, CasesCombinationsAndResults) {
    ASSERT_TRUE(Read(SmallVyb()));
    EXPECT_EQ(m_model.NumLoadCaseTitle(), 3);
    EXPECT_EQ(m_model.LoadCaseTitle(2).Name(), L"Wind \u00C4");
    EXPECT_EQ(m_model.CombinationCase(4).Name(), L"Both");
    EXPECT_EQ(m_model.CombinationCase(4).Desc().Description(), L"+1.000000A1-0.500000A3");
    EXPECT_EQ(m_model.CombinationCase(5).Desc().Description(), L"+1.100000A1+0.100000A3");
    EXPECT_EQ(m_model.NumAnalysisCase(), 2);
    EXPECT_EQ(m_model.AnalysisCase(1).Name(), L"Static 1");
    EXPECT_EQ(m_model.AnalysisCase(1).Desc().Description(), L"1.L1");
    EXPECT_EQ(m_model.AnalysisCase(3).Name(), L"Modal P-delta 3");
    EXPECT_EQ(m_model.AnalysisCase(3).Desc().Description(), L"M7 : P(1.L2)");
    EXPECT_EQ(m_model.AnalysisTask(3).Solution(), SolutionType::ModalPDelta);
    EXPECT_DOUBLE_EQ(m_model.Mass(AnalysisRef(1)), 12500.0);  // 12.5 t
    EXPECT_DOUBLE_EQ(m_model.CentreOfMass(AnalysisRef(1)).y, 2.5);
    EXPECT_TRUE(m_model.IsLockedByResults());
    EXPECT_FALSE(m_model.AnalysisCaseHasResults(3));
}

TEST_F(VybFileTest, KindsOfSolutions) {
    const wchar_t* const kTexts[] = {L"1.L2", L"1.L2 : P(1.L2)", L"M9", L"M9 : P(1.L5)", L"M9"};
    for (int kind = 0; kind <= 5; ++kind) {
        VybWriter file;
        file.numLoadCase = 2;
        file.resultsIndicator = 1'000'001;
        file.SetResult(2, -kind, VybFields{5, 9, 0}.Reals({0, 0, 0, 0}));
        file.entries[22] = -(kind * 1'000'000 + 4);
        m_model = CVynData();
        ASSERT_TRUE(Read(file));
        const int solved = std::max(kind, 1);
        EXPECT_EQ(m_model.AnalysisCase(2).Desc().Description(), kTexts[solved - 1]);
        EXPECT_EQ(static_cast<int>(m_model.AnalysisTask(2).Solution()), solved);
        EXPECT_TRUE(m_model.AnalysisCase(2).Desc().IsValid());
        file.resultsIndicator = 999'999;
        m_model = CVynData();
        ASSERT_TRUE(Read(file));
        EXPECT_EQ(m_model.NumAnalysisCase(), 0);
        EXPECT_FALSE(m_model.IsLockedByResults());
    }
}

TEST_F(VybFileTest, LongerRecordsAreSkippedOver) {
    VybWriter file;
    for (const int number : {3, 5}) {
        file.Add(3, VybFields{number}.Reals({1e9F, 0.3F, 1, 2, 3}).Ints({-1, -1, -1}));
    }
    EXPECT_TRUE(Read(file));
    EXPECT_EQ(m_model.NumMatAnal(), 2);
    EXPECT_EQ(m_model.MatAnal(5).Density(), 1.0);
}

/// The files that others read are what the writer makes; with VYN_WRITE_EXAMPLES set they are
/// written anew.
TEST_F(VybFileTest, KeptFiles) {
    const std::filesystem::path root = TestSupport::SourceDir();
    const std::pair<const char*, bool> files[] = {{"examples/frame6.vyb", false},
                                                  {"tests/fuzz/seeds/VybFuzz/small", false},
                                                  {"tests/fuzz/seeds/VybFuzz/swapped", true}};
    for (const auto& [name, swapped] : files) {
        const std::string bytes = SmallVyb().Bytes(swapped);
        if (std::getenv("VYN_WRITE_EXAMPLES") != nullptr) {  // NOLINT(concurrency-mt-unsafe)
            std::ofstream(root / name, std::ios::binary) << bytes;
        }
        EXPECT_TRUE(TestSupport::ReadFile(root / name) == bytes) << name;
    }
}

}  // namespace
}  // namespace Tevra

#include <gtest/gtest.h>
#include <thread>

#include "model/Names.h"
#include "model/VynData.h"
#include "platform/ui/RecordingHost.h"

namespace Tevra {
namespace {

Data::CElement BeamOrientedBy(int node) {
    Data::CElement element(ElementType::Beam, {1, 2}, 1);
    element.SetOrientationNode(node);
    return element;
}

TEST(Model, NodesKnowWhatTheyOrientInAnyOrderOfWriting) {
    CVynData model;
    const auto orients = [&](int node) { return model.Node(node).IsOrientationNodeTo(2); };
    model.SetElem(1, BeamOrientedBy(5));  // before its node
    model.SetNode(5, Data::CNode());
    model.SetNode(6, Data::CNode());
    EXPECT_TRUE(orients(5));
    EXPECT_FALSE(model.Node(5).IsOrientationNodeTo(SelType::Member));
    model.SetElem(2, BeamOrientedBy(5));
    model.SetElem(1, BeamOrientedBy(6));  // overwritten
    EXPECT_TRUE(orients(5));
    EXPECT_TRUE(orients(6));
    model.DeleteElem(2);
    EXPECT_FALSE(orients(5));
    model.SetNode(6, Data::CNode({1, 2, 3}));  // written again
    EXPECT_TRUE(orients(6));
    Data::CMember member;
    member.SetOrientationNode(5);
    model.SetMember(1, member);
    EXPECT_TRUE(model.Node(5).IsOrientationNodeTo(SelType::Member));
    EXPECT_FALSE(orients(5));
}

TEST(Model, GlobalRestraintReachesNodesWrittenBeforeAndAfter) {
    CVynData model;
    Data::CNode node;
    node.SetRestraint({true, false, false, false, false, false});
    model.SetNode(1, node);
    model.SetGlobalRestraint({false, true, false, false, false, true});
    model.SetNode(2, Data::CNode());
    EXPECT_EQ(model.Node(1).TotalNodalRestraint(), Vbool6(true, true, false, false, false, true));
    EXPECT_EQ(model.Node(2).TotalNodalRestraint(), Vbool6(false, true, false, false, false, true));
    EXPECT_EQ(model.Node(1).Restraint(), Vbool6(true, false, false, false, false, false));
    model.SetGlobalRestraint({});
    EXPECT_TRUE(model.Node(2).TotalNodalRestraint().IsNone());
}

TEST(Model, StagesReplacePropertiesMaterialsAndRestraints) {
    CVynData model;
    Data::CElement element(ElementType::Beam, {1, 2}, 3);
    model.SetElem(1, element);
    model.SetNode(1, Data::CNode());
    model.SetSection(3, Data::CSection(L"", L"", {MatType::Steel, 1, 11}));
    model.SetSection(4, Data::CSection(L"", L"", {MatType::Steel, 1, 0}));
    Data::CStage stage;
    stage.SetReplacements({{PropertyType::Section, 3, 4, 0}, {PropertyType::Prop2D, 3, 9, 8}});
    stage.SetRestraints({{CEntList(L"1", SelType::Node), Vbool6::FromBits(4)}});
    model.SetStage(2, stage);
    EXPECT_EQ(model.ElemStageProperty(1, -1), 3);
    EXPECT_EQ(model.ElemStageProperty(1, 2), 4);
    EXPECT_EQ(model.ElemStageMatAnal(1, -1), 11);
    EXPECT_EQ(model.ElemStageMatAnal(1, 2), 0);
    EXPECT_EQ(model.StageMatAnal(PropertyType::Prop2D, 3, 2), 8);
    EXPECT_EQ(model.StageProperty(PropertyType::Prop2D, 3, 1), 3);
    Vbool6 restraint;
    model.NodeTotalRestraint(restraint, 1, 2);
    EXPECT_TRUE(restraint.Z());
    model.NodeTotalRestraint(restraint, 1, -1);
    EXPECT_TRUE(restraint.IsNone());
}

TEST(Model, SelectionsActivateNodesAndElements) {
    CVynData model;
    for (int i = 1; i <= 4; ++i) {
        model.SetNode(i, Data::CNode());
    }
    model.SetElem(1, Data::CElement(ElementType::Bar, {1, 2}, 0));
    model.SetElem(2, Data::CElement(ElementType::Bar, {2, 3}, 0));
    model.SetList(1, Data::CList(L"", CEntList(L"2", SelType::Element)));
    model.SetList(2, Data::CList(L"", CEntList(L"1 2", SelType::Node)));
    Data::CJoint joint;
    joint.SetNodes(2, 3);
    model.SetJoint(1, joint);
    EXPECT_TRUE(model.NodeIsActive(4, 0, 2));
    EXPECT_FALSE(model.NodeIsActive(99, 0, 2));
    EXPECT_FALSE(model.NodeIsActive(1, 1, 2));
    EXPECT_TRUE(model.NodeIsActive(3, 1, 2));
    EXPECT_FALSE(model.ElemIsActive(1, 1));
    EXPECT_TRUE(model.ElemIsActive(1, 2));
    EXPECT_FALSE(model.ElemIsActive(2, 2));
    EXPECT_TRUE(model.JointIsActive(1, 1));
    EXPECT_FALSE(model.JointIsActive(1, 2));
    model.SetList(1, Data::CList(L"", CEntList(L"1", SelType::Element)));
    EXPECT_TRUE(model.ElemIsActive(1, 1));
}

TEST(Model, LoadCasesAreThoseWithATitleOrALoad) {
    CVynData model;
    EXPECT_EQ(model.HighestLoadCase(), 0);
    model.SetLoadCaseTitle(2, Data::NamedEntity(L"Snow"));
    Data::CGravityLoad gravity;
    gravity.SetLoadCase(7);
    model.SetGravityLoad(1, gravity);
    EXPECT_EQ(model.HighestLoadCase(), 7);
    EXPECT_TRUE(model.LoadCaseExist(2));
    EXPECT_FALSE(model.LoadCaseExist(3));
    EXPECT_EQ(model.NumEnt(SelType::LoadCase, false), 2);
    model.DeleteGravityLoad(1);
    EXPECT_EQ(model.HighestLoadCase(), 2);
}

TEST(Model, AssignmentResetsContentsAndKeepsTheLocks) {
    CVynData model;
    model.SetNode(3, Data::CNode());
    model.EditResults().Edit(1).EditGlobal().frequency = 2.0;
    SyncObject* const lock = &model.ShareModelBusy();
    ASSERT_TRUE(lock->Lock(0));
    model = CVynData();
    EXPECT_EQ(&model.ShareModelBusy(), lock);
    EXPECT_FALSE(ProbeLock(model.ShareModelBusy(), 0));
    lock->Unlock();
    EXPECT_EQ(model.HighestNode(), 0);
    EXPECT_FALSE(model.AnyResults());
    EXPECT_TRUE(model == CVynData());
    CVynData source;
    source.SetNode(1, Data::CNode());
    const CVynData target = std::move(source);
    EXPECT_EQ(target.HighestNode(), 1);
    // NOLINTNEXTLINE(bugprone-use-after-move,clang-analyzer-cplusplus.Move)
    EXPECT_EQ(source.HighestNode(), 0);
    EXPECT_TRUE(source.SetNode(2, Data::CNode()));
}

TEST(Model, EqualModelsDifferInOneRecordOnly) {
    CVynData model;
    model.SetNode(1, Data::CNode({1, 2, 3}));
    CVynData other = model;
    EXPECT_TRUE(model == other);
    other.SetNode(1, Data::CNode({1, 2, 3.0000000000000004}));
    EXPECT_FALSE(model == other);
    EXPECT_NE(model.Revision(), other.Revision());
}

TEST(Model, CountsLeaveDummiesOutWhenAsked) {
    CVynData model;
    Data::CElement element(ElementType::Bar, {1, 2}, 0);
    model.SetElem(1, element);
    element.SetDummy(true);
    model.SetElem(2, element);
    EXPECT_EQ(model.NumEnt(SelType::Element, false), 2);
    EXPECT_EQ(model.NumEnt(SelType::Element, true), 1);
    EXPECT_EQ(model.NumElemType(ElementType::Bar), 2);
}

TEST(Element, TypesHaveTheirPredicates) {
    struct Case {
        ElementType type;
        const wchar_t* text;
        int dimension;
        bool section;
    };
    const Case cases[] = {{ElementType::Bar, L"BAR", 1, true},
                          {ElementType::Beam, L"BEAM", 1, true},
                          {ElementType::Spring, L"SPRING", 1, false},
                          {ElementType::Quad8, L"QUAD8", 2, false},
                          {ElementType::Link, L"LINK", 1, false},
                          {ElementType::Mass, L"MASS", 0, false},
                          {ElementType::Pyramid5, L"PYRAMID5", 3, false},
                          {ElementType::Strut, L"STRUT", 1, true},
                          {static_cast<ElementType>(13), L"RESERVED", 0, false},
                          {static_cast<ElementType>(99), L"RESERVED", 0, false}};
    for (const Case& c : cases) {
        const Data::CElement element(c.type, {1, 2}, 0);
        EXPECT_EQ(ElementTypeString(c.type), c.text);
        EXPECT_EQ(element.Is1D(), c.dimension == 1);
        EXPECT_EQ(element.Is2D(), c.dimension == 2);
        EXPECT_EQ(element.Is3D(), c.dimension == 3);
        EXPECT_EQ(element.IsSection(), c.section);
    }
    EXPECT_EQ(ElementTypeOf(L"quad4"), ElementType::Quad4);
    EXPECT_FALSE(ElementTypeOf(L"reserved"));
}

TEST(Element, TopologyMayBeLongerThanEight) {
    std::vector<int> topo(20);
    for (int i = 0; i < 20; ++i) {
        topo[static_cast<std::size_t>(i)] = 100 + i;
    }
    Data::CElement element(ElementType::Brick8, topo, 1);
    EXPECT_EQ(element.Topo(), topo);
    EXPECT_EQ(element.Topo(9), 108);
    EXPECT_EQ(element.Topo(0), 0);
    EXPECT_EQ(element.Topo(21), 0);
    element.SetTopo({1, 2});
    EXPECT_EQ(element.NumTopo(), 2);
    EXPECT_EQ(element.Topo(9), 0);
}

TEST(Texts, OfTheHost) {
    EXPECT_EQ(RestraintString({}), L"FREE");
    EXPECT_EQ(RestraintString(Vbool6::FromBits(63)), L"XYZXXYYZZ");
    Data::CElemConnect connect;
    connect.SetReleased({false, false, false, false, true, true});
    connect.SetSpring(Direction::X, 5.0);
    EXPECT_EQ(ReleaseString(connect), L"KFFFRR");
    Data::CProp2D property;
    property.SetThickness(0.25);
    EXPECT_EQ(property.Description(), L"SHELL 0.25 m");
    EXPECT_EQ(LinkedFreedoms(2101), Vbool6(true, true, false, false, false, true));
    EXPECT_EQ(LinkedFreedoms(848), Vbool6(false, true, true, false, false, false));
    EXPECT_EQ(SidTagValue(L"a=1; Revit = 5-6 ;revit=7", L"REVIT"), L"5-6");
    EXPECT_EQ(SidTagValue(L"a=1;b", L"b"), L"");
}

TEST(Titles, VersionAndHistory) {
    CProgTitles titles;
    titles.SetProgramVersion(L"8.7.12b");
    EXPECT_EQ(titles.ProgramVersion(), L"8.7.12");
    EXPECT_EQ(titles.ProgramVersion(true, true, false), L"8.7");
    titles.SetProgramVersion(L"9");
    EXPECT_EQ(titles.ProgramVersion(), L"9.0.0");
    RecordingHost host;
    std::tm clock{};
    clock.tm_year = 126;
    clock.tm_mon = 1;
    clock.tm_mday = 3;
    clock.tm_hour = 4;
    clock.tm_sec = 59;
    host.clock = clock;
    const ScopedHost scope(host);
    CHistoryRec record;
    CHistory::UpdateSession(record);
    EXPECT_EQ(record.date, L"2026-02-03");
    EXPECT_EQ(record.time, L"04:00:59");
    CHistory history;
    EXPECT_TRUE(history.SetRecord(1, record));
    EXPECT_FALSE(history.SetRecord(3, record));
    EXPECT_EQ(history.NumRecord(), 1);
}

TEST(Units, InOneSiUnit) {
    struct Case {
        int kind;
        const wchar_t* text;
        double perSi;
    };
    const Case cases[] = {{1, L"kN", 1e-3},
                          {1, L"kip", 1.0 / 4448.2216152605},
                          {2, L"mm", 1000.0},
                          {2, L"ft", 1.0 / 0.3048},
                          {3, L"t", 1e-3},
                          {5, L"°F", 1.8},
                          {7, L"kN/m²", 1e-3},
                          {7, L"N/mm²", 1e-6},
                          {7, L"psi", 1.0 / 6894.757293168361},
                          {8, L"g", 1.0 / 9.80665},
                          {6, L"cm", 100.0},
                          {1, L"nonsense", 1.0}};
    for (const Case& c : cases) {
        CUnit units;
        EXPECT_TRUE(units.SetUnitString(c.kind, c.text));
        EXPECT_NEAR(units.Conversion(c.kind) / c.perSi, 1.0, 1e-12) << c.perSi;
    }
    CUnit units;
    EXPECT_FALSE(units.SetUnitString(9, L"N"));
    EXPECT_EQ(units.Conversion(0), 1.0);
    for (int kind = 1; kind <= 8; ++kind) {
        EXPECT_EQ(units.Conversion(kind), 1.0);
    }
}

TEST(BeamLoad, PointsByType) {
    Data::CBeamLoad load;
    load.SetType(BeamLoadType::Uniform);
    load.SetPoint(1, {0.3, false, -5.0});
    EXPECT_EQ(load.NumPoint(), 1);
    EXPECT_EQ(load.Pos(2), 1.0);
    EXPECT_EQ(load.Value(2), -5.0);
    EXPECT_TRUE(load.PosIsFraction(1));
    load.SetType(BeamLoadType::Patch);
    load.SetPoint(2, {2.0, false, -7.0});
    EXPECT_EQ(load.Pos(1), 0.3);
    EXPECT_EQ(load.Value(2), -7.0);
    EXPECT_FALSE(load.PosIsFraction(2));
    EXPECT_EQ(load.Value(3), 0.0);
}

}  // namespace
}  // namespace Tevra

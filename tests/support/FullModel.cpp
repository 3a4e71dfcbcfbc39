#include "support/FullModel.h"

#include <limits>

namespace Tevra::TestSupport {

namespace {

using namespace Data;

template <class Record>
Record Named(Record record, const wchar_t* name) {
    record.SetName(name);
    record.SetColour(0x0080FF);
    record.SetSid(L"Revit=7-1;other=2");
    return record;
}

CEntList Nodes(const wchar_t* text) {
    return {text, SelType::Node};
}
CEntList Elements(const wchar_t* text) {
    return {text, SelType::Element};
}

void AddTitles(CVynData& model) {
    CTitles titles;
    titles.SetJobTitle(L"Frame");
    titles.SetSubTitle(L"All kinds");
    titles.SetCalcHeading(L"Check");
    titles.SetJobNumber(L"12-3");
    titles.SetInitials(L"AB");
    titles.SetDateSaved(L"2026-11-21");
    titles.SetFileName(L"frame.vyn");
    titles.SetNotes(L"line one\nline two");
    model.SetTitle(titles);
    CProgTitles program;
    program.SetProgramName(L"VYN");
    program.SetProgramVersion(8, 7, 6);
    program.SetNotice(L"All rights reserved.");
    model.SetProgTitle(program);
    CLocation location;
    location.SetCountry(L"United Kingdom", L"UK");
    location.SetNorth(12.5);
    location.SetElevation(85.0);
    location.SetLatitude(51.5);
    location.SetLongitude(-0.1);
    model.SetLocation(location);
    model.SetCurrencyLabel(L"GBP");
    model.SetDesign({L"EN 1993", L"EN 1992"});
    CHistory history;
    history.SetRecord(1, {L"2026-11-20", L"10:11:12", L"ab", L"Made"});
    model.SetHistory(history);
    CUnit units;
    units.SetUnitString(1, L"kN");
    units.SetUnitString(7, L"kN/m²");
    model.SetUnits(units);
    model.SetStructType(4);
    model.SetGlobalRestraint({false, false, false, false, false, true});
    model.SetMassSettings({2, true, CCaseDesc(L"L1"), 2, 0.5});
    model.SetRaft({-30.0, 20.0, 0.3, 2});
}

void AddNodes(CVynData& model) {
    for (int i = 1; i <= 12; ++i) {
        const int row = i / 4;
        model.SetNode(i, CNode({1.0 * (i % 4), 0.5 * row, 0.1 * i}));
    }
    CNode node({3.25, -1.5, 2.0 / 3.0});
    node.SetAxis(1);
    node.SetRestraint({true, true, true, false, true, false});
    node.SetSpringProperty(1);
    node.SetDamperProperty(1);
    node.SetMassProperty(1);
    model.SetNode(20, Named(node, L"Base"));
}

/// An element of each type.
void AddElements(CVynData& model) {
    const std::pair<ElementType, std::vector<int>> elements[] = {
        {ElementType::Bar, {1, 2}},
        {ElementType::Beam, {2, 3}},
        {ElementType::Spring, {3}},
        {ElementType::Damper, {3, 4}},
        {ElementType::Quad4, {1, 2, 6, 5}},
        {ElementType::Quad8, {1, 2, 3, 4, 5, 6, 7, 8}},
        {ElementType::Tri3, {1, 2, 3}},
        {ElementType::Tri6, {1, 2, 3, 4, 5, 6}},
        {ElementType::Link, {4, 5}},
        {ElementType::Cable, {5, 6}},
        {ElementType::Mass, {6}},
        {ElementType::Brick8, {1, 2, 3, 4, 5, 6, 7, 8}},
        {ElementType::Wedge6, {1, 2, 3, 4, 5, 6}},
        {ElementType::Tetra4, {1, 2, 3, 4}},
        {ElementType::Spacer, {7, 8}},
        {ElementType::Tie, {8, 9}},
        {ElementType::Strut, {9, 10}},
        {ElementType::Rod, {10, 11}},
        {ElementType::Pyramid5, {1, 2, 3, 4, 5}}};
    int number = 0;
    for (const auto& [type, topo] : elements) {
        model.SetElem(++number, CElement(type, topo, 1));
    }
}

void AddMembers(CVynData& model) {
    CElement beam(ElementType::Beam, {1, 4}, 1);
    beam.SetGroup(3);
    beam.SetOrientationNode(12);
    beam.SetOrientationAngle(30.0);
    beam.SetOffset({0.1, -0.2, 0.05, -0.3});
    beam.SetParentMember(1);
    beam.SetDummy(true);
    CElemConnect connect;
    connect.SetReleased({false, false, false, false, true, true});
    beam.SetConnect(2, connect);
    connect.SetSpring(Direction::XX, 1.5e6);
    beam.SetConnect(1, connect);
    model.SetElem(25, Named(beam, L"Rafter"));
    CMember member;
    member.SetType(MemberType::Column);
    member.SetTopology(L"1 4 7");
    member.SetProperty(1);
    member.SetGroup(2);
    member.SetMeshSize(0.5);
    member.SetOrientationNode(3);
    member.SetOrientationAngle(90.0);
    member.SetOffset({0.0, 0.0, 0.1, 0.2});
    member.SetConnect(1, connect);
    member.SetConnect(2, connect);
    member.SetAnalysisType1D(ElementType::Bar);
    member.SetOrder(AnalysisOrder::Quadratic);
    member.SetDummy(true);
    model.SetMember(1, Named(member, L"Column"));
}

void AddAssembly(CVynData& model) {
    CAssembly assembly;
    assembly.SetTopo(1, 1);
    assembly.SetTopo(2, 4);
    assembly.SetTopo(3, 7);
    assembly.SetFit(CurveFit::Spline);
    assembly.SetInternal({L"1", SelType::Member});
    assembly.SetStoreys({L"1 2", SelType::GridPlane});
    assembly.SetDy(3.0);
    assembly.SetDz(4.0);
    assembly.SetCutPositions({0.25, 0.5});
    model.SetAssembly(1, Named(assembly, L"Core"));
}

void AddGrid(CVynData& model) {
    CAxis axis;
    axis.SetType(AxisType::Cylindrical);
    axis.SetOrigin({1, 2, 3});
    axis.SetXAxis({0, 2, 0});
    axis.SetXYPlane({0, 0, 1});
    model.SetAxis(1, Named(axis, L"Tower"));
    CGridPlane plane;
    plane.SetAxis(1);
    plane.SetElevation(3.5);
    plane.SetStorey(true);
    model.SetGridPlane(1, Named(plane, L"First floor"));
    model.SetList(1, Named(CList(L"", Elements(L"1 to 3")), L"Some"));
}

void AddProperties(CVynData& model) {
    CSection section(L"", L"STD%I%500%200%12%20", {MatType::Steel, 1, 1});
    std::vector<CSecComp> components = section.Components();
    components.resize(2);
    components[1].SetDescription(L"STD%R%300%200");
    components[1].SetMaterial({MatType::Concrete, 1, 0});
    components[1].SetPosition({0.0, 0.4});
    section.SetComponents(components);
    section.SetPool(4);
    section.SetCentroidOffset({0.01, -0.02});
    section.SetModifiers({0.9, 0.8, 0.7, 0.6, 0.5, 0.4});
    model.SetSection(1, Named(section, L"Composite"));
    CProp2D plate;
    plate.SetType(Prop2DType::Plate);
    plate.SetThickness(0.25);
    plate.SetAxis(1);
    plate.SetInplane(0.2);
    plate.SetBending(0.21);
    plate.SetShear(0.22);
    plate.SetVolume(0.23);
    plate.SetAdditionalMass(50.0);
    plate.SetMaterial({MatType::Concrete, 1, 1});
    plate.SetLayers({{1, 0.1, 0.0}, {1, 0.15, 45.0}});
    model.SetProp2D(1, Named(plate, L"Slab"));
    CProp3D solid;
    solid.SetAxis(1);
    solid.SetMaterial({MatType::Concrete, 1, 1});
    model.SetProp3D(1, Named(solid, L"Block"));
    CSpringProp spring;
    spring.SetType(SpringType::Rotational);
    spring.SetAxis(1);
    spring.SetStiffnesses({1e6, 0, 2e6, 0, 0, 3e6});
    spring.SetTables({0, 1, 0, 0, 0, 0});
    model.SetSpringProp(1, Named(spring, L"Bearing"));
    CDamperProp damper;
    damper.SetAxis(1);
    damper.SetCoefficients({1e3, 0, 0, 0, 5, 0});
    model.SetDamperProp(1, Named(damper, L"Damper"));
    CMassProp mass;
    mass.SetAxis(1);
    mass.SetMass(1200.0);
    mass.SetInertia({1, 2, 3, 0.1, 0.2, 0.3});
    model.SetMassProp(1, Named(mass, L"Plant"));
    CCableProp cable;
    cable.SetArea(1e-3);
    cable.SetE(1.6e11);
    cable.SetG(6e10);
    cable.SetNu(0.3);
    cable.SetDensity(8000.0);
    model.SetCableProp(1, Named(cable, L"Stay"));
    CLinkProp link;
    link.SetType(2101);
    model.SetLinkProp(1, Named(link, L"Plane link"));
}

void AddMaterials(CVynData& model) {
    CMatAnal material(L"", 2.1e11, 0.3, 7850.0, 1.2e-5);
    material.SetModel(MatModel::UniaxialReinforcingSteel);
    material.SetE({2.1e11, 1e10, 2e10});
    material.SetNu({0.3, 0.1, 0.2});
    material.SetG({8e10, 1e9, 2e9});
    material.SetAlpha({1.2e-5, 1e-5, 2e-5});
    material.SetTangentModulus(2e9);
    material.SetHardeningParameter(0.5);
    material.SetYieldStress(3.55e8);
    material.SetModelParams({5e8, 6e8, 0.01});
    material.SetCurves({1});
    material.SetOpsGroups({{L"-IsoHard", {4.3, 0.2}}});
    material.SetOpsTexts({L"Strong"});
    model.SetMatAnal(1, Named(material, L"Bars"));
    CMatDesign grade;
    grade.SetMatAnal(material);
    grade.SetStrength(3.55e8);
    model.SetMatConcrete(1, Named(grade, L"C30"));
    model.SetMatSteel(1, Named(grade, L"S355"));
    model.SetMatFrp(1, Named(grade, L"FRP"));
    model.SetMatAluminium(1, Named(grade, L"6082"));
    model.SetMatGlass(1, Named(grade, L"Float"));
    model.SetMatTimber(1, Named(grade, L"C24"));
    model.SetMatFabric(1, Named(grade, L"PTFE"));
    model.SetMatRebar(1, Named(grade, L"B500"));
    CMatCurve curve;
    curve.SetPoints({{0, 0}, {0.01, 1e5}});
    model.SetMatCurve(1, Named(curve, L"Force"));
    CLoadCurve motion;
    motion.SetType(LoadCurveType::Displacement);
    motion.SetPoints({{0, 0}, {1, 0.1}});
    model.SetLoadCurve(1, Named(motion, L"Shake"));
}

void AddCases(CVynData& model) {
    model.SetLoadCaseTitle(1, Named(NamedEntity(), L"Dead"));
    CAnalysisTask task;
    task.SetSolution(SolutionType::ModalPDelta);
    task.SetAnalysed(true);
    task.SetStage(1);
    model.SetAnalysisTask(1, Named(task, L"Modes"));
    CDynaTask dyna;
    dyna.SetLoadCurveDescription(L"1");
    dyna.SetEndTime(12.0);
    dyna.SetEndCycle(99);
    dyna.SetMassScalingTimeStep(1e-5);
    dyna.SetPlotInterval(0.5);
    dyna.SetHistoryInterval(0.25);
    dyna.SetNodeSelection(Nodes(L"1 to 3"));
    dyna.SetElementSelection(Elements(L"2"));
    dyna.SetAssemblyList({L"1", SelType::Assembly});
    dyna.SetBaseList(Nodes(L"20"));
    dyna.SetDamping({true, 0.1, 0.001});
    dyna.SetExcitation(ExcitationOption::CurvePerDirection);
    dyna.SetLoadCurve(1);
    dyna.SetExcitationNumbers({1, 0, 1});
    dyna.SetBeamFormulation(1);
    dyna.SetMass({true, 1, Direction::X, 2.0});
    CAnalysisTask explicitTask;
    explicitTask.SetDyna(dyna);
    model.SetAnalysisTask(2, Named(explicitTask, L"Earthquake"));
    model.SetAnalysisCase(1, Named(CAnalysisCase(L"", 1, L"1.35L1 : P(1.L1)"), L"A"));
    model.SetAnalysisCase(2, Named(CAnalysisCase(L"", 1, L"M2"), L"Mode"));
    model.SetCombinationCase(1, Named(CCombinationCase(L"", L"1.35A1 + 1.5(A1 or A2)"), L"ULS"));
    CStage stage;
    stage.SetElements(Elements(L"1 to 4"));
    stage.SetReplacements({{PropertyType::Prop2D, 1, 1, 1}});
    stage.SetRestraints({{Nodes(L"2"), Vbool6::FromBits(5)}});
    model.SetStage(1, Named(stage, L"Propped"));
    COpView view;
    view.SetData({CDataRef(L"nodes"), CDataRef(L"reactions")});
    view.SetNodes(Nodes(L"1 2"));
    view.SetElements(Elements(L"3"));
    view.SetMembers({L"1", SelType::Member});
    view.SetCases({L"A1", SelType::Case});
    model.SetView(1, Named(view, L"Table"));
}

template <class Load>
Load Loaded(Load load, const CEntList& entities) {
    load.SetLoadCase(2);
    load.SetLoadedEntities(entities);
    return Named(load, L"Load");
}

template <class Load>
Load Directed(Load load, const CEntList& entities) {
    load.SetAxis(-1);
    load.SetDirection(Direction::YY);
    return Loaded(load, entities);
}

void AddBeamLoads(CVynData& model) {
    int number = 0;
    for (const BeamLoadType type :
         {BeamLoadType::Point, BeamLoadType::Uniform, BeamLoadType::Linear, BeamLoadType::Patch,
          BeamLoadType::Trilinear}) {
        CBeamLoad load;
        load.SetType(type);
        load.SetProjected(true);
        for (int k = 1; k <= 4; ++k) {
            load.SetPoint(k, {0.2 * k, k % 2 == 0, -100.0 * k});
        }
        model.SetBeamLoad(++number, Directed(load, CEntList(L"1", SelType::Member)));
    }
    CBeamDist distortion;
    distortion.SetPoint({0.4, false, 0.01});
    model.SetBeamDist(1, Directed(distortion, Elements(L"2")));
    CAxialLoad axial;
    axial.SetType(AxialLoadType::LackOfFit);
    axial.SetValue(0.002);
    axial.SetOffset(0.1, -0.2);
    model.SetAxialLoad(1, Loaded(axial, Elements(L"2")));
    CBeamThermalLoad thermal;
    thermal.SetType(BeamThermalType::GradientZ);
    thermal.SetPoint(1, -0.1, 5.0);
    thermal.SetPoint(2, 0.1, 25.0);
    thermal.SetUniformPart(10.0);
    model.SetBeamThermalLoad(1, Loaded(thermal, Elements(L"2")));
}

void AddOtherLoads(CVynData& model) {
    CNodeLoad nodeLoad;
    nodeLoad.SetValue(-5e3);
    model.SetNodeLoad(1, Directed(nodeLoad, Nodes(L"3")));
    CSettlement settlement;
    settlement.SetValue(0.01);
    model.SetSettlement(1, Directed(settlement, Nodes(L"20")));
    CAppliedDisplacement displacement;
    displacement.SetValue(0.02);
    model.SetAppliedDisplacement(1, Directed(displacement, Nodes(L"3")));
    CFaceLoad face;
    face.SetType(FaceLoadType::Equation);
    face.SetProjected(true);
    face.SetValues({1, 2, 3, 4});
    face.SetEquation({5, 6, 7, 8});
    face.SetPosition({0.25, -0.25});
    face.SetFace(2);
    model.SetFaceLoad(1, Directed(face, Elements(L"5")));
    CEdgeLoad edge;
    edge.SetEdge(3);
    edge.SetValues(1.0, 2.0);
    model.SetEdgeLoad(1, Directed(edge, Elements(L"5")));
    CInPlaneLoad inPlane;
    inPlane.SetType(AxialLoadType::Strain);
    inPlane.SetValue(1e-4);
    inPlane.SetOffset(0.05);
    model.SetInPlaneLoad(1, Loaded(inPlane, Elements(L"5")));
    CFaceThermalLoad thermal;
    thermal.SetType(FaceThermalType::General);
    thermal.SetValues({1, 2, 3, 4, 5, 6, 7, 8});
    model.SetFaceThermalLoad(1, Loaded(thermal, Elements(L"5")));
    CGravityLoad gravity;
    gravity.SetValue({0.1, 0.2, -1.0});
    gravity.SetNodeList(Nodes(L"20"));
    model.SetGravityLoad(1, Loaded(gravity, Elements(L"1 2")));
}

void AddConstraints(CVynData& model) {
    CRigid rigid;
    rigid.SetPrimaryNode(1);
    rigid.SetNodes(Nodes(L"2 3"));
    rigid.SetType(1911);
    model.SetRigid(1, Named(rigid, L"Floor"));
    CJoint joint;
    joint.SetNodes(4, 5);
    joint.SetFreedom({true, false, true, false, false, true});
    model.SetJoint(1, Named(joint, L"Joint"));
    CConstraintEqn equation;
    equation.SetConstrained(6, Direction::Y);
    equation.SetTerms({{7, Direction::X, 0.5}, {8, Direction::ZZ, -2.0}});
    model.SetConstraintEqn(1, Named(equation, L"Equation"));
    CTiedInterface tied;
    tied.SetSlave(Elements(L"7"));
    tied.SetMaster(Elements(L"5 6"));
    model.SetTiedInterface(1, Named(tied, L"Tie"));
}

void AddSoil(CVynData& model) {
    CSoilProfile profile;
    profile.SetLayers({{0.0, 1e7, 2e7, 0.3, 1}, {-5.0, 3e7, 3e7, 0.2, 0}});
    model.SetSoilProfile(1, Named(profile, L"Clay"));
    CSoilZone zone;
    zone.SetProfile(1);
    zone.SetExtents({0, 0}, {20, 10});
    model.SetSoilZone(1, Named(zone, L"Site"));
    CSoilCurve curve;
    curve.SetPoints({{0, 1}, {0.01, 0.5}});
    model.SetSoilCurve(1, Named(curve, L"Strain"));
    model.SetPileSoilCurve(1, Named(curve, L"Shaft"));
    CPileSoilProperty pile;
    pile.Set({1, 1, 0.5, 1e5, 2e6});
    model.SetPileSoilProperty(1, Named(pile, L"Pile"));
    CSoilRectLoad load;
    load.Set({2, {1, 2, -3}, 15.0, {4, 5}, 1e4, {10, 20}});
    model.SetSoilRectLoad(1, Named(load, L"Stockpile"));
}

void AddResults(CVynData& model) {
    CaseResults& results = model.EditResults().Edit(1);
    GlobalResults& global = results.EditGlobal();
    global.force = {1, 2, 3};
    global.reactForce = {-1, -2, std::numeric_limits<double>::quiet_NaN()};
    global.mode = 2;
    global.frequency = 3.5;
    global.effMass = {10, 20, 30};
    for (int kind = 0; kind < kNumResultKind; ++kind) {
        const auto id = static_cast<ResultKind>(kind);
        std::vector<double> rows(static_cast<std::size_t>(2 * InfoOf(id).components));
        for (std::size_t i = 0; i < rows.size(); ++i) {
            rows[i] = 0.1 * static_cast<double>(i) + kind;
        }
        rows[1] = std::numeric_limits<double>::quiet_NaN();
        results.Edit(id).Set(2, rows);
    }
    model.EditResults().Edit(2).EditGlobal().loadFactor = 4.0;
    model.DataLock().LockByResults();
}

}  // namespace

CVynData MakeFullModel() {
    CVynData model;
    AddTitles(model);
    AddNodes(model);
    AddElements(model);
    AddMembers(model);
    AddAssembly(model);
    AddGrid(model);
    AddProperties(model);
    AddMaterials(model);
    AddCases(model);
    AddBeamLoads(model);
    AddOtherLoads(model);
    AddConstraints(model);
    AddSoil(model);
    AddResults(model);
    return model;
}

}  // namespace Tevra::TestSupport

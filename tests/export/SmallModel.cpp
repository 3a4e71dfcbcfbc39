#include "export/SmallModel.h"

#include <array>

namespace Tevra::Export {

namespace {

using namespace Data;

template <class Record>
Record Named(Record record, const wchar_t* name, unsigned long colour = 0) {
    record.SetName(name);
    record.SetColour(colour);
    return record;
}

void AddTitles(CVynData& model) {
    CTitles titles;
    titles.SetJobNumber(L"12/3");
    titles.SetInitials(L"AB");
    titles.SetJobTitle(L"Small model");
    titles.SetSubTitle(L"All tables");
    titles.SetCalcHeading(L"Check");
    titles.SetNotes(L"A note");
    model.SetTitle(titles);
    model.SetDesign({L"EN 1993", L"EN 1992"});
    CLocation location;
    location.SetCountry(L"United Kingdom", L"UK");
    location.SetNorth(12.5);
    location.SetElevation(85.0);
    location.SetLatitude(51.5);
    location.SetLongitude(-0.125);
    model.SetLocation(location);
    model.SetCurrencyLabel(L"GBP");
    CHistory history;
    history.SetRecord(1, {L"2026-11-20", L"10:11:12", L"ab", L"Made"});
    history.SetRecord(2, {L"2026-11-21", L"09:08:07", L"", L"Checked"});
    model.SetHistory(history);
}

void AddNodes(CVynData& model) {
    CAxis axis;
    axis.SetType(AxisType::Cylindrical);
    axis.SetOrigin({1, 2, 3});
    axis.SetXAxis({0, 2, 0});
    axis.SetXYPlane({-1, 1, 0});
    model.SetAxis(2, Named(axis, L"Tower"));
    CGridPlane plane;
    plane.SetAxis(2);
    plane.SetElevation(3.5);
    plane.SetStorey(true);
    model.SetGridPlane(1, Named(plane, L"First floor"));
    plane.SetStorey(false);
    model.SetGridPlane(3, Named(plane, L"Roof"));

    CNode base({0, 0, 0});
    base.SetRestraint({true, true, true, true, true, true});
    model.SetNode(1, Named(base, L"Base", 0x00FF8000));
    model.SetNode(2, CNode({4, 0, 0}));
    CNode sprung({4, 3, 0});
    sprung.SetAxis(2);
    sprung.SetRestraint({false, false, true, false, true, false});
    sprung.SetSpringProperty(1);
    sprung.SetMassProperty(4);
    sprung.SetDamperProperty(5);
    model.SetNode(3, sprung);
    model.SetNode(4, CNode({0, 3, 0}));
    model.SetNode(10, CNode({0, 0, 2.5}));
}

void AddElements(CVynData& model) {
    CElement beam(ElementType::Beam, {1, 2}, 1);
    beam.SetGroup(7);
    beam.SetParentMember(1);
    model.SetElem(1, Named(beam, L"Cantilever", 0x000000FF));
    model.SetElem(2, CElement(ElementType::Quad4, {1, 2, 3, 4}, 1));
    CElement spring(ElementType::Spring, {3, 4}, 1);
    spring.SetParentMember(9);  // there is no such member
    model.SetElem(3, spring);
    model.SetElem(5, CElement(ElementType::Tetra4, {1, 2, 4, 10}, 1));
    CElement dummy(ElementType::Beam, {2, 3}, 2);
    dummy.SetDummy(true);
    dummy.SetOrientationAngle(30.0);
    dummy.SetOffset({0.125, -0.25, 0.0, 0.5});
    CElemConnect connect;
    connect.SetState(Direction::YY, ReleaseState::Released);
    connect.SetSpring(Direction::ZZ, 1e6);
    dummy.SetConnect(2, connect);
    model.SetElem(6, dummy);
    CElement bar(ElementType::Bar, {3, 4}, 2);
    bar.SetDummy(true);
    model.SetElem(7, bar);

    CMember column;
    column.SetType(MemberType::Column);
    column.SetTopology(L"1 2");
    column.SetProperty(1);
    column.SetGroup(7);
    column.SetMeshSize(0.5);
    column.SetOrientationAngle(30.0);
    column.SetConnect(2, connect);
    column.SetSid(L"Tekla=9;revit= 5f-2 ;Revit=6");
    model.SetMember(1, Named(column, L"Column"));
    CMember slab;
    slab.SetType(MemberType::Slab);
    slab.SetTopology(L"1 2 3 4");
    slab.SetProperty(1);
    slab.SetOrder(AnalysisOrder::Quadratic);
    slab.SetOffset({0, 0, 0, -0.125});
    slab.SetDummy(true);
    model.SetMember(3, slab);

    CAssembly assembly;
    assembly.SetTopo(1, 1);
    assembly.SetTopo(2, 2);
    assembly.SetInternal({L"1", SelType::Element});
    assembly.SetDy(3.0);
    assembly.SetDz(4.0);
    model.SetAssembly(1, Named(assembly, L"Core"));
}

void AddProperties(CVynData& model) {
    model.SetSection(1, Named(CSection(L"", L" STD%R%400%200 ", {MatType::Steel, 2, 0}), L"Solid"));
    model.SetSection(2, CSection(L"Values", L"EXP%0.01%0.0002%0.0003%0.0004%0.5%0.6", {}));
    CProp2D slab;
    slab.SetThickness(0.25);
    slab.SetMaterial({MatType::Concrete, 1, 0});
    model.SetProp2D(1, Named(slab, L"Slab"));
    CProp3D soil;
    soil.SetMaterial({MatType::Generic, 0, 1});
    model.SetProp3D(1, Named(soil, L"Soil"));
    model.SetList(1, CList(L"Some", {L"1 to 3 not 2", SelType::Element}));
    model.SetList(2, CList(L"Grid", {L"all", SelType::GridPlane}));
}

void AddResults(CVynData& model) {
    CAnalysisTask modal;
    modal.SetSolution(SolutionType::Modal);
    model.SetAnalysisTask(2, modal);
    model.SetAnalysisCase(1, CAnalysisCase(L"Dead load", 1, L"L1"));
    model.SetAnalysisCase(2, CAnalysisCase(L"First mode", 2, L"M1"));
    model.SetAnalysisCase(3, CAnalysisCase(L"Without results", 1, L"L2"));
    model.SetCombinationCase(1, CCombinationCase(L"ENV", L"A1 or -2A1"));
    model.SetCombinationCase(2, CCombinationCase(L"ULS", L"1.5A1"));

    CaseResults& dead = model.EditResults().Edit(1);
    ResultTable& disp = dead.Edit(ResultKind::NodeDisp);
    disp.Set(1, std::array{0.0, 0.0, 0.0, 0.0, 0.0, 0.0});
    disp.Set(2, std::array{0.0, 0.0, -0.01, 0.0, 0.004, 0.0});
    disp.Set(3, std::array{0.001, 0.0, -0.02, 0.0, 0.0, 0.0});
    disp.Set(4, std::array{0.003, 0.002, -0.01, 0.0, 0.0, 0.0});
    ResultTable& reaction = dead.Edit(ResultKind::NodeReaction);
    reaction.Set(1, std::array{0.0, 0.0, 1000.0, 0.0, -4000.0, 0.0});
    dead.Edit(ResultKind::NodeSpringForce).Set(3, std::array{-10.0, 0.0, 20.0, 0.0, 0.0, 1.5});
    dead.Edit(ResultKind::SpringForce).Set(3, std::array{5.0, 0.0, 0.0, 0.25, 0.0, 0.0});
    dead.Edit(ResultKind::Elem1DForce)
        .Set(1, std::array{2.0, 0.0, -1000.0, 0.5, 4000.0, 0.0, 2.0, 0.0, -1000.0, 0.5, 0.0, 0.0});
    ResultTable& force = dead.Edit(ResultKind::Elem2DForce);
    std::array<double, 5 * 8> forces{};
    for (std::size_t i = 0; i < forces.size(); ++i) {
        forces[i] = static_cast<double>(i);
    }
    force.Set(2, forces);
    std::array<double, 5 * 6> stresses{};
    for (std::size_t i = 0; i < stresses.size(); ++i) {
        stresses[i] = 100.0 + static_cast<double>(i);
    }
    dead.Edit(ResultKind::Elem3DStress).Set(5, stresses);
    GlobalResults& totals = dead.EditGlobal();
    totals.force = {0, 0, -1000};
    totals.moment = {0, 4000, 0};
    totals.reactForce = {0, 0, 1000};
    totals.reactMoment = {0, -4000, 0};

    CaseResults& mode = model.EditResults().Edit(2);
    mode.Edit(ResultKind::NodeDisp).Set(2, std::array{0.0, 0.0, 1.0, 0.0, 0.0, 0.0});
    GlobalResults& figures = mode.EditGlobal();
    figures.mode = 1;
    figures.frequency = 3.25;
    figures.modalMass = 1500.0;
    figures.modalStiff = 6250.0;
    figures.effMass = {0, 0, 1200};
    figures.rotEffMass = {10, 20, 0};
}

}  // namespace

CVynData MakeSmallModel() {
    CVynData model;
    AddTitles(model);
    AddNodes(model);
    AddElements(model);
    AddProperties(model);
    AddResults(model);
    return model;
}

}  // namespace Tevra::Export

#include "vynx/samples/SampleParts.h"

namespace Vynx {

using Tevra::CVynData;
using Tevra::SelType;

namespace {

/// The first load case acting for a second on the held model.
Tevra::CAnalysisTask SuddenLoad() {
    Tevra::CDynaTask dyna;
    dyna.SetLoadCurveDescription(L"1");
    dyna.SetExcitation(Tevra::ExcitationOption::OneCurve);  // writes supports; nothing is shaken
    dyna.SetNodeSelection(Tevra::CEntList(L"1", SelType::Node));
    Tevra::CAnalysisTask task;
    task.SetName(L"Sudden load");
    task.SetDyna(dyna);
    return task;
}

}  // namespace

void BeginSample(CVynData& model, const std::wstring& title,
                 std::initializer_list<std::wstring> loadCases) {
    Tevra::CTitles titles;
    titles.SetJobTitle(title);
    model.SetTitle(titles);
    model.SetMatAnal(1, {L"Steel", kSampleYoung, kSamplePoisson, 7850.0, 1.2e-5});

    Tevra::CAnalysisTask task;
    task.SetName(L"Static");
    task.SetSolution(Tevra::SolutionType::Static);
    task.SetAnalysed(true);
    model.SetAnalysisTask(1, task);
    model.SetAnalysisTask(2, SuddenLoad());

    int number = 0;
    for (const std::wstring& name : loadCases) {
        Tevra::Data::NamedEntity loadCase;
        loadCase.SetName(name);
        model.SetLoadCaseTitle(++number, loadCase);
        model.SetAnalysisCase(number, {name, 1, L"L" + std::to_wstring(number)});
    }
    model.SetCombinationCase(1, {L"Ultimate", L"1.35A1"});
}

void AddNodeLoad(CVynData& model, int loadCase, const std::wstring& nodes,
                 Tevra::Direction direction, double value) {
    Tevra::Data::CNodeLoad load;
    load.SetLoadCase(loadCase);
    load.SetLoadedEntities(Tevra::CEntList(nodes, SelType::Node));
    load.SetDirection(direction);
    load.SetValue(value);
    model.SetNodeLoad(model.HighestNodeLoad() + 1, load);
}

void AddElement(CVynData& model, Tevra::ElementType type, const std::vector<int>& topology,
                int property) {
    model.SetElem(model.HighestElem() + 1, Tevra::Data::CElement(type, topology, property));
}

void AddGravity(CVynData& model, int loadCase) {
    Tevra::Data::CGravityLoad gravity;
    gravity.SetLoadCase(loadCase);
    gravity.SetLoadedEntities(Tevra::CEntList(L"all", SelType::Element));
    gravity.SetValue({0.0, 0.0, -1.0});
    model.SetGravityLoad(model.HighestGravityLoad() + 1, gravity);
}

std::wstring Range(int first, int last, int step) {
    std::wstring text = std::to_wstring(first) + L" to " + std::to_wstring(last);
    return step == 1 ? text : text + L" step " + std::to_wstring(step);
}

}  // namespace Vynx

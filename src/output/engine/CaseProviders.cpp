#include "model/Names.h"
#include "output/engine/Providers.h"

namespace Tevra::Output {

namespace {

void CaseRows(CRows& rows) {
    const CVynData& model = rows.Model();
    for (const int number : model.LoadCaseTitleTable().Numbers()) {
        rows.Text(L"L" + std::to_wstring(number)).Text(model.LoadCaseTitle(number).Name());
        rows.Text(L"").Text(L"").EndRow();
    }
    for (const int number : model.AnalysisCaseTable().Numbers()) {
        const CAnalysisCase& record = model.AnalysisCase(number);
        rows.Text(L"A" + std::to_wstring(number)).Text(record.Name());
        rows.Text(record.Desc().Description());
        rows.Text(model.AnalysisTaskExist(record.Task())
                      ? SolutionTypeString(model.AnalysisTask(record.Task()).Solution())
                      : L"");
        rows.EndRow();
    }
    for (const int number : model.CombinationCaseTable().Numbers()) {
        const CCombinationCase& record = model.CombinationCase(number);
        rows.Text(L"C" + std::to_wstring(number)).Text(record.Name());
        rows.Text(record.Desc().Description()).Text(L"").EndRow();
    }
}

}  // namespace

DataProvider CasesProvider() {
    return {{{L"Case"}, {L"Name"}, {L"Description"}, {L"Solution"}}, &CaseRows};
}

}  // namespace Tevra::Output

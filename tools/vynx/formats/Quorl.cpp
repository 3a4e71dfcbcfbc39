#include <algorithm>

#include "pile/QuorlFile.h"
#include "platform/ui/HostServices.h"
#include "platform/ui/Logger.h"
#include "vynx/formats/FormatRows.h"

namespace Vynx {

namespace {

using Tevra::CVynData;

constexpr std::string_view kMindlin = "mindlin";
constexpr std::string_view kBoussinesq = "boussinesq";

/// The analysis cases that belong to raft analysis tasks.
std::vector<int> RaftCases(const CVynData& model) {
    std::vector<int> cases;
    for (const int number : model.AnalysisCaseTable().Numbers()) {
        if (model.AnalysisTask(model.AnalysisCase(number).Task()).IsRaft()) {
            cases.push_back(number);
        }
    }
    return cases;
}

std::string Lacks(const CVynData& model, const OptionValues& options) {
    if (!model.HasSoilData()) {
        return "the model has no soil data";
    }
    const int given = options.Integer("case");
    if (given != 0 && !model.AnalysisCaseExist(given)) {
        return "the model has no analysis case " + std::to_string(given);
    }
    return {};
}

/// A note on the loads on the soil that belong to other cases than the one that is written.
std::wstring LoadsLeftOut(const CVynData& model, int loadCase) {
    const auto numbers = model.SoilRectLoadTable().Numbers();
    const auto count = std::count_if(numbers.begin(), numbers.end(), [&](int number) {
        return model.SoilRectLoad(number).Get().loadCase != loadCase;
    });
    return count == 0
               ? L""
               : L"Note: loads on the soil of other cases than " + std::to_wstring(loadCase) +
                     L", which are not written: " + std::to_wstring(count);
}

bool Write(ExportJob& job) {
    const std::vector<int> cases = RaftCases(job.model);
    const int given = job.options.Integer("case");
    const int first = cases.empty() ? 1 : cases.front();
    const int number = given != 0 ? given : first;
    Tevra::Logger logger;
    Tevra::CQuorlFile file(job.model, &logger, Tevra::Text::FromPath(job.path), number,
                           static_cast<int>(cases.size()),
                           job.options.Text("method") == kBoussinesq);
    job.log = LoadsLeftOut(job.model, number);
    return file.DoExport();
}

bool Read(ReadJob& job) {
    Tevra::Logger logger;
    Tevra::CQuorlFile file(job.model, &logger, Tevra::Text::FromPath(job.file), 1, 0, false);
    job.error = "the soil data can't be read";
    return file.DoImport();
}

}  // namespace

Format QuorlFormat() {
    return {
        .id = "quorl",
        .title = "Soil data of the pile-settlement program",
        .extensions = {".qdf"},
        .options = {{.name = "case",
                     .kind = OptionKind::Integer,
                     .fallback = "0",
                     .help = "analysis case whose loads on the soil are written, 0 the first of "
                             "a raft analysis",
                     .least = 0.0},
                    {.name = "method",
                     .kind = OptionKind::Choice,
                     .fallback = kMindlin,
                     .help = "method of the settlement analysis",
                     .choices = {kMindlin, kBoussinesq}}},
        .lacks = &Lacks,
        .write = &Write,
        .read = &Read,
        .isPart = true};
}

}  // namespace Vynx

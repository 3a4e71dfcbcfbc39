#include "dyna/DynaAnalysis.h"
#include "vynx/formats/FormatRows.h"

namespace Vynx {

namespace {

/// The task that is asked for; 0 when the model does not have it.
int TaskOf(const Tevra::CVynData& model, const OptionValues& options) {
    const int number = options.Integer("task");
    if (number == 0) {
        return Tevra::CDynaAnalysis::FirstTask(model);
    }
    return model.AnalysisTask(number).IsExplicitDynamics() ? number : 0;
}

std::string Lacks(const Tevra::CVynData& model, const OptionValues& options) {
    if (TaskOf(model, options) != 0) {
        return {};
    }
    const int number = options.Integer("task");
    return number == 0 ? "the model has no explicit dynamics task"
                       : "analysis task " + std::to_string(number) +
                             (model.AnalysisTaskExist(number) ? " is not of explicit dynamics"
                                                              : " does not exist");
}

bool Write(ExportJob& job) {
    Tevra::CDynaAnalysis writer;
    writer.SetTask(TaskOf(job.model, job.options));
    writer.SetIntegration(job.options.Flag("integration"));
    return RunWriter(writer, job) && WriteReport(job.options.Text("report"), writer.Report());
}

}  // namespace

Format LsDynaFormat() {
    return {.id = "ls-dyna",
            .title = "LS-DYNA keyword file of an explicit dynamics task",
            .extensions = {".key"},
            .options = {{"task", OptionKind::Integer, "0",
                         "number of the analysis task, 0 the first of explicit dynamics"},
                        {"integration", OptionKind::Flag, "",
                         "beam sections by their shapes, to be integrated"},
                        {"report", OptionKind::Path, "", "file for the part lookup report"}},
            .lacks = &Lacks,
            .write = &Write};
}

}  // namespace Vynx

#include "dyna/CeapDampingFile.h"
#include "model/Util.h"
#include "vynx/formats/FormatRows.h"

namespace Vynx {

namespace {

using Tevra::CVynData;
using Tevra::SelType;

bool HasAnalysedModes(const CVynData& model) {
    for (const int number : model.AnalysisTaskTable().Numbers()) {
        const Tevra::CAnalysisTask& task = model.AnalysisTask(number);
        if (task.IsModal() && task.IsAnalysed()) {
            return true;
        }
    }
    return false;
}

std::string Lacks(const CVynData& model, const OptionValues& options) {
    if (!HasAnalysedModes(model)) {
        return "the model has no analysed modal task";
    }
    if (Tevra::Util::NumItem(options.List("nodes"), model, model.HighestNode(), true) == 0) {
        return "no node of the model is in the list --nodes";
    }
    if (Tevra::Util::NumItem(options.List("modes"), model, -1, false) == 0) {
        return "no mode of the model is in the list --modes";
    }
    return {};
}

bool Write(ExportJob& job) {
    Tevra::CCeapDampingFile writer;
    writer.SetNodeList(job.options.List("nodes"));
    writer.SetModeList(job.options.List("modes"));
    writer.SetDamping(job.options.Real("damping"));
    return RunWriter(writer, job);
}

}  // namespace

Format DampingFormat() {
    return {.id = "damping",
            .title = "Modal damping data file of an explicit dynamic analysis",
            .extensions = {".damping.txt"},
            .options = {{"nodes", OptionKind::List, "all", "nodes with mode shapes", SelType::Node},
                        {"modes", OptionKind::List, "all", "numbers of the modes", SelType::Mode},
                        {"damping", OptionKind::Real, "0.02",
                         "damping of every mode, fraction of critical"}},
            .lacks = &Lacks,
            .write = &Write};
}

}  // namespace Vynx

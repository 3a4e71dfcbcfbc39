#include "dyna/CeapDampingFile.h"
#include "vynx/formats/FormatRows.h"

namespace Vynx {

namespace {

using Tevra::CVynData;
using Tevra::SelType;

void SetOptions(Tevra::CCeapDampingFile& writer, const OptionValues& options) {
    writer.SetNodeList(options.List("nodes"));
    writer.SetModeList(options.List("modes"));
    writer.SetDamping(options.Real("damping"));
}

std::string Lacks(const CVynData& model, const OptionValues& options) {
    Tevra::CCeapDampingFile writer;
    SetOptions(writer, options);
    if (Tevra::CCeapDampingFile::ModalTask(model) == 0) {
        return "the model has no analysed modal task";
    }
    if (writer.IncludedNodes(model).empty()) {
        return "no node of the model is in the list --nodes";
    }
    if (writer.IncludedModes(model).empty()) {
        return "no mode of the first analysed modal task is in the list --modes";
    }
    return {};
}

bool Write(ExportJob& job) {
    Tevra::CCeapDampingFile writer;
    SetOptions(writer, job.options);
    return RunWriter(writer, job);
}

}  // namespace

Format DampingFormat() {
    return {.id = "damping",
            .title = "Modal damping data file of an explicit dynamic analysis",
            .extensions = {".damping.txt"},
            .options = {{"nodes", OptionKind::List, "all", "nodes with mode shapes", SelType::Node},
                        {"modes", OptionKind::List, "all", "numbers of the modes", SelType::Mode},
                        {.name = "damping",
                         .kind = OptionKind::Real,
                         .fallback = "0.02",
                         .help = "damping of every mode, fraction of critical",
                         .least = 0.0}},
            .lacks = &Lacks,
            .write = &Write};
}

}  // namespace Vynx

#include "nastran/NasFile.h"
#include "platform/text/Utf8.h"
#include "vynx/formats/FormatRows.h"

namespace Vynx {

namespace {

int AnalysisTypeOf(const std::string& word) {
    if (word == "modes") {
        return Tevra::CNasFile::kModes;
    }
    return word == "buckling" ? Tevra::CNasFile::kBuckling : Tevra::CNasFile::kStatic;
}

/// The first beam load that no card can carry, 0 none.
int LoadNotCarried(const Tevra::CVynData& model) {
    for (const int number : model.BeamLoadTable().Numbers()) {
        if (model.BeamLoad(number).TypeOf() == Tevra::BeamLoadType::Trilinear) {
            return number;
        }
    }
    return 0;
}

std::string Lacks(const Tevra::CVynData& model, const OptionValues& options) {
    const int load = options.Flag("no-loads") ? 0 : LoadNotCarried(model);
    if (load != 0) {
        return "beam load " + std::to_string(load) +
               " is trilinear, which no card can carry; --no-loads writes the rest";
    }
    const bool isBuckling = options.Text("analysis") == "buckling";
    const Tevra::CCaseDesc loads(Tevra::Text::FromUtf8(options.Text("buckling")));
    if (isBuckling && (!loads.IsValid() || loads.Factors(0).empty())) {
        return "--analysis buckling needs loads, such as --buckling \"1.0L1+0.5L2\"";
    }
    return {};
}

bool Write(ExportJob& job) {
    const OptionValues& options = job.options;
    Tevra::CNasFile writer;
    writer.SetAnalysisType(AnalysisTypeOf(options.Text("analysis")));
    writer.SetNumModes(options.Integer("modes"));
    writer.SetLargeField(!options.Flag("small-field"));
    writer.SetWriteCbeam(options.Flag("cbeam"));
    writer.SetExportLoads(!options.Flag("no-loads"));
    writer.SetSelection(options.Integer("selection"));
    writer.SetBucklingDescription(Tevra::Text::FromUtf8(options.Text("buckling")));
    return RunWriter(writer, job) && WriteReport(options.Text("report"), writer.Report());
}

}  // namespace

Format NastranFormat() {
    return {.id = "nastran",
            .title = "NASTRAN bulk data file",
            .extensions = {".dat"},
            .options = {{.name = "analysis",
                         .kind = OptionKind::Choice,
                         .fallback = "static",
                         .help = "what is solved for",
                         .choices = {"static", "modes", "buckling"}},
                        {"modes", OptionKind::Integer, "0", "number of modes"},
                        {"small-field", OptionKind::Flag, "", "fields of 8 characters, not 16"},
                        {"cbeam", OptionKind::Flag, "", "beams as CBEAM cards, not CBAR"},
                        {"no-loads", OptionKind::Flag, "", "no subcases and no loads"},
                        {"selection", OptionKind::Integer, "0",
                         "number of the saved list that is written, 0 all"},
                        {"buckling", OptionKind::Text, "",
                         "loads of a buckling analysis, such as \"1.0L1+0.5L2\""},
                        {"report", OptionKind::Path, "", "file for the report of the export"}},
            .lacks = &Lacks,
            .write = &Write};
}

}  // namespace Vynx

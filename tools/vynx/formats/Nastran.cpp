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

std::string Lacks(const Tevra::CVynData& /*model*/, const OptionValues& options) {
    if (options.Text("analysis") != "buckling") {
        return {};
    }
    const std::string text = options.Text("buckling");
    const Tevra::CCaseDesc loads(Tevra::Text::FromUtf8(text));
    if (!loads.IsValid()) {
        return "--buckling " + text + ": the loads can't be read; expected \"1.0L1+0.5L2\"";
    }
    return loads.Factors(0).empty()
               ? "--analysis buckling needs loads, such as --buckling \"1.0L1+0.5L2\""
               : "";
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

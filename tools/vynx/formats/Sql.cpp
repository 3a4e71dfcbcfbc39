#include <filesystem>

#include "export/SqlExport.h"
#include "platform/text/Utf8.h"
#include "vynx/Failure.h"
#include "vynx/formats/FormatRows.h"

namespace Vynx {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view kTables = "GN123SA";
/// One at each millionth of the length.
constexpr int kMostBeamPositions = 1'000'001;

Tevra::Export::Param ParamOf(const OptionValues& options) {
    Tevra::Export::Param param;
    param.nodeList = options.List("nodes");
    param.elementList = options.List("elements");
    param.memberList = options.List("members");
    param.assemblyList = options.List("assemblies");
    param.caseList = options.List("cases");
    param.option = options.Text("tables");
    param.numBeamPosition = options.Integer("beam-positions");
    param.includeInteresting = options.Flag("interesting-points");
    param.reportAllTimings = options.Flag("all-timings");
    if (param.numBeamPosition < 0 || param.numBeamPosition > kMostBeamPositions) {
        throw Failure(kUsage, "--beam-positions: expected 0 to " +
                                  std::to_string(kMostBeamPositions) + ", not " +
                                  std::to_string(param.numBeamPosition));
    }
    return param;
}

/// What is complete and what is not, a line each.
std::string Report(const Tevra::Export::CVynExport& exporter) {
    std::string complete;
    for (const fs::path& file : exporter.WrittenFiles()) {
        complete += ' ' + file.stem().string();
    }
    std::string text = "complete:" + (complete.empty() ? " nothing" : complete);
    for (const fs::path& file : exporter.FailedFiles()) {
        text += '\n' + file.string() + ": not written, or not completely";
    }
    return text;
}

bool Write(ExportJob& job) {
    Tevra::Export::CSqlExport exporter;
    exporter.SetData(&job.model);
    exporter.SetPath(job.path.string());
    exporter.SetParam(ParamOf(job.options));
    exporter.SetOneFilePerModule(!job.options.Flag("single-file"));
    std::string stop;
    bool written = false;
    try {
        written = exporter.WriteTables() && exporter.FailedFiles().empty();
    } catch (const fs::filesystem_error& error) {
        stop = '\n' + error.path1().string() + ": can't be made: " + error.code().message() +
               "\nnothing was written of the tables after it";
    }
    if (!written) {
        job.log = Tevra::Text::FromUtf8(Report(exporter) + stop);
    }
    return written;
}

}  // namespace

Format SqlFormat() {
    using Tevra::SelType;
    return {
        .id = "sql",
        .title = "Tables of the model and its results as SQL, a folder with a file per table",
        .extensions = {".sql"},
        .options = {{"nodes", OptionKind::List, "all", "nodes with results", SelType::Node},
                    {"elements", OptionKind::List, "all", "elements with results",
                     SelType::Element},
                    {"members", OptionKind::List, "all", "members chosen", SelType::Member},
                    {"assemblies", OptionKind::List, "all", "assemblies with results",
                     SelType::Assembly},
                    {"cases", OptionKind::List, "all", "cases with results", SelType::Case},
                    {.name = "tables",
                     .kind = OptionKind::Letters,
                     .fallback = kTables,
                     .help = "result tables: G global, N nodes, 1 2 3 elements by dimension, S "
                             "springs, A assemblies; empty is all",
                     .choices = {kTables}},
                    {"beam-positions", OptionKind::Integer, "5",
                     "equally spaced positions along 1D elements"},
                    {"interesting-points", OptionKind::Flag, "",
                     "also at loads and at zero shear of 1D elements"},
                    {"all-timings", OptionKind::Flag, "", "print the time of the model tables too"},
                    {"single-file", OptionKind::Flag, "", "all tables in one file"}},
        .write = &Write,
        .writesFolder = true};
}

}  // namespace Vynx

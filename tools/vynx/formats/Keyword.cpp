#include "dyna/DynaImport.h"
#include "vynx/formats/FormatRows.h"

namespace Vynx {

namespace {

void Note(ReadJob& job, std::int64_t count, const char* what) {
    if (count > 0) {
        job.notes.push_back(what + (": " + std::to_string(count)));
    }
}

bool Read(ReadJob& job) {
    Tevra::CDynaImport reader;
    reader.SetData(&job.model);
    const bool read = reader.OpenRead(Tevra::Text::FromPath(job.file));
    job.line = reader.Line();
    job.error = reader.Error();
    const Tevra::DynaReport& report = reader.Report();
    const auto& skipped = report.skipped.ByName();
    job.skipped.assign(skipped.begin(), skipped.end());
    if (read && report.nodes + report.elements == 0) {
        job.notes.emplace_back("no nodes and no elements were read");
    }
    Note(job, report.nodesReplaced, "nodes replaced by later ones of the same number");
    Note(job, report.elementsReplaced, "elements replaced by later ones of the same number");
    Note(job, report.massesReplaced, "masses replaced by later ones at the same node");
    Note(job, report.massesWithoutNode, "masses at nodes that did not stand above them");
    return read;
}

}  // namespace

Format KeywordFormat() {
    return {.id = "dyna",
            .title = "Explicit dynamics keyword file",
            .extensions = {".key", ".k", ".dyn"},
            .options = {},
            .lacks = nullptr,
            .write = nullptr,
            .read = &Read,
            .geometryOnly = true};
}

}  // namespace Vynx

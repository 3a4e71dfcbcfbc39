#include "sap/SapFile.h"
#include "vynx/formats/FormatRows.h"

namespace Vynx {

namespace {

using Tevra::CSapFile;

int SectionOutputOf(const std::string& word) {
    if (word == "code") {
        return CSapFile::kByStandardCode;
    }
    return word == "general" ? CSapFile::kGeneral : CSapFile::kByShapeClass;
}

bool Write(ExportJob& job) {
    CSapFile writer;
    writer.SetLocaleMode(SectionOutputOf(job.options.Text("sections")));
    return RunWriter(writer, job);
}

}  // namespace

Format Sap2000Format() {
    return {.id = "sap2000",
            .title = "SAP2000 S2K text file",
            .extensions = {".s2k"},
            .aliases = {"s2k"},
            .options = {{.name = "sections",
                         .kind = OptionKind::Choice,
                         .fallback = "class",
                         .help = "what shapes of sections are chosen by; general: none",
                         .choices = {"class", "code", "general"}}},
            .write = &Write};
}

}  // namespace Vynx

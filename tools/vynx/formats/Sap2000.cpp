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

std::string Lacks(const Tevra::CVynData& model, const OptionValues& /*options*/) {
    for (const int number : model.BeamLoadTable().Numbers()) {
        if (model.BeamLoad(number).TypeOf() == Tevra::BeamLoadType::Trilinear) {
            return "beam load " + std::to_string(number) +
                   " is trilinear, which the file can't carry";
        }
    }
    return {};
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
            .lacks = &Lacks,
            .write = &Write};
}

}  // namespace Vynx

#include "opensees/OpenseesFile.h"
#include "vynx/formats/FormatRows.h"

namespace Vynx {

namespace {

using Tevra::BeamLoadType;

/// The first beam load of the case that varies along its elements, 0 none. Rotational loads are
/// left out with a message, whatever they are.
int LoadThatVaries(const Tevra::CVynData& model, int loadCase) {
    for (const int number : model.BeamLoadTable().Numbers()) {
        const Tevra::Data::CBeamLoad& load = model.BeamLoad(number);
        if (load.LoadCase() == loadCase && Tevra::IsTrans(load.GetDirection()) &&
            load.TypeOf() != BeamLoadType::Point && load.TypeOf() != BeamLoadType::Uniform) {
            return number;
        }
    }
    return 0;
}

std::string Lacks(const Tevra::CVynData& model, const OptionValues& options) {
    const int loadCase = options.Integer("case");
    if (loadCase > 1 && !model.LoadCaseExist(loadCase)) {
        return "there is no load case " + std::to_string(loadCase);
    }
    const int load = LoadThatVaries(model, loadCase);
    return load == 0 ? std::string()
                     : "beam load " + std::to_string(load) +
                           " varies along its elements, which no command can carry; --case N "
                           "writes the loads of another case, --case 0 none";
}

bool Write(ExportJob& job) {
    Tevra::COpenseesFile writer;
    writer.SetLoadCase(job.options.Integer("case"));
    return RunWriter(writer, job);
}

}  // namespace

Format OpenseesFormat() {
    return {.id = "opensees",
            .title = "OpenSees script",
            .extensions = {".tcl"},
            .options = {{.name = "case",
                         .kind = OptionKind::Integer,
                         .fallback = "1",
                         .help = "load case whose loads are written, 0 none",
                         .least = 0.0}},
            .lacks = &Lacks,
            .write = &Write};
}

}  // namespace Vynx

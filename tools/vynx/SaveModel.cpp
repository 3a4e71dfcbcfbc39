#include "vynx/SaveModel.h"

#include "vynx/Console.h"
#include "vynx/Failure.h"
#include "vynx/OutputFile.h"

namespace Vynx {

bool WriteFormat(const Format& format, const OptionValues& options, Tevra::CVynData& model,
                 const std::string& target, const std::string& source) {
    const std::string stem = std::filesystem::path(source).stem().string();
    OutputFile output(target, stem + std::string(format.extensions.front()));
    ToolHost host;
    host.SetOutput(&output);
    const Tevra::ScopedHost scope(host);
    const Progress progress("writing " + target);
    ExportJob job{model, output.WorkPath(), options};
    const bool written = format.write(job);
    SayLog(output.WithTarget(job.log));
    if (written) {
        output.Commit();
    }
    return written;
}

void SaveModel(const Format& format, const OptionValues& options, Tevra::CVynData& model,
               const std::string& target, const std::string& source) {
    const std::string lack = format.lacks != nullptr ? format.lacks(model, options) : "";
    if (!lack.empty()) {
        throw Failure(kFailed,
                      source + ": can't be written as " + std::string(format.id) + ": " + lack);
    }
    if (!WriteFormat(format, options, model, target, source)) {
        throw Failure(kFailed, target + ": not written");
    }
}

}  // namespace Vynx

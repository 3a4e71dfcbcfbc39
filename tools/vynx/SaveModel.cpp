#include "vynx/SaveModel.h"

#include "vynx/Console.h"
#include "vynx/Failure.h"
#include "vynx/OutputFile.h"

namespace Vynx {

namespace {

/// Runs a writer that makes its own files.
bool WriteFolder(const Format& format, const OptionValues& options, Tevra::CVynData& model,
                 const std::string& target) {
    const std::filesystem::path path(target);
    if (target == "-") {
        throw Failure(kUsage, "-: " + std::string(format.id) +
                                  " writes a folder, which standard output can't take");
    }
    if (path.filename().empty()) {
        throw Failure(kFailed, target + ": can't be written: it is no file name");
    }
    ToolHost host;
    const Tevra::ScopedHost scope(host);
    ExportJob job{model, path, options};
    const bool written = format.write(job);
    SayLog(job.log);
    return written;
}

}  // namespace

std::string ProductOf(const Format& format, const std::string& target) {
    return format.writesFolder ? std::filesystem::path(target).replace_extension().string() + "/"
                               : target;
}

bool WriteFormat(const Format& format, const OptionValues& options, Tevra::CVynData& model,
                 const std::string& target, const std::string& source) {
    if (format.writesFolder) {
        return WriteFolder(format, options, model, target);
    }
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
        throw Failure(kFailed, ProductOf(format, target) +
                                   (format.writesFolder ? ": not complete" : ": not written"));
    }
}

}  // namespace Vynx

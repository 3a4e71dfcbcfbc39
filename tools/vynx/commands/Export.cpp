#include <filesystem>
#include <iostream>

#include "vynx/Format.h"
#include "vynx/ModelFile.h"
#include "vynx/SaveModel.h"
#include "vynx/commands/Commands.h"

namespace Vynx {

namespace fs = std::filesystem;

namespace {

std::string StemOf(const std::string& model) {
    return fs::path(model).stem().string();
}

void ExportOne(const ExportRequest& request) {
    const Format* format = FindFormat(request.format);
    if (format == nullptr || format->write == nullptr) {
        throw Failure(kUsage, "--to " + request.format +
                                  ": not a format that can be written; see vynx formats");
    }
    const OptionValues options(format->id, format->options, request.options);
    Tevra::CVynData model;
    LoadModel(request.model, request.from, model);
    SaveModel(*format, options, model, request.output, request.model);
}

void ExportAll(const ExportRequest& request) {
    if (!request.options.empty()) {
        throw Failure(kUsage, "--" + request.options.begin()->first +
                                  ": --to all writes every format with its defaults");
    }
    std::error_code error;
    fs::create_directories(request.output, error);
    if (!fs::is_directory(request.output)) {
        throw Failure(kFailed, request.output + ": can't be made: " + error.message());
    }
    Tevra::CVynData model;
    LoadModel(request.model, request.from, model);
    const std::string stem = StemOf(request.model);
    std::string failed;
    for (const Format& format : Formats()) {
        const OptionValues options(format.id, format.options, {});
        if (format.write == nullptr) {
            continue;
        }
        const std::string lack = format.lacks != nullptr ? format.lacks(model, options) : "";
        const std::string id(format.id);
        if (!lack.empty()) {
            std::cout << id << ": skipped, " << lack << '\n';
            continue;
        }
        const std::string target =
            (fs::path(request.output) / (stem + std::string(format.extensions.front()))).string();
        if (WriteFormat(format, options, model, target, request.model)) {
            std::cout << id << ": " << target << '\n';
        } else {
            failed += (failed.empty() ? "" : ", ") + id;
        }
    }
    if (!failed.empty()) {
        throw Failure(kFailed, request.output + ": not written: " + failed);
    }
}

}  // namespace

void Export(const ExportRequest& request) {
    if (request.format == "all") {
        ExportAll(request);
    } else {
        ExportOne(request);
    }
}

}  // namespace Vynx

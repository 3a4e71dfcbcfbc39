#include <filesystem>
#include <iostream>

#include "platform/text/Utf8.h"
#include "vynx/Console.h"
#include "vynx/Format.h"
#include "vynx/SaveModel.h"
#include "vynx/commands/Commands.h"

namespace Vynx {

namespace fs = std::filesystem;

namespace {

std::string StemOf(const std::string& model) {
    return fs::path(model).stem().string();
}

/// Reads the model; files tell what they were made from, by the model's own file name or this one.
void Load(const ModelSource& source, Tevra::CVynData& model) {
    LoadToWrite(source, model);
    Tevra::CTitles titles = model.Title();
    if (titles.FileName().empty()) {
        titles.SetFileName(Tevra::Text::FromUtf8(source.file));
        model.SetTitle(std::move(titles));
    }
}

void ExportOne(const ExportRequest& request) {
    const Format* format = FindFormat(request.format);
    if (format == nullptr || format->write == nullptr) {
        throw Failure(kUsage, "--to " + request.format +
                                  ": not a format that can be written; see vynx formats");
    }
    const OptionValues options(format->id, format->options, request.options);
    Tevra::CVynData model;
    Load(request.model, model);
    SaveModel(*format, options, model, request.output, request.model.file);
}

/// Writes the model in one format, if it can be, and says what came of it; false when it should
/// have been written and was not.
bool ExportOneOfAll(const Format& format, const ExportRequest& request, Tevra::CVynData& model) {
    const OptionValues options(format.id, format.options, {});
    const std::string lack = format.lacks != nullptr ? format.lacks(model, options) : "";
    if (!lack.empty()) {
        std::cout << format.id << ": skipped, " << lack << '\n';
        return true;
    }
    const fs::path target = fs::path(request.output) /
                            (StemOf(request.model.file) + std::string(format.extensions.front()));
    std::error_code ignored;
    if (fs::equivalent(target, request.model.file, ignored)) {
        std::cout << format.id << ": skipped, " << target.string() << " is the model itself\n";
        return true;
    }
    try {
        if (!WriteFormat(format, options, model, target.string(), request.model.file)) {
            return false;
        }
    } catch (const Failure& failure) {
        Say("vynx: " + std::string(failure.what()));
        return false;
    }
    std::cout << format.id << ": " << ProductOf(format, target.string()) << '\n';
    return true;
}

void ExportAll(const ExportRequest& request) {
    if (!request.options.empty()) {
        throw Failure(kUsage, "--" + request.options.begin()->first +
                                  ": --to all writes every format with its defaults");
    }
    Tevra::CVynData model;
    Load(request.model, model);
    std::error_code error;
    fs::create_directories(request.output, error);
    if (!fs::is_directory(request.output)) {
        throw Failure(kFailed, request.output + ": can't be made: " + error.message());
    }
    std::string failed;
    for (const Format& format : Formats()) {
        if (format.write != nullptr && !ExportOneOfAll(format, request, model)) {
            failed += (failed.empty() ? "" : ", ") + std::string(format.id);
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

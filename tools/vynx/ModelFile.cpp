#include "vynx/ModelFile.h"

#include "model/ProfileCatalogue.h"
#include "model/References.h"
#include "platform/text/Utf8.h"
#include "vynx/Console.h"
#include "vynx/Failure.h"

namespace Vynx {

namespace {

std::string ReadableIds() {
    std::string ids;
    for (const Format& format : Formats()) {
        if (format.read != nullptr) {
            ids += (ids.empty() ? "" : ", ") + std::string(format.id);
        }
    }
    return ids;
}

const Format& FormatOf(const std::string& file, const std::string& from) {
    const Format* format = from.empty() ? ReaderOf(file) : FindFormat(from);
    if (format == nullptr && from.empty()) {
        throw Failure(kUsage, file +
                                  ": the extension names no format that can be read; name one "
                                  "with --from (" +
                                  ReadableIds() + ")");
    }
    if (format == nullptr || format->read == nullptr) {
        throw Failure(kUsage,
                      "--from " + from + ": not a format that can be read (" + ReadableIds() + ")");
    }
    return *format;
}

/// Reads the file, telling where and why when that fails.
ReadJob Read(const ModelSource& source, const Format& format, Tevra::CVynData& model) {
    const OptionValues options(format.id, format.readOptions, source.options);
    const Progress progress("reading " + source.file);
    ReadJob job{source.file, model, options};
    if (!format.read(job)) {
        const std::string line = job.line > 0 ? ":" + std::to_string(job.line) : "";
        throw Failure(kFailed, source.file + line + ": " + job.error);
    }
    for (const std::string& note : job.notes) {
        Say(source.file + ": " + note);
    }
    return job;
}

/// Adds the profiles of a file to those that come with the library.
void LoadCatalogue(const std::string& file) {
    using Tevra::Data::CProfileCatalogue;
    CProfileCatalogue catalogue = *CProfileCatalogue::Current();
    std::wstring error;
    if (!catalogue.Load(Tevra::Text::FromUtf8(file), error)) {
        throw Failure(kFailed, file + ": " + Tevra::Text::ToUtf8(error));
    }
    CProfileCatalogue::SetCurrent(std::move(catalogue));
}

void SayDanglingReferences(const std::string& file, const Format& format,
                           const Tevra::CVynData& model) {
    using namespace Tevra::Util;
    const ReferenceReport report = FindDanglingReferences(
        model, format.geometryOnly ? ReferenceScope::NoProperties : ReferenceScope::All);
    for (const std::wstring& finding : report.findings) {
        Say(file + ": " + Tevra::Text::ToUtf8(finding));
    }
    const long more = report.total - static_cast<long>(report.findings.size());
    if (more > 0) {
        Say(file + ": " + std::to_string(more) + " more like these");
    }
}

}  // namespace

SkippedBlocks LoadModel(const ModelSource& source, Tevra::CVynData& model) {
    if (!source.catalogue.empty()) {
        LoadCatalogue(source.catalogue);
    }
    const Format& format = FormatOf(source.file, source.from);
    ReadJob job = Read(source, format, model);
    SayDanglingReferences(source.file, format, model);
    return std::move(job.skipped);
}

void LoadToWrite(const ModelSource& source, Tevra::CVynData& model) {
    std::int64_t blocks = 0;
    const SkippedBlocks skipped = LoadModel(source, model);
    for (const auto& [name, count] : skipped) {
        blocks += count;
    }
    if (blocks > 0) {
        Say(source.file + ": skipped " + std::to_string(blocks) + " blocks of " +
            std::to_string(skipped.size()) + " kinds; vynx info names them");
    }
}

void LoadInto(const ModelSource& source, Tevra::CVynData& model) {
    const Format& format = FormatOf(source.file, source.from);
    if (!format.isPart) {
        throw Failure(kUsage, "--into: " + source.file + " holds a whole model");
    }
    Read(source, format, model);
}

}  // namespace Vynx

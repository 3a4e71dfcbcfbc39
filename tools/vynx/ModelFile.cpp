#include "vynx/ModelFile.h"

#include "model/References.h"
#include "platform/text/Utf8.h"
#include "vynx/Console.h"
#include "vynx/Failure.h"
#include "vynx/Format.h"

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

}  // namespace

void LoadModel(const std::string& file, const std::string& from, Tevra::CVynData& model) {
    const Format& format = FormatOf(file, from);
    const Progress progress("reading " + file);
    std::string error;
    if (!format.read(file, model, error)) {
        throw Failure(kFailed, file + ": " + error);
    }
    const Tevra::Util::ReferenceReport report = Tevra::Util::FindDanglingReferences(model);
    for (const std::wstring& finding : report.findings) {
        Say(file + ": " + Tevra::Text::ToUtf8(finding));
    }
    const long more = report.total - static_cast<long>(report.findings.size());
    if (more > 0) {
        Say(file + ": " + std::to_string(more) + " more numbers without a record");
    }
}

}  // namespace Vynx

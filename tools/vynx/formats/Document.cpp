#include <cerrno>
#include <cstring>
#include <fstream>

#include "document/ModelDocument.h"
#include "platform/text/Utf8.h"
#include "platform/ui/HostServices.h"
#include "vynx/formats/FormatRows.h"

namespace Vynx {

namespace {

bool Write(ExportJob& job) {
    std::ofstream output(job.path, std::ios::binary | std::ios::trunc);
    std::string error;
    bool written = output.is_open();
    if (!written) {
        error = std::strerror(errno);  // NOLINT(concurrency-mt-unsafe)
    } else {
        written = Tevra::Document::WriteDocument(job.model, output, error);
        output.close();
        written = written && output.good();
    }
    if (!written) {
        Tevra::Host().ShowMessage(Tevra::Text::FromUtf8(job.path.string() + ": " + error));
    }
    return written;
}

bool Read(ReadJob& job) {
    return Tevra::Document::ReadDocument(job.file, job.model, job.error);
}

}  // namespace

Format DocumentFormat() {
    return {.id = "document",
            .title = "Model document",
            .extensions = {".json"},
            .options = {},
            .lacks = nullptr,
            .write = &Write,
            .read = &Read};
}

}  // namespace Vynx

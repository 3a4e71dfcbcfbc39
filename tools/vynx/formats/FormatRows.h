#pragma once

#include "io/StreamFile.h"
#include "platform/text/HostPath.h"
#include "vynx/Format.h"

namespace Vynx {

// The rows of the format table, each in a file of its own beside this one.
Format DampingFormat();
Format DocumentFormat();
Format KeywordFormat();
Format LsDynaFormat();
Format ViewFormat();
Format LegacyFormat();
Format SqlFormat();
Format NastranFormat();
Format OpenseesFormat();
Format Sap2000Format();
Format QuorlFormat();

/// Writes the report of an export to its own file, whole or not at all; without a path nothing is
/// written.
bool WriteReport(const std::string& path, const std::wstring& report);

/// Runs a single-file writer of the library on a job.
inline bool RunWriter(Tevra::CStreamFile& writer, ExportJob& job) {
    writer.SetData(&job.model);
    const bool written = writer.OpenWrite(Tevra::Text::FromPath(job.path));
    job.log = writer.ErrorLog();
    if (!written && job.log.empty()) {
        job.log = L"The model is in use.";
    }
    return written;
}

}  // namespace Vynx

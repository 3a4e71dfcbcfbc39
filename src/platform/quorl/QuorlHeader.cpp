#include <cstdio>

#include "platform/quorl/QuorlData.h"
#include "platform/quorl/QuorlFields.h"

// The head of the file: who wrote it, for which version of which program, and the job.

namespace Tevra {

namespace {

constexpr std::string_view kFirstLine = "TEVRA DATA FILE";
constexpr std::string_view kLastLine = "END HEADER";
constexpr std::wstring_view kProgram = L"Quorl";
/// More lines than any header has: what goes on is none.
constexpr int kMostLines = 100;

void AppendLine(QuorlText& text, std::string_view key, std::wstring_view value) {
    text.Word(key);
    text.Text(value);
    text.EndLine();
}

std::string IsoTime(const std::tm& date) {
    char text[32];
    const std::size_t length = std::strftime(text, sizeof text, "%Y-%m-%dT%H:%M:%S", &date);
    return {text, length};
}

}  // namespace

bool QuorlData::WriteTevraHeader(FileIO::CDataFile& file, const TevraHeader& header) {
    QuorlText text;
    text.Word(kFirstLine);
    text.EndLine();
    AppendLine(text, "PROGRAM", kProgram);
    text.Word("VERSION");
    text.Word(header.version.Version());
    text.EndLine();
    AppendLine(text, "WRITTEN BY", header.writtenBy);
    AppendLine(text, "TITLE", header.jobTitle);
    AppendLine(text, "JOB", header.jobNumber);
    AppendLine(text, "INITIALS", header.initials);
    text.Word("DATE");
    text.Word(IsoTime(header.date));
    text.EndLine();
    text.Word(kLastLine);
    text.EndLine();
    return file.Write(text.Lines());
}

bool QuorlData::ReadTevraHeader(FileIO::CDataFile& file, TevraHeader& header) {
    std::string_view line;
    if (!file.NextLine(line) || line != kFirstLine) {
        return false;
    }
    bool hasProgram = false;
    bool hasVersion = false;
    for (int count = 0; count < kMostLines && file.NextLine(line); ++count) {
        if (line == kLastLine) {
            return hasProgram && hasVersion;
        }
        QuorlFields fields(line);
        const std::wstring key = fields.Text();
        if (key == L"VERSION") {
            const std::size_t comma = line.find(',');
            hasVersion =
                comma != std::string_view::npos && header.version.Parse(line.substr(comma + 1));
            continue;
        }
        const std::wstring value = fields.Text();
        if (key == L"PROGRAM") {
            header.program = value;
            hasProgram = value == kProgram;
        } else if (key == L"WRITTEN BY") {
            header.writtenBy = value;
        } else if (key == L"TITLE") {
            header.jobTitle = value;
        } else if (key == L"JOB") {
            header.jobNumber = value;
        } else if (key == L"INITIALS") {
            header.initials = value;
        }
    }
    return false;
}

}  // namespace Tevra

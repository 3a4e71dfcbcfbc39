#include "torture/WriterRuns.h"

#include <iostream>
#include <sstream>

#include "platform/text/Utf8.h"
#include "support/TempFolder.h"
#include "vynx/Failure.h"

namespace Tevra::TestSupport {

namespace fs = std::filesystem;

namespace {

std::string ListOption(const Vynx::OptionRow& row, HostileValues& values) {
    std::string text = values.ListText();
    while (!CEntList(Text::FromUtf8(text), row.listKind).IsValid()) {
        text = values.ListText();
    }
    return text;
}

std::string ValueOf(const Vynx::OptionRow& row, HostileValues& values) {
    switch (row.kind) {
        case Vynx::OptionKind::Integer:
            return std::to_string(values.Chance(0.05)  ? 60
                                  : values.Chance(0.5) ? 0
                                                       : values.Below(6));
        case Vynx::OptionKind::Real:
            return "0.05";
        case Vynx::OptionKind::Choice:
            return std::string(values.OneOf<std::string_view>(row.choices));
        case Vynx::OptionKind::Letters:
            return std::string(row.choices.front().substr(static_cast<std::size_t>(
                values.Below(static_cast<int>(row.choices.front().size())))));
        case Vynx::OptionKind::List:
            return ListOption(row, values);
        case Vynx::OptionKind::Text:
            return values.TextOf("analysis_cases", "description");
        default:
            return {};
    }
}

void TakeFiles(const fs::path& folder, std::map<std::string, std::string>& files) {
    for (const auto& entry : fs::recursive_directory_iterator(folder)) {
        if (entry.is_regular_file()) {
            files[entry.path().lexically_relative(folder).string()] = ReadFile(entry.path());
        }
    }
    for (const auto& entry : fs::directory_iterator(folder)) {
        fs::remove_all(entry.path());
    }
}

}  // namespace

std::vector<std::string> WritableFormats() {
    std::vector<std::string> ids;
    for (const Vynx::Format& format : Vynx::Formats()) {
        if (format.write != nullptr) {
            ids.emplace_back(format.id);
        }
    }
    return ids;
}

SteadyHost::SteadyHost() {
    std::tm now{};
    now.tm_year = 126;
    now.tm_mon = 10;
    now.tm_mday = 21;
    now.tm_wday = 6;
    now.tm_hour = 9;
    clock = now;
    listSeparator = L",";
}

Vynx::GivenOptions HostileOptions(const Vynx::Format& format, HostileValues& values) {
    Vynx::GivenOptions given;
    for (const Vynx::OptionRow& row : format.options) {
        if (row.kind != Vynx::OptionKind::Path && values.Chance(0.4)) {
            given[std::string(row.name)] = ValueOf(row, values);
        }
    }
    return given;
}

WriterRun RunWriter(const Vynx::Format& format, CVynData& model, const Vynx::GivenOptions& options,
                    const fs::path& folder) {
    SteadyHost host;
    const ScopedHost scope(host);
    const Vynx::OptionValues optionValues(format.id, format.options, options);
    const fs::path path = folder / ("torture" + std::string(format.extensions.front()));
    WriterRun run;
    if (format.lacks != nullptr) {
        run.log = format.lacks(model, optionValues) + '\n';
    }
    Vynx::ExportJob job{model, path, optionValues};
    std::ostringstream report;  // which the table export prints, with times
    std::streambuf* const former = std::cout.rdbuf(report.rdbuf());
    run.written = format.write(job);
    std::cout.rdbuf(former);
    run.log += Text::ToUtf8(job.log);
    run.messages = host.Messages();
    TakeFiles(folder, run.files);
    return run;
}

}  // namespace Tevra::TestSupport

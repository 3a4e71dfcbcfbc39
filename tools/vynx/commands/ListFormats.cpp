#include <iomanip>
#include <iostream>

#include "io/ExportOption.h"
#include "platform/text/Utf8.h"
#include "vynx/Format.h"
#include "vynx/commands/Commands.h"

namespace Vynx {

namespace {

using Tevra::Text::ToUtf8;

void PrintHostTable() {
    std::cout << "Export formats of the host\n";
    const Tevra::CExportOption options;
    for (int i = 0; i < options.NumOption(); ++i) {
        const Tevra::FileSpec row = options.Option(i);
        std::cout << "  " << i << "  " << std::left << std::setw(28) << ToUtf8(row.description)
                  << std::setw(6) << ToUtf8(row.extension) << std::right << std::setw(6)
                  << row.command << '\n';
    }
}

void PrintOption(const OptionRow& option) {
    const std::string value = ValueName(option);
    std::cout << "      " << std::left << std::setw(22)
              << "--" + std::string(option.name) + (value.empty() ? "" : " " + value) + " "
              << option.help;
    if (!option.fallback.empty()) {
        std::cout << " (" << option.fallback << ")";
    }
    std::cout << '\n';
}

}  // namespace

void ListFormats() {
    PrintHostTable();
    std::cout << "\nFormats of vynx\n";
    for (const Format& format : Formats()) {
        std::cout << "  " << std::left << std::setw(12) << format.id << format.title << ", "
                  << DirectionOf(format) << ",";
        for (const std::string_view extension : format.extensions) {
            std::cout << ' ' << extension;
        }
        std::cout << '\n';
        for (const OptionRow& option : format.options) {
            PrintOption(option);
        }
        for (const OptionRow& option : format.readOptions) {
            PrintOption(option);
        }
    }
}

}  // namespace Vynx

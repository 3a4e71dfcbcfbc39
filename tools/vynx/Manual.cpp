#include <CLI/CLI.hpp>
#include <iostream>
#include <string>
#include <string_view>

#include "vynx/Format.h"
#include "vynx/HelpPages.h"

namespace Vynx {

namespace {

constexpr const char* kDescription =
    "vynx carries models of Vyn, a structural analysis program, to other programs and back. A "
    "model\n"
    "is read from a document (.json), an explicit dynamics keyword file (.key, .k, .dyn) or a "
    "legacy\n"
    "binary model (.vyb), by its extension or by\n.BR \\-\\-from .\n"
    "A file appears under its name whole or not at all; the folder of tables is written in "
    "place.\n";

constexpr const char* kExamples =
    ".EX\n"
    "vynx info frame.json\n"
    "vynx export frame.json \\-\\-to nastran \\-o frame.dat \\-\\-analysis modes \\-\\-modes 10\n"
    "vynx export old.vyb \\-\\-to all \\-o out\n"
    "vynx import deck.key \\-o deck.json\n"
    ".EE\n";

/// Text for roff: hyphens as they are typed, and no line that reads as a request.
std::string Roff(std::string_view text) {
    std::string escaped;
    for (const char c : text) {
        if ((c == '.' || c == '\'') && (escaped.empty() || escaped.back() == '\n')) {
            escaped += "\\&";
        }
        if (c == '\\') {
            escaped += "\\e";
        } else {
            escaped += c == '-' ? "\\-" : std::string(1, c);
        }
    }
    return escaped;
}

/// An item of a list: what is typed, its value, and what it is.
void PrintItem(std::string_view typed, std::string_view value, std::string_view help) {
    std::cout << ".TP\n\\fB" << Roff(typed) << "\\fR";
    if (!value.empty()) {
        std::cout << " \\fI" << Roff(value) << "\\fR";
    }
    std::cout << '\n' << Roff(help) << '\n';
}

void PrintSynopsis(const CLI::App& command) {
    std::cout << "\\fBvynx " << Roff(command.get_name()) << "\\fR [\\fIoptions\\fR]";
    for (const CLI::Option* option : command.get_options()) {
        if (!option->get_positional() && option->get_required()) {
            std::cout << " \\fB" << Roff(option->get_name(false, true)) << "\\fR \\fI"
                      << Roff(option->get_type_name()) << "\\fR";
        }
    }
    for (const CLI::Option* option : command.get_options()) {
        if (option->get_positional()) {
            std::cout << " \\fI" << Roff(option->get_name(true)) << "\\fR";
        }
    }
    std::cout << "\n.br\n";
}

void PrintCommand(const CLI::App& command) {
    std::cout << ".SS vynx " << Roff(command.get_name()) << '\n'
              << Roff(command.get_description()) << ".\n";
    for (const CLI::Option* option : command.get_options()) {
        if (option->get_group() != kFormatOptions) {
            const bool isPositional = option->get_positional();
            PrintItem(option->get_name(isPositional, true),
                      isPositional ? "" : option->get_type_name(), option->get_description());
        }
    }
}

void PrintOption(const OptionRow& option) {
    std::string help(option.help);
    if (!option.fallback.empty()) {
        help += " (" + std::string(option.fallback) + ")";
    }
    PrintItem("--" + std::string(option.name), ValueName(option), help);
}

void PrintFormat(const Format& format) {
    std::cout << ".SS " << Roff(format.id) << '\n' << Roff(format.title) << ";\n";
    std::cout << DirectionOf(format) << ", extension";
    for (const std::string_view extension : format.extensions) {
        std::cout << ' ' << Roff(extension);
    }
    std::cout << ".\n";
    for (const auto* options : {&format.options, &format.readOptions}) {
        for (const OptionRow& option : *options) {
            PrintOption(option);
        }
    }
}

}  // namespace

void PrintManual(const CLI::App& app) {
    const auto commands = app.get_subcommands([](const CLI::App* /*command*/) { return true; });
    std::cout << ".TH VYNX 1 \"\" \"vynx " VYN_VERSION "\" \"User commands\"\n"
              << ".SH NAME\nvynx \\- " << Roff(app.get_description()) << "\n.SH SYNOPSIS\n";
    for (const CLI::App* command : commands) {
        PrintSynopsis(*command);
    }
    std::cout << ".SH DESCRIPTION\n" << kDescription << ".SH COMMANDS\n";
    for (const CLI::App* command : commands) {
        PrintCommand(*command);
    }
    std::cout << ".SH FORMATS\nEach with its options; their defaults in parentheses.\n";
    for (const Format& format : Formats()) {
        PrintFormat(format);
    }
    std::cout << ".SH NOTES\n" << Roff(app.get_footer()) << "\n.SH EXAMPLES\n" << kExamples;
}

}  // namespace Vynx

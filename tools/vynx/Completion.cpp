#include <CLI/CLI.hpp>
#include <iostream>
#include <string>
#include <string_view>
#include <vector>

#include "vynx/Format.h"
#include "vynx/HelpPages.h"
#include "vynx/samples/Samples.h"

namespace Vynx {

namespace {

constexpr const char* kBegin = R"(# Completion of vynx for bash, made by: vynx completion
_vynx() {
    local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]}
    local words="" format="" i
    for ((i = 2; i < COMP_CWORD; ++i)); do
        [[ ${COMP_WORDS[i]} == --to ]] && format=${COMP_WORDS[i + 1]}
    done
)";

// Words that begin as what is typed; files where none is asked for.
constexpr const char* kEnd = R"(    if [[ -n $words && ( $current == -* || $choice == yes ) ]]; then
        COMPREPLY=($(compgen -W "$words" -- "$current"))
    else
        COMPREPLY=($(compgen -f -- "$current"))
    fi
}
complete -o filenames -F _vynx vynx
)";

/// A branch of a case statement that sets the words to choose from.
void PrintBranch(std::string_view pattern, std::string_view words) {
    std::cout << "        " << pattern << ") words+=\" " << words << "\" ;;\n";
}

std::string Joined(const std::vector<std::string_view>& words) {
    std::string text;
    for (const std::string_view word : words) {
        text += (text.empty() ? "" : " ") + std::string(word);
    }
    return text;
}

std::string Ids(bool readable) {
    std::vector<std::string_view> ids;
    for (const Format& format : Formats()) {
        if (readable ? format.read != nullptr : format.write != nullptr) {
            ids.push_back(format.id);
        }
    }
    return Joined(ids);
}

/// The values behind options that have a choice of them.
void PrintValues() {
    std::cout << "    local choice=yes\n    case $previous in\n";
    PrintBranch("--to", Ids(false) + " all");
    PrintBranch("--from", Ids(true));
    for (const Format& format : Formats()) {
        for (const OptionRow& option : format.options) {
            if (!option.choices.empty() && option.kind == OptionKind::Choice) {
                PrintBranch("--" + std::string(option.name), Joined(option.choices));
            }
        }
    }
    std::vector<std::string_view> kinds;
    for (const SampleKind& kind : SampleKinds()) {
        kinds.push_back(kind.name);
    }
    PrintBranch("sample", Joined(kinds));
    std::cout << "        *) choice=no ;;\n    esac\n";
}

/// The options of the commands, and those of the format that is written.
void PrintOptions(const std::vector<const CLI::App*>& commands) {
    std::cout << "    [[ $choice == no ]] && case ${COMP_WORDS[1]} in\n";
    for (const CLI::App* command : commands) {
        std::string words;
        for (const CLI::Option* option : command->get_options()) {
            const bool isOfFormat = option->get_group() == kFormatOptions;
            if (!option->get_lnames().empty() && !isOfFormat) {
                words += (words.empty() ? "--" : " --") + option->get_lnames().front();
            }
        }
        PrintBranch(command->get_name(), words);
    }
    std::cout << "    esac\n    [[ $choice == no ]] && case $format in\n";
    for (const Format& format : Formats()) {
        std::string words;
        for (const OptionRow& option : format.options) {
            words += (words.empty() ? "--" : " --") + std::string(option.name);
        }
        if (!words.empty()) {
            PrintBranch(format.id, words);
        }
    }
    std::cout << "    esac\n";
}

void PrintCommands(const std::vector<const CLI::App*>& commands) {
    std::cout << "    if ((COMP_CWORD == 1)); then\n        COMPREPLY=($(compgen -W \"";
    for (const CLI::App* command : commands) {
        std::cout << command->get_name() << ' ';
    }
    std::cout << "--help --version\" -- \"$current\"))\n        return\n    fi\n";
}

}  // namespace

void PrintCompletion(const CLI::App& app) {
    const auto commands = app.get_subcommands([](const CLI::App* /*command*/) { return true; });
    std::cout << kBegin;
    PrintCommands(commands);
    PrintValues();
    PrintOptions(commands);
    std::cout << kEnd;
}

}  // namespace Vynx

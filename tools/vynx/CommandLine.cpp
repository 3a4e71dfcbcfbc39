#include "vynx/CommandLine.h"

#include <CLI/CLI.hpp>
#include <exception>
#include <iostream>
#include <map>
#include <memory>

#include "vynx/Console.h"
#include "vynx/Format.h"
#include "vynx/HelpPages.h"
#include "vynx/commands/Commands.h"
#include "vynx/samples/Samples.h"

namespace Vynx {

namespace {

constexpr const char* kFooter =
    "Exit status: 0 done, 1 a file could not be read or written, 2 wrong command line.\n"
    "Notes and warnings go to standard error.";

std::string Ids(bool readable) {
    std::string ids;
    for (const Format& format : Formats()) {
        if (readable ? format.read != nullptr : format.write != nullptr) {
            ids += (ids.empty() ? "" : ", ") + std::string(format.id);
        }
    }
    return ids;
}

/// The options of all formats, of their writers or of their readers, on a command. An option that
/// several formats have stands once; whether the chosen format has it is looked at when the format
/// runs.
class FormatOptions {
public:
    using OptionList = std::vector<OptionRow> Format::*;

    void AddTo(CLI::App& command, OptionList options) {
        for (const Format& format : Formats()) {
            for (const OptionRow& declared : format.*options) {
                Add(command, format, declared);
            }
        }
    }
    GivenOptions Given() const {
        GivenOptions given;
        for (const auto& [name, option] : m_options) {
            if (option->count() > 0) {
                given[name] = m_texts.at(name);
            }
        }
        return given;
    }

private:
    void Add(CLI::App& command, const Format& format, const OptionRow& declared) {
        const std::string name(declared.name);
        std::string help = std::string(format.id) + ": " + std::string(declared.help);
        if (!declared.fallback.empty()) {
            help += " (" + std::string(declared.fallback) + ")";
        }
        const auto known = m_options.find(name);
        if (known != m_options.end()) {
            known->second->description(known->second->get_description() + "; " + help);
            return;
        }
        CLI::Option* option = declared.kind == OptionKind::Flag
                                  ? command.add_flag("--" + name)->description(help)
                                  : command.add_option("--" + name, m_texts[name], help);
        if (declared.kind != OptionKind::Flag) {
            option->type_name(ValueName(declared));
        }
        option->group(kFormatOptions);
        m_texts.try_emplace(name);
        m_options[name] = option;
    }

    std::map<std::string, std::string> m_texts;
    std::map<std::string, CLI::Option*> m_options;
};

/// The file that a command reads, with --from and the options of the readers.
class SourceArguments {
public:
    SourceArguments(CLI::App& command, const std::string& name, const std::string& help) {
        command.add_option(name, m_source.file, help)->required();
        command
            .add_option("--from", m_source.from,
                        "Format of " + name + ", when its extension does not say")
            ->type_name("FORMAT");
        command
            .add_option("--catalogue", m_source.catalogue,
                        "Profiles that sections may name besides those known; docs/sections.md")
            ->type_name("FILE");
        m_yes = command.add_flag("--yes")->description("Answer questions of the reader with yes");
        m_no = command.add_flag("--no")
                   ->description("Answer them with no, as where nobody can be asked")
                   ->excludes(m_yes);
        m_options.AddTo(command, &Format::readOptions);
    }
    /// What was given; from then on questions get the answer that was.
    ModelSource Given() const {
        const bool isGiven = m_yes->count() + m_no->count() > 0;
        ToolHost::SetAnswer(isGiven ? std::optional(m_yes->count() > 0) : std::nullopt);
        ModelSource source = m_source;
        source.options = m_options.Given();
        return source;
    }

private:
    ModelSource m_source;
    FormatOptions m_options;
    CLI::Option* m_yes = nullptr;
    CLI::Option* m_no = nullptr;
};

void AddExport(CLI::App& app) {
    CLI::App* command = app.add_subcommand("export", "Write a model in another format");
    const auto source = std::make_shared<SourceArguments>(*command, "MODEL", "Model file");
    const auto request = std::make_shared<ExportRequest>();
    const auto options = std::make_shared<FormatOptions>();
    command->add_option("--to", request->format, "Format: " + Ids(false) + ", or all")
        ->required()
        ->type_name("FORMAT");
    command
        ->add_option("-o,--output", request->output,
                     "File to write (- is standard output), or a folder with --to all")
        ->required()
        ->type_name("PATH");
    options->AddTo(*command, &Format::options);
    command->footer(kFooter);
    command->callback([=] {
        request->model = source->Given();
        request->options = options->Given();
        Export(*request);
    });
}

void AddImport(CLI::App& app) {
    CLI::App* command =
        app.add_subcommand("import", "Read a file and write it as a model document");
    const auto source =
        std::make_shared<SourceArguments>(*command, "FILE", "File to read: " + Ids(true));
    const auto request = std::make_shared<ImportRequest>();
    command->add_option("-o,--output", request->output, "Document to write (- is standard output)")
        ->required()
        ->type_name("PATH");
    command
        ->add_option("--into", request->into,
                     "Model that is read first, and into which FILE is read: soil data")
        ->type_name("MODEL");
    command->footer(kFooter);
    command->callback([=] {
        request->source = source->Given();
        Import(*request);
    });
}

void AddInfo(CLI::App& app) {
    CLI::App* command = app.add_subcommand("info", "Print what a model holds");
    const auto source = std::make_shared<SourceArguments>(*command, "MODEL", "Model file");
    command->footer(kFooter);
    command->callback([=] { Info(source->Given()); });
}

void AddDraw(CLI::App& app) {
    CLI::App* command = app.add_subcommand("draw", "Draw a model as SVG; docs/drawing.md");
    const auto source = std::make_shared<SourceArguments>(*command, "MODEL", "Model file");
    const auto request = std::make_shared<DrawRequest>();
    command->add_option("-o,--output", request->output, "SVG file to write (- is standard output)")
        ->required()
        ->type_name("PATH");
    command
        ->add_option("--case", request->loadCase,
                     "Load case whose loads are drawn, 0 none (the first with loads)")
        ->check(CLI::NonNegativeNumber)
        ->type_name("N");
    command
        ->add_option("--view", request->view,
                     "Side that is seen: isometric, from above, along Y, against X")
        ->check(CLI::IsMember(DrawingViews()))
        ->capture_default_str()
        ->type_name("VIEW");
    command->footer(kFooter);
    command->callback([=] {
        request->model = source->Given();
        Draw(*request);
    });
}

void AddSample(CLI::App& app, SampleRequest& request) {
    CLI::App* command = app.add_subcommand("sample", "Make a regular model of any size");
    std::string kinds;
    for (const SampleKind& kind : SampleKinds()) {
        kinds += "\n" + std::string(kind.name) + ": " + std::string(kind.help);
    }
    command->add_option("KIND", request.kind, "Kind of model:" + kinds)->required();
    command->add_option("--size", request.nodes, "Number of nodes, about")
        ->check(CLI::Range(1, kLargestSample))
        ->capture_default_str()
        ->type_name("N");
    command
        ->add_option("-o,--output", request.output,
                     "File to write, in the format of its extension (- is a document on standard "
                     "output)")
        ->required()
        ->type_name("PATH");
    command->footer(kFooter);
    command->callback([&] { Sample(request); });
}

int Parse(CLI::App& app, int count, const char* const* arguments) {
    try {
        app.parse(count, arguments);
        return kDone;
    } catch (const CLI::Success& success) {
        return app.exit(success);
    } catch (const CLI::ParseError& error) {
        Say("vynx: " + std::string(error.what()));
        Say("Run vynx --help, or vynx COMMAND --help, for more.");
        return kUsage;
    }
}

}  // namespace

int Run(int count, const char* const* arguments) {
    CLI::App app("Interchange of structural models with other programs", "vynx");
    app.require_subcommand(1);
    app.set_version_flag("--version", "vynx " VYN_VERSION);
    app.footer(kFooter);

    SampleRequest sampleRequest;
    AddExport(app);
    AddImport(app);
    AddInfo(app);
    AddDraw(app);
    AddSample(app, sampleRequest);
    app.add_subcommand("formats", "List the formats and their options")->callback(ListFormats);
    app.add_subcommand("manual", "Print the manual page, roff for man")->callback([&app] {
        PrintManual(app);
    });
    app.add_subcommand("completion", "Print what makes bash complete the command line")
        ->callback([&app] { PrintCompletion(app); });

    ToolHost host;
    const Tevra::ScopedHost scope(host);
    int status = kFailed;
    try {
        status = Parse(app, count, arguments);
    } catch (const Failure& failure) {
        Say("vynx: " + std::string(failure.what()));
        return failure.ExitStatus();
    } catch (const std::bad_alloc&) {
        Say("vynx: out of memory");
        return kFailed;
    } catch (const std::exception& error) {
        Say("vynx: " + std::string(error.what()));
        return kFailed;
    }
    if (status == kDone && !std::cout.flush().good()) {
        Say("vynx: standard output can't be written");
        return kFailed;
    }
    return status;
}

}  // namespace Vynx

#include "torture/FormChecks.h"

#include <algorithm>
#include <regex>
#include <sstream>

#include "platform/text/Utf8.h"
#include "support/KeywordDeck.h"
#include "support/NasDeck.h"
#include "support/OpsScript.h"
#include "support/SapDeck.h"

namespace Tevra::TestSupport {

namespace {

using Faults = std::vector<std::string>;

void Append(Faults& faults, Faults further) {
    faults.insert(faults.end(), further.begin(), further.end());
}

/// UTF-8 of lines without control characters.
Faults CheckText(const std::string& text) {
    Faults faults;
    const auto isControl = [](char c) {
        return (static_cast<unsigned char>(c) < 0x20 && c != '\n') || c == 0x7F;
    };
    const auto at = std::find_if(text.begin(), text.end(), isControl);
    if (at != text.end()) {
        const auto line = std::find(std::make_reverse_iterator(at), text.rend(), '\n').base();
        faults.push_back("control character " + std::to_string(static_cast<int>(*at)) +
                         " in: " + std::string(line, std::find(line, text.end(), '\n')));
    }
    if (Text::ToUtf8(Text::FromUtf8(text)) != text) {
        faults.emplace_back("not UTF-8");
    }
    if (!text.empty() && text.back() != '\n') {
        faults.emplace_back("the last line has no end");
    }
    return faults;
}

/// Cards without those that hold a number wider than its field, and whether there were any.
std::string WithoutWide(const std::string& text, bool& hasWide) {
    static const std::regex kWide("[0-9][*]{8}");
    std::string kept;
    bool isDropping = false;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);) {
        const bool goesOn = line.starts_with('+') || line.starts_with('*');
        isDropping = goesOn ? isDropping : std::regex_search(line, kWide);
        hasWide = hasWide || std::regex_search(line, kWide);
        if (!isDropping) {
            kept += line + '\n';
        }
    }
    return kept;
}

Faults CheckNastran(const std::string& text) {
    Faults faults = CheckText(text);
    bool hasWide = false;
    const NasDeck deck = ReadNasDeck(WithoutWide(text, hasWide));
    Append(faults, deck.faults);
    Append(faults, hasWide ? Faults() : OpenReferences(deck));
    return faults;
}

/// What a reader finds wrong with a file.
template <auto kRead>
Faults CheckDeck(const std::string& text) {
    Faults faults = CheckText(text);
    const auto deck = kRead(text);
    Append(faults, deck.faults);
    Append(faults, OpenReferences(deck));
    return faults;
}

/// How files end whose readers here do not look at that; empty files have nothing to end.
struct Ending {
    std::string_view format;
    std::string_view text;
};
constexpr Ending kEndings[] = {{"damping", "\n$ end of file\n"},
                               {"sql", ";\n"},
                               {"quorl", "\nEND FILE\n"},
                               {"document", "\n}\n"},
                               {"view", "\n"}};

Faults CheckEnding(std::string_view format, const std::string& text) {
    const bool isBroken =
        !text.empty() &&
        std::any_of(std::begin(kEndings), std::end(kEndings), [&](const Ending& ending) {
            return ending.format == format && !text.ends_with(ending.text);
        });
    return isBroken ? Faults{"does not end as it should"} : Faults();
}

/// Faults that a format has on purpose, as its page says: those that hold a text, when the log
/// holds another one (empty: always).
struct Kept {
    std::string_view format;
    std::string_view fault;
    std::string_view log;
};
constexpr Kept kKept[] = {
    {"ls-dyna", "*", "wider than their fields"},
    {"ls-dyna", " is there twice", "wider than their fields"},
    {"ls-dyna", "longer than its fields", "wider than their fields"},
    {"ls-dyna", " line ", "wider than their fields"},
    {"ls-dyna", "is \"inf", "values that are not numbers"},
    {"ls-dyna", "is \"-inf", "values that are not numbers"},
    {"ls-dyna", "is \"nan", "values that are not numbers"},
    {"ls-dyna", "is \"-nan", "values that are not numbers"},
    {"ls-dyna", ": MID", ""},
    {"ls-dyna", ": N", "nodes that do not exist"},
    {"ls-dyna", "SET_NODE_LIST", "nodes that do not exist"},
    {"sap2000", ": no MATERIAL ", ""},
};

bool IsKept(std::string_view format, const std::string& fault, const std::string& log) {
    return std::any_of(std::begin(kKept), std::end(kKept), [&](const Kept& kept) {
        return kept.format == format && fault.find(kept.fault) != std::string::npos &&
               log.find(kept.log) != std::string::npos;
    });
}

struct Form {
    std::string_view format;
    Faults (*check)(const std::string& text);
};
constexpr Form kForms[] = {{"nastran", &CheckNastran},
                           {"ls-dyna", &CheckDeck<&ReadKeywordDeck>},
                           {"sap2000", &CheckDeck<&ReadSapDeck>},
                           {"opensees", &CheckDeck<&ReadOpsScript>},
                           {"damping", &CheckText}};

}  // namespace

std::vector<std::string> FaultsOf(std::string_view format, const WriterRun& run) {
    Faults faults;
    if (!run.written) {
        if (run.log.size() <= 1 && run.messages.empty()) {
            faults.emplace_back("not written, and not a word about it");
        }
        return faults;
    }
    if (run.files.empty()) {
        faults.emplace_back("written, but there is no file");
    }
    for (const auto& [name, text] : run.files) {
        Faults found = CheckEnding(format, text);
        for (const Form& form : kForms) {
            if (form.format == format) {
                Append(found, form.check(text));
            }
        }
        for (const std::string& fault : found) {
            if (!IsKept(format, fault, run.log)) {
                faults.push_back(name + ": " + fault);
            }
        }
    }
    return faults;
}

}  // namespace Tevra::TestSupport

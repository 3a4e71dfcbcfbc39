#include "dyna/DynaKeywords.h"

#include <algorithm>
#include <array>

#include "platform/text/Ascii.h"
#include "platform/text/Quoted.h"

namespace Tevra {

namespace {

// Kinds of further lines; the two of a shell's thicknesses come together.
constexpr std::uint8_t kParameters = 1;
constexpr std::uint8_t kThicknesses = 2;
constexpr std::uint8_t kMidSideThicknesses = 4;
constexpr std::uint8_t kParts = 8;
constexpr std::uint8_t kEndOffsets = 16;
constexpr std::uint8_t kOrientation = 32;  // or the offset of an inertia
constexpr std::uint8_t kShellOffset = 64;
constexpr std::uint8_t kShellThicknesses = kThicknesses | kMidSideThicknesses;

constexpr std::array kFurtherLines = {DynaFurtherLine{kParameters, 5, 16},
                                      DynaFurtherLine{kThicknesses, 5, 16},
                                      DynaFurtherLine{kMidSideThicknesses, 4, 16, true},
                                      DynaFurtherLine{kParts, 2, 8},
                                      DynaFurtherLine{kEndOffsets, 6, 10},
                                      DynaFurtherLine{kOrientation, 3, 10},
                                      DynaFurtherLine{kShellOffset, 1, 16}};

struct Option {
    std::string_view base;
    std::string_view name;
    std::uint8_t furtherLines = 0;
};

/// The options whose lines are known. Those of a shell's thicknesses share their lines.
constexpr std::array kOptions = {
    Option{"*ELEMENT_BEAM", "THICKNESS", kParameters},
    Option{"*ELEMENT_BEAM", "PID", kParts},
    Option{"*ELEMENT_BEAM", "OFFSET", kEndOffsets},
    Option{"*ELEMENT_BEAM", "ORIENTATION", kOrientation},
    Option{"*ELEMENT_SHELL", "THICKNESS", kShellThicknesses},
    Option{"*ELEMENT_SHELL", "BETA", kShellThicknesses},
    Option{"*ELEMENT_SHELL", "MCID", kShellThicknesses},
    Option{"*ELEMENT_SHELL", "OFFSET", kShellOffset},
    Option{"*ELEMENT_INERTIA", "OFFSET", kOrientation},
};

/// Options of any keyword that put a line of text before the first entry.
constexpr std::array<std::string_view, 2> kHeadings = {"TITLE", "ID"};

constexpr std::string_view kOnlyStandard = "only the fixed columns of standard width are read";

/// Whether the text behind the name of a keyword sets the width of the fields below it: "+" long,
/// "%" integers of ten columns, or a setting such as LONG=Y. A "-" is the standard.
bool AsksForOtherWidths(std::string_view text) {
    return text.starts_with('+') || text.starts_with('%') ||
           text.find('=') != std::string_view::npos;
}

bool AddOption(std::string_view base, std::string_view name, DynaForm& form) {
    if (std::find(kHeadings.begin(), kHeadings.end(), name) != kHeadings.end()) {
        form.hasHeading = true;
        return true;
    }
    const auto* option = std::find_if(kOptions.begin(), kOptions.end(), [&](const Option& o) {
        return o.base == base && o.name == name;
    });
    if (option == kOptions.end()) {
        return false;
    }
    form.furtherLines |= option->furtherLines;
    return true;
}

/// Reads "_OPTION1_OPTION2" and the like.
bool AddOptions(std::string_view base, std::string_view options, DynaForm& form) {
    while (!options.empty()) {
        if (options.front() != '_') {
            return false;
        }
        options.remove_prefix(1);
        const std::string_view name = options.substr(0, options.find('_'));
        if (!AddOption(base, name, form)) {
            return false;
        }
        options.remove_prefix(name.size());
    }
    return true;
}

}  // namespace

std::span<const DynaFurtherLine> DynaFurtherLines() {
    return kFurtherLines;
}

bool ReadDynaForm(std::string_view keywordLine, std::string_view base, DynaForm& form,
                  std::string& error) {
    const std::string_view text = keywordLine.substr(0, keywordLine.find('$'));
    std::string_view name = text.substr(0, text.find_first_of(" \t"));
    std::string_view behind = Text::Trim(text.substr(name.size()));
    if (std::string_view("+%-").find(name.back()) != std::string_view::npos) {
        behind = name.substr(name.size() - 1);
        name.remove_suffix(1);
    }
    if (AsksForOtherWidths(behind)) {
        error = "the fields below " + Text::Quoted(keywordLine) +
                " have other widths: " + std::string(kOnlyStandard);
        return false;
    }
    form = DynaForm();
    if (!AddOptions(base, name.substr(base.size()), form)) {
        error = "the form " + Text::Quoted(name) + " of " + std::string(base) +
                " is not read: the lines of its entries are not known, or stand for sets";
        return false;
    }
    return true;
}

bool HasStandardFields(std::string_view keywordLine, std::string& error) {
    if (!keywordLine.starts_with("*KEYWORD")) {
        return true;
    }
    std::string packed(keywordLine);
    std::erase(packed, ' ');
    for (const std::string_view setting : {"LONG=", "I10="}) {
        const std::size_t at = packed.find(setting);
        const std::size_t value = at + setting.size();
        if (at != std::string::npos && (value >= packed.size() || packed[value] != 'N')) {
            error = "the file has fields of other widths (" + Text::Quoted(keywordLine) +
                    "): " + std::string(kOnlyStandard);
            return false;
        }
    }
    return true;
}

void CDynaKeywordCounts::Add(std::string_view keywordLine) {
    constexpr std::size_t kLongestName = 80;
    constexpr std::size_t kMostNames = 1000;
    constexpr std::string_view kOthers = "* (others)";
    const auto* const end = std::find_if(keywordLine.begin(), keywordLine.end(),
                                         [](char c) { return c <= ' ' || c > '~'; });
    const auto length = static_cast<std::size_t>(end - keywordLine.begin());
    const std::string_view name = keywordLine.substr(0, std::min(kLongestName, length));
    const auto known = m_counts.find(name);
    if (known != m_counts.end()) {
        ++known->second;
    } else {
        ++m_counts[std::string(m_counts.size() < kMostNames ? name : kOthers)];
    }
}

}  // namespace Tevra

#include "vynx/Options.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <stdexcept>

#include "io/NumberFormat.h"
#include "platform/text/Ascii.h"
#include "platform/text/Utf8.h"
#include "vynx/Failure.h"

namespace Vynx {

namespace {

template <class T>
bool ReadNumber(std::string_view text, T& value) {
    const char* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, value);
    return error == std::errc() && stop == end;
}

Tevra::CEntList MakeList(const OptionSpec& spec, std::string_view text) {
    return {Tevra::Text::FromUtf8(text), spec.listKind};
}

bool IsInRange(const OptionSpec& spec, double value) {
    return !spec.least || value >= *spec.least;
}

/// Whether a text reads as a value of the option.
bool Reads(const OptionSpec& spec, const std::string& text) {
    int whole = 0;
    double real = 0.0;
    switch (spec.kind) {
        case OptionKind::Integer:
            return ReadNumber(text, whole) && IsInRange(spec, whole);
        case OptionKind::Real:
            return ReadNumber(text, real) && std::isfinite(real) && IsInRange(spec, real);
        case OptionKind::Choice:
            return std::find(spec.choices.begin(), spec.choices.end(), text) != spec.choices.end();
        case OptionKind::Letters:
            return std::all_of(text.begin(), text.end(), [&spec](char c) {
                return spec.choices.front().find(Tevra::Text::ToUpper(c)) != std::string_view::npos;
            });
        case OptionKind::List:
            return MakeList(spec, text).IsValid();
        case OptionKind::Path:
            return !text.empty();
        default:
            return true;
    }
}

std::string AtLeast(const OptionSpec& spec) {
    std::string text;
    if (spec.least) {
        text = " not below ";
        Tevra::AppendGeneral(text, *spec.least);
    }
    return text;
}

std::string Expected(const OptionSpec& spec) {
    switch (spec.kind) {
        case OptionKind::Integer:
            return "a whole number" + AtLeast(spec);
        case OptionKind::Real:
            return "a number" + AtLeast(spec);
        case OptionKind::Letters:
            return "letters of " + std::string(spec.choices.front());
        case OptionKind::List:
            return spec.listKind == Tevra::SelType::Case ? "a list such as \"A1 to A5 C2\""
                                                         : "a list such as \"1 to 5\"";
        case OptionKind::Path:
            return "a file name";
        default:
            return ValueName(spec);
    }
}

}  // namespace

std::string ValueName(const OptionSpec& option) {
    switch (option.kind) {
        case OptionKind::Flag:
            return {};
        case OptionKind::Integer:
            return "N";
        case OptionKind::Real:
            return "X";
        case OptionKind::List:
            return "LIST";
        case OptionKind::Path:
            return "PATH";
        case OptionKind::Text:
            return "TEXT";
        case OptionKind::Letters:
            return "LETTERS";
        case OptionKind::Choice:
            break;
    }
    std::string name;
    for (const std::string_view choice : option.choices) {
        name += name.empty() ? "" : "|";
        name += choice;
    }
    return name;
}

OptionValues::OptionValues(std::string_view format, std::span<const OptionSpec> specs,
                           const GivenOptions& given)
    : m_specs(specs), m_given(given), m_values(specs.size(), nullptr) {
    for (const auto& [name, text] : m_given) {
        const auto spec = std::find_if(specs.begin(), specs.end(),
                                       [&n = name](const OptionSpec& s) { return s.name == n; });
        if (spec == specs.end()) {
            throw Failure(kUsage, "--" + name + ": " + std::string(format) + " has no such option");
        }
        if (!Reads(*spec, text)) {
            throw Failure(kUsage,
                          "--" + name + ": expected " + Expected(*spec) + ", not \"" + text + "\"");
        }
        m_values[static_cast<std::size_t>(spec - specs.begin())] = &text;
    }
}

std::size_t OptionValues::Find(std::string_view name) const {
    for (std::size_t i = 0; i < m_specs.size(); ++i) {
        if (m_specs[i].name == name) {
            return i;
        }
    }
    throw std::logic_error("an option that is not declared: " + std::string(name));
}

std::string OptionValues::Text(std::string_view name) const {
    const std::size_t i = Find(name);
    return m_values[i] != nullptr ? *m_values[i] : std::string(m_specs[i].fallback);
}

int OptionValues::Integer(std::string_view name) const {
    int value = 0;
    ReadNumber(Text(name), value);
    return value;
}

double OptionValues::Real(std::string_view name) const {
    double value = 0.0;
    ReadNumber(Text(name), value);
    return value;
}

Tevra::CEntList OptionValues::List(std::string_view name) const {
    return MakeList(m_specs[Find(name)], Text(name));
}

}  // namespace Vynx

#include "vynx/Options.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <stdexcept>
#include <utility>

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

Tevra::CEntList MakeList(const OptionRow& row, std::string_view text) {
    return {Tevra::Text::FromUtf8(text), row.listKind};
}

bool IsInRange(const OptionRow& row, double value) {
    return !row.least || value >= *row.least;
}

/// Whether a text reads as a value of the option.
bool Reads(const OptionRow& row, const std::string& text) {
    int whole = 0;
    double real = 0.0;
    switch (row.kind) {
        case OptionKind::Integer:
            return ReadNumber(text, whole) && IsInRange(row, whole);
        case OptionKind::Real:
            return ReadNumber(text, real) && std::isfinite(real) && IsInRange(row, real);
        case OptionKind::Choice:
            return std::find(row.choices.begin(), row.choices.end(), text) != row.choices.end();
        case OptionKind::Letters:
            return std::all_of(text.begin(), text.end(), [&row](char c) {
                return row.choices.front().find(Tevra::Text::ToUpper(c)) != std::string_view::npos;
            });
        case OptionKind::List:
            return MakeList(row, text).IsValid();
        case OptionKind::Path:
            return !text.empty();
        default:
            return true;
    }
}

std::string AtLeast(const OptionRow& row) {
    std::string text;
    if (row.least) {
        text = " not below ";
        Tevra::AppendGeneral(text, *row.least);
    }
    return text;
}

std::string Expected(const OptionRow& row) {
    switch (row.kind) {
        case OptionKind::Integer:
            return "a whole number" + AtLeast(row);
        case OptionKind::Real:
            return "a number" + AtLeast(row);
        case OptionKind::Letters:
            return "letters of " + std::string(row.choices.front());
        case OptionKind::List:
            return row.listKind == Tevra::SelType::Case ? "a list such as \"A1 to A5 C2\""
                                                        : "a list such as \"1 to 5\"";
        case OptionKind::Path:
            return "a file name";
        default:
            return ValueName(row);
    }
}

}  // namespace

std::string ValueName(const OptionRow& option) {
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

OptionValues::OptionValues(std::string_view format, std::span<const OptionRow> rows,
                           GivenOptions given)
    : m_rows(rows), m_given(std::move(given)), m_values(rows.size(), nullptr) {
    for (const auto& [name, text] : m_given) {
        const auto row = std::find_if(rows.begin(), rows.end(),
                                      [&n = name](const OptionRow& s) { return s.name == n; });
        if (row == rows.end()) {
            throw Failure(kUsage, "--" + name + ": " + std::string(format) + " has no such option");
        }
        if (!Reads(*row, text)) {
            throw Failure(kUsage,
                          "--" + name + ": expected " + Expected(*row) + ", not \"" + text + "\"");
        }
        m_values[static_cast<std::size_t>(row - rows.begin())] = &text;
    }
}

std::size_t OptionValues::Find(std::string_view name) const {
    for (std::size_t i = 0; i < m_rows.size(); ++i) {
        if (m_rows[i].name == name) {
            return i;
        }
    }
    throw std::logic_error("an option that is not declared: " + std::string(name));
}

std::string OptionValues::Text(std::string_view name) const {
    const std::size_t i = Find(name);
    return m_values[i] != nullptr ? *m_values[i] : std::string(m_rows[i].fallback);
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
    return MakeList(m_rows[Find(name)], Text(name));
}

}  // namespace Vynx

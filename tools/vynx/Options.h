#pragma once

#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "model/EntList.h"

namespace Vynx {

enum class OptionKind { Flag, Integer, Real, Text, Choice, Letters, List, Path };

/// An option of a format: `--name VALUE`, or `--name` for a flag.
struct OptionRow {
    std::string_view name;
    OptionKind kind = OptionKind::Text;
    std::string_view fallback;  ///< the value when it is not given, as text
    std::string_view help;
    Tevra::SelType listKind = Tevra::SelType::None;  ///< of a list
    std::vector<std::string_view> choices{};         ///< of a choice; of letters, all in one text
    std::optional<double> least{};                   ///< of a number
};

/// How help shows the value of an option: "N", "LIST", "one|two", "LETTERS"; empty for flags.
std::string ValueName(const OptionRow& option);

/// Option texts as they were given, by name; flags have an empty text.
using GivenOptions = std::map<std::string, std::string, std::less<>>;

/// The options of one run of a format: what was given, and the defaults.
class OptionValues {
public:
    /// Fails with `kUsage` on an option that the format does not have and on values that do not
    /// read as their kind.
    OptionValues(std::string_view format, std::span<const OptionRow> rows, GivenOptions given);

    bool Flag(std::string_view name) const { return m_values.at(Find(name)) != nullptr; }
    int Integer(std::string_view name) const;
    double Real(std::string_view name) const;
    std::string Text(std::string_view name) const;
    Tevra::CEntList List(std::string_view name) const;

private:
    std::size_t Find(std::string_view name) const;

    std::span<const OptionRow> m_rows;
    GivenOptions m_given;
    std::vector<const std::string*> m_values;  ///< given texts, null where the default holds
};

}  // namespace Vynx

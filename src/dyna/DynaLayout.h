#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace Tevra {

/// What a field of a keyword card holds.
enum class DynaFieldKind : std::uint8_t { Int, Real, Text };

struct DynaField {
    int width = 0;
    DynaFieldKind kind = DynaFieldKind::Int;
};

/// The fields of one data line, contiguous from the first column. The text names them with their
/// widths and kinds (I integer, F real, A text): "NID(8I) X(16F) Y(16F) Z(16F)". A text that is not
/// of this form does not compile.
class DynaLine {
public:
    consteval DynaLine() = default;
    consteval DynaLine(const char* text) {  // NOLINT(google-explicit-constructor): tables of texts
        const std::string_view all(text);
        for (std::size_t open = all.find('('); open != std::string_view::npos;
             open = all.find('(', open + 1)) {
            std::size_t at = open + 1;
            int width = 0;
            while (all[at] >= '0' && all[at] <= '9') {
                width = width * 10 + (all[at] - '0');
                ++at;
            }
            if (width == 0 || all[at + 1] != ')') {
                throw "a field needs a width and a kind";
            }
            fields.at(count) = {width, KindOf(all[at])};
            ++count;
        }
    }

    std::array<DynaField, 10> fields{};
    std::size_t count = 0;

private:
    static consteval DynaFieldKind KindOf(char letter) {
        switch (letter) {
            case 'I':
                return DynaFieldKind::Int;
            case 'F':
                return DynaFieldKind::Real;
            case 'A':
                return DynaFieldKind::Text;
            default:
                throw "a field is I, F or A";
        }
    }
};

/// A keyword card: its keyword line, a comment line below it (empty: none), its data lines.
struct DynaLayout {
    std::string_view keyword;
    std::string_view comment{};
    std::array<DynaLine, 5> lines{};
};

/// In the place of a value: a field left blank.
struct DynaBlank {};

}  // namespace Tevra

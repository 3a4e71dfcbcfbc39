#include "model/SectionText.h"

#include "platform/text/Ascii.h"
#include "platform/text/Numbers.h"

namespace Tevra::Data {

namespace {

/// Longer than any number that a person or a program writes.
constexpr std::size_t kMostDigits = 64;

struct UnitOfLength {
    std::wstring_view word;
    double metres;
};
constexpr UnitOfLength kUnits[] = {
    {L"mm", 0.001}, {L"cm", 0.01}, {L"m", 1.0}, {L"in", 0.0254}, {L"ft", 0.3048}};

}  // namespace

bool ReadNumber(std::wstring_view text, double& value) {
    text = Text::Trim(text);
    if (text.size() > kMostDigits) {
        return false;
    }
    char digits[kMostDigits];
    std::size_t n = 0;
    for (const wchar_t c : text) {
        if (c <= L' ' || c > L'~') {
            return false;
        }
        digits[n++] = static_cast<char>(c);
    }
    return Text::ReadReal({digits, n}, value);
}

double LengthUnit(std::wstring_view word) {
    for (const UnitOfLength& unit : kUnits) {
        if (Text::EqualNoCase(unit.word, word)) {
            return unit.metres;
        }
    }
    return 0.0;
}

std::vector<std::wstring_view> SplitAt(std::wstring_view text, wchar_t separator) {
    std::vector<std::wstring_view> parts;
    while (true) {
        const auto end = text.find(separator);
        parts.push_back(Text::Trim(text.substr(0, end)));
        if (end == std::wstring_view::npos) {
            return parts;
        }
        text.remove_prefix(end + 1);
    }
}

}  // namespace Tevra::Data

#include "output/engine/Line.h"

#include <algorithm>
#include <cmath>
#include <string_view>

#include "io/NumberFormat.h"
#include "platform/text/Utf8.h"

namespace Tevra::Output {

namespace {

/// The text of a number.
void AppendAscii(std::wstring& text, std::string_view ascii) {
    wchar_t wide[kMaxNumberText];
    std::copy(ascii.begin(), ascii.end(), wide);
    text.append(wide, ascii.size());
}

void AppendNumber(std::wstring& text, const Cell& cell) {
    char number[kMaxNumberText];
    const char* const end = cell.kind == Cell::Kind::Integer
                                ? AppendInt(number, cell.integer)
                                : AppendGeneral(number, cell.real, 0, cell.digits);
    AppendAscii(text, {number, static_cast<std::size_t>(end - number)});
}

void AppendText(std::wstring& text, std::wstring_view cell) {
    const std::size_t begin = text.size();
    text += cell;
    std::replace(text.begin() + static_cast<std::ptrdiff_t>(begin), text.end(), kCellSeparator,
                 L' ');
}

}  // namespace

CLine& CLine::Ints(std::span<const int> values) {
    std::wstring& text = Next(Cell::Kind::Text).text;
    text.clear();
    char number[kMaxNumberText];
    for (const int value : values) {
        if (!text.empty()) {
            text += L' ';
        }
        const char* const end = AppendInt(number, value);
        AppendAscii(text, {number, static_cast<std::size_t>(end - number)});
    }
    return *this;
}

std::wstring GetUlmString(const CLine& line) {
    std::wstring text;
    AppendUlmString(text, line);
    return text;
}

void AppendUlmString(std::wstring& text, const CLine& line) {
    bool isFirst = true;
    for (const Cell& cell : line.Cells()) {
        if (!isFirst) {
            text += kCellSeparator;
        }
        isFirst = false;
        if (cell.kind == Cell::Kind::Text) {
            AppendText(text, cell.text);
        } else if (cell.kind == Cell::Kind::Integer || !std::isnan(cell.real)) {
            AppendNumber(text, cell);
        }
    }
}

}  // namespace Tevra::Output

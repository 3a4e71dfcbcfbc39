#include "output/engine/Line.h"

#include <algorithm>
#include <cmath>

#include "io/NumberFormat.h"
#include "platform/text/Utf8.h"

namespace Tevra::Output {

namespace {

void AppendNumber(std::wstring& text, const Cell& cell) {
    char number[kMaxNumberText];
    const char* const end = cell.kind == Cell::Kind::Integer
                                ? AppendInt(number, cell.integer)
                                : AppendGeneral(number, cell.real, 0, cell.digits);
    text.append(static_cast<const char*>(number), end);
}

void AppendText(std::wstring& text, std::wstring_view cell) {
    const std::size_t begin = text.size();
    text += cell;
    std::replace(text.begin() + static_cast<std::ptrdiff_t>(begin), text.end(), kCellSeparator,
                 L' ');
}

}  // namespace

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

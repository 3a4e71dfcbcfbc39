#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace Tevra::Output {

/// Stands between the cells of a line that is one text; no name holds it.
inline constexpr wchar_t kCellSeparator = L'\u001F';

/// A cell of a line: a text, an integer, or a real with its significant digits.
struct Cell {
    enum class Kind { Text, Integer, Real };
    Kind kind = Kind::Text;
    std::wstring text{};
    int integer = 0;
    double real = 0.0;
    int digits = 6;
};

/// A line of output: its cells in order.
class CLine {
public:
    void Clear() { m_cells.clear(); }
    CLine& Text(std::wstring_view text) {
        m_cells.push_back({.kind = Cell::Kind::Text, .text = std::wstring(text)});
        return *this;
    }
    CLine& Int(int value) {
        m_cells.push_back({.kind = Cell::Kind::Integer, .integer = value});
        return *this;
    }
    /// A value that is not a number, which stands for a missing figure, is an empty cell.
    CLine& Real(double value, int digits = Cell{}.digits) {
        m_cells.push_back({.kind = Cell::Kind::Real, .real = value, .digits = digits});
        return *this;
    }
    const std::vector<Cell>& Cells() const { return m_cells; }

private:
    std::vector<Cell> m_cells;
};

/// The line as one text, its cells joined by kCellSeparator.
std::wstring GetUlmString(const CLine& line);

}  // namespace Tevra::Output

#pragma once

#include <cstddef>
#include <span>
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
    int digits = 0;
};

/// A line of output: its cells in order. A line that is cleared keeps the storage of its cells.
class CLine {
public:
    void Clear() { m_count = 0; }
    CLine& Text(std::wstring_view text) {
        Next(Cell::Kind::Text).text = text;
        return *this;
    }
    CLine& Int(int value) {
        Next(Cell::Kind::Integer).integer = value;
        return *this;
    }
    /// A cell of several numbers, with blanks between.
    CLine& Ints(std::span<const int> values);
    /// A value that is not a number, which stands for a missing figure, is an empty cell.
    CLine& Real(double value, int digits = kDigits) {
        Cell& cell = Next(Cell::Kind::Real);
        cell.real = value;
        cell.digits = digits;
        return *this;
    }
    std::span<const Cell> Cells() const { return {m_cells.data(), m_count}; }

private:
    static constexpr int kDigits = 6;
    Cell& Next(Cell::Kind kind) {
        if (m_count == m_cells.size()) {
            m_cells.emplace_back();
        }
        m_cells[m_count].kind = kind;
        return m_cells[m_count++];
    }

    std::vector<Cell> m_cells;
    std::size_t m_count = 0;
};

/// The line as one text, its cells joined by kCellSeparator.
std::wstring GetUlmString(const CLine& line);

/// Appends the same to a text that is used again.
void AppendUlmString(std::wstring& text, const CLine& line);

}  // namespace Tevra::Output

#include "output/engine/UlmFormat.h"

#include <algorithm>

#include "output/engine/Line.h"

namespace Tevra {

void CUlmFormatCsv::SetFile(std::ostream* file) {
    m_out = file != nullptr ? std::make_unique<TextOut>(*file) : nullptr;
}

void CUlmFormatCsv::SetTitles(const Titles& titles) {
    for (const std::wstring& title : titles) {
        WriteLine(Output::GetUlmString(Output::CLine().Text(title)));
    }
    WriteLine({});
}

void CUlmFormatCsv::WriteLine(std::wstring_view line) {
    if (!m_out) {
        return;
    }
    if (NeedsQuotes(line)) {
        WriteCells(line);
    } else {
        // Nearly every line: one pass changes the separators, with no look at the cells.
        m_line.resize(line.size());
        std::transform(line.begin(), line.end(), m_line.begin(),
                       [separator = m_separator](wchar_t c) {
                           return c == Output::kCellSeparator ? separator : c;
                       });
        m_out->AppendWide(m_line);
    }
    m_out->EndLine();
}

bool CUlmFormatCsv::NeedsQuotes(std::wstring_view text) const {
    const wchar_t separator = m_separator;
    unsigned found = 0;  // without a branch, so that several characters are looked at in one step
    for (const wchar_t c : text) {
        found |= static_cast<unsigned>(c == separator) | static_cast<unsigned>(c == L'"') |
                 static_cast<unsigned>(c == L'\n') | static_cast<unsigned>(c == L'\r');
    }
    return found != 0;
}

void CUlmFormatCsv::WriteCells(std::wstring_view line) {
    for (std::size_t end = line.find(Output::kCellSeparator); end != std::wstring_view::npos;
         end = line.find(Output::kCellSeparator)) {
        AppendCell(line.substr(0, end));
        m_out->AppendWide({&m_separator, 1});
        line.remove_prefix(end + 1);
    }
    AppendCell(line);
}

void CUlmFormatCsv::AppendCell(std::wstring_view cell) {
    if (!NeedsQuotes(cell)) {
        m_out->AppendWide(cell);
        return;
    }
    m_out->Append('"');
    for (std::size_t quote = cell.find(L'"'); quote != std::wstring_view::npos;
         quote = cell.find(L'"')) {
        m_out->AppendWide(cell.substr(0, quote + 1)).Append('"');
        cell.remove_prefix(quote + 1);
    }
    m_out->AppendWide(cell).Append('"');
}

bool CUlmFormatCsv::Flush() {
    return m_out != nullptr && m_out->Flush();
}

}  // namespace Tevra

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
    for (std::size_t end = line.find(Output::kCellSeparator); end != std::wstring_view::npos;
         end = line.find(Output::kCellSeparator)) {
        AppendCell(line.substr(0, end));
        m_out->AppendWide({&m_separator, 1});
        line.remove_prefix(end + 1);
    }
    AppendCell(line);
    m_out->EndLine();
}

void CUlmFormatCsv::AppendCell(std::wstring_view cell) {
    const bool isPlain = std::none_of(cell.begin(), cell.end(), [this](wchar_t c) {
        return c == m_separator || c == L'"' || c == L'\n' || c == L'\r';
    });
    if (isPlain) {
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

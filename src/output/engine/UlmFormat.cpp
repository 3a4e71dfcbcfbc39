#include "output/engine/UlmFormat.h"

#include <iterator>
#include <type_traits>

#include "output/engine/Line.h"

namespace Tevra {

namespace {

bool IsAscii(wchar_t c) {
    return static_cast<std::make_unsigned_t<wchar_t>>(c) < 0x80;
}

}  // namespace

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
    if (MakePlain(line)) {
        m_out->Append({m_plain.data(), line.size()});
    } else {
        WriteCells(line);
    }
    m_out->EndLine();
}

/// Without a branch, so that several characters are looked at in one step.
bool CUlmFormatCsv::MakePlain(std::wstring_view line) {
    if (m_plain.size() < line.size()) {
        m_plain.resize(line.size());
    }
    const wchar_t separator = m_separator;
    char* const plain = m_plain.data();
    unsigned found = IsAscii(separator) ? 0 : 1;
    for (std::size_t i = 0; i < line.size(); ++i) {
        const wchar_t c = line[i];
        found |= static_cast<unsigned>(!IsAscii(c)) | static_cast<unsigned>(c == separator) |
                 static_cast<unsigned>(c == L'"') | static_cast<unsigned>(c == L'\n') |
                 static_cast<unsigned>(c == L'\r');
        plain[i] = static_cast<char>(c == Output::kCellSeparator ? separator : c);
    }
    return found == 0;
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
    const wchar_t inQuotes[] = {m_separator, L'"', L'\n', L'\r'};
    if (cell.find_first_of({inQuotes, std::size(inQuotes)}) == std::wstring_view::npos) {
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

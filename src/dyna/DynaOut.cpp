#include "dyna/DynaOut.h"

namespace Tevra {

void DynaOut::Title(std::wstring_view text) {
    const std::size_t first = text.find_first_not_of(L" \t\r\n");
    const bool isHidden =
        first != std::wstring_view::npos && (text[first] == L'*' || text[first] == L'$');
    if (isHidden) {
        m_text.Append('\'');
    }
    m_text.AppendCard(text).EndLine();
}

void DynaOut::NameComment(std::wstring_view name, std::string_view mark) {
    m_text.Append(mark).AppendCard(name).EndLine();
}

void DynaOut::CountFaults(std::string_view keyword, long long number) {
    const auto count = [&](bool& is, DynaFaults& faults) {
        if (is && ++faults.lines == 1) {
            faults.first = std::string(keyword) + " " + std::to_string(number);
        }
        is = false;
    };
    count(m_isTooWide, m_tooWide);
    count(m_isNoNumber, m_noNumbers);
}

}  // namespace Tevra

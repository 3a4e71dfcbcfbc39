#include "model/Titles.h"

#include <algorithm>
#include <cwchar>
#include <string_view>

#include "platform/text/Ascii.h"
#include "platform/ui/HostServices.h"

namespace Tevra {

std::wstring CProgTitles::ProgramVersion(bool major, bool minor, bool release) const {
    std::wstring text;
    const auto add = [&text](bool wanted, int part) {
        if (wanted) {
            text += (text.empty() ? L"" : L".") + std::to_wstring(part);
        }
    };
    add(major, m_major);
    add(minor, m_minor);
    add(release, m_release);
    return text;
}

void CProgTitles::SetProgramVersion(const std::wstring& text) {
    constexpr int kMost = 99'999'999;
    std::wstring_view rest = text;
    for (int* const part : {&m_major, &m_minor, &m_release}) {
        const std::size_t point = std::min(rest.find(L'.'), rest.size());
        const std::wstring_view digits = Text::TrimLeft(rest.substr(0, point));
        *part = 0;
        for (std::size_t i = 0; i < digits.size() && Text::IsDigit(digits[i]); ++i) {
            *part = std::min(*part * 10 + (digits[i] - L'0'), kMost);
        }
        rest.remove_prefix(std::min(point + 1, rest.size()));
    }
}

const CHistoryRec& CHistory::Record(int i) const {
    static const CHistoryRec kNone;
    return i >= 1 && i <= NumRecord() ? m_records[static_cast<std::size_t>(i - 1)] : kNone;
}

bool CHistory::SetRecord(int i, CHistoryRec record) {
    if (i < 1 || i > NumRecord() + 1) {
        return false;
    }
    if (i == NumRecord() + 1) {
        m_records.push_back(std::move(record));
    } else {
        m_records[static_cast<std::size_t>(i - 1)] = std::move(record);
    }
    return true;
}

void CHistory::UpdateSession(CHistoryRec& record) {
    const std::tm now = Host().LocalTime();
    wchar_t text[64];
    (void)std::swprintf(text, std::size(text), L"%04d-%02d-%02d", now.tm_year + 1900,
                        now.tm_mon + 1, now.tm_mday);
    record.date = text;
    (void)std::swprintf(text, std::size(text), L"%02d:%02d:%02d", now.tm_hour, now.tm_min,
                        now.tm_sec);
    record.time = text;
    record.user = Host().UserName();
}

std::wstring SidTagValue(const std::wstring& sid, const std::wstring& tag) {
    std::wstring_view rest = sid;
    while (!rest.empty()) {
        const std::wstring_view item = rest.substr(0, rest.find(L';'));
        rest.remove_prefix(std::min(item.size() + 1, rest.size()));
        const std::size_t equals = item.find(L'=');
        if (equals != std::wstring_view::npos &&
            Text::EqualNoCase(Text::Trim(item.substr(0, equals)), std::wstring_view(tag))) {
            return std::wstring(Text::Trim(item.substr(equals + 1)));
        }
    }
    return {};
}

}  // namespace Tevra

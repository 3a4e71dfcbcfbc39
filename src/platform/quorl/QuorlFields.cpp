#include "platform/quorl/QuorlFields.h"

#include <charconv>
#include <climits>
#include <cmath>

#include "platform/text/Numbers.h"
#include "platform/text/Utf8.h"

namespace Tevra {

/// The next field as it stands in the line, its escapes included.
std::string_view QuorlFields::Next() {
    if (m_atEnd) {
        m_good = false;
        return {};
    }
    std::size_t end = 0;
    while (end < m_rest.size() && m_rest[end] != ',') {
        const bool isEscape = m_rest[end] == '\\' && end + 1 < m_rest.size();
        end += isEscape ? 2U : 1U;
    }
    const std::string_view field = m_rest.substr(0, end);
    m_atEnd = end >= m_rest.size();
    m_rest.remove_prefix(m_atEnd ? m_rest.size() : end + 1);
    return field;
}

std::wstring QuorlFields::Text() {
    const std::string_view field = Next();
    std::string text;
    for (std::size_t i = 0; i < field.size(); ++i) {
        if (field[i] != '\\') {
            text += field[i];
        } else if (++i < field.size()) {
            text += field[i] == 'n' ? '\n' : field[i] == 'r' ? '\r' : field[i];
        } else {
            m_good = false;
        }
    }
    return m_good ? Text::FromUtf8(text) : std::wstring();
}

int QuorlFields::IntFrom(int least) {
    const std::string_view field = Next();
    int value = 0;
    m_good = m_good && Tevra::Text::ReadInt(field, value) && value >= least;
    return m_good ? value : 0;
}

int QuorlFields::Int() {
    return IntFrom(INT_MIN);
}

int QuorlFields::Count() {
    return IntFrom(0);
}

int QuorlFields::Number() {
    return IntFrom(1);
}

double QuorlFields::Real() {
    const std::string_view field = Next();
    double value = 0.0;
    m_good = m_good && Tevra::Text::ReadReal(field, value);
    return m_good ? value : 0.0;
}

bool QuorlFields::Flag() {
    const int value = Int();
    m_good = m_good && (value == 0 || value == 1);
    return m_good && value == 1;
}

void QuorlText::StartField() {
    if (!m_isFirst) {
        m_lines += ',';
    }
    m_isFirst = false;
}

void QuorlText::Text(std::wstring_view text) {
    StartField();
    for (const char c : Text::ToUtf8(text)) {
        switch (c) {
            case ',':
            case '\\':
                m_lines += '\\';
                m_lines += c;
                break;
            case '\n':
                m_lines += "\\n";
                break;
            case '\r':
                m_lines += "\\r";
                break;
            default:
                m_lines += c;
        }
    }
}

void QuorlText::Int(int value) {
    StartField();
    char text[16];
    m_lines.append(text, std::to_chars(text, text + sizeof text, value).ptr);
}

void QuorlText::Real(double value) {
    constexpr int kSignificantDigits = 17;
    StartField();
    m_good = m_good && std::isfinite(value);
    char text[32];
    m_lines.append(text, std::to_chars(text, text + sizeof text, value, std::chars_format::general,
                                       kSignificantDigits)
                             .ptr);
}

void QuorlText::Word(std::string_view word) {
    StartField();
    m_lines += word;
}

void QuorlText::EndLine() {
    m_lines += '\n';
    m_isFirst = true;
}

}  // namespace Tevra

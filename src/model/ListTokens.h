#pragma once

#include <limits>
#include <string_view>

#include "platform/text/Ascii.h"

namespace Tevra {

/// A piece of a list text.
struct ListToken {
    enum class Kind { Word, Number, Open, Close, End };
    Kind kind = Kind::End;
    std::wstring_view word;
    int number = 0;
};

/// Splits a list into words, numbers and brackets; blanks and commas separate.
class ListTokens {
public:
    explicit ListTokens(std::wstring_view text) : m_text(text) { Next(); }
    const ListToken& Now() const { return m_token; }
    bool Failed() const { return m_failed; }

    void Next() {
        while (!m_text.empty() && (Text::IsSpace(m_text.front()) || m_text.front() == L',')) {
            m_text.remove_prefix(1);
        }
        m_token = {};
        if (m_text.empty()) {
            return;
        }
        const wchar_t c = m_text.front();
        if (c == L'(' || c == L')') {
            m_token.kind = c == L'(' ? ListToken::Kind::Open : ListToken::Kind::Close;
            m_text.remove_prefix(1);
        } else if (Text::IsDigit(c)) {
            TakeNumber();
        } else {
            TakeWord();
        }
    }
    bool TakeWordIf(std::wstring_view word) {
        if (m_token.kind != ListToken::Kind::Word || !Text::EqualNoCase(m_token.word, word)) {
            return false;
        }
        Next();
        return true;
    }

private:
    void TakeNumber() {
        m_token.kind = ListToken::Kind::Number;
        long long value = 0;
        while (!m_text.empty() && Text::IsDigit(m_text.front())) {
            value = value * 10 + (m_text.front() - L'0');
            m_text.remove_prefix(1);
            if (value > std::numeric_limits<int>::max()) {
                m_failed = true;
                value = 0;
            }
        }
        m_token.number = static_cast<int>(value);
    }
    void TakeWord() {
        m_token.kind = ListToken::Kind::Word;
        std::size_t length = 0;
        while (length < m_text.size() && IsWordCharacter(m_text[length])) {
            ++length;
        }
        // A word such as "prop2d" has its digit inside; "A12" is a letter and a number.
        const std::wstring_view word = m_text.substr(0, length);
        std::size_t letters = 0;
        while (letters < word.size() && !Text::IsDigit(word[letters])) {
            ++letters;
        }
        const bool whole = Text::EqualNoCase(word, L"prop2d") || Text::EqualNoCase(word, L"prop3d");
        const std::size_t take = whole || m_afterType ? length : letters;
        m_failed = m_failed || take == 0;
        m_token.word = m_text.substr(0, take);
        m_afterType = Text::EqualNoCase(m_token.word, L"type");
        m_text.remove_prefix(take == 0 ? m_text.size() : take);
    }
    static bool IsWordCharacter(wchar_t c) {
        const wchar_t small = Text::ToLower(c);
        return (small >= L'a' && small <= L'z') || Text::IsDigit(c) || c == L'_';
    }

    std::wstring_view m_text;
    ListToken m_token;
    bool m_failed = false;
    bool m_afterType = false;
};

}  // namespace Tevra

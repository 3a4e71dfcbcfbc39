#pragma once

#include <charconv>
#include <optional>
#include <string>
#include <string_view>

#include "platform/text/Ascii.h"

namespace Tevra {

/// Steps through a case or combination description: blanks are free, letters alike in either case.
class DescScanner {
public:
    explicit DescScanner(std::wstring_view text) {
        m_text.reserve(text.size());
        for (const wchar_t c : text) {
            // Anything that is not ASCII is in no description; 1 stands for it.
            m_text += c > 0 && c < 128 ? Text::ToLower(static_cast<char>(c)) : '\1';
        }
    }

    bool AtEnd() {
        SkipBlanks();
        return m_at == m_text.size();
    }
    /// The next character that is not blank, 0 at the end.
    char Peek() {
        SkipBlanks();
        return m_at < m_text.size() ? m_text[m_at] : '\0';
    }
    bool Take(char c) {
        if (Peek() != c) {
            return false;
        }
        ++m_at;
        return true;
    }
    bool TakeWord(std::string_view word) {
        SkipBlanks();
        const bool found = std::string_view(m_text).substr(m_at, word.size()) == word;
        m_at += found ? word.size() : 0;
        return found;
    }
    /// An unsigned number; it may end in its point.
    std::optional<double> TakeNumber() {
        if (!Text::IsDigit(Peek()) && Peek() != '.') {
            return std::nullopt;
        }
        double value = 0.0;
        const char* const end = m_text.data() + m_text.size();
        const auto [stop, error] = std::from_chars(m_text.data() + m_at, end, value);
        if (error != std::errc()) {
            return std::nullopt;
        }
        m_at = static_cast<std::size_t>(stop - m_text.data());
        return value;
    }
    /// A whole number from 1.
    std::optional<int> TakeInteger() {
        SkipBlanks();
        int value = 0;
        const char* const end = m_text.data() + m_text.size();
        const auto [stop, error] = std::from_chars(m_text.data() + m_at, end, value);
        if (error != std::errc() || value < 1) {
            return std::nullopt;
        }
        m_at = static_cast<std::size_t>(stop - m_text.data());
        return value;
    }

    std::size_t Place() const { return m_at; }
    void GoBack(std::size_t place) { m_at = place; }

private:
    void SkipBlanks() {
        while (m_at < m_text.size() && Text::IsSpace(m_text[m_at])) {
            ++m_at;
        }
    }

    std::string m_text;
    std::size_t m_at = 0;
};

}  // namespace Tevra

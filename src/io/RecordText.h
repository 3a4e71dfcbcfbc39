#pragma once

#include <algorithm>
#include <cmath>
#include <string>
#include <string_view>
#include <vector>

#include "io/TextOut.h"

namespace Tevra {

/// The text of one record of a file, of one line or a few, which is written as a whole or, when one
/// of its numbers is none, left out. The number functions are those of NumberFormat.h; a negative
/// zero has no sign.
class RecordText {
public:
    explicit RecordText(TextOut& out) : m_out(out) {}

    RecordText& Append(std::string_view text) {
        char* const end = Room(text.size());
        std::copy(text.begin(), text.end(), end);
        m_used += text.size();
        return *this;
    }
    RecordText& Append(char c) {
        *Room(1) = c;
        ++m_used;
        return *this;
    }
    RecordText& Int(long long value, int digits = 1) {
        char* const end = Room(kMaxNumberText);
        return UpTo(AppendInt(end, value, 0, digits));
    }
    /// %g
    RecordText& General(double value) {
        // What %g makes of the many whole numbers is what %i makes of them.
        constexpr double kMostWhole = 1e6;
        if (std::abs(value) < kMostWhole && static_cast<int>(value) == value) {
            return Int(static_cast<int>(value));
        }
        m_hasBadNumber = m_hasBadNumber || !std::isfinite(value);
        char* const end = Room(kMaxNumberText);
        return UpTo(AppendGeneral(end, value));
    }
    /// `%#g`
    RecordText& Padded(double value) {
        m_hasBadNumber = m_hasBadNumber || !std::isfinite(value);
        char* const end = Room(kMaxNumberText);
        return UpTo(AppendPadded(end, value + 0.0));
    }
    /// Takes away the last character when it is `c`.
    RecordText& Cut(char c) {
        if (m_used > 0 && m_text[m_used - 1] == c) {
            --m_used;
        }
        return *this;
    }

    /// Appends what `make` appends here, and keeps it in `kept`; what is kept already is appended
    /// again. For records that end alike.
    template <class Make>
    RecordText& Kept(std::string& kept, Make&& make) {
        if (!kept.empty()) {
            return Append(kept);
        }
        const std::size_t first = m_used;
        make();
        if (!m_hasBadNumber) {
            kept.assign(m_text.data() + first, m_used - first);
        }
        return *this;
    }

    /// Ends the last line and writes the record; false when it was left out. The next record begins
    /// either way.
    bool End() {
        const bool isWhole = !m_hasBadNumber;
        Append('\n');
        if (isWhole) {
            m_out.Append(std::string_view(m_text.data(), m_used));
        }
        m_used = 0;
        m_hasBadNumber = false;
        return isWhole;
    }

private:
    static constexpr std::size_t kCapacity = 4096;

    /// The end of the text, with room for `count` characters.
    char* Room(std::size_t count) {
        if (m_text.size() - m_used < count) {
            m_text.resize(2 * m_text.size() + count);
        }
        return m_text.data() + m_used;
    }
    RecordText& UpTo(const char* end) {
        m_used = static_cast<std::size_t>(end - m_text.data());
        return *this;
    }

    TextOut& m_out;
    std::vector<char> m_text = std::vector<char>(kCapacity);
    std::size_t m_used = 0;
    bool m_hasBadNumber = false;
};

}  // namespace Tevra

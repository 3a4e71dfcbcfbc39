#include "platform/text/LineReader.h"

#include <algorithm>
#include <cstring>
#include <limits>

#include "platform/text/Ascii.h"

namespace Tevra {

namespace {

/// Small enough to stay in the processor's cache, large enough for the system calls not to count.
constexpr std::size_t kPiece = std::size_t{256} * 1024;

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

}  // namespace

CLineReader::CLineReader(std::istream& stream) : m_stream(stream), m_buffer(kPiece) {
    if (Refill() && std::string_view(m_buffer.data(), m_end).starts_with(kByteOrderMark)) {
        m_begin = kByteOrderMark.size();
    }
}

bool CLineReader::Next(std::string_view& line) {
    std::size_t searched = 0;
    while (true) {
        const char* start = m_buffer.data() + m_begin;
        const std::size_t held = m_end - m_begin;
        const void* lineEnd = std::memchr(start + searched, '\n', held - searched);
        if (lineEnd != nullptr) {
            line = Take(static_cast<std::size_t>(static_cast<const char*>(lineEnd) - start));
            ++m_begin;
            return true;
        }
        searched = held;
        if (!Refill()) {
            break;
        }
    }
    const bool hasLast = m_error.empty() && m_begin < m_end;
    line = hasLast ? Take(m_end - m_begin) : std::string_view();
    return hasLast;
}

/// Moves what is held to the front of the buffer and reads on behind it.
bool CLineReader::Refill() {
    std::memmove(m_buffer.data(), m_buffer.data() + m_begin, m_end - m_begin);
    m_end -= m_begin;
    m_begin = 0;
    if (m_end == m_buffer.size()) {
        if (m_end >= kLongestLine) {
            Take(m_end);
            m_error = "the line has no end: this is no text file";
            return false;
        }
        m_buffer.resize(m_buffer.size() * 2);
    }
    const std::size_t room = std::min(kPiece, m_buffer.size() - m_end);
    m_stream.read(m_buffer.data() + m_end, static_cast<std::streamsize>(room));
    const auto count = static_cast<std::size_t>(m_stream.gcount());
    m_end += count;
    if (m_stream.bad()) {
        m_error = "the file can't be read";
        return false;
    }
    return count > 0;
}

std::string_view CLineReader::Take(std::size_t length) {
    const std::string_view line(m_buffer.data() + m_begin, length);
    m_begin += length;
    m_number += m_number < std::numeric_limits<int>::max() ? 1 : 0;
    return Text::TrimRight(line);
}

}  // namespace Tevra

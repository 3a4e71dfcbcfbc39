#include "io/TextOut.h"

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <utility>

#include "io/Text.h"
#include "platform/text/Utf8.h"

namespace Tevra {
namespace {

constexpr std::size_t kCapacity = std::size_t{64} * 1024;

}  // namespace

TextOut::TextOut(std::ostream& stream)
    : m_stream(stream),
      m_buffer(std::make_unique_for_overwrite<char[]>(kCapacity)),
      m_end(m_buffer.get()),
      m_last(m_end + kCapacity),
      m_piece(m_end) {}

/// Hands over what stands before the piece, or everything, and moves the rest to the front.
void TextOut::HandOver() {
    char* const first = m_buffer.get();
    char* const until = m_holds ? m_piece : m_end;
    m_stream.write(first, until - first);
    std::memmove(first, until, static_cast<std::size_t>(m_end - until));
    m_end = first + (m_end - until);
    m_piece = first;
}

/// A piece larger than the buffer is held in a larger one.
void TextOut::Grow() {
    const std::ptrdiff_t used = m_end - m_buffer.get();
    const std::ptrdiff_t piece = m_piece - m_buffer.get();
    const std::ptrdiff_t capacity = 2 * (m_last - m_buffer.get());
    auto larger = std::make_unique_for_overwrite<char[]>(static_cast<std::size_t>(capacity));
    std::memcpy(larger.get(), m_buffer.get(), static_cast<std::size_t>(used));
    m_buffer = std::move(larger);
    m_end = m_buffer.get() + used;
    m_piece = m_buffer.get() + piece;
    m_last = m_buffer.get() + capacity;
}

void TextOut::MakeRoom() {
    HandOver();
    if (m_last - m_end < kMaxNumberText) {
        Grow();
    }
}

void TextOut::BeginPiece() {
    Room();
    m_piece = m_end;
    m_holds = true;
}

TextOut& TextOut::Append(std::string_view text) {
    while (!text.empty()) {
        const auto room = static_cast<std::size_t>(m_last - Room());
        const std::size_t count = std::min(text.size(), room);
        std::memcpy(m_end, text.data(), count);
        m_end += count;
        text.remove_prefix(count);
    }
    return *this;
}

TextOut& TextOut::Append(char c) {
    *Room() = c;
    ++m_end;
    return *this;
}

TextOut& TextOut::Fill(int count, char c) {
    while (count > 0) {
        const int some = std::min(count, kMaxNumberText);
        std::memset(Room(), c, static_cast<std::size_t>(some));
        m_end += some;
        count -= some;
    }
    return *this;
}

TextOut& TextOut::AppendWide(std::wstring_view text) {
    m_text.clear();
    Text::AppendUtf8(m_text, text);
    return Append(m_text);
}

TextOut& TextOut::AppendCard(std::wstring_view text) {
    m_text.clear();
    AppendCardText(m_text, text);
    return Append(m_text);
}

template <class Write>
TextOut& TextOut::Number(Write&& write) {
    m_end = write(Room());
    return *this;
}

TextOut& TextOut::Int(long long value, int width, int digits) {
    return Number([=](char* at) { return AppendInt(at, value, width, digits); });
}

TextOut& TextOut::Exp(double value, int width, int precision) {
    return Number([=](char* at) { return AppendExp(at, value, width, precision); });
}

TextOut& TextOut::Fixed(double value, int width, int precision) {
    return Number([=](char* at) { return AppendFixed(at, value, width, precision); });
}

TextOut& TextOut::SignedFixed(double value, int width, int precision) {
    return Number([=](char* at) { return AppendSignedFixed(at, value, width, precision); });
}

TextOut& TextOut::General(double value, int width, int precision) {
    return Number([=](char* at) { return AppendGeneral(at, value, width, precision); });
}

TextOut& TextOut::Padded(double value, int width, int precision) {
    return Number([=](char* at) { return AppendPadded(at, value, width, precision); });
}

TextOut& TextOut::Shortest(double value) {
    return Number([=](char* at) { return AppendShortest(at, value); });
}

TextOut& TextOut::IntField(long long value, int width) {
    return Number([=](char* at) { return AppendIntField(at, value, width); });
}

TextOut& TextOut::RealField(double value, int width, bool signSpace) {
    return Number([=](char* at) { return AppendRealField(at, value, width, signSpace); });
}

bool TextOut::Flush() {
    m_holds = false;
    HandOver();
    m_stream.flush();
    return Good();
}

}  // namespace Tevra

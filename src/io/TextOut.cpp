#include "io/TextOut.h"

#include <algorithm>
#include <cstddef>
#include <cstring>

#include "io/Text.h"
#include "platform/text/Utf8.h"

namespace Tevra {
namespace {

constexpr std::size_t kCapacity = std::size_t{64} * 1024;

}  // namespace

TextOut::TextOut(std::ostream& stream)
    : m_stream(stream),
      m_buffer(std::make_unique_for_overwrite<char[]>(kCapacity)),
      m_end(m_buffer.get()) {}

void TextOut::HandOver() {
    m_stream.write(m_buffer.get(), m_end - m_buffer.get());
    m_end = m_buffer.get();
}

char* TextOut::Room() {
    if (kCapacity - static_cast<std::size_t>(m_end - m_buffer.get()) < kMaxNumberText) {
        HandOver();
    }
    return m_end;
}

TextOut& TextOut::Append(std::string_view text) {
    while (!text.empty()) {
        const auto used = static_cast<std::size_t>(m_end - m_buffer.get());
        const std::size_t count = std::min(text.size(), kCapacity - used);
        std::memcpy(m_end, text.data(), count);
        m_end += count;
        text.remove_prefix(count);
        if (used + count == kCapacity) {
            HandOver();
        }
    }
    return *this;
}

TextOut& TextOut::Append(char c) {
    *Room() = c;
    ++m_end;
    return *this;
}

TextOut& TextOut::Fill(int count, char c) {
    for (int i = 0; i < count; ++i) {
        Append(c);
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
    HandOver();
    m_stream.flush();
    return Good();
}

}  // namespace Tevra

#include "legacy/VybRecord.h"

#include <charconv>
#include <cmath>
#include <limits>

#include "legacy/VybStream.h"
#include "platform/text/Ascii.h"

namespace Tevra {

namespace {

constexpr std::size_t kWord = 4;
constexpr int kMostInt = std::numeric_limits<int>::max();

constexpr bool IsControl(unsigned char c) {
    return c < 0x20 || (c >= 0x7F && c < 0xA0);
}

}  // namespace

std::wstring VybText(std::string_view bytes) {
    std::wstring text;
    for (const char byte : bytes.substr(0, bytes.find('\0'))) {
        const auto c = static_cast<unsigned char>(byte);
        text += IsControl(c) ? L' ' : static_cast<wchar_t>(c);
    }
    return std::wstring(Text::TrimRight(text));
}

double ThroughShortestText(float value) {
    std::array<char, 32> text{};
    const auto [end, error] = std::to_chars(text.data(), text.data() + text.size(), value);
    double result = 0.0;
    std::from_chars(text.data(), end, result);
    return error == std::errc() ? result : static_cast<double>(value);
}

std::span<const char> CVybRecord::Take(std::size_t length) {
    if (length > m_bytes.size()) {
        m_good = false;
        return {};
    }
    const std::span<const char> bytes = m_bytes.first(length);
    m_bytes = m_bytes.subspan(length);
    return bytes;
}

int CVybRecord::Int() {
    const std::span<const char> bytes = Take(kWord);
    return bytes.empty() ? 0 : CVybStream::Int(bytes.data(), m_swap);
}

int CVybRecord::Int(int least, int most) {
    const int value = Int();
    if (value >= least && value <= most) {
        return value;
    }
    m_good = false;
    return least;
}

int CVybRecord::Number() {
    return Int(1, kMostInt);
}

int CVybRecord::Reference() {
    return Int(0, kMostInt);
}

int CVybRecord::LoadAxis() {
    return Int(-1, kMostInt);
}

float CVybRecord::Single() {
    const std::span<const char> bytes = Take(kWord);
    const float value = bytes.empty() ? 0.0F : CVybStream::Real(bytes.data(), m_swap);
    if (std::isfinite(value)) {
        return value;
    }
    m_good = false;
    return 0.0F;
}

Vec3<double> CVybRecord::Vector() {
    const std::array<double, 3> values = Reals<3>();
    return {values[0], values[1], values[2]};
}

std::wstring CVybRecord::Text(std::size_t length) {
    const std::span<const char> bytes = Take(length);
    return VybText({bytes.data(), bytes.size()});
}

}  // namespace Tevra

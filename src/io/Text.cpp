#include "io/Text.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <ctime>

#include "platform/text/Utf8.h"
#include "platform/ui/HostServices.h"

namespace Tevra {

void AppendCardText(std::string& out, std::wstring_view text) {
    constexpr unsigned char kDelete = 0x7F;
    const auto start = static_cast<std::ptrdiff_t>(out.size());
    Text::AppendUtf8(out, text);
    std::replace_if(
        out.begin() + start, out.end(),
        [](char c) {
            const auto byte = static_cast<unsigned char>(c);
            return byte < ' ' || byte == kDelete;
        },
        ' ');
}

std::string CardText(std::wstring_view text) {
    std::string out;
    AppendCardText(out, text);
    return out;
}

std::string TimeText(const char* format) {
    const std::tm now = Host().LocalTime();
    std::array<char, 128> text{};
    const std::size_t length = std::strftime(text.data(), text.size(), format, &now);
    return {text.data(), length};
}

}  // namespace Tevra

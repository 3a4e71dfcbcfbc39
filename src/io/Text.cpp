#include "io/Text.h"

#include <array>
#include <cstddef>
#include <ctime>

#include "platform/text/Utf8.h"
#include "platform/ui/HostServices.h"

namespace Tevra {

void AppendCardText(std::string& out, std::wstring_view text) {
    const std::size_t start = out.size();
    Text::AppendUtf8(out, text);
    for (std::size_t i = start; i < out.size(); ++i) {
        if (out[i] == '\n' || out[i] == '\r') {
            out[i] = ' ';
        }
    }
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

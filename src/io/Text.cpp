#include "io/Text.h"

#include <cstddef>

#include "platform/text/Utf8.h"

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

}  // namespace Tevra

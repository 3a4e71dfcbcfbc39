#include "platform/text/Ascii.h"
#include "vynx/Format.h"
#include "vynx/formats/FormatRows.h"

namespace Vynx {

const std::vector<Format>& Formats() {
    static const std::vector<Format> kFormats{DampingFormat(), DocumentFormat()};
    return kFormats;
}

const Format* FindFormat(std::string_view id) {
    for (const Format& format : Formats()) {
        if (format.id == id) {
            return &format;
        }
    }
    return nullptr;
}

const Format* ReaderOf(const std::filesystem::path& file) {
    const std::string extension = file.extension().string();
    for (const Format& format : Formats()) {
        for (const std::string_view own : format.extensions) {
            if (format.read != nullptr &&
                Tevra::Text::EqualNoCase(own, std::string_view(extension))) {
                return &format;
            }
        }
    }
    return nullptr;
}

}  // namespace Vynx

#include "platform/text/Ascii.h"
#include "vynx/Format.h"
#include "vynx/formats/FormatRows.h"

namespace Vynx {

namespace {

/// The first format that will do and has the extension of a file; null when there is none.
template <class WillDo>
const Format* FormatOf(const std::filesystem::path& file, WillDo&& willDo) {
    const std::string extension = file.extension().string();
    for (const Format& format : Formats()) {
        for (const std::string_view own : format.extensions) {
            if (willDo(format) && Tevra::Text::EqualNoCase(own, std::string_view(extension))) {
                return &format;
            }
        }
    }
    return nullptr;
}

}  // namespace

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
    return FormatOf(file, [](const Format& format) { return format.read != nullptr; });
}

const Format* WriterOf(const std::filesystem::path& file) {
    return FormatOf(file, [](const Format& format) { return format.write != nullptr; });
}

}  // namespace Vynx

#include <algorithm>

#include "platform/text/Ascii.h"
#include "vynx/Format.h"
#include "vynx/formats/FormatRows.h"

namespace Vynx {

namespace {

bool HasExtension(const std::string& name, std::string_view extension) {
    return name.size() > extension.size() &&
           Tevra::Text::EqualNoCase(std::string_view(name).substr(name.size() - extension.size()),
                                    extension);
}

/// Of the formats that will do, the one that has the longest extension of a file; null when there
/// is none.
template <class WillDo>
const Format* FormatOf(const std::filesystem::path& file, WillDo&& willDo) {
    const std::string name = file.filename().string();
    const Format* found = nullptr;
    std::size_t length = 0;
    for (const Format& format : Formats()) {
        for (const std::string_view extension : format.extensions) {
            if (willDo(format) && extension.size() > length && HasExtension(name, extension)) {
                found = &format;
                length = extension.size();
            }
        }
    }
    return found;
}

}  // namespace

const std::vector<Format>& Formats() {
    static const std::vector<Format> kFormats{DampingFormat(), SqlFormat(),      NastranFormat(),
                                              LsDynaFormat(),  OpenseesFormat(), Sap2000Format(),
                                              QuorlFormat(),   DocumentFormat(), KeywordFormat(),
                                              LegacyFormat(),  ViewFormat()};
    return kFormats;
}

const Format* FindFormat(std::string_view id) {
    for (const Format& format : Formats()) {
        const auto& aliases = format.aliases;
        if (format.id == id || std::find(aliases.begin(), aliases.end(), id) != aliases.end()) {
            return &format;
        }
    }
    return nullptr;
}

std::string_view DirectionOf(const Format& format) {
    if (format.read != nullptr && format.write != nullptr) {
        return "read and written";
    }
    return format.read != nullptr ? "read" : "written";
}

const Format* ReaderOf(const std::filesystem::path& file) {
    return FormatOf(file, [](const Format& format) { return format.read != nullptr; });
}

const Format* WriterOf(const std::filesystem::path& file) {
    return FormatOf(file, [](const Format& format) { return format.write != nullptr; });
}

}  // namespace Vynx

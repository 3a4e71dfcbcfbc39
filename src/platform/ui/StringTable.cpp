#include "platform/ui/StringTable.h"

#include "platform/ui/HostServices.h"

namespace Tevra {
namespace {

struct TableText {
    int number;
    std::wstring_view text;
};

constexpr TableText kStringTable[] = {
    {kCannotOpenForWriting,
     L"Unable to open file\n%s\nfor writing.\n\nCheck that the file is not in use by another user\n"
     L"and that you have permission to write to the file."},
};

}  // namespace

std::wstring_view StringTableText(int number) {
    for (const TableText& entry : kStringTable) {
        if (entry.number == number) {
            return entry.text;
        }
    }
    return {};
}

std::wstring FileMessage(int number, std::wstring_view fileName) {
    constexpr std::wstring_view kPlace = L"%s";
    std::wstring text = Host().StringResource(number);
    if (text.empty()) {
        text = StringTableText(number);
    }
    if (const auto at = text.find(kPlace); at != std::wstring::npos) {
        text.replace(at, kPlace.size(), fileName);
    }
    return text;
}

}  // namespace Tevra

#include "legacy/VybSectionText.h"

#include <algorithm>
#include <array>

#include "io/NumberFormat.h"
#include "legacy/VybRecord.h"
#include "platform/text/Utf8.h"

namespace Tevra {

namespace {

/// What becomes of the text that a section was stored with.
enum class Stored { Kept, Explicit, Dimensions };

struct Shape {
    const wchar_t* prefix = L"";
    Stored stored = Stored::Kept;
};

/// By shape code, from 0.
constexpr std::array kShapes = {
    Shape{L"EXP", Stored::Explicit},
    Shape{L"CAT%UB%"},
    Shape{L"CAT%UC%"},
    Shape{L"CAT%UJ%"},
    Shape{L"CAT%BP%"},
    Shape{L"CAT%CHS%"},
    Shape{L"CAT%SHS%"},
    Shape{L"CAT%RHS%"},
    Shape{L"CAT%CH%"},
    Shape{L"CAT%EA%"},
    Shape{L"CAT%UA%"},
    Shape{L"CAT%CUB%"},
    Shape{L"CAT%CUC%"},
    Shape{L"CAT%CJ%"},
    Shape{L"CAT%TUB%"},
    Shape{L"CAT%TUC%"},
    Shape{L"STD%C%", Stored::Dimensions},
    Shape{L"STD%CHS%", Stored::Dimensions},
    Shape{L"STD%R%", Stored::Dimensions},
    Shape{L"STD%RHS%", Stored::Dimensions},
    Shape{L"STD%I%", Stored::Dimensions},
    Shape{L"EXP", Stored::Explicit},
    Shape{},
    Shape{},
    Shape{},
    Shape{},
    Shape{L"CAT%IPE%"},
    Shape{L"CAT%HE%"},
    Shape{L"CAT%HL%"},
    Shape{L"CAT%HX%"},
    Shape{L"CAT%EP%"},
    Shape{L"CAT%E-H%"},
    Shape{L"CAT%E-J%"},
    Shape{L"CAT%E-M%"},
    Shape{L"CAT%E-W%"},
    Shape{L"CAT%W%"},
    Shape{L"CAT%M%"},
    Shape{L"CAT%S%"},
    Shape{L"CAT%HP%"},
    Shape{L"CAT%C%"},
    Shape{L"CAT%MC%"},
    Shape{L"CAT%WT%"},
    Shape{L"CAT%MT%"},
    Shape{L"CAT%ST%"},
    Shape{L"CAT%L%"},
    Shape{L"CAT%LL%"},
    Shape{L"CAT%TS%"},
    Shape{L"CAT%P%"},
    Shape{L"CAT%PX%"},
    Shape{L"CAT%PXX%"},
    Shape{L"CAT%HD%"},
};

/// Stored dimensions begin with three characters that name the shape, and have an "x" between.
std::wstring Dimensions(const std::wstring& stored) {
    constexpr std::size_t kName = 3;
    std::wstring text = stored.substr(std::min(kName, stored.size()));
    std::replace(text.begin(), text.end(), L'x', L'%');
    return text;
}

/// "%A%Iyy%Izz%J%Ky%Kz".
std::wstring Properties(std::span<const float> properties) {
    std::string text;
    for (const float value : properties) {
        text += '%';
        AppendShortest(text, ThroughShortestText(value));
    }
    return Text::FromUtf8(text);
}

}  // namespace

std::wstring VybSectionText(int shape, const std::wstring& stored,
                            std::span<const float> properties) {
    const bool isKnown = shape >= 0 && shape < static_cast<int>(kShapes.size());
    const Shape found = isKnown ? kShapes[static_cast<std::size_t>(shape)] : Shape{};
    switch (found.stored) {
        case Stored::Explicit:
            return found.prefix + Properties(properties);
        case Stored::Dimensions:
            return found.prefix + Dimensions(stored);
        default:
            return found.prefix + stored;
    }
}

}  // namespace Tevra

#include "model/SectionShape.h"

#include <algorithm>
#include <span>
#include <vector>

#include "model/SectionText.h"
#include "platform/text/Ascii.h"

namespace Tevra::Data {

namespace {

using Words = std::span<const std::wstring_view>;

constexpr std::wstring_view kNoDescription = L"there is no description";
constexpr std::wstring_view kUnknownFamily = L"the description is none of STD, CAT, EXP, GEO";
constexpr std::wstring_view kUnknownUnit = L"the unit is none of mm, cm, m, in, ft";
constexpr std::wstring_view kUnknownShape = L"the shape is not known";
constexpr std::wstring_view kOddDimensions =
    L"the dimensions are not the positive numbers that the shape has";
constexpr std::wstring_view kUnknownProfile = L"the profile is not in the catalogue";
constexpr std::wstring_view kOddValues = L"the properties are not up to six numbers from 0 up";
constexpr std::wstring_view kOddPoints = L"the points do not make an outline";

SectionShape Problem(std::wstring_view problem) {
    SectionShape shape;
    shape.problem = problem;
    return shape;
}

bool ReadNumbers(Words words, std::vector<double>& values) {
    for (const std::wstring_view word : words) {
        if (!ReadNumber(word, values.emplace_back())) {
            return false;
        }
    }
    return true;
}

SectionShape ReadStandard(Words words, double unit, const CProfileCatalogue& /*catalogue*/) {
    SectionShape shape;
    shape.standard = words.empty() ? nullptr : FindStandardShape(words[0]);
    if (shape.standard == nullptr) {
        return Problem(kUnknownShape);
    }
    std::vector<double> values;
    const bool read = ReadNumbers(words.subspan(1), values);
    for (double& value : values) {
        value *= unit;
    }
    if (!read || !SetDimensions(*shape.standard, values, shape.size)) {
        return Problem(kOddDimensions);
    }
    shape.kind = SectionKind::Standard;
    return shape;
}

/// A profile goes by its group and name, or by its name alone.
SectionShape ReadProfile(Words words, double /*unit*/, const CProfileCatalogue& catalogue) {
    const Profile* profile = nullptr;
    if (words.size() == 1) {
        profile = catalogue.Find({}, words[0]);
    } else if (words.size() == 2 || words.size() == 3) {
        profile = catalogue.Find(words[0], words[1]);
    }
    if (profile == nullptr) {
        return Problem(kUnknownProfile);
    }
    SectionShape shape;
    shape.kind = SectionKind::Catalogue;
    shape.standard = profile->shape;
    shape.size = profile->size;
    shape.j = profile->j;
    return shape;
}

SectionShape ReadExplicit(Words words, double /*unit*/, const CProfileCatalogue& /*catalogue*/) {
    SectionShape shape;
    std::vector<double> values;
    if (words.size() > shape.values.size() || !ReadNumbers(words, values) ||
        std::any_of(values.begin(), values.end(), [](double value) { return value < 0.0; })) {
        return Problem(kOddValues);
    }
    std::copy(values.begin(), values.end(), shape.values.begin());
    shape.kind = SectionKind::Explicit;
    return shape;
}

/// The points "(y|z)(y|z)..." with nothing but blanks between; a last point that repeats the first
/// only closes the line. False when that leaves less than a triangle.
bool ReadContour(std::wstring_view text, double unit, Contour& contour) {
    for (text = Text::TrimLeft(text); !text.empty(); text = Text::TrimLeft(text)) {
        const auto bar = text.find(L'|');
        const auto close = text.find(L')');
        Vec2<double> at;
        if (text.front() != L'(' || bar == std::wstring_view::npos ||
            close == std::wstring_view::npos || bar > close ||
            !ReadNumber(text.substr(1, bar - 1), at.x) ||
            !ReadNumber(text.substr(bar + 1, close - bar - 1), at.y)) {
            return false;
        }
        contour.push_back({{at.x * unit, at.y * unit}, 0.0});
        text.remove_prefix(close + 1);
    }
    if (contour.size() > 1 && contour.front().at == contour.back().at) {
        contour.pop_back();
    }
    return contour.size() > 2;
}

SectionShape ReadOutline(Words words, double unit, const CProfileCatalogue& /*catalogue*/) {
    SectionShape shape;
    for (const std::wstring_view word : words) {
        const wchar_t kind = word.empty() ? L' ' : Text::ToUpper(word.front());
        Contour contour;
        if ((kind != L'P' && kind != L'V') || !ReadContour(word.substr(1), unit, contour)) {
            return Problem(kOddPoints);
        }
        if (kind == L'P') {
            shape.outline.AddMaterial(std::move(contour));
        } else {
            shape.outline.AddVoid(std::move(contour));
        }
    }
    if (shape.outline.IsEmpty()) {
        return Problem(kOddPoints);
    }
    shape.kind = SectionKind::Outline;
    return shape;
}

/// A family of descriptions, by the word that they begin with.
struct Family {
    std::wstring_view word;
    bool hasUnit;  ///< whether a unit may stand behind the word
    SectionShape (*read)(Words words, double unit, const CProfileCatalogue& catalogue);
};
constexpr Family kFamilies[] = {{L"STD", true, ReadStandard},
                                {L"CAT", false, ReadProfile},
                                {L"EXP", false, ReadExplicit},
                                {L"GEO", true, ReadOutline}};

/// The unit in parentheses behind a family's word, m; 0 when it can't be read.
double UnitBehind(std::wstring_view text, bool allowed) {
    if (text.empty()) {
        return LengthUnit(L"mm");
    }
    if (!allowed || text.size() < 2 || text.front() != L'(' || text.back() != L')') {
        return 0.0;
    }
    return LengthUnit(Text::Trim(text.substr(1, text.size() - 2)));
}

}  // namespace

SectionShape ReadSectionShape(std::wstring_view description, const CProfileCatalogue& catalogue) {
    std::vector<std::wstring_view> words = SplitAt(description, L'%');
    while (!words.empty() && words.back().empty()) {
        words.pop_back();
    }
    if (words.empty()) {
        return Problem(kNoDescription);
    }
    const auto parenthesis = std::min(words[0].find(L'('), words[0].size());
    const std::wstring_view word = Text::TrimRight(words[0].substr(0, parenthesis));
    for (const Family& family : kFamilies) {
        if (Text::EqualNoCase(family.word, word)) {
            const double unit = UnitBehind(words[0].substr(parenthesis), family.hasUnit);
            return unit > 0.0 ? family.read(Words(words).subspan(1), unit, catalogue)
                              : Problem(kUnknownUnit);
        }
    }
    return Problem(kUnknownFamily);
}

}  // namespace Tevra::Data

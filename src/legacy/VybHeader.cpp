#include "legacy/VybHeader.h"

#include <bit>
#include <cmath>
#include <string_view>

#include "legacy/VybRecord.h"
#include "legacy/VybStream.h"
#include "platform/text/Ascii.h"

namespace Tevra {

namespace {

constexpr std::size_t kVersion = 5;
constexpr int kFirstBlockWords = 53;
constexpr int kResultsFrom = 1'000'000;

/// Words of the second block that are used, by their number from 1.
enum Word : std::size_t {
    kStructType = 1,
    kRestraint = 2,  ///< to 7
    kMassOption = 8,
    kMassCase = 9,
    kMassDirection = 10,
    kMassScale = 11,
    kNumLoadCase = 12,
    kNumDirectory = 14,
    kResultsIndicator = 15,
    kUnitFlag = 16,
    kNumWord = 198
};

/// Texts of the second block stand behind these words.
struct TextGroup {
    std::size_t behindWord;
    std::size_t length;  ///< of each of its three texts
};
constexpr TextGroup kUnitGroup{60, 5};
constexpr TextGroup kFurtherGroup{120, 10};
constexpr int kTextsInGroup = 3;

bool ReadGroup(CVybStream& stream, std::size_t word, const TextGroup& group, std::string& texts) {
    if (word != group.behindWord) {
        return true;
    }
    std::string text;
    for (int i = 0; i < kTextsInGroup; ++i) {
        if (!stream.ReadText(group.length, text)) {
            return false;
        }
        texts += text;
    }
    return true;
}

}  // namespace

bool VybHeader::ReadTexts(CVybStream& stream) {
    constexpr std::size_t kOthers = 45;  // kind of file, job number, date, initials, time, release
    std::string ignored;
    return stream.ReadText(kVersion, version) && stream.ReadText(kOthers, ignored);
}

bool VybHeader::SkipFirstBlock(CVybStream& stream) {
    std::int32_t ignored = 0;
    for (int i = 0; i < kFirstBlockWords; ++i) {
        if (!stream.ReadInt(ignored)) {
            return false;
        }
    }
    return true;
}

bool VybHeader::ReadSecondBlock(CVybStream& stream) {
    std::array<std::int32_t, kNumWord + 1> words{};
    std::string ignored;
    for (std::size_t word = 1; word <= kNumWord; ++word) {
        if (!stream.ReadInt(words[word]) || !ReadGroup(stream, word, kUnitGroup, unitTexts) ||
            !ReadGroup(stream, word, kFurtherGroup, ignored)) {
            return false;
        }
    }
    structType = words[kStructType];
    for (const Direction d : kDirections) {
        // Stored is which directions are free.
        restraint.Set(d, words[kRestraint + static_cast<std::size_t>(d)] == 0);
    }
    massOption = words[kMassOption];
    massCase = words[kMassCase];
    massDirection = words[kMassDirection];
    massScale = std::bit_cast<float>(words[kMassScale]);
    numLoadCase = words[kNumLoadCase];
    numDirectory = words[kNumDirectory];
    resultsIndicator = words[kResultsIndicator];
    unitFlag = words[kUnitFlag];
    return true;
}

bool VybHeader::HasResults() const {
    return resultsIndicator >= kResultsFrom;
}

bool VybHeader::HasGoodMass() const {
    return massCase > 0 && massDirection >= 1 && massDirection <= 3 && std::isfinite(massScale);
}

CUnit VybHeader::Units() const {
    CUnit units;  // SI, as a file without units of its own has
    constexpr int kOwnUnits = 10;
    if (unitFlag % kOwnUnits == 0) {
        return units;
    }
    const std::string_view texts = unitTexts;
    constexpr std::size_t kLength = kUnitGroup.length;
    const auto text = [texts](std::size_t i) {
        return std::wstring(Text::Trim(VybText(texts.substr(i * kLength, kLength))));
    };
    const std::wstring length = text(0);
    const std::wstring force = text(1);
    const auto set = [&units](UnitKind kind, const std::wstring& unit) {
        units.SetUnitString(static_cast<int>(kind), unit);
    };
    set(UnitKind::Force, force);
    set(UnitKind::Length, length);
    set(UnitKind::Mass, text(2));
    set(UnitKind::Displacement, length);
    set(UnitKind::Stress, force + L"/" + length + L"\u00B2");
    return units;
}

}  // namespace Tevra

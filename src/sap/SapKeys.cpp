#include "sap/SapKeys.h"

#include <array>

#include "platform/text/Utf8.h"
#include "sap/SapContext.h"

namespace Tevra {

namespace {

constexpr std::array<std::string_view, 6> kKeys{"UX", "UY", "UZ", "RX", "RY", "RZ"};

std::array<std::string, 6> MakeJoinedKeys() {
    std::array<std::string, 6> joined;
    for (std::size_t i = 0; i < kKeys.size(); ++i) {
        const auto both = static_cast<wchar_t>(kKeys[i][0] + 256 * kKeys[i][1]);
        joined[i] = Text::ToUtf8({&both, 1});
    }
    return joined;
}

}  // namespace

std::string_view GlobalKey(Direction d) {
    return kKeys[static_cast<std::size_t>(d)];
}

const std::string& JoinedKey(Direction d) {
    static const std::array<std::string, 6> kJoined = MakeJoinedKeys();
    return kJoined[static_cast<std::size_t>(d)];
}

LocalKey LocalKeyOf(Direction d, bool isVertical) {
    constexpr std::array<std::size_t, 6> kPlaces{0, 2, 1, 3, 5, 4};
    const Direction reversed = isVertical ? Direction::Z : Direction::Y;
    return {kSapDofs[kPlaces[static_cast<std::size_t>(d)]], ToTrans(d) == reversed ? -1.0 : 1.0};
}

}  // namespace Tevra

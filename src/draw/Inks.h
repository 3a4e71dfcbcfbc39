#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

/// The inks of a drawing: how shapes are filled and drawn, by a number that stands in each shape.
namespace Tevra::Inks {

using Ink = std::uint8_t;

/// Each kind of face has inks from light to dark.
inline constexpr int kNumShade = 8;
inline constexpr Ink kPlate = 0;
inline constexpr Ink kSolid = kPlate + kNumShade;
inline constexpr Ink kPanel = kSolid + kNumShade;
/// Sections that have a colour of their own.
inline constexpr int kNumSection = 12;
inline constexpr Ink kSection = kPanel + kNumShade;
inline constexpr Ink kFurtherSection = kSection + kNumSection;
inline constexpr Ink kSpring = kFurtherSection + 1;
inline constexpr Ink kDamper = kSpring + 1;
inline constexpr Ink kLink = kDamper + 1;
inline constexpr Ink kCable = kLink + 1;
inline constexpr Ink kSpacer = kCable + 1;
inline constexpr Ink kDummy = kSpacer + 1;
inline constexpr Ink kArm = kDummy + 1;  ///< from a node to the end of an offset element
inline constexpr Ink kNode = kArm + 1;
inline constexpr int kNumInk = kNode + 1;

/// Name of the class of an ink in a style sheet.
std::string ClassOf(Ink ink);

/// How crowded a drawing is.
enum class Density {
    Few,
    Many,    ///< thin lines
    Thinned  ///< faces are drawn as wide as a spot, so that none leaves a gap that stands for many
};

/// The rules of all inks for a style sheet.
std::string StyleSheet(Density density);

}  // namespace Tevra::Inks

#pragma once

#include <array>
#include <span>
#include <string_view>

/// The rolled profiles that come with the library, as their makers publish them.
namespace Tevra::Data {

/// A profile in the units of its group. The properties are what is published: J is used, the others
/// are held against the outline.
struct ProfileRow {
    std::wstring_view name;           ///< without the prefix of its group
    std::array<double, 4> dimension;  ///< in the order of its shape's description, 0 past the end
    double rootRadius;
    double area;
    double iyy;
    double izz;
    double j;
};

struct ProfileGroup {
    std::wstring_view name;
    std::wstring_view shape;
    double lengthUnit;    ///< of dimensions and radii, m
    double propertyUnit;  ///< of the properties, by its powers, m
    /// Outer corners of hollow sections, as a multiple of the radius inside.
    double cornerRatio;
    std::span<const ProfileRow> rows;
};

std::span<const ProfileGroup> ShippedProfiles();

}  // namespace Tevra::Data

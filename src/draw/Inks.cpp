#include "draw/Inks.h"

#include "io/NumberFormat.h"

namespace Tevra::Inks {

namespace {

using Colour = std::array<int, 3>;  ///< red, green, blue, to 255

/// A kind of face: its first ink, and its colours in full light and in shade.
struct FaceRow {
    Ink first;
    Colour light;
    Colour dark;
    std::string_view edge;
    std::string_view opacity;
};
constexpr FaceRow kFaces[] = {
    {kPlate, {229, 238, 246}, {166, 188, 208}, "#8fa3b5", "0.85"},
    {kSolid, {245, 236, 217}, {201, 180, 140}, "#a08c62", "1"},
    {kPanel, {240, 244, 232}, {206, 217, 190}, "#a9b596", "0.55"},
};

struct LineRow {
    Ink ink;
    std::string_view colour;
    std::string_view more;
};
constexpr LineRow kLines[] = {
    {kSection + 0, "#1f5fa8", ""},
    {kSection + 1, "#2a8c4a", ""},
    {kSection + 2, "#8e44ad", ""},
    {kSection + 3, "#c79a00", ""},
    {kSection + 4, "#0f8b8d", ""},
    {kSection + 5, "#6d4c41", ""},
    {kSection + 6, "#ef7f1a", ""},
    {kSection + 7, "#14213d", ""},
    {kSection + 8, "#7a8b00", ""},
    {kSection + 9, "#00a0c6", ""},
    {kSection + 10, "#b0669a", ""},
    {kSection + 11, "#4a6fe3", ""},
    {kFurtherSection, "#66707a", ""},
    {kSpring, "#00796b", ";stroke-linecap:butt;stroke-dasharray:4 2.5"},
    {kDamper, "#7b1fa2", ";stroke-linecap:butt;stroke-dasharray:8 2.5 2 2.5"},
    {kLink, "#444444", ";stroke-linecap:butt;stroke-dasharray:6 3"},
    {kCable, "#a01818", ";stroke-linecap:butt;stroke-dasharray:12 3"},
    {kSpacer, "#5d6d7e", ";stroke-linecap:butt;stroke-dasharray:2 2.5"},
    {kDummy, "#9aa3ab", ";stroke-linecap:butt;stroke-dasharray:4 3"},
    {kArm, "#66707a", ";stroke-width:0.8"},
};

void AppendColour(std::string& out, const Colour& colour) {
    constexpr std::string_view kDigits = "0123456789abcdef";
    out += '#';
    for (const int part : colour) {
        out += kDigits[static_cast<std::size_t>(part / 16)];
        out += kDigits[static_cast<std::size_t>(part % 16)];
    }
}

/// The colour of a shade, from 0 in full light.
Colour Mix(const FaceRow& row, int shade) {
    Colour colour{};
    for (std::size_t i = 0; i < colour.size(); ++i) {
        colour[i] = row.light[i] + (row.dark[i] - row.light[i]) * shade / (kNumShade - 1);
    }
    return colour;
}

void AppendFaceRules(std::string& sheet, const FaceRow& row, Density density) {
    for (int shade = 0; shade < kNumShade; ++shade) {
        sheet += '.' + ClassOf(static_cast<Ink>(row.first + shade)) + "{fill:";
        AppendColour(sheet, Mix(row, shade));
        sheet += ";stroke:";
        if (density == Density::Thinned) {
            AppendColour(sheet, Mix(row, shade));
            sheet += ";stroke-width:2.5}\n";
        } else {
            sheet.append(row.edge).append(density == Density::Few ? ";stroke-width:0.6"
                                                                  : ";stroke-width:0.3");
            sheet.append(";fill-opacity:").append(row.opacity);
            sheet += "}\n";
        }
    }
}

}  // namespace

std::string ClassOf(Ink ink) {
    std::string name = "i";
    AppendInt(name, ink);
    return name;
}

std::string StyleSheet(Density density) {
    std::string sheet;
    for (const FaceRow& row : kFaces) {
        AppendFaceRules(sheet, row, density);
    }
    for (const LineRow& row : kLines) {
        sheet += '.' + ClassOf(row.ink) + "{fill:none;stroke:";
        sheet.append(row.colour)
            .append(density == Density::Few ? ";stroke-width:2" : ";stroke-width:0.9");
        sheet.append(row.more).append("}\n");
    }
    sheet += '.' + ClassOf(kNode) + "{fill:#22303c;stroke:none}\n";
    return sheet;
}

}  // namespace Tevra::Inks

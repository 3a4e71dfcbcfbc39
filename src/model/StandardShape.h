#pragma once

#include <array>
#include <span>
#include <string_view>

#include "model/SectionOutline.h"

/// The shapes that section descriptions name by a word, as one table: what a shape is called, how
/// its dimensions are ordered, and how outline and stiffness follow from them.
namespace Tevra::Data {

/// Classes of sections, as the formats know them: bits 0 to 3, 10 and 12 of the shape flags.
enum class SectionClass : int {
    None = 0,
    I = 1,
    CatalogueI = 2,
    Channel = 3,
    Tee = 4,
    Angle = 5,
    Other = 6,
    Tube = 7,
    Round = 8,
    Box = 9,
    Rectangle = 10,
    UnequalI = 11,
    Trapezium = 12,
    CastellatedTee = 1025,
    Cruciform = 1036
};
inline constexpr int kSectionClassMask = 0x140F;

/// Codes of standard shapes: bits 4 to 8 of the shape flags.
enum class StandardCode : int {
    None = 0,
    Rectangular = 1,
    Circular = 2,
    I = 3,
    Channel = 4,
    Tee = 5,
    Angle = 6,
    UnequalI = 11
};
inline constexpr int kStandardCodeShift = 4;
inline constexpr int kStandardCodeMask = 0x1F;

/// Dimensions of a section, m, by their index: d0 depth or diameter, d1 width or width of the top
/// flange, d2 web or wall thickness, d3 thickness of the (top) flange, d4 width and d6 thickness of
/// the bottom flange of an I. Rolled shapes have rounded corners too.
struct ShapeSize {
    std::array<double, 7> d{};
    double rootRadius = 0.0;    ///< of inner corners: between web and flange, inside a hollow shape
    double cornerRadius = 0.0;  ///< of the outer corners of a hollow shape

    double Depth() const { return d[0]; }
    double Width() const { return d[1]; }
    double Web() const { return d[2]; }
    double Flange() const { return d[3]; }
    double BottomWidth() const { return d[4]; }
    double BottomFlange() const { return d[6]; }
};

/// Shear areas over area for forces along the element's y and z.
struct ShearFactors {
    double y = 0.0;
    double z = 0.0;
};

/// A shape of the table.
struct StandardShape {
    std::wstring_view word;
    SectionClass shapeClass;
    SectionClass catalogueClass;  ///< of a rolled profile of this shape
    StandardCode code;
    std::string_view order;  ///< indices of the dimensions in the order of the text: "0132"
    /// The outline about the middle of its box; empty when the dimensions do not make a section.
    SectionOutline (*outline)(const ShapeSize& size);
    /// The torsion constant J, m4.
    double (*torsion)(const ShapeSize& size);
    ShearFactors (*shear)(const ShapeSize& size, double area);
};

/// The shape with this word, in either case; null when there is none.
const StandardShape* FindStandardShape(std::wstring_view word);

/// Puts the dimensions of a text, in m, in their places. False when their number does not fit or
/// one of them is not a positive number.
bool SetDimensions(const StandardShape& shape, std::span<const double> values, ShapeSize& size);

}  // namespace Tevra::Data

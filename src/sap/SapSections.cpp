#include <algorithm>

#include "model/SecGeom.h"
#include "sap/SapContext.h"
#include "sap/SapFile.h"

// Frame sections: material, shape and properties.

namespace Tevra {

namespace {

using Data::SectionClass;
using Data::StandardCode;

/// Shapes of the target and the dimensions that it asks for: t3, t2, tf, tw and, of I shapes and
/// angles, the width and thickness of the bottom flange.
struct ShapeItem {
    SectionClass shapeClass;
    StandardCode code;
    std::string_view key;
    std::string_view dimensions;  ///< their indices
};
constexpr ShapeItem kAngle{SectionClass::Angle, StandardCode::Angle, "SH=L T=", "013213"};
constexpr ShapeItem kShapes[] = {
    {SectionClass::Rectangle, StandardCode::Rectangular, "SH=R T=", "01"},
    {SectionClass::Box, StandardCode::Rectangular, "SH=B T=", "0132"},
    {SectionClass::Round, StandardCode::Circular, "SH=P T=", "0"},
    {SectionClass::Tube, StandardCode::Circular, " SH=P T=", "02"},  // kept: the blank before
    {SectionClass::I, StandardCode::I, "SH=I T=", "013213"},
    {SectionClass::CatalogueI, StandardCode::I, "SH=I T=", "013213"},
    {SectionClass::UnequalI, StandardCode::UnequalI, "SH=I T=", "013246"},
    {SectionClass::Channel, StandardCode::Channel, "SH=C T=", "0132"},
    {SectionClass::Tee, StandardCode::Tee, "SH=T T=", "0132"},
    kAngle,
};

/// Codes of rectangles and rounds have two shapes each, which their classes tell apart.
bool IsByCode(const ShapeItem& item, const Data::CSecGeom& geometry) {
    const bool hasTwo =
        item.code == StandardCode::Rectangular || item.code == StandardCode::Circular;
    return item.code == geometry.ShapeCode() &&
           (!hasTwo || item.shapeClass == geometry.ShapeClass());
}

const ShapeItem* ShapeOf(const Data::CSecGeom& geometry, int mode) {
    const auto* const found =
        std::find_if(std::begin(kShapes), std::end(kShapes), [&](const ShapeItem& item) {
            return mode == CSapFile::kByStandardCode ? IsByCode(item, geometry)
                                                     : item.shapeClass == geometry.ShapeClass();
        });
    return found != std::end(kShapes) ? found : nullptr;
}

void AddShapeItem(RecordText& line, const ShapeItem& item, const Data::CSecGeom& geometry) {
    constexpr double kMiddle = 0.5;
    line.Append(item.key);
    for (const char index : item.dimensions) {
        const auto dimension = static_cast<Data::CSecGeom::Prop>(index - '0');
        line.Padded(geometry.Property(kMiddle, dimension)).Append(',');
    }
    line.Cut(',').Append(' ');
}

}  // namespace

void CSapFile::AddShape(RecordText& line, const Data::CSection& section) const {
    const int mode = SectionOutputMode();
    if (mode == kGeneral) {
        line.Append("SH=G ");
        return;
    }
    if (mode != kByStandardCode && mode != kByShapeClass) {
        return;
    }
    const Data::CSecGeom& geometry = section.Component(1).Geometry();
    const ShapeItem* const item = ShapeOf(geometry, mode);
    if (item == nullptr) {
        return;
    }
    AddShapeItem(line, *item, geometry);
    if (item->shapeClass == SectionClass::Tee) {
        AddShapeItem(line, kAngle, geometry);  // kept: a tee is an angle too
    }
}

/// Second moments and shear areas in the target's order: about its axis 3, the host's y, first;
/// along its axis 2, the host's z, first.
bool CSapFile::WriteFrameSections(SapContext& c) {
    if (m_model->NumSection() == 0) {
        return true;
    }
    c.out.Append("FRAME SECTION\n");
    for (const int number : m_model->SectionTable().Numbers()) {
        const Data::CSection& section = m_model->Section(number);
        const SectionProperties p = m_model->SectionProp(number, 0, 0.5, true);
        RecordText& line = c.line;
        line.Append("  NAME=").Int(number, kNameDigits).Append(" TYPE=PRISM ");
        AddMaterial(line, section.Component(1).Material(), c.materials.Prop1D(number));
        line.Append(' ');
        AddShape(line, section);
        line.Append("A=").Padded(p.area).Append(" J=").Padded(p.j);
        line.Append(" I=").Padded(p.iyy).Append(',').Padded(p.izz);
        line.Append(" AS=").Padded(p.avz).Append(',').Padded(p.avy);
        line.Append("  MPL=0");
        End(c, L"Section", number);
    }
    return true;
}

}  // namespace Tevra

#include "model/StandardShape.h"

#include <algorithm>
#include <cmath>

#include "model/StandardOutlines.h"
#include "model/StandardStiffness.h"
#include "platform/text/Ascii.h"

namespace Tevra::Data {

namespace {

using SC = SectionClass;
using Code = StandardCode;

constexpr StandardShape kShapes[] = {
    {L"R", SC::Rectangle, SC::Rectangle, Code::Rectangular, "01", RectangleOutline,
     RectangleTorsion, SolidShear},
    {L"RHS", SC::Box, SC::Box, Code::Rectangular, "0123", BoxOutline, BoxTorsion, BoxShear},
    {L"C", SC::Round, SC::Round, Code::Circular, "0", RoundOutline, RoundTorsion, RoundShear},
    {L"CHS", SC::Tube, SC::Tube, Code::Circular, "02", TubeOutline, TubeTorsion, TubeShear},
    {L"I", SC::I, SC::CatalogueI, Code::I, "0123", IOutline, ITorsion, IShear},
    {L"CH", SC::Channel, SC::Channel, Code::Channel, "0123", ChannelOutline, ChannelTorsion,
     IShear},
    {L"T", SC::Tee, SC::Tee, Code::Tee, "0123", TeeOutline, TeeTorsion, TeeShear},
    {L"A", SC::Angle, SC::Angle, Code::Angle, "0123", AngleOutline, TeeTorsion, TeeShear},
    {L"GI", SC::UnequalI, SC::UnequalI, Code::UnequalI, "014236", UnequalIOutline, UnequalITorsion,
     UnequalIShear},
    {L"Z", SC::Other, SC::Other, Code::None, "0123", ZedOutline, ZedTorsion, IShear},
    {L"TR", SC::Trapezium, SC::Trapezium, Code::None, "012", TrapeziumOutline, TrapeziumTorsion,
     SolidShear},
    {L"CB", SC::CastellatedTee, SC::CastellatedTee, Code::None, "0123", InvertedTeeOutline,
     TeeTorsion, TeeShear},
    {L"X", SC::Cruciform, SC::Cruciform, Code::None, "0123", CrossOutline, CrossTorsion, TeeShear},
};

/// The dimensions of the bottom flange that a symmetric I repeats.
void RepeatFlanges(const StandardShape& shape, ShapeSize& size) {
    if (shape.shapeClass == SC::I) {
        size.d[4] = size.d[1];
        size.d[6] = size.d[3];
    }
}

}  // namespace

const StandardShape* FindStandardShape(std::wstring_view word) {
    const auto* const found = std::find_if(
        std::begin(kShapes), std::end(kShapes),
        [word](const StandardShape& shape) { return Text::EqualNoCase(shape.word, word); });
    return found != std::end(kShapes) ? found : nullptr;
}

bool SetDimensions(const StandardShape& shape, std::span<const double> values, ShapeSize& size) {
    const bool fit = values.size() == shape.order.size() &&
                     std::all_of(values.begin(), values.end(),
                                 [](double value) { return std::isfinite(value) && value > 0.0; });
    for (std::size_t i = 0; fit && i < values.size(); ++i) {
        size.d[static_cast<std::size_t>(shape.order[i] - '0')] = values[i];
    }
    RepeatFlanges(shape, size);
    return fit;
}

}  // namespace Tevra::Data

#pragma once

#include "model/StandardShape.h"

/// Outlines of the standard shapes about the middle of their boxes, depth along z, width along y.
/// Each is empty when its dimensions do not make a section: walls that meet or leave nothing
/// between them, a web wider than its flange, radii without room.
namespace Tevra::Data {

SectionOutline RectangleOutline(const ShapeSize& size);
SectionOutline BoxOutline(const ShapeSize& size);
SectionOutline RoundOutline(const ShapeSize& size);
SectionOutline TubeOutline(const ShapeSize& size);
SectionOutline IOutline(const ShapeSize& size);
SectionOutline UnequalIOutline(const ShapeSize& size);
/// Web on the side of -y, flanges towards +y.
SectionOutline ChannelOutline(const ShapeSize& size);
/// Flange at the top (+z).
SectionOutline TeeOutline(const ShapeSize& size);
/// The lower tee of a castellated I at an opening: flange at the bottom (-z).
SectionOutline InvertedTeeOutline(const ShapeSize& size);
/// Heel at -y and -z; the web is the leg along z, the flange the leg along y.
SectionOutline AngleOutline(const ShapeSize& size);
/// Web in the middle, top flange towards +y, bottom flange towards -y; the width is that of one
/// flange, the web included.
SectionOutline ZedOutline(const ShapeSize& size);
/// Top width d1, bottom width d2.
SectionOutline TrapeziumOutline(const ShapeSize& size);
/// Web (depth) and flange (width) that cross in their middles.
SectionOutline CrossOutline(const ShapeSize& size);

}  // namespace Tevra::Data

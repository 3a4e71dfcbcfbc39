#pragma once

#include "draw/LoadArrows.h"
#include "draw/SupportMarks.h"
#include "draw/SvgOut.h"

/// Symbols on the paper, in its units.
namespace Tevra {

/// Draws the symbol of a support at a node; `size` is its height.
void DrawSupport(CSvgOut& svg, const SupportMark& mark, const Vec2<double>& node, double size);

/// Draws an arrow with its head at `tip`. One that is too short to be seen is drawn end on: a dot
/// in a circle for one towards the viewer, a cross in a circle for one away. Moments have two
/// heads.
struct ArrowLine {
    Vec2<double> tail;
    Vec2<double> tip;
    bool isTowards = false;
    bool isMoment = false;
};
void DrawArrow(CSvgOut& svg, const ArrowLine& arrow);

/// The style sheet of groups of symbols: "support", "load".
std::string_view MarkStyleSheet();

}  // namespace Tevra

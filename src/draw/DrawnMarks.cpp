#include "draw/DrawnMarks.h"

#include <array>
#include <cmath>

namespace Tevra {

namespace {

/// Arrows shorter than this are drawn end on.
constexpr double kLeastArrow = 5.0;
constexpr double kHeadLength = 6.5;
constexpr double kHeadWidth = 4.6;

/// A place on the paper and two directions from it, to which symbols are drawn.
struct Pen {
    CSvgOut& svg;
    Vec2<double> origin;
    Vec2<double> down;  ///< to the ground, at the size of the symbol
    Vec2<double> side;

    Vec2<double> At(double across, double below) const {
        return {origin.x + side.x * across + down.x * below,
                origin.y + side.y * across + down.y * below};
    }
    template <std::size_t N>
    void Path(const std::array<Vec2<double>, N>& places, bool isClosed) const {
        std::array<Vec2<double>, N> points;
        for (std::size_t k = 0; k < N; ++k) {
            points[k] = At(places[k].x, places[k].y);
        }
        svg.Path(points, isClosed);
    }
    void Ground(double below) const { svg.Line(At(-0.95, below), At(0.95, below)); }
};

void DrawTriangle(const Pen& pen) {
    pen.Path<3>({{{0.0, 0.0}, {0.6, 1.0}, {-0.6, 1.0}}}, true);
}

void DrawSpring(const Pen& pen) {
    pen.Path<7>({{{0.0, 0.0},
                  {0.0, 0.15},
                  {0.45, 0.3},
                  {-0.45, 0.6},
                  {0.45, 0.9},
                  {0.0, 1.05},
                  {0.0, 1.2}}},
                false);
    pen.Ground(1.2);
}

/// A pin on a line along which it slides.
void DrawGuided(const Pen& pen, const Vec2<double>& slide, double size) {
    DrawTriangle(pen);
    const Vec2<double> middle = pen.At(0.0, 1.35);
    const double reach = 1.1 * size;
    pen.svg.Line({middle.x - slide.x * reach, middle.y - slide.y * reach},
                 {middle.x + slide.x * reach, middle.y + slide.y * reach});
}

void DrawHead(CSvgOut& svg, const Vec2<double>& tip, const Vec2<double>& along) {
    const Vec2<double> base{tip.x - along.x * kHeadLength, tip.y - along.y * kHeadLength};
    const double half = 0.5 * kHeadWidth;
    const std::array<Vec2<double>, 3> points{
        tip, Vec2<double>{base.x - along.y * half, base.y + along.x * half},
        Vec2<double>{base.x + along.y * half, base.y - along.x * half}};
    svg.Path(points, true);
}

void DrawEndOn(CSvgOut& svg, const Vec2<double>& at, bool isTowards) {
    constexpr double kRadius = 3.6;
    const double reach = kRadius * std::sqrt(0.5);
    svg.BeginGroup("ring");
    svg.Circle(at, kRadius);
    if (!isTowards) {
        svg.Line({at.x - reach, at.y - reach}, {at.x + reach, at.y + reach});
        svg.Line({at.x - reach, at.y + reach}, {at.x + reach, at.y - reach});
    }
    svg.EndGroup();
    if (isTowards) {
        svg.Circle(at, 1.3);
    }
}

}  // namespace

void DrawSupport(CSvgOut& svg, const SupportMark& mark, const Vec2<double>& node, double size) {
    const Vec2<double> down{mark.ground.x * size, mark.ground.y * size};
    const Pen pen{svg, node, down, {-down.y, down.x}};
    switch (mark.kind) {
        case SupportKind::Fixed:
            pen.Path<4>({{{-0.6, -0.1}, {0.6, -0.1}, {0.6, 1.0}, {-0.6, 1.0}}}, true);
            pen.Ground(1.0);
            break;
        case SupportKind::Pinned:
            DrawTriangle(pen);
            pen.Ground(1.0);
            break;
        case SupportKind::Guided:
            DrawGuided(pen, mark.slide, size);
            break;
        case SupportKind::Roller:
            svg.Circle(pen.At(0.0, 0.45), 0.45 * size);
            pen.Ground(0.95);
            break;
        case SupportKind::Turning:
            pen.Path<4>({{{-0.6, 0.0}, {0.0, -0.6}, {0.6, 0.0}, {0.0, 0.6}}}, true);
            break;
        case SupportKind::Across:
            svg.Circle(node, 0.45 * size);
            break;
        case SupportKind::Spring:
            DrawSpring(pen);
            break;
    }
}

void DrawArrow(CSvgOut& svg, const ArrowLine& arrow) {
    const Vec2<double> shaft{arrow.tip.x - arrow.tail.x, arrow.tip.y - arrow.tail.y};
    const double length = std::hypot(shaft.x, shaft.y);
    if (!(length >= kLeastArrow)) {
        DrawEndOn(svg, arrow.tip, arrow.isTowards);
        return;
    }
    const Vec2<double> along{shaft.x / length, shaft.y / length};
    svg.Line(arrow.tail, {arrow.tip.x - along.x * 3.0, arrow.tip.y - along.y * 3.0});
    DrawHead(svg, arrow.tip, along);
    if (arrow.isMoment) {
        const double back = 0.8 * kHeadLength;
        DrawHead(svg, {arrow.tip.x - along.x * back, arrow.tip.y - along.y * back}, along);
    }
}

std::string_view MarkStyleSheet() {
    return ".support{fill:#ffe08a;stroke:#22303c;stroke-width:1.1}\n"
           ".spring{fill:none}\n"
           ".load{fill:#d0021b;stroke:#d0021b;stroke-width:1}\n"
           ".load .ring{fill:#fff}\n"
           ".over{fill:none;stroke:#d0021b;stroke-width:0.8}\n";
}

}  // namespace Tevra

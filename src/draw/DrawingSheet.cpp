#include "draw/DrawingSheet.h"

#include <algorithm>
#include <cmath>

#include "model/VynData.h"

namespace Tevra {

namespace {

/// Shapes beyond which lines are thin.
constexpr std::size_t kManyShapes = 5000;
/// Nodes of a model that are still told apart as dots.
constexpr int kMostDots = 3000;
constexpr double kDotRadius = 1.6;
/// Room round the model, for arrows and without them.
constexpr double kLoadMargin = 62.0;
constexpr double kPlainMargin = 28.0;
/// Longest and shortest arrow.
constexpr double kLongestArrow = 56.0;
constexpr double kShortestArrow = 13.0;
/// Least distance between the arrows along a line.
constexpr double kArrowSpacing = 22.0;
/// Distance of an arrow from the line that it points along.
constexpr double kBeside = 7.0;
/// Of many supports the symbols are smaller and spots larger.
constexpr std::size_t kFewSupports = 60;
constexpr double kSmallSpot = 2.0;
constexpr std::size_t kManySupports = 300;
constexpr double kMiddleSpot = 6.0;
constexpr double kLargeSpot = 16.0;
/// A depth before everything.
constexpr double kOnTop = 1e200;
/// Share of the size of the drawing by which a support lies before the solids that it holds.
constexpr double kSupportBefore = 0.04;

double SupportSpot(std::size_t count) {
    if (count <= kFewSupports) {
        return kSmallSpot;
    }
    return count <= kManySupports ? kMiddleSpot : kLargeSpot;
}

/// Spots of a drawing that is thinned out.
constexpr double kSpot = 2.0;

/// Kind of a shape for thinning: what it is, its size in powers of two, of a line its direction. So
/// a large face never gives way to a small one.
std::uint32_t ThinningKind(const Shape& shape, double scale) {
    constexpr int kDirections = 4;
    DrawingExtent extent;
    for (std::size_t k = 0; k < shape.numPoint; ++k) {
        extent.Add(shape.points[k]);
    }
    const double size = std::max(extent.Width(), extent.Height()) * scale / kSpot;
    const int power = size > 1.0 ? std::ilogb(size) + 1 : 0;
    int direction = 0;
    if (shape.kind == ShapeKind::Line) {
        const double angle = std::atan2(shape.points[1].y - shape.points[0].y,
                                        shape.points[1].x - shape.points[0].x);
        direction = static_cast<int>(std::lround(angle / M_PI * kDirections)) & (kDirections - 1);
    }
    return static_cast<std::uint32_t>((power * kDirections + direction) * 3 +
                                      static_cast<int>(shape.kind));
}

Vec2<double> CentreOf(const Shape& shape) {
    Vec2<double> sum;
    for (std::size_t k = 0; k < shape.numPoint; ++k) {
        sum = {sum.x + shape.points[k].x, sum.y + shape.points[k].y};
    }
    return {sum.x / shape.numPoint, sum.y / shape.numPoint};
}

}  // namespace

CDrawingSheet::CDrawingSheet(const CVynData& model, DrawingWish wish)
    : m_model(model),
      m_wish(std::move(wish)),
      m_axes(AxesOf(m_wish.view)),
      m_scene(model, m_axes, kMostDots),
      m_frame(m_scene.Extent(), m_wish.loadCase > 0 ? kLoadMargin : kPlainMargin),
      m_loads(model, m_scene, m_axes, m_wish.loadCase, kArrowSpacing / m_frame.Scale()) {
    ThinOut();
    PlaceSupports();
    FindRemarks();
    MakeLegend();
}

/// The nearest shape of its kind at a spot stands for all.
void CDrawingSheet::ThinOut() {
    const std::vector<Shape>& shapes = m_scene.Shapes();
    if (shapes.size() <= m_wish.mostShapes) {
        return;
    }
    m_isLeftOut.resize(shapes.size());
    CSpotFilter spots(kSpot);
    for (std::size_t i = shapes.size(); i-- > 0;) {
        m_isLeftOut[i] = !spots.Passes(m_frame.Place(CentreOf(shapes[i])),
                                       ThinningKind(shapes[i], m_frame.Scale()));
    }
}

/// At each spot the support that holds most is drawn. Solids hide supports behind them; nothing
/// else does.
void CDrawingSheet::PlaceSupports() {
    m_supports = FindSupports(m_model, m_scene, m_wish.view);
    std::stable_sort(
        m_supports.begin(), m_supports.end(),
        [](const PlacedSupport& a, const PlacedSupport& b) { return a.mark.kind < b.mark.kind; });
    CSpotFilter spots(SupportSpot(m_supports.size()));
    std::erase_if(m_supports, [this, &spots](const PlacedSupport& support) {
        return !spots.Passes(m_frame.Place({support.place.x, support.place.y}), 0);
    });
    const DrawingExtent& extent = m_scene.Extent();
    const double before = kSupportBefore * std::max(extent.Width(), extent.Height());
    for (PlacedSupport& support : m_supports) {
        support.place.z += m_scene.HasSolids() ? before : kOnTop;
    }
    std::stable_sort(
        m_supports.begin(), m_supports.end(),
        [](const PlacedSupport& a, const PlacedSupport& b) { return a.place.z < b.place.z; });
}

Inks::Density CDrawingSheet::Density() const {
    if (IsThinned()) {
        return Inks::Density::Thinned;
    }
    return m_scene.Shapes().size() > kManyShapes ? Inks::Density::Many : Inks::Density::Few;
}

double CDrawingSheet::SupportSize() const {
    return m_supports.size() <= kFewSupports ? 12.0 : 8.0;
}

void CDrawingSheet::FindRemarks() {
    if (m_scene.NumLostElement() > 0) {
        m_remarks.push_back(std::to_wstring(m_scene.NumLostElement()) +
                            L" elements without a place");
    }
    if (!m_scene.HasDots()) {
        m_remarks.push_back(std::to_wstring(m_scene.Nodes().Count()) + L" nodes are not drawn");
    }
    if (IsThinned()) {
        const auto drawn = std::count(m_isLeftOut.begin(), m_isLeftOut.end(), false);
        m_remarks.push_back(std::to_wstring(drawn) + L" of " + std::to_wstring(m_isLeftOut.size()) +
                            L" shapes are drawn");
    }
    if (m_loads.NumUndrawn() > 0) {
        m_remarks.push_back(std::to_wstring(m_loads.NumUndrawn()) + L" loads have no arrows");
    }
}

void CDrawingSheet::Write(TextOut& out) const {
    CSvgOut svg(out);
    const double height = std::max(m_frame.Height(), LegendBottom());
    svg.BeginFile(CPaperFrame::kWidth, height);
    svg.Style(
        "text{font-family:\"Liberation Sans\",\"DejaVu Sans\",Helvetica,Arial,sans-serif;"
        "fill:#22303c}\n"
        ".title{font-size:20px;font-weight:bold}\n"
        ".sub{font-size:13px;fill:#5d6d7e}\n"
        ".name{font-size:12px}\n"
        ".small{font-size:11px;fill:#5d6d7e}\n"
        ".bar{fill:#22303c;stroke:#22303c;stroke-width:1.2}\n"
        "svg{stroke-linejoin:round;stroke-linecap:round}\n");
    svg.Style(Inks::StyleSheet(Density()));
    svg.Style(MarkStyleSheet());
    svg.Background(CPaperFrame::kWidth, height);
    WriteShapes(svg);
    WriteLoads(svg);
    WriteTitle(svg);
    WriteLegend(svg);
    WriteFoot(svg);
    svg.EndFile();
}

void CDrawingSheet::WriteTitle(CSvgOut& svg) const {
    constexpr std::size_t kMostTitle = 80;
    constexpr std::size_t kMostSub = 130;
    svg.Text({CPaperFrame::kEdge, 34.0}, "title", m_wish.title, kMostTitle);
    svg.Text({CPaperFrame::kEdge, 54.0}, "sub", m_wish.subtitle, kMostSub);
}

/// Shapes of an ink that follow one another are a group; supports stand between them.
void CDrawingSheet::WriteShapes(CSvgOut& svg) const {
    constexpr int kNone = -1;
    int open = kNone;
    std::size_t support = 0;
    const std::vector<Shape>& shapes = m_scene.Shapes();
    for (std::size_t i = 0; i < shapes.size(); ++i) {
        if (IsThinned() && m_isLeftOut[i]) {
            continue;
        }
        const bool isSupportNext =
            support < m_supports.size() && m_supports[support].place.z < shapes[i].depth;
        if (open != kNone && (isSupportNext || open != shapes[i].ink)) {
            svg.EndGroup();
            open = kNone;
        }
        support = WriteSupports(svg, support, shapes[i].depth);
        if (open == kNone) {
            open = shapes[i].ink;
            svg.BeginGroup(Inks::ClassOf(shapes[i].ink));
        }
        WriteShape(svg, shapes[i]);
    }
    if (open != kNone) {
        svg.EndGroup();
    }
    WriteSupports(svg, support, HUGE_VAL);
}

void CDrawingSheet::WriteShape(CSvgOut& svg, const Shape& shape) const {
    std::array<Vec2<double>, 4> points;
    for (std::size_t k = 0; k < shape.numPoint; ++k) {
        points[k] = m_frame.Place(shape.points[k]);
    }
    if (shape.kind == ShapeKind::Dot) {
        svg.Circle(points[0], kDotRadius);
    } else {
        svg.Path({points.data(), shape.numPoint}, shape.kind == ShapeKind::Face);
    }
}

/// Draws the supports from `first` on that lie behind a depth, and gives the next.
std::size_t CDrawingSheet::WriteSupports(CSvgOut& svg, std::size_t first, double before) const {
    std::size_t next = first;
    for (; next < m_supports.size() && m_supports[next].place.z < before; ++next) {
        svg.BeginGroup("support");
        const Vec3<double>& place = m_supports[next].place;
        DrawSupport(svg, m_supports[next].mark, m_frame.Place({place.x, place.y}), SupportSize());
        svg.EndGroup();
    }
    return next;
}

/// The way from tail to head on the paper, by the share of a value in the largest of its kind.
Vec2<double> CDrawingSheet::Reach(ArrowKind kind, const Vec3<double>& value, double least) const {
    const double size = Length(value);
    if (!(size > 0.0)) {
        return {};
    }
    const double length = std::max(size / m_loads.Largest(kind) * kLongestArrow, least);
    return {value.x / size * length, -value.y / size * length};
}

void CDrawingSheet::WriteLoads(CSvgOut& svg) const {
    svg.BeginGroup("over");
    for (const LoadEdge& edge : m_loads.Edges()) {
        std::array<Vec2<double>, 2> tails;
        for (std::size_t k = 0; k < 2; ++k) {
            const Vec2<double> foot = m_frame.Place({edge.at[k].x, edge.at[k].y});
            const Vec2<double> reach = Reach(edge.kind, edge.value[k], 0.0);
            tails[k] = {foot.x - reach.x, foot.y - reach.y};
        }
        svg.Line(tails[0], tails[1]);
    }
    svg.EndGroup();
    svg.BeginGroup("load");
    for (const LoadArrow& arrow : m_loads.Arrows()) {
        WriteArrow(svg, arrow);
    }
    svg.EndGroup();
}

/// Arrows along the line that they load stand beside it, and are no longer than their distance.
void CDrawingSheet::WriteArrow(CSvgOut& svg, const LoadArrow& arrow) const {
    Vec2<double> tip = m_frame.Place({arrow.at.x, arrow.at.y});
    Vec2<double> reach =
        Reach(arrow.kind, arrow.value, IsAlongLine(arrow.kind) ? 0.0 : kShortestArrow);
    if (arrow.isAlong) {
        const double length = std::hypot(reach.x, reach.y);
        const double shown = std::min(length, kArrowSpacing - 4.0);
        const Vec2<double> unit{reach.x / length, reach.y / length};
        reach = {unit.x * shown, unit.y * shown};
        const double side = unit.y > 0.0 ? kBeside : -kBeside;
        tip = {tip.x + 0.5 * reach.x + unit.y * side, tip.y + 0.5 * reach.y - unit.x * side};
    }
    DrawArrow(svg,
              {{tip.x - reach.x, tip.y - reach.y}, tip, arrow.value.z > 0.0, IsMoment(arrow.kind)});
}

}  // namespace Tevra

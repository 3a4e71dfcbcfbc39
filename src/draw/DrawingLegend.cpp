#include <algorithm>
#include <cmath>

#include "draw/DrawingSheet.h"
#include "draw/ValueText.h"
#include "model/VynData.h"

// What stands beside the model: the legend, the axes and the scale bar.

namespace Tevra {

namespace {

constexpr double kRow = 20.0;
constexpr double kHalfRow = 15.0;
constexpr double kGap = 8.0;
constexpr double kTop = CPaperFrame::kTitleHeight + 12.0;
constexpr double kSwatchWidth = 24.0;
constexpr double kSwatchMiddle = CPaperFrame::kLegendLeft + 0.5 * kSwatchWidth;
constexpr double kTextLeft = CPaperFrame::kLegendLeft + kSwatchWidth + 10.0;
constexpr std::size_t kMostName = 25;
constexpr std::size_t kMostRemark = 34;

constexpr SupportKind kSupportKinds[] = {
    SupportKind::Fixed,   SupportKind::Pinned, SupportKind::Guided, SupportKind::Roller,
    SupportKind::Turning, SupportKind::Across, SupportKind::Spring};
constexpr ArrowKind kArrowKinds[] = {ArrowKind::Force, ArrowKind::Moment, ArrowKind::LineForce,
                                     ArrowKind::LineMoment, ArrowKind::Pressure};

bool IsFaceInk(Inks::Ink ink) {
    return ink < Inks::kSection;
}

void DrawSwatch(CSvgOut& svg, Inks::Ink ink, double y) {
    const double left = CPaperFrame::kLegendLeft;
    const double right = left + kSwatchWidth;
    svg.BeginGroup(Inks::ClassOf(ink));
    if (IsFaceInk(ink)) {
        const Vec2<double> corners[] = {
            {left, y - 9.0}, {right, y - 9.0}, {right, y + 2.0}, {left, y + 2.0}};
        svg.Path(corners, true);
    } else {
        svg.Line({left, y - 4.0}, {right, y - 4.0});
    }
    svg.EndGroup();
}

void DrawLegendArrow(CSvgOut& svg, const ArrowLine& arrow) {
    svg.BeginGroup("load");
    DrawArrow(svg, arrow);
    svg.EndGroup();
}

}  // namespace

double LegendRow::Height() const {
    return (isFirst ? kGap : 0.0) + (name.empty() ? 0.0 : kRow) + (small.empty() ? 0.0 : kHalfRow);
}

void CDrawingSheet::MakeLegend() {
    AddInkRows();
    AddSupportRows();
    AddLoadRows();
    AddGravityRow();
    bool isFirst = true;
    for (const std::wstring& remark : m_remarks) {
        m_legend.push_back({{}, {}, remark, isFirst});
        isFirst = false;
    }
}

void CDrawingSheet::AddInkRows() {
    for (const InkName& name : m_scene.Names()) {
        m_legend.push_back(
            {[ink = name.ink](CSvgOut& svg, double y) { DrawSwatch(svg, ink, y); }, name.text, {}});
    }
}

void CDrawingSheet::AddSupportRows() {
    bool isFirst = true;
    for (const SupportKind kind : kSupportKinds) {
        if (std::none_of(
                m_supports.begin(), m_supports.end(),
                [kind](const PlacedSupport& support) { return support.mark.kind == kind; })) {
            continue;
        }
        const auto symbol = [kind](CSvgOut& svg, double y) {
            const bool isCentred = kind == SupportKind::Turning || kind == SupportKind::Across;
            svg.BeginGroup("support");
            DrawSupport(svg, {kind, {0.0, 1.0}, {1.0, 0.0}},
                        {kSwatchMiddle, y - (isCentred ? 4.0 : 10.0)}, 11.0);
            svg.EndGroup();
        };
        m_legend.push_back({symbol, std::wstring(NameOf(kind)), {}, isFirst});
        isFirst = false;
    }
}

void CDrawingSheet::AddLoadRows() {
    bool isFirst = true;
    for (const ArrowKind kind : kArrowKinds) {
        if (!(m_loads.Largest(kind) > 0.0)) {
            continue;
        }
        const bool isMoment = IsMoment(kind);
        const auto symbol = [isMoment](CSvgOut& svg, double y) {
            const Vec2<double> tail{CPaperFrame::kLegendLeft, y - 4.0};
            DrawLegendArrow(svg, {tail, {tail.x + kSwatchWidth, tail.y}, false, isMoment});
        };
        m_legend.push_back({symbol, std::wstring(NameOf(kind)),
                            L"largest " + ValueText(kind, m_loads.Largest(kind), m_model.Units()),
                            isFirst});
        isFirst = false;
    }
}

/// An arrow in the direction of gravity.
void CDrawingSheet::AddGravityRow() {
    const double factor = Length(m_loads.Gravity());
    if (!(factor > 0.0)) {
        return;
    }
    const Vec3<double> unit = m_axes.GtoL(m_loads.Gravity()) * (1.0 / factor);
    const auto symbol = [unit](CSvgOut& svg, double y) {
        constexpr double kHalf = 13.0;
        const Vec2<double> middle{kSwatchMiddle, y + 3.0};
        const Vec2<double> half{unit.x * kHalf, -unit.y * kHalf};
        DrawLegendArrow(svg, {{middle.x - half.x, middle.y - half.y},
                              {middle.x + half.x, middle.y + half.y},
                              unit.z > 0.0,
                              false});
    };
    m_legend.push_back({symbol, L"Gravity", ShortNumber(factor) + L" g", true});
}

double CDrawingSheet::LegendBottom() const {
    double y = kTop;
    for (const LegendRow& row : m_legend) {
        y += row.Height();
    }
    return y + kRow;
}

void CDrawingSheet::WriteLegend(CSvgOut& svg) const {
    double y = kTop;
    for (const LegendRow& row : m_legend) {
        double line = y + (row.isFirst ? kGap : 0.0);
        if (row.symbol) {
            row.symbol(svg, line);
            svg.Text({kTextLeft, line}, "name", row.name, kMostName);
            line += kHalfRow;
        }
        if (!row.small.empty()) {
            const double left = row.symbol ? kTextLeft : CPaperFrame::kLegendLeft;
            svg.Text({left, line}, "small", row.small, kMostRemark);
        }
        y += row.Height();
    }
}

void CDrawingSheet::WriteFoot(CSvgOut& svg) const {
    const double y = m_frame.Height() - 36.0;
    WriteAxes(svg, {CPaperFrame::kEdge + 36.0, y});
    WriteScaleBar(svg, {CPaperFrame::kEdge + 110.0, y});
}

/// The directions of the global axes; one that is seen end on is left out.
void CDrawingSheet::WriteAxes(CSvgOut& svg, const Vec2<double>& origin) const {
    constexpr double kArm = 28.0;
    constexpr double kEndOn = 0.1;
    constexpr std::wstring_view kLetters[] = {L"X", L"Y", L"Z"};
    for (int k = 0; k < 3; ++k) {
        Vec3<double> unit;
        unit[k] = 1.0;
        const Vec3<double> seen = m_axes.GtoL(unit);
        if (std::hypot(seen.x, seen.y) < kEndOn) {
            continue;
        }
        const auto at = [&origin, &seen](double arm) {
            return Vec2<double>{origin.x + seen.x * arm, origin.y - seen.y * arm};
        };
        svg.BeginGroup("bar");
        DrawArrow(svg, {origin, at(kArm), false, false});
        svg.EndGroup();
        const Vec2<double> letter = at(kArm + 9.0);
        svg.Text({letter.x - 4.0, letter.y + 4.0}, "name", kLetters[k]);
    }
}

void CDrawingSheet::WriteScaleBar(CSvgOut& svg, const Vec2<double>& from) const {
    constexpr double kLongest = 180.0;
    constexpr double kTick = 5.0;
    const auto length = static_cast<int>(UnitKind::Length);
    const double perUnit =
        m_frame.Scale() * AxisScaleOf(m_wish.view) / m_model.Units().Conversion(length);
    const double round = RoundBelow(kLongest / perUnit);
    const Vec2<double> to{from.x + round * perUnit, from.y};
    svg.BeginGroup("bar");
    svg.Line(from, to);
    for (const Vec2<double>& end : {from, to}) {
        svg.Line({end.x, end.y - kTick}, {end.x, end.y + kTick});
    }
    svg.EndGroup();
    std::wstring text = ShortNumber(round) + L" " + m_model.Units().UnitString(UnitKind::Length);
    text += IsPlane(m_wish.view) ? L"" : L" along an axis";
    svg.Text({from.x, from.y + 18.0}, "name", text);
}

}  // namespace Tevra

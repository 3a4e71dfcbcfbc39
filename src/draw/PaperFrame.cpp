#include "draw/PaperFrame.h"

#include <algorithm>
#include <cmath>

namespace Tevra {

namespace {

/// Least and greatest height of the model on the paper.
constexpr double kLeastHeight = 150.0;
constexpr double kMostHeight = 600.0;

/// Lengths below this are none, m.
constexpr double kLeastLength = 1e-100;

/// `units` of the paper for `length`, without a bound for a length of nothing.
double ScaleFor(double units, double length) {
    return length > kLeastLength ? units / length : HUGE_VAL;
}

}  // namespace

CPaperFrame::CPaperFrame(const DrawingExtent& extent, double margin) {
    const double width = kLegendLeft - 2.0 * kEdge - 2.0 * margin;
    const double wanted =
        extent.Width() > kLeastLength ? extent.Height() * (width / extent.Width()) : kMostHeight;
    const double height = std::clamp(wanted, kLeastHeight, kMostHeight);
    m_scale = std::min(ScaleFor(width, extent.Width()), ScaleFor(height, extent.Height()));
    if (!std::isfinite(m_scale)) {
        m_scale = 1.0;
    }
    m_centre = {0.5 * (extent.low.x + extent.high.x), 0.5 * (extent.low.y + extent.high.y)};
    m_middle = {kEdge + margin + 0.5 * width, kTitleHeight + margin + 0.5 * height};
    m_height = kTitleHeight + height + 2.0 * margin + kFootHeight;
}

double RoundBelow(double most) {
    const double power = std::pow(10.0, std::floor(std::log10(most)));
    for (const double step : {10.0, 5.0, 2.0}) {
        if (step * power <= most * (1.0 + 1e-9)) {
            return step * power;
        }
    }
    return power;
}

}  // namespace Tevra

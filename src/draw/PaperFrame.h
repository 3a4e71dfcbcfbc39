#pragma once

#include "draw/ModelScene.h"

namespace Tevra {

/// Where a drawing stands on its paper, in units of the paper: x to the right, y down.
///
/// From top to bottom a title, the model, a foot with the axes and the scale bar; the legend stands
/// to the right of the model.
class CPaperFrame {
public:
    static constexpr double kWidth = 1000.0;
    static constexpr double kEdge = 20.0;
    static constexpr double kTitleHeight = 66.0;
    static constexpr double kFootHeight = 84.0;
    static constexpr double kLegendLeft = 790.0;

    /// `margin` is left free round the model for what stands beside it.
    CPaperFrame(const DrawingExtent& extent, double margin);

    /// What the model takes, with title and foot.
    double Height() const { return m_height; }
    /// Units of the paper per metre.
    double Scale() const { return m_scale; }
    Vec2<double> Place(const Vec2<double>& seen) const {
        return {m_middle.x + (seen.x - m_centre.x) * m_scale,
                m_middle.y - (seen.y - m_centre.y) * m_scale};
    }

private:
    double m_scale = 1.0;
    double m_height = 0.0;
    Vec2<double> m_centre;  ///< of the model, m
    Vec2<double> m_middle;  ///< of the place for it, on the paper
};

/// The largest 1, 2 or 5 times a power of ten that is not above `most`, which is positive.
double RoundBelow(double most);

}  // namespace Tevra

#pragma once

#include <string_view>

#include "model/DirCos.h"

namespace Tevra {

/// The side from which a model is drawn, always without perspective.
enum class DrawingView {
    Isometric,  ///< from above, X to the right and towards the viewer, Y to the right and away
    Plan,       ///< from above, X to the right, Y up
    XZ,         ///< along Y, X to the right, Z up
    YZ          ///< against X, Y to the right, Z up
};

/// Axes of a view: x to the right of the drawing, y up it, z towards the viewer.
Util::CDirCos AxesOf(DrawingView view);

/// How long a length along a global axis is on the drawing: 1, or sqrt(2/3) where all three axes
/// are seen under the same angle.
double AxisScaleOf(DrawingView view);

/// Whether the view looks along a global axis.
inline bool IsPlane(DrawingView view) {
    return view != DrawingView::Isometric;
}

/// What the view is called in a title.
std::wstring_view NameOf(DrawingView view);

}  // namespace Tevra

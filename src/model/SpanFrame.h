#pragma once

#include "model/DirCos.h"

namespace Tevra {

class CVynData;

/// What a 1D element is between its ends: geometry and what it is made of.
struct SpanFrame {
    int element = 0;
    double length = 0.0;  ///< m, 0 when there is nothing between the ends
    Util::CDirCos axes;
    Vec3<double> middle;         ///< global
    bool bends = false;          ///< true for elements with a section
    bool isPinned = false;       ///< bars and the like, which no node turns
    double eiyy = 0.0;           ///< Nm2
    double eizz = 0.0;           ///< Nm2
    double massPerLength = 0.0;  ///< kg/m

    /// An element as a stage has it (-1 no stage).
    static SpanFrame Of(const CVynData& model, int element, int stage);
};

}  // namespace Tevra

#pragma once

#include <vector>

#include "model/DirCos.h"
#include "model/InterSpan.h"
#include "model/PosOn1D.h"

namespace Tevra {

class CVynData;

namespace Data {
class CAssembly;
}

/// A plane square to the line of an assembly.
struct CutPlane {
    bool isValid = false;  ///< false without a line
    Util::CDirCos axes;    ///< of the assembly: x from node 1 to node 2
    double length = 0.0;   ///< of the line, m
    Vec3<double> centre;   ///< where the line meets the plane, global, m

    static CutPlane Of(const CVynData& model, const Data::CAssembly& assembly, bool isFraction,
                       double position);
};

/// Where a plane meets an edge of an element: between topology nodes `k1` and `k2`, a part `t` of
/// the way.
struct CutCorner {
    Vec3<double> at;  ///< global, m
    int k1 = 0;
    int k2 = 0;
    double t = 0.0;
};

/// An element that a plane cuts: a 1D element in one point, a 2D element along a line, a 3D element
/// across a polygon.
struct CutElement {
    int element = 0;
    bool isForward = true;  ///< 1D: end 2 lies beyond the plane
    CPosOn1D at;            ///< 1D
    std::vector<CutCorner> corners;
};

/// The elements of an assembly that a plane cuts within the extents of the assembly. Elements that
/// end at the plane are cut, those that begin at it only where none ends there (so at the start of
/// the assembly). Dummy elements, dampers and load panels carry nothing and are left out.
std::vector<CutElement> FindCut(const CVynData& model, const Data::CAssembly& assembly,
                                const CutPlane& plane);

/// Force and moment about the centre of the plane, global axes, that the part of an element beyond
/// the plane puts on the part before it in an analysis case.
InterResult CutForce(const CVynData& model, const CutElement& cut, const CutPlane& plane,
                     int analysisCase);

/// Displacement and rotation of the material at a corner of the cut, global axes.
InterResult CutDisplacement(const CVynData& model, const CutElement& cut, const CutCorner& corner,
                            int analysisCase);

}  // namespace Tevra

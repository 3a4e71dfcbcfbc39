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
    double along = 0.0;    ///< from node 1 to the plane, m
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

/// Which elements of an assembly a cut meets.
enum class CutScope {
    Carrying,  ///< those that carry something: no dummy elements, dampers, load panels
    All
};

/// The elements of an assembly, by where they lie along its line: found once, they serve any number
/// of cuts.
class CAssemblyElements {
public:
    CAssemblyElements(const CVynData& model, const Data::CAssembly& assembly,
                      CutScope scope = CutScope::Carrying);

    /// Numbers of the elements that a plane at a place of the line (m from node 1) can meet,
    /// ascending.
    std::vector<int> Near(double along) const;

private:
    struct Range {
        double low;  ///< m along the line
        double high;
        int element;
    };
    std::vector<Range> m_ranges;  ///< ascending by `low`
    double m_longest = 0.0;       ///< of the ranges
    double m_slack = 0.0;
};

/// The elements of an assembly that a plane cuts within the extents of the assembly. Elements that
/// end at the plane are cut, those that begin at it only where none ends there (so at the start of
/// the assembly).
std::vector<CutElement> FindCut(const CVynData& model, const Data::CAssembly& assembly,
                                const CAssemblyElements& elements, const CutPlane& plane);

/// Force and moment about the centre of the plane, global axes, that the part of an element beyond
/// the plane puts on the part before it in an analysis case.
InterResult CutForce(const CVynData& model, const CutElement& cut, const CutPlane& plane,
                     int analysisCase);

/// Displacement and rotation of the material at a corner of the cut, global axes.
InterResult CutDisplacement(const CVynData& model, const CutElement& cut, const CutCorner& corner,
                            int analysisCase);

}  // namespace Tevra

#pragma once

#include <vector>

#include "model/AssemblyCut.h"
#include "model/Types.h"

namespace Tevra::Util {

/// Results of an assembly at a plane square to its line from node 1 to node 2: the elements that
/// the plane cuts, taken together as the section of one large beam.
///
/// The assembly's axes are those of a 1D element along the line, with node 3 on the +y side. Its
/// elements are those of the internal list (all, when the list is empty) whose cut has its middle
/// within the extents, half of each to either side of the line (0: no bound).
class CAssemblyCalc {
public:
    /// A plane at a fraction of the length, or at metres from node 1. The model must live as long
    /// as this and not change.
    CAssemblyCalc(const CVynData& model, int assembly, bool isFraction, double position);
    /// The same, of elements that were found before, for many planes through one assembly.
    CAssemblyCalc(const CVynData& model, int assembly, const CAssemblyElements& elements,
                  bool isFraction, double position);

    /// Where an assembly is looked at, as fractions of its length: a storey assembly at the levels
    /// of its storeys, ascending; others at `regular` positions (see CPosOn1D::Regular).
    static std::vector<double> Positions(const CVynData& model, int assembly, int regular);

    /// Centre of the cut, on the line; global, m. NaN for an assembly without a line.
    Vec3<double> Coor() const;
    /// Axes of the assembly.
    const CDirCos& Axes() const { return m_plane.axes; }
    /// Number of elements cut.
    int NumElem() const { return static_cast<int>(m_cut.size()); }

    // All of these are of any case, envelopes included, figure by figure. NaN when the plane cuts
    // nothing, or an element that has no result.

    /// Displacement (m) of the centre and rotation (rad) of the cut, global axes: the rigid body
    /// movement that comes nearest to the displacements of all corners of the cut (least squares).
    /// Rotations that those leave open (about the line of a row of corners) are the mean rotation
    /// of the elements.
    InterResult CalcDisp(const SCaseRef& ref) const;
    /// Displacement against that of another cut, per length between the two, global axes: the
    /// drift of a storey against the one below. NaN when the two coincide.
    Vec3<double> CalcDrift(const SCaseRef& ref, const CAssemblyCalc& below) const;
    /// The same of displacements that are known, in one analysis case.
    Vec3<double> Drift(const Vec3<double>& disp, const CAssemblyCalc& below,
                       const Vec3<double>& dispBelow) const;
    /// Force (N) and moment about the centre (Nm), assembly axes: what the part beyond the plane
    /// does to the part before it, as in 1D elements.
    InterResult CalcForce(const SCaseRef& ref) const;

private:
    InterResult OwnDisp(int analysisCase) const;
    InterResult OwnForce(int analysisCase) const;
    std::vector<const CutElement*> CutIn(int analysisCase) const;

    const CVynData* m_model;
    CutPlane m_plane;
    std::vector<CutElement> m_cut;
};

}  // namespace Tevra::Util

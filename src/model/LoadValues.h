#pragma once

#include "model/DirCos.h"
#include "model/Load.h"

/// Loads in the terms of other programs: components instead of axes, forces instead of strains,
/// means and gradients instead of places.
namespace Tevra {

namespace Data {
class CElement;
}

/// `v` without the components that turning has left of nothing.
Vec3<double> WithoutRoundOff(const Vec3<double>& v);

/// Axis number of a node load at one of its nodes: the node's where the load names it.
int AxisOfNodeLoad(const CVynData& model, const Data::CNodeLoad& load, int node);

/// Global components of the force (or of the moment) of a node load at one of its nodes.
Vec3<double> GlobalNodeLoad(const CVynData& model, const Data::CNodeLoad& load, int node);

/// What a beam load of 1 is in the axes of its element, of which `middle` is the middle. A
/// projected load is spread over the length that it meets squarely; a load at a point has no length
/// to project.
Vec3<double> UnitBeamLoad(const CVynData& model, const Data::CBeamLoad& load,
                          const Util::CDirCos& axes, const Vec3<double>& middle);

/// The same for an element by its number.
Vec3<double> UnitBeamLoad(const CVynData& model, const Data::CBeamLoad& load, int element);

/// A distributed load on an element: its places from end 1, ascending and on the element, and the
/// values there.
struct LoadedStretch {
    double from = 0.0;
    double to = 0.0;
    double fromValue = 0.0;
    double toValue = 0.0;

    bool IsEmpty() const { return !(from < to); }
};

/// What of a uniform, linear or patch load lies on an element of `length` m, with places as
/// fractions of that or in m; empty when nothing does.
LoadedStretch StretchOf(const Data::CBeamLoad& load, double length, bool asFractions);

/// Whether the place of a load at a point is on an element of `length` m.
bool IsOnElement(const Data::LoadPoint& point, double length);

/// The middle between the ends of a 1D element, m.
Vec3<double> MiddleOf(const CVynData& model, const Data::CElement& element);

/// Whether gravity acts on every element, and on every node with mass.
bool ActsOnAll(const CVynData& model, const Data::CGravityLoad& load);

/// Axial force (N, tension positive) of a prestress in a member that is held at both ends: a strain
/// e is e E A, a lack of fit d is d E A / L.
double PrestressForce(const Data::CAxialLoad& load, double e, double area, double length);

/// A temperature that is linear through a cross-section.
struct SectionTemperature {
    double mean = 0.0;      ///< K, at the centroid
    double gradient = 0.0;  ///< K/m, along the positive axis
};
/// Along y or z by the type of the load; not finite when its two places are the same.
SectionTemperature TemperatureOf(const Data::CBeamThermalLoad& load);
/// Along the normal of a plane, means of the corners; a gradient is not finite without thickness.
SectionTemperature TemperatureOf(const Data::CFaceThermalLoad& load, int corners, double thickness);

}  // namespace Tevra

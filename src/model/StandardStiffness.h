#pragma once

#include "model/StandardShape.h"

/// Torsion constants and shear factors of the standard shapes. Both are engineering formulas, named
/// with their source at the definition.
namespace Tevra::Data {

double RectangleTorsion(const ShapeSize& size);
double TrapeziumTorsion(const ShapeSize& size);
double RoundTorsion(const ShapeSize& size);
double TubeTorsion(const ShapeSize& size);
double BoxTorsion(const ShapeSize& size);
/// Two equal flanges on a web; with the bulbs where they meet when the roots are rounded.
double ITorsion(const ShapeSize& size);
double ChannelTorsion(const ShapeSize& size);
double ZedTorsion(const ShapeSize& size);
double UnequalITorsion(const ShapeSize& size);
/// One flange or leg across the end of the other.
double TeeTorsion(const ShapeSize& size);
double CrossTorsion(const ShapeSize& size);
/// Saint-Venant's approximation for a compact solid, A^4 / (40 Ip) with the polar second moment
/// about the centroid; exact to 1.3 % for an ellipse. A void takes away its own.
double CompactTorsion(const SectionOutline& outline);

ShearFactors SolidShear(const ShapeSize& size, double area);
ShearFactors RoundShear(const ShapeSize& size, double area);
ShearFactors TubeShear(const ShapeSize& size, double area);
ShearFactors BoxShear(const ShapeSize& size, double area);
/// Two equal flanges on a web.
ShearFactors IShear(const ShapeSize& size, double area);
ShearFactors UnequalIShear(const ShapeSize& size, double area);
/// A web and one flange, each with a free end.
ShearFactors TeeShear(const ShapeSize& size, double area);

/// Of a solid rectangle, and the most that any shape of plates is given.
inline constexpr double kSolidShearFactor = 5.0 / 6.0;

}  // namespace Tevra::Data

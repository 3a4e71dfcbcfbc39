#pragma once

#include "model/DirCos.h"
#include "model/Faces.h"
#include "model/Load.h"

namespace Tevra {

class CVynData;
class SpanLoads;

/// The line of a 1D element that a load acts on.
struct LoadedLine {
    double length = 0.0;  ///< m
    Util::CDirCos axes;
    Vec3<double> middle;  ///< global

    static LoadedLine Of(const CVynData& model, int element);
};

/// Adds a beam load times `factor`, turned into element axes, to the loads of a span: forces or
/// moments by its direction. A projected load is spread over the length that it meets squarely; a
/// load at a point has no length to project.
void AddBeamLoad(const CVynData& model, const LoadedLine& line, const Data::CBeamLoad& load,
                 double factor, SpanLoads& loads);

/// All of a beam load on an element in element axes, N or Nm.
Vec3<double> BeamLoadSum(const CVynData& model, const LoadedLine& line,
                         const Data::CBeamLoad& load);

/// The face of a 2D or 3D element that a face load acts on.
struct LoadedFace {
    SolidFace corners{};  ///< places in the topology; the first 0 when there is no such face
    Vec3<double> area;    ///< m2, along the normal: a plane's z, or out of a solid
    Vec3<double> centre;  ///< global

    bool Exists() const { return corners[0] != 0; }
    bool HasArea() const { return Length(area) > 0.0; }
    int NumCorner() const { return corners[3] != 0 ? 4 : 3; }

    static LoadedFace Of(const CVynData& model, int element, int face);
};

/// True for loads along the normal of whatever face they act on.
bool IsNormal(const Data::CFaceLoad& load);

/// The direction of a face load, global.
Vec3<double> LoadDirection(const CVynData& model, const Data::CFaceLoad& load, int element,
                           const LoadedFace& face);

/// What turns the value of a load into a force per area of the face: 1, the share of the area that
/// a projected load meets squarely, or one over the area for a force at a point.
double PressureFactor(const CVynData& model, const Data::CFaceLoad& load, int element,
                      const LoadedFace& face);

/// Pressure at a corner, from 1, before that factor; that of a force at a point is the force.
double CornerPressure(const CVynData& model, const Data::CFaceLoad& load, int element, int corner);

/// Mean over the face, so that it has the load's sum, with the factor, Pa.
double MeanPressure(const CVynData& model, const Data::CFaceLoad& load, int element,
                    const LoadedFace& face);

/// The same on the face that the load names; not finite where there is none.
double MeanPressure(const CVynData& model, const Data::CFaceLoad& load, int element);

}  // namespace Tevra

#pragma once

#include <vector>

#include "model/VynData.h"

namespace Tevra::TestBeam {

inline constexpr double kLength = 10.0;
inline constexpr double kE = 210e9;
inline constexpr double kIyy = 4.5e-4;  ///< of the rectangle 300 x 200
inline constexpr double kIzz = 2e-4;
inline constexpr double kEIyy = kE * kIyy;
inline constexpr double kEIzz = kE * kIzz;

/// Beam 1 from the origin to `end` with section 1 (300 x 200) of material 1, and analysis case 1 of
/// load case 1, which a static task solved.
CVynData Model(const Vec3<double>& end = {kLength, 0, 0});

/// Adds a beam load on element 1 in load case `loadCase`.
Data::CBeamLoad Load(BeamLoadType type, Direction direction, std::vector<Data::LoadPoint> points,
                     int axis = kGlobalAxis, int loadCase = 1);
void Add(CVynData& model, const Data::CBeamLoad& load);

/// What the ends of element 1 do in a case: six displacements (global axes) each, at the nodes, and
/// six forces (element axes) each.
void SetEnds(CVynData& model, int analysisCase, const std::vector<double>& disp1,
             const std::vector<double>& disp2, const std::vector<double>& force1,
             const std::vector<double>& force2 = {});

}  // namespace Tevra::TestBeam

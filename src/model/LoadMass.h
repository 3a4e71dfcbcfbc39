#pragma once

#include "model/AnalysisTask.h"
#include "model/NumberedTable.h"

namespace Tevra {

class CVynData;

/// Masses of nodes, kg, that stand for the loads of a case: the forces against the direction, over
/// the acceleration of gravity, times the scale (so weights that act downwards are positive mass
/// along Z). Loads on 1D elements go half to each end, loads on faces alike to their corners;
/// gravity loads are left out, as they are the weight of masses that are there. Nodes that do not
/// exist get nothing.
NumberedTable<double> MassOfLoads(const CVynData& model, const MassSpecification& mass);

}  // namespace Tevra

#pragma once

#include <string>

#include "model/Unit.h"

namespace Tevra::Output {

/// What the figures of a column are; each has a unit that follows from the model's units.
enum class Quantity {
    None,
    Length,
    Area,
    SecondMoment,
    Displacement,
    Rotation,
    Angle,
    Force,
    Moment,
    ForcePerLength,
    MomentPerLength,
    Stress,
    Density,
    Mass,
    Expansion,
    Temperature,
    TemperatureGradient
};

/// The unit of a quantity as text; empty for what has none.
std::wstring UnitText(const CUnit& units, Quantity quantity);

/// How many of that unit make one SI unit.
double UnitFactor(const CUnit& units, Quantity quantity);

}  // namespace Tevra::Output

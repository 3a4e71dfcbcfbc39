#pragma once

#include <array>
#include <string>

namespace Tevra {

/// Acceleration of standard gravity, of which gravity loads are factors, m/s2.
inline constexpr double kGravity = 9.80665;

/// The kinds of quantity that have a unit of their own.
enum class UnitKind : int {
    Force = 1,
    Length = 2,
    Mass = 3,
    Time = 4,
    Temperature = 5,
    Displacement = 6,
    Stress = 7,
    Acceleration = 8
};

/// Units of figures outside the model, which itself is SI throughout.
class CUnit {
public:
    CUnit();
    const std::wstring& UnitString(UnitKind kind) const { return m_units[Index(kind)]; }
    /// False (and nothing changed) for a kind outside the eight.
    bool SetUnitString(int kind, std::wstring text);
    /// How many of the unit make one SI unit: 0.001 for "kN". Stresses may be composed as force
    /// "/" length "²". 1 for texts that are not known.
    double Conversion(int kind) const;

    bool operator==(const CUnit&) const = default;

private:
    static constexpr std::size_t Index(UnitKind kind) { return static_cast<std::size_t>(kind) - 1; }
    std::array<std::wstring, 8> m_units;
};

}  // namespace Tevra

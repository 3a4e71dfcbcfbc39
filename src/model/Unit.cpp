#include "model/Unit.h"

#include <span>
#include <string_view>

namespace Tevra {

namespace {

/// A unit and how many of it make one SI unit.
struct UnitFactor {
    std::wstring_view text;
    double perSi;
};

constexpr double kPoundForce = 4.4482216152605;  // N, exact by definition
constexpr double kPound = 0.45359237;            // kg, exact by definition
constexpr double kFoot = 0.3048;                 // m, exact by definition

constexpr UnitFactor kForce[] = {{L"N", 1.0},
                                 {L"kN", 1e-3},
                                 {L"MN", 1e-6},
                                 {L"kgf", 1.0 / kGravity},
                                 {L"tf", 1e-3 / kGravity},
                                 {L"tonf", 1.0 / (2240.0 * kPoundForce)},
                                 {L"lbf", 1.0 / kPoundForce},
                                 {L"kip", 1e-3 / kPoundForce}};
constexpr UnitFactor kLength[] = {{L"m", 1.0},   {L"cm", 100.0},        {L"mm", 1000.0},
                                  {L"km", 1e-3}, {L"in", 12.0 / kFoot}, {L"ft", 1.0 / kFoot}};
constexpr UnitFactor kMass[] = {{L"kg", 1.0},
                                {L"t", 1e-3},
                                {L"kt", 1e-6},
                                {L"g", 1000.0},
                                {L"lb", 1.0 / kPound},
                                {L"slug", kFoot / kPoundForce},
                                {L"ton", 1.0 / (2240.0 * kPound)},
                                {L"kip.s²/in.", kFoot / (12.0 * 1000.0 * kPoundForce)}};
constexpr UnitFactor kTime[] = {{L"s", 1.0},
                                {L"ms", 1000.0},
                                {L"min", 1.0 / 60.0},
                                {L"h", 1.0 / 3600.0},
                                {L"d", 1.0 / 86400.0}};
constexpr UnitFactor kTemperature[] = {{L"°C", 1.0}, {L"K", 1.0}, {L"°F", 1.8}};
constexpr UnitFactor kStress[] = {{L"Pa", 1.0},
                                  {L"kPa", 1e-3},
                                  {L"MPa", 1e-6},
                                  {L"GPa", 1e-9},
                                  {L"psi", kFoot* kFoot / (144.0 * kPoundForce)},
                                  {L"ksi", kFoot* kFoot / (144000.0 * kPoundForce)},
                                  {L"psf", kFoot* kFoot / kPoundForce},
                                  {L"ksf", kFoot* kFoot / (1000.0 * kPoundForce)}};
constexpr UnitFactor kAcceleration[] = {{L"m/s²", 1.0},          {L"cm/s²", 100.0},
                                        {L"mm/s²", 1000.0},      {L"g", 1.0 / kGravity},
                                        {L"ft/s²", 1.0 / kFoot}, {L"in/s²", 12.0 / kFoot}};

std::span<const UnitFactor> TableOf(UnitKind kind) {
    switch (kind) {
        case UnitKind::Force:
            return kForce;
        case UnitKind::Length:
        case UnitKind::Displacement:
            return kLength;
        case UnitKind::Mass:
            return kMass;
        case UnitKind::Time:
            return kTime;
        case UnitKind::Temperature:
            return kTemperature;
        case UnitKind::Stress:
            return kStress;
        case UnitKind::Acceleration:
            return kAcceleration;
    }
    return {};
}

/// Units of the kind in one SI unit, 0 when the text is not known.
double Find(UnitKind kind, std::wstring_view text) {
    for (const UnitFactor& unit : TableOf(kind)) {
        if (unit.text == text) {
            return unit.perSi;
        }
    }
    return 0.0;
}

/// A stress composed as force "/" length "²", 0 when it is not.
double ComposedStress(std::wstring_view text) {
    const std::size_t slash = text.find(L'/');
    if (slash == std::wstring_view::npos || text.back() != L'²') {
        return 0.0;
    }
    const double force = Find(UnitKind::Force, text.substr(0, slash));
    const double length = Find(UnitKind::Length, text.substr(slash + 1, text.size() - slash - 2));
    return length > 0.0 ? force / (length * length) : 0.0;
}

constexpr bool IsKind(int kind) {
    return kind >= 1 && kind <= 8;
}

}  // namespace

CUnit::CUnit() : m_units{L"N", L"m", L"kg", L"s", L"°C", L"m", L"Pa", L"m/s²"} {}

bool CUnit::SetUnitString(int kind, std::wstring text) {
    if (!IsKind(kind)) {
        return false;
    }
    m_units[Index(static_cast<UnitKind>(kind))] = std::move(text);
    return true;
}

double CUnit::Conversion(int kind) const {
    if (!IsKind(kind)) {
        return 1.0;
    }
    const auto unit = static_cast<UnitKind>(kind);
    const std::wstring& text = UnitString(unit);
    double perSi = Find(unit, text);
    if (perSi == 0.0 && unit == UnitKind::Stress) {
        perSi = ComposedStress(text);
    }
    return perSi != 0.0 ? perSi : 1.0;
}

}  // namespace Tevra

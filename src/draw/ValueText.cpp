#include "draw/ValueText.h"

#include <array>
#include <cmath>

#include "io/NumberFormat.h"
#include "model/Unit.h"
#include "platform/text/Utf8.h"

namespace Tevra {

namespace {

/// Powers of force and length in the unit of a kind.
struct KindRow {
    std::wstring_view name;
    int lengths;  ///< power of the length
};
constexpr std::array<KindRow, kNumArrowKind> kKinds{{{L"Forces", 0},
                                                     {L"Moments", 1},
                                                     {L"Line loads", -1},
                                                     {L"Line moments", 0},
                                                     {L"Face loads", -2}}};

const KindRow& RowOf(ArrowKind kind) {
    return kKinds[static_cast<std::size_t>(kind)];
}

std::wstring UnitText(ArrowKind kind, const std::wstring& force, const std::wstring& length) {
    switch (kind) {
        case ArrowKind::Moment:
            return force + L" " + length;
        case ArrowKind::LineForce:
            return force + L"/" + length;
        case ArrowKind::LineMoment:
            return force + L" " + length + L"/" + length;
        case ArrowKind::Pressure:
            return force + L"/" + length + L"²";
        default:
            return force;
    }
}

/// A unit and how many of it make one SI unit.
struct Scaled {
    std::wstring text;
    double perSi = 1.0;
};

Scaled UnitOf(const CUnit& units, UnitKind kind) {
    return {units.UnitString(kind), units.Conversion(static_cast<int>(kind))};
}

/// Of the metric units the one that gives a figure from 1 to a thousand; the model's own otherwise.
Scaled ForceUnit(const CUnit& units, double newtons) {
    constexpr double kKilo = 1e3;
    constexpr double kMega = 1e6;
    Scaled own = UnitOf(units, UnitKind::Force);
    if (own.text != L"N" && own.text != L"kN" && own.text != L"MN") {
        return own;
    }
    if (newtons >= kMega) {
        return {L"MN", 1.0 / kMega};
    }
    return newtons >= kKilo ? Scaled{L"kN", 1.0 / kKilo} : Scaled{L"N", 1.0};
}

/// Lengths of a load are metres wherever the model's unit is metric.
Scaled LengthUnit(const CUnit& units) {
    const Scaled own = UnitOf(units, UnitKind::Length);
    const bool isMetric = own.text == L"mm" || own.text == L"cm" || own.text == L"km";
    return isMetric ? Scaled{L"m", 1.0} : own;
}

}  // namespace

std::wstring_view NameOf(ArrowKind kind) {
    return RowOf(kind).name;
}

std::wstring ShortNumber(double value) {
    constexpr int kDigits = 3;
    constexpr double kMostDigits = 7.0;
    const double before = std::floor(std::log10(std::round(std::abs(value)))) + 1.0;
    const bool isLong = before > kDigits && before <= kMostDigits;
    std::string text;
    AppendGeneral(text, value, 0, isLong ? static_cast<int>(before) : kDigits);
    return Text::FromUtf8(text);
}

std::wstring ValueText(ArrowKind kind, double value, const CUnit& units) {
    const Scaled length = LengthUnit(units);
    const double perLength = value * std::pow(length.perSi, RowOf(kind).lengths);
    const Scaled force = ForceUnit(units, std::abs(perLength));
    return ShortNumber(perLength * force.perSi) + L" " + UnitText(kind, force.text, length.text);
}

}  // namespace Tevra

#include "output/engine/Quantity.h"

#include <array>
#include <cmath>
#include <cstdlib>

namespace Tevra::Output {

namespace {

/// A unit of the model to a power; power 0 is no unit.
struct Part {
    UnitKind kind = UnitKind::Length;
    int power = 0;
};

/// A quantity: the product of up to two units, or a fixed text.
struct Info {
    Part first{};
    Part second{};
    const wchar_t* text = L"";
};

/// In enumeration order.
constexpr std::array kQuantities = {
    Info{},
    Info{{UnitKind::Length, 1}},
    Info{{UnitKind::Length, 2}},
    Info{{UnitKind::Length, 4}},
    Info{{UnitKind::Displacement, 1}},
    Info{{}, {}, L"rad"},
    Info{{}, {}, L"°"},
    Info{{UnitKind::Force, 1}},
    Info{{UnitKind::Force, 1}, {UnitKind::Length, 1}},
    Info{{UnitKind::Force, 1}, {UnitKind::Length, -1}},
    Info{{UnitKind::Force, 1}},
    Info{{UnitKind::Stress, 1}},
    Info{{UnitKind::Mass, 1}, {UnitKind::Length, -3}},
    Info{{UnitKind::Mass, 1}},
    Info{{UnitKind::Temperature, -1}},
    Info{{UnitKind::Temperature, 1}},
    Info{{UnitKind::Temperature, 1}, {UnitKind::Length, -1}},
};

constexpr const wchar_t* kPowers[] = {L"", L"", L"²", L"³", L"⁴"};

const Info& InfoOf(Quantity quantity) {
    return kQuantities[static_cast<std::size_t>(quantity)];
}

std::wstring PowerText(const CUnit& units, const Part& part) {
    return units.UnitString(part.kind) + kPowers[std::abs(part.power)];
}

double PowerFactor(const CUnit& units, const Part& part) {
    return part.power == 0 ? 1.0
                           : std::pow(units.Conversion(static_cast<int>(part.kind)), part.power);
}

}  // namespace

std::wstring UnitText(const CUnit& units, Quantity quantity) {
    const Info& info = InfoOf(quantity);
    std::wstring text = info.text;
    for (const Part& part : {info.first, info.second}) {
        if (part.power > 0) {
            text += (text.empty() ? L"" : L".") + PowerText(units, part);
        } else if (part.power < 0) {
            text += (text.empty() ? L"1/" : L"/") + PowerText(units, part);
        }
    }
    return text;
}

double UnitFactor(const CUnit& units, Quantity quantity) {
    const Info& info = InfoOf(quantity);
    return PowerFactor(units, info.first) * PowerFactor(units, info.second);
}

}  // namespace Tevra::Output

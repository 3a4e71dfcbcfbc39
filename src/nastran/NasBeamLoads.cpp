#include <array>
#include <cmath>
#include <string_view>

#include "model/LoadValues.h"
#include "model/VynData.h"
#include "nastran/NasFile.h"

// Loads along beams.

namespace Tevra {

namespace {

/// Share of a load below which a component in global axes is round-off.
constexpr double kLeastShare = 1e-12;

/// Words of a direction. Kept as files in the field have them: the same words stand for global and
/// element axes, and those that end in E for projected loads, which the target takes for element
/// axes.
std::string_view TypeWord(Direction d, bool isProjected) {
    constexpr std::array<std::string_view, 6> kWords{"FX", "FY", "FZ", "MX", "MY", "MZ"};
    constexpr std::array<std::string_view, 6> kProjected{"FXE", "FYE", "FZE", "MXE", "MYE", "MZE"};
    const auto i = static_cast<std::size_t>(d);
    return isProjected ? kProjected[i] : kWords[i];
}

/// Words of the positions. Kept as files in the field have them: the target's own word for a
/// fraction is FR.
std::string_view ScaleWord(bool isFraction) {
    return isFraction ? "PR" : "LE";
}

/// Whether the places of a load are written as fractions: where the host gives them so. Uniform and
/// linear loads run over the length of the element.
bool HasFractions(const Data::CBeamLoad& load) {
    return load.PosIsFraction(1) &&
           (load.TypeOf() == BeamLoadType::Point ||
            (load.TypeOf() == BeamLoadType::Patch && load.PosIsFraction(2)));
}

/// Whether one card can carry a load.
bool IsCarried(BeamLoadType type) {
    return type == BeamLoadType::Point || type == BeamLoadType::Uniform ||
           type == BeamLoadType::Linear || type == BeamLoadType::Patch;
}

}  // namespace

bool CNasFile::WriteBeamLoads() {
    StartSection("Beam loads");
    for (const int number : m_model->BeamLoadTable().Numbers()) {
        const Data::CBeamLoad& load = m_model->BeamLoad(number);
        SetSubject(L"Beam load", number);
        if (IsLoadWritten(load, {1}) && !WriteBeamLoad(load)) {
            return false;
        }
    }
    return true;
}

bool CNasFile::WriteBeamLoad(const Data::CBeamLoad& load) {
    const std::vector<int> elements = LoadedBeams(load, false);
    if (!elements.empty() && !IsCarried(load.TypeOf())) {
        AddNote(m_subjectKind, m_subjectNumber, L"is trilinear, which no card can carry");
        AddError(L"this feature does not support non-uniform member loads");
        return false;
    }
    int beyond = 0;
    for (const int element : elements) {
        const double length = m_model->ElemLen(element);
        const bool isOn = load.TypeOf() == BeamLoadType::Point
                              ? IsOnElement(load.Point(1), length)
                              : !StretchOf(load, length, false).IsEmpty();
        beyond += isOn ? 0 : 1;
        if (isOn) {
            WriteBeamLoadOn(load, element);
        }
    }
    SkipMany(beyond, L"elements", L"none of it lies on them");
    return true;
}

/// A load in a user axis becomes one card for each of its global components. The words of projected
/// loads project each component square to its own axis, so that a projected one is brought to the
/// length of the beam before; so is one in the axes of the element.
void CNasFile::WriteBeamLoadOn(const Data::CBeamLoad& load, int element) {
    const Direction d = load.GetDirection();
    const bool isLocal = load.Axis() == kLocalAxis;
    if (!isLocal && CoordinateSystem(load.Axis()) == 0) {
        WriteBeamLoadCard(load, element, TypeWord(d, load.IsProjected()), 1.0);
        return;
    }
    const Vec3<double> unit = UnitBeamLoad(*m_model, load, element);
    const double share = Length(unit);
    if (isLocal && share > kLeastShare) {
        WriteBeamLoadCard(load, element, TypeWord(d, false), share);
    }
    const Vec3<double> global = m_model->ElemDC(element).LtoG(unit);
    for (int k = 0; k < 3 && !isLocal; ++k) {
        if (std::abs(global[k]) > kLeastShare) {
            const auto component = static_cast<Direction>(IsTrans(d) ? k : k + 3);
            WriteBeamLoadCard(load, element, TypeWord(component, false), global[k]);
        }
    }
}

void CNasFile::WriteBeamLoadCard(const Data::CBeamLoad& load, int element, std::string_view type,
                                 double share) {
    const bool isFraction = HasFractions(load);
    StartCard("PLOAD1");
    AddInt(load.LoadCase());
    AddInt(element);
    AddTextField(type);
    AddTextField(ScaleWord(isFraction));
    if (load.TypeOf() == BeamLoadType::Point) {
        AddReal(load.Pos(1));
        AddReal(load.Value(1) * share);
        AddBlankFields(2);
    } else {
        const LoadedStretch on = StretchOf(load, m_model->ElemLen(element), isFraction);
        AddReal(on.from);
        AddReal(on.fromValue * share);
        AddReal(on.to);
        AddReal(on.toValue * share);
    }
    EndCard();
}

}  // namespace Tevra

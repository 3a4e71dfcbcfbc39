#include <array>
#include <limits>

#include "legacy/VybConverter.h"
#include "model/VynData.h"

namespace Tevra {

namespace {

constexpr std::array kBeamKinds = {BeamLoadType::Point, BeamLoadType::Uniform, BeamLoadType::Linear,
                                   BeamLoadType::Patch, BeamLoadType::Trilinear};
/// Kinds of beam loads from this one on are prestress: force, strain, lack of fit.
constexpr int kFirstAxialKind = 11;
constexpr std::array kAxialKinds = {AxialLoadType::Force, AxialLoadType::Strain,
                                    AxialLoadType::LackOfFit};
constexpr std::array kFaceKinds = {FaceLoadType::Uniform, FaceLoadType::Corners,
                                   FaceLoadType::Equation};
constexpr std::array kBeamThermalKinds = {BeamThermalType::Uniform, BeamThermalType::GradientY,
                                          BeamThermalType::GradientZ};
/// Kinds of temperature loads from this one on act on faces: uniform, gradient.
constexpr int kFirstFaceThermalKind = 4;
constexpr std::array kFaceThermalKinds = {FaceThermalType::Uniform, FaceThermalType::Gradient};

void TakeDirection(CVybRecord& record, Data::CDirectedLoad& load) {
    load.SetAxis(record.LoadAxis());
    load.SetDirection(record.Code(kDirections));
}

/// What a beam load record holds behind its direction.
struct BeamFields {
    int kind = 0;
    bool projected = false;
    Data::LoadPoint first;
    Data::LoadPoint second;
    double y = 0.0;  ///< place of a tendon in the section
    double z = 0.0;

    static BeamFields Take(CVybRecord& record) {
        BeamFields fields;
        fields.kind = record.Int();
        fields.projected = record.Flag();
        const bool isFraction = record.Flag();
        const std::array<double, 6> values = record.Reals<6>();
        fields.first = {values[0], isFraction, values[1]};
        fields.second = {values[2], isFraction, values[3]};
        fields.y = values[4];
        fields.z = values[5];
        return fields;
    }
};

/// A trilinear load has the first value up to the first point, the second from the second on.
void SetPoints(Data::CBeamLoad& load, const BeamFields& fields) {
    if (load.TypeOf() != BeamLoadType::Trilinear) {
        load.SetPoint(1, fields.first);
        load.SetPoint(2, fields.second);
        return;
    }
    load.SetPoint(1, {0.0, true, fields.first.value});
    load.SetPoint(2, fields.first);
    load.SetPoint(3, fields.second);
    load.SetPoint(4, {1.0, true, fields.second.value});
}

/// The gradient is in K/m; it is given by the temperatures half a metre to either side.
void SetTemperature(Data::CBeamThermalLoad& load, double value) {
    constexpr double kHalf = 0.5;
    const bool isUniform = load.TypeOf() == BeamThermalType::Uniform;
    load.SetPoint(1, isUniform ? 0.0 : -kHalf, isUniform ? value : -kHalf * value);
    load.SetPoint(2, isUniform ? 0.0 : kHalf, isUniform ? value : kHalf * value);
}

/// The gradient of a face is the difference between top and bottom; the uniform part is that of
/// the middle.
void SetTemperature(Data::CFaceThermalLoad& load, double value, double uniformPart) {
    if (load.TypeOf() == FaceThermalType::Uniform) {
        load.SetValues({value});
    } else {
        load.SetValues({uniformPart + value / 2.0, uniformPart - value / 2.0});
    }
}

}  // namespace

template <class Load>
void CVybConverter::Append(CVybRecord& record, int highest, bool (CModelData::*set)(int, Load),
                           Load load) {
    if (highest == std::numeric_limits<int>::max()) {
        record.Refuse();
    }
    if (record.Good()) {
        (m_model.*set)(highest + 1, std::move(load));
    }
}

void CVybConverter::TakeLoadBase(CVybRecord& record, Data::CLoadBase& load, SelType kind) {
    load.SetLoadCase(TakeNumber(record, CVybDirectory::kLoadCaseTitles));
    load.SetLoadedEntities(ListOf(record.Reference(), kind));
}

void CVybConverter::TakeGravityLoad(CVybRecord& record) {
    Data::CGravityLoad load;
    TakeLoadBase(record, load, SelType::Element);
    load.SetValue(record.Vector());
    Append(record, m_model.HighestGravityLoad(), &CModelData::SetGravityLoad, std::move(load));
}

void CVybConverter::TakeNodeLoadFields(CVybRecord& record, Data::CNodeLoad& load) {
    TakeLoadBase(record, load, SelType::Node);
    TakeDirection(record, load);
    load.SetValue(record.Real());
}

void CVybConverter::TakeNodeLoad(CVybRecord& record) {
    Data::CNodeLoad load;
    TakeNodeLoadFields(record, load);
    Append(record, m_model.HighestNodeLoad(), &CModelData::SetNodeLoad, std::move(load));
}

void CVybConverter::TakeSettlement(CVybRecord& record) {
    Data::CSettlement load;
    TakeNodeLoadFields(record, load);
    Append(record, m_model.HighestSettlement(), &CModelData::SetSettlement, std::move(load));
}

void CVybConverter::TakeBeamLoad(CVybRecord& record) {
    Data::CBeamLoad load;
    TakeLoadBase(record, load, SelType::Element);
    const int axis = record.Int();
    const int direction = record.Int();
    const BeamFields fields = BeamFields::Take(record);
    if (fields.kind < kFirstAxialKind) {
        load.SetAxis(axis);
        load.SetDirection(record.Meaning(direction, kDirections));
        if (axis < kLocalAxis) {
            record.Refuse();
        }
        load.SetType(record.Meaning(fields.kind, kBeamKinds));
        load.SetProjected(fields.projected);
        SetPoints(load, fields);
        Append(record, m_model.HighestBeamLoad(), &CModelData::SetBeamLoad, std::move(load));
        return;
    }
    Data::CAxialLoad prestress;
    prestress.SetLoadCase(load.LoadCase());
    prestress.SetLoadedEntities(load.LoadedEntities());
    prestress.SetType(record.Meaning(fields.kind - kFirstAxialKind + 1, kAxialKinds));
    prestress.SetValue(fields.first.value);
    prestress.SetOffset(fields.y, fields.z);
    Append(record, m_model.HighestAxialLoad(), &CModelData::SetAxialLoad, std::move(prestress));
}

void CVybConverter::TakeFaceLoad(CVybRecord& record) {
    Data::CFaceLoad load;
    TakeLoadBase(record, load, SelType::Element);
    TakeDirection(record, load);
    load.SetType(record.Code(kFaceKinds));
    load.SetProjected(record.Flag());
    const std::array<double, 4> values = record.Reals<4>();
    if (load.TypeOf() == FaceLoadType::Equation) {
        load.SetEquation(values);
    } else {
        load.SetValues(values);
    }
    Append(record, m_model.HighestFaceLoad(), &CModelData::SetFaceLoad, std::move(load));
}

void CVybConverter::TakeThermalLoad(CVybRecord& record) {
    Data::CLoadBase base(SelType::Element);
    TakeLoadBase(record, base, SelType::Element);
    const int kind = record.Int();
    const double value = record.Real();
    const double uniformPart = record.Real();
    if (kind < kFirstFaceThermalKind) {
        Data::CBeamThermalLoad load;
        static_cast<Data::CLoadBase&>(load) = base;
        load.SetType(record.Meaning(kind, kBeamThermalKinds));
        SetTemperature(load, value);
        load.SetUniformPart(uniformPart);
        Append(record, m_model.HighestBeamThermalLoad(), &CModelData::SetBeamThermalLoad,
               std::move(load));
        return;
    }
    Data::CFaceThermalLoad load;
    static_cast<Data::CLoadBase&>(load) = base;
    load.SetType(record.Meaning(kind - kFirstFaceThermalKind + 1, kFaceThermalKinds));
    SetTemperature(load, value, uniformPart);
    Append(record, m_model.HighestFaceThermalLoad(), &CModelData::SetFaceThermalLoad,
           std::move(load));
}

}  // namespace Tevra

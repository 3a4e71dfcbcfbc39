#include "model/ModelData.h"
#include "platform/quorl/QuorlData.h"

// The soil records as a whole, and those of the pile-settlement program turned into them.

namespace Tevra {

namespace {

Data::CSoilProfile HostRecord(const GeoSoilProfile& from) {
    std::vector<Data::SoilLayer> layers;
    layers.reserve(from.layers.size());
    for (const GeoSoilLayer& layer : from.layers) {
        layers.push_back(
            {layer.topLevel, layer.youngTop, layer.youngBottom, layer.poissonRatio, layer.curve});
    }
    Data::CSoilProfile record;
    record.SetLayers(std::move(layers));
    return record;
}

Data::CSoilZone HostRecord(const GeoSoilZone& from) {
    Data::CSoilZone record;
    record.SetProfile(from.profile);
    record.SetExtents({from.xMin, from.yMin}, {from.xMax, from.yMax});
    return record;
}

Data::CSoilCurve HostRecord(const GeoCurve& from) {
    std::vector<Vec2<double>> points;
    points.reserve(from.points.size());
    for (const auto& [x, y] : from.points) {
        points.push_back({x, y});
    }
    Data::CSoilCurve record;
    record.SetPoints(std::move(points));
    return record;
}

Data::CPileSoilProperty HostRecord(const GeoPileSoilInteraction& from) {
    Data::CPileSoilProperty record;
    record.Set({from.baseCurve, from.shaftCurve, from.baseArea, from.shaftFrictionLimit,
                from.endBearingLimit});
    return record;
}

Data::CSoilRectLoad HostRecord(const GeoRectLoad& from) {
    Data::CSoilRectLoad record;
    record.Set({.loadCase = from.loadCase,
                .centre = {from.x, from.y, from.level},
                .angle = from.angle,
                .width = {from.widthX, from.widthY},
                .vertical = from.pressures.vertical,
                .horizontal = {from.pressures.horizontalX, from.pressures.horizontalY}});
    return record;
}

/// Sets each record of a list under its reference number.
template <class List, class Set>
void SetAll(const List& list, Set set) {
    for (const auto& from : list) {
        auto record = HostRecord(from);
        record.SetName(from.name);
        set(from.Ref(), std::move(record));
    }
}

/// Calls `remove` for every number of a table.
template <class Table, class Remove>
void RemoveAll(const Table& table, Remove remove) {
    while (table.Highest() > 0) {
        remove(table.Highest());
    }
}

/// Removes all soil records but the loads.
void DeleteSoilDefinitions(CModelData& model) {
    RemoveAll(model.SoilProfileTable(), [&model](int n) { model.BlankSoilProfile(n); });
    RemoveAll(model.SoilZoneTable(), [&model](int n) { model.DeleteSoilZone(n); });
    RemoveAll(model.SoilCurveTable(), [&model](int n) { model.BlankSoilCurve(n); });
    RemoveAll(model.PileSoilPropertyTable(), [&model](int n) { model.BlankPileSoilProperty(n); });
    RemoveAll(model.PileSoilCurveTable(), [&model](int n) { model.BlankPileSoilCurve(n); });
}

}  // namespace

bool CModelData::HasSoilData() const {
    return HighestSoilProfile() > 0 || HighestSoilZone() > 0 || HighestSoilCurve() > 0 ||
           HighestPileSoilProperty() > 0 || HighestPileSoilCurve() > 0 || HighestSoilRectLoad() > 0;
}

void CModelData::DeleteSoilData() {
    DeleteSoilDefinitions(*this);
    RemoveAll(m_SoilRectLoad, [this](int n) { DeleteSoilRectLoad(n); });
}

void CModelData::ProcessQuorlData(const QuorlData& data) {
    DeleteSoilDefinitions(*this);
    SetAll(data.soilProfiles, [this](int n, auto record) { SetSoilProfile(n, std::move(record)); });
    SetAll(data.soilZones, [this](int n, auto record) { SetSoilZone(n, std::move(record)); });
    SetAll(data.soilCurves, [this](int n, auto record) { SetSoilCurve(n, std::move(record)); });
    SetAll(data.pileSoilProperties,
           [this](int n, auto record) { SetPileSoilProperty(n, std::move(record)); });
    SetAll(data.pileSoilCurves,
           [this](int n, auto record) { SetPileSoilCurve(n, std::move(record)); });
    const QuorlSettings& from = data.settings;
    if (data.hasSettings) {
        SetRaft({from.rigidLevel, from.maxERatio, from.poissonRatio, from.stiffnessOption});
    }
}

void CModelData::ReplaceSoilRectLoads(const QuorlData& data) {
    RemoveAll(m_SoilRectLoad, [this](int n) { DeleteSoilRectLoad(n); });
    SetAll(data.rectLoads, [this](int n, auto record) { SetSoilRectLoad(n, std::move(record)); });
}

}  // namespace Tevra

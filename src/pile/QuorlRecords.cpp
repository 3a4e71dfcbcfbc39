#include <algorithm>

#include "model/VynData.h"
#include "pile/QuorlFile.h"

// The host's soil records turned into those of the pile-settlement program.

namespace Tevra {

namespace {

void Copy(const Data::CSoilProfile& from, GeoSoilProfile& to) {
    for (const Data::SoilLayer& layer : from.Layers()) {
        to.layers.push_back(
            {layer.topLevel, layer.youngTop, layer.youngBottom, layer.poissonRatio, layer.curve});
    }
}

void Copy(const Data::CSoilZone& from, GeoSoilZone& to) {
    to.profile = from.Profile();
    to.xMin = from.Lower().x;
    to.yMin = from.Lower().y;
    to.xMax = from.Upper().x;
    to.yMax = from.Upper().y;
}

void Copy(const Data::CSoilCurve& from, GeoCurve& to) {
    for (const Vec2<double>& point : from.Points()) {
        to.points.emplace_back(point.x, point.y);
    }
}

void Copy(const Data::CPileSoilProperty& from, GeoPileSoilInteraction& to) {
    const auto& values = from.Get();
    to.baseCurve = values.baseCurve;
    to.shaftCurve = values.shaftCurve;
    to.baseArea = values.baseArea;
    to.shaftFrictionLimit = values.shaftFrictionLimit;
    to.endBearingLimit = values.endBearingLimit;
}

void Copy(const Data::CSoilRectLoad& from, GeoRectLoad& to) {
    const auto& values = from.Get();
    to.loadCase = values.loadCase;
    to.x = values.centre.x;
    to.y = values.centre.y;
    to.level = values.centre.z;
    to.angle = values.angle;
    to.widthX = values.width.x;
    to.widthY = values.width.y;
    to.pressures = {values.vertical, values.horizontal.x, values.horizontal.y};
}

/// Fills a list with the records of a table, each under its number.
template <class Table, class To>
void CopyAll(const Table& table, std::vector<To>& list) {
    list.clear();
    list.reserve(static_cast<std::size_t>(table.Count()));
    for (const int number : table.Numbers()) {
        To& to = list.emplace_back();
        to.SetRef(number);
        to.name = table.Get(number).Name();
        Copy(table.Get(number), to);
    }
}

}  // namespace

void CQuorlFile::VynData2Quorl(const CVynData& model, QuorlData& data) {
    CopyAll(model.SoilProfileTable(), data.soilProfiles);
    CopyAll(model.SoilZoneTable(), data.soilZones);
    CopyAll(model.SoilCurveTable(), data.soilCurves);
    CopyAll(model.PileSoilPropertyTable(), data.pileSoilProperties);
    CopyAll(model.PileSoilCurveTable(), data.pileSoilCurves);
    CopyAll(model.SoilRectLoadTable(), data.rectLoads);
    data.settings.rigidLevel = model.RaftRigidLevel();
    data.settings.maxERatio = model.RaftMaxERatio();
    data.settings.poissonRatio = model.RaftGlobalPoissonRatio();
    data.settings.stiffnessOption = model.RaftMindLinOption();
}

void CQuorlFile::VYN2QuorlData(QuorlData& data) const {
    QuorlSettings& settings = data.settings;
    settings.method = m_boussinesq ? QuorlMethod::Boussinesq : QuorlMethod::Mindlin;
    settings.legacyMindlin = false;
    settings.modifyAboveLoads = true;
    settings.calculateHorizontal = true;
    settings.correction2009 = true;
    settings.hostRaftData = true;
    settings.includeCentres = true;
    settings.dampVerticalInHorizontal = true;
    settings.dampVerticalInVertical = true;
    settings.dampHorizontalInVertical = true;
    settings.dampHorizontalInHorizontal = true;
    VynData2Quorl(m_model, data);
    std::erase_if(data.rectLoads,
                  [this](const GeoRectLoad& load) { return load.loadCase != m_case; });
}

}  // namespace Tevra

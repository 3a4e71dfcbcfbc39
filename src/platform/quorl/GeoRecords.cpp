#include "platform/quorl/GeoRecords.h"

#include "platform/quorl/QuorlFields.h"

namespace Tevra {

namespace {

using Pairs = std::vector<std::pair<double, double>>;

/// A count, then so many pairs of numbers.
void ReadPairs(QuorlFields& fields, Pairs& pairs) {
    pairs.clear();
    for (int left = fields.Count(); left > 0 && fields.Good(); --left) {
        const double first = fields.Real();
        pairs.emplace_back(first, fields.Real());
    }
}

void WritePairs(QuorlText& text, const Pairs& pairs) {
    text.Int(static_cast<int>(pairs.size()));
    for (const auto& [first, second] : pairs) {
        text.Real(first);
        text.Real(second);
    }
}

}  // namespace

bool GeoRecord::Read(QuorlFields& fields) {
    SetRef(fields.Number());
    name = fields.Text();
    return fields.Good();
}

void GeoRecord::Write(QuorlText& text) const {
    text.Int(Ref());
    text.Text(name);
}

bool GeoSoilProfile::Read(QuorlFields& fields) {
    GeoRecord::Read(fields);
    layers.clear();
    for (int left = fields.Count(); left > 0 && fields.Good(); --left) {
        GeoSoilLayer& layer = layers.emplace_back();
        layer.topLevel = fields.Real();
        layer.youngTop = fields.Real();
        layer.youngBottom = fields.Real();
        layer.poissonRatio = fields.Real();
        layer.curve = fields.Int();
    }
    return fields.Good();
}

void GeoSoilProfile::Write(QuorlText& text) const {
    GeoRecord::Write(text);
    text.Int(static_cast<int>(layers.size()));
    for (const GeoSoilLayer& layer : layers) {
        text.Real(layer.topLevel);
        text.Real(layer.youngTop);
        text.Real(layer.youngBottom);
        text.Real(layer.poissonRatio);
        text.Int(layer.curve);
    }
}

bool GeoSoilZone::Read(QuorlFields& fields) {
    GeoRecord::Read(fields);
    profile = fields.Int();
    for (double* const value : {&xMin, &yMin, &xMax, &yMax}) {
        *value = fields.Real();
    }
    return fields.Good();
}

void GeoSoilZone::Write(QuorlText& text) const {
    GeoRecord::Write(text);
    text.Int(profile);
    for (const double value : {xMin, yMin, xMax, yMax}) {
        text.Real(value);
    }
}

bool GeoCurve::Read(QuorlFields& fields) {
    GeoRecord::Read(fields);
    ReadPairs(fields, points);
    return fields.Good();
}

void GeoCurve::Write(QuorlText& text) const {
    GeoRecord::Write(text);
    WritePairs(text, points);
}

bool GeoPileSoilInteraction::Read(QuorlFields& fields) {
    GeoRecord::Read(fields);
    baseCurve = fields.Int();
    shaftCurve = fields.Int();
    for (double* const value : {&baseArea, &shaftFrictionLimit, &endBearingLimit}) {
        *value = fields.Real();
    }
    return fields.Good();
}

void GeoPileSoilInteraction::Write(QuorlText& text) const {
    GeoRecord::Write(text);
    text.Int(baseCurve);
    text.Int(shaftCurve);
    for (const double value : {baseArea, shaftFrictionLimit, endBearingLimit}) {
        text.Real(value);
    }
}

void GeoLoad::ReadPressures(QuorlFields& fields) {
    for (double* const value :
         {&pressures.vertical, &pressures.horizontalX, &pressures.horizontalY}) {
        *value = fields.Real();
    }
}

void GeoLoad::WritePressures(QuorlText& text) const {
    for (const double value : {pressures.vertical, pressures.horizontalX, pressures.horizontalY}) {
        text.Real(value);
    }
}

bool GeoRectLoad::Read(QuorlFields& fields) {
    GeoRecord::Read(fields);
    loadCase = fields.Number();
    for (double* const value : {&x, &y, &level, &angle, &widthX, &widthY}) {
        *value = fields.Real();
    }
    ReadPressures(fields);
    return fields.Good();
}

void GeoRectLoad::Write(QuorlText& text) const {
    GeoRecord::Write(text);
    text.Int(loadCase);
    for (const double value : {x, y, level, angle, widthX, widthY}) {
        text.Real(value);
    }
    WritePressures(text);
}

bool GeoCircLoad::Read(QuorlFields& fields) {
    GeoRecord::Read(fields);
    loadCase = fields.Number();
    for (double* const value : {&x, &y, &level, &radius}) {
        *value = fields.Real();
    }
    ReadPressures(fields);
    return fields.Good();
}

void GeoCircLoad::Write(QuorlText& text) const {
    GeoRecord::Write(text);
    text.Int(loadCase);
    for (const double value : {x, y, level, radius}) {
        text.Real(value);
    }
    WritePressures(text);
}

bool GeoPolyLoad::Read(QuorlFields& fields) {
    GeoRecord::Read(fields);
    loadCase = fields.Number();
    level = fields.Real();
    ReadPairs(fields, corners);
    ReadPressures(fields);
    return fields.Good();
}

void GeoPolyLoad::Write(QuorlText& text) const {
    GeoRecord::Write(text);
    text.Int(loadCase);
    text.Real(level);
    WritePairs(text, corners);
    WritePressures(text);
}

}  // namespace Tevra

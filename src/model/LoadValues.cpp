#include "model/LoadValues.h"

#include <algorithm>
#include <cmath>

#include "model/SpanLoads.h"
#include "model/Util.h"
#include "model/VynData.h"

namespace Tevra {

namespace {

/// Share of a vector below which a component is round-off.
constexpr double kRoundOff = 1e-12;

Vec3<double> Along(Direction d, double value) {
    Vec3<double> v;
    v[static_cast<int>(ToTrans(d))] = value;
    return v;
}

double PlaceOf(const Data::LoadPoint& point, double length, bool asFraction) {
    if (point.isFraction == asFraction) {
        return point.position;
    }
    return asFraction ? point.position / length : point.position * length;
}

}  // namespace

Vec3<double> WithoutRoundOff(const Vec3<double>& v) {
    const double least = kRoundOff * std::max({std::abs(v.x), std::abs(v.y), std::abs(v.z)});
    const auto clean = [least](double c) { return std::abs(c) <= least ? 0.0 : c; };
    return {clean(v.x), clean(v.y), clean(v.z)};
}

int AxisOfNodeLoad(const CVynData& model, const Data::CNodeLoad& load, int node) {
    return load.Axis() == kLocalAxis ? model.Node(node).Axis() : load.Axis();
}

Vec3<double> GlobalNodeLoad(const CVynData& model, const Data::CNodeLoad& load, int node) {
    const Vec3<double> own = Along(load.GetDirection(), load.Value());
    const Vec3<double>& at = model.Node(node).Position();
    return WithoutRoundOff(model.AxisDC(AxisOfNodeLoad(model, load, node), at).LtoG(own));
}

Vec3<double> UnitBeamLoad(const CVynData& model, const Data::CBeamLoad& load,
                          const Util::CDirCos& axes, const Vec3<double>& middle) {
    const Direction d = load.GetDirection();
    const Vec3<double> unit = load.Axis() == kLocalAxis
                                  ? Along(d, 1.0)
                                  : axes.GtoL(model.AxisDC(load.Axis(), middle).AxisVec(d));
    const bool isProjected = load.IsProjected() && load.TypeOf() != BeamLoadType::Point;
    return isProjected ? unit * std::hypot(unit.y, unit.z) : unit;
}

Vec3<double> UnitBeamLoad(const CVynData& model, const Data::CBeamLoad& load, int element) {
    // Global and element axes are the same everywhere.
    const bool hasPlace = load.Axis() > 0;
    return UnitBeamLoad(model, load, model.ElemDC(element),
                        hasPlace ? MiddleOf(model, model.Elem(element)) : Vec3<double>{});
}

LoadedStretch StretchOf(const Data::CBeamLoad& load, double length, bool asFractions) {
    const Data::LoadPoint first = load.Point(1);
    const Data::LoadPoint second = load.Point(2);
    const SpanPart part =
        PartOnSpan(PlaceOf(first, length, asFractions), PlaceOf(second, length, asFractions),
                   asFractions ? 1.0 : length);
    const auto value = [&](double t) { return first.value * (1.0 - t) + second.value * t; };
    return {part.a, part.b, value(part.atA), value(part.atB)};
}

bool IsOnElement(const Data::LoadPoint& point, double length) {
    return IsOnSpan(point.position, point.isFraction ? 1.0 : length);
}

Vec3<double> MiddleOf(const CVynData& model, const Data::CElement& element) {
    return (model.TopoPosition(element, 1) + model.TopoPosition(element, 2)) * 0.5;
}

bool ActsOnAll(const CVynData& model, const Data::CGravityLoad& load) {
    const CEntList& elements = load.LoadedEntities();
    const auto nodes = model.NodeTable().Numbers();
    std::size_t loaded = 0;
    if (elements.TypeOf() == SelType::Element) {
        loaded = static_cast<std::size_t>(Util::NumItem(elements, model, -1, true));
    } else {
        for (const int dimension : {0, 1, 2, 3}) {
            loaded += load.GetLoadedElements(model, dimension).size();
        }
    }
    return loaded >= static_cast<std::size_t>(model.NumElem()) &&
           std::count_if(nodes.begin(), nodes.end(), [&model](int node) {
               return model.Node(node).MassProperty() > 0;
           }) <= static_cast<std::ptrdiff_t>(load.LoadedNodes(model).size());
}

double PrestressForce(const Data::CAxialLoad& load, double e, double area, double length) {
    switch (load.TypeOf()) {
        case AxialLoadType::Strain:
            return load.Value() * e * area;
        case AxialLoadType::LackOfFit:
            return load.Value() / length * e * area;
        default:
            return load.Value();
    }
}

SectionTemperature TemperatureOf(const Data::CBeamThermalLoad& load) {
    if (load.TypeOf() == BeamThermalType::Uniform) {
        return {load.Value(1), 0.0};
    }
    const double gradient = (load.Value(2) - load.Value(1)) / (load.Pos(2) - load.Pos(1));
    return {load.Value(1) - gradient * load.Pos(1) + load.UniformPart(), gradient};
}

SectionTemperature TemperatureOf(const Data::CFaceThermalLoad& load, int corners,
                                 double thickness) {
    double top = load.Value(1);
    double bottom = load.Value(2);
    if (load.TypeOf() == FaceThermalType::Uniform) {
        return {top, 0.0};
    }
    if (load.TypeOf() == FaceThermalType::General) {
        top = bottom = 0.0;
        for (int k = 1; k <= corners; ++k) {
            top += load.Value(k) / corners;
            bottom += load.Value(k + 4) / corners;
        }
    }
    return {0.5 * (top + bottom), top == bottom ? 0.0 : (top - bottom) / thickness};
}

}  // namespace Tevra

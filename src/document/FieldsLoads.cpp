#include "document/RecordFields.h"

namespace Tevra::Document {

using Data::LoadPoint;

namespace {

template <class R>
constexpr auto LoadFields() {
    return NamedFields<R>() +
           std::array{Required(Key<R, &R::LoadCase, &R::SetLoadCase>("load_case", "Load case")),
                      Key<R, &R::LoadedEntities, &R::SetLoadedEntities>(
                          "entities", "Loaded nodes, elements or members")};
}

template <class R>
constexpr auto DirectedFields() {
    return LoadFields<R>() +
           std::array{
               Key<R, &R::Axis, &R::SetAxis>("axis",
                                             "0 global, -1 the entity's own, or a user axis"),
               Required(Key<R, &R::GetDirection, &R::SetDirection>("direction", "Direction"))};
}

template <class R>
constexpr auto NodeValueFields() {
    return DirectedFields<R>() +
           std::array{Required(Key<R, &R::Value, &R::SetValue>("value", "N or Nm; m or rad"))};
}

std::vector<LoadPoint> PointsOf(const Data::CBeamLoad& load) {
    std::vector<LoadPoint> points;
    for (int k = 1; k <= load.NumPoint(); ++k) {
        points.push_back(load.Point(k));
    }
    return points;
}
void SetPointsOf(Data::CBeamLoad& load, const std::vector<LoadPoint>& points) {
    if (points.size() > 4) {
        Refuse("at most four points");
    }
    for (std::size_t i = 0; i < points.size(); ++i) {
        load.SetPoint(static_cast<int>(i) + 1, points[i]);
    }
}

Vec2<double> TendonOf(const Data::CAxialLoad& load) {
    return {load.YOffset(), load.ZOffset()};
}
void SetTendonOf(Data::CAxialLoad& load, const Vec2<double>& offset) {
    load.SetOffset(offset.x, offset.y);
}

template <int K>
Vec2<double> ThermalPoint(const Data::CBeamThermalLoad& load) {
    return {load.Pos(K), load.Value(K)};
}
template <int K>
void SetThermalPoint(Data::CBeamThermalLoad& load, const Vec2<double>& point) {
    load.SetPoint(K, point.x, point.y);
}

Vec2<double> EdgeValues(const Data::CEdgeLoad& load) {
    return {load.Value(1), load.Value(2)};
}
void SetEdgeValues(Data::CEdgeLoad& load, const Vec2<double>& values) {
    load.SetValues(values.x, values.y);
}

}  // namespace

VYN_FIELDS(LoadPoint,
           std::array{Key<LoadPoint, &LoadPoint::position>("position", "From end 1"),
                      Key<LoadPoint, &LoadPoint::isFraction>("fraction",
                                                             "True: of the length; false: metres"),
                      Required(Key<LoadPoint, &LoadPoint::value>("value", "Value there"))})

VYN_FIELDS(Data::CNodeLoad, NodeValueFields<Data::CNodeLoad>())
VYN_FIELDS(Data::CSettlement, NodeValueFields<Data::CSettlement>())
VYN_FIELDS(Data::CAppliedDisplacement, NodeValueFields<Data::CAppliedDisplacement>())

VYN_FIELDS(
    Data::CBeamLoad,
    DirectedFields<Data::CBeamLoad>() +
        std::array{
            Required(Key<Data::CBeamLoad, &Data::CBeamLoad::TypeOf, &Data::CBeamLoad::SetType>(
                "type", "Kind of load")),
            Key<Data::CBeamLoad, &Data::CBeamLoad::IsProjected, &Data::CBeamLoad::SetProjected>(
                "projected", "Per length of the projection"),
            Required(Key<Data::CBeamLoad, &PointsOf, &SetPointsOf>(
                "points",
                "One for point and uniform loads, two for linear and patch, four for "
                "trilinear loads; N or N/m, Nm or Nm/m"))})

VYN_FIELDS(Data::CBeamDist,
           DirectedFields<Data::CBeamDist>() +
               std::array{Required(
                   Key<Data::CBeamDist, &Data::CBeamDist::Point, &Data::CBeamDist::SetPoint>(
                       "point", "Place and step, m or rad"))})

VYN_FIELDS(
    Data::CAxialLoad,
    LoadFields<Data::CAxialLoad>() +
        std::array{
            Required(Key<Data::CAxialLoad, &Data::CAxialLoad::TypeOf, &Data::CAxialLoad::SetType>(
                "type", "Kind of prestress")),
            Required(Key<Data::CAxialLoad, &Data::CAxialLoad::Value, &Data::CAxialLoad::SetValue>(
                "value", "N, strain or m; tension positive")),
            Key<Data::CAxialLoad, &TendonOf, &SetTendonOf>("offset", "Of the tendon, y and z, m")})

VYN_FIELDS(Data::CBeamThermalLoad,
           LoadFields<Data::CBeamThermalLoad>() +
               std::array{
                   Required(Key<Data::CBeamThermalLoad, &Data::CBeamThermalLoad::TypeOf,
                                &Data::CBeamThermalLoad::SetType>("type", "Kind")),
                   Required(Key<Data::CBeamThermalLoad, &ThermalPoint<1>, &SetThermalPoint<1>>(
                       "point_1", "Place (m from the centroid) and change (K)")),
                   Key<Data::CBeamThermalLoad, &ThermalPoint<2>, &SetThermalPoint<2>>(
                       "point_2", "Place (m from the centroid) and change (K)"),
                   Key<Data::CBeamThermalLoad, &Data::CBeamThermalLoad::UniformPart,
                       &Data::CBeamThermalLoad::SetUniformPart>("uniform_part", "K")})

VYN_FIELDS(
    Data::CFaceLoad,
    DirectedFields<Data::CFaceLoad>() +
        std::array{
            Required(Key<Data::CFaceLoad, &Data::CFaceLoad::TypeOf, &Data::CFaceLoad::SetType>(
                "type", "Kind of load")),
            Key<Data::CFaceLoad, &Data::CFaceLoad::IsProjected, &Data::CFaceLoad::SetProjected>(
                "projected", "Per area of the projection"),
            Key<Data::CFaceLoad, &Data::CFaceLoad::Values, &Data::CFaceLoad::SetValues>(
                "values", "By corner, Pa; the first alone for uniform and point loads (N)"),
            Key<Data::CFaceLoad, &Data::CFaceLoad::Equation, &Data::CFaceLoad::SetEquation>(
                "equation", "c, x, y, z of p = c + x X + y Y + z Z"),
            Key<Data::CFaceLoad, &Data::CFaceLoad::Position, &Data::CFaceLoad::SetPosition>(
                "position", "Natural coordinates of a point load"),
            Key<Data::CFaceLoad, &Data::CFaceLoad::Face, &Data::CFaceLoad::SetFace>(
                "face", "Face of 3D elements, from 1")})

VYN_FIELDS(Data::CEdgeLoad,
           DirectedFields<Data::CEdgeLoad>() +
               std::array{
                   Key<Data::CEdgeLoad, &Data::CEdgeLoad::Edge, &Data::CEdgeLoad::SetEdge>(
                       "edge", "Between corners k and k + 1"),
                   Required(Key<Data::CEdgeLoad, &EdgeValues, &SetEdgeValues>("values",
                                                                              "At its ends, N/m"))})

VYN_FIELDS(
    Data::CInPlaneLoad,
    LoadFields<Data::CInPlaneLoad>() +
        std::array{
            Required(Key<Data::CInPlaneLoad, &Data::CInPlaneLoad::TypeOf,
                         &Data::CInPlaneLoad::SetType>("type", "Kind of prestress")),
            Required(
                Key<Data::CInPlaneLoad, &Data::CInPlaneLoad::Value, &Data::CInPlaneLoad::SetValue>(
                    "value", "N/m or strain; tension positive")),
            Key<Data::CInPlaneLoad, &Data::CInPlaneLoad::Offset, &Data::CInPlaneLoad::SetOffset>(
                "offset", "From the middle plane, m")})

VYN_FIELDS(Data::CFaceThermalLoad,
           LoadFields<Data::CFaceThermalLoad>() +
               std::array{Required(Key<Data::CFaceThermalLoad, &Data::CFaceThermalLoad::TypeOf,
                                       &Data::CFaceThermalLoad::SetType>("type", "Kind")),
                          Required(Key<Data::CFaceThermalLoad, &Data::CFaceThermalLoad::Values,
                                       &Data::CFaceThermalLoad::SetValues>(
                              "values", "K: uniform; top, bottom; top then bottom of corners"))})

VYN_FIELDS(
    Data::CGravityLoad,
    LoadFields<Data::CGravityLoad>() +
        std::array{
            Required(
                Key<Data::CGravityLoad, &Data::CGravityLoad::Value, &Data::CGravityLoad::SetValue>(
                    "factor", "Of the acceleration of gravity along x, y, z")),
            Key<Data::CGravityLoad, &Data::CGravityLoad::NodeList,
                &Data::CGravityLoad::SetNodeList>("nodes", "Nodes whose masses are accelerated")})

}  // namespace Tevra::Document

#include <algorithm>
#include <array>
#include <cmath>

#include "model/Faces.h"
#include "model/VynData.h"

namespace Tevra {

using Util::CDirCos;

namespace {

constexpr Vec3<double> kX{1.0, 0.0, 0.0};
constexpr Vec3<double> kY{0.0, 1.0, 0.0};
constexpr Vec3<double> kZ{0.0, 0.0, 1.0};
/// Sine of the angle below which a line is vertical, or a direction stands square on a face.
constexpr double kSmallSine = 0.001;
/// Share of the coordinates that they lose when they are turned into an axis.
constexpr double kRoundOff = 1e-12;
constexpr double kPi = 3.14159265358979323846;
constexpr Vec3<double> kOrigin{};

/// The part of `v` that is square to the unit vector `n`.
Vec3<double> SquareTo(const Vec3<double>& v, const Vec3<double>& n) {
    return v - n * Dot(v, n);
}

/// Direction cosines from a unit x and a direction in the half plane of +y.
CDirCos FromXAndY(const Vec3<double>& x, const Vec3<double>& yDirection) {
    const Vec3<double> y = Unit(SquareTo(yDirection, x), kY);
    return {x, y, Cross(x, y)};
}

/// Turns y towards z about x.
CDirCos Turned(const CDirCos& axes, double degrees) {
    if (degrees == 0.0) {
        return axes;
    }
    const double angle = degrees * kPi / 180.0;
    const double c = std::cos(angle);
    const double s = std::sin(angle);
    const Vec3<double>& y = axes.AxisVec(1);
    const Vec3<double>& z = axes.AxisVec(2);
    return {axes.AxisVec(0), y * c + z * s, z * c - y * s};
}

bool IsVertical(const Vec3<double>& line) {
    return std::hypot(line.x, line.y) < kSmallSine * Length(line);
}

/// Axes along a line without an orientation node.
CDirCos DefaultLineAxes(const Vec3<double>& line) {
    const Vec3<double> x = Unit(line, kX);
    if (IsVertical(line)) {
        return FromXAndY(x, kY);
    }
    const Vec3<double> z = Unit(SquareTo(kZ, x), kZ);
    return {x, Cross(z, x), z};
}

/// Axes of a cylinder (radial, tangential, along) or a sphere (radial, tangential, the third) at a
/// point; the axis's own on its z line, where no direction is radial.
CDirCos CurvedAxes(const CDirCos& axis, AxisType type, const Vec3<double>& origin,
                   const Vec3<double>& point) {
    const Vec3<double> local = axis.GtoL(point - origin);
    const double around = std::hypot(local.x, local.y);
    if (!(around > kRoundOff * (Length(origin) + Length(point)))) {
        return axis;
    }
    const Vec3<double> out{local.x / around, local.y / around, 0.0};
    const Vec3<double> tangent = axis.LtoG({-out.y, out.x, 0.0});
    const Vec3<double> radial = axis.LtoG(type == AxisType::Spherical ? Unit(local, out) : out);
    return {radial, tangent, Cross(radial, tangent)};
}

}  // namespace

CDirCos CVynData::AxisDC(int axis, const Vec3<double>& point) const {
    if (axis <= 0 || !AxisExist(axis)) {
        return {};
    }
    const Data::CAxis& record = Axis(axis);
    const CDirCos cosines(record.XAxis(), record.YAxis(), record.ZAxis());
    return record.TypeOf() == AxisType::Cartesian
               ? cosines
               : CurvedAxes(cosines, record.TypeOf(), record.Origin(), point);
}

CDirCos CVynData::NodeDC(int node) const {
    return AxisDC(Node(node).Axis(), Node(node).Position());
}

const Vec3<double>& CVynData::TopoPosition(const Data::CElement& element, int k) const {
    const Data::CNode* node = NodeTable().Find(element.Topo(k));
    return node != nullptr ? node->Position() : kOrigin;
}

namespace {

/// True when the first `count` topology nodes exist.
bool HasNodes(const CVynData& model, const Data::CElement& element, int count) {
    for (int k = 1; k <= count; ++k) {
        if (!model.NodeExist(element.Topo(k))) {
            return false;
        }
    }
    return true;
}

bool IsLine(const CVynData& model, const Data::CElement& element) {
    return element.Is1D() && HasNodes(model, element, 2);
}

/// From end 1 of a 1D element to end 2; no length when it does not have both.
Vec3<double> LineOf(const CVynData& model, const Data::CElement& element) {
    return IsLine(model, element) ? model.TopoPosition(element, 2) - model.TopoPosition(element, 1)
                                  : Vec3<double>{};
}

}  // namespace

CDirCos CVynData::LineDC(const Data::CElement& element) const {
    const Vec3<double> line = LineOf(*this, element);
    if (!(Length(line) > 0.0)) {
        return {};
    }
    CDirCos axes = DefaultLineAxes(line);
    if (const Data::CNode* node = NodeTable().Find(element.OrientationNode())) {
        const Vec3<double> side = node->Position() - TopoPosition(element, 1);
        // A node on the line of the element fixes no plane.
        if (Length(SquareTo(side, axes.AxisVec(0))) > 1e-9 * (Length(side) + Length(line))) {
            axes = FromXAndY(axes.AxisVec(0), side);
        }
    }
    return Turned(axes, element.OrientationAngle());
}

namespace {

/// Mean of the topology nodes.
Vec3<double> CentreOf(const CVynData& model, const Data::CElement& element) {
    Vec3<double> sum;
    for (int k = 1; k <= element.NumTopo(); ++k) {
        sum = sum + model.TopoPosition(element, k);
    }
    return sum * (1.0 / std::max(element.NumTopo(), 1));
}

/// Twice the area of a 2D element by its corners, along its normal; none when a corner is missing.
Vec3<double> DoubleArea(const CVynData& model, const Data::CElement& element) {
    const int corners = CornerCount(element.Type());
    if (corners == 0 || !HasNodes(model, element, corners)) {
        return {};
    }
    return DoubleArea(model, element, CornersOfFace(element.Type(), 1));
}

}  // namespace

CDirCos CVynData::FaceDC(const Data::CElement& element) const {
    const Vec3<double> normal = DoubleArea(*this, element);
    if (!(Length(normal) > 0.0)) {
        return {};
    }
    const Vec3<double> z = Unit(normal, kZ);
    const CDirCos axis = AxisDC(Prop2D(element.Property()).Axis(), CentreOf(*this, element));
    // The axis's x, or the next of its directions when that stands on the face.
    for (int k = 0; k < 3; ++k) {
        const Vec3<double> along = SquareTo(axis.AxisVec(k), z);
        if (Length(along) > kSmallSine) {
            const Vec3<double> x = Unit(along, kX);
            return {x, Cross(z, x), z};
        }
    }
    return {};
}

CDirCos CVynData::ElemDC(int element) const {
    const Data::CElement& record = Elem(element);
    switch (InfoOf(record.Type()).property) {
        case PropertyType::Spring:
            return AxisDC(SpringProp(record.Property()).Axis(), TopoPosition(record, 1));
        case PropertyType::Damper:
            return AxisDC(DamperProp(record.Property()).Axis(), TopoPosition(record, 1));
        case PropertyType::Prop2D:
            return FaceDC(record);
        case PropertyType::Prop3D:
            return AxisDC(Prop3D(record.Property()).Axis(), CentreOf(*this, record));
        default:
            return LineDC(record);
    }
}

double CVynData::ElemLen(int element) const {
    const Data::CElement& record = Elem(element);
    if (!IsLine(*this, record)) {
        return 0.0;
    }
    const double nodes = Length(LineOf(*this, record));
    return std::max(nodes - record.Offset().X1() + record.Offset().X2(), 0.0);
}

double CVynData::ElemArea(int element) const {
    return 0.5 * Length(DoubleArea(*this, Elem(element)));
}

double CVynData::ElementThickness(int element) const {
    const Data::CElement& record = Elem(element);
    return record.Is2D() ? Prop2D(record.Property()).Thickness() : 0.0;
}

bool CVynData::ElemIsVertical(int element) const {
    return IsVertical(LineOf(*this, Elem(element)));
}

bool CVynData::IsTotalOffset(int element) const {
    const Vec3<double> none{};
    return !(TotalLocalOffset(element, 1) == none) || !(TotalLocalOffset(element, 2) == none);
}

Vec3<double> CVynData::TotalLocalOffset(int element, int end) const {
    const Data::CElement& record = Elem(element);
    const Data::COffset& offset = record.Offset();
    const Vec2<double> section =
        record.IsSection() ? Section(record.Property()).CentroidOffset() : Vec2<double>{};
    return {end == 2 ? offset.X2() : offset.X1(), offset.Y() + section.x, offset.Z() + section.y};
}

Vec3<double> CVynData::TotalGlobalOffset(int element, int end) const {
    return ElemDC(element).LtoG(TotalLocalOffset(element, end));
}

}  // namespace Tevra

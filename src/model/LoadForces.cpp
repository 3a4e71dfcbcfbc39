#include "model/LoadForces.h"

#include <cmath>

#include "model/SpanLoads.h"
#include "model/VynData.h"

namespace Tevra {

LoadedLine LoadedLine::Of(const CVynData& model, int element) {
    const Data::CElement& record = model.Elem(element);
    return {model.ElemLen(element), model.ElemDC(element),
            (model.TopoPosition(record, 1) + model.TopoPosition(record, 2)) * 0.5};
}

namespace {

/// What a load of 1 in the direction of a beam load is in element axes.
Vec3<double> UnitLoad(const CVynData& model, const LoadedLine& line, const Data::CBeamLoad& load) {
    const int k = ToTrans(load.GetDirection()) - Direction::X;
    Vec3<double> unit;
    unit[k] = 1.0;
    if (load.Axis() != kLocalAxis) {
        unit = line.axes.GtoL(model.AxisDC(load.Axis(), line.middle).AxisVec(k));
    }
    const bool isProjected = load.IsProjected() && load.TypeOf() != BeamLoadType::Point;
    return isProjected ? unit * std::hypot(unit.y, unit.z) : unit;
}

double Metres(const Data::LoadPoint& point, double length) {
    return point.isFraction ? point.position * length : point.position;
}

}  // namespace

void AddBeamLoad(const CVynData& model, const LoadedLine& line, const Data::CBeamLoad& load,
                 double factor, SpanLoads& loads) {
    const Vec3<double> unit = UnitLoad(model, line, load) * factor;
    if (load.TypeOf() == BeamLoadType::Point) {
        loads.AddPoint(Metres(load.Point(1), line.length), unit * load.Value(1), line.length);
        return;
    }
    const int last = load.TypeOf() == BeamLoadType::Trilinear ? 4 : 2;
    for (int k = 1; k < last; ++k) {
        loads.AddPiece({Metres(load.Point(k), line.length), Metres(load.Point(k + 1), line.length),
                        unit * load.Value(k), unit * load.Value(k + 1)},
                       line.length);
    }
}

Vec3<double> BeamLoadSum(const CVynData& model, const LoadedLine& line,
                         const Data::CBeamLoad& load) {
    SpanLoads loads;
    if (line.length > 0.0) {
        AddBeamLoad(model, line, load, 1.0, loads);
    }
    Vec3<double> sum;
    for (const SpanPiece& piece : loads.Pieces()) {
        sum = sum + (piece.first + piece.last) * (0.5 * (piece.b - piece.a));
    }
    for (const SpanPoint& point : loads.Points()) {
        sum = sum + point.value;
    }
    return sum;
}

namespace {

/// The corners of a face as places in the topology, the fourth 0 for triangles.
SolidFace CornersOf(const Data::CElement& record, int face) {
    if (record.Is2D()) {
        return {1, 2, 3, CornerCount(record.Type()) == 4 ? 4 : 0};
    }
    const auto faces = FacesOf(record.Type());
    return face >= 1 && face <= static_cast<int>(faces.size())
               ? faces[static_cast<std::size_t>(face - 1)]
               : SolidFace{};
}

}  // namespace

LoadedFace LoadedFace::Of(const CVynData& model, int element, int face) {
    const Data::CElement& record = model.Elem(element);
    LoadedFace found;
    found.corners = CornersOf(record, face);
    if (!found.Exists()) {
        return found;
    }
    std::array<Vec3<double>, 4> at;
    for (std::size_t k = 0; k < static_cast<std::size_t>(found.NumCorner()); ++k) {
        at[k] = model.TopoPosition(record, found.corners[k]);
        found.centre = found.centre + at[k] * (1.0 / found.NumCorner());
    }
    found.area = (found.NumCorner() == 4 ? Cross(at[2] - at[0], at[3] - at[1])
                                         : Cross(at[1] - at[0], at[2] - at[0])) *
                 0.5;
    return found;
}

bool IsNormal(const Data::CFaceLoad& load) {
    return load.Axis() == kLocalAxis && load.GetDirection() == Direction::Z;
}

Vec3<double> LoadDirection(const CVynData& model, const Data::CFaceLoad& load, int element,
                           const LoadedFace& face) {
    if (IsNormal(load)) {
        return Unit(face.area, {0.0, 0.0, 1.0});
    }
    const Util::CDirCos axes =
        load.Axis() == kLocalAxis ? model.ElemDC(element) : model.AxisDC(load.Axis(), face.centre);
    return axes.AxisVec(load.GetDirection());
}

double PressureFactor(const CVynData& model, const Data::CFaceLoad& load, int element,
                      const LoadedFace& face) {
    const double area = Length(face.area);
    if (load.TypeOf() == FaceLoadType::Point) {
        return 1.0 / area;
    }
    return load.IsProjected()
               ? std::abs(Dot(LoadDirection(model, load, element, face), face.area)) / area
               : 1.0;
}

double CornerPressure(const CVynData& model, const Data::CFaceLoad& load, int element, int corner) {
    return load.TypeOf() == FaceLoadType::Point ? load.Value(1)
                                                : load.GetFaceLoadValue(model, element, corner);
}

double MeanPressure(const CVynData& model, const Data::CFaceLoad& load, int element,
                    const LoadedFace& face) {
    double sum = 0.0;
    for (int k = 1; k <= face.NumCorner(); ++k) {
        sum += CornerPressure(model, load, element, k);
    }
    return sum / face.NumCorner() * PressureFactor(model, load, element, face);
}

}  // namespace Tevra

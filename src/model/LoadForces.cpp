#include "model/LoadForces.h"

#include <cmath>

#include "model/LoadValues.h"
#include "model/SpanLoads.h"
#include "model/VynData.h"

namespace Tevra {

LoadedLine LoadedLine::Of(const CVynData& model, int element) {
    const Data::CElement& record = model.Elem(element);
    return {model.ElemLen(element), model.ElemDC(element), MiddleOf(model, record)};
}

namespace {

double Metres(const Data::LoadPoint& point, double length) {
    return point.isFraction ? point.position * length : point.position;
}

}  // namespace

void AddBeamLoad(const CVynData& model, const LoadedLine& line, const Data::CBeamLoad& load,
                 double factor, SpanLoads& loads) {
    const Vec3<double> unit = UnitBeamLoad(model, load, line.axes, line.middle) * factor;
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

LoadedFace LoadedFace::Of(const CVynData& model, int element, int face) {
    const Data::CElement& record = model.Elem(element);
    LoadedFace found;
    found.corners = CornersOfFace(record.Type(), face);
    if (found.Exists()) {
        found.area = DoubleArea(model, record, found.corners) * 0.5;
        found.centre = CentreOfFace(model, record, found.corners);
    }
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

double MeanPressure(const CVynData& model, const Data::CFaceLoad& load, int element) {
    return MeanPressure(model, load, element, LoadedFace::Of(model, element, load.Face()));
}

}  // namespace Tevra

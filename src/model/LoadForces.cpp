#include "model/LoadForces.h"

#include <array>
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

namespace {

/// The share of a face that the value at each corner stands for: the integrals of the bilinear
/// shape functions by four Gauss points, exact on plane faces.
std::array<double, 4> CornerShares(const CVynData& model, const Data::CElement& record,
                                   const SolidFace& corners) {
    constexpr double kThird = 1.0 / 3.0;
    if (corners[3] == 0) {
        return {kThird, kThird, kThird, 0.0};
    }
    constexpr std::array<double, 4> kR{-1.0, 1.0, 1.0, -1.0};  // of the corners, and so on
    constexpr std::array<double, 4> kS{-1.0, -1.0, 1.0, 1.0};
    constexpr double kGauss = 0.57735026918962576;  // 1 / sqrt(3)
    std::array<double, 4> shares{};
    double whole = 0.0;
    for (std::size_t point = 0; point < 4; ++point) {
        const double r = kGauss * kR[point];
        const double s = kGauss * kS[point];
        Vec3<double> alongR;
        Vec3<double> alongS;
        for (std::size_t i = 0; i < 4; ++i) {
            const Vec3<double>& at = model.TopoPosition(record, corners[i]);
            alongR = alongR + at * (0.25 * kR[i] * (1.0 + kS[i] * s));
            alongS = alongS + at * (0.25 * kS[i] * (1.0 + kR[i] * r));
        }
        const double area = Length(Cross(alongR, alongS));
        whole += area;
        for (std::size_t i = 0; i < 4; ++i) {
            shares[i] += area * 0.25 * (1.0 + kR[i] * r) * (1.0 + kS[i] * s);
        }
    }
    for (double& share : shares) {
        share /= whole;
    }
    return shares;
}

}  // namespace

double MeanPressure(const CVynData& model, const Data::CFaceLoad& load, int element,
                    const LoadedFace& face) {
    const double factor = PressureFactor(model, load, element, face);
    if (!face.Exists() || load.TypeOf() == FaceLoadType::Uniform ||
        load.TypeOf() == FaceLoadType::Point) {
        return CornerPressure(model, load, element, 1) * factor;
    }
    const std::array<double, 4> shares = CornerShares(model, model.Elem(element), face.corners);
    double mean = 0.0;
    for (int k = 1; k <= face.NumCorner(); ++k) {
        mean += shares[static_cast<std::size_t>(k - 1)] * CornerPressure(model, load, element, k);
    }
    return mean * factor;
}

double MeanPressure(const CVynData& model, const Data::CFaceLoad& load, int element) {
    return MeanPressure(model, load, element, LoadedFace::Of(model, element, load.Face()));
}

}  // namespace Tevra

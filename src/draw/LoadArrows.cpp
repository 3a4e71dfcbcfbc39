#include "draw/LoadArrows.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "model/LoadForces.h"
#include "model/LoadValues.h"
#include "model/Placed.h"
#include "model/SpanLoads.h"
#include "model/VynData.h"

namespace Tevra {

namespace {

/// Arrows of all loads beyond which the arrows of different loads keep their distance too.
constexpr std::size_t kManyArrows = 4000;
/// Arrows beyond which they are thinned out, to spots of so many spacings.
constexpr std::size_t kMostArrows = 600;
constexpr double kWideSpacing = 1.6;
/// Most arrows along a line.
constexpr double kMostAlong = 60.0;
/// Spots are smaller than the spacing, so that arrows at regular places all have room.
constexpr double kSpotShare = 0.6;

ArrowKind AlongLine(Direction d) {
    return IsTrans(d) ? ArrowKind::LineForce : ArrowKind::LineMoment;
}

ArrowKind AtPoint(Direction d) {
    return IsTrans(d) ? ArrowKind::Force : ArrowKind::Moment;
}

Vec3<double> Between(const std::array<Vec3<double>, 2>& ends, double share) {
    return ends[0] + (ends[1] - ends[0]) * share;
}

/// Whether a direction in the axes of the view is seen end on.
bool IsEndOn(const Vec3<double>& direction) {
    constexpr double kLeastShare = 0.1;
    return std::hypot(direction.x, direction.y) < kLeastShare * Length(direction);
}

/// Whether a direction is seen along a line, so that arrows on the line would hide it.
bool IsSeenAlong(const Vec3<double>& direction, const Vec3<double>& line) {
    constexpr double kSmallSine = 0.15;
    const double both = std::hypot(direction.x, direction.y) * std::hypot(line.x, line.y);
    return both > 0.0 && !IsEndOn(direction) &&
           std::abs(direction.x * line.y - direction.y * line.x) < kSmallSine * both;
}

Vec3<double> EndOf(const CVynData& model, int element, int end) {
    return model.TopoPosition(model.Elem(element), end) + model.TotalGlobalOffset(element, end);
}

/// Calls `use` for each load of a load case.
template <class Load, class Use>
void ForLoads(const NumberedTable<Load>& loads, int loadCase, Use use) {
    for (const int number : loads.Numbers()) {
        if (loads.Get(number).LoadCase() == loadCase) {
            use(loads.Get(number));
        }
    }
}

template <class Load>
int LowestCase(const NumberedTable<Load>& loads, int lowest) {
    for (const int number : loads.Numbers()) {
        const int loadCase = loads.Get(number).LoadCase();
        if (loadCase > 0 && (lowest == 0 || loadCase < lowest)) {
            lowest = loadCase;
        }
    }
    return lowest;
}

template <class Load>
int CountIn(const NumberedTable<Load>& loads, int loadCase) {
    int count = 0;
    ForLoads(loads, loadCase, [&count](const Load&) { ++count; });
    return count;
}

}  // namespace

CLoadArrows::CLoadArrows(const CVynData& model, const CModelScene& scene, const Util::CDirCos& axes,
                         int loadCase, double spacing)
    : m_model(model),
      m_scene(scene),
      m_axes(axes),
      m_loadCase(loadCase),
      m_spacing(spacing),
      m_spots(spacing * kSpotShare) {
    if (loadCase < 1) {
        return;
    }
    AddNodeLoads();
    AddBeamLoads();
    AddEdgeLoads();
    AddFaceLoads();
    AddGravity();
    CountUndrawn();
    ThinOut();
}

void CLoadArrows::AddNodeLoads() {
    ForLoads(m_model.NodeLoadTable(), m_loadCase, [this](const Data::CNodeLoad& load) {
        ++m_load;
        for (const int node : load.LoadedNodes(m_model)) {
            if (m_scene.Nodes().Test(node)) {
                AddArrow({AtPoint(load.GetDirection()), m_axes.GtoL(m_model.Node(node).Position()),
                          m_axes.GtoL(GlobalNodeLoad(m_model, load, node))});
            }
        }
    });
}

void CLoadArrows::AddBeamLoads() {
    ForLoads(m_model.BeamLoadTable(), m_loadCase, [this](const Data::CBeamLoad& load) {
        ++m_load;
        for (const int element : load.GetLoadedElements(m_model, 1)) {
            const Data::CElement& record = m_model.Elem(element);
            if (record.IsSection() && HasPlacedNodes(m_model, record)) {
                AddBeamLoad(load, element);
            }
        }
    });
}

void CLoadArrows::AddBeamLoad(const Data::CBeamLoad& load, int element) {
    const LoadedLine line = LoadedLine::Of(m_model, element);
    if (!(line.length > 0.0)) {
        return;
    }
    SpanLoads loads;
    Tevra::AddBeamLoad(m_model, line, load, 1.0, loads);
    const std::array<Vec3<double>, 2> ends{m_axes.GtoL(EndOf(m_model, element, 1)),
                                           m_axes.GtoL(EndOf(m_model, element, 2))};
    const auto seen = [this, &line](const Vec3<double>& own) {
        return m_axes.GtoL(line.axes.LtoG(own));
    };
    for (const SpanPiece& piece : loads.Pieces()) {
        AddLine({AlongLine(load.GetDirection()),
                 {Between(ends, piece.a / line.length), Between(ends, piece.b / line.length)},
                 {seen(piece.first), seen(piece.last)}});
    }
    for (const SpanPoint& point : loads.Points()) {
        AddArrow({AtPoint(load.GetDirection()), Between(ends, point.a / line.length),
                  seen(point.value)});
    }
}

void CLoadArrows::AddEdgeLoads() {
    ForLoads(m_model.EdgeLoadTable(), m_loadCase, [this](const Data::CEdgeLoad& load) {
        ++m_load;
        for (const int element : load.GetLoadedElements(m_model, 2)) {
            if (HasPlacedNodes(m_model, m_model.Elem(element))) {
                AddEdgeLoad(load, element);
            }
        }
    });
}

void CLoadArrows::AddEdgeLoad(const Data::CEdgeLoad& load, int element) {
    const Data::CElement& record = m_model.Elem(element);
    const int corners = CornerCount(record.Type());
    if (load.Edge() < 1 || load.Edge() > corners) {
        return;
    }
    const Vec3<double>& first = m_model.TopoPosition(record, load.Edge());
    const Vec3<double>& last = m_model.TopoPosition(record, load.Edge() % corners + 1);
    const Util::CDirCos axes = load.Axis() == kLocalAxis
                                   ? m_model.ElemDC(element)
                                   : m_model.AxisDC(load.Axis(), (first + last) * 0.5);
    const Vec3<double> unit = m_axes.GtoL(axes.AxisVec(load.GetDirection()));
    AddLine({AlongLine(load.GetDirection()),
             {m_axes.GtoL(first), m_axes.GtoL(last)},
             {unit * load.Value(1), unit * load.Value(2)}});
}

void CLoadArrows::AddFaceLoads() {
    ForLoads(m_model.FaceLoadTable(), m_loadCase, [this](const Data::CFaceLoad& load) {
        ++m_load;
        for (const int dimension : {2, 3}) {
            for (const int element : load.GetLoadedElements(m_model, dimension)) {
                if (HasPlacedNodes(m_model, m_model.Elem(element))) {
                    AddFaceLoad(load, element);
                }
            }
        }
    });
}

void CLoadArrows::AddFaceLoad(const Data::CFaceLoad& load, int element) {
    const LoadedFace face = LoadedFace::Of(m_model, element, load.Face());
    if (!face.Exists() || !face.HasArea() || !IsTrans(load.GetDirection())) {
        return;
    }
    const Vec3<double> pressure =
        LoadDirection(m_model, load, element, face) * MeanPressure(m_model, load, element, face);
    AddArrow({ArrowKind::Pressure, m_axes.GtoL(face.centre), m_axes.GtoL(pressure)});
}

void CLoadArrows::AddGravity() {
    ForLoads(m_model.GravityLoadTable(), m_loadCase, [this](const Data::CGravityLoad& load) {
        m_gravity = IsDrawable(load.Value()) ? m_gravity + load.Value() : m_gravity;
    });
}

void CLoadArrows::CountUndrawn() {
    m_numUndrawn = CountIn(m_model.SettlementTable(), m_loadCase) +
                   CountIn(m_model.AppliedDisplacementTable(), m_loadCase) +
                   CountIn(m_model.BeamDistTable(), m_loadCase) +
                   CountIn(m_model.AxialLoadTable(), m_loadCase) +
                   CountIn(m_model.BeamThermalLoadTable(), m_loadCase) +
                   CountIn(m_model.InPlaneLoadTable(), m_loadCase) +
                   CountIn(m_model.FaceThermalLoadTable(), m_loadCase);
}

/// Arrows stand in the middle of equal parts, so that those of elements in a row are evenly spread.
void CLoadArrows::AddLine(const LoadEdge& edge) {
    const bool isLoaded =
        KeepLargest(edge.kind, edge.value[0]) && KeepLargest(edge.kind, edge.value[1]);
    if (!isLoaded || !IsDrawable(edge.at[0]) || !IsDrawable(edge.at[1])) {
        return;
    }
    const Vec3<double> line = edge.at[1] - edge.at[0];
    const Vec3<double> mean = Between(edge.value, 0.5);
    const double spacing = IsEndOn(mean) ? 2.0 * m_spacing : m_spacing;
    const double parts = std::floor(std::hypot(line.x, line.y) / spacing);
    const int count = static_cast<int>(std::clamp(parts, 1.0, kMostAlong));
    const bool isAlong = IsSeenAlong(mean, line);
    if (!isAlong && !IsEndOn(mean) &&
        (m_edges.size() < kManyArrows || HasRoom(Between(edge.at, 0.5), edge.kind))) {
        m_edges.push_back(edge);
    }
    for (int k = 0; k < count; ++k) {
        const double share = (k + 0.5) / count;
        AddArrow({edge.kind, Between(edge.at, share), Between(edge.value, share), isAlong});
    }
}

void CLoadArrows::AddArrow(const LoadArrow& arrow) {
    if (KeepLargest(arrow.kind, arrow.value) && IsDrawable(arrow.at) && Length(arrow.value) > 0.0 &&
        HasRoom(arrow.at, arrow.kind)) {
        m_arrows.push_back(arrow);
    }
}

/// Of very many arrows of a kind one is left at a spot.
void CLoadArrows::ThinOut() {
    if (m_arrows.size() <= kMostArrows) {
        return;
    }
    CSpotFilter spots(m_spacing * kWideSpacing);
    std::erase_if(m_arrows, [&spots](const LoadArrow& arrow) {
        return !spots.Passes({arrow.at.x, arrow.at.y}, static_cast<std::uint32_t>(arrow.kind));
    });
}

bool CLoadArrows::HasRoom(const Vec3<double>& at, ArrowKind kind) {
    const std::uint32_t load = m_arrows.size() < kManyArrows ? m_load : 0;
    return m_spots.Passes({at.x, at.y}, load * kNumArrowKind + static_cast<std::uint32_t>(kind));
}

/// Whether a value can be drawn; the largest of its kind is kept.
bool CLoadArrows::KeepLargest(ArrowKind kind, const Vec3<double>& value) {
    constexpr double kMost = 1e100;
    const double size = Length(value);
    if (!(size < kMost)) {
        return false;
    }
    double& largest = m_largest[static_cast<std::size_t>(kind)];
    largest = std::max(largest, size);
    return true;
}

int FirstLoadedCase(const CVynData& model) {
    int first = LowestCase(model.NodeLoadTable(), 0);
    first = LowestCase(model.BeamLoadTable(), first);
    first = LowestCase(model.EdgeLoadTable(), first);
    first = LowestCase(model.FaceLoadTable(), first);
    return first > 0 ? first : LowestCase(model.GravityLoadTable(), 0);
}

}  // namespace Tevra

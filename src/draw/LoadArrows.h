#pragma once

#include <array>
#include <string>
#include <vector>

#include "draw/ModelScene.h"
#include "draw/SpotFilter.h"
#include "model/DirCos.h"
#include "model/Types.h"

namespace Tevra {

class CVynData;
namespace Data {
class CBeamLoad;
class CEdgeLoad;
class CFaceLoad;
}  // namespace Data

/// Loads that are drawn to one scale.
enum class ArrowKind { Force, Moment, LineForce, LineMoment, Pressure };
inline constexpr int kNumArrowKind = 5;

inline bool IsMoment(ArrowKind kind) {
    return kind == ArrowKind::Moment || kind == ArrowKind::LineMoment;
}
inline bool IsAlongLine(ArrowKind kind) {
    return kind == ArrowKind::LineForce || kind == ArrowKind::LineMoment;
}

/// What the arrows of a kind stand for, as a legend says it.
std::wstring_view NameOf(ArrowKind kind);

/// A load at a place, in the axes of a view.
struct LoadArrow {
    ArrowKind kind = ArrowKind::Force;
    Vec3<double> at;       ///< where the head of the arrow is, m
    Vec3<double> value;    ///< N, Nm, N/m, N or Pa
    bool isAlong = false;  ///< points along the line that is loaded
};

/// The line over the tails of the arrows of a load along a line.
struct LoadEdge {
    ArrowKind kind = ArrowKind::LineForce;
    std::array<Vec3<double>, 2> at;
    std::array<Vec3<double>, 2> value;
};

/// The loads of a load case as arrows: forces and moments at nodes, loads along 1D elements and
/// along edges, the mean pressure of a face at its centre; gravity is a sum. Loads that are no
/// forces (temperatures, settlements, ...) have no arrows and are counted.
class CLoadArrows {
public:
    /// `spacing` is the least distance between arrows along a line, m; loads that are seen end on
    /// have twice as much.
    CLoadArrows(const CVynData& model, const CModelScene& scene, const Util::CDirCos& axes,
                int loadCase, double spacing);

    const std::vector<LoadArrow>& Arrows() const { return m_arrows; }
    const std::vector<LoadEdge>& Edges() const { return m_edges; }
    /// Largest value of a kind, 0 when there is none.
    double Largest(ArrowKind kind) const { return m_largest[static_cast<std::size_t>(kind)]; }
    /// Sum of the gravity loads as factors of the acceleration of gravity, global.
    const Vec3<double>& Gravity() const { return m_gravity; }
    /// Loads of the case that have no arrows.
    int NumUndrawn() const { return m_numUndrawn; }

private:
    void AddNodeLoads();
    void AddBeamLoads();
    void AddBeamLoad(const Data::CBeamLoad& load, int element);
    void AddEdgeLoads();
    void AddEdgeLoad(const Data::CEdgeLoad& load, int element);
    void AddFaceLoads();
    void AddFaceLoad(const Data::CFaceLoad& load, int element);
    void AddGravity();
    void CountUndrawn();
    void ThinOut();
    void AddLine(const LoadEdge& edge);
    void AddArrow(const LoadArrow& arrow);
    bool HasRoom(const Vec3<double>& at, ArrowKind kind);
    bool KeepLargest(ArrowKind kind, const Vec3<double>& value);

    const CVynData& m_model;
    const CModelScene& m_scene;
    Util::CDirCos m_axes;
    int m_loadCase;
    double m_spacing;
    CSpotFilter m_spots;
    std::uint32_t m_load = 0;  ///< counts the loads; those of one load keep their distance
    std::vector<LoadArrow> m_arrows;
    std::vector<LoadEdge> m_edges;
    std::array<double, kNumArrowKind> m_largest{};
    Vec3<double> m_gravity;
    int m_numUndrawn = 0;
};

/// The first load case with arrows on the model, without one the first with gravity; 0 when there
/// is none.
int FirstLoadedCase(const CVynData& model);

}  // namespace Tevra

#pragma once

#include <string_view>
#include <vector>

#include "draw/DrawingView.h"
#include "draw/ModelScene.h"

namespace Tevra {

/// What holds a node, as a view shows it, from what holds most to what holds least. A view along an
/// axis shows what holds the node in its plane.
enum class SupportKind {
    Fixed,    ///< neither moves nor turns
    Pinned,   ///< does not move
    Guided,   ///< moves in one direction of space
    Roller,   ///< is held in one direction
    Turning,  ///< is held against turning alone
    Across,   ///< is held across the plane of the view alone
    Spring    ///< stands on a spring
};
inline constexpr int kNumSupportKind = 7;

/// The words of a legend.
std::wstring_view NameOf(SupportKind kind);

/// The symbol of a support. Directions are those of the paper: x to the right, y down.
struct SupportMark {
    SupportKind kind = SupportKind::Fixed;
    Vec2<double> ground{0.0, 1.0};  ///< where the ground lies, of length 1
    Vec2<double> slide{};           ///< the way that a guided node goes
};

/// The symbol for a node that is held in directions of an axis; there must be one.
SupportMark MarkOf(Vbool6 restraint, const Util::CDirCos& axis, DrawingView view);

struct PlacedSupport {
    Vec3<double> place;  ///< in the axes of the view, m
    SupportMark mark;
};

/// The supports of the nodes of a scene: restraints of the node itself, springs at it, and springs
/// with one node. What holds all nodes of the model is no support.
std::vector<PlacedSupport> FindSupports(const CVynData& model, const CModelScene& scene,
                                        DrawingView view);

}  // namespace Tevra

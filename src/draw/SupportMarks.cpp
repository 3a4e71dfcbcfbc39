#include "draw/SupportMarks.h"

#include <array>
#include <cmath>

#include "model/VynData.h"

namespace Tevra {

namespace {

/// Sine of the angle to the direction of sight within which an axis is seen end on.
constexpr double kEndOn = 0.1;

/// A direction as the paper shows it, at its length there.
Vec2<double> OnPaper(const Vec3<double>& direction, const Util::CDirCos& axes) {
    const Vec3<double> seen = axes.GtoL(direction);
    return {seen.x, -seen.y};
}

double LengthOf(const Vec2<double>& v) {
    return std::hypot(v.x, v.y);
}

Vec2<double> Scaled(const Vec2<double>& v, double length) {
    const double factor = length / LengthOf(v);
    return {v.x * factor, v.y * factor};
}

/// The directions of an axis that a view shows, and how a node is held in them.
struct SeenRestraint {
    int held = 0;           ///< number of directions in which the node can't move
    int free = 0;           ///< number of those in which it can
    Vec2<double> lastHeld;  ///< one of them on the paper, of length 1
    Vec2<double> lastFree;
    bool isHeldAcross = false;  ///< in the direction that is seen end on
    bool turns = false;         ///< about any axis; in a plane, about the one that is seen end on
    bool isHeldTurning = false;

    void Add(Vbool6 restraint, int axis, const Vec3<double>& direction, DrawingView view);
};

void SeenRestraint::Add(Vbool6 restraint, int axis, const Vec3<double>& direction,
                        DrawingView view) {
    const bool isHeld = restraint.IncludesDirection(static_cast<Direction>(axis));
    const bool isHeldTurning_ = restraint.IncludesDirection(static_cast<Direction>(axis + 3));
    const Vec2<double> seen = OnPaper(direction, AxesOf(view));
    const bool isEndOn = LengthOf(seen) < kEndOn;
    if (!IsPlane(view) || isEndOn) {
        turns = turns || !isHeldTurning_;
        isHeldTurning = isHeldTurning || isHeldTurning_;
    }
    if (isEndOn) {
        isHeldAcross = isHeldAcross || isHeld;
        return;
    }
    held += isHeld ? 1 : 0;
    free += isHeld ? 0 : 1;
    (isHeld ? lastHeld : lastFree) = Scaled(seen, 1.0);
}

/// Against the direction that is held, and below the node where there is a below.
Vec2<double> GroundOf(const Vec2<double>& held) {
    const bool isLevel = std::abs(held.y) < 1e-6;
    const bool isTurned = isLevel ? held.x > 0.0 : held.y < 0.0;
    return isTurned ? Vec2<double>{-held.x, -held.y} : held;
}

}  // namespace

std::wstring_view NameOf(SupportKind kind) {
    constexpr std::array<std::wstring_view, kNumSupportKind> kNames{
        L"Fixed",         L"Pinned",         L"Guided, slides one way",
        L"Roller",        L"Held, rotation", L"Held, across view",
        L"Spring support"};
    return kNames[static_cast<std::size_t>(kind)];
}

SupportMark MarkOf(Vbool6 restraint, const Util::CDirCos& axis, DrawingView view) {
    SeenRestraint seen;
    for (int k = 0; k < 3; ++k) {
        seen.Add(restraint, k, axis.AxisVec(k), view);
    }
    SupportMark mark;
    if (seen.held == 0) {
        mark.kind =
            seen.isHeldAcross && !seen.isHeldTurning ? SupportKind::Across : SupportKind::Turning;
        return mark;
    }
    if (seen.free == 0) {
        mark.kind = seen.turns ? SupportKind::Pinned : SupportKind::Fixed;
        return mark;
    }
    if (seen.held == 1) {
        mark.kind = SupportKind::Roller;
        mark.ground = GroundOf(seen.lastHeld);
        return mark;
    }
    mark.kind = SupportKind::Guided;
    mark.slide = seen.lastFree;
    return mark;
}

std::vector<PlacedSupport> FindSupports(const CVynData& model, const CModelScene& scene,
                                        DrawingView view) {
    CBitSet grounded(model.HighestNode());
    for (const int number : model.ElemTable().Numbers()) {
        const Data::CElement& element = model.Elem(number);
        if (element.IsSpring() && element.NumTopo() == 1) {
            grounded.Set(element.Topo(1));
        }
    }
    const Util::CDirCos axes = AxesOf(view);
    std::vector<PlacedSupport> supports;
    scene.Nodes().ForEach([&](int number) {
        const Data::CNode& node = model.Node(number);
        const Vec3<double> seen = axes.GtoL(node.Position());
        if (!node.Restraint().IsNone()) {
            supports.push_back({seen, MarkOf(node.Restraint(), model.NodeDC(number), view)});
        } else if (node.SpringProperty() != 0 || grounded.Test(number)) {
            supports.push_back({seen, {SupportKind::Spring, {0.0, 1.0}, {}}});
        }
    });
    return supports;
}

}  // namespace Tevra

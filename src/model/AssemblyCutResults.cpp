#include <algorithm>
#include <cmath>

#include "model/AssemblyCut.h"
#include "model/VynData.h"

namespace Tevra {

namespace {

Vec3<double> Between(const Vec3<double>& a, const Vec3<double>& b, double t) {
    // An end stands for itself, whether the other has a result or not.
    return t == 0.0 ? a : (t == 1.0 ? b : a * (1.0 - t) + b * t);
}

/// What acts at a place: force and moment, per length or area.
struct Action {
    Vec3<double> force;
    Vec3<double> moment;
};

/// A share of an action at a place, taken to the centre of the plane.
void AddAction(InterResult& sum, const Action& action, double share, const Vec3<double>& arm) {
    sum.tran = sum.tran + action.force * share;
    sum.rot = sum.rot + (action.moment + Cross(arm, action.force)) * share;
}

Action Mean(const Action& a, const Action& b) {
    return {(a.force + b.force) * 0.5, (a.moment + b.moment) * 0.5};
}

void AddLine(const CVynData& model, const CutElement& cut, const CutPlane& plane, int analysisCase,
             InterResult& sum) {
    const Data::CElement& record = model.Elem(cut.element);
    const Util::CDirCos axes = model.ElemDC(cut.element);
    InterResult local;
    if (record.IsSpring()) {
        const SEntRef entity{SelType::Element, cut.element};
        const SCaseRef ref = AnalysisRef(analysisCase);
        local = {model.ForceSpring(entity, ref, 0), model.MomentSpring(entity, ref, 0)};
    } else {
        InterSpan span;
        span.Set(model, cut.element, analysisCase);
        local = span.Force(cut.at);
    }
    const Action action{axes.ResultLtoG(local.tran), axes.ResultLtoG(local.rot)};
    AddAction(sum, action, cut.isForward ? 1.0 : -1.0, cut.corners.front().at - plane.centre);
}

/// Forces and moments per length of a 2D element at a topology node, of the centre where nodes have
/// none, on the face with the normal `n` (element axes); the result in global axes.
Action FaceAction(const CVynData& model, int element, const SCaseRef& ref, int k,
                  const Vec3<double>& n, const Util::CDirCos& axes) {
    const int position = std::isnan(model.Force2D(element, ref, k).xx) ? 0 : k;
    const Tens2<double> f = model.Force2D(element, ref, position);
    // A membrane has neither moments nor shears, whether results say so or leave them out.
    const bool bends = model.Stress2DNumLayer(element) > 1;
    const Tens2<double> m = bends ? model.Moment2D(element, ref, position) : Tens2<double>{};
    const Vec2<double> q = bends ? model.Shear2D(element, ref, position) : Vec2<double>{};
    const Vec3<double> force{f.xx * n.x + f.xy * n.y, f.xy * n.x + f.yy * n.y,
                             q.x * n.x + q.y * n.y};
    // Stress that is positive at the top has its moment about z x its direction.
    const Vec3<double> moment{-(m.xy * n.x + m.yy * n.y), m.xx * n.x + m.xy * n.y, 0.0};
    return {axes.ResultLtoG(force), axes.ResultLtoG(moment)};
}

void AddFace(const CVynData& model, const CutElement& cut, const CutPlane& plane, int analysisCase,
             InterResult& sum) {
    const CutCorner& a = cut.corners.front();
    const CutCorner& b = cut.corners.back();
    const double length = Length(b.at - a.at);
    const Util::CDirCos axes = model.ElemDC(cut.element);
    Vec3<double> normal = Unit(Cross(b.at - a.at, axes.AxisVec(2)), {});
    normal = Dot(normal, plane.axes.AxisVec(0)) < 0.0 ? -normal : normal;
    const Vec3<double> n = axes.GtoL(normal);
    const auto actionAt = [&](const CutCorner& corner) {
        const SCaseRef ref = AnalysisRef(analysisCase);
        const Action first = FaceAction(model, cut.element, ref, corner.k1, n, axes);
        const Action second = FaceAction(model, cut.element, ref, corner.k2, n, axes);
        return Action{Between(first.force, second.force, corner.t),
                      Between(first.moment, second.moment, corner.t)};
    };
    // Simpson's rule, exact for the moment of an action that varies linearly.
    const Action first = actionAt(a);
    const Action second = actionAt(b);
    AddAction(sum, first, length / 6.0, a.at - plane.centre);
    AddAction(sum, Mean(first, second), length * 4.0 / 6.0, (a.at + b.at) * 0.5 - plane.centre);
    AddAction(sum, second, length / 6.0, b.at - plane.centre);
}

/// Traction on the plane at a topology node of a solid, of the centre where nodes have no stress.
Action Traction(const CVynData& model, int element, const SCaseRef& ref, int k,
                const Vec3<double>& n) {
    const int position = std::isnan(model.Stress3D(element, ref, k).xx) ? 0 : k;
    const TensSym3<double> s = model.Stress3D(element, ref, position);
    return {{s.xx * n.x + s.xy * n.y + s.zx * n.z, s.xy * n.x + s.yy * n.y + s.yz * n.z,
             s.zx * n.x + s.yz * n.y + s.zz * n.z},
            {}};
}

/// A place on the cut through a solid, from the centre of the plane, and the traction there.
struct Vertex {
    Vec3<double> arm;
    Action action;
};

/// The rule of the middles of the sides, exact for what varies with the square.
void AddTriangle(const Vertex& a, const Vertex& b, const Vertex& c, InterResult& sum) {
    const double area = 0.5 * Length(Cross(b.arm - a.arm, c.arm - a.arm));
    AddAction(sum, Mean(a.action, b.action), area / 3.0, (a.arm + b.arm) * 0.5);
    AddAction(sum, Mean(b.action, c.action), area / 3.0, (b.arm + c.arm) * 0.5);
    AddAction(sum, Mean(c.action, a.action), area / 3.0, (c.arm + a.arm) * 0.5);
}

void AddSolid(const CVynData& model, const CutElement& cut, const CutPlane& plane, int analysisCase,
              InterResult& sum) {
    const SCaseRef ref = AnalysisRef(analysisCase);
    const Vec3<double>& n = plane.axes.AxisVec(0);
    std::vector<Vertex> vertices;
    Vertex middle;
    const double share = 1.0 / static_cast<double>(cut.corners.size());
    for (const CutCorner& corner : cut.corners) {
        const Action first = Traction(model, cut.element, ref, corner.k1, n);
        const Action second = Traction(model, cut.element, ref, corner.k2, n);
        vertices.push_back(
            {corner.at - plane.centre, {Between(first.force, second.force, corner.t), {}}});
        middle.arm = middle.arm + vertices.back().arm * share;
        middle.action.force = middle.action.force + vertices.back().action.force * share;
    }
    for (std::size_t i = 0; i < vertices.size(); ++i) {
        AddTriangle(middle, vertices[i], vertices[(i + 1) % vertices.size()], sum);
    }
}

}  // namespace

InterResult CutForce(const CVynData& model, const CutElement& cut, const CutPlane& plane,
                     int analysisCase) {
    InterResult sum;
    const Data::CElement& record = model.Elem(cut.element);
    if (record.Is1D()) {
        AddLine(model, cut, plane, analysisCase, sum);
    } else if (record.Is2D()) {
        AddFace(model, cut, plane, analysisCase, sum);
    } else {
        AddSolid(model, cut, plane, analysisCase, sum);
    }
    return sum;
}

InterResult CutDisplacement(const CVynData& model, const CutElement& cut, const CutCorner& corner,
                            int analysisCase) {
    const Data::CElement& record = model.Elem(cut.element);
    if (record.Is1D() && model.ElemLen(cut.element) > 0.0) {
        InterSpan span;
        span.Set(model, cut.element, analysisCase);
        return span.Displacement(cut.at);
    }
    const SCaseRef ref = AnalysisRef(analysisCase);
    const int first = record.Topo(corner.k1);
    const int second = record.Topo(corner.k2);
    return {Between(model.Disp(first, ref), model.Disp(second, ref), corner.t),
            Between(model.Rotn(first, ref), model.Rotn(second, ref), corner.t)};
}

}  // namespace Tevra

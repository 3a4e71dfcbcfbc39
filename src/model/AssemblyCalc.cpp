#include "model/AssemblyCalc.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <map>

#include "model/ResultQuery.h"
#include "model/SpanLoadIndex.h"
#include "model/Util.h"
#include "model/VynData.h"

namespace Tevra::Util {

namespace {

/// Sine of the angle between a line and a plane below which the line runs along it.
constexpr double kAlong = 1e-9;

/// Fraction of the line at which it meets a grid plane; not finite where it runs along it.
double FractionAt(const CVynData& model, const Data::CAssembly& assembly, int gridPlane) {
    const Data::CGridPlane& plane = model.GridPlane(gridPlane);
    const Data::CAxis& axis = model.Axis(plane.Axis());
    const Vec3<double> up = axis.ZAxis();
    const Vec3<double>& start = model.Node(assembly.Topo(1)).Position();
    const Vec3<double> line = model.Node(assembly.Topo(2)).Position() - start;
    const double rise = Dot(line, up);
    if (!(std::fabs(rise) > kAlong * Length(line))) {
        return std::numeric_limits<double>::quiet_NaN();
    }
    return (plane.Elevation() - Dot(start - axis.Origin(), up)) / rise;
}

std::vector<double> StoreyPositions(const CVynData& model, const Data::CAssembly& assembly) {
    std::vector<int> planes;
    Items(assembly.Storeys(), planes, model);
    std::vector<double> positions;
    for (const int number : planes) {
        const double fraction = FractionAt(model, assembly, number);
        if (std::isfinite(fraction)) {
            positions.push_back(fraction);
        }
    }
    std::sort(positions.begin(), positions.end());
    return positions;
}

}  // namespace

CAssemblyCalc::CAssemblyCalc(const CVynData& model, int assembly, bool isFraction, double position)
    : CAssemblyCalc(model, assembly, CAssemblyElements(model, model.Assembly(assembly)), isFraction,
                    position) {}

CAssemblyCalc::CAssemblyCalc(const CVynData& model, int assembly, const CAssemblyElements& elements,
                             bool isFraction, double position)
    : m_model(&model),
      m_plane(CutPlane::Of(model, model.Assembly(assembly), isFraction, position)),
      m_cut(FindCut(model, model.Assembly(assembly), elements, m_plane)) {}

std::vector<double> CAssemblyCalc::Positions(const CVynData& model, int assembly, int regular) {
    const Data::CAssembly& record = model.Assembly(assembly);
    if (record.IsStorey()) {
        return StoreyPositions(model, record);
    }
    std::vector<double> positions;
    for (const CPosOn1D& position : CPosOn1D::Regular(regular)) {
        positions.push_back(position.Fraction());
    }
    return positions;
}

Vec3<double> CAssemblyCalc::Coor() const {
    return m_plane.isValid ? m_plane.centre : NoInterResult().tran;
}

/// What of the cut exists in the stage that a case was solved for.
std::vector<const CutElement*> CAssemblyCalc::CutIn(int analysisCase) const {
    const int stage = m_model->SpanLoadsByElement().StageOf(analysisCase);
    const bool isStaged = m_model->StageExist(stage);
    std::vector<const CutElement*> cuts;
    for (const CutElement& cut : m_cut) {
        if (!isStaged || IsItemIncluded(m_model->Stage(stage).Elements(),
                                        {SelType::Element, cut.element}, *m_model, -1, true)) {
            cuts.push_back(&cut);
        }
    }
    return cuts;
}

InterResult CAssemblyCalc::OwnForce(int analysisCase) const {
    const auto cuts = CutIn(analysisCase);
    if (cuts.empty()) {
        return NoInterResult();
    }
    InterResult sum;
    for (const CutElement* cut : cuts) {
        const InterResult part = CutForce(*m_model, *cut, m_plane, analysisCase);
        sum = {sum.tran + part.tran, sum.rot + part.rot};
    }
    return {m_plane.axes.GtoL(sum.tran), m_plane.axes.GtoL(sum.rot)};
}

namespace {

/// Sums over the corners of a cut for the rigid body movement nearest to theirs.
class RigidFit {
public:
    void Add(const Vec3<double>& at, const InterResult& movement) {
        m_points.push_back({at, movement});
        m_at = m_at + at;
        m_disp = m_disp + movement.tran;
        m_rotation = m_rotation + movement.rot;
    }

    /// Movement of `centre`. With arms r from the mean place and u the displacements, the rotation
    /// q minimises the sum of |u - mean u - q x r|^2, with the least weight on |rotation - q|^2.
    InterResult At(const Vec3<double>& centre) const {
        const double share = 1.0 / static_cast<double>(m_points.size());
        const Vec3<double> middle = m_at * share;
        const Vec3<double> own = m_rotation * share;
        Vec3<double> turn;
        std::array<Vec3<double>, 3> rows{};
        double spread = 0.0;
        for (const auto& [at, movement] : m_points) {
            const Vec3<double> r = at - middle;
            spread += Dot(r, r);
            turn = turn + Cross(r, movement.tran);
            for (int i = 0; i < 3; ++i) {
                rows[static_cast<std::size_t>(i)] = rows[static_cast<std::size_t>(i)] - r * r[i];
            }
        }
        Vec3<double> rotation = own;
        if (spread > 0.0) {
            const double weight = kOwnWeight * spread;
            for (int i = 0; i < 3; ++i) {
                rows[static_cast<std::size_t>(i)][i] += spread + weight;
            }
            rotation = Solve(rows, turn + (IsNumber(own) ? own * weight : Vec3<double>{}));
        }
        const Vec3<double> arm = centre - middle;
        const bool hasArm = Length(arm) > 1e-9 * (Length(centre) + Length(middle));
        return {m_disp * share + (hasArm ? Cross(rotation, arm) : Vec3<double>{}), rotation};
    }

private:
    static constexpr double kOwnWeight = 1e-8;
    static bool IsNumber(const Vec3<double>& v) {
        return std::isfinite(v.x) && std::isfinite(v.y) && std::isfinite(v.z);
    }
    /// Cramer's rule; the matrix is symmetric and positive.
    static Vec3<double> Solve(const std::array<Vec3<double>, 3>& m, const Vec3<double>& b) {
        const double whole = Dot(m[0], Cross(m[1], m[2]));
        return Vec3<double>{Dot(b, Cross(m[1], m[2])), Dot(m[0], Cross(b, m[2])),
                            Dot(m[0], Cross(m[1], b))} *
               (1.0 / whole);
    }

    struct Point {
        Vec3<double> at;
        InterResult movement;
    };
    std::vector<Point> m_points;
    Vec3<double> m_at;
    Vec3<double> m_disp;
    Vec3<double> m_rotation;
};

}  // namespace

InterResult CAssemblyCalc::OwnDisp(int analysisCase) const {
    const auto cuts = CutIn(analysisCase);
    if (cuts.empty()) {
        return NoInterResult();
    }
    RigidFit fit;
    for (const CutElement* cut : cuts) {
        for (const CutCorner& corner : cut->corners) {
            fit.Add(corner.at, CutDisplacement(*m_model, *cut, corner, analysisCase));
        }
    }
    return fit.At(m_plane.centre);
}

Vec3<double> CAssemblyCalc::Drift(const Vec3<double>& disp, const CAssemblyCalc& below,
                                  const Vec3<double>& dispBelow) const {
    const double height = Length(m_plane.centre - below.m_plane.centre);
    return height > 0.0 ? (disp - dispBelow) * (1.0 / height) : NoInterResult().tran;
}

namespace {

/// A result of any case, from `own` that gives the one of an analysis case, each asked for once.
template <class Own>
InterResult AnyCase(const CVynData& model, const SCaseRef& ref, Own own) {
    std::map<int, InterResult> known;
    std::array<double, 6> out{};
    ForCase(model, ref, out, [&](int number, std::span<double> figures) {
        const auto [entry, isNew] = known.try_emplace(number);
        if (isNew) {
            entry->second = own(number);
        }
        for (int i = 0; i < 3; ++i) {
            figures[static_cast<std::size_t>(i)] = entry->second.tran[i];
            figures[static_cast<std::size_t>(i) + 3] = entry->second.rot[i];
        }
    });
    return {{out[0], out[1], out[2]}, {out[3], out[4], out[5]}};
}

}  // namespace

InterResult CAssemblyCalc::CalcDisp(const SCaseRef& ref) const {
    return AnyCase(*m_model, ref, [this](int number) { return OwnDisp(number); });
}

InterResult CAssemblyCalc::CalcForce(const SCaseRef& ref) const {
    return AnyCase(*m_model, ref, [this](int number) { return OwnForce(number); });
}

Vec3<double> CAssemblyCalc::CalcDrift(const SCaseRef& ref, const CAssemblyCalc& below) const {
    return AnyCase(*m_model, ref,
                   [&](int number) {
                       return InterResult{
                           Drift(OwnDisp(number).tran, below, below.OwnDisp(number).tran), {}};
                   })
        .tran;
}

}  // namespace Tevra::Util

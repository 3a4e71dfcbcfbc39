#include "model/AssemblyCut.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "model/BitSet.h"
#include "model/Faces.h"
#include "model/Util.h"
#include "model/VynData.h"

namespace Tevra {

namespace {

constexpr double kRoundOff = 1e-6;  ///< share of the assembly's length

/// Axes along the line, as those of a 1D element; node 3 lies on the +y side.
Util::CDirCos LineAxes(const CVynData& model, const Data::CAssembly& assembly,
                       const Vec3<double>& x) {
    constexpr Vec3<double> kY{0.0, 1.0, 0.0};
    constexpr Vec3<double> kZ{0.0, 0.0, 1.0};
    constexpr double kVertical = 0.001;
    Vec3<double> y = std::hypot(x.x, x.y) < kVertical ? kY : Cross(kZ, x);
    if (const Data::CNode* third = model.NodeTable().Find(assembly.Topo(3))) {
        const Vec3<double> side = third->Position() - model.Node(assembly.Topo(1)).Position();
        const Vec3<double> square = side - x * Dot(side, x);
        y = Length(square) > kRoundOff * Length(side) ? square : y;
    }
    y = Unit(y - x * Dot(y, x), kY);
    return {x, y, Cross(x, y)};
}

}  // namespace

CutPlane CutPlane::Of(const CVynData& model, const Data::CAssembly& assembly, bool isFraction,
                      double position) {
    CutPlane plane;
    if (!model.NodeExist(assembly.Topo(1)) || !model.NodeExist(assembly.Topo(2))) {
        return plane;
    }
    const Vec3<double>& start = model.Node(assembly.Topo(1)).Position();
    const Vec3<double> line = model.Node(assembly.Topo(2)).Position() - start;
    plane.length = Length(line);
    plane.isValid = plane.length > 0.0 && std::isfinite(position);
    if (plane.isValid) {
        plane.axes = LineAxes(model, assembly, line * (1.0 / plane.length));
        plane.along = isFraction ? position * plane.length : position;
        plane.centre = start + plane.axes.AxisVec(0) * plane.along;
    }
    return plane;
}

namespace {

/// Nodes that bound an element.
int CornersOf(const Data::CElement& element) {
    return element.Is2D() ? CornerCount(element.Type()) : element.NumTopo();
}

bool Carries(const CVynData& model, const Data::CElement& element) {
    return !element.IsDummy() && !element.IsDamper() &&
           !(element.Is2D() && !model.Prop2D(element.Property()).Is2DFE());
}

bool HasItsNodes(const CVynData& model, const Data::CElement& element) {
    for (int k = 1; k <= CornersOf(element); ++k) {
        if (!model.NodeExist(element.Topo(k))) {
            return false;
        }
    }
    return true;
}

/// Finds the elements of one cut.
class CutFinder {
public:
    CutFinder(const CVynData& model, const Data::CAssembly& assembly, const CutPlane& plane)
        : m_model(model), m_assembly(assembly), m_plane(plane) {}

    std::vector<CutElement> Find(const CAssemblyElements& elements) {
        for (const int number : elements.Near(m_plane.along)) {
            Add(number, m_model.Elem(number));
        }
        return m_before.empty() ? std::move(m_beyond) : std::move(m_before);
    }

private:
    double Height(const Data::CElement& element, int k) const {
        const Vec3<double> arm = m_model.TopoPosition(element, k) - m_plane.centre;
        const double height = Dot(arm, m_plane.axes.AxisVec(0));
        return std::fabs(height) <= kRoundOff * m_plane.length ? 0.0 : height;
    }

    void Add(int number, const Data::CElement& element) {
        const int corners = CornersOf(element);
        double low = 0.0;
        double high = 0.0;
        for (int k = 1; k <= corners; ++k) {
            const double height = Height(element, k);
            low = k == 1 ? height : std::min(low, height);
            high = k == 1 ? height : std::max(high, height);
        }
        // Elements that lie in the plane are not cut by it.
        const bool isBefore = low < 0.0 && high >= 0.0;
        const bool isBeyond = low <= 0.0 && high > 0.0;
        if (corners < 2 || (!isBefore && !isBeyond)) {
            return;
        }
        const CutElement cut = Cut(number, element, corners);
        if (IsWhole(element, cut) && IsWithinExtents(cut)) {
            if (isBefore) {
                m_before.push_back(cut);
            } else {
                m_beyond.push_back(cut);
            }
        }
    }

    /// True when the plane does more than touch a corner or an edge of the element.
    static bool IsWhole(const Data::CElement& element, const CutElement& cut) {
        const std::size_t least = element.Is3D() ? 3 : (element.Is2D() ? 2 : 1);
        return cut.corners.size() >= least;
    }

    CutElement Cut(int number, const Data::CElement& element, int corners) const {
        CutElement cut;
        cut.element = number;
        if (element.Is1D()) {
            CutLine(element, cut);
        } else if (element.Is2D()) {
            for (int k = 1; k <= corners; ++k) {
                CutEdge(element, k, k % corners + 1, cut);
            }
        } else {
            for (const SolidFace& face : FacesOf(element.Type())) {
                const std::size_t count = face[3] != 0 ? 4 : 3;
                for (std::size_t k = 0; k < count; ++k) {
                    CutSolidEdge(element, face[k], face[(k + 1) % count], cut);
                }
            }
            SortAround(cut);
        }
        return cut;
    }

    /// The place on the flexible part between the offset ends; a rigid end moves with it.
    void CutLine(const Data::CElement& element, CutElement& cut) const {
        const Vec3<double> start =
            m_model.TopoPosition(element, 1) + m_model.TotalGlobalOffset(cut.element, 1);
        const Vec3<double> line =
            m_model.TopoPosition(element, 2) + m_model.TotalGlobalOffset(cut.element, 2) - start;
        const Vec3<double>& x = m_plane.axes.AxisVec(0);
        cut.isForward = Height(element, 2) > Height(element, 1);
        const double along = Dot(line, x);
        const double t = along != 0.0 ? Dot(m_plane.centre - start, x) / along : 0.0;
        cut.at = CPosOn1D::FromFraction(t);
        cut.corners.push_back({start + line * std::clamp(t, 0.0, 1.0), 1, 2, cut.at.Fraction()});
    }

    /// Adds where the edge from node k1 to k2 meets the plane, k2 itself not counted.
    void CutEdge(const Data::CElement& element, int k1, int k2, CutElement& cut) const {
        const double h1 = Height(element, k1);
        const double h2 = Height(element, k2);
        if (h1 == 0.0 || h1 * h2 < 0.0) {
            const double t = h1 == 0.0 ? 0.0 : h1 / (h1 - h2);
            const Vec3<double>& a = m_model.TopoPosition(element, k1);
            const Vec3<double>& b = m_model.TopoPosition(element, k2);
            cut.corners.push_back({a * (1.0 - t) + b * t, k1, k2, t});
        }
    }

    /// The same for an edge of a solid, which each of two faces has, and a corner three.
    void CutSolidEdge(const Data::CElement& element, int k1, int k2, CutElement& cut) const {
        if (k1 > k2 && Height(element, k1) != 0.0) {
            return;  // the other face has it
        }
        const bool isKnown =
            std::any_of(cut.corners.begin(), cut.corners.end(),
                        [&](const CutCorner& known) { return known.t == 0.0 && known.k1 == k1; });
        if (!isKnown) {
            CutEdge(element, k1, k2, cut);
        }
    }

    Vec3<double> Local(const CutCorner& corner) const {
        return m_plane.axes.GtoL(corner.at - m_plane.centre);
    }

    static Vec3<double> Middle(const CutElement& cut) {
        Vec3<double> sum;
        for (const CutCorner& corner : cut.corners) {
            sum = sum + corner.at;
        }
        return sum * (1.0 / static_cast<double>(std::max<std::size_t>(cut.corners.size(), 1)));
    }

    void SortAround(CutElement& cut) const {
        const Vec3<double> middle = m_plane.axes.GtoL(Middle(cut) - m_plane.centre);
        const auto angle = [&](const CutCorner& corner) {
            const Vec3<double> local = Local(corner) - middle;
            return std::atan2(local.z, local.y);
        };
        std::sort(cut.corners.begin(), cut.corners.end(),
                  [&](const CutCorner& a, const CutCorner& b) { return angle(a) < angle(b); });
    }

    bool IsWithinExtents(const CutElement& cut) const {
        const Vec3<double> local = m_plane.axes.GtoL(Middle(cut) - m_plane.centre);
        const double slack = kRoundOff * m_plane.length;
        const auto isWithin = [slack](double value, double extent) {
            return extent == 0.0 || std::fabs(value) <= 0.5 * extent + slack;
        };
        return isWithin(local.y, m_assembly.Dy()) && isWithin(local.z, m_assembly.Dz());
    }

    const CVynData& m_model;
    const Data::CAssembly& m_assembly;
    const CutPlane& m_plane;
    std::vector<CutElement> m_before;
    std::vector<CutElement> m_beyond;
};

}  // namespace

CAssemblyElements::CAssemblyElements(const CVynData& model, const Data::CAssembly& assembly,
                                     CutScope scope) {
    const CutPlane start = CutPlane::Of(model, assembly, true, 0.0);
    if (!start.isValid) {
        return;
    }
    m_slack = kRoundOff * start.length;
    const CEntList& list = assembly.Internal();
    const CBitSet items = Util::Item(list, model, -1, true);
    for (const int number : model.ElemTable().Numbers()) {
        const Data::CElement& element = model.Elem(number);
        const bool isIn =
            list.IsEmpty() ||
            items.Test(list.TypeOf() == SelType::Member ? element.ParentMember() : number);
        const bool counts = scope == CutScope::All || Carries(model, element);
        if (!isIn || !counts || !HasItsNodes(model, element)) {
            continue;
        }
        Range range{0.0, 0.0, number};
        for (int k = 1; k <= CornersOf(element); ++k) {
            const double at =
                Dot(model.TopoPosition(element, k) - start.centre, start.axes.AxisVec(0));
            range.low = k == 1 ? at : std::min(range.low, at);
            range.high = k == 1 ? at : std::max(range.high, at);
        }
        if (std::isfinite(range.high - range.low)) {
            m_ranges.push_back(range);
            m_longest = std::max(m_longest, range.high - range.low);
        }
    }
    std::sort(m_ranges.begin(), m_ranges.end(),
              [](const Range& a, const Range& b) { return a.low < b.low; });
}

std::vector<int> CAssemblyElements::Near(double along) const {
    std::vector<int> elements;
    auto range =
        std::lower_bound(m_ranges.begin(), m_ranges.end(), along - m_longest - 2.0 * m_slack,
                         [](const Range& r, double least) { return r.low < least; });
    for (; range != m_ranges.end() && range->low <= along + m_slack; ++range) {
        if (range->high >= along - m_slack) {
            elements.push_back(range->element);
        }
    }
    std::sort(elements.begin(), elements.end());
    return elements;
}

std::vector<CutElement> FindCut(const CVynData& model, const Data::CAssembly& assembly,
                                const CAssemblyElements& elements, const CutPlane& plane) {
    return plane.isValid ? CutFinder(model, assembly, plane).Find(elements)
                         : std::vector<CutElement>{};
}

}  // namespace Tevra

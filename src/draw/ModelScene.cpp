#include "draw/ModelScene.h"

#include <algorithm>
#include <cmath>
#include <map>

#include "draw/OuterFaces.h"
#include "model/Faces.h"
#include "model/Placed.h"
#include "model/VynData.h"

namespace Tevra {

namespace {

/// Coordinates beyond this are no place in a structure, and their squares are no numbers, m.
constexpr double kFarthest = 1e100;
/// Where the light comes from, in the axes of the view: over the left shoulder of the viewer.
constexpr Vec3<double> kLight{-0.36, 0.56, 0.75};
/// Share of the size of the drawing by which planes lie before solids in the same place, lines
/// before planes, and dots before lines.
constexpr double kBefore = 1e-4;

bool IsSolid(Inks::Ink ink) {
    return ink >= Inks::kSolid && ink < Inks::kSolid + Inks::kNumShade;
}

/// An ink of 1D elements that have no section.
struct KindRow {
    PropertyType property;
    Inks::Ink ink;
    std::wstring_view text;
};
constexpr KindRow kKinds[] = {{PropertyType::Spring, Inks::kSpring, L"Springs"},
                              {PropertyType::Damper, Inks::kDamper, L"Dampers"},
                              {PropertyType::Link, Inks::kLink, L"Links"},
                              {PropertyType::Cable, Inks::kCable, L"Cables"},
                              {PropertyType::None, Inks::kSpacer, L"Spacers"}};

struct FaceKindRow {
    Inks::Ink ink;
    std::wstring_view text;
};
constexpr FaceKindRow kFaceKinds[] = {
    {Inks::kPlate, L"2D elements"}, {Inks::kPanel, L"Load panels"}, {Inks::kSolid, L"Solids"}};

}  // namespace

bool IsDrawable(const Vec3<double>& place) {
    return std::abs(place.x) < kFarthest && std::abs(place.y) < kFarthest &&
           std::abs(place.z) < kFarthest;
}

void DrawingExtent::Add(const Vec2<double>& point) {
    low = isEmpty ? point : Vec2<double>{std::min(low.x, point.x), std::min(low.y, point.y)};
    high = isEmpty ? point : Vec2<double>{std::max(high.x, point.x), std::max(high.y, point.y)};
    isEmpty = false;
}

CModelScene::CModelScene(const CVynData& model, const Util::CDirCos& axes, int mostNodes)
    : m_model(model), m_axes(axes), m_nodes(model.HighestNode()) {
    ChooseSections();
    AddElements();
    AddSolids();
    FindNodes();
    DropNodesWithoutPlace();
    AddDots(mostNodes);
    NameInks();
    Sort();
}

/// Inks go to the sections that most elements have.
void CModelScene::ChooseSections() {
    std::map<int, int> uses;
    for (const int number : m_model.ElemTable().Numbers()) {
        const Data::CElement& element = m_model.Elem(number);
        if (element.IsSection() && !element.IsDummy()) {
            ++uses[element.Property()];
        }
    }
    std::vector<std::pair<int, int>> ranked;  // uses, negative so that they sort first; section
    ranked.reserve(uses.size());
    for (const auto& [section, count] : uses) {
        ranked.emplace_back(-count, section);
    }
    std::sort(ranked.begin(), ranked.end());
    for (const auto& [count, section] : ranked) {
        if (m_sections.size() < Inks::kNumSection) {
            m_sections.push_back(section);
        }
    }
    m_numFurther = static_cast<int>(ranked.size() - m_sections.size());
    std::sort(m_sections.begin(), m_sections.end());
}

void CModelScene::AddElements() {
    for (const int number : m_model.ElemTable().Numbers()) {
        const Data::CElement& element = m_model.Elem(number);
        if (InfoOf(element.Type()).maxNodes == 0 || !HasPlacedNodes(m_model, element)) {
            ++m_numLost;
            continue;
        }
        for (int k = 1; k <= element.NumTopo(); ++k) {
            m_nodes.Set(element.Topo(k));
        }
        AddElement(number, element);
    }
}

void CModelScene::AddElement(int number, const Data::CElement& element) {
    if (element.Is1D() && element.NumTopo() >= 2) {
        AddLine(number, element);
    } else if (element.Is2D()) {
        AddPlane(element);
    }
}

/// From end to end of the element, with an arm to each node that it is offset from. A line takes
/// the depth of its nearer end, so that the edge of a plate is seen.
void CModelScene::AddLine(int number, const Data::CElement& element) {
    const bool isOffset = m_model.IsTotalOffset(number);
    std::array<Vec3<double>, 2> nodes;
    std::array<Vec3<double>, 2> ends;
    for (std::size_t k = 0; k < ends.size(); ++k) {
        const int end = static_cast<int>(k) + 1;
        nodes[k] = m_model.TopoPosition(element, end);
        ends[k] = isOffset ? nodes[k] + m_model.TotalGlobalOffset(number, end) : nodes[k];
        if (!IsDrawable(nodes[k]) || !IsDrawable(ends[k])) {
            ++m_numLost;
            return;
        }
    }
    AddLineShape(InkOfLine(element), ends[0], ends[1]);
    for (std::size_t k = 0; k < ends.size(); ++k) {
        if (!(ends[k] == nodes[k])) {
            AddLineShape(Inks::kArm, nodes[k], ends[k]);
        }
    }
}

void CModelScene::AddLineShape(Inks::Ink ink, const Vec3<double>& from, const Vec3<double>& to) {
    const Vec3<double> first = m_axes.GtoL(from);
    const Vec3<double> last = m_axes.GtoL(to);
    AddShape({ShapeKind::Line,
              ink,
              2,
              std::max(first.z, last.z),
              {Vec2<double>{first.x, first.y}, Vec2<double>{last.x, last.y}}});
}

void CModelScene::AddPlane(const Data::CElement& element) {
    const bool isPanel = m_model.Prop2D(element.Property()).IsLoadPanel();
    AddFace(element, CornersOfFace(element.Type(), 1), isPanel ? Inks::kPanel : Inks::kPlate);
}

void CModelScene::AddSolids() {
    for (const OuterFace& face : OuterFacesOf(m_model)) {
        AddFace(m_model.Elem(face.element), face.corners, Inks::kSolid);
    }
}

/// A face takes the depth of its centre.
void CModelScene::AddFace(const Data::CElement& element, const std::array<int, 4>& corners,
                          Inks::Ink firstInk) {
    Shape face{ShapeKind::Face, firstInk, 0, 0.0, {}};
    for (const int corner : corners) {
        if (corner == 0) {
            continue;
        }
        const Vec3<double>& place = m_model.TopoPosition(element, corner);
        if (!IsDrawable(place)) {
            ++m_numLost;
            return;
        }
        const Vec3<double> seen = m_axes.GtoL(place);
        face.points[face.numPoint++] = {seen.x, seen.y};
        face.depth += seen.z;
    }
    face.depth /= face.numPoint;
    face.ink = Shade(firstInk, m_axes.GtoL(DoubleArea(m_model, element, corners)));
    AddShape(face);
}

/// By the angle between the light and the side of the face that is seen.
Inks::Ink CModelScene::Shade(Inks::Ink first, const Vec3<double>& normal) const {
    const Vec3<double> seen = Unit(normal.z < 0.0 ? -normal : normal, {0.0, 0.0, 1.0});
    const double light = std::clamp(Dot(seen, kLight), 0.0, 1.0);
    return static_cast<Inks::Ink>(first + std::lround((1.0 - light) * (Inks::kNumShade - 1)));
}

Inks::Ink CModelScene::InkOfLine(const Data::CElement& element) const {
    if (element.IsDummy()) {
        return Inks::kDummy;
    }
    if (!element.IsSection()) {
        const PropertyType property = InfoOf(element.Type()).property;
        const auto* const row =
            std::find_if(std::begin(kKinds), std::end(kKinds),
                         [property](const KindRow& kind) { return kind.property == property; });
        return row != std::end(kKinds) ? row->ink : Inks::kSpacer;
    }
    const auto found = std::lower_bound(m_sections.begin(), m_sections.end(), element.Property());
    const bool isOwn = found != m_sections.end() && *found == element.Property();
    return isOwn ? static_cast<Inks::Ink>(Inks::kSection + (found - m_sections.begin()))
                 : Inks::kFurtherSection;
}

void CModelScene::FindNodes() {
    const bool isAlone = m_shapes.empty();
    for (const int number : m_model.NodeTable().Numbers()) {
        const Data::CNode& node = m_model.Node(number);
        if (isAlone || !node.Restraint().IsNone() || node.SpringProperty() != 0) {
            m_nodes.Set(number);
        }
    }
}

void CModelScene::DropNodesWithoutPlace() {
    std::vector<int> lost;
    m_nodes.ForEach([this, &lost](int number) {
        if (!IsDrawable(m_model.Node(number).Position())) {
            lost.push_back(number);
        }
    });
    for (const int number : lost) {
        m_nodes.Set(number, false);
    }
}

void CModelScene::AddDots(int mostNodes) {
    m_hasDots = m_nodes.Count() <= mostNodes;
    m_nodes.ForEach([this](int number) {
        const Vec3<double> seen = m_axes.GtoL(m_model.Node(number).Position());
        if (m_hasDots) {
            AddShape({ShapeKind::Dot, Inks::kNode, 1, seen.z, {Vec2<double>{seen.x, seen.y}}});
        } else {
            m_extent.Add({seen.x, seen.y});
        }
    });
}

void CModelScene::AddShape(const Shape& shape) {
    for (std::size_t k = 0; k < shape.numPoint; ++k) {
        m_extent.Add(shape.points[k]);
    }
    m_isUsed[shape.ink] = true;
    m_shapes.push_back(shape);
}

void CModelScene::NameInks() {
    for (std::size_t i = 0; i < m_sections.size(); ++i) {
        const std::wstring& name = m_model.Section(m_sections[i]).Name();
        m_names.push_back({static_cast<Inks::Ink>(Inks::kSection + i),
                           name.empty() ? L"Section " + std::to_wstring(m_sections[i]) : name});
    }
    if (m_numFurther > 0) {
        m_names.push_back(
            {Inks::kFurtherSection, L"Further sections (" + std::to_wstring(m_numFurther) + L")"});
    }
    for (const KindRow& row : kKinds) {
        m_names.push_back({row.ink, std::wstring(row.text)});
    }
    m_names.push_back({Inks::kDummy, L"Dummy elements"});
    m_names.push_back({Inks::kArm, L"Offsets from nodes"});
    std::erase_if(m_names, [this](const InkName& name) { return !m_isUsed[name.ink]; });
    for (const FaceKindRow& row : kFaceKinds) {
        const auto* const first = m_isUsed.begin() + row.ink;
        if (std::find(first, first + Inks::kNumShade, true) != first + Inks::kNumShade) {
            m_names.push_back({static_cast<Inks::Ink>(row.ink + 1), std::wstring(row.text)});
        }
    }
}

bool CModelScene::HasSolids() const {
    return std::any_of(m_names.begin(), m_names.end(),
                       [](const InkName& name) { return IsSolid(name.ink); });
}

void CModelScene::Sort() {
    const double before = kBefore * std::max(m_extent.Width(), m_extent.Height());
    for (Shape& shape : m_shapes) {
        const bool isSolid = shape.kind == ShapeKind::Face && IsSolid(shape.ink);
        shape.depth += before * (isSolid ? -1 : static_cast<int>(shape.kind));
    }
    std::stable_sort(m_shapes.begin(), m_shapes.end(),
                     [](const Shape& a, const Shape& b) { return a.depth < b.depth; });
}

}  // namespace Tevra

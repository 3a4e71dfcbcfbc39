#include "model/Load.h"

#include <limits>

#include "model/Faces.h"
#include "model/Util.h"
#include "model/VynData.h"

namespace Tevra::Data {

namespace {

/// The node at a corner (from 1) of a loaded face, 0 when there is none.
int CornerNode(const CElement& element, int face, int corner) {
    return corner >= 1 && corner <= 4
               ? element.Topo(
                     CornersOfFace(element.Type(), face)[static_cast<std::size_t>(corner - 1)])
               : 0;
}

}  // namespace

std::vector<int> CLoadBase::GetLoadedElements(const CVynData& model, int dimension) const {
    std::vector<int> elements;
    const auto add = [&](int number) {
        if (InfoOf(model.Elem(number).Type()).dimension == dimension) {
            elements.push_back(number);
        }
    };
    const CEntList& list = LoadedEntities();
    if (list.TypeOf() == SelType::Element) {
        Util::Item(list, model, -1, true).ForEach(add);
    } else if (list.TypeOf() == SelType::Member) {
        const CBitSet members = Util::Item(list, model, -1, true);
        for (const int number : model.ElemTable().Numbers()) {
            if (members.Test(model.Elem(number).ParentMember())) {
                add(number);
            }
        }
    }
    return elements;
}

std::vector<int> CLoadBase::LoadedNodes(const CVynData& model) const {
    std::vector<int> nodes;
    if (LoadedEntities().TypeOf() == SelType::Node) {
        Util::Items(LoadedEntities(), nodes, model);
    }
    return nodes;
}

int CBeamLoad::NumPoint() const {
    switch (m_type) {
        case BeamLoadType::Point:
        case BeamLoadType::Uniform:
            return 1;
        case BeamLoadType::Trilinear:
            return 4;
        default:
            return 2;
    }
}

LoadPoint CBeamLoad::Point(int k) const {
    if (k < 1 || k > 4) {
        return {};
    }
    const LoadPoint& given = m_points[static_cast<std::size_t>(k - 1)];
    if (m_type == BeamLoadType::Uniform && k <= 2) {
        return {k - 1.0, true, m_points[0].value};
    }
    if (m_type == BeamLoadType::Linear && k <= 2) {
        return {k - 1.0, true, given.value};
    }
    return k <= NumPoint() ? given : LoadPoint{};
}

bool CBeamLoad::operator==(const CBeamLoad& o) const {
    for (int k = 1; k <= NumPoint(); ++k) {
        if (!(Point(k) == o.Point(k))) {
            return false;
        }
    }
    return CDirectedLoad::operator==(o) && m_type == o.m_type && m_projected == o.m_projected;
}

double CFaceLoad::Value(int k) const {
    if (k < 1 || k > 4) {
        return 0.0;
    }
    return m_values[m_type == FaceLoadType::Corners ? static_cast<std::size_t>(k - 1) : 0];
}

double CFaceLoad::GetFaceLoadValue(const CVynData& model, int element, int corner) const {
    const int node = CornerNode(model.Elem(element), m_face, corner);
    if (node == 0 || m_type == FaceLoadType::Point) {
        return std::numeric_limits<double>::quiet_NaN();
    }
    if (m_type != FaceLoadType::Equation) {
        return Value(corner);
    }
    const Vec3<double>& at = model.Node(node).Position();
    return m_equation[0] + m_equation[1] * at.x + m_equation[2] * at.y + m_equation[3] * at.z;
}

bool CFaceLoad::ValidatePointLoadPosition(const CVynData& model, int element) const {
    const SolidFace corners = CornersOfFace(model.Elem(element).Type(), m_face);
    const double r = m_position.x;
    const double s = m_position.y;
    if (corners[3] != 0) {
        return r >= -1.0 && r <= 1.0 && s >= -1.0 && s <= 1.0;
    }
    return corners[0] != 0 && r >= 0.0 && s >= 0.0 && r + s <= 1.0;
}

std::vector<int> CGravityLoad::LoadedNodes(const CVynData& model) const {
    std::vector<int> nodes;
    Util::Item(m_nodes, model, -1, true).ForEach([&](int number) {
        if (model.Node(number).MassProperty() > 0) {
            nodes.push_back(number);
        }
    });
    return nodes;
}

}  // namespace Tevra::Data

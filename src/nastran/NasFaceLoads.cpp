#include <array>
#include <cmath>

#include "model/Faces.h"
#include "model/VynData.h"
#include "nastran/NasFile.h"

// Pressures on planes and on faces of solids.

namespace Tevra {

namespace {

/// The corners of the loaded face as places in the topology, the fourth 0 for triangles; all 0 when
/// a solid has no such face.
SolidFace LoadedFace(const Data::CElement& record, int face) {
    if (record.Is2D()) {
        return {1, 2, 3, CornerCount(record.Type()) == 4 ? 4 : 0};
    }
    const auto faces = FacesOf(record.Type());
    return face >= 1 && face <= static_cast<int>(faces.size())
               ? faces[static_cast<std::size_t>(face - 1)]
               : SolidFace{};
}

/// Twice the area of a face, along its normal.
Vec3<double> DoubleArea(const CVynData& model, const Data::CElement& record,
                        const SolidFace& face) {
    const Vec3<double> first = model.TopoPosition(record, face[0]);
    const Vec3<double> second = model.TopoPosition(record, face[1]);
    const Vec3<double> third = model.TopoPosition(record, face[2]);
    return face[3] != 0 ? Cross(third - first, model.TopoPosition(record, face[3]) - second)
                        : Cross(second - first, third - first);
}

Vec3<double> CentreOf(const CVynData& model, const Data::CElement& record, const SolidFace& face) {
    Vec3<double> sum;
    const int corners = face[3] != 0 ? 4 : 3;
    for (int k = 0; k < corners; ++k) {
        sum = sum + model.TopoPosition(record, face[static_cast<std::size_t>(k)]);
    }
    return sum * (1.0 / corners);
}

bool IsNormal(const Data::CFaceLoad& load) {
    return load.Axis() == kLocalAxis && load.GetDirection() == Direction::Z;
}

/// Axes of a load on an element.
Util::CDirCos LoadAxes(const CVynData& model, const Data::CFaceLoad& load, int element,
                       const Vec3<double>& at) {
    return load.Axis() == kLocalAxis ? model.ElemDC(element) : model.AxisDC(load.Axis(), at);
}

/// The nodes that name the loaded face of a solid: opposite corners of four; of a triangle of a
/// wedge a corner alone, of a tetrahedron a corner and the node off the face, of a pyramid the two
/// corners at its base.
struct FaceNodes {
    int g1 = 0;
    int g3 = 0;  ///< 0 none
};

FaceNodes NodesOfFace(const Data::CElement& record, const SolidFace& face) {
    const int first = record.Topo(face[0]);
    if (face[3] != 0) {
        return {first, record.Topo(face[2])};
    }
    switch (record.Type()) {
        case ElementType::Tetra4:
            return {first, record.Topo(10 - face[0] - face[1] - face[2])};
        case ElementType::Pyramid5:
            return {first, record.Topo(face[1])};
        default:
            return {first, 0};
    }
}

}  // namespace

bool CNasFile::WriteFaceLoads() {
    StartSection("Face loads");
    for (const int number : m_model->FaceLoadTable().Numbers()) {
        const Data::CFaceLoad& load = m_model->FaceLoad(number);
        SetSubject(L"Face load", number);
        if (!HasValidCase(load)) {
            continue;
        }
        const std::vector<int> elements = LoadedElements(load, 2);
        for (const int element : elements) {
            WriteFaceLoad(load, element);
        }
        if (elements.empty() && load.GetLoadedElements(*m_model, 3).empty()) {
            Skip(L"it loads no face of the file");
        }
    }
    return true;
}

bool CNasFile::WriteSolidFaceLoads() {
    StartSection("Face loads (solids)");
    for (const int number : m_model->FaceLoadTable().Numbers()) {
        const Data::CFaceLoad& load = m_model->FaceLoad(number);
        SetSubject(L"Face load", number);
        if (load.LoadCase() < 1) {
            continue;  // noted with the loads on planes
        }
        for (const int element : LoadedElements(load, 3)) {
            WriteFaceLoad(load, element);
        }
    }
    return true;
}

/// Projected pressures act on the area square to them. A force at a point is spread over the face.
void CNasFile::WriteFaceLoad(const Data::CFaceLoad& load, int element) {
    const Data::CElement& record = m_model->Elem(element);
    const SolidFace face = LoadedFace(record, load.Face());
    const std::wstring name = L"element " + std::to_wstring(element);
    if (face[0] == 0) {
        Skip(name + L" has no face " + std::to_wstring(load.Face()));
        return;
    }
    if (!IsTrans(load.GetDirection())) {
        Skip(L"a pressure can't turn");
        return;
    }
    const Vec3<double> area = DoubleArea(*m_model, record, face) * 0.5;
    if (!(Length(area) > 0.0)) {
        Skip(name + L" has no area");
        return;
    }
    const bool isPoint = load.TypeOf() == FaceLoadType::Point;
    if (isPoint && !load.ValidatePointLoadPosition(*m_model, element)) {
        Skip(L"its point does not lie on " + name);
        return;
    }
    double factor = isPoint ? 1.0 / Length(area) : 1.0;
    if (load.IsProjected() && !isPoint) {
        const Vec3<double> at = CentreOf(*m_model, record, face);
        const Vec3<double> along =
            LoadAxes(*m_model, load, element, at).AxisVec(load.GetDirection());
        factor *= std::abs(Dot(along, area)) / Length(area);
    }
    StartCard("PLOAD4");
    AddInt(load.LoadCase());
    AddInt(element);
    AddFacePressures(load, element, face, factor);
    if (record.Is3D()) {
        const FaceNodes nodes = NodesOfFace(record, face);
        AddInt(nodes.g1);
        if (nodes.g3 != 0) {
            AddInt(nodes.g3);
        } else if (!IsNormal(load)) {
            AddBlankFields(1);
        }
    } else if (!IsNormal(load)) {
        AddBlankFields(2);
    }
    AddFaceDirection(load, element);
    EndCard();
}

void CNasFile::AddFacePressures(const Data::CFaceLoad& load, int element,
                                const std::array<int, 4>& face, double factor) {
    const bool isTriangle = face[3] == 0;
    for (int k = 1; k <= (isTriangle ? 3 : 4); ++k) {
        const double value = load.TypeOf() == FaceLoadType::Point
                                 ? load.Value(1)
                                 : load.GetFaceLoadValue(*m_model, element, k);
        AddReal(value * factor);
    }
    AddBlankFields(isTriangle ? 1 : 0);
}

/// A load that is not square to the face names its direction: in a user axis where it has one,
/// else in global axes.
void CNasFile::AddFaceDirection(const Data::CFaceLoad& load, int element) {
    if (IsNormal(load)) {
        return;
    }
    const bool inElementAxes = load.Axis() == kLocalAxis;
    Vec3<double> direction;
    direction[static_cast<int>(load.GetDirection())] = 1.0;
    AddInt(CoordinateSystem(inElementAxes ? 0 : load.Axis()));
    AddReals(inElementAxes ? m_model->ElemDC(element).AxisVec(load.GetDirection()) : direction);
}

}  // namespace Tevra

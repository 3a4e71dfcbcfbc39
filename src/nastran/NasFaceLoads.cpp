#include <array>
#include <cmath>

#include "model/LoadForces.h"
#include "model/LoadValues.h"
#include "model/VynData.h"
#include "nastran/NasFile.h"

// Pressures on planes and on faces of solids.

namespace Tevra {

namespace {

/// The nodes that name the loaded face of a solid: opposite corners of four; of a triangle of a
/// wedge a corner alone, of a tetrahedron a corner and the node off the face, of a pyramid the two
/// corners at its base, in the order that has the normal inwards.
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
            return {record.Topo(face[1]), first};
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
        if (!IsLoadWritten(load, {2, 3})) {
            continue;
        }
        for (const int element : LoadedElements(load, 2)) {
            WriteFaceLoad(load, element);
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

/// Why a face load can't be written on an element; empty when it can.
std::wstring CNasFile::FaceLoadFault(const Data::CFaceLoad& load, int element,
                                     const LoadedFace& face) const {
    const auto name = [element] { return L"element " + std::to_wstring(element); };
    if (!face.Exists()) {
        return name() + L" has no face " + std::to_wstring(load.Face());
    }
    if (!IsTrans(load.GetDirection())) {
        return L"a pressure can't turn";
    }
    if (!face.HasArea()) {
        return name() + L" has no area";
    }
    if (load.TypeOf() == FaceLoadType::Point &&
        !load.ValidatePointLoadPosition(*m_model, element)) {
        return L"its point does not lie on " + name();
    }
    return {};
}

void CNasFile::WriteFaceLoad(const Data::CFaceLoad& load, int element) {
    const LoadedFace face = LoadedFace::Of(*m_model, element, load.Face());
    if (const std::wstring fault = FaceLoadFault(load, element, face); !fault.empty()) {
        Skip(fault);
        return;
    }
    const Data::CElement& record = m_model->Elem(element);
    StartCard("PLOAD4");
    AddInt(load.LoadCase());
    AddInt(element);
    AddFacePressures(load, element, face);
    if (record.Is3D()) {
        const FaceNodes nodes = NodesOfFace(record, face.corners);
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

void CNasFile::AddFacePressures(const Data::CFaceLoad& load, int element, const LoadedFace& face) {
    const double factor = PressureFactor(*m_model, load, element, face);
    for (int k = 1; k <= face.NumCorner(); ++k) {
        AddReal(CornerPressure(*m_model, load, element, k) * factor);
    }
    AddBlankFields(4 - face.NumCorner());
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
    AddReals(inElementAxes ? WithoutRoundOff(m_model->ElemDC(element).AxisVec(load.GetDirection()))
                           : InTargetAxes(load.Axis(), direction));
}

}  // namespace Tevra

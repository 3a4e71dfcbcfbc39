#pragma once

#include <vector>

#include "model/VynData.h"

/// Small models that tests of writers begin with.
namespace Tevra::TestSupport {

inline Data::MaterialChoice Generic(int number) {
    return {MatType::Generic, 0, number};
}

/// Nodes at these positions, from 1, and an elastic material 1.
inline CVynData ModelOf(const std::vector<Vec3<double>>& positions) {
    CVynData model;
    for (std::size_t i = 0; i < positions.size(); ++i) {
        model.SetNode(static_cast<int>(i) + 1, Data::CNode(positions[i]));
    }
    model.SetMatAnal(1, Data::CMatAnal(L"Steel", 200e9, 0.25, 7850.0, 1e-5));
    return model;
}

/// A beam between two places with a rectangle 400 x 200.
inline CVynData BeamModel(const Vec3<double>& from, const Vec3<double>& to) {
    CVynData model = ModelOf({from, to});
    model.SetSection(1, Data::CSection(L"R", L"STD%R%400%200", Generic(1)));
    model.SetElem(1, Data::CElement(ElementType::Beam, {1, 2}, 1));
    return model;
}

/// A beam of 4 m along X.
inline CVynData BeamModel() {
    return BeamModel({0, 0, 0}, {4, 0, 0});
}

/// A square plate of side 2 m, shell of 0.2 m.
inline CVynData PlateModel() {
    CVynData model = ModelOf({{0, 0, 0}, {2, 0, 0}, {2, 2, 0}, {0, 2, 0}});
    Data::CProp2D property;
    property.SetThickness(0.2);
    property.SetMaterial(Generic(1));
    model.SetProp2D(1, property);
    model.SetElem(1, Data::CElement(ElementType::Quad4, {1, 2, 3, 4}, 1));
    return model;
}

/// A load of load case 1 on these entities.
template <class Load>
Load LoadOn(const wchar_t* entities, SelType kind = SelType::Element) {
    Load load;
    load.SetLoadedEntities({entities, kind});
    return load;
}

/// A user axis at the origin.
inline Data::CAxis AxisOf(const Vec3<double>& x, const Vec3<double>& xyPlane,
                          AxisType type = AxisType::Cartesian) {
    Data::CAxis axis;
    axis.SetXAxis(x);
    axis.SetXYPlane(xyPlane);
    axis.SetType(type);
    return axis;
}

}  // namespace Tevra::TestSupport

#include <cmath>
#include <gtest/gtest.h>
#include <map>
#include <utility>
#include <vector>

#include "model/Faces.h"
#include "model/VynData.h"

namespace Tevra {
namespace {

/// A model with element 1, a solid whose nodes lie at their natural coordinates.
CVynData SolidOf(ElementType type) {
    CVynData model;
    std::vector<int> topo(static_cast<std::size_t>(InfoOf(type).maxNodes));
    for (std::size_t i = 0; i < topo.size(); ++i) {
        topo[i] = static_cast<int>(i) + 1;
    }
    model.SetElem(1, Data::CElement(type, topo, 0));
    for (const int k : topo) {
        model.SetNode(k, Data::CNode(model.ResultPosition(1, k)));
    }
    return model;
}

int NumCorner(const SolidFace& face) {
    return face[3] != 0 ? 4 : 3;
}

struct SolidCase {
    ElementType type;
    std::vector<int> corners;  ///< of each face
};

const SolidCase kSolids[] = {{ElementType::Brick8, {4, 4, 4, 4, 4, 4}},
                             {ElementType::Wedge6, {3, 3, 4, 4, 4}},
                             {ElementType::Tetra4, {3, 3, 3, 3}},
                             {ElementType::Pyramid5, {4, 3, 3, 3, 3}}};

TEST(SolidFaces, EncloseTheSolid) {
    for (const SolidCase& solid : kSolids) {
        SCOPED_TRACE(static_cast<int>(solid.type));
        const auto faces = FacesOf(solid.type);
        ASSERT_EQ(faces.size(), solid.corners.size());
        std::map<std::pair<int, int>, int> edges;
        for (std::size_t f = 0; f < faces.size(); ++f) {
            const int corners = NumCorner(faces[f]);
            EXPECT_EQ(corners, solid.corners[f]);
            for (int i = 0; i < corners; ++i) {
                ++edges[{faces[f][static_cast<std::size_t>(i)],
                         faces[f][static_cast<std::size_t>((i + 1) % corners)]}];
            }
        }
        // Each edge belongs to two faces, which run along it in opposite directions.
        for (const auto& [edge, count] : edges) {
            EXPECT_EQ(count, 1);
            EXPECT_EQ(edges.count({edge.second, edge.first}), 1U);
        }
    }
}

TEST(SolidFaces, PointOutwards) {
    for (const SolidCase& solid : kSolids) {
        const CVynData model = SolidOf(solid.type);
        const Vec3<double> centre = model.ResultPosition(1, 0);
        for (const SolidFace& face : FacesOf(solid.type)) {
            const auto at = [&](std::size_t i) { return model.Node(face[i]).Position(); };
            const Vec3<double> normal = Cross(at(1) - at(0), at(2) - at(0));
            EXPECT_GT(Dot(normal, at(0) - centre), 0.0) << static_cast<int>(solid.type);
        }
    }
    EXPECT_TRUE(FacesOf(ElementType::Quad4).empty());
    EXPECT_TRUE(FacesOf(ElementType::Beam).empty());
}

Data::CFaceLoad LoadOn(int face, FaceLoadType type) {
    Data::CFaceLoad load;
    load.SetFace(face);
    load.SetType(type);
    load.SetValues({1, 2, 3, 4});
    load.SetEquation({10, 1, 100, 1000});
    return load;
}

TEST(FaceLoads, LieAtTheCornersOfTheNumberedFace) {
    const CVynData wedge = SolidOf(ElementType::Wedge6);
    // Face 2 is the top triangle 4 5 6 at z = 1.
    const Data::CFaceLoad top = LoadOn(2, FaceLoadType::Equation);
    EXPECT_EQ(top.GetFaceLoadValue(wedge, 1, 1), 1010.0);
    EXPECT_EQ(top.GetFaceLoadValue(wedge, 1, 2), 1011.0);
    EXPECT_EQ(top.GetFaceLoadValue(wedge, 1, 3), 1110.0);
    EXPECT_TRUE(std::isnan(top.GetFaceLoadValue(wedge, 1, 4)));
    // Face 3 is the side 1 2 5 4.
    const Data::CFaceLoad side = LoadOn(3, FaceLoadType::Corners);
    EXPECT_EQ(side.GetFaceLoadValue(wedge, 1, 4), 4.0);
    for (const int corner : {0, 5, -1}) {
        EXPECT_TRUE(std::isnan(side.GetFaceLoadValue(wedge, 1, corner)));
    }
    for (const int face : {-1, 0, 6}) {
        EXPECT_TRUE(std::isnan(LoadOn(face, FaceLoadType::Uniform).GetFaceLoadValue(wedge, 1, 1)));
    }
    EXPECT_EQ(LoadOn(1, FaceLoadType::Uniform).GetFaceLoadValue(wedge, 1, 3), 1.0);
    EXPECT_TRUE(std::isnan(LoadOn(1, FaceLoadType::Point).GetFaceLoadValue(wedge, 1, 1)));
    EXPECT_TRUE(std::isnan(side.GetFaceLoadValue(wedge, 2, 1)));  // no such element
}

TEST(FaceLoads, PointsMustLieOnTheFace) {
    struct Case {
        Vec2<double> position;
        bool onQuad;
        bool onTriangle;
    };
    const double nan = std::nan("");
    const Case cases[] = {{{0, 0}, true, true},        {{0.25, 0.75}, true, true},
                          {{0.26, 0.75}, true, false}, {{-1, 1}, true, false},
                          {{1, 0}, true, true},        {{1.0001, 0}, false, false},
                          {{0, -0.001}, true, false},  {{nan, 0}, false, false}};
    CVynData model = SolidOf(ElementType::Wedge6);
    model.SetElem(2, Data::CElement(ElementType::Quad8, {1, 2, 3, 4, 5, 6, 1, 2}, 0));
    model.SetElem(3, Data::CElement(ElementType::Tri6, {1, 2, 3, 4, 5, 6}, 0));
    model.SetElem(4, Data::CElement(ElementType::Beam, {1, 2}, 0));
    for (const Case& c : cases) {
        SCOPED_TRACE(::testing::Message() << c.position.x << " " << c.position.y);
        Data::CFaceLoad load = LoadOn(0, FaceLoadType::Point);
        load.SetPosition(c.position);
        EXPECT_EQ(load.ValidatePointLoadPosition(model, 2), c.onQuad);
        EXPECT_EQ(load.ValidatePointLoadPosition(model, 3), c.onTriangle);
        EXPECT_FALSE(load.ValidatePointLoadPosition(model, 1));  // a solid without a face
        EXPECT_FALSE(load.ValidatePointLoadPosition(model, 4));
        load.SetFace(1);
        EXPECT_EQ(load.ValidatePointLoadPosition(model, 1), c.onTriangle);
        load.SetFace(5);
        EXPECT_EQ(load.ValidatePointLoadPosition(model, 1), c.onQuad);
    }
}

}  // namespace
}  // namespace Tevra

#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <string>
#include <vector>

#include "draw/DrawingView.h"
#include "draw/ModelScene.h"
#include "support/PlainModels.h"

namespace Tevra {
namespace {

using TestSupport::ModelOf;

constexpr int kMostDots = 100;

CModelScene SceneOf(const CVynData& model, DrawingView view = DrawingView::Plan) {
    return {model, AxesOf(view), kMostDots};
}

std::vector<Shape> ShapesOf(const CModelScene& scene, ShapeKind kind) {
    std::vector<Shape> shapes;
    for (const Shape& shape : scene.Shapes()) {
        if (shape.kind == kind) {
            shapes.push_back(shape);
        }
    }
    return shapes;
}

std::vector<std::wstring> NamesOf(const CModelScene& scene) {
    std::vector<std::wstring> names;
    for (const InkName& name : scene.Names()) {
        names.push_back(name.text);
    }
    return names;
}

TEST(DrawingView, PutsPlacesWhereTheyAreSeen) {
    struct Case {
        DrawingView view;
        Vec3<double> seen;
    };
    const Case cases[] = {
        {DrawingView::Plan, {1.0, 2.0, 3.0}},
        {DrawingView::XZ, {1.0, 3.0, -2.0}},
        {DrawingView::YZ, {2.0, 3.0, 1.0}},
        {DrawingView::Isometric,
         {3.0 / std::sqrt(2.0), 7.0 / std::sqrt(6.0), 2.0 / std::sqrt(3.0)}},
    };
    for (const Case& c : cases) {
        const Util::CDirCos axes = AxesOf(c.view);
        const Vec3<double> seen = axes.GtoL({1.0, 2.0, 3.0});
        EXPECT_LT(Length(seen - c.seen), 1e-12) << static_cast<int>(c.view);
        const Vec3<double> third = Cross(axes.AxisVec(0), axes.AxisVec(1));
        EXPECT_LT(Length(third - axes.AxisVec(2)), 1e-12) << static_cast<int>(c.view);
        const Vec3<double> up = axes.GtoL({0.0, 0.0, 1.0});
        const double length = std::hypot(up.x, up.y);
        if (length > 0.0) {
            EXPECT_NEAR(length, AxisScaleOf(c.view), 1e-12) << static_cast<int>(c.view);
        }
    }
}

/// Two cubes of side 1 in a row along X.
CVynData TwoBricks() {
    std::vector<Vec3<double>> places;
    for (int i = 0; i < 3; ++i) {
        for (const auto& [y, z] : {std::pair{0, 0}, {1, 0}, {1, 1}, {0, 1}}) {
            places.push_back({double(i), double(y), double(z)});
        }
    }
    CVynData model = ModelOf(places);
    model.SetElem(1, {ElementType::Brick8, {1, 5, 6, 2, 4, 8, 7, 3}, 1});
    model.SetElem(2, {ElementType::Brick8, {5, 9, 10, 6, 8, 12, 11, 7}, 1});
    return model;
}

TEST(ModelScene, ShowsFacesOfOneSolidAlone) {
    EXPECT_EQ(ShapesOf(SceneOf(TwoBricks()), ShapeKind::Face).size(), 10U);
    // A wedge on the second cube shares its top half with nothing.
    CVynData model = TwoBricks();
    model.SetNode(13, Data::CNode({1.0, 0.5, 2.0}));
    model.SetNode(14, Data::CNode({2.0, 0.5, 2.0}));
    model.SetElem(3, {ElementType::Wedge6, {8, 7, 13, 12, 11, 14}, 1});
    EXPECT_EQ(ShapesOf(SceneOf(model), ShapeKind::Face).size(), 13U);
}

TEST(ModelScene, PaintsTheFarthestFirst) {
    // The nearer plate has the lower number; a beam and nodes lie in its plane.
    CVynData model = ModelOf(
        {{0, 0, 1}, {1, 0, 1}, {1, 1, 1}, {0, 1, 1}, {0, 0, 0}, {1, 0, 0}, {1, 1, 0}, {0, 1, 0}});
    model.SetElem(1, {ElementType::Beam, {1, 3}, 1});
    model.SetElem(2, {ElementType::Quad4, {1, 2, 3, 4}, 1});
    model.SetElem(3, {ElementType::Quad4, {5, 6, 7, 8}, 1});
    const CModelScene scene = SceneOf(model);
    std::vector<ShapeKind> kinds;
    for (const Shape& shape : scene.Shapes()) {
        kinds.push_back(shape.kind);
    }
    using enum ShapeKind;
    EXPECT_EQ(kinds, (std::vector{Face, Dot, Dot, Dot, Dot, Face, Line, Dot, Dot, Dot, Dot}));
    EXPECT_NEAR(scene.Shapes()[0].depth, 0.0, 1e-3);
    EXPECT_NEAR(scene.Shapes()[5].depth, 1.0, 1e-3);
}

TEST(ModelScene, PaintsPlatesOverSolidsThatTheyCover) {
    CVynData model = TwoBricks();
    model.SetElem(3, {ElementType::Quad4, {4, 8, 7, 3}, 1});
    const CModelScene scene = SceneOf(model);
    const std::vector<Shape> faces = ShapesOf(scene, ShapeKind::Face);
    ASSERT_EQ(faces.size(), 11U);
    EXPECT_LT(faces.back().ink, Inks::kSolid);
    EXPECT_TRUE(scene.HasSolids());
}

TEST(ModelScene, GivesInksToTheSectionsOfMostElements) {
    CVynData model = ModelOf({{0, 0, 0}, {1, 0, 0}});
    int number = 0;
    for (int section = 1; section <= 14; ++section) {
        // Sections 3 and 5 have one element each, the others two.
        for (int k = 0; k < (section == 3 || section == 5 ? 1 : 2); ++k) {
            model.SetElem(++number, {ElementType::Beam, {1, 2}, section});
        }
    }
    model.SetSection(14, Data::CSection(L"Ridge", L"STD%R%100%50", TestSupport::Generic(1)));
    const CModelScene scene = SceneOf(model);
    const std::vector<std::wstring> names = NamesOf(scene);
    ASSERT_EQ(names.size(), 13U);
    EXPECT_EQ(names[0], L"Section 1");
    EXPECT_EQ(names[2], L"Section 4");
    EXPECT_EQ(names[11], L"Ridge");
    EXPECT_EQ(names[12], L"Further sections (2)");
    int further = 0;
    for (const Shape& line : ShapesOf(scene, ShapeKind::Line)) {
        further += line.ink == Inks::kFurtherSection ? 1 : 0;
    }
    EXPECT_EQ(further, 2);
}

TEST(ModelScene, TellsKindsOfElementsApart) {
    CVynData model = ModelOf({{0, 0, 0}, {1, 0, 0}, {1, 1, 0}, {0, 1, 0}});
    const ElementType types[] = {ElementType::Spring, ElementType::Damper, ElementType::Link,
                                 ElementType::Cable, ElementType::Spacer};
    int number = 0;
    for (const ElementType type : types) {
        model.SetElem(++number, {type, {1, 2}, 1});
    }
    Data::CElement dummy(ElementType::Beam, {1, 2}, 1);
    dummy.SetDummy(true);
    model.SetElem(++number, dummy);
    Data::CProp2D panel;
    panel.SetType(Prop2DType::LoadPanel);
    model.SetProp2D(7, panel);
    model.SetElem(++number, {ElementType::Tri3, {1, 2, 3}, 7});
    model.SetElem(++number, {ElementType::Mass, {4}, 1});
    EXPECT_EQ(NamesOf(SceneOf(model)),
              (std::vector<std::wstring>{L"Springs", L"Dampers", L"Links", L"Cables", L"Spacers",
                                         L"Dummy elements", L"Load panels"}));
}

TEST(ModelScene, DrawsOffsetElementsWhereTheyAre) {
    CVynData model = TestSupport::BeamModel();
    Data::CElement beam = model.Elem(1);
    beam.SetOffset({0.5, 0.0, 0.25, 0.0});
    model.SetElem(1, beam);
    const std::vector<Shape> lines = ShapesOf(SceneOf(model), ShapeKind::Line);
    ASSERT_EQ(lines.size(), 3U);
    for (const Shape& line : lines) {
        if (line.ink != Inks::kArm) {
            EXPECT_EQ(line.points[0], (Vec2<double>{0.5, 0.25}));
            EXPECT_EQ(line.points[1], (Vec2<double>{4.0, 0.25}));
        }
    }
}

TEST(ModelScene, ShowsTheNodesThatBelongToIt) {
    CVynData model = TestSupport::BeamModel();
    model.SetNode(3, Data::CNode({0, 0, 900}));  // for orientation alone
    EXPECT_EQ(ShapesOf(SceneOf(model, DrawingView::XZ), ShapeKind::Dot).size(), 2U);
    EXPECT_EQ(SceneOf(model, DrawingView::XZ).Extent().Height(), 0.0);
    Data::CNode held({0, 0, 900});
    held.SetRestraint({true, true, true, false, false, false});
    model.SetNode(3, held);
    EXPECT_EQ(ShapesOf(SceneOf(model, DrawingView::XZ), ShapeKind::Dot).size(), 3U);

    EXPECT_EQ(SceneOf(ModelOf({{0, 0, 0}, {5, 1, 0}})).Shapes().size(), 2U);
    const CModelScene many(ModelOf({{0, 0, 0}, {5, 1, 0}}), AxesOf(DrawingView::Plan), 1);
    EXPECT_FALSE(many.HasDots());
    EXPECT_TRUE(many.Shapes().empty());
    EXPECT_EQ(many.Extent().Width(), 5.0);
}

TEST(ModelScene, LeavesOutWhatHasNoPlace) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double inf = std::numeric_limits<double>::infinity();
    CVynData model = ModelOf({{0, 0, 0}, {1, 0, 0}, {nan, 0, 0}, {0, inf, 0}, {0, 1e300, 0}});
    int number = 0;
    for (const int other : {3, 4, 5, 9}) {
        model.SetElem(++number, {ElementType::Beam, {1, other}, 1});
        model.SetElem(++number, {ElementType::Tri3, {1, 2, other}, 1});
        model.SetElem(++number, {ElementType::Tetra4, {1, 2, other, other}, 1});
    }
    model.SetElem(++number, {ElementType::Beam, {1}, 1});
    model.SetElem(++number, {ElementType::None, {1, 2}, 1});
    model.SetElem(++number, {ElementType::Beam, {1, 2}, 1});
    Data::CElement offset(ElementType::Beam, {1, 2}, 1);
    offset.SetOffset({nan, 0.0, 0.0, 0.0});
    model.SetElem(++number, offset);
    const CModelScene scene = SceneOf(model);
    EXPECT_EQ(ShapesOf(scene, ShapeKind::Line).size(), 1U);
    EXPECT_TRUE(ShapesOf(scene, ShapeKind::Face).empty());
    EXPECT_EQ(scene.Extent().Width(), 1.0);
    EXPECT_EQ(scene.Extent().Height(), 0.0);
    EXPECT_GE(scene.NumLostElement(), 12);
}

}  // namespace
}  // namespace Tevra

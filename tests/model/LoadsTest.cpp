#include <gtest/gtest.h>
#include <vector>

#include "model/VynData.h"

namespace Tevra {
namespace {

/// Elements 1 bar, 2 quad, 3 brick, 4 dummy beam, 5 spring; 1, 2 and 4 belong to member 6.
CVynData Model() {
    CVynData model;
    for (int i = 1; i <= 8; ++i) {
        model.SetNode(i, Data::CNode());
    }
    const ElementType types[] = {ElementType::Bar, ElementType::Quad4, ElementType::Brick8,
                                 ElementType::Beam, ElementType::Spring};
    for (int i = 1; i <= 5; ++i) {
        Data::CElement element(types[i - 1], {1, 2, 3, 4}, 0);
        element.SetParentMember(i == 1 || i == 2 || i == 4 ? 6 : 0);
        element.SetDummy(i == 4);
        model.SetElem(i, element);
    }
    model.SetMember(6, Data::CMember());
    return model;
}

TEST(Loads, FindTheirElementsByDimension) {
    struct Case {
        SelType kind;
        const wchar_t* text;
        std::vector<int> of1D;
        std::vector<int> of2D;
        std::vector<int> of3D;
    };
    const Case cases[] = {{SelType::Element, L"all", {1, 4, 5}, {2}, {3}},
                          {SelType::Element, L"4 1 99", {1, 4}, {}, {}},
                          {SelType::Member, L"6", {1, 4}, {2}, {}},
                          {SelType::Member, L"none", {}, {}, {}},
                          {SelType::Node, L"all", {}, {}, {}}};
    const CVynData model = Model();
    for (const Case& c : cases) {
        SCOPED_TRACE(static_cast<int>(c.kind));
        Data::CBeamLoad load;
        load.SetLoadedEntities(CEntList(c.text, c.kind));
        EXPECT_EQ(load.GetLoadedElements(model, 1), c.of1D);
        EXPECT_EQ(load.GetLoadedElements(model, 2), c.of2D);
        EXPECT_EQ(load.GetLoadedElements(model, 3), c.of3D);
    }
}

TEST(Loads, FindTheirNodes) {
    CVynData model = Model();
    Data::CNodeLoad load;
    load.SetLoadedEntities(CEntList(L"7 to 12, 2", SelType::Node));
    EXPECT_EQ(load.LoadedNodes(model), (std::vector<int>{2, 7, 8}));
    load.SetLoadedEntities(CEntList(L"all", SelType::Element));
    EXPECT_TRUE(load.LoadedNodes(model).empty());
    Data::CNode heavy;
    heavy.SetMassProperty(3);
    model.SetNode(5, heavy);
    model.SetNode(8, heavy);
    Data::CGravityLoad gravity;
    EXPECT_EQ(gravity.LoadedNodes(model), (std::vector<int>{5, 8}));
    gravity.SetNodeList(CEntList(L"1 to 5", SelType::Node));
    EXPECT_EQ(gravity.LoadedNodes(model), (std::vector<int>{5}));
    EXPECT_EQ(gravity.Value(), (Vec3<double>{0, 0, -1}));
}

TEST(Loads, OfBeamsHaveThePointsOfTheirType) {
    using T = BeamLoadType;
    using Data::LoadPoint;
    struct Case {
        T type;
        int count;
        std::vector<LoadPoint> points;  ///< 1 to 4
    };
    const LoadPoint none;
    const Case cases[] = {
        {T::Point, 1, {{1, false, 10}, none, none, none}},
        {T::Uniform, 1, {{0, true, 10}, {1, true, 10}, none, none}},
        {T::Linear, 2, {{0, true, 10}, {1, true, 20}, none, none}},
        {T::Patch, 2, {{1, false, 10}, {2, false, 20}, none, none}},
        {T::Trilinear, 4, {{1, false, 10}, {2, false, 20}, {3, false, 30}, {4, false, 40}}}};
    for (const Case& c : cases) {
        SCOPED_TRACE(static_cast<int>(c.type));
        Data::CBeamLoad load;
        load.SetType(c.type);
        for (int k = 0; k <= 5; ++k) {
            load.SetPoint(k, {1.0 * k, false, 10.0 * k});
        }
        EXPECT_EQ(load.NumPoint(), c.count);
        for (int k = 1; k <= 4; ++k) {
            EXPECT_EQ(load.Point(k), c.points[static_cast<std::size_t>(k - 1)]) << k;
        }
        EXPECT_EQ(load.Point(0), none);
        EXPECT_EQ(load.Point(5), none);
    }
}

TEST(Loads, OfBeamsAreEqualWhenWhatTheyUseIs) {
    Data::CBeamLoad a;
    Data::CBeamLoad b;
    b.SetPoint(2, {0.5, true, 9});
    EXPECT_TRUE(a == b);  // a uniform load has no second point
    b.SetPoint(1, {0.7, false, 0});
    EXPECT_TRUE(a == b);  // nor a place
    b.SetType(BeamLoadType::Patch);
    EXPECT_FALSE(a == b);
    a = b;
    a.SetPoint(2, {0.5, true, 10});
    EXPECT_FALSE(a == b);
    a = b;
    a.SetProjected(true);
    EXPECT_FALSE(a == b);
    a = b;
    a.SetDirection(Direction::YY);
    EXPECT_FALSE(a == b);
}

TEST(Loads, OnFacesHaveOneValueUnlessGivenByCorner) {
    Data::CFaceLoad load;
    load.SetValues({1, 2, 3, 4});
    EXPECT_EQ(load.Value(3), 1);
    load.SetType(FaceLoadType::Point);
    EXPECT_EQ(load.Value(2), 1);
    load.SetType(FaceLoadType::Corners);
    EXPECT_EQ(load.Value(3), 3);
    EXPECT_EQ(load.Value(0), 0);
    EXPECT_EQ(load.Value(5), 0);
}

}  // namespace
}  // namespace Tevra

#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "model/VynData.h"

namespace Tevra {
namespace {

CEntList Elements(const wchar_t* text) {
    return {text, SelType::Element};
}

/// Nodes 1 to 6 but 4; bars 1 (1-2), 2 (2-3), 3 (3-4: a node that there is not), 4 (5-6); bars 2
/// and 4 belong to member 8.
CVynData Frame() {
    CVynData model;
    for (const int node : {1, 2, 3, 5, 6}) {
        model.SetNode(node, Data::CNode());
    }
    const int ends[][2] = {{1, 2}, {2, 3}, {3, 4}, {5, 6}};
    for (int i = 1; i <= 4; ++i) {
        Data::CElement element(ElementType::Bar, {ends[i - 1][0], ends[i - 1][1]}, 0);
        element.SetParentMember(i % 2 == 0 ? 8 : 0);
        model.SetElem(i, element);
    }
    model.SetMember(8, Data::CMember());
    return model;
}

std::string ActiveNodes(const CVynData& model, int selection) {
    std::string numbers;
    for (int i = -1; i <= 9; ++i) {
        numbers += model.NodeIsActive(i, selection, SelType::Element) ? std::to_string(i) : "";
    }
    return numbers;
}

std::string ActiveElements(const CVynData& model, int selection) {
    std::string numbers;
    for (int i = -1; i <= 9; ++i) {
        numbers += model.ElemIsActive(i, selection) ? std::to_string(i) : "";
    }
    return numbers;
}

TEST(Selections, OfEveryKindOfList) {
    struct Case {
        SelType kind;
        const wchar_t* text;
        const char* nodes;
        const char* elements;
    };
    const Case cases[] = {
        {SelType::Element, L"all", "12356", "1234"}, {SelType::Element, L"2 3", "23", "23"},
        {SelType::Element, L"none", "", ""},         {SelType::Element, L"no list at all", "", ""},
        {SelType::Member, L"8", "2356", "24"},       {SelType::Member, L"9", "", ""},
        {SelType::Node, L"1 2 3", "123", "12"},      {SelType::Node, L"3 4", "3", ""},
        {SelType::Case, L"A1", "12356", "1234"},     {SelType::Assembly, L"2", "12356", "1234"}};
    CVynData model = Frame();
    for (const Case& c : cases) {
        SCOPED_TRACE(::testing::Message() << static_cast<int>(c.kind) << ": " << c.nodes);
        model.SetList(5, Data::CList(L"", CEntList(c.text, c.kind)));
        EXPECT_EQ(ActiveNodes(model, 5), c.nodes);
        EXPECT_EQ(ActiveElements(model, 5), c.elements);
    }
    for (const int whole : {0, 77, -1}) {
        EXPECT_EQ(ActiveNodes(model, whole), "12356");
        EXPECT_EQ(ActiveElements(model, whole), "1234");
    }
}

TEST(Selections, FollowTheModelAsItChanges) {
    CVynData model = Frame();
    model.SetList(1, Data::CList(L"", Elements(L"1")));
    EXPECT_EQ(ActiveNodes(model, 1), "12");
    model.SetElem(1, Data::CElement(ElementType::Bar, {5, 3}, 0));
    EXPECT_EQ(ActiveNodes(model, 1), "35");
    model.DeleteNode(5);
    EXPECT_EQ(ActiveNodes(model, 1), "3");
    const CVynData copy = model;
    model.DeleteList(1);
    EXPECT_EQ(ActiveNodes(model, 1), "1236");
    EXPECT_EQ(ActiveNodes(copy, 1), "3");
}

TEST(Selections, TakeConstraintsWhoseNodesTheyHave) {
    CVynData model = Frame();
    model.SetList(1, Data::CList(L"", Elements(L"1 2")));  // nodes 1, 2, 3
    Data::CRigid rigid;
    rigid.SetPrimaryNode(3);
    model.SetRigid(1, rigid);
    rigid.SetPrimaryNode(5);
    model.SetRigid(2, rigid);
    Data::CJoint joint;
    joint.SetNodes(1, 5);
    model.SetJoint(1, joint);
    Data::CConstraintEqn equation;
    equation.SetConstrained(1, Direction::Y);
    equation.SetTerms({{2, Direction::X, 1.0}, {3, Direction::X, 1.0}});
    model.SetConstraintEqn(1, equation);
    equation.SetTerms({{2, Direction::X, 1.0}, {6, Direction::X, 1.0}});
    model.SetConstraintEqn(2, equation);
    EXPECT_TRUE(model.RigidIsActive(1, 1));
    EXPECT_FALSE(model.RigidIsActive(2, 1));
    EXPECT_TRUE(model.RigidIsActive(2, 0));
    EXPECT_FALSE(model.RigidIsActive(3, 0));
    EXPECT_FALSE(model.JointIsActive(1, 1));
    EXPECT_TRUE(model.JointIsActive(1, 0));
    EXPECT_TRUE(model.ConstraintEqnIsActive(1, 1));
    EXPECT_FALSE(model.ConstraintEqnIsActive(2, 1));
    EXPECT_TRUE(model.ConstraintEqnIsActive(2, 0));
    EXPECT_FALSE(model.ConstraintEqnIsActive(9, 0));
}

TEST(Stages, ReplaceThePropertiesOfElementsByTheirKind) {
    struct Case {
        ElementType type;
        PropertyType kind;
    };
    const Case cases[] = {
        {ElementType::Beam, PropertyType::Section},  {ElementType::Rod, PropertyType::Section},
        {ElementType::Tri6, PropertyType::Prop2D},   {ElementType::Pyramid5, PropertyType::Prop3D},
        {ElementType::Spring, PropertyType::Spring}, {ElementType::Damper, PropertyType::Damper},
        {ElementType::Cable, PropertyType::Cable},   {ElementType::Link, PropertyType::Link}};
    for (const Case& c : cases) {
        SCOPED_TRACE(static_cast<int>(c.type));
        CVynData model;
        model.SetElem(1, Data::CElement(c.type, {1, 2}, 3));
        model.SetElem(2, Data::CElement(c.type, {1, 2}, 4));
        Data::CStage stage;
        for (int kind = 1; kind <= 8; ++kind) {
            const auto type = static_cast<PropertyType>(kind);
            stage.SetReplacements({{type, 3, 30, 0}});
            model.SetStage(1, stage);
            EXPECT_EQ(model.ElemStageProperty(1, 1), type == c.kind ? 30 : 3);
            EXPECT_EQ(model.ElemStageProperty(2, 1), 4);
            EXPECT_EQ(model.ElemStageProperty(1, 2), 3);
        }
    }
}

TEST(Stages, ReplaceMaterialsWithOrWithoutTheProperty) {
    CVynData model;
    Data::CProp2D shell;
    shell.SetMaterial({MatType::Concrete, 2, 21});
    model.SetProp2D(1, shell);
    shell.SetMaterial({MatType::Concrete, 2, 22});
    model.SetProp2D(2, shell);
    Data::CProp3D solid;
    solid.SetMaterial({MatType::Steel, 1, 31});
    model.SetProp3D(1, solid);
    for (int i = 1; i <= 4; ++i) {
        model.SetElem(i, Data::CElement(ElementType::Quad4, {1, 2, 3, 4}, i));
    }
    Data::CStage stage;
    stage.SetReplacements({{PropertyType::Prop2D, 1, 0, 99},    // the material alone
                           {PropertyType::Prop2D, 3, 2, 0},     // the property with its material
                           {PropertyType::Prop2D, 4, 2, 98}});  // both
    model.SetStage(7, stage);
    EXPECT_EQ(model.ElemStageMatAnal(1, -1), 21);
    EXPECT_EQ(model.ElemStageMatAnal(1, 7), 99);
    EXPECT_EQ(model.ElemStageMatAnal(3, -1), 0);  // property 3 does not exist
    EXPECT_EQ(model.ElemStageMatAnal(3, 7), 22);
    EXPECT_EQ(model.ElemStageProperty(3, 7), 2);
    EXPECT_EQ(model.ElemStageMatAnal(4, 7), 98);
    EXPECT_EQ(model.ElemStageMatAnal(2, 7), 22);
    EXPECT_EQ(model.StageMatAnal(PropertyType::Prop2D, 1, 7), 99);
    EXPECT_EQ(model.StageMatAnal(PropertyType::Prop3D, 1, 7), 31);
    EXPECT_EQ(model.StageMatAnal(PropertyType::Spring, 1, 7), 0);
}

TEST(Stages, ReplaceWhatIsAttachedToNodes) {
    CVynData model;
    Data::CNode node;
    node.SetSpringProperty(1);
    node.SetMassProperty(1);
    node.SetDamperProperty(2);
    model.SetNode(1, node);
    Data::CStage stage;
    stage.SetReplacements({{PropertyType::Spring, 1, 5, 0},
                           {PropertyType::Mass, 1, 6, 0},
                           {PropertyType::Damper, 1, 7, 0}});
    model.SetStage(1, stage);
    EXPECT_EQ(model.NodeSpringProperty(1), 1);
    EXPECT_EQ(model.NodeSpringProperty(1, 1), 5);
    EXPECT_EQ(model.NodeMassProperty(1, 1), 6);
    EXPECT_EQ(model.NodeDamperProperty(1, 1), 2);
    EXPECT_EQ(model.NodeSpringProperty(2, 1), 0);
}

TEST(Stages, AddTheirRestraintsToThoseOfNodeAndModel) {
    CVynData model = Frame();
    Data::CNode node;
    node.SetRestraint(Vbool6::FromBits(1));
    model.SetNode(2, node);
    model.SetGlobalRestraint(Vbool6::FromBits(2));
    Data::CStage stage;
    stage.SetRestraints({{CEntList(L"1 2", SelType::Node), Vbool6::FromBits(4)},
                         {CEntList(L"2 to 6", SelType::Node), Vbool6::FromBits(8)}});
    model.SetStage(3, stage);
    const auto bits = [&model](int number, int inStage) {
        Vbool6 restraint = Vbool6::FromBits(63);
        model.NodeTotalRestraint(restraint, number, inStage);
        return restraint.Bits();
    };
    EXPECT_EQ(bits(1, 3), 6U);
    EXPECT_EQ(bits(2, 3), 15U);
    EXPECT_EQ(bits(3, 3), 10U);
    EXPECT_EQ(bits(2, -1), 3U);
    EXPECT_EQ(bits(2, 4), 3U);
    model.SetNode(4, Data::CNode());  // now it is one of "2 to 6"
    EXPECT_EQ(bits(4, 3), 10U);
}

}  // namespace
}  // namespace Tevra

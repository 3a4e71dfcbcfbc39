#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "model/Util.h"
#include "model/VynData.h"

namespace Tevra {
namespace {

/// Nodes 1 to 10; elements 1 to 8 in groups and with properties; a member; saved lists.
CVynData Model() {
    CVynData model;
    for (int i = 1; i <= 10; ++i) {
        model.SetNode(i, Data::CNode());
    }
    struct Element {
        ElementType type;
        int property;
        int group;
        int member;
    };
    const Element elements[] = {{ElementType::Beam, 1, 1, 0},   {ElementType::Beam, 2, 1, 7},
                                {ElementType::Bar, 1, 2, 7},    {ElementType::Quad4, 1, 2, 0},
                                {ElementType::Tri3, 2, 3, 0},   {ElementType::Brick8, 1, 3, 0},
                                {ElementType::Spring, 1, 4, 0}, {ElementType::Beam, 3, 5, 0}};
    int number = 0;
    for (const Element& e : elements) {
        Data::CElement element(e.type, {1, 2}, e.property);
        element.SetGroup(e.group);
        element.SetParentMember(e.member);
        model.SetElem(++number, element);
    }
    model.SetMember(7, Data::CMember());
    model.SetList(1, Data::CList(L"", CEntList(L"1 to 3", SelType::Element)));
    model.SetList(2, Data::CList(L"", CEntList(L"list 3 8", SelType::Element)));
    model.SetList(3, Data::CList(L"", CEntList(L"list 2 7", SelType::Element)));
    for (const int i : {1, 2, 3, 5}) {
        model.SetAnalysisCase(i, CAnalysisCase(L"", 0, L"L" + std::to_wstring(i)));
    }
    model.SetCombinationCase(2, CCombinationCase(L"", L"A1"));
    model.SetLoadCaseTitle(4, Data::NamedEntity(L"Wind"));
    return model;
}

struct ListCase {
    SelType kind;
    const wchar_t* text;
    const wchar_t* expanded;
};

class ExpandedList : public ::testing::TestWithParam<ListCase> {};

TEST_P(ExpandedList, HoldsTheNumbersOfTheText) {
    const CVynData model = Model();
    const CEntList list(GetParam().text, GetParam().kind);
    EXPECT_TRUE(list.IsValid());
    EXPECT_EQ(Util::ExpandedText(list, model), GetParam().expanded);
}

INSTANTIATE_TEST_SUITE_P(
    Lists, ExpandedList,
    ::testing::Values(
        ListCase{SelType::Node, L"all", L"1 2 3 4 5 6 7 8 9 10"},
        ListCase{SelType::Node, L"none", L""}, ListCase{SelType::Node, L"  ", L""},
        ListCase{SelType::Node, L"1 to 5 not 3", L"1 2 4 5"},
        ListCase{SelType::Node, L"2 to 10 step 4", L"2 6 10"},
        ListCase{SelType::Node, L"not 3", L"1 2 4 5 6 7 8 9 10"},
        ListCase{SelType::Node, L"1 to 6 NOT (2 to 4) 3", L"1 3 5 6"},
        ListCase{SelType::Node, L"1 to 9 NOT (2 4 )", L"1 3 5 6 7 8 9"},
        ListCase{SelType::Node, L"5 1 1", L"1 5"}, ListCase{SelType::Node, L"1,3 , 4", L"1 3 4"},
        ListCase{SelType::Node, L"8 to 2147483647", L"8 9 10"},
        ListCase{SelType::Node, L"5 to 3", L""}, ListCase{SelType::Node, L"99", L""},
        ListCase{SelType::Node, L"((1 to 4) not (2))", L"1 3 4"},
        ListCase{SelType::Element, L"G 1 3", L"1 2 5 6"},
        ListCase{SelType::Element, L"G 1 to 2 P 3", L"1 2 3 4 8"},
        ListCase{SelType::Element, L"(G 3) 1", L"1 5 6"},
        ListCase{SelType::Element, L"all not G 1", L"3 4 5 6 7 8"},
        ListCase{SelType::Element, L"P 1", L"1 3 4 6 7"},
        ListCase{SelType::Element, L"section 1", L"1 3"},
        ListCase{SelType::Element, L"section 1 4", L"1 3 4"},
        ListCase{SelType::Element, L"prop2d 1 prop3d 1", L"4 6"},
        ListCase{SelType::Element, L"member 7", L"2 3"},
        ListCase{SelType::Element, L"type quad4 TYPE Beam", L"1 2 4 8"},
        ListCase{SelType::Element, L"list 1 7", L"1 2 3 7"},
        ListCase{SelType::Element, L"list 2", L"7 8"}, ListCase{SelType::Member, L"all", L"7"},
        ListCase{SelType::LoadCase, L"all", L"4"}, ListCase{SelType::LoadCase, L"L1 to L9", L"4"},
        ListCase{SelType::LoadCase, L"4", L"4"}, ListCase{SelType::Case, L"A1 to A3", L"A1 A2 A3"},
        ListCase{SelType::Case, L"A1 A5 C2", L"A1 A5 C2"},
        ListCase{SelType::Case, L"all", L"A1 A2 A3 A5 C2"},
        ListCase{SelType::Case, L"A all not A2", L"A1 A3 A5"},
        ListCase{SelType::Number, L"1 to 3 7", L"1 2 3 7"}));

TEST(EntList, TextsThatCanNotBeReadSelectNothing) {
    const CVynData model = Model();
    const std::vector<std::pair<SelType, std::wstring>> texts{
        {SelType::Node, L"1 to"},
        {SelType::Node, L"to 5"},
        {SelType::Node, L"(1 2"},
        {SelType::Node, L"1 2)"},
        {SelType::Node, L"1;2"},
        {SelType::Node, L"G 1"},
        {SelType::Node, L"0"},
        {SelType::Node, L"-1"},
        {SelType::Node, L"1.5"},
        {SelType::Node, L"99999999999"},
        {SelType::Node, L"none 1"},
        {SelType::Node, L"not"},
        {SelType::Node, L"1 to 9 step 0"},
        {SelType::Element, L"type"},
        {SelType::Element, L"type x"},
        {SelType::Case, L"1"},
        {SelType::Case, L"A1 to C3"},
        {SelType::Number, L"20000000"},
        {SelType::Node, L"\x4e00"},
        {SelType::Node, std::wstring(100, L'(')}};
    for (const auto& [kind, text] : texts) {
        const CEntList list(text, kind);
        EXPECT_FALSE(list.IsValid()) << testing::PrintToString(text);
        EXPECT_EQ(Util::NumItem(list, model, -1, false), 0);
        EXPECT_EQ(list.Text(), text);
    }
}

TEST(EntList, MembershipFollowsTheModelAndTheBound) {
    CVynData model = Model();
    const CEntList list(L"all not 2", SelType::Node);
    const auto has = [&](int number, int highest) {
        return Util::IsItemIncluded(list, {SelType::Node, number}, model, highest, true);
    };
    EXPECT_TRUE(has(10, -1));
    EXPECT_FALSE(has(2, -1));
    EXPECT_FALSE(has(11, -1));
    EXPECT_FALSE(has(10, 5));
    EXPECT_TRUE(has(5, 5));
    model.SetNode(11, Data::CNode());
    EXPECT_TRUE(has(11, -1));
    model.DeleteNode(11);
    EXPECT_FALSE(has(11, -1));
    EXPECT_FALSE(Util::IsItemIncluded(list, {SelType::Element, 1}, model, -1, true));
    const CVynData other;
    EXPECT_FALSE(Util::IsItemIncluded(list, {SelType::Node, 1}, other, -1, true));
}

TEST(EntList, OnlyExistingItemsCountWhenAsked) {
    CVynData model;
    model.SetNode(2, Data::CNode());
    model.SetNode(9, Data::CNode());
    const CEntList list(L"1 to 20", SelType::Node);
    EXPECT_EQ(Util::NumItem(list, model, -1, true), 2);
    EXPECT_EQ(Util::NumItem(list, model, -1, false), 9);
    EXPECT_EQ(Util::NumItem(list, model, 20, false), 20);
}

TEST(EntList, CaseListsTellAnalysisCasesFromCombinations) {
    const CVynData model = Model();
    const CEntList list(L"C2 A1", SelType::Case);
    EXPECT_TRUE(Util::IsCaseIncluded(list, AnalysisRef(1), model));
    EXPECT_FALSE(Util::IsCaseIncluded(list, AnalysisRef(2), model));
    EXPECT_TRUE(Util::IsCaseIncluded(list, {4, 2, 0}, model));
    EXPECT_TRUE(Util::IsCaseIncluded(CEntList(L"all", SelType::Case), {4, 2, -1}, model));
    EXPECT_FALSE(Util::IsCaseIncluded(CEntList(L"not C2", SelType::Case), {4, 2, 0}, model));
    EXPECT_FALSE(Util::IsCaseIncluded(CEntList(L"all", SelType::Case), {0, 2, 0}, model));
}

TEST(EntList, HugeNumbersCostLittle) {
    CVynData model;
    model.SetNode(2'147'483'647, Data::CNode());
    model.SetNode(5, Data::CNode());
    const CEntList list(L"1 to 2147483647", SelType::Node);
    EXPECT_EQ(Util::ExpandedText(list, model), L"5 2147483647");
}

}  // namespace
}  // namespace Tevra

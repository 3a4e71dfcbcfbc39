#include <algorithm>
#include <gtest/gtest.h>
#include <optional>
#include <random>
#include <set>
#include <string>
#include <vector>

#include "model/Util.h"
#include "model/VynData.h"
#include "support/Random.h"

namespace Tevra {
namespace {

Data::CMember Member(MemberType type, int property, int group) {
    Data::CMember member;
    member.SetType(type);
    member.SetProperty(property);
    member.SetGroup(group);
    return member;
}

/// Elements 1 to 9 in groups 1, 1, 1, 2, 2, 2, 3, 3, 3 with properties 1, 2, 3, 1, 2, 3, ...;
/// members, grid planes, modes and loaded load cases.
CVynData Model() {
    CVynData model;
    for (int i = 1; i <= 9; ++i) {
        Data::CElement element(ElementType::Beam, {1, 2}, (i - 1) % 3 + 1);
        element.SetGroup((i - 1) / 3 + 1);
        model.SetElem(i, element);
    }
    model.SetMember(1, Member(MemberType::Column, 1, 4));
    model.SetMember(2, Member(MemberType::Slab, 1, 4));
    model.SetMember(3, Member(MemberType::Generic3D, 1, 5));
    model.SetMember(4, Member(MemberType::Wall, 2, 5));
    model.SetGridPlane(3, Data::CGridPlane());
    model.SetAnalysisCase(1, CAnalysisCase(L"", 0, L"L1"));
    model.SetAnalysisCase(2, CAnalysisCase(L"", 0, L"M2"));
    model.SetAnalysisCase(3, CAnalysisCase(L"", 0, L"M5 : P(L1)"));
    model.SetLoadCaseTitle(2, Data::NamedEntity(L"Live"));
    Data::CNodeLoad load;
    load.SetLoadCase(7);
    model.SetNodeLoad(1, load);
    return model;
}

struct Row {
    SelType kind;
    const wchar_t* text;
    const wchar_t* expanded;
};

TEST(ListExpander, FurtherFormsOfLists) {
    const CVynData model = Model();
    const Row rows[] = {
        {SelType::Element, L"not not 3", L"3"},
        {SelType::Element, L"NOT  ( )", L"1 2 3 4 5 6 7 8 9"},
        {SelType::Element, L"1 (2 not 2 not 1) (not 3 to 9)", L"1 2"},
        {SelType::Element, L"G1 G2 NOT (1 2 5 )", L"3 4 6"},
        {SelType::Element, L"G1 NOT  (G1 2 )", L""},
        {SelType::Element, L"G 1 not 1 3", L"7 8 9"},
        {SelType::Element, L"G 1 (9) 2", L"1 2 3 4 5 6 9"},
        {SelType::Element, L"G 1 to 3 step 2, not P 2 to 9", L"1 7"},
        {SelType::Element, L"group 2 7 not section 1", L"5 6"},
        {SelType::Element, L"1,2 3 to 5 4 2 to 3 9 to 2147483647 step 7", L"1 2 3 4 5 9"},
        {SelType::Element, L"9 8 7 to 1 6", L"6 8 9"},
        {SelType::Element, L"2147483647 step", nullptr},
        {SelType::Element, L"G", nullptr},
        {SelType::Element, L"member", nullptr},
        {SelType::Element, L"1 to 3 step 2147483648", nullptr},
        {SelType::Element, L"list", nullptr},
        {SelType::Element, L"list 0", nullptr},
        {SelType::Element, L"A1", nullptr},
        {SelType::Member, L"G 4", L"1 2"},
        {SelType::Member, L"P 1", L"1 2 3"},
        {SelType::Member, L"section 1 prop3d 1 prop2d 2", L"1 3 4"},
        {SelType::Member, L"member 1", nullptr},
        {SelType::GridPlane, L"1 to 9", L"3"},
        {SelType::GridPlane, L"prop2d 1", nullptr},
        {SelType::Mode, L"all", L"2 5"},
        {SelType::Mode, L"1 to 100", L"1 2 3 4 5"},
        {SelType::Mode, L"not 2", L"5"},
        {SelType::LoadCase, L"l2 to l9", L"2 7"},
        {SelType::LoadCase, L"not L2", L"7"},
        {SelType::LoadCase, L"A2", nullptr},
        {SelType::Number, L"not 3", L"1 2"},
        {SelType::Number, L"16777217", nullptr},
        {SelType::Number, L"9 not 9", L""},
        {SelType::Case, L"A2 to A9 step 2", L"A2"},
        {SelType::Case, L"C all A1", L"A1"},
        {SelType::Case, L"not A1", L"A2 A3"},
        {SelType::Case, L"L1", nullptr}};
    for (const Row& row : rows) {
        const CEntList list(row.text, row.kind);
        EXPECT_EQ(list.IsValid(), row.expanded != nullptr) << testing::PrintToString(row.text);
        EXPECT_EQ(Util::ExpandedText(list, model), row.expanded != nullptr ? row.expanded : L"")
            << testing::PrintToString(row.text);
    }
}

std::wstring Expanded(const CVynData& model, const wchar_t* text) {
    return Util::ExpandedText(CEntList(text, SelType::Element), model);
}

void SetList(CVynData& model, int number, const std::wstring& text,
             SelType kind = SelType::Element) {
    model.SetList(number, Data::CList(L"", CEntList(text, kind)));
}

TEST(ListExpander, SavedListsOfLists) {
    CVynData model = Model();
    SetList(model, 1, L"1 to 9 not list 2");
    SetList(model, 2, L"2 list 3 4");
    SetList(model, 3, L"3");
    SetList(model, 4, L"4 list 4");
    SetList(model, 5, L"5 list 1", SelType::Node);
    SetList(model, 6, L"6 to");
    EXPECT_EQ(Expanded(model, L"list 1"), L"1 5 6 7 8 9");
    EXPECT_EQ(Expanded(model, L"list 2 9"), L"2 3 4 9");
    EXPECT_EQ(Expanded(model, L"list 4 list 2 list 4"), L"2 3 4");
    EXPECT_EQ(Expanded(model, L"1 list 5 list 6 list 99"), L"1");
    EXPECT_EQ(Expanded(model, L"not list 2"), L"1 5 6 7 8 9");
}

TEST(ListExpander, SavedListsThatDoubleOrNeverEnd) {
    CVynData model = Model();
    for (int i = 1; i < 60; ++i) {
        const std::wstring next = L"list " + std::to_wstring(i + 1);
        SetList(model, i, next + L" not 9 (" + next + L") " + next);
    }
    SetList(model, 60, L"3 list 1 list 60");
    EXPECT_EQ(Expanded(model, L"list 1"), L"3");
    for (int i = 1; i <= 50'000; ++i) {
        SetList(model, i, L"list " + std::to_wstring(i + 1));
    }
    EXPECT_EQ(Expanded(model, L"list 1 5"), L"5");
}

TEST(ListExpander, WhatIsKeptWithAListIsOfOneModelAndMoment) {
    const CEntList list(L"all", SelType::Node);
    const auto has = [&list](const CVynData& model, int node) {
        return Util::IsItemIncluded(list, {SelType::Node, node}, model, -1, false);
    };
    std::optional<CVynData> model;
    for (const int node : {1, 2, 1, 3}) {  // one model after another in the same place
        model.emplace();
        EXPECT_FALSE(has(*model, node));
        model->SetNode(node, Data::CNode());
        EXPECT_TRUE(has(*model, node));
        EXPECT_FALSE(has(*model, 4));
    }
    CVynData copy = *model;
    copy.SetNode(4, Data::CNode());
    EXPECT_TRUE(has(copy, 4));
    EXPECT_FALSE(has(*model, 4));
    const CVynData taken = std::move(copy);
    EXPECT_TRUE(has(taken, 4));
    EXPECT_FALSE(has(copy, 4));  // NOLINT(bugprone-use-after-move,hicpp-invalid-access-moved)
    *model = taken;
    EXPECT_TRUE(has(*model, 4));
}

/// A list made up at random, and what it selects, worked out number by number.
class RandomList {
public:
    static constexpr int kHighest = 12;

    explicit RandomList(std::uint64_t seed) : m_random(TestSupport::SeededRandom(seed)) {}

    static bool Exists(int number) { return number % 5 != 0; }

    std::set<int> Items(int depth, std::wstring& text) {
        std::set<int> set;
        const int count = Upto(4);
        for (int i = 1; i <= count; ++i) {
            const bool take = Upto(3) == 1;
            if (take && i == 1) {
                for (int n = 1; n <= kHighest; ++n) {
                    set.insert(n);
                }
            }
            text += take ? L" not" : L"";
            for (const int number : Item(depth, text)) {
                if (take) {
                    set.erase(number);
                } else {
                    set.insert(number);
                }
            }
        }
        return set;
    }

private:
    int Upto(int highest) { return std::uniform_int_distribution<int>(1, highest)(m_random); }

    std::set<int> Item(int depth, std::wstring& text) {
        if (depth > 0 && Upto(4) == 1) {
            text += L" (";
            std::set<int> inner = Items(depth - 1, text);
            text += L" )";
            return inner;
        }
        const int from = Upto(kHighest + 2);
        const int to = Upto(2) == 1 ? from : Upto(kHighest + 2);
        const int step = Upto(4) == 1 ? Upto(4) : 1;
        text += L" " + std::to_wstring(from);
        text += to != from || step != 1 ? L" to " + std::to_wstring(to) : L"";
        text += step != 1 ? L" step " + std::to_wstring(step) : L"";
        std::set<int> set;
        for (int number = from; number <= to; number += step) {
            set.insert(number);
        }
        return set;
    }

    std::mt19937_64 m_random;
};

TEST(ListExpander, AgreesWithListsWorkedOutNumberByNumber) {
    CVynData model;
    for (int number = 1; number <= RandomList::kHighest; ++number) {
        if (RandomList::Exists(number)) {
            model.SetNode(number, Data::CNode());
        }
    }
    for (std::uint64_t seed = 1; seed <= 2000; ++seed) {
        std::wstring text;
        const std::set<int> expected = RandomList(seed).Items(3, text);
        std::vector<int> numbers;
        for (const int number : expected) {
            if (number <= RandomList::kHighest && RandomList::Exists(number)) {
                numbers.push_back(number);
            }
        }
        const CEntList list(text, SelType::Node);
        std::vector<int> items;
        Util::Items(list, items, model);
        ASSERT_EQ(items, numbers) << testing::PrintToString(text);
        for (int number = 0; number <= RandomList::kHighest + 1; ++number) {
            ASSERT_EQ(Util::IsItemIncluded(list, {SelType::Node, number}, model, -1, true),
                      std::binary_search(numbers.begin(), numbers.end(), number))
                << testing::PrintToString(text) << ": " << number;
        }
    }
}

}  // namespace
}  // namespace Tevra

#include <cmath>
#include <gtest/gtest.h>
#include <map>
#include <string>
#include <vector>

#include "model/VynData.h"

namespace Tevra {
namespace {

TEST(CaseDesc, FactorsOfTheFirstPart) {
    struct Case {
        const wchar_t* text;
        std::map<int, double> factors;
        int mode;
    };
    const Case cases[] = {{L"1.L1", {{1, 1.0}}, 0},
                          {L"L3", {{3, 1.0}}, 0},
                          {L"1.35L1 + 1.5L2 - L4", {{1, 1.35}, {2, 1.5}, {4, -1.0}}, 0},
                          {L"-l1+0.5 L 2 + L2", {{1, -1.0}, {2, 1.5}}, 0},
                          {L"1.L1 : P(1.L1)", {{1, 1.0}}, 0},
                          {L"M2 : P(1.L1)", {}, 2},
                          {L"", {}, 0}};
    for (const Case& c : cases) {
        const CCaseDesc desc(c.text);
        EXPECT_TRUE(desc.IsValid());
        for (int i = 1; i <= 5; ++i) {
            const auto expected = c.factors.find(i);
            EXPECT_EQ(desc.CaseFactor(0, i), expected != c.factors.end() ? expected->second : 0.0)
                << i;
        }
        EXPECT_EQ(desc.Mode(), c.mode);
        EXPECT_EQ(desc.Description(), c.text);
    }
    EXPECT_EQ(CCaseDesc(L"1.L1 : P(2.L5)").CaseFactor(1, 5), 2.0);
    EXPECT_EQ(CCaseDesc(L"L1").CaseFactor(7, 1), 0.0);
}

TEST(CaseDesc, TextsThatCanNotBeRead) {
    for (const wchar_t* text : {L"1.35", L"L", L"L0", L"L1 +", L"A1", L"L1 L2", L"P(L1", L"M",
                                L"L1 :", L"1e999L1", L"L99999999999", L"\x00e9", L"nanL1"}) {
        CCaseDesc desc;
        EXPECT_FALSE(desc.SetDescription(text));
        EXPECT_EQ(desc.Description(), text);
        EXPECT_EQ(desc.NumPart(), 0);
    }
}

CVynData Model(const std::map<int, std::wstring>& combinations) {
    CVynData model;
    for (int i = 1; i <= 9; ++i) {
        model.SetAnalysisCase(i, CAnalysisCase());
    }
    for (const auto& [number, text] : combinations) {
        model.SetCombinationCase(number, CCombinationCase(L"", text));
    }
    return model;
}

/// The factors of a permutation as text: "A1 1.35, C2max 1".
std::string TextOf(const std::vector<FactoredCase>& cases) {
    std::string text;
    for (const FactoredCase& part : cases) {
        text += (text.empty() ? "" : ", ") + std::string(part.ref.IsAnalysis() ? "A" : "C") +
                std::to_string(part.ref.Case());
        text += part.ref.Permutation() != 0 ? "/" + std::to_string(part.ref.Permutation()) : "";
        text += " " + std::to_string(part.factor).substr(0, part.factor < 0 ? 5 : 4);
    }
    return text;
}

struct CombCase {
    const wchar_t* text;
    bool simple;
    std::vector<std::string> permutations;
};

class Combination : public ::testing::TestWithParam<CombCase> {};

TEST_P(Combination, GivesItsPermutationsInOrder) {
    const CVynData model =
        Model({{1, L"A1 + 0.5A2"}, {2, L"A3 or A4"}, {4, L"A1 or A2"}, {5, L"1.5C1 - A2"}});
    const CCombCaseDesc desc(GetParam().text);
    EXPECT_EQ(desc.NumPermutation(model), static_cast<int>(GetParam().permutations.size()));
    EXPECT_EQ(desc.IsSimpleCombination(model), GetParam().simple);
    const auto permutations = desc.Permutations(model);
    ASSERT_EQ(permutations.size(), GetParam().permutations.size());
    for (std::size_t i = 0; i < permutations.size(); ++i) {
        EXPECT_EQ(TextOf(permutations[i]), GetParam().permutations[i]) << i;
    }
}

INSTANTIATE_TEST_SUITE_P(
    Texts, Combination,
    ::testing::Values(
        CombCase{L"1.35A1 + 1.5A2", true, {"A1 1.35, A2 1.50"}},
        CombCase{L"A1 + A1", true, {"A1 2.00"}},
        CombCase{L"1.35A1 + (1.5A2 or 1.5A3)", false, {"A1 1.35, A2 1.50", "A1 1.35, A3 1.50"}},
        CombCase{L"(1.0 or 1.35)A1 + (0 or 1.5)A2",
                 false,
                 {"A1 1.00, A2 0.00", "A1 1.00, A2 1.50", "A1 1.35, A2 0.00", "A1 1.35, A2 1.50"}},
        CombCase{L"(1 or -1)A2", false, {"A2 1.00", "A2 -1.00"}},
        CombCase{L"A1 to A3", false, {"A1 1.00", "A2 1.00", "A3 1.00"}},
        CombCase{L"A8 to A2000000000", false, {"A8 1.00", "A9 1.00"}},
        CombCase{L"1.2C1", true, {"A1 1.20, A2 0.60"}},
        CombCase{L"C5", true, {"A1 1.50, A2 -0.25"}},
        CombCase{L"C4 - A9", false, {"A1 1.00, A9 -1.00", "A2 1.00, A9 -1.00"}},
        CombCase{L"A1 + C2max", false, {"A1 1.00, C2/-2 1.00"}},
        CombCase{L"2C4p2 + C1", true, {"A1 1.00, A2 2.50"}},
        CombCase{L"+1.000000A1-0.500000A3", true, {"A1 1.00, A3 -0.50"}},
        CombCase{L"2(A1 or 3(A2 or A3))", false, {"A1 2.00", "A2 6.00", "A3 6.00"}},
        CombCase{L"-C2 signabs", false, {"C2/-4 -1.00"}},
        CombCase{L"1.35a1OR1.5a2", false, {"A1 1.35", "A2 1.50"}}, CombCase{L"A77", false, {}},
        CombCase{L"C77", false, {}}, CombCase{L"C4p3", false, {}}, CombCase{L"A1 +", false, {}},
        CombCase{L"(A1", false, {}}, CombCase{L"A1min", true, {"A1 1.00"}},
        CombCase{L"A1p2", false, {}}, CombCase{L"", false, {}}, CombCase{L"A1 to C3", false, {}}));

TEST(CombCaseDesc, FactorsOfAnalysisCases) {
    const CVynData model = Model({{2, L"A3 or A4"}, {6, L"2C2max + A5"}});
    const CCombCaseDesc desc(L"A1 + 1.5(A2 or A3) + C6min");
    EXPECT_EQ(desc.NumPermutation(model), 2);
    EXPECT_EQ(desc.CaseFactor(model, 1, AnalysisRef(2)), 1.5);
    EXPECT_EQ(desc.CaseFactor(model, 2, AnalysisRef(2)), 0.0);
    EXPECT_EQ(desc.CaseFactor(model, 3, AnalysisRef(1)), 0.0);
    EXPECT_EQ(desc.CaseFactor(model, 0, AnalysisRef(1)), 0.0);
    // Reached through the envelope alone: a linear sum can't express it.
    EXPECT_TRUE(std::isnan(desc.CaseFactor(model, 1, AnalysisRef(4))));
    EXPECT_TRUE(std::isnan(desc.CaseFactor(model, 1, AnalysisRef(5))));
    EXPECT_EQ(desc.CaseFactor(model, 2, AnalysisRef(3)), 1.5);
    EXPECT_EQ(desc.CaseFactor(1, AnalysisRef(2)), 1.5);
    EXPECT_EQ(desc.AnalysisCases(model, 1), (std::set<int>{1, 2, 3, 4, 5}));
}

TEST(CombCaseDesc, CyclesAndTooManyPermutationsAreInvalid) {
    const CVynData model = Model({{1, L"C2 + A1"}, {2, L"C3"}, {3, L"A2 or C1"}, {4, L"A1 to A9"}});
    EXPECT_FALSE(CCombCaseDesc(L"C1").IsValid(model));
    EXPECT_FALSE(CCombCaseDesc(L"C1max").IsValid(model));
    EXPECT_TRUE(CCombCaseDesc(L"C4 + C4 + C4 + C4 + C4 + C4").IsValid(model));
    EXPECT_FALSE(CCombCaseDesc(L"C4 + C4 + C4 + C4 + C4 + C4 + C4").IsValid(model));
}

TEST(CombCaseDesc, LongChainsAreMultipliedOutOnce) {
    std::map<int, std::wstring> chain{{60, L"A1"}};
    for (int i = 1; i < 60; ++i) {
        chain[i] = L"C" + std::to_wstring(i + 1) + L" + C" + std::to_wstring(i + 1);
    }
    const CVynData model = Model(chain);
    EXPECT_EQ(CCombCaseDesc(L"C1").CaseFactor(model, 1, AnalysisRef(1)), std::ldexp(1.0, 59));
}

TEST(CombCaseDesc, DeepChainsEndWithoutACrash) {
    std::map<int, std::wstring> chain;
    for (int i = 1; i <= 20'000; ++i) {
        chain[i] = L"C" + std::to_wstring(i + 1) + L"max";
    }
    chain[20'001] = L"A1 or A2";
    const CVynData model = Model(chain);
    EXPECT_FALSE(CCombCaseDesc(L"C1").IsValid(model));
    EXPECT_TRUE(CCombCaseDesc(L"C19990").IsValid(model));
}

TEST(CombCaseDesc, FollowsChangesOfTheModel) {
    CVynData model = Model({{1, L"A1"}});
    const CCombCaseDesc desc(L"2C1");
    EXPECT_EQ(desc.CaseFactor(model, 1, AnalysisRef(1)), 2.0);
    model.SetCombinationCase(1, CCombinationCase(L"", L"3A1 or A2"));
    EXPECT_EQ(desc.NumPermutation(model), 2);
    EXPECT_EQ(desc.CaseFactor(model, 1, AnalysisRef(1)), 6.0);
}

}  // namespace
}  // namespace Tevra

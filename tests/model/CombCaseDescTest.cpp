#include <cmath>
#include <gtest/gtest.h>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "model/VynData.h"

namespace Tevra {
namespace {

using Texts = std::map<int, std::wstring>;

CVynData Model(int numAnalysisCase, const Texts& combinations) {
    CVynData model;
    for (int i = 1; i <= numAnalysisCase; ++i) {
        model.SetAnalysisCase(i, CAnalysisCase());
    }
    for (const auto& [number, text] : combinations) {
        model.SetCombinationCase(number, CCombinationCase(L"", text));
    }
    return model;
}

std::wstring Numbered(const wchar_t* before, int number, const wchar_t* after) {
    return before + std::to_wstring(number) + after;
}

std::wstring Repeated(const std::wstring& text, int times) {
    std::wstring all;
    for (int i = 0; i < times; ++i) {
        all += text;
    }
    return all;
}

TEST(CombCaseDesc, TheLeftmostChoiceVariesSlowest) {
    const CVynData model = Model(5, {{1, L"A1 or 2A2"}, {2, L"C1 or A3"}});
    const CCombCaseDesc desc(L"(A4 or (10 or 20)(A5 or A1)) - 3C2 or C1p2");
    // Each row: factors of A1 to A5.
    const std::vector<std::vector<double>> expected{
        {-3, 0, 0, 1, 0},  {0, -6, 0, 1, 0},  {0, 0, -3, 1, 0},  {-3, 0, 0, 0, 10},
        {0, -6, 0, 0, 10}, {0, 0, -3, 0, 10}, {7, 0, 0, 0, 0},   {10, -6, 0, 0, 0},
        {10, 0, -3, 0, 0}, {-3, 0, 0, 0, 20}, {0, -6, 0, 0, 20}, {0, 0, -3, 0, 20},
        {17, 0, 0, 0, 0},  {20, -6, 0, 0, 0}, {20, 0, -3, 0, 0}, {0, 2, 0, 0, 0}};
    ASSERT_EQ(desc.NumPermutation(model), static_cast<int>(expected.size()));
    for (int p = 1; p <= desc.NumPermutation(model); ++p) {
        for (int a = 1; a <= 5; ++a) {
            const auto row = static_cast<std::size_t>(p - 1);
            EXPECT_EQ(desc.CaseFactor(model, p, AnalysisRef(a)),
                      expected[row][static_cast<std::size_t>(a - 1)])
                << "permutation " << p << ", A" << a;
        }
    }
}

TEST(CombCaseDesc, TextsThatCanNotBeRead) {
    for (const std::wstring text :
         {L"A1 A2",    L"+ -A1",       L"--A1",        L"1.5 2A1",      L"1.2.3A1", L"1e999A1",
          L".A1",      L"(1 or 2)",    L"(1 or 2A1)",  L"A1 or",        L"or A1",   L"()",
          L"A",        L"A0",          L"A-1",         L"A99999999999", L"C1p0",    L"C1p",
          L"C1minmax", L"C1 to C2max", L"C1max to C2", L"A1 to 3",      L"L1",      L"1.5*A1",
          L"infA1",    L"nanA1",       L"0x1A1",       L"A\xFF11",      L"éA1"}) {
        CCombCaseDesc desc(L"A1");
        EXPECT_FALSE(desc.SetDescription(text)) << testing::PrintToString(text);
        EXPECT_EQ(desc.Description(), text);
        EXPECT_EQ(desc.NumPermutation(Model(3, {{1, L"A1"}})), 0);
    }
    EXPECT_NE(CCombCaseDesc(Repeated(L"(", 60) + L"A1" + Repeated(L")", 60)).Parsed(), nullptr);
    EXPECT_EQ(CCombCaseDesc(Repeated(L"(", 70) + L"A1" + Repeated(L")", 70)).Parsed(), nullptr);
}

TEST(CombCaseDesc, WhatItNamesMustExistAndBeValid) {
    const CVynData model =
        Model(3, {{1, L"A1 or A2"}, {2, L"A7"}, {3, L"C2"}, {4, L"C4max"}, {5, L"A2 +"}});
    const std::map<std::wstring, bool> texts{
        {L"C1p2", true},      {L"C1p3", false},     {L"C1abs", true},    {L"C2", false},
        {L"C2max", false},    {L"C3", false},       {L"C4", false},      {L"A1 + C4", false},
        {L"C5", false},       {L"C6", false},       {L"0A7", false},     {L"A3 to A9", true},
        {L"A4 to A9", false}, {L"A3 to A1", false}, {L"C1 to C1", true}, {L"C1 to C9", false}};
    for (const auto& [text, valid] : texts) {
        EXPECT_EQ(CCombCaseDesc(text).IsValid(model), valid) << testing::PrintToString(text);
    }
}

TEST(CombCaseDesc, AMillionPermutationsAtMost) {
    const CVynData model = Model(10, {{1, L"A1 to A10"}, {2, Repeated(L"+C1", 6)}});
    EXPECT_EQ(CCombCaseDesc(L"C2").NumPermutation(model), 1'000'000);
    EXPECT_EQ(CCombCaseDesc(L"C2").CaseFactor(model, 1'000'000, AnalysisRef(10)), 6.0);
    EXPECT_EQ(CCombCaseDesc(L"C2 or A1").NumPermutation(model), 0);
    EXPECT_EQ(CCombCaseDesc(L"(1 or 2)C2").NumPermutation(model), 0);
    EXPECT_EQ(CCombCaseDesc(L"C2max + C2p7").NumPermutation(model), 1);
    EXPECT_EQ(CCombCaseDesc(Repeated(L"+(1 or 2)(A1 or A2)", 60)).NumPermutation(model), 0);
}

TEST(CombCaseDesc, LongRangesAreCheapToStepThrough) {
    constexpr int kNumCase = 100'000;
    const CVynData model = Model(kNumCase, {{1, L"A1 to A2000000000"}, {2, L"C1 to C1 - A1"}});
    const CCombCaseDesc desc(L"2C2");
    ASSERT_EQ(desc.NumPermutation(model), kNumCase);
    double sum = 0.0;
    for (int p = 1; p <= kNumCase; ++p) {
        sum += desc.CaseFactor(model, p, AnalysisRef(p));
    }
    EXPECT_EQ(sum, 2.0 * (kNumCase - 1));
}

TEST(CombCaseDesc, EnvelopesAreNotMultipliedOut) {
    const CVynData model = Model(4, {{1, L"A1 or A2"}, {2, L"A3 + C1max"}, {3, L"A4"}});
    const CCombCaseDesc desc(L"2C2 - C1max + 0C1min + C3max + A2");
    EXPECT_FALSE(desc.IsSimpleCombination(model));
    const std::vector<FactoredCase> expected{{1.0, AnalysisRef(2)},
                                             {2.0, AnalysisRef(3)},
                                             {1.0, {4, 1, kMaximumEnvelope}},
                                             {0.0, {4, 1, kMinimumEnvelope}},
                                             {1.0, {4, 3, kMaximumEnvelope}}};
    EXPECT_EQ(desc.Permutation(model, 1), expected);
    EXPECT_TRUE(std::isnan(desc.CaseFactor(model, 1, AnalysisRef(1))));
    EXPECT_EQ(desc.CaseFactor(model, 1, AnalysisRef(2)), 1.0);           // also named itself
    EXPECT_TRUE(std::isnan(desc.CaseFactor(model, 1, AnalysisRef(4))));  // of a plain sum even
    EXPECT_EQ(desc.CaseFactor(model, 1, {4, 3, 0}), 0.0);
    EXPECT_EQ(CCombCaseDesc(L"0C1max").CaseFactor(model, 1, AnalysisRef(1)), 0.0);
    EXPECT_TRUE(CCombCaseDesc(L"C1p1 + C3").IsSimpleCombination(model));
}

/// C1 to C59 made of the next one twice, in a form of their own.
Texts Doubling(const wchar_t* form, const std::wstring& last) {
    Texts chain{{60, last}, {61, L"A1 or A2"}};
    for (int i = 1; i < 60; ++i) {
        std::wstring text;
        for (const wchar_t* c = form; *c != 0; ++c) {
            text += *c == L'#' ? std::to_wstring(i + 1) : std::wstring(1, *c);
        }
        chain[i] = text;
    }
    return chain;
}

TEST(CombCaseDesc, ChainsThatDoubleCostOneStepEach) {
    const double factor = std::ldexp(1.0, 59);
    const CVynData envelopes = Model(2, Doubling(L"C# + C#", L"C61max"));
    const std::vector<FactoredCase> once{{factor, {4, 61, kMaximumEnvelope}}};
    EXPECT_EQ(CCombCaseDesc(L"C1").Permutation(envelopes, 1), once);
    EXPECT_TRUE(std::isnan(CCombCaseDesc(L"C1max").CaseFactor(envelopes, 1, AnalysisRef(2))));

    const CVynData suffixed = Model(2, Doubling(L"(C#p1 + C#p1) or A2", L"A1 or A2"));
    EXPECT_EQ(CCombCaseDesc(L"C1").NumPermutation(suffixed), 2);
    EXPECT_EQ(CCombCaseDesc(L"C1").CaseFactor(suffixed, 1, AnalysisRef(1)), factor);
    EXPECT_EQ(CCombCaseDesc(L"C1").CaseFactor(suffixed, 2, AnalysisRef(2)), 1.0);

    const CVynData choices = Model(2, Doubling(L"C# or C#", L"A1"));
    EXPECT_EQ(CCombCaseDesc(L"C1").NumPermutation(choices), 0);
    EXPECT_EQ(CCombCaseDesc(L"C45").NumPermutation(choices), 32'768);
}

TEST(CombCaseDesc, DeepNestingIsRefusedWhateverWasAskedBefore) {
    Texts chain{{400, L"A1"}};
    for (int i = 1; i < 400; ++i) {
        chain[i] = Repeated(L"(", 9) + Numbered(L"C", i + 1, L"") + Repeated(L")", 9);
    }
    const CVynData model = Model(1, chain);
    for (const int first : {1, 390, 200, 1}) {
        EXPECT_EQ(CCombCaseDesc(Numbered(L"C", first, L"")).IsValid(model), first == 390) << first;
        EXPECT_EQ(model.CombinationCase(first).Desc().IsValid(model), first == 390) << first;
    }
    // A deep part counts the same when another term has been through it already.
    EXPECT_FALSE(CCombCaseDesc(L"C380 + " + Repeated(L"(", 60) + L"C380" + Repeated(L")", 60))
                     .IsValid(model));
}

TEST(CombCaseDesc, FactorsBeyondNumbersAreNotANumber) {
    const CVynData model = Model(2, {{1, L"1e200A1 + A2"}, {2, L"1e200C1 - 1e200C1max"}});
    const CCombCaseDesc desc(L"1e200C2");
    EXPECT_TRUE(std::isnan(desc.CaseFactor(model, 1, AnalysisRef(1))));
    for (const FactoredCase& part : desc.Permutation(model, 1)) {
        EXPECT_TRUE(std::isnan(part.factor));
    }
    EXPECT_EQ(CCombCaseDesc(L"1e-200C1").CaseFactor(model, 1, AnalysisRef(1)), 1.0);
}

TEST(CombCaseDesc, KnowsTheModelThatItWasAskedWith) {
    CVynData model = Model(3, {{1, L"A1 or A2"}});
    const CCombCaseDesc& desc = model.CombinationCase(1).Desc();
    EXPECT_EQ(desc.CaseFactor(2, AnalysisRef(2)), 0.0);
    EXPECT_EQ(desc.NumPermutation(model), 2);
    EXPECT_EQ(desc.CaseFactor(2, AnalysisRef(2)), 1.0);
    const CCombCaseDesc copy = desc;
    EXPECT_EQ(copy.CaseFactor(2, AnalysisRef(2)), 0.0);

    // Another model in the same place, and one that changes.
    const CCombCaseDesc outside(L"C1max + 2C1p2");
    EXPECT_EQ(outside.CaseFactor(model, 1, AnalysisRef(2)), 2.0);
    model = Model(3, {{1, L"A1 or 5A3"}});
    EXPECT_EQ(outside.CaseFactor(model, 1, AnalysisRef(3)), 10.0);
    EXPECT_EQ(outside.CaseFactor(model, 1, AnalysisRef(2)), 0.0);
    model.DeleteAnalysisCase(3);
    EXPECT_FALSE(outside.IsValid(model));
}

}  // namespace
}  // namespace Tevra

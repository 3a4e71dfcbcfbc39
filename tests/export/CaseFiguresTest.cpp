#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <map>
#include <string>
#include <vector>

#include "export/CaseFigures.h"
#include "model/VynData.h"

namespace Tevra::Export {
namespace {

using Figures = std::vector<double>;

/// Cases A1 to A3 and the combinations C1 on.
CVynData ModelOf(const std::vector<std::wstring>& combinations) {
    CVynData model;
    for (int number = 1; number <= 3; ++number) {
        model.SetAnalysisCase(number, CAnalysisCase(L"", 1, L"L1"));
    }
    int number = 0;
    for (const std::wstring& description : combinations) {
        model.SetCombinationCase(++number, CCombinationCase(L"", description));
    }
    return model;
}

/// Values and permutations: "1p0 -2p3 nan p1".
std::string TextOf(const CaseFigures& figures) {
    std::string text;
    for (std::size_t i = 0; i < figures.Values().size(); ++i) {
        const double value = figures.Values()[i];
        const std::string number =
            std::isnan(value) ? "nan" : std::to_string(std::lround(value * 100.0));
        text +=
            (text.empty() ? "" : " ") + number + "p" + std::to_string(figures.Permutations()[i]);
    }
    return text;
}

/// A1 (1, -2, 3), A2 (-4, 1, missing), A3 (2, 2, -8); in hundredths.
std::string Evaluated(const CVynData& model, const SCaseRef& ref) {
    const std::map<int, Figures> own{{1, {1, -2, 3}}, {2, {-4, 1, kMissing}}, {3, {2, 2, -8}}};
    CaseFigures figures(model, ref);
    figures.Evaluate(3, [&own](int analysisCase, std::span<double> row) {
        std::copy(own.at(analysisCase).begin(), own.at(analysisCase).end(), row.begin());
    });
    return TextOf(figures);
}

SCaseRef Comb(int number, int permutation = 0) {
    return {CaseOp::Combination, number, permutation};
}

TEST(CaseFigures, AreSumsAndEnvelopes) {
    const CVynData model = ModelOf({
        L"1.35A1 + 1.5A3",           // C1: simple
        L"A1 or A3",                 // C2
        L"A3 - (0.5 or 1)A1",        // C3: 1.5 3 -9.5; 1 4 -11
        L"A1 + C2max",               // C4: one permutation, through an envelope
        L"A1 or A1 + C2max",         // C5: the second is no sum of cases
        L"A1 + A2",                  // C6: a figure is missing
        L"A1 or A2",                 // C7
        L"A2 or A1",                 // C8
        L"0A2 + A1",                 // C9
        L"A1 + C2abs",               // C10
        L"2C4 + A3",                 // C11: through two levels
        L"A1 + A9",                  // C12: no such case
        L"C1min + A1",               // C13: a sum has no envelope but itself
        L"(0 or 1)A2 + (0 or 1)A3",  // C14: nothing at all in the first permutation
    });
    struct Case {
        SCaseRef ref;
        const char* expected;
    };
    const Case cases[] = {
        {AnalysisRef(1), "100p0 -200p0 300p0"},
        {AnalysisRef(2), "-400p0 100p0 nanp0"},
        {Comb(1), "435p0 30p0 -795p0"},
        {Comb(1, 1), "435p0 30p0 -795p0"},
        {Comb(1, kMinimumEnvelope), "435p0 30p0 -795p0"},
        {Comb(1, kSignedAbsoluteEnvelope), "435p0 30p0 -795p0"},
        {Comb(1, 2), "0p0 0p0 0p0"},  // beyond the one permutation no case has a factor
        {Comb(2, kMinimumEnvelope), "100p1 -200p1 -800p2"},
        {Comb(2, kMaximumEnvelope), "200p2 200p2 300p1"},
        {Comb(3, kMinimumEnvelope), "100p2 300p1 -1100p2"},
        {Comb(3, kMaximumEnvelope), "150p1 400p2 -950p1"},
        // Neither a permutation by itself nor magnitudes of a combination with several.
        {Comb(2), "nanp0 nanp0 nanp0"},
        {Comb(2, 1), "nanp0 nanp0 nanp0"},
        {Comb(2, kAbsoluteEnvelope), "nanp0 nanp0 nanp0"},
        {Comb(2, kSignedAbsoluteEnvelope), "nanp0 nanp0 nanp0"},
        {Comb(4), "300p0 0p0 600p0"},
        {Comb(4, kMinimumEnvelope), "300p0 0p0 600p0"},
        {Comb(5, kMinimumEnvelope), "100p1 -200p1 300p1"},
        {Comb(6), "-300p0 -100p0 nanp0"},
        {Comb(7, kMinimumEnvelope), "-400p2 -200p1 300p1"},
        {Comb(8, kMinimumEnvelope), "-400p1 -200p2 nanp1"},
        {Comb(9), "100p0 -200p0 300p0"},
        {Comb(10), "nanp0 nanp0 nanp0"},
        {Comb(11), "800p0 200p0 400p0"},
        {Comb(12), "nanp0 nanp0 nanp0"},
        {Comb(13), "535p0 -170p0 -495p0"},
        {Comb(14, kMaximumEnvelope), "200p2 300p4 0p1"},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(Evaluated(model, c.ref), c.expected)
            << c.ref.Case() << ' ' << c.ref.Permutation();
    }
}

TEST(CaseFigures, ReadEachAnalysisCaseOncePerEntity) {
    const CVynData model =
        ModelOf({L"(1 or 2 or 3)A1 + (1 or -1)A2 + (0 or 1)A1 + A3 or A2", L"C1min + C1max + A3"});
    for (const SCaseRef& ref : {Comb(1, kMinimumEnvelope), Comb(2)}) {
        CaseFigures figures(model, ref);
        for (int entity = 0; entity < 2; ++entity) {
            std::vector<int> reads;
            figures.Evaluate(1, [&reads](int analysisCase, std::span<double> row) {
                reads.push_back(analysisCase);
                row[0] = 1.0;
            });
            std::sort(reads.begin(), reads.end());
            EXPECT_EQ(reads, (std::vector<int>{1, 2, 3}));
        }
    }
}

// Entities of different size one after the other, wide and narrow.
TEST(CaseFigures, TakeEntitiesOfAnyWidth) {
    const CVynData model = ModelOf({L"A1 or 2A1"});
    CaseFigures figures(model, Comb(1, kMaximumEnvelope));
    for (const std::size_t width : {2U, 5U, 0U, 1U, 3U}) {
        figures.Evaluate(width, [](int, std::span<double> row) {
            for (std::size_t i = 0; i < row.size(); ++i) {
                row[i] = static_cast<double>(i);
            }
        });
        ASSERT_EQ(figures.Values().size(), width);
        for (std::size_t i = 0; i < width; ++i) {
            EXPECT_EQ(figures.Values()[i], 2.0 * static_cast<double>(i));
            EXPECT_EQ(figures.Permutations()[i], i == 0 ? 1 : 2);
        }
    }
}

TEST(CaseFigures, MultiplyOutAnewWhatIsTooMuchToBeKept) {
    const CVynData model =
        ModelOf({L"(1 or 2 or 3)A1 + (0 or 1 or -1)A2 + A3 or A1 + C2min", L"A1 or A3"});
    for (const int code : {kMinimumEnvelope, kMaximumEnvelope}) {
        std::vector<std::string> texts;
        for (const std::size_t mostTerms :
             {std::size_t{0}, std::size_t{9}, CaseFigures::kMostTerms}) {
            CaseFigures figures(model, Comb(1, code), mostTerms);
            figures.Evaluate(2, [](int analysisCase, std::span<double> row) {
                row[0] = analysisCase;
                row[1] = -0.5 * analysisCase;
            });
            texts.push_back(TextOf(figures));
        }
        EXPECT_EQ(texts[0], code == kMinimumEnvelope ? "200p3 -400p8" : "800p8 -100p3");
        EXPECT_EQ(texts[1], texts[0]);
        EXPECT_EQ(texts[2], texts[0]);
    }
}

TEST(CaseFigures, KnowWhenTheModelHasChanged) {
    CVynData model = ModelOf({L"A1"});
    const CaseFigures figures(model, Comb(1));
    EXPECT_TRUE(figures.Holds(model, Comb(1)));
    EXPECT_FALSE(figures.Holds(model, Comb(1, 1)));
    model.SetCombinationCase(1, CCombinationCase(L"", L"2A1"));
    EXPECT_FALSE(figures.Holds(model, Comb(1)));
    EXPECT_FALSE(CaseFigures(model, SCaseRef()).IsCase());
}

}  // namespace
}  // namespace Tevra::Export

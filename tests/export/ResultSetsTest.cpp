#include <cmath>
#include <gtest/gtest.h>
#include <stdexcept>

#include "export/ResultSets.h"

namespace Tevra::Export {
namespace {

/// A pair in words: "2.000000 p1", "nan p0".
std::string TextOf(const Pair& pair) {
    return (std::isnan(pair.first) ? std::string("nan") : std::to_string(pair.first)) + " p" +
           std::to_string(pair.second);
}

NodeSet NodeWith(const Pair& pair) {
    NodeSet set;
    set[0] = pair;
    return set;
}

TEST(Envelope, FoldsByItsRule) {
    constexpr CombineOption kMin = CombineOption::Minimum;
    constexpr CombineOption kMax = CombineOption::Maximum;
    constexpr CombineOption kAbs = CombineOption::Absolute;
    constexpr CombineOption kSigned = CombineOption::SignedAbsolute;
    struct Case {
        CombineOption option;
        Pair a;
        Pair b;
        Pair expected;
    };
    const Case cases[] = {
        {kMin, {1, 1}, {-2, 2}, {-2, 2}},
        {kMin, {1, 1}, {2, 2}, {1, 1}},
        {kMin, {1, 1}, {1, 2}, {1, 1}},
        {kMax, {1, 1}, {2, 2}, {2, 2}},
        {kMax, {1, 1}, {-2, 2}, {1, 1}},
        {kMax, {1, 1}, {1, 2}, {1, 1}},
        {kAbs, {-3, 1}, {2, 2}, {3, 1}},
        {kAbs, {2, 1}, {-3, 2}, {3, 2}},
        {kAbs, {-3, 1}, {3, 2}, {3, 1}},
        {kSigned, {-3, 1}, {2, 2}, {-3, 1}},
        {kSigned, {2, 1}, {-3, 2}, {-3, 2}},
        {kSigned, {-3, 1}, {3, 2}, {-3, 1}},
        // What is no number neither wins nor is replaced.
        {kMin, {1, 1}, {kMissing, 2}, {1, 1}},
        {kMin, {kMissing, 1}, {1, 2}, {kMissing, 1}},
        {kMax, {kMissing, 1}, {1, 2}, {kMissing, 1}},
        {kAbs, {-1, 1}, {kMissing, 2}, {1, 1}},
        {kSigned, {-1, 1}, {kMissing, 2}, {-1, 1}},
    };
    for (const Case& c : cases) {
        NodeSet set = NodeWith(c.a);
        set.CombineResult(c.option, NodeWith(c.b));
        EXPECT_EQ(TextOf(set[0]), TextOf(c.expected)) << static_cast<int>(c.option);
    }
}

TEST(Envelope, RefusesAnOptionThatIsNone) {
    NodeSet set;
    Elem3DSet solid(1);
    for (const int option : {4, -1}) {
        try {
            set.CombineResult(static_cast<CombineOption>(option), NodeSet());
            ADD_FAILURE();
        } catch (const std::logic_error& error) {
            EXPECT_STREQ(error.what(), "invalid combination option");
        }
        EXPECT_THROW(solid.CombineResult(static_cast<CombineOption>(option), Elem3DSet(1)),
                     std::logic_error);
    }
}

TEST(Envelope, OptionsGoWithTheCodesOfCaseReferences) {
    EXPECT_EQ(OptionOf(kMinimumEnvelope), CombineOption::Minimum);
    EXPECT_EQ(OptionOf(kMaximumEnvelope), CombineOption::Maximum);
    EXPECT_EQ(OptionOf(kAbsoluteEnvelope), CombineOption::Absolute);
    EXPECT_EQ(OptionOf(kSignedAbsoluteEnvelope), CombineOption::SignedAbsolute);
}

TEST(ResultSet, BeginsWithoutValuesAndPermutations) {
    const NodeSet node;
    for (std::size_t i = 0; i < NodeSet::kNumPair; ++i) {
        EXPECT_EQ(TextOf(node[i]), "nan p0");
    }
    const AssemblySet assembly(2);
    EXPECT_TRUE(std::isnan(assembly.Position(1)));
    EXPECT_EQ(TextOf(assembly[1][14]), "nan p0");
}

TEST(ResultSet, AddsValuesAndLeavesPermutationsAlone) {
    Elem2DSet sum(2);
    sum.Init(0.0);
    sum.SetPermutation(3);
    Elem2DSet one(2);
    one.Init(2.0);
    one.SetPermutation(9);
    one[1][28] = {kMissing, 9};
    sum.Add(one, 1.5);
    sum.Add(one, 0.0);
    EXPECT_EQ(TextOf(sum[0][0]), "3.000000 p3");
    EXPECT_EQ(TextOf(sum[1][27]), "3.000000 p3");
    EXPECT_EQ(TextOf(sum[1][28]), "nan p3");
}

TEST(ResultSet, CopiesWithOrWithoutItsRecords) {
    Elem1DSet set(std::vector<int>{0, 500000, 1000000});
    set.Init(4.0);
    const Elem1DSet whole(set, true);
    const Elem1DSet empty(set, false);
    ASSERT_EQ(empty.NumPosition(), 3U);
    EXPECT_EQ(whole.Position(1), 500000);
    EXPECT_EQ(empty.Position(1), 500000);
    EXPECT_EQ(TextOf(whole[2][8]), "4.000000 p0");
    EXPECT_EQ(TextOf(empty[2][8]), "nan p0");
}

// Where each part of a node's record lies.
TEST(ResultSet, NodeRecordsKeepTheirOrder) {
    NodeSet set;
    for (std::size_t i = 0; i < NodeSet::kNumPair; ++i) {
        set[i].first = static_cast<double>(i);
    }
    const Vector3 parts[] = {set.Disp(),      set.Rotn(),      set.Vel(),        set.RotVel(),
                             set.Acc(),       set.RotAcc(),    set.ReactForce(), set.ReactMoment(),
                             set.ConsForce(), set.ConsMoment()};
    double next = 0.0;
    for (const Vector3& part : parts) {
        EXPECT_EQ(part.x.first, next);
        EXPECT_EQ(part.y.first, next + 1);
        EXPECT_EQ(part.z.first, next + 2);
        next += 3;
    }
}

}  // namespace
}  // namespace Tevra::Export

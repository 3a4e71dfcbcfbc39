#include <cstdint>
#include <gtest/gtest.h>
#include <limits>
#include <map>
#include <random>
#include <set>
#include <string>
#include <vector>

#include "model/BitSet.h"
#include "model/NumberedTable.h"
#include "support/Random.h"

namespace Tevra {
namespace {

constexpr int kHighestInt = std::numeric_limits<int>::max();

/// Numbers that lie close together, at the borders of pages and books, far out and at the end.
int AnyNumber(std::mt19937_64& random) {
    constexpr int kBases[] = {0, 60, 65530, 131070, 9'999'990, 99'999'990, kHighestInt - 10};
    return kBases[random() % std::size(kBases)] + static_cast<int>(random() % 11);
}

int NextIn(const std::map<int, int>& model, int number) {
    const auto next = model.lower_bound(number);
    return next != model.end() ? next->first : 0;
}

void ExpectSame(const NumberedTable<int>& table, const std::map<int, int>& model) {
    ASSERT_EQ(table.Count(), static_cast<int>(model.size()));
    ASSERT_EQ(table.Highest(), model.empty() ? 0 : model.rbegin()->first);
    auto expected = model.begin();
    for (const int number : table.Numbers()) {
        ASSERT_EQ(number, expected->first);
        ASSERT_EQ(table.Get(number), expected->second);
        ++expected;
    }
    ASSERT_TRUE(expected == model.end());
}

TEST(NumberedTable, IsAMapUnderAnySequenceOfChanges) {
    std::mt19937_64 random = TestSupport::SeededRandom(1);
    NumberedTable<int> table;
    std::map<int, int> model;
    for (int step = 0; step < 4000; ++step) {
        const int number = AnyNumber(random);
        if (random() % 5 < 2) {
            ASSERT_EQ(table.Set(number, step), number >= 1);
            if (number >= 1) {
                model[number] = step;
            }
        } else {
            ASSERT_EQ(table.Erase(number), model.erase(number) == 1);
        }
        const int asked = AnyNumber(random);
        ASSERT_EQ(table.Exist(asked), model.count(asked) == 1);
        ASSERT_EQ(table.Find(asked) != nullptr, model.count(asked) == 1);
        ASSERT_EQ(table.NextAtOrAbove(asked), NextIn(model, asked));
        if (step % 200 == 0) {
            ExpectSame(table, model);
            ExpectSame(NumberedTable<int>(table), model);
        }
    }
    while (table.Highest() > 0) {
        ASSERT_TRUE(table.Erase(table.Highest()));
        model.erase(std::prev(model.end()));
        ASSERT_EQ(table.Highest(), model.empty() ? 0 : model.rbegin()->first);
    }
}

TEST(NumberedTable, HoldsTheHighestNumberThereIs) {
    NumberedTable<std::string> table;
    ASSERT_TRUE(table.Set(kHighestInt, "last"));
    EXPECT_EQ(table.NextAtOrAbove(1), kHighestInt);
    EXPECT_EQ(table.NextAtOrAbove(kHighestInt), kHighestInt);
    int visits = 0;
    for (const int number : table.Numbers()) {
        EXPECT_EQ(number, kHighestInt);
        ++visits;
    }
    EXPECT_EQ(visits, 1);
    EXPECT_TRUE(table.Erase(kHighestInt));
    EXPECT_EQ(table.Highest(), 0);
    EXPECT_EQ(table.Get(kHighestInt), "");
}

/// A record that knows how many of it there are.
struct Counted {
    Counted() { ++alive; }
    Counted(const Counted& /*o*/) { ++alive; }
    Counted& operator=(const Counted&) = default;
    ~Counted() { --alive; }
    bool operator==(const Counted&) const = default;
    static inline int alive = 0;
};

TEST(NumberedTable, StorageGrowsWithTheRecordsNotWithTheirNumbers) {
    const int before = Counted::alive;
    {
        NumberedTable<Counted> table;
        for (int i = 0; i < 3000; ++i) {
            table.Set(10'000'000 + i, Counted());
        }
        EXPECT_LT(Counted::alive - before, 3000 + 2 * 64);
        table.Set(kHighestInt, Counted());
        EXPECT_LT(Counted::alive - before, 3000 + 3 * 64);
        const NumberedTable<Counted> copy = table;
        EXPECT_LT(Counted::alive - before, 2 * (3000 + 3 * 64));
        table = NumberedTable<Counted>();
        EXPECT_LT(Counted::alive - before, 3000 + 3 * 64);
    }
    EXPECT_LE(Counted::alive - before, 1);  // the default record stays
}

TEST(NumberedTable, AnErasedRecordLeavesNothingBehind) {
    NumberedTable<std::vector<int>> table;
    table.Set(5, {1, 2, 3});
    table.Set(6, {4});
    EXPECT_TRUE(table.Erase(5));
    EXPECT_TRUE(table.Get(5).empty());
    NumberedTable<std::vector<int>> other;
    other.Set(6, {4});
    EXPECT_TRUE(table == other);
    other.Set(5, {});
    EXPECT_FALSE(table == other);  // an empty record is a record
}

TEST(BitSet, IsASetUnderAnySequenceOfChanges) {
    std::mt19937_64 random = TestSupport::SeededRandom(2);
    constexpr int kBound = 10'000'005;
    CBitSet bits(kBound);
    std::set<int> model;
    for (int step = 0; step < 3000; ++step) {
        const int number = AnyNumber(random);
        const bool in = random() % 3 != 0;
        bits.Set(number, in);
        if (number >= 1 && number <= kBound) {
            in ? (void)model.insert(number) : (void)model.erase(number);
        }
        const int asked = AnyNumber(random);
        ASSERT_EQ(bits.Test(asked), model.count(asked) == 1) << asked;
        const auto next = model.lower_bound(asked);
        ASSERT_EQ(bits.NextAtOrAbove(asked), next != model.end() ? *next : 0) << asked;
    }
    std::vector<int> numbers;
    bits.ForEach([&numbers](int number) { numbers.push_back(number); });
    EXPECT_EQ(numbers, std::vector<int>(model.begin(), model.end()));
    EXPECT_EQ(bits.Count(), static_cast<int>(model.size()));
}

TEST(BitSet, ReachesTheHighestNumberThereIs) {
    CBitSet bits(kHighestInt);
    bits.Set(kHighestInt);
    EXPECT_TRUE(bits.Test(kHighestInt));
    EXPECT_EQ(bits.NextAtOrAbove(1), kHighestInt);
    EXPECT_EQ(bits.Count(), 1);
    const CBitSet none(-7);
    EXPECT_EQ(none.Bound(), 0);
    EXPECT_EQ(none.NextAtOrAbove(0), 0);
    EXPECT_FALSE(none.Test(0));
}

}  // namespace
}  // namespace Tevra

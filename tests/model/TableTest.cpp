#include <gtest/gtest.h>
#include <limits>
#include <vector>

#include "model/BitSet.h"
#include "model/NumberedTable.h"

namespace Tevra {
namespace {

std::vector<int> NumbersOf(const NumberedTable<int>& table) {
    std::vector<int> numbers;
    for (const int number : table.Numbers()) {
        numbers.push_back(number);
    }
    return numbers;
}

TEST(NumberedTable, KeepsGapsAndWalksThemInOrder) {
    NumberedTable<int> table;
    const std::vector<int> numbers{1,
                                   2,
                                   63,
                                   64,
                                   65,
                                   128,
                                   65536,
                                   65537,
                                   9'999'999,
                                   10'000'001,
                                   std::numeric_limits<int>::max()};
    const std::vector<int> descending(numbers.rbegin(), numbers.rend());
    for (const int number : descending) {
        EXPECT_TRUE(table.Set(number, number % 1000));
    }
    EXPECT_EQ(NumbersOf(table), numbers);
    EXPECT_EQ(table.Count(), static_cast<int>(numbers.size()));
    EXPECT_EQ(table.Highest(), std::numeric_limits<int>::max());
    EXPECT_EQ(table.Get(65537), 537);
    for (const int absent : {-5, 0, 3, 66, 127, 65538, 10'000'000}) {
        EXPECT_FALSE(table.Exist(absent)) << absent;
        EXPECT_EQ(table.Get(absent), 0) << absent;
    }
    EXPECT_EQ(table.NextAtOrAbove(65538), 9'999'999);
    EXPECT_EQ(table.NextAtOrAbove(-1), 1);
}

TEST(NumberedTable, RefusesNumbersBelowOne) {
    NumberedTable<int> table;
    EXPECT_FALSE(table.Set(0, 7));
    EXPECT_FALSE(table.Set(-1, 7));
    EXPECT_EQ(table.Highest(), 0);
    EXPECT_FALSE(table.Erase(0));
    EXPECT_EQ(table.NextAtOrAbove(1), 0);
}

TEST(NumberedTable, DeletingTheHighestLowersIt) {
    NumberedTable<int> table;
    for (const int number : {3, 64, 65, 200'000, 3'000'000}) {
        table.Set(number, 1);
    }
    for (const int highest : {3'000'000, 200'000, 65, 64, 3}) {
        EXPECT_EQ(table.Highest(), highest);
        EXPECT_TRUE(table.Erase(highest));
        EXPECT_FALSE(table.Erase(highest));
    }
    EXPECT_EQ(table.Highest(), 0);
    EXPECT_EQ(table.Count(), 0);
}

TEST(NumberedTable, HasRoomForRecordsThatLieTogether) {
    NumberedTable<int> table;
    int scattered = 0;
    for (int number = 1; table.HasRoomFor(number); number += 20'000) {
        table.Set(number, 1);
        ++scattered;
    }
    EXPECT_GT(scattered, 1000);
    EXPECT_LT(scattered, 1200);
    EXPECT_TRUE(table.HasRoomFor(2));  // beside one that is there
    for (int number = 2; number < 2000; ++number) {
        table.Set(number, 1);
    }
    EXPECT_TRUE(table.HasRoomFor(1'900'000'000));  // many records may lie wider apart
}

TEST(NumberedTable, CopiesAreApartAndMovedFromTablesAreEmpty) {
    NumberedTable<int> table;
    table.Set(70'000, 5);
    NumberedTable<int> copy = table;
    EXPECT_TRUE(copy == table);
    copy.Set(70'000, 6);
    EXPECT_EQ(table.Get(70'000), 5);
    EXPECT_FALSE(copy == table);
    const NumberedTable<int> moved = std::move(copy);
    EXPECT_EQ(moved.Get(70'000), 6);
    // NOLINTNEXTLINE(bugprone-use-after-move,clang-analyzer-cplusplus.Move)
    EXPECT_EQ(copy.Highest(), 0);
    EXPECT_TRUE(copy.Set(4, 4));
}

TEST(BitSet, HoldsNumbersUpToItsBound) {
    CBitSet set(200'000);
    for (const int number : {1, 63, 64, 65'535, 65'536, 200'000}) {
        set.Set(number);
    }
    set.Set(0);
    set.Set(200'001);
    EXPECT_EQ(set.Count(), 6);
    EXPECT_FALSE(set.Test(0));
    EXPECT_FALSE(set.Test(200'001));
    EXPECT_EQ(set.NextAtOrAbove(65), 65'535);
    EXPECT_EQ(set.NextAtOrAbove(65'537), 200'000);
    set.Set(64, false);
    EXPECT_FALSE(set.Test(64));
    CBitSet other(200'000);
    other.Set(1);
    other.Set(2);
    set.Remove(other);
    set.Add(other);
    std::vector<int> numbers;
    set.ForEach([&numbers](int number) { numbers.push_back(number); });
    EXPECT_EQ(numbers, (std::vector<int>{1, 2, 63, 65'535, 65'536, 200'000}));
}

TEST(BitSet, EqualSetsAreEqualWhateverWasOnceInThem) {
    CBitSet a(100'000);
    CBitSet b(100'000);
    a.Set(90'000);
    EXPECT_FALSE(a == b);
    a.Set(90'000, false);
    EXPECT_TRUE(a == b);
    EXPECT_FALSE(a == CBitSet(99'999));
}

}  // namespace
}  // namespace Tevra

#pragma once

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace Tevra {

/// Set of numbers from 1 to a bound, one bit each, in pages made on demand: a few large numbers
/// cost little. Asking for a number outside the bound is false.
class CBitSet {
public:
    CBitSet() = default;
    /// An empty set that can hold the numbers 1 to `bound`.
    explicit CBitSet(int bound)
        : m_bound(bound > 0 ? bound : 0), m_pages(Index(m_bound) / kPageBits + 1) {}

    int Bound() const { return m_bound; }

    bool Test(int number) const {
        if (number < 1 || number > m_bound) {
            return false;
        }
        const Page& page = m_pages[Index(number) / kPageBits];
        return !page.empty() && ((page[Word(number)] >> (number % kWordBits)) & 1U) != 0;
    }

    /// Puts `number` in or out; numbers outside the bound are ignored.
    void Set(int number, bool in = true) {
        if (number < 1 || number > m_bound) {
            return;
        }
        Page& page = m_pages[Index(number) / kPageBits];
        if (page.empty()) {
            page.resize(kPageWords);
        }
        const std::uint64_t bit = std::uint64_t{1} << (number % kWordBits);
        page[Word(number)] = in ? page[Word(number)] | bit : page[Word(number)] & ~bit;
    }

    /// Number of numbers in the set.
    int Count() const {
        int count = 0;
        for (const Page& page : m_pages) {
            for (const std::uint64_t word : page) {
                count += std::popcount(word);
            }
        }
        return count;
    }

    /// The first number in the set at or above `number`, 0 when there is none.
    int NextAtOrAbove(int number) const {
        std::size_t i = Index(number < 1 ? 1 : number);
        while (i <= Index(m_bound)) {
            const Page& page = m_pages[i / kPageBits];
            if (page.empty()) {
                i = (i / kPageBits + 1) * kPageBits;
                continue;
            }
            const std::uint64_t word = page[i / kWordBits % kPageWords] >> (i % kWordBits);
            if (word != 0) {
                return static_cast<int>(i) + std::countr_zero(word);
            }
            i = (i / kWordBits + 1) * kWordBits;
        }
        return 0;
    }

    /// Takes out every number that `other` holds, or puts them in.
    void Remove(const CBitSet& other) { Merge(other, false); }
    void Add(const CBitSet& other) { Merge(other, true); }

    /// Calls `visit(number)` for each number in ascending order.
    template <class Visit>
    void ForEach(Visit visit) const {
        for (std::size_t p = 0; p < m_pages.size(); ++p) {
            for (std::size_t w = 0; w < m_pages[p].size(); ++w) {
                const std::size_t base = (p * kPageWords + w) * kWordBits;
                for (std::uint64_t word = m_pages[p][w]; word != 0; word &= word - 1) {
                    visit(static_cast<int>(base) + std::countr_zero(word));
                }
            }
        }
    }

    /// Equal when the bounds and the numbers are.
    bool operator==(const CBitSet& o) const {
        return m_bound == o.m_bound &&
               std::equal(m_pages.begin(), m_pages.end(), o.m_pages.begin(), o.m_pages.end(),
                          [](const Page& a, const Page& b) { return Same(a, b) || Same(b, a); });
    }

private:
    static constexpr int kWordBits = 64;
    static constexpr std::size_t kPageWords = 1024;
    static constexpr std::size_t kPageBits = kPageWords * kWordBits;
    using Page = std::vector<std::uint64_t>;  ///< empty, or kPageWords words

    static constexpr std::size_t Index(int number) { return static_cast<std::size_t>(number); }
    static constexpr std::size_t Word(int number) { return Index(number) / kWordBits % kPageWords; }
    /// The same words, or `a` without words and `b` without numbers.
    static bool Same(const Page& a, const Page& b) {
        return a == b || (a.empty() && std::all_of(b.begin(), b.end(),
                                                   [](std::uint64_t word) { return word == 0; }));
    }
    void Merge(const CBitSet& other, bool in) {
        other.ForEach([this, in](int number) { Set(number, in); });
    }

    int m_bound = 0;
    std::vector<Page> m_pages;
};

}  // namespace Tevra

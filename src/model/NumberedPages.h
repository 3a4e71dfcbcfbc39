#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <memory>
#include <utility>
#include <vector>

namespace Tevra {

/// Which numbers of a numbered table are in use, and where the records lie: in pages made on
/// demand, reached through books of pages. What a page of records is, the table knows.
class NumberedPages {
public:
    NumberedPages(const NumberedPages&) = delete;
    NumberedPages& operator=(const NumberedPages&) = delete;
    NumberedPages& operator=(NumberedPages&&) = delete;

    /// Highest number in use, 0 when the table is empty.
    int Highest() const { return m_highest; }
    /// Number of records.
    int Count() const { return m_count; }

    /// Whether a record of this number (from 1) can be stored at a fair cost. Numbers that lie
    /// together share storage; a lonely one far from all others takes a good deal of its own. No
    /// model that a program wrote has so many of those that readers should take them.
    bool HasRoomFor(int number) const {
        return m_numBook < kFreeBooks + m_count / kRecordsPerBook || HasBookOf(number);
    }

    bool Exist(int number) const {
        const Page* page = FindPage(number);
        return page != nullptr && page->Has(number);
    }

    /// The first number in use at or above `number`, 0 when there is none. Empty pages are stepped
    /// over whole.
    int NextAtOrAbove(int number) const;

    /// Iterates the numbers in use in ascending order.
    class Iterator {
    public:
        using iterator_category = std::input_iterator_tag;
        using value_type = int;
        using difference_type = std::ptrdiff_t;
        using pointer = const int*;
        using reference = int;

        Iterator(const NumberedPages* table, int number) : m_table(table), m_number(number) {}
        int operator*() const { return m_number; }
        Iterator& operator++() {
            m_number = m_number == m_table->m_highest ? 0 : m_table->NextAtOrAbove(m_number + 1);
            return *this;
        }
        Iterator operator++(int) {
            const Iterator before = *this;
            ++*this;
            return before;
        }
        bool operator==(const Iterator& o) const { return m_number == o.m_number; }

    private:
        const NumberedPages* m_table;
        int m_number;
    };
    class NumberRange {
    public:
        explicit NumberRange(const NumberedPages* table) : m_table(table) {}
        Iterator begin() const { return {m_table, m_table->NextAtOrAbove(1)}; }
        Iterator end() const { return {m_table, 0}; }

    private:
        const NumberedPages* m_table;
    };
    NumberRange Numbers() const { return NumberRange(this); }

protected:
    static constexpr std::size_t kPageSize = 64;
    static constexpr std::size_t kPagesInBook = 256;
    static constexpr std::size_t kBookSpan = kPageSize * kPagesInBook;

    static constexpr std::size_t Index(int number) { return static_cast<std::size_t>(number) - 1; }
    static constexpr std::size_t Slot(int number) { return Index(number) % kPageSize; }

    /// Records that are allocated together: few, so that a number far from all others costs little.
    static constexpr std::size_t kChunkSize = 4;

    struct Page {
        bool Has(int number) const { return ((present >> Slot(number)) & 1U) != 0; }
        std::uint64_t present = 0;
        /// kChunkSize records each, or null; owned by the table.
        std::array<void*, kPageSize / kChunkSize> chunks{};
    };
    struct Book {
        std::array<Page, kPagesInBook> pages{};
    };

    NumberedPages() = default;
    NumberedPages(NumberedPages&& o) noexcept { Swap(o); }
    ~NumberedPages() = default;

    void Swap(NumberedPages& o) noexcept {
        std::swap(m_books, o.m_books);
        std::swap(m_numBook, o.m_numBook);
        std::swap(m_highest, o.m_highest);
        std::swap(m_count, o.m_count);
    }

    const Page* FindPage(int number) const {
        if (number < 1 || number > m_highest) {
            return nullptr;
        }
        const Book* book = m_books[Index(number) / kBookSpan].get();
        return book == nullptr ? nullptr : &book->pages[Index(number) / kPageSize % kPagesInBook];
    }

    /// The page of a number from 1, which may have no records yet.
    Page& MakePage(int number);
    /// Marks a number of a page as in use, or no longer.
    void Mark(Page& page, int number);
    void Unmark(Page& page, int number);

    template <class Visit>
    void ForEachChunk(Visit&& visit) const {
        for (const auto& book : m_books) {
            if (book) {
                for (const Page& page : book->pages) {
                    std::for_each(page.chunks.begin(), page.chunks.end(), visit);
                }
            }
        }
    }

private:
    /// Books that any table may have, 35 KB each, and how many records let it have one more.
    static constexpr int kFreeBooks = 1024;
    static constexpr int kRecordsPerBook = 16;

    bool HasBookOf(int number) const {
        const std::size_t book = Index(number) / kBookSpan;
        return book < m_books.size() && m_books[book] != nullptr;
    }
    int LastAtOrBelow(int number) const;

    std::vector<std::unique_ptr<Book>> m_books;
    int m_numBook = 0;
    int m_highest = 0;
    int m_count = 0;
};

}  // namespace Tevra

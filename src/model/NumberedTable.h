#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <memory>
#include <utility>
#include <vector>

namespace Tevra {

/// Records numbered from 1 by the user, with gaps. Access, existence and writing take constant
/// time; storage grows with the records, not with the highest number, because records lie in small
/// pages made on demand, reached through two levels of directories.
template <class Record>
class NumberedTable {
public:
    NumberedTable() = default;
    NumberedTable(const NumberedTable& o) : m_highest(o.m_highest), m_count(o.m_count) {
        m_books.reserve(o.m_books.size());
        for (const auto& book : o.m_books) {
            m_books.push_back(book ? std::make_unique<Book>(*book) : nullptr);
        }
    }
    NumberedTable(NumberedTable&& o) noexcept
        : m_books(std::move(o.m_books)),
          m_highest(std::exchange(o.m_highest, 0)),
          m_count(std::exchange(o.m_count, 0)) {
        o.m_books.clear();
    }
    ~NumberedTable() = default;
    NumberedTable& operator=(NumberedTable o) noexcept {
        std::swap(m_books, o.m_books);
        std::swap(m_highest, o.m_highest);
        std::swap(m_count, o.m_count);
        return *this;
    }

    /// Highest number in use, 0 when the table is empty.
    int Highest() const { return m_highest; }
    /// Number of records.
    int Count() const { return m_count; }

    bool Exist(int number) const {
        const Page* page = FindPage(number);
        return page != nullptr && ((page->present >> (Index(number) % kPageSize)) & 1U) != 0;
    }

    /// The record; a default one when it does not exist.
    const Record& Get(int number) const {
        static const Record kDefault{};
        const Record* record = Find(number);
        return record != nullptr ? *record : kDefault;
    }

    /// The record, or null.
    const Record* Find(int number) const {
        const Page* page = FindPage(number);
        if (page == nullptr || ((page->present >> (Index(number) % kPageSize)) & 1U) == 0) {
            return nullptr;
        }
        return &page->records[Index(number) % kPageSize];
    }
    Record* Find(int number) {
        return const_cast<Record*>(std::as_const(*this).Find(number));  // NOLINT
    }

    /// Stores a record under its number; false (and nothing stored) for numbers below 1.
    bool Set(int number, Record record) {
        if (number < 1) {
            return false;
        }
        Page& page = MakePage(number);
        const std::uint64_t bit = std::uint64_t{1} << (Index(number) % kPageSize);
        if ((page.present & bit) == 0) {
            page.present |= bit;
            ++m_count;
        }
        page.records[Index(number) % kPageSize] = std::move(record);
        m_highest = number > m_highest ? number : m_highest;
        return true;
    }

    /// Removes a record; removing the highest lowers `Highest()` to the next one in use.
    bool Erase(int number) {
        if (!Exist(number)) {
            return false;
        }
        Page& page = MakePage(number);
        page.present &= ~(std::uint64_t{1} << (Index(number) % kPageSize));
        page.records[Index(number) % kPageSize] = Record{};
        --m_count;
        if (number == m_highest) {
            m_highest = LastAtOrBelow(number);
        }
        return true;
    }

    /// The first number in use at or above `number`, 0 when there is none. Empty pages are stepped
    /// over whole.
    int NextAtOrAbove(int number) const {
        std::size_t i = number < 1 ? 0 : Index(number);
        const auto end = static_cast<std::size_t>(m_highest);
        while (i < end) {
            const Book* book = m_books[i / kBookSpan].get();
            if (book == nullptr) {
                i = (i / kBookSpan + 1) * kBookSpan;
                continue;
            }
            const Page* page = book->pages[i / kPageSize % kPagesInBook].get();
            const std::uint64_t left = page == nullptr ? 0 : page->present >> (i % kPageSize);
            if (left != 0) {
                return static_cast<int>(i) + std::countr_zero(left) + 1;
            }
            i = (i / kPageSize + 1) * kPageSize;
        }
        return 0;
    }

    /// Iterates the numbers in use in ascending order.
    class Iterator {
    public:
        using iterator_category = std::input_iterator_tag;
        using value_type = int;
        using difference_type = std::ptrdiff_t;
        using pointer = const int*;
        using reference = int;

        Iterator(const NumberedTable* table, int number) : m_table(table), m_number(number) {}
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
        const NumberedTable* m_table;
        int m_number;
    };
    class NumberRange {
    public:
        explicit NumberRange(const NumberedTable* table) : m_table(table) {}
        Iterator begin() const { return {m_table, m_table->NextAtOrAbove(1)}; }
        Iterator end() const { return {m_table, 0}; }

    private:
        const NumberedTable* m_table;
    };
    NumberRange Numbers() const { return NumberRange(this); }

    /// Equal when the same numbers hold equal records.
    bool operator==(const NumberedTable& o) const {
        if (m_highest != o.m_highest || m_count != o.m_count) {
            return false;
        }
        for (const int number : Numbers()) {
            const Record* other = o.Find(number);
            if (other == nullptr || !(*Find(number) == *other)) {
                return false;
            }
        }
        return true;
    }

private:
    static constexpr std::size_t kPageSize = 64;
    static constexpr std::size_t kPagesInBook = 1024;
    static constexpr std::size_t kBookSpan = kPageSize * kPagesInBook;

    struct Page {
        std::uint64_t present = 0;
        std::array<Record, kPageSize> records{};
    };
    struct Book {
        Book() = default;
        Book(const Book& o) {
            for (std::size_t i = 0; i < kPagesInBook; ++i) {
                if (o.pages[i]) {
                    pages[i] = std::make_unique<Page>(*o.pages[i]);
                }
            }
        }
        Book& operator=(const Book&) = delete;
        std::array<std::unique_ptr<Page>, kPagesInBook> pages{};
    };

    static constexpr std::size_t Index(int number) { return static_cast<std::size_t>(number) - 1; }

    const Page* FindPage(int number) const {
        if (number < 1 || number > m_highest) {
            return nullptr;
        }
        const Book* book = m_books[Index(number) / kBookSpan].get();
        return book == nullptr ? nullptr
                               : book->pages[Index(number) / kPageSize % kPagesInBook].get();
    }

    Page& MakePage(int number) {
        const std::size_t bookIndex = Index(number) / kBookSpan;
        if (bookIndex >= m_books.size()) {
            m_books.resize(bookIndex + 1);
        }
        if (!m_books[bookIndex]) {
            m_books[bookIndex] = std::make_unique<Book>();
        }
        auto& page = m_books[bookIndex]->pages[Index(number) / kPageSize % kPagesInBook];
        if (!page) {
            page = std::make_unique<Page>();
        }
        return *page;
    }

    int LastAtOrBelow(int number) const {
        std::size_t i = Index(number) + 1;
        while (i > 0) {
            const std::size_t last = i - 1;
            const Book* book = m_books[last / kBookSpan].get();
            if (book == nullptr) {
                i = last / kBookSpan * kBookSpan;
                continue;
            }
            const Page* page = book->pages[last / kPageSize % kPagesInBook].get();
            const std::uint64_t upTo =
                page == nullptr ? 0 : page->present << (kPageSize - 1 - last % kPageSize);
            if (upTo != 0) {
                return static_cast<int>(i) - std::countl_zero(upTo);
            }
            i = last / kPageSize * kPageSize;
        }
        return 0;
    }

    std::vector<std::unique_ptr<Book>> m_books;
    int m_highest = 0;
    int m_count = 0;
};

}  // namespace Tevra

#include "model/NumberedPages.h"

#include <algorithm>
#include <bit>

namespace Tevra {

int NumberedPages::NextAtOrAbove(int number) const {
    std::size_t i = number < 1 ? 0 : Index(number);
    const auto end = static_cast<std::size_t>(m_highest);
    while (i < end) {
        const Book* book = m_books[i / kBookSpan].get();
        if (book == nullptr) {
            i = (i / kBookSpan + 1) * kBookSpan;
            continue;
        }
        const std::uint64_t left =
            book->pages[i / kPageSize % kPagesInBook].present >> (i % kPageSize);
        if (left != 0) {
            return static_cast<int>(i) + std::countr_zero(left) + 1;
        }
        i = (i / kPageSize + 1) * kPageSize;
    }
    return 0;
}

int NumberedPages::LastAtOrBelow(int number) const {
    std::size_t i = Index(number) + 1;
    while (i > 0) {
        const std::size_t last = i - 1;
        const Book* book = m_books[last / kBookSpan].get();
        if (book == nullptr) {
            i = last / kBookSpan * kBookSpan;
            continue;
        }
        const std::uint64_t upTo = book->pages[last / kPageSize % kPagesInBook].present
                                   << (kPageSize - 1 - last % kPageSize);
        if (upTo != 0) {
            return static_cast<int>(i) - std::countl_zero(upTo);
        }
        i = last / kPageSize * kPageSize;
    }
    return 0;
}

NumberedPages::Page& NumberedPages::MakePage(int number) {
    const std::size_t bookIndex = Index(number) / kBookSpan;
    if (bookIndex >= m_books.size()) {
        m_books.resize(bookIndex + 1);
    }
    if (!m_books[bookIndex]) {
        m_books[bookIndex] = std::make_unique<Book>();
        ++m_numBook;
    }
    return m_books[bookIndex]->pages[Index(number) / kPageSize % kPagesInBook];
}

void NumberedPages::Mark(Page& page, int number) {
    if (!page.Has(number)) {
        page.present |= std::uint64_t{1} << Slot(number);
        ++m_count;
    }
    m_highest = std::max(m_highest, number);
}

void NumberedPages::Unmark(Page& page, int number) {
    page.present &= ~(std::uint64_t{1} << Slot(number));
    --m_count;
    if (number == m_highest) {
        m_highest = LastAtOrBelow(number);
    }
}

}  // namespace Tevra

#pragma once

#include <memory>
#include <utility>

#include "model/NumberedPages.h"

namespace Tevra {

/// Records numbered from 1 by the user, with gaps. Access, existence and writing take constant
/// time; storage grows with the records, not with the highest number, because they lie in small
/// pieces made on demand.
///
/// What is not asked for in every loop stands outside the class, so that one file can make it for
/// the tables of the model instead of each file that uses them.
template <class Record>
class NumberedTable : public NumberedPages {
public:
    NumberedTable() = default;
    NumberedTable(const NumberedTable& o);
    NumberedTable(NumberedTable&& o) noexcept = default;
    ~NumberedTable();
    NumberedTable& operator=(NumberedTable o) noexcept {
        Swap(o);
        return *this;
    }

    /// The record; a default one when it does not exist.
    const Record& Get(int number) const {
        const Record* record = Find(number);
        return record != nullptr ? *record : Default();
    }

    /// The record, or null.
    const Record* Find(int number) const {
        const Page* page = FindPage(number);
        return page != nullptr && page->Has(number) ? &Place(*page, number) : nullptr;
    }
    Record* Find(int number) {
        return const_cast<Record*>(std::as_const(*this).Find(number));  // NOLINT
    }

    /// Stores a record under its number; false (and nothing stored) for numbers below 1.
    bool Set(int number, Record record);

    /// Removes a record; removing the highest lowers `Highest()` to the next one in use.
    bool Erase(int number);

    /// Equal when the same numbers hold equal records.
    bool operator==(const NumberedTable& o) const;

private:
    static const Record& Default();
    static Record& Place(const Page& page, int number) {
        void* const chunk = page.chunks[Slot(number) / kChunkSize];
        return static_cast<Record*>(chunk)[Slot(number) % kChunkSize];
    }
};

template <class Record>
NumberedTable<Record>::NumberedTable(const NumberedTable& o) : NumberedPages() {
    NumberedTable copy;  // owns what was copied so far if a record can't be
    for (const int number : o.Numbers()) {
        copy.Set(number, *o.Find(number));
    }
    Swap(copy);
}

template <class Record>
NumberedTable<Record>::~NumberedTable() {
    ForEachChunk([](void* chunk) { delete[] static_cast<Record*>(chunk); });
}

template <class Record>
bool NumberedTable<Record>::Set(int number, Record record) {
    if (number < 1) {
        return false;
    }
    Page& page = MakePage(number);
    void*& chunk = page.chunks[Slot(number) / kChunkSize];
    if (chunk == nullptr) {
        chunk = std::make_unique<Record[]>(kChunkSize).release();
    }
    Place(page, number) = std::move(record);
    Mark(page, number);
    return true;
}

template <class Record>
bool NumberedTable<Record>::Erase(int number) {
    if (!Exist(number)) {
        return false;
    }
    Page& page = MakePage(number);
    Place(page, number) = Record{};
    Unmark(page, number);
    return true;
}

template <class Record>
bool NumberedTable<Record>::operator==(const NumberedTable& o) const {
    if (Highest() != o.Highest() || Count() != o.Count()) {
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

template <class Record>
const Record& NumberedTable<Record>::Default() {
    static const Record kDefault{};
    return kDefault;
}

}  // namespace Tevra

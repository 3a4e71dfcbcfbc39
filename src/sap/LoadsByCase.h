#pragma once

#include <algorithm>
#include <span>
#include <utility>
#include <vector>

#include "model/NumberedTable.h"

namespace Tevra {

/// The numbers of the loads of one kind by their load case, ascending in each.
class LoadsByCase {
public:
    using Entry = std::pair<int, int>;  ///< load case, number of the load

    template <class Load>
    explicit LoadsByCase(const NumberedTable<Load>& loads) {
        for (const int number : loads.Numbers()) {
            m_entries.emplace_back(loads.Get(number).LoadCase(), number);
        }
        std::sort(m_entries.begin(), m_entries.end());
    }

    std::span<const Entry> Of(int loadCase) const {
        const auto [first, last] =
            std::equal_range(m_entries.begin(), m_entries.end(), Entry{loadCase, 0},
                             [](const Entry& a, const Entry& b) { return a.first < b.first; });
        return {first, last};
    }
    /// Those that have no load case.
    std::span<const Entry> WithoutCase() const {
        const auto last = std::lower_bound(m_entries.begin(), m_entries.end(), Entry{1, 0});
        return {m_entries.begin(), last};
    }
    bool IsEmpty() const { return m_entries.empty(); }

private:
    std::vector<Entry> m_entries;
};

}  // namespace Tevra

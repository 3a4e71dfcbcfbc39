#include "legacy/VybDirectory.h"

#include <algorithm>
#include <cstdlib>

#include "legacy/VybStream.h"

namespace Tevra {

namespace {

/// An entry is the block (from 1) at which the records begin, plus a million times the solution.
constexpr std::int64_t kSolutionUnit = 1'000'000;
constexpr std::uint64_t kEntryBytes = 4;

}  // namespace

bool CVybDirectory::Read(CVybStream& stream, int count) {
    if (count < 1 || static_cast<std::uint64_t>(count - 1) > stream.Left() / kEntryBytes) {
        return false;
    }
    m_entries.resize(static_cast<std::size_t>(count - 1));
    return std::all_of(m_entries.begin(), m_entries.end(),
                       [&stream](std::int32_t& entry) { return stream.ReadInt(entry); });
}

/// The sign of an entry has no meaning here.
std::int64_t CVybDirectory::Magnitude(std::int64_t entry) const {
    const bool isThere = entry >= 1 && entry <= NumEntry();
    return isThere ? std::abs(std::int64_t{m_entries[static_cast<std::size_t>(entry - 1)]}) : 0;
}

std::int64_t CVybDirectory::Block(std::int64_t entry) const {
    return Magnitude(entry) % kSolutionUnit;
}

std::uint64_t CVybDirectory::Place(std::int64_t entry) const {
    return static_cast<std::uint64_t>((Block(entry) - 1) * kBlockBytes);
}

int CVybDirectory::Solution(std::int64_t entry) const {
    return static_cast<int>(std::max<std::int64_t>(Magnitude(entry) / kSolutionUnit, 1));
}

}  // namespace Tevra

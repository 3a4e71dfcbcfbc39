#pragma once

#include <cstdint>
#include <vector>

namespace Tevra {

class CVybStream;

/// Where the records of a legacy file lie: an entry for each kind of record, then one for the
/// results of each load case. Entries count from 1; those past the end are absent.
class CVybDirectory {
public:
    /// The kinds of records, by their entry.
    enum Entry : int {
        kEntityLists = 1,
        kAxes,
        kMaterials,
        kSections,
        kSprings,
        kMasses,
        kProps2D,
        kRigids,
        kNodes,
        kElements,
        kGravityLoads,
        kNodeLoads,
        kSettlements,
        kBeamLoads,
        kFaceLoads,
        kThermalLoads,
        kLoadCaseTitles,
        kCombinations,
        kResults = 20  ///< plus the number of the load case
    };

    /// Records begin in blocks of so many bytes.
    static constexpr std::int64_t kBlockBytes = 512;

    /// Reads the entries from where the stream stands; `count` counts one more than there are.
    /// False when the file can't hold them.
    bool Read(CVybStream& stream, int count);

    bool Has(std::int64_t entry) const { return Block(entry) > 0; }
    /// Byte of the file at which the records begin, of an entry that is there.
    std::uint64_t Place(std::int64_t entry) const;
    /// Kind of solution that an entry of results tells, 1 when it tells none.
    int Solution(std::int64_t entry) const;
    int NumEntry() const { return static_cast<int>(m_entries.size()); }

private:
    std::int64_t Magnitude(std::int64_t entry) const;
    std::int64_t Block(std::int64_t entry) const;

    std::vector<std::int32_t> m_entries;
};

}  // namespace Tevra

#pragma once

#include <cstdint>
#include <unordered_set>

namespace Tevra {

/// Watches how far the numbers of a file are scattered. Numbers that lie together share the storage
/// of the model's tables, a lonely one far from all others takes a good deal of its own; no file
/// that a program wrote has so many of those that they would not fit, but a damaged one may.
class CNumberSpread {
public:
    /// `fileSize` in bytes: large files may use more ranges of numbers.
    explicit CNumberSpread(std::uint64_t fileSize)
        : m_most(kFreeRanges + fileSize / kBytesPerRange) {}

    /// Notes a number (1 on) of a kind of record; false when the numbers are too scattered.
    bool Add(int kind, int number) {
        const std::int64_t range = std::int64_t{kind} << 32 | number >> kRangeBits;
        if (range != m_last) {
            m_last = range;
            m_ranges.insert(range);
        }
        return m_ranges.size() <= m_most;
    }

private:
    static constexpr int kRangeBits = 16;  ///< numbers that share storage
    static constexpr std::uint64_t kFreeRanges = 512;
    static constexpr std::uint64_t kBytesPerRange = std::uint64_t{256} * 1024;

    std::uint64_t m_most;
    std::int64_t m_last = -1;
    std::unordered_set<std::int64_t> m_ranges;
};

}  // namespace Tevra

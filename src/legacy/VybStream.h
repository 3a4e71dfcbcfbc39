#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <fstream>
#include <span>
#include <string>
#include <vector>

namespace Tevra {

/// The bytes of a legacy file through a large buffer that slides over it, and its 4-byte words in
/// the byte order that was set. Nothing is read past the end, and nothing is allocated that the
/// file could not fill.
class CVybStream {
public:
    /// Opens a file ("rb"); false, with the reason in `error`, when that fails.
    bool Open(const std::wstring& path, std::string& error);
    void Close() { m_file.close(); }
    /// Whether the words are in the other byte order than this machine's.
    void SetSwap(bool swap) { m_swap = swap; }
    bool Swap() const { return m_swap; }

    std::uint64_t Size() const { return m_size; }
    /// Bytes from here to the end.
    std::uint64_t Left() const { return m_size - Place(); }

    /// Goes to a byte of the file, or past some bytes; false when that lies outside.
    bool Seek(std::uint64_t place);
    bool Skip(std::uint64_t count) { return count <= Left() && Seek(Place() + count); }

    /// The next `count` bytes, which hold until the next call; empty when there are fewer.
    std::span<const char> Take(std::size_t count);

    /// Reads exactly `count` bytes of text; false, with an empty text, when there are fewer.
    bool ReadText(std::size_t count, std::string& text);
    bool ReadInt(std::int32_t& value);

    /// A word as it stands in the file, turned where the byte order asks for it.
    static std::uint32_t Word(const char* bytes, bool swap) {
        std::uint32_t word = 0;
        std::memcpy(&word, bytes, sizeof word);
        return swap ? Reversed(word) : word;
    }
    static std::int32_t Int(const char* bytes, bool swap) {
        return static_cast<std::int32_t>(Word(bytes, swap));
    }
    static float Real(const char* bytes, bool swap) {
        return std::bit_cast<float>(Word(bytes, swap));
    }

private:
    static constexpr std::uint32_t Reversed(std::uint32_t word) {
        return word >> 24U | (word >> 8U & 0xFF00U) | (word << 8U & 0xFF0000U) | word << 24U;
    }
    std::uint64_t Place() const { return m_bufferPlace + m_begin; }
    bool Fill(std::size_t count);

    std::ifstream m_file;
    std::uint64_t m_size = 0;
    bool m_swap = false;
    std::vector<char> m_buffer;
    std::uint64_t m_bufferPlace = 0;  ///< where in the file the buffer begins
    std::size_t m_begin = 0;          ///< what is not yet handed out lies at m_begin .. m_end
    std::size_t m_end = 0;
};

}  // namespace Tevra

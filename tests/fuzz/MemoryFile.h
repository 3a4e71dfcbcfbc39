#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <sys/mman.h>
#include <unistd.h>

#include "fuzz/Require.h"

namespace FuzzSupport {

/// A file in memory, under a name.
class MemoryFile {
public:
    MemoryFile(const std::uint8_t* data, std::size_t size) : m_file(memfd_create("input", 0)) {
        Require(m_file >= 0 && write(m_file, data, size) == static_cast<ssize_t>(size));
    }
    MemoryFile(const MemoryFile&) = delete;
    MemoryFile& operator=(const MemoryFile&) = delete;
    ~MemoryFile() { close(m_file); }
    std::wstring Name() const { return L"/proc/self/fd/" + std::to_wstring(m_file); }

private:
    int m_file;
};

}  // namespace FuzzSupport

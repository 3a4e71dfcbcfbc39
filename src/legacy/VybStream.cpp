#include "legacy/VybStream.h"

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <system_error>

#include "platform/text/HostPath.h"

namespace Tevra {

namespace {

constexpr std::size_t kBuffer = std::size_t{256} * 1024;

}  // namespace

bool CVybStream::Open(const std::wstring& path, std::string& error) {
    const std::filesystem::path file = Text::ToPath(path);
    std::error_code ignored;
    errno = std::filesystem::is_directory(file, ignored) ? EISDIR : 0;
    if (errno == 0) {
        m_file = std::ifstream(file, std::ios::binary);
    }
    if (!m_file.is_open()) {
        error = std::generic_category().message(errno);
        return false;
    }
    m_file.seekg(0, std::ios::end);
    const std::streamoff size = m_file.tellg();
    m_size = m_file.good() && size > 0 ? static_cast<std::uint64_t>(size) : 0;
    m_bufferPlace = 0;
    m_begin = 0;
    m_end = 0;
    return true;
}

bool CVybStream::Seek(std::uint64_t place) {
    if (place > m_size) {
        return false;
    }
    if (place >= m_bufferPlace && place - m_bufferPlace <= m_end) {
        m_begin = static_cast<std::size_t>(place - m_bufferPlace);
    } else {
        m_bufferPlace = place;
        m_begin = 0;
        m_end = 0;
    }
    return true;
}

std::span<const char> CVybStream::Take(std::size_t count) {
    if (count > m_end - m_begin && !Fill(count)) {
        return {};
    }
    const std::span<const char> bytes(m_buffer.data() + m_begin, count);
    m_begin += count;
    return bytes;
}

/// Makes the buffer hold the next `count` bytes, and as many more as there is room for.
bool CVybStream::Fill(std::size_t count) {
    if (count > Left()) {
        return false;
    }
    const std::uint64_t place = Place();
    const std::size_t wanted =
        std::max<std::uint64_t>(count, std::min<std::uint64_t>(kBuffer, m_size - place));
    m_buffer.resize(std::max(m_buffer.size(), wanted));
    m_bufferPlace = place;
    m_begin = 0;
    m_end = 0;
    m_file.clear();
    m_file.seekg(static_cast<std::streamoff>(place));
    m_file.read(m_buffer.data(), static_cast<std::streamsize>(wanted));
    m_end = static_cast<std::size_t>(std::max<std::streamsize>(m_file.gcount(), 0));
    return m_end >= count;
}

bool CVybStream::ReadText(std::size_t count, std::string& text) {
    const std::span<const char> bytes = Take(count);
    text.assign(bytes.begin(), bytes.end());
    return bytes.size() == count;
}

bool CVybStream::ReadInt(std::int32_t& value) {
    const std::span<const char> bytes = Take(sizeof value);
    if (bytes.empty()) {
        return false;
    }
    value = Int(bytes.data(), m_swap);
    return true;
}

}  // namespace Tevra

#pragma once

#include <csignal>
#include <cstdint>
#include <sys/resource.h>

namespace Tevra::TestSupport {

/// No file of this process grows beyond a number of bytes while this lives: writing further fails,
/// as it does on a full disk.
class FileSizeLimit {
public:
    explicit FileSizeLimit(std::uint64_t bytes) : m_formerAction(std::signal(SIGXFSZ, SIG_IGN)) {
        getrlimit(RLIMIT_FSIZE, &m_former);
        rlimit limit = m_former;
        limit.rlim_cur = bytes;
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;
    ~FileSizeLimit() {
        setrlimit(RLIMIT_FSIZE, &m_former);
        static_cast<void>(std::signal(SIGXFSZ, m_formerAction));
    }

private:
    rlimit m_former{};
    void (*m_formerAction)(int);
};

}  // namespace Tevra::TestSupport

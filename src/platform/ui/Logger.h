#pragma once

#include <string>

#include "platform/ui/HostServices.h"

namespace Tevra {

/// Sink of progress and failure texts that is handed to long tasks; this one passes them to the
/// host's log.
class Logger {
public:
    Logger() = default;
    Logger(const Logger&) = delete;
    Logger& operator=(const Logger&) = delete;
    virtual ~Logger() = default;

    virtual void Log(const std::wstring& text, int level, int flag) {
        Host().Log(text, level, flag);
    }
};

}  // namespace Tevra

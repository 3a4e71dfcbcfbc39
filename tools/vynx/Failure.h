#pragma once

#include <stdexcept>
#include <string>

namespace Vynx {

/// Exit status of the program.
enum Status : int {
    kDone = 0,    ///< everything was read and written
    kFailed = 1,  ///< a file could not be read or written
    kUsage = 2    ///< the command line is wrong
};

/// Ends a command with a status and one message for the user.
class Failure : public std::runtime_error {
public:
    Failure(Status status, const std::string& message)
        : std::runtime_error(message), m_status(status) {}
    Status ExitStatus() const { return m_status; }

private:
    Status m_status;
};

}  // namespace Vynx

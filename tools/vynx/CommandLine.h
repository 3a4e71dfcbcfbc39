#pragma once

namespace Vynx {

/// Reads a command line and runs its command; the exit status of the program.
int Run(int count, const char* const* arguments);

}  // namespace Vynx

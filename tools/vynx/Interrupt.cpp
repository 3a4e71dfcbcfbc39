#include "vynx/Interrupt.h"

#include <array>
#include <climits>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <string>
#include <unistd.h>

namespace Vynx {

namespace {

constexpr std::array kSignals = {SIGINT, SIGTERM, SIGHUP};

using PathText = std::array<char, PATH_MAX>;

// What a handler may touch: no heap, no locks.
PathText filePath{};
PathText folderPath{};
volatile std::sig_atomic_t isSet = 0;

bool Keep(PathText& place, const std::string& path) {
    if (path.size() >= place.size()) {
        return false;
    }
    std::memcpy(place.data(), path.c_str(), path.size() + 1);
    return true;
}

extern "C" void RemoveAndEnd(int signal) {
    if (isSet != 0) {
        unlink(filePath.data());
        rmdir(folderPath.data());
    }
    if (std::signal(signal, SIG_DFL) == SIG_ERR || std::raise(signal) != 0) {
        _exit(EXIT_FAILURE);
    }
}

}  // namespace

RemovedOnSignal::~RemovedOnSignal() {
    isSet = 0;
}

void RemovedOnSignal::Set(const std::filesystem::path& file, const std::filesystem::path& folder) {
    isSet = 0;
    if (!Keep(filePath, file.string()) || !Keep(folderPath, folder.string())) {
        return;
    }
    isSet = 1;
    for (const int signal : kSignals) {
        // A signal that is ignored (as under nohup) stays ignored.
        if (std::signal(signal, RemoveAndEnd) == SIG_IGN) {
            static_cast<void>(std::signal(signal, SIG_IGN));
        }
    }
}

}  // namespace Vynx

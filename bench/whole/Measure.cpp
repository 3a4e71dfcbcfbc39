#include "whole/Measure.h"

#include <algorithm>
#include <cstdlib>
#include <ctime>
#include <fcntl.h>
#include <fstream>
#include <string>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace WholeBench {

namespace {

/// A line of /proc/self/status, MiB.
double StatusMiB(const std::string& key) {
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);) {
        if (line.rfind(key + ":", 0) == 0) {
            return std::strtod(line.c_str() + key.size() + 1, nullptr) / 1024.0;
        }
    }
    return 0.0;
}

/// Makes the most that this process has held what it holds now.
void ResetPeak() {
    std::ofstream("/proc/self/clear_refs") << "5";
}

double Seconds() {
    return static_cast<double>(std::clock()) / CLOCKS_PER_SEC;
}

Cost RunHere(const std::function<bool()>& work) {
    ResetPeak();
    const double before = StatusMiB("VmRSS");
    const double start = Seconds();
    Cost cost;
    cost.done = work();
    cost.seconds = Seconds() - start;
    cost.extraMiB = StatusMiB("VmHWM") - before;
    return cost;
}

/// Standard output and error of this process go nowhere.
void BeSilent() {
    const int nowhere = open("/dev/null", O_WRONLY);  // NOLINT: open() is variadic
    dup2(nowhere, STDOUT_FILENO);
    dup2(nowhere, STDERR_FILENO);
}

Cost RunInCopy(const std::function<bool()>& work) {
    int ends[2];
    if (pipe(ends) != 0) {
        return {};
    }
    const pid_t child = fork();
    if (child == 0) {
        BeSilent();
        const Cost cost = RunHere(work);
        const bool told = write(ends[1], &cost, sizeof cost) == sizeof cost;
        _exit(told ? 0 : 1);
    }
    close(ends[1]);
    Cost cost;
    const bool heard = read(ends[0], &cost, sizeof cost) == sizeof cost;
    close(ends[0]);
    waitpid(child, nullptr, 0);
    return heard ? cost : Cost{};
}

}  // namespace

Cost Measure(const std::function<bool()>& work, int times) {
    Cost best = RunInCopy(work);
    for (int i = 1; i < times && best.done; ++i) {
        const Cost next = RunInCopy(work);
        best.seconds = std::min(best.seconds, next.seconds);
        best.extraMiB = std::min(best.extraMiB, next.extraMiB);
    }
    return best;
}

double MeasureCommand(const std::string& command) {
    const auto seconds = [] {
        rusage usage{};
        getrusage(RUSAGE_CHILDREN, &usage);
        const auto of = [](const timeval& time) {
            return static_cast<double>(time.tv_sec) + 1e-6 * static_cast<double>(time.tv_usec);
        };
        return of(usage.ru_utime) + of(usage.ru_stime);
    };
    const double before = seconds();
    const int status = std::system(command.c_str());  // NOLINT(cert-env33-c): our own commands
    return status == 0 ? seconds() - before : -1.0;
}

double BytesOf(const std::filesystem::path& path) {
    namespace fs = std::filesystem;
    if (!fs::is_directory(path)) {
        return static_cast<double>(fs::file_size(path));
    }
    double bytes = 0.0;
    for (const auto& entry : fs::recursive_directory_iterator(path)) {
        bytes += entry.is_regular_file() ? static_cast<double>(entry.file_size()) : 0.0;
    }
    return bytes;
}

}  // namespace WholeBench

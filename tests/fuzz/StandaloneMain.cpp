// Runs a fuzz target without a fuzzer: over every seed, and over a bounded, always equal set of
// damaged seeds. Arguments are seed files or folders of them; a file from a failed run, given
// alone, repeats it.

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#if defined(__SANITIZE_ADDRESS__)
#include <sanitizer/common_interface_defs.h>
#endif

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

using namespace std::string_view_literals;
namespace fs = std::filesystem;
using Bytes = std::vector<std::uint8_t>;

/// Bytes fed to the target for all seeds together: a few seconds under the sanitizers.
constexpr std::size_t kByteBudget = 6'000'000;
/// Runs per seed and kind of damage, however short the seed is.
constexpr std::size_t kMostRuns = 4'000;
/// Counted on top of each input's length: what a run costs when it reads next to nothing.
constexpr std::size_t kRunCost = 200;
/// The longest that one input may take, far above what a seed needs on a busy machine.
constexpr std::chrono::seconds kSlowest{5};

/// The input being run, for the report of a failure.
struct Current {
    std::string target;
    std::string seed;
    std::string_view damage;
    Bytes input;
};

Current& Running() {
    static Current running;
    return running;
}

/// Says which input failed and keeps it as a file, so that it can be run alone.
void ReportFailure() {
    const Current& running = Running();
    const fs::path kept = fs::temp_directory_path() / ("failed-" + running.target);
    std::ofstream file(kept, std::ios::binary);
    std::copy(running.input.begin(), running.input.end(), std::ostreambuf_iterator<char>(file));
    file.close();
    std::cerr << "\nfailed on " << running.seed << " (" << running.damage << ", "
              << running.input.size() << " bytes), kept as " << kept << '\n';
}

void RunInput(Bytes input, std::string_view damage) {
    Running().input = std::move(input);
    Running().input.shrink_to_fit();  // no spare bytes in which a read past the end stays unseen
    Running().damage = damage;
    const auto start = std::chrono::steady_clock::now();
    LLVMFuzzerTestOneInput(Running().input.data(), Running().input.size());
    if (std::chrono::steady_clock::now() - start > kSlowest) {
        throw std::runtime_error("one input took longer than any may");
    }
}

/// xorshift64*: the same sequence on every machine and in every run.
class CSequence {
public:
    std::size_t Below(std::size_t limit) {
        m_state ^= m_state >> 12;
        m_state ^= m_state << 25;
        m_state ^= m_state >> 27;
        return static_cast<std::size_t>((m_state * 0x2545F4914F6CDD1DULL) >> 16) % limit;
    }

private:
    std::uint64_t m_state = 0x9E3779B97F4A7C15ULL;
};

/// How many damaged forms of a seed of this size a share of the budget pays for.
std::size_t RunsFor(std::size_t size, std::size_t share) {
    return std::clamp<std::size_t>(share / (size + kRunCost), 8, kMostRuns);
}

/// Every truncation of a short seed, evenly spread ones of a long seed.
void RunTruncations(const Bytes& seed, std::size_t share) {
    const std::size_t runs = std::min(seed.size(), RunsFor(seed.size() / 2, share));
    for (std::size_t i = 0; i < runs; ++i) {
        const auto length = static_cast<std::ptrdiff_t>(i * seed.size() / runs);
        RunInput(Bytes(seed.begin(), seed.begin() + length), "truncated");
    }
}

/// Bytes that mean something to text readers, beside the plainly random ones.
constexpr std::string_view kTelling = "\0\t\n\r \"'*,-.+0159:;Ee[]{}()\x7f\x80\xff"sv;

void RunByteChanges(const Bytes& seed, std::size_t share) {
    CSequence sequence;
    const std::size_t runs = seed.empty() ? 0 : RunsFor(seed.size(), share);
    for (std::size_t i = 0; i < runs; ++i) {
        Bytes input = seed;
        const std::size_t place = sequence.Below(seed.size());
        const auto telling = static_cast<std::uint8_t>(kTelling[sequence.Below(kTelling.size())]);
        const auto any = static_cast<std::uint8_t>(sequence.Below(256));
        switch (i % 4) {
            case 0:
                input[place] = telling;
                break;
            case 1:
                input[place] = any;
                break;
            case 2:
                input.erase(input.begin() + static_cast<std::ptrdiff_t>(place));
                break;
            default:
                input.insert(input.begin() + static_cast<std::ptrdiff_t>(place), telling);
        }
        RunInput(std::move(input), "a byte changed");
    }
}

std::vector<fs::path> SeedFiles(std::span<char*> arguments) {
    std::vector<fs::path> files;
    for (const fs::path argument : arguments) {
        if (!fs::is_directory(argument)) {
            files.push_back(argument);
            continue;
        }
        for (const auto& entry : fs::directory_iterator(argument)) {
            files.push_back(entry.path());
        }
    }
    std::sort(files.begin(), files.end());
    return files;
}

bool ReadSeed(const fs::path& path, Bytes& bytes) {
    std::ifstream file(path, std::ios::binary);
    bytes.assign(std::istreambuf_iterator<char>(file), {});
    return file.is_open() && !file.bad();
}

int RunSeeds(const std::vector<fs::path>& files) {
    RunInput({}, "nothing at all");
    const std::size_t share = kByteBudget / files.size() / 2;
    for (const fs::path& path : files) {
        Bytes seed;
        if (!ReadSeed(path, seed)) {
            std::cerr << "cannot read " << path << '\n';
            return EXIT_FAILURE;
        }
        Running().seed = path.string();
        RunInput(seed, "as it is");
        RunTruncations(seed, share);
        RunByteChanges(seed, share);
    }
    return EXIT_SUCCESS;
}

}  // namespace

int main(int argc, char** argv) {
#if defined(__SANITIZE_ADDRESS__)
    __sanitizer_set_death_callback(ReportFailure);
#endif
    try {
        Running().target = fs::path(argv[0]).filename().string();
        const auto files = SeedFiles(std::span(argv, static_cast<std::size_t>(argc)).subspan(1));
        if (files.empty()) {
            std::cerr << "a fuzz target needs seeds: files or folders of files\n";
            return EXIT_FAILURE;
        }
        return RunSeeds(files);
    } catch (const std::exception& error) {
        std::cerr << "exception: " << error.what() << '\n';
        ReportFailure();
        return EXIT_FAILURE;
    }
}

#include <array>
#include <benchmark/benchmark.h>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <sstream>
#include <string>
#include <sys/resource.h>
#include <unistd.h>

#include "export/SqlExport.h"
#include "vynx/samples/Samples.h"

// The table export of node results, and the dump of the same rows by the SQLite shell.
namespace {

namespace fs = std::filesystem;
using namespace Tevra;

constexpr int kCases = 6;

/// Results of case 1 with another factor as those of a further case.
void AddCase(CVynData& model, int number, double factor) {
    model.SetAnalysisCase(number, CAnalysisCase(L"", 1, L"L1"));
    const CaseResults& first = *model.Results().Find(1);
    for (const ResultKind kind : {ResultKind::NodeDisp, ResultKind::NodeReaction}) {
        const ResultTable& from = *first.Find(kind);
        ResultTable& to = model.EditResults().Edit(number).Edit(kind);
        for (const int node : from.Entities()) {
            std::array<double, 6> row{};
            for (std::size_t i = 0; i < row.size(); ++i) {
                row[i] = factor * (from.Row(node, 0)[i] + 1e-4 * static_cast<double>(i));
            }
            to.Set(node, row);
        }
    }
}

/// A building frame with six cases and a combination of them.
CVynData Building(int nodes, const std::wstring& combination) {
    CVynData model;
    Vynx::FillFrame(model, nodes);
    for (int number = 2; number <= kCases; ++number) {
        AddCase(model, number, 1.0 - 0.4 * number);
    }
    model.SetCombinationCase(1, CCombinationCase(L"ULS", combination));
    return model;
}

/// 2 to the power of `choices` permutations of six cases.
std::wstring Permutations(int choices) {
    std::wstring text;
    for (int number = 1; number <= kCases; ++number) {
        text += number > 1 ? L" + " : L"";
        text += (number <= choices ? L"(1 or 1.35)A" : L"1.35A") + std::to_wstring(number);
    }
    return text;
}
constexpr int kChoices = 6;  // 64 permutations

/// A folder for what is written, removed at the end.
class Folder {
public:
    Folder() : m_path(fs::temp_directory_path() / ("vyn-bench-" + std::to_string(getpid()))) {
        fs::create_directories(m_path);
    }
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;
    ~Folder() {
        std::error_code ignored;
        fs::remove_all(m_path, ignored);
    }
    std::string File(const std::string& name) const { return (m_path / name).string(); }

private:
    fs::path m_path;
};

double PeakMiB() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return static_cast<double>(usage.ru_maxrss) / 1024.0;
}

/// Time that programs run from here have taken of the processor, s.
double ChildSeconds() {
    rusage usage{};
    getrusage(RUSAGE_CHILDREN, &usage);
    const auto seconds = [](const timeval& time) {
        return static_cast<double>(time.tv_sec) + 1e-6 * static_cast<double>(time.tv_usec);
    };
    return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

/// Exports the node results of all cases; what the export prints is not shown.
bool ExportNodes(CVynData& model, const std::string& target) {
    Export::CSqlExport exporter;
    Export::Param param;
    param.option = "N";
    exporter.SetData(&model);
    exporter.SetPath(target);
    exporter.SetParam(param);
    std::ostringstream printed;
    std::streambuf* const former = std::cout.rdbuf(printed.rdbuf());
    const bool written = exporter.WriteTables() && exporter.FailedFiles().empty();
    std::cout.rdbuf(former);
    return written;
}

void Export(benchmark::State& state, CVynData& model, int rowsPerNode) {
    const Folder folder;
    const double before = PeakMiB();
    for ([[maybe_unused]] auto _ : state) {
        if (!ExportNodes(model, folder.File("job.sql"))) {
            state.SkipWithError("not written");
        }
    }
    state.SetItemsProcessed(state.iterations() * model.NumNode() * rowsPerNode);
    state.counters["MiB more"] = PeakMiB() - before;
}

void SqlNodes(benchmark::State& state) {
    CVynData model = Building(static_cast<int>(state.range(0)), Permutations(kChoices));
    Export(state, model, kCases + 2);
}
BENCHMARK(SqlNodes)
    ->Arg(25'000)
    ->Arg(50'000)
    ->Arg(100'000)
    ->Arg(200'000)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();

void SqlPermutations(benchmark::State& state) {
    const int choices = static_cast<int>(state.range(0));
    CVynData model = Building(25'000, Permutations(choices));
    Export(state, model, kCases + (choices > 0 ? 2 : 1));
    state.SetLabel(std::to_string(1 << choices) + " permutations");
}
BENCHMARK(SqlPermutations)->Arg(0)->Arg(2)->Arg(4)->Arg(6)->Unit(benchmark::kMillisecond);

/// The rows that SqlNodes writes for as many nodes, dumped from a database to a file.
void SqliteDump(benchmark::State& state) {
    CVynData model = Building(static_cast<int>(state.range(0)), Permutations(kChoices));
    const Folder folder;
    ExportNodes(model, folder.File("job.sql"));
    const std::string database = folder.File("rows.db");
    const auto run = [](const std::string& command) {
        return std::system(command.c_str());  // NOLINT(cert-env33-c): of the developer
    };
    if (run("command -v sqlite3 >/dev/null") != 0) {
        state.SkipWithError("no sqlite3");
        return;
    }
    run("(echo 'BEGIN;'; cat " + folder.File("job/result_node/result_node.sql") +
        "; echo 'COMMIT;') | sqlite3 " + database);
    const double before = ChildSeconds();
    for ([[maybe_unused]] auto _ : state) {
        if (run("sqlite3 " + database + " .dump > " + folder.File("dump.sql")) != 0) {
            state.SkipWithError("no dump");
        }
    }
    const double rows = static_cast<double>(state.iterations()) * model.NumNode() * (kCases + 2);
    state.SetItemsProcessed(static_cast<std::int64_t>(rows));
    state.counters["rows per CPU s"] = rows / (ChildSeconds() - before);
}
BENCHMARK(SqliteDump)->Arg(50'000)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace

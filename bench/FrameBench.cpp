#include <algorithm>
#include <benchmark/benchmark.h>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <memory>

#include "model/VynData.h"
#include "opensees/OpenseesFile.h"
#include "sap/SapFile.h"
#include "vynx/samples/Samples.h"

// The rates of the OpenSees and S2K writers on a frame with loads on every beam, at two sizes: the
// rate stays what it is when time grows with the size alone. VYN_BENCH_NODES asks for other nodes.
namespace {

using namespace Tevra;

constexpr const char* kFile = "/tmp/vyn_bench_frame.txt";

int NumNode() {
    constexpr int kNodes = 200'000;
    const char* const asked = std::getenv("VYN_BENCH_NODES");
    return asked != nullptr ? static_cast<int>(std::strtol(asked, nullptr, 10)) : kNodes;
}

/// A frame of so many nodes; every beam has a uniform and a point load.
std::unique_ptr<CVynData> Frame(int nodes) {
    auto model = std::make_unique<CVynData>();
    Vynx::FillFrame(*model, nodes);
    Data::CBeamLoad load;
    load.SetLoadedEntities({L"all", SelType::Element});
    load.SetPoint(1, {0.5, true, -1234.5});
    for (const BeamLoadType type : {BeamLoadType::Uniform, BeamLoadType::Point}) {
        load.SetType(type);
        model->SetBeamLoad(model->HighestBeamLoad() + 1, load);
    }
    return model;
}

double Seconds() {
    return static_cast<double>(std::clock()) / CLOCKS_PER_SEC;
}

double SizeOfFile() {
    return static_cast<double>(std::ifstream(kFile, std::ios::ate | std::ios::binary).tellg());
}

/// Bytes a second of a writer.
template <class Writer>
double Rate(CVynData& model) {
    Writer file;
    file.SetData(&model);
    const double start = Seconds();
    benchmark::DoNotOptimize(file.OpenWrite(L"/tmp/vyn_bench_frame.txt"));
    return SizeOfFile() / (Seconds() - start);
}

template <class Writer>
void FrameWriter(benchmark::State& state) {
    const std::unique_ptr<CVynData> small = Frame(NumNode() / 4);
    const std::unique_ptr<CVynData> large = Frame(NumNode());
    double smallRate = 0.0;
    double largeRate = 0.0;
    for ([[maybe_unused]] auto _ : state) {
        smallRate = std::max(smallRate, Rate<Writer>(*small));
        largeRate = std::max(largeRate, Rate<Writer>(*large));
    }
    state.counters["MB"] = SizeOfFile() / 1e6;
    state.counters["MB/s"] = largeRate / 1e6;
    state.counters["MB/s at a quarter"] = smallRate / 1e6;
    std::filesystem::remove(kFile);
}

BENCHMARK(FrameWriter<COpenseesFile>)->Iterations(3)->Unit(benchmark::kMillisecond);
BENCHMARK(FrameWriter<CSapFile>)->Iterations(3)->Unit(benchmark::kMillisecond);

}  // namespace

#include <benchmark/benchmark.h>
#include <cstdint>
#include <sstream>
#include <string>

#include "document/ModelDocument.h"
#include "vynx/samples/Samples.h"

// Model documents of regular models, with the results of one load case. The rate is that of text.
namespace {

using Tevra::CVynData;

constexpr int kNodes = 20'000;

std::string DocumentOf(const CVynData& model) {
    std::ostringstream text;
    std::string error;
    Tevra::Document::WriteDocument(model, text, error);
    return text.str();
}

template <void (*kFill)(CVynData&, int)>
void Write(benchmark::State& state) {
    CVynData model;
    kFill(model, kNodes);
    std::int64_t bytes = 0;
    for ([[maybe_unused]] auto _ : state) {
        bytes += static_cast<std::int64_t>(DocumentOf(model).size());
    }
    state.SetBytesProcessed(bytes);
}

template <void (*kFill)(CVynData&, int)>
void Read(benchmark::State& state) {
    CVynData model;
    kFill(model, kNodes);
    const std::string text = DocumentOf(model);
    for ([[maybe_unused]] auto _ : state) {
        std::istringstream input(text);
        CVynData read;
        std::string error;
        if (!Tevra::Document::ReadDocument(input, read, error)) {
            state.SkipWithError(error.c_str());
        }
    }
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(text.size()));
}

BENCHMARK_TEMPLATE(Write, Vynx::FillFrame);
BENCHMARK_TEMPLATE(Write, Vynx::FillShells);
BENCHMARK_TEMPLATE(Write, Vynx::FillSolids);
BENCHMARK_TEMPLATE(Read, Vynx::FillFrame);
BENCHMARK_TEMPLATE(Read, Vynx::FillShells);
BENCHMARK_TEMPLATE(Read, Vynx::FillSolids);

}  // namespace

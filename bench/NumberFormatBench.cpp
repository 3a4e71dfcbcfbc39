#include <benchmark/benchmark.h>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <random>
#include <vector>

#include "io/CardFields.h"
#include "io/NumberFormat.h"

// Every append function beside the call of the C library that gives the same text. The rate is that
// of text made.
namespace {

/// Results as an analysis gives them (all digits), or dimensions as a person types them.
std::vector<double> Values(bool typed, std::uint64_t seed) {
    std::mt19937_64 random(seed);
    std::uniform_real_distribution<double> mantissa(-10.0, 10.0);
    std::vector<double> values(4096);
    for (double& v : values) {
        v = mantissa(random) * std::pow(10.0, static_cast<double>(random() % 8) - 4.0);
        v = typed ? std::round(v * 1000.0) / 1000.0 : v;
    }
    return values;
}

template <class Format>
void Run(benchmark::State& state, Format format) {
    const std::vector<double> values = Values(state.range(0) != 0, 20261121);
    char text[Tevra::kMaxNumberText];
    std::int64_t bytes = 0;
    for ([[maybe_unused]] auto _ : state) {
        for (const double v : values) {
            bytes += format(text, v);
        }
        benchmark::DoNotOptimize(text);
    }
    state.SetBytesProcessed(bytes);
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(values.size()));
    state.SetLabel(state.range(0) != 0 ? "typed" : "results");
}

using Tevra::kMaxNumberText;

std::ptrdiff_t Int(char* t, double v) {
    return Tevra::AppendInt(t, static_cast<long long>(v * 100.0), 8) - t;
}

std::ptrdiff_t PrintedInt(char* t, double v) {
    return std::snprintf(t, kMaxNumberText, "%8lld", static_cast<long long>(v * 100.0));
}

/// One of the append functions with a width of its own.
template <char* (*kAppend)(char*, double, int, int), int kWidth = 0>
std::ptrdiff_t Real(char* t, double v) {
    return kAppend(t, v, kWidth, Tevra::kDefaultPrecision) - t;
}

template <int kWidth>
std::ptrdiff_t Field(char* t, double v) {
    return Tevra::AppendRealField(t, v, kWidth) - t;
}

std::ptrdiff_t Shortest(char* t, double v) {
    return Tevra::AppendShortest(t, v) - t;
}

auto Printed(const char* format) {
    return [format](char* t, double v) { return std::snprintf(t, kMaxNumberText, format, v); };
}

BENCHMARK_CAPTURE(Run, int_append, Int)->Arg(0)->Arg(1);
BENCHMARK_CAPTURE(Run, int_printf, PrintedInt)->Arg(0)->Arg(1);
BENCHMARK_CAPTURE(Run, e_append, Real<Tevra::AppendExp>)->Arg(0)->Arg(1);
BENCHMARK_CAPTURE(Run, e_printf, Printed("%e"))->Arg(0)->Arg(1);
BENCHMARK_CAPTURE(Run, f_append, Real<Tevra::AppendFixed>)->Arg(0)->Arg(1);
BENCHMARK_CAPTURE(Run, f_printf, Printed("%f"))->Arg(0)->Arg(1);
BENCHMARK_CAPTURE(Run, signed_f_append, Real<Tevra::AppendSignedFixed>)->Arg(0)->Arg(1);
BENCHMARK_CAPTURE(Run, signed_f_printf, Printed("%+f"))->Arg(0)->Arg(1);
BENCHMARK_CAPTURE(Run, g_append, Real<Tevra::AppendGeneral>)->Arg(0)->Arg(1);
BENCHMARK_CAPTURE(Run, g_printf, Printed("%g"))->Arg(0)->Arg(1);
BENCHMARK_CAPTURE(Run, padded_g_append, Real<Tevra::AppendPadded, 16>)->Arg(0)->Arg(1);
BENCHMARK_CAPTURE(Run, padded_g_printf, Printed("%#16g"))->Arg(0)->Arg(1);
BENCHMARK_CAPTURE(Run, shortest_append, Shortest)->Arg(0)->Arg(1);
BENCHMARK_CAPTURE(Run, shortest_printf, Printed("%.17g"))->Arg(0)->Arg(1);
BENCHMARK_CAPTURE(Run, field_8, Field<8>)->Arg(0)->Arg(1);
BENCHMARK_CAPTURE(Run, field_16, Field<16>)->Arg(0)->Arg(1);

}  // namespace

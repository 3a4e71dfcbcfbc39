#include <benchmark/benchmark.h>
#include <cstdint>

#include "model/VynData.h"

// The store of records and what is asked of a model for every node and element.
namespace {

using namespace Tevra;

constexpr int kRecords = 1'000'000;

/// Numbers from 1, or from ten million, where decks of several parts begin to count.
int First(const benchmark::State& state) {
    return state.range(0) != 0 ? 10'000'000 : 1;
}

void FillTable(NumberedTable<Vec3<double>>& table, int first) {
    for (int i = 0; i < kRecords; ++i) {
        table.Set(first + i, {1.0 * i, 0.0, 0.0});
    }
}

void TableSet(benchmark::State& state) {
    for ([[maybe_unused]] auto _ : state) {
        NumberedTable<Vec3<double>> table;
        FillTable(table, First(state));
        benchmark::DoNotOptimize(table.Highest());
    }
    state.SetItemsProcessed(state.iterations() * kRecords);
}

void TableGet(benchmark::State& state) {
    const int first = First(state);
    NumberedTable<Vec3<double>> table;
    FillTable(table, first);
    for ([[maybe_unused]] auto _ : state) {
        double sum = 0.0;
        for (int i = 0; i < kRecords; ++i) {
            sum += table.Get(first + i).x;
        }
        benchmark::DoNotOptimize(sum);
    }
    state.SetItemsProcessed(state.iterations() * kRecords);
}

void TableWalk(benchmark::State& state) {
    NumberedTable<Vec3<double>> table;
    FillTable(table, First(state));
    for ([[maybe_unused]] auto _ : state) {
        std::int64_t sum = 0;
        for (const int number : table.Numbers()) {
            sum += number;
        }
        benchmark::DoNotOptimize(sum);
    }
    state.SetItemsProcessed(state.iterations() * kRecords);
}

BENCHMARK(TableSet)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);
BENCHMARK(TableGet)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);
BENCHMARK(TableWalk)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

/// A polygon of beams that climbs, with displacements in two cases and an envelope of them.
CVynData Spiral(int elements) {
    CVynData model;
    for (int i = 1; i <= elements + 1; ++i) {
        model.SetNode(i, Data::CNode({1.0 * (i % 7), 1.0 * (i % 11), 0.1 * i}));
    }
    for (int i = 1; i <= elements; ++i) {
        model.SetElem(i, Data::CElement(ElementType::Beam, {i, i + 1}, 1));
    }
    for (int c = 1; c <= 2; ++c) {
        model.SetAnalysisCase(c, CAnalysisCase());
        ResultTable& table = model.EditResults().Edit(c).Edit(ResultKind::NodeDisp);
        for (int i = 1; i <= elements + 1; ++i) {
            const double row[6]{1.0 * i, 2.0 * c, 3.0, 4.0, 5.0, 6.0};
            table.Set(i, row);
        }
    }
    model.SetCombinationCase(1, CCombinationCase(L"", L"1.35A1 or 1.35A1 + (1.5 or 0.75)A2"));
    return model;
}

constexpr int kElements = 100'000;

void ElementAxes(benchmark::State& state) {
    const CVynData model = Spiral(kElements);
    for ([[maybe_unused]] auto _ : state) {
        for (int i = 1; i <= kElements; ++i) {
            benchmark::DoNotOptimize(model.ElemDC(i));
        }
    }
    state.SetItemsProcessed(state.iterations() * kElements);
}
BENCHMARK(ElementAxes)->Unit(benchmark::kMillisecond);

void Displacements(benchmark::State& state) {
    const CVynData model = Spiral(kElements);
    const SCaseRef ref =
        state.range(0) != 0 ? SCaseRef(CaseOp::Combination, 1, kMaximumEnvelope) : AnalysisRef(1);
    for ([[maybe_unused]] auto _ : state) {
        for (int i = 1; i <= kElements; ++i) {
            benchmark::DoNotOptimize(model.Disp(i, ref));
        }
    }
    state.SetItemsProcessed(state.iterations() * kElements);
    state.SetLabel(state.range(0) != 0 ? "envelope of three" : "analysis case");
}
BENCHMARK(Displacements)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

}  // namespace

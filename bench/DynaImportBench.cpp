#include <benchmark/benchmark.h>
#include <cstdio>
#include <string>

#include "support/DeckReader.h"

// Reading keyword decks from memory. The rate is that of the deck's text, and of its nodes and
// elements.
namespace {

using Tevra::TestSupport::DeckReader;

void AppendInt(std::string& text, int value) {
    char field[16];
    (void)std::snprintf(field, sizeof field, "%8d", value);
    text += field;
}

void AppendNode(std::string& text, int number) {
    AppendInt(text, number);
    for (const double scale : {0.1234567, -12.34567, 1.234567e-3}) {
        char field[24];
        (void)std::snprintf(field, sizeof field, "%16.9E", scale * number);
        text += field;
    }
    text += "       0       0\n";
}

/// Elements of one kind: number and part, a break for kinds of two lines, and the nodes.
void AppendElements(std::string& text, int count, int nodes, const char* between) {
    for (int number = 1; number <= count; ++number) {
        AppendInt(text, number);
        AppendInt(text, 1 + number % 7);
        text += between;
        for (int k = 0; k < nodes; ++k) {
            AppendInt(text, 1 + (number + 37 * k) % count);
        }
        text += '\n';
    }
}

struct Kind {
    const char* keyword;
    int nodes;
    const char* between;
};

constexpr Kind kKinds[] = {{"", 0, ""},
                           {"*ELEMENT_BEAM\n", 3, ""},
                           {"*ELEMENT_SHELL\n", 4, ""},
                           {"*ELEMENT_SOLID\n", 8, "\n"}};

/// As many nodes as elements of the kind.
std::string MakeDeck(const Kind& kind, int count) {
    std::string text = "*KEYWORD\n*NODE\n";
    for (int number = 1; number <= count; ++number) {
        AppendNode(text, number);
    }
    text += kind.keyword;
    AppendElements(text, kind.nodes > 0 ? count : 0, kind.nodes, kind.between);
    return text + "*END\n";
}

void Read(benchmark::State& state, const Kind& kind) {
    const auto count = static_cast<int>(state.range(0));
    const std::string deck = MakeDeck(kind, count);
    std::int64_t entries = 0;
    for ([[maybe_unused]] auto _ : state) {
        DeckReader reader;
        if (!reader.ReadText(deck)) {
            state.SkipWithError(reader.Error().c_str());
            break;
        }
        entries += reader.Report().nodes + reader.Report().elements;
        state.PauseTiming();  // the model goes
        reader.Model() = Tevra::CVynData();
        state.ResumeTiming();
    }
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(deck.size()));
    state.SetItemsProcessed(entries);
}

BENCHMARK_CAPTURE(Read, nodes, kKinds[0])->Arg(100'000)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Read, beams, kKinds[1])->Arg(100'000)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Read, shells, kKinds[2])->Arg(100'000)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Read, solids, kKinds[3])->Arg(100'000)->Unit(benchmark::kMillisecond);

}  // namespace

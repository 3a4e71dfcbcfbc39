#include <algorithm>
#include <benchmark/benchmark.h>
#include <charconv>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string_view>
#include <sys/resource.h>
#include <vector>

#include "dyna/DynaAnalysis.h"
#include "model/VynData.h"
#include "vynx/samples/Samples.h"

// The rate of the keyword writer on a plate of shells, beside that of the same fields formatted by
// std::to_chars into a buffer, and the memory that it takes beside the model. VYN_BENCH_NODES sets
// the size of the plate.
namespace {

using namespace Tevra;

constexpr int kNodes = 1'000'000;
constexpr const char* kFile = "/tmp/vyn_bench_dyna.key";

int Nodes() {
    const char* const text = std::getenv("VYN_BENCH_NODES");  // NOLINT(concurrency-mt-unsafe)
    return text != nullptr ? static_cast<int>(std::strtol(text, nullptr, 10)) : kNodes;
}

const CVynData& Plate() {
    static const auto model = [] {
        auto made = std::make_unique<CVynData>();
        Vynx::FillShells(*made, Nodes());
        return made;
    }();
    return *model;
}

double Seconds() {
    return static_cast<double>(std::clock()) / CLOCKS_PER_SEC;
}

double SizeOfFile() {
    return static_cast<double>(std::ifstream(kFile, std::ios::ate | std::ios::binary).tellg());
}

/// Most memory that the process has held so far, MB.
double PeakMemory() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return static_cast<double>(usage.ru_maxrss) / 1024.0;
}

/// Right-justified fields through a large buffer.
class PlainFields {
public:
    explicit PlainFields(std::ofstream& stream) : m_stream(stream) {}
    PlainFields(const PlainFields&) = delete;
    PlainFields& operator=(const PlainFields&) = delete;
    ~PlainFields() { Flush(); }

    template <class... Format>
    void Field(std::size_t width, Format... format) {
        char text[40];
        const char* const end = std::to_chars(text, text + sizeof text, format...).ptr;
        const auto length = std::min(static_cast<std::size_t>(end - text), width);
        char* const at = Room();
        std::fill_n(at, width, ' ');
        std::copy_n(text, length, at + width - length);
        m_used += width;
    }
    void Text(std::string_view text) {
        std::copy(text.begin(), text.end(), Room());
        m_used += text.size();
    }

private:
    char* Room() {
        if (m_used + 64 > m_buffer.size()) {
            Flush();
        }
        return m_buffer.data() + m_used;
    }
    void Flush() {
        m_stream.write(m_buffer.data(), static_cast<std::streamsize>(m_used));
        m_used = 0;
    }
    std::ofstream& m_stream;
    std::vector<char> m_buffer = std::vector<char>(65536);
    std::size_t m_used = 0;
};

void WritePlain(const CVynData& model) {
    std::ofstream stream(kFile, std::ios::binary);
    PlainFields out(stream);
    const auto real = [&out](double value) {
        out.Field(16, value, std::chars_format::scientific, 6);
    };
    for (const int number : model.NodeTable().Numbers()) {
        const Vec3<double>& at = model.Node(number).Position();
        out.Field(8, number);
        real(at.x);
        real(at.y);
        real(at.z);
        out.Text("\n");
    }
    for (const int number : model.ElemTable().Numbers()) {
        const Data::CElement& element = model.Elem(number);
        out.Text("*ELEMENT_SHELL_MCID\n");
        out.Field(8, number);
        out.Field(8, element.Property());
        for (int k = 1; k <= 4; ++k) {
            out.Field(8, element.Topo(k));
        }
        out.Text("\n");
        for (int k = 0; k < 4; ++k) {
            real(0.0);
        }
        out.Field(16, 1);
        out.Text("\n");
    }
}

template <class Write>
double Rate(Write write) {
    const double start = Seconds();
    write();
    return SizeOfFile() / (Seconds() - start);
}

void DynaWriter(benchmark::State& state) {
    CVynData model = Plate();
    double writer = 0.0;
    double plain = 0.0;
    const double before = PeakMemory();
    for ([[maybe_unused]] auto _ : state) {
        writer = std::max(writer, Rate([&model] {
                              CDynaAnalysis file;
                              file.SetData(&model);
                              file.SetTask(CDynaAnalysis::FirstTask(model));
                              benchmark::DoNotOptimize(file.OpenWrite(L"/tmp/vyn_bench_dyna.key"));
                          }));
        plain = std::max(plain, Rate([&model] { WritePlain(model); }));
    }
    state.counters["extra MB"] = PeakMemory() - before;
    std::filesystem::remove(kFile);
    state.counters["writer MB/s"] = writer / 1e6;
    state.counters["plain MB/s"] = plain / 1e6;
    state.counters["ratio"] = writer / plain;
}

BENCHMARK(DynaWriter)->Iterations(3)->Unit(benchmark::kMillisecond);

}  // namespace

#include <benchmark/benchmark.h>
#include <charconv>
#include <chrono>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <memory>

#include "model/VynData.h"
#include "nastran/NasFile.h"
#include "vynx/samples/Samples.h"

// The rate of the NASTRAN writer on a block of solids, beside that of the same fields formatted by
// std::to_chars into a buffer.
namespace {

using namespace Tevra;

constexpr int kNodes = 1'000'000;
constexpr const char* kFile = "/tmp/vyn_bench_nastran.dat";

const CVynData& Block() {
    static const auto model = [] {
        auto made = std::make_unique<CVynData>();
        Vynx::FillSolids(*made, kNodes);
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

/// Right-justified fields of 16 characters through a large buffer.
class PlainFields {
public:
    explicit PlainFields(std::ofstream& stream) : m_stream(stream) {}
    ~PlainFields() { Flush(); }
    template <class... Format>
    void Field(Format... format) {
        char text[40];
        const char* const end = std::to_chars(text, text + sizeof text, format...).ptr;
        const auto length = static_cast<std::size_t>(end - text);
        char* const at = Room();
        std::fill_n(at, 16, ' ');
        std::copy_n(text, length, at + 16 - std::min<std::size_t>(length, 16));
        m_used += 16;
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
    const auto real = [&out](double value) { out.Field(value, std::chars_format::scientific, 6); };
    for (const int number : model.NodeTable().Numbers()) {
        const Data::CNode& node = model.Node(number);
        out.Text("GRID*   ");
        out.Field(number);
        out.Field(0);
        real(node.Position().x);
        real(node.Position().y);
        out.Text("*ABCD\n*ABCD   ");
        real(node.Position().z);
        out.Field(node.Axis());
        out.Text("\n");
    }
    for (const int number : model.ElemTable().Numbers()) {
        const Data::CElement& element = model.Elem(number);
        out.Text("CHEXA8* ");
        out.Field(number);
        out.Field(element.Property());
        for (int k = 1; k <= element.NumTopo(); ++k) {
            if (k == 3 || k == 7) {
                out.Text("*ABCD\n*ABCD   ");
            }
            out.Field(element.Topo(k));
        }
        out.Text("\n");
    }
}

template <class Write>
double Rate(Write write) {
    const double start = Seconds();
    write();
    return SizeOfFile() / (Seconds() - start);
}

void NastranWriter(benchmark::State& state) {
    CVynData model = Block();
    double writer = 0.0;
    double plain = 0.0;
    for ([[maybe_unused]] auto _ : state) {
        writer =
            std::max(writer, Rate([&model] {
                         CNasFile file;
                         file.SetData(&model);
                         benchmark::DoNotOptimize(file.OpenWrite(L"/tmp/vyn_bench_nastran.dat"));
                     }));
        plain = std::max(plain, Rate([&model] { WritePlain(model); }));
    }
    std::filesystem::remove(kFile);
    state.counters["writer MB/s"] = writer / 1e6;
    state.counters["plain MB/s"] = plain / 1e6;
    state.counters["ratio"] = writer / plain;
}

BENCHMARK(NastranWriter)->Iterations(3)->Unit(benchmark::kMillisecond);

}  // namespace

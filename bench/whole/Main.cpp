#include <CLI/CLI.hpp>
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <memory>
#include <unistd.h>

#include "vynx/Format.h"
#include "whole/BenchModels.h"
#include "whole/Floor.h"
#include "whole/Measure.h"
#include "whole/Others.h"
#include "whole/Report.h"
#include "whole/Subjects.h"

// Every writer and reader on generated models of several sizes, in one table.
namespace WholeBench {

namespace {

namespace fs = std::filesystem;
using Tevra::CVynData;
using Vynx::Format;

/// Small models are run more often, as their times scatter more.
int TimesOf(int nodes) {
    constexpr int kLarge = 500'000;
    return nodes < kLarge ? 5 : 2;
}

class Bench {
public:
    /// Runs the formats named, all when none is.
    Bench(fs::path folder, std::vector<std::string> formats)
        : m_folder(std::move(folder)), m_formats(std::move(formats)) {}

    void Run(const std::vector<int>& sizes) {
        for (const int nodes : sizes) {
            m_nodes = nodes;
            const bool isCompared = nodes == sizes[sizes.size() / 2];
            for (const char* sample : {"solids", "shells", "frame", "soil"}) {
                RunSample(sample, isCompared);
            }
        }
        SetExponents(m_rows);
    }
    std::string Table() const { return Markdown(m_rows, m_comparisons); }

private:
    void RunSample(const std::string& sample, bool isCompared) {
        CVynData model;
        FillBenchModel(model, sample, m_nodes);
        const auto records = static_cast<double>(NumRecord(model));
        for (const Subject& subject : WriterSubjects()) {
            if (subject.sample == sample && IsWanted(subject.format)) {
                RunWriter(subject, model, records);
            }
        }
        if (isCompared && sample == "solids" && IsWanted("nastran") && IsWanted("ls-dyna")) {
            Add(BesideMeshGenerator(model, m_folder, Time("nastran", sample),
                                    Time("ls-dyna", sample)));
        }
        if (isCompared && sample == "frame" && IsWanted("sql")) {
            Add(BesideDump(Product(*Vynx::FindFormat("sql")), m_folder, Time("sql", sample)));
        }
        for (const ReaderSubject& subject : ReaderSubjects()) {
            if (subject.sample == sample && IsWanted(subject.format)) {
                RunReader(subject, model, records);
            }
        }
    }

    bool IsWanted(std::string_view format) const {
        return m_formats.empty() ||
               std::find(m_formats.begin(), m_formats.end(), format) != m_formats.end();
    }

    fs::path FileOf(const Format& format) const {
        return m_folder / ("bench" + std::string(format.extensions.front()));
    }
    /// The file that a writer made, or its folder.
    fs::path Product(const Format& format) const {
        fs::path folder = m_folder / "bench";
        if (!format.writesFolder) {
            return FileOf(format);
        }
        for (const auto& entry : fs::recursive_directory_iterator(folder)) {
            if (entry.is_regular_file() && entry.file_size() > 0) {
                return entry.path();
            }
        }
        return folder;
    }

    void RunWriter(const Subject& subject, CVynData& model, double records) {
        const Format& format = *Vynx::FindFormat(subject.format);
        const Vynx::OptionValues options(format.id, format.options, subject.options);
        const auto write = [&] {
            Vynx::ExportJob job{model, FileOf(format), options};
            return format.write(job);
        };
        Row row{std::string(subject.format), std::string(subject.sample), records};
        if (!Take(row, Measure(write, TimesOf(m_nodes)))) {
            return;
        }
        row.bytes = BytesOf(Product(format));
        if (subject.floor) {
            const fs::path plain = m_folder / "floor";
            const Cost floor =
                Measure([&] { return WriteFloor(model, *subject.floor, plain); }, TimesOf(m_nodes));
            row.floorRatio = row.bytes / row.seconds / (BytesOf(plain) / floor.seconds);
        }
        Add(row);
    }

    void RunReader(const ReaderSubject& subject, const CVynData& model, double records) {
        const Format& format = *Vynx::FindFormat(subject.format);
        const bool isMade = subject.writtenBy.empty();
        const fs::path file =
            isMade ? FileOf(format) : FileOf(*Vynx::FindFormat(subject.writtenBy));
        if (isMade) {
            WriteLegacyFile(model, file);
        }
        const Vynx::OptionValues options(format.id, format.readOptions, {});
        const auto read = [&] {
            const auto target = std::make_unique<CVynData>();
            Vynx::ReadJob job{file, *target, options};
            return format.read(job);
        };
        Row row{std::string(subject.format) + " (read)", std::string(subject.sample), records};
        if (Take(row, Measure(read, TimesOf(m_nodes)))) {
            row.bytes = BytesOf(file);
            Add(row);
        }
    }

    /// Takes what was measured into a row; says so when the run failed.
    static bool Take(Row& row, const Cost& cost) {
        row.seconds = cost.seconds;
        row.extraMiB = cost.extraMiB;
        if (!cost.done) {
            std::cerr << row.subject << " of " << row.sample << " failed\n";
        }
        return cost.done;
    }
    void Add(const Row& row) {
        std::cerr << row.subject << ' ' << row.sample << ' ' << row.records
                  << " records: " << row.bytes / row.seconds / 1e6 << " MB/s\n";
        m_rows.push_back(row);
    }
    void Add(const std::vector<Comparison>& comparisons) {
        m_comparisons.insert(m_comparisons.end(), comparisons.begin(), comparisons.end());
    }
    /// The time of the last run of a writer on a sample.
    double Time(const std::string& subject, const std::string& sample) const {
        double seconds = 0.0;
        for (const Row& row : m_rows) {
            seconds = row.subject == subject && row.sample == sample ? row.seconds : seconds;
        }
        return seconds;
    }

    fs::path m_folder;
    std::vector<std::string> m_formats;
    int m_nodes = 0;
    std::vector<Row> m_rows;
    std::vector<Comparison> m_comparisons;
};

}  // namespace

}  // namespace WholeBench

namespace {

/// Where files take no time of a disk.
std::filesystem::path TemporaryFolder() {
    const std::filesystem::path memory("/dev/shm");
    return std::filesystem::is_directory(memory) ? memory : std::filesystem::temp_directory_path();
}

int Run(int argc, char** argv) {
    namespace fs = std::filesystem;
    CLI::App app("Every writer and reader of vynx on generated models", "vyn_bench");
    std::vector<int> sizes{10'000, 100'000, 1'000'000};
    std::vector<std::string> formats;
    std::string output = "out/bench.md";
    app.add_option("--sizes", sizes, "Numbers of nodes, ascending")->delimiter(',');
    app.add_option("--formats", formats, "Formats to run; what a reader reads, its writer writes")
        ->delimiter(',');
    app.add_option("-o,--output", output, "Markdown file to write");
    CLI11_PARSE(app, argc, argv);

    const fs::path folder = TemporaryFolder() / ("vyn-bench-" + std::to_string(getpid()));
    fs::create_directories(folder);
    WholeBench::Bench bench(folder, formats);
    bench.Run(sizes);
    fs::remove_all(folder);
    std::cout << bench.Table();
    if (fs::path(output).has_parent_path()) {
        fs::create_directories(fs::path(output).parent_path());
    }
    std::ofstream file(output);
    file << bench.Table();
    return file.flush().good() ? 0 : 1;
}

}  // namespace

int main(int argc, char** argv) {
    try {
        return Run(argc, argv);
    } catch (const std::exception& error) {
        std::cerr << "vyn_bench: " << error.what() << '\n';
        return 1;
    }
}

#include <gtest/gtest.h>
#include <optional>

#include "document/ModelDocument.h"
#include "export/SqlExport.h"
#include "output/OutputExport.h"
#include "support/PlainModels.h"
#include "support/TempFolder.h"
#include "torture/FileSizeLimit.h"
#include "torture/WriterRuns.h"
#include "vynx/VynxFixture.h"

namespace Tevra::TestSupport {

namespace fs = std::filesystem;

namespace {

/// A beam with just what every format needs to write a file: a task of each kind, a mode, a view.
CVynData TinyModel() {
    CVynData model = BeamModel();
    CAnalysisTask task;
    task.SetSolution(SolutionType::Modal);
    task.SetAnalysed(true);
    model.SetAnalysisTask(1, task);
    task.SetDyna(CDynaTask());
    model.SetAnalysisTask(2, task);
    model.SetAnalysisCase(1, CAnalysisCase(L"", 1, L"M1"));
    CaseResults& results = model.EditResults().Edit(1);
    results.EditGlobal().mode = 1;
    results.EditGlobal().frequency = 3.5;
    const double shape[] = {0.0, 0.0, 1.0, 0.0, 0.0, 0.0};
    results.Edit(ResultKind::NodeDisp).Set(1, shape);
    model.SetSoilZone(1, Data::CSoilZone());
    auto load = LoadOn<Data::CNodeLoad>(L"2", SelType::Node);
    load.SetValue(-1e3);
    model.SetNodeLoad(1, load);
    Data::COpView view;
    view.SetData({Data::CDataRef(L"nodes"), Data::CDataRef(L"displacements")});
    model.SetView(1, view);
    return model;
}

/// Bytes of the largest file of a run.
std::size_t SizeOf(const WriterRun& run) {
    std::size_t size = 0;
    for (const auto& [name, text] : run.files) {
        size = std::max(size, text.size());
    }
    return size;
}

/// Calls `visit` with limits below a size: all when there are not more than `most`, else as many
/// of them, the largest and 0 included.
template <class Visit>
void ForEachLimit(std::size_t size, std::size_t most, Visit visit) {
    const std::size_t step = (size + most - 1) / most;
    for (std::size_t below = 1; below < size; below += step) {
        visit(size - below);
    }
    visit(std::size_t{0});
}

class WriteErrors : public ::testing::TestWithParam<std::string> {
protected:
    const Vynx::Format& m_format = *Vynx::FindFormat(GetParam());
    TempFolder m_folder;
};

class WriteErrorsOfVynx : public Vynx::VynxTest, public ::testing::WithParamInterface<std::string> {
protected:
    const Vynx::Format& m_format = *Vynx::FindFormat(GetParam());
};

}  // namespace

TEST_P(WriteErrors, AreSaidAtEveryByte) {
    const std::size_t most = m_format.writesFolder ? 50 : 10'000;
    CVynData model = TinyModel();
    const WriterRun whole = RunWriter(m_format, model, {}, m_folder.Path());
    ASSERT_TRUE(whole.written) << whole.log;
    ForEachLimit(SizeOf(whole), most, [&](std::size_t bytes) {
        std::optional<FileSizeLimit> limit(bytes);
        const WriterRun run = RunWriter(m_format, model, {}, m_folder.Path());
        limit.reset();
        EXPECT_FALSE(run.written) << bytes << " of " << SizeOf(whole);
        const bool isSaid = run.log.size() > whole.log.size() || !run.messages.empty();
        EXPECT_TRUE(isSaid) << bytes;
        EXPECT_EQ(run.log.find("model is in use"), std::string::npos) << bytes;
    });
    EXPECT_TRUE(RunWriter(m_format, model, {}, m_folder.Path()).written);
}

TEST_P(WriteErrorsOfVynx, LeaveNoFile) {
    constexpr std::size_t kMost = 25;
    CVynData model = TinyModel();
    const std::size_t size = SizeOf(RunWriter(m_format, model, {}, m_folder.Path()));
    const TempFolder source;
    const fs::path document = source.Path() / "tiny.json";
    std::string error;
    std::ofstream stream(document);
    ASSERT_TRUE(Document::WriteDocument(TinyModel(), stream, error)) << error;
    stream.close();
    const std::string target = Path("out" + std::string(m_format.extensions.front()));
    ForEachLimit(size, kMost, [&](std::size_t bytes) {
        std::optional<FileSizeLimit> limit(bytes);
        const int status = Run({"export", document.string(), "--to", GetParam(), "-o", target});
        limit.reset();
        EXPECT_EQ(status, 1) << bytes << " of " << size;
        const std::string said = m_format.writesFolder ? "not written" : target;
        EXPECT_NE(m_err.find(said), std::string::npos) << m_err;
        if (!m_format.writesFolder) {
            EXPECT_EQ(Files(), Vynx::Names()) << bytes;
        }
    });
}

INSTANTIATE_TEST_SUITE_P(Formats, WriteErrors, ::testing::ValuesIn(WritableFormats()),
                         FormatName());
INSTANTIATE_TEST_SUITE_P(Formats, WriteErrorsOfVynx, ::testing::ValuesIn(WritableFormats()),
                         FormatName());

/// The view was opened, so the host is told that it was written; whether it is whole is another
/// question.
TEST(WriteErrorsOfEntries, AnOutputViewThatWasOpenedIsIncomplete) {
    const SteadyHost host;
    const TempFolder folder;
    const fs::path path = folder.Path() / "view.csv";
    const CVynData model = TinyModel();
    const auto write = [&](bool isComplete) {
        OutputExport output(model);
        output.SetFileName(path);
        output.SetOutputSpec(&model.View(1));
        EXPECT_TRUE(output.Export());
        EXPECT_EQ(output.IsComplete(), isComplete);
    };
    write(true);
    ForEachLimit(ReadFile(path).size(), 10'000, [&](std::size_t bytes) {
        const FileSizeLimit limit(bytes);
        write(false);
    });
}

/// Tables that did not take all their records are listed, the others are whole.
TEST(WriteErrorsOfEntries, IncompleteTablesAreListed) {
    SteadyHost host;
    const ScopedHost scope(host);
    CVynData model = TinyModel();
    const TempFolder folder;
    const WriterRun whole = RunWriter(*Vynx::FindFormat("sql"), model, {}, folder.Path());
    ForEachLimit(SizeOf(whole), 20, [&](std::size_t bytes) {
        CVynData copy = TinyModel();
        Export::CSqlExport exporter;
        exporter.SetData(&copy);
        exporter.SetPath((folder.Path() / "torture.sql").string());
        exporter.SetOneFilePerModule(true);
        std::optional<FileSizeLimit> limit(bytes);
        testing::internal::CaptureStdout();
        exporter.WriteTables();
        testing::internal::GetCapturedStdout();
        limit.reset();
        std::size_t failed = 0;
        for (const auto& [name, text] : whole.files) {
            failed += text.size() > bytes ? 1U : 0U;
            const fs::path file = folder.Path() / name;
            const auto& files =
                text.size() > bytes ? exporter.FailedFiles() : exporter.WrittenFiles();
            EXPECT_NE(std::find(files.begin(), files.end(), file), files.end())
                << name << " of " << text.size() << " at " << bytes;
        }
        EXPECT_EQ(exporter.FailedFiles().size(), failed);
    });
}

}  // namespace Tevra::TestSupport

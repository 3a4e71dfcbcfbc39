#include "export/VynExport.h"

#include <array>

#include "export/AssemblyWork.h"
#include "export/LineWork.h"
#include "export/Stopwatch.h"
#include "platform/text/HostPath.h"
#include "platform/text/Utf8.h"

namespace Tevra::Export {

namespace {

using TableWriter = bool (CVynExport::*)();

constexpr std::array<TableWriter, 12> kModelTables{
    &CVynExport::Model,   &CVynExport::Location,   &CVynExport::History,    &CVynExport::Axis,
    &CVynExport::Node,    &CVynExport::Member,     &CVynExport::Element,    &CVynExport::Assembly,
    &CVynExport::Section, &CVynExport::Property2D, &CVynExport::Property3D, &CVynExport::List};
constexpr std::array<TableWriter, 9> kResultTables{&CVynExport::Case,
                                                   &CVynExport::Permutation,
                                                   &CVynExport::ResultGlobal,
                                                   &CVynExport::ResultNode,
                                                   &CVynExport::ResultElement1D,
                                                   &CVynExport::ResultElement2D,
                                                   &CVynExport::ResultElement3D,
                                                   &CVynExport::ResultSpring,
                                                   &CVynExport::ResultAssembly};

/// Writes every table, whatever becomes of the others; whether all were written.
template <std::size_t N>
bool WriteAll(CVynExport& exporter, const std::array<TableWriter, N>& tables) {
    bool all = true;
    for (const TableWriter table : tables) {
        all = (exporter.*table)() && all;
    }
    return all;
}

}  // namespace

CVynExport::CVynExport() = default;
CVynExport::~CVynExport() = default;

bool CVynExport::WriteTables() {
    m_writtenFiles.clear();
    m_failedFiles.clear();
    MapResults();
    Summary();
    Precalc1DIntermediateResults();
    if (!m_oneFilePerModule) {
        OpenStream(m_path / Text::ToPath(m_stem).concat(m_extension));
    }
    const Stopwatch watch;
    const bool model = WriteAll(*this, kModelTables);
    ReportTime("Model", {}, watch.Milliseconds());
    const bool results = WriteAll(*this, kResultTables);
    if (!m_oneFilePerModule) {
        CloseStream();
    }
    RecordInHistory();
    return model && results;
}

void CVynExport::RecordInHistory() {
    if (m_model == nullptr) {
        return;
    }
    CHistory history = m_model->History();
    CHistoryRec record;
    record.notes = Text::FromUtf8("Export of data to " + Path());
    CHistory::UpdateSession(record);
    history.SetRecord(history.NumRecord() + 1, std::move(record));
    m_model->SetHistory(std::move(history));
}

}  // namespace Tevra::Export

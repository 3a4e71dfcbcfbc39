#include "output/OutputExport.h"

#include <fstream>
#include <utility>

#include "model/VynData.h"
#include "platform/text/Ascii.h"
#include "platform/ui/HostServices.h"

namespace Tevra {

namespace {

constexpr const char* kByteOrderMark = "\xEF\xBB\xBF";

wchar_t Separator(const std::filesystem::path& path) {
    if (Text::EqualNoCase(path.extension().string(), ".txt")) {
        return L'\t';
    }
    const std::wstring separator = Host().ListSeparator();
    return separator.empty() ? L',' : separator.front();
}

}  // namespace

OutputExport::OutputExport(const CVynData& model)
    : m_model(model), m_task(std::make_unique<OutputTask>(OpThread::Main)) {}

OutputExport::~OutputExport() = default;

void OutputExport::SetDocument(CUlmWrite* document, std::wstring heading, std::wstring footer) {
    m_document = document;
    m_heading = std::move(heading);
    m_footer = std::move(footer);
}

bool OutputExport::Export() {
    m_complete = false;
    std::ofstream file(m_path);  // as text, so that lines end as the system's do
    if (!file.is_open()) {
        return false;
    }
    file << kByteOrderMark;
    CUlmFormatCsv format(Separator(m_path));
    format.SetFile(&file);
    DoOutput(format);
    const bool flushed = format.Flush();
    file.close();
    m_complete = m_complete && flushed && file.good();
    return true;
}

void OutputExport::DoOutput(CUlmFormat& format) {
    format.SetTitles(TitleBlock());
    if (m_document != nullptr) {
        m_document->Begin(m_heading);
    }
    std::wstring text;
    ProduceOutput([this, &format, &text](const Output::CLine& line) {
        text.clear();
        Output::AppendUlmString(text, line);
        format.WriteLine(text);
        if (m_document != nullptr) {
            m_document->WriteLine(text);
        }
    });
    if (m_document != nullptr) {
        m_document->End(m_footer);
    }
}

std::wstring OutputExport::WindowTitle() const {
    if (m_view == nullptr) {
        return {};
    }
    return m_view->NumOpData() == 1 ? m_view->Name() + L" : " + m_view->OpData(1).DataStr(m_model)
                                    : m_view->Name();
}

CUlmFormat::Titles OutputExport::TitleBlock() const {
    const CTitles& titles = m_model.Title();
    const CProgTitles& program = m_model.ProgTitle();
    return {
        WindowTitle(),         titles.JobTitle(),        titles.SubTitle(), titles.CalcHeading(),
        program.ProgramName(), program.ProgramVersion(), L"64-bit",         program.Notice(),
        titles.FileName(),     titles.DateSaved()};
}

void OutputExport::ProduceOutput(const Output::LineSink& sink) {
    m_complete = m_view != nullptr && m_task->Run(*m_view, m_model, sink);
}

}  // namespace Tevra

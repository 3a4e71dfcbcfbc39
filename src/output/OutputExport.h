#pragma once

#include <filesystem>
#include <memory>
#include <string>

#include "output/engine/OutputTask.h"
#include "output/engine/UlmFormat.h"

namespace Tevra {

/// Writes an output view of a model, a table of its data or results, to a delimited text file.
///
///     OutputExport output(model);
///     output.SetFileName("deck.csv");
///     output.SetOutputSpec(&model.View(1));
///     const bool written = output.Export() && output.IsComplete();
class OutputExport {
public:
    /// The model is not owned, and not changed.
    explicit OutputExport(const CVynData& model);
    OutputExport(const OutputExport&) = delete;
    OutputExport& operator=(const OutputExport&) = delete;
    ~OutputExport();

    /// The file to write: cells are separated by tabs when its extension is .txt in any case, else
    /// by the first character of the host's list separator.
    void SetFileName(std::filesystem::path path) { m_path = std::move(path); }
    /// The view to write; not owned.
    void SetOutputSpec(const Data::COpView* view) { m_view = view; }
    /// A document that gets the same lines as the file, between two texts; not owned, null for
    /// none.
    void SetDocument(CUlmWrite* document, std::wstring heading, std::wstring footer);

    /// Writes the file, in UTF-8 with a byte order mark; false when it can't be opened.
    bool Export();
    /// Whether the last Export() wrote everything: the file took all of it, and all data that the
    /// view names were provided.
    bool IsComplete() const { return m_complete; }

    /// Writes the title block and the lines of the view in a format.
    void DoOutput(CUlmFormat& format);

private:
    std::wstring WindowTitle() const;
    CUlmFormat::Titles TitleBlock() const;
    void ProduceOutput(const Output::LineSink& sink);

    const CVynData& m_model;
    std::filesystem::path m_path;
    const Data::COpView* m_view = nullptr;
    std::unique_ptr<OutputTask> m_task;
    CUlmWrite* m_document = nullptr;
    std::wstring m_heading;
    std::wstring m_footer;
    bool m_complete = false;
};

}  // namespace Tevra

#pragma once

#include <array>
#include <memory>
#include <ostream>
#include <string>
#include <string_view>

#include "io/TextOut.h"

namespace Tevra {

/// A format of documents that lines of output are written in. Lines are texts whose cells are
/// joined by Output::kCellSeparator.
class CUlmFormat {
public:
    /// What stands at the top of a document: the title of the window, job title, subtitle,
    /// calculation heading, name and version of the program, its word length, its notice of rights,
    /// name of the model's file, date saved.
    using Titles = std::array<std::wstring, 10>;

    CUlmFormat() = default;
    CUlmFormat(const CUlmFormat&) = delete;
    CUlmFormat& operator=(const CUlmFormat&) = delete;
    virtual ~CUlmFormat() = default;

    /// The file to write to; null for none. It must outlive the writing.
    virtual void SetFile(std::ostream* file) = 0;
    /// Writes the title block.
    virtual void SetTitles(const Titles& titles) = 0;
    virtual void WriteLine(std::wstring_view line) = 0;
};

/// Delimited text in UTF-8: a line for each line, cells between separators. A cell that holds the
/// separator, a quote or a line end stands in quotes, with its quotes doubled. The title block is a
/// line for each title, empty ones too, and an empty line.
class CUlmFormatCsv : public CUlmFormat {
public:
    explicit CUlmFormatCsv(wchar_t separator) : m_separator(separator) {}

    void SetFile(std::ostream* file) override;
    void SetTitles(const Titles& titles) override;
    void WriteLine(std::wstring_view line) override;
    /// Hands everything to the file; whether it has taken all of it.
    bool Flush();

private:
    /// Puts the line, its separators changed, into m_plain; false for the few lines that hold what
    /// stands in quotes or is not ASCII.
    bool MakePlain(std::wstring_view line);
    void WriteCells(std::wstring_view line);
    void AppendCell(std::wstring_view cell);

    wchar_t m_separator;
    std::string m_plain;
    std::unique_ptr<TextOut> m_out;
};

/// A document of the host that lines of output go into, between a heading and a footer.
class CUlmWrite {
public:
    CUlmWrite() = default;
    CUlmWrite(const CUlmWrite&) = delete;
    CUlmWrite& operator=(const CUlmWrite&) = delete;
    virtual ~CUlmWrite() = default;

    virtual void Begin(const std::wstring& heading) = 0;
    virtual void WriteLine(std::wstring_view line) = 0;
    virtual void End(const std::wstring& footer) = 0;
};

}  // namespace Tevra

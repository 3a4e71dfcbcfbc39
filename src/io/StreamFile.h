#pragma once

#include <ostream>
#include <string>

#include "io/GroupedNotes.h"

namespace Tevra {

class CVynData;

/// Base of every writer that makes one text file of the model: it opens the file, runs the writer,
/// closes the file and turns a failure into a message. A writer object is made, given its model and
/// options, used for one file and let go.
class CStreamFile {
public:
    CStreamFile() = default;
    CStreamFile(const CStreamFile&) = delete;
    CStreamFile& operator=(const CStreamFile&) = delete;
    virtual ~CStreamFile() = default;

    /// 1 (as at first) writes in the classic "C" locale; other values leave the process's locale
    /// alone.
    virtual void SetLocaleMode(int mode);

    /// Moves the step counter on by one when there is anything to count.
    virtual void Step();

    /// Writes, and shows a message box when that fails.
    virtual bool WriteChecked();

    /// Writes the whole file to the stream; false when it is not complete. Called once per
    /// OpenWrite, also with a stream that could not be opened. The writers of this library end with
    /// a flush and return false when the stream is bad.
    virtual bool Write() = 0;

    /// Writes the model to `fileName`, over an existing file; line ends are "\n" on every system.
    /// `secondName` is kept for the writer. When it returns false, either the model was busy for
    /// 200 ms (nothing was opened or logged) or the file is not complete and the error log says so.
    bool OpenWrite(std::wstring fileName, std::wstring secondName = {});

    /// The model to be written; not owned, and used only within OpenWrite.
    void SetData(CVynData* model) { m_model = model; }
    CVynData* Model() const { return m_model; }

    /// Whether OpenWrite refuses a model that another thread holds; true at first.
    void SetLockModel(bool lockModel) { m_lockModel = lockModel; }
    void SetCountResults(bool countResults) { m_countResults = countResults; }
    void SetCountingOn(bool countingOn) { m_countingOn = countingOn; }
    int LocaleMode() const { return m_localeMode; }
    int StepCount() const { return m_stepCount; }
    const std::wstring& FileName() const { return m_fileName; }
    const std::wstring& SecondName() const { return m_secondName; }

    /// Errors and notes of all runs, one a line, in the host's mark-up.
    const std::wstring& ErrorLog() const { return m_errorLog; }

protected:
    /// Whether there are a model and a stream: a writer that is called outside OpenWrite has none.
    bool IsReady() const { return m_model != nullptr && m_stream != nullptr; }

    /// Adds a line to the error log: what went wrong, or what the format could not carry.
    void AddError(const std::wstring& text);
    void AddNote(const std::wstring& text);
    /// A note about a record, which the log has once for all records of the kind; see
    /// CGroupedNotes::Add.
    void AddNote(const wchar_t* kind, int number, const std::wstring& what);

    // The order of these members is the one that the host documents to writers of its own.
    CVynData* m_model = nullptr;
    std::ostream* m_stream = nullptr;  ///< valid only within OpenWrite
    std::wstring m_text;
    bool m_lockModel = true;
    bool m_countResults = true;
    int m_localeMode = 1;
    int m_stepCount = 0;
    std::wstring m_secondName;
    std::wstring m_fileName;
    std::wstring m_errorLog;
    bool m_countingOn = true;

private:
    bool WriteToFile();
    void AddLogLine(const wchar_t* mark, const std::wstring& text);
    void AddGroupedNotes();

    CGroupedNotes m_notes;
};

}  // namespace Tevra

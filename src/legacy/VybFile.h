#pragma once

#include <string>

#include "legacy/VybHeader.h"
#include "legacy/VybStream.h"

namespace Tevra {

class CVynData;

/// Reads the binary model file (.vyb) that version 6 of the host program wrote into a model.
///
///     std::wstring messages;
///     CVybFile reader(model);
///     reader.SetSwop(true);  // written on a machine of the other byte order
///     const bool read = reader.OpenRead(L"old.vyb", messages);
///
/// The two lock objects of the model are held for the whole read. When a file that could be opened
/// is refused, a message box says why (a file too short for its first texts has none) and the model
/// is an empty one afterwards; when the file can't be opened or a lock is held elsewhere for 200
/// ms, the model is left alone.
class CVybFile {
public:
    explicit CVybFile(CVynData& model) : m_model(model) {}

    /// Sets whether the words of the file are in the other byte order than this machine's; holds
    /// for the reads to come.
    void SetSwop(bool swop) { m_swop = swop; }

    /// Reads a file; true when all of it is in the model. The reason why it could not be opened is
    /// added to the messages, on a line of its own in the host's mark-up.
    bool OpenRead(const std::wstring& path, std::wstring& messages);

private:
    bool ReadLocked();
    bool Read();
    bool ReadHeader();
    bool ReadRecords();
    bool ReadSettings();

    CVynData& m_model;
    CVybStream m_stream;
    bool m_swop = false;
    std::wstring m_path;
    VybHeader m_header;
    CUnit m_units;  ///< of masses and places in results
};

}  // namespace Tevra

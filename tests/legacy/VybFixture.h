#pragma once

#include <fstream>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "legacy/VybFile.h"
#include "model/VynData.h"
#include "platform/text/HostPath.h"
#include "platform/ui/RecordingHost.h"
#include "support/TempFolder.h"
#include "support/VybWriter.h"

namespace Tevra {

using TestSupport::SmallVyb;
using TestSupport::VybFields;
using TestSupport::VybWriter;
using Texts = std::vector<std::wstring>;

inline const Texts kNotVyn{L"Not a VYN file"};
inline const Texts kNotVersion6{L"This is not a VYN 6 file"};
inline const Texts kDamaged{L"Errors encountered while reading file"};

/// Reads binary models into a model, with a host that keeps what it is told.
class VybFileTest : public testing::Test {
protected:
    std::wstring Path() const { return Text::FromPath(m_folder.Path() / "model.vyb"); }
    bool ReadBytes(const std::string& bytes, bool swop = false) {
        std::ofstream(m_folder.Path() / "model.vyb", std::ios::binary) << bytes;
        m_host.events.clear();
        m_messages.clear();
        CVybFile reader(m_model);
        reader.SetSwop(swop);
        return reader.OpenRead(Path(), m_messages);
    }
    bool Read(const VybWriter& file) { return ReadBytes(file.Bytes()); }
    /// A file with the records of one kind, read into an empty model.
    bool ReadRecords(int entry, const std::vector<VybFields>& records) {
        VybWriter file;
        for (const VybFields& record : records) {
            file.Add(entry, record);
        }
        m_model = CVynData();
        return Read(file);
    }

    TestSupport::TempFolder m_folder;
    RecordingHost m_host;
    ScopedHost m_scope{m_host};
    CVynData m_model;
    std::wstring m_messages;
};

}  // namespace Tevra

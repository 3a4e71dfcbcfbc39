#include "legacy/VybFile.h"
#include "platform/ui/RecordingHost.h"
#include "vynx/Console.h"
#include "vynx/formats/FormatRows.h"

namespace Vynx {

namespace {

/// One try at a file in one byte order; its message boxes are kept, to be shown when it counts.
class Try {
public:
    Try(const ReadJob& job, bool swap) {
        const Tevra::ScopedHost scope(m_boxes);
        Tevra::CVybFile reader(job.model);
        reader.SetSwop(swap);
        m_read = reader.OpenRead(Tevra::Text::FromPath(job.file), m_messages);
    }

    bool Read() const { return m_read; }
    /// Whether the file could be opened at all.
    bool Opened() const { return m_messages.empty(); }
    void Show() const {
        for (const std::wstring& text : m_boxes.Messages()) {
            Tevra::Host().ShowMessage(text);
        }
        SayLog(m_messages);
    }

private:
    Tevra::RecordingHost m_boxes;
    std::wstring m_messages;
    bool m_read = false;
};

bool Read(ReadJob& job) {
    job.error = "the legacy model can't be read";
    const bool swap = job.options.Flag("swap");
    const Try first(job, swap);
    if (swap || first.Read() || !first.Opened()) {
        first.Show();
        if (first.Read() && !swap) {
            job.notes.emplace_back("read in the byte order of this machine");
        }
        return first.Read();
    }
    const Try second(job, true);
    if (!second.Read()) {
        first.Show();
        return false;
    }
    second.Show();
    job.notes.emplace_back("read in the other byte order than this machine's");
    return true;
}

}  // namespace

Format LegacyFormat() {
    return {.id = "legacy",
            .title = "Binary model of version 6",
            .extensions = {".vyb"},
            .options = {},
            .read = &Read,
            .readOptions = {{.name = "swap",
                             .kind = OptionKind::Flag,
                             .fallback = {},
                             .help = "the words are in the other byte order than this machine's; "
                                     "without it both are tried"}}};
}

}  // namespace Vynx

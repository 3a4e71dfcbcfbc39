#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <sys/mman.h>
#include <unistd.h>

#include "legacy/VybFile.h"
#include "model/VynData.h"
#include "platform/ui/RecordingHost.h"

using namespace Tevra;

namespace {

void Require(bool holds) {
    if (!holds) {
        std::abort();
    }
}

/// A file in memory, under a name.
class MemoryFile {
public:
    MemoryFile(const std::uint8_t* data, std::size_t size) : m_file(memfd_create("model.vyb", 0)) {
        Require(m_file >= 0 && write(m_file, data, size) == static_cast<ssize_t>(size));
    }
    MemoryFile(const MemoryFile&) = delete;
    MemoryFile& operator=(const MemoryFile&) = delete;
    ~MemoryFile() { close(m_file); }
    std::wstring Name() const { return L"/proc/self/fd/" + std::to_wstring(m_file); }

private:
    int m_file;
};

}  // namespace

// A file is read whole, without a message, or refused and leaves an empty model; in either byte
// order.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const MemoryFile file(data, size);
    for (const bool swop : {false, true}) {
        RecordingHost host;
        const ScopedHost scope(host);
        CVynData model;
        CVybFile reader(model);
        reader.SetSwop(swop);
        std::wstring messages;
        if (reader.OpenRead(file.Name(), messages)) {
            Require(host.events.empty());
            for (const int number : model.ElemTable().Numbers()) {
                Require(model.Elem(number).NumTopo() >= 1);
            }
        } else {
            Require(model == CVynData());
        }
        Require(messages.empty());
    }
    return 0;
}

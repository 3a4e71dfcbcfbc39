#include <cstddef>
#include <cstdint>
#include <string>

#include "fuzz/MemoryFile.h"
#include "legacy/VybFile.h"
#include "model/VynData.h"
#include "platform/ui/RecordingHost.h"

using namespace Tevra;
using FuzzSupport::MemoryFile;
using FuzzSupport::Require;

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

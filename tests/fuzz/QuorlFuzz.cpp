#include <cmath>
#include <cstddef>
#include <cstdint>
#include <string>

#include "fuzz/MemoryFile.h"
#include "model/VynData.h"
#include "pile/QuorlFile.h"
#include "platform/ui/RecordingHost.h"

using namespace Tevra;
using FuzzSupport::MemoryFile;
using FuzzSupport::Require;

// A file is read whole, or refused and leaves no soil data; what was read can be written and read
// again, and is the same then.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const MemoryFile file(data, size);
    RecordingHost host;
    host.answers = {true, true};
    const ScopedHost scope(host);
    CVynData model;
    CQuorlFile reader(model, nullptr, file.Name(), 1, 1, false);
    if (!reader.DoImport()) {
        Require(!reader.QuorlDataExist() && !host.events.empty());
        return 0;
    }
    for (const int number : model.SoilProfileTable().Numbers()) {
        for (const Data::SoilLayer& layer : model.SoilProfile(number).Layers()) {
            Require(std::isfinite(layer.topLevel + layer.youngTop * 0.0));
        }
    }
    for (const int number : model.SoilRectLoadTable().Numbers()) {
        Data::CSoilRectLoad load = model.SoilRectLoad(number);
        auto values = load.Get();
        values.loadCase = 1;  // the case that is written
        load.Set(values);
        model.SetSoilRectLoad(number, load);
    }
    const MemoryFile copy(nullptr, 0);
    CVynData again;
    Require(CQuorlFile(model, nullptr, copy.Name(), 1, 1, false).DoExport());
    host.answers = {true};
    Require(CQuorlFile(again, nullptr, copy.Name(), 1, 1, false).DoImport());
    Require(again.SoilProfileTable() == model.SoilProfileTable() &&
            again.SoilZoneTable() == model.SoilZoneTable() &&
            again.SoilCurveTable() == model.SoilCurveTable() &&
            again.PileSoilPropertyTable() == model.PileSoilPropertyTable() &&
            again.PileSoilCurveTable() == model.PileSoilCurveTable() &&
            again.SoilRectLoadTable() == model.SoilRectLoadTable() && again.Raft() == model.Raft());
    return 0;
}

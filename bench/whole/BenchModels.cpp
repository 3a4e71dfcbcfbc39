#include "whole/BenchModels.h"

#include <array>
#include <bit>
#include <cstring>
#include <fstream>
#include <vector>

#include "vynx/samples/Samples.h"

namespace WholeBench {

namespace {

using namespace Tevra;

constexpr int kModes = 3;
constexpr int kFirstMode = 2;

void AddLoads(CVynData& model) {
    Data::CBeamLoad load;
    load.SetLoadedEntities({L"all", SelType::Element});
    load.SetPoint(1, {0.5, true, -1234.5});
    for (const BeamLoadType type : {BeamLoadType::Uniform, BeamLoadType::Point}) {
        load.SetType(type);
        model.SetBeamLoad(model.HighestBeamLoad() + 1, load);
    }
}

void AddTasks(CVynData& model) {
    CAnalysisTask task;
    task.SetSolution(SolutionType::ExplicitDynamics);
    task.SetDyna({});
    model.SetAnalysisTask(model.HighestAnalysisTask() + 1, task);
    task.SetSolution(SolutionType::Modal);
    task.SetAnalysed(true);
    model.SetAnalysisTask(model.HighestAnalysisTask() + 1, task);
}

/// Modes with the shape of the displacements, more or less.
void AddModes(CVynData& model) {
    const CaseResults* const first = model.Results().Find(1);
    const ResultTable* const shape = first != nullptr ? first->Find(ResultKind::NodeDisp) : nullptr;
    for (int mode = 1; mode <= kModes && shape != nullptr; ++mode) {
        const int number = kFirstMode + mode - 1;
        model.SetAnalysisCase(
            number, CAnalysisCase(L"", model.HighestAnalysisTask(), L"M" + std::to_wstring(mode)));
        CaseResults& results = model.EditResults().Edit(number);
        results.EditGlobal().frequency = 1.5 * mode;
        results.EditGlobal().modalMass = 1e5;
        ResultTable& to = results.Edit(ResultKind::NodeDisp);
        for (const int node : shape->Entities()) {
            std::array<double, 6> row{};
            for (std::size_t i = 0; i < row.size(); ++i) {
                row[i] = mode * shape->Row(node, 0)[i] + 1e-5 * static_cast<double>(i);
            }
            to.Set(node, row);
        }
    }
}

void AddView(CVynData& model) {
    Data::COpView view;
    view.SetData(
        {Data::CDataRef(L"nodes"), Data::CDataRef(L"elements"), Data::CDataRef(L"displacements")});
    model.SetView(1, view);
}

void FillSoil(CVynData& model, int zones) {
    for (int number = 1; number <= zones; ++number) {
        const double at = 0.25 * number;
        Data::CSoilProfile profile;
        profile.SetName(L"Borehole");
        profile.SetLayers({{0.0, 1.2e7 + number, 2e7, 0.45, 0}, {-6.125, 3e7, 6e7, 0.3, 0}});
        model.SetSoilProfile(number, profile);
        Data::CSoilZone zone;
        zone.SetName(L"Zone");
        zone.SetProfile(number);
        zone.SetExtents({at, -at}, {at + 0.25, 1.0 / number});
        model.SetSoilZone(number, zone);
    }
}

/// Words of a legacy file, in this machine's order.
class Words {
public:
    void Int(std::int32_t value) { m_words.push_back(std::bit_cast<std::uint32_t>(value)); }
    void Real(double value) {
        m_words.push_back(std::bit_cast<std::uint32_t>(static_cast<float>(value)));
    }
    void Zeros(int count) { m_words.resize(m_words.size() + static_cast<std::size_t>(count)); }
    std::size_t Bytes() const { return m_words.size() * sizeof(std::uint32_t); }
    const char* Data() const { return reinterpret_cast<const char*>(m_words.data()); }

private:
    std::vector<std::uint32_t> m_words;
};

Words NodeTable(const CVynData& model) {
    constexpr int kLength = 32;
    Words words;
    words.Int(model.NumNode());
    words.Int(kLength);
    for (const int number : model.NodeTable().Numbers()) {
        const Vec3<double>& at = model.Node(number).Position();
        words.Int(number);
        words.Real(at.x);
        words.Real(at.y);
        words.Real(at.z);
        words.Zeros(4);
    }
    return words;
}

/// All elements as beams of their first two nodes.
Words ElementTable(const CVynData& model) {
    constexpr int kLength = 88;
    Words words;
    words.Int(model.NumElem());
    words.Int(kLength);
    for (const int number : model.ElemTable().Numbers()) {
        const Data::CElement& element = model.Elem(number);
        words.Int(number);
        words.Int(1);
        words.Int(element.Property());
        words.Zeros(10);
        words.Int(2);
        words.Int(element.Topo(1));
        words.Int(element.Topo(2));
        words.Zeros(6);
    }
    return words;
}

}  // namespace

void FillBenchModel(CVynData& model, std::string_view kind, int nodes) {
    if (kind == "soil") {
        FillSoil(model, nodes);
        return;
    }
    Vynx::FindSampleKind(kind)->fill(model, nodes);
    AddLoads(model);
    AddTasks(model);
    AddModes(model);
    AddView(model);
}

std::int64_t NumRecord(const CVynData& model) {
    return std::int64_t{model.NumNode()} + model.NumElem() + model.NumSoilZone() +
           model.NumSoilProfile();
}

void WriteLegacyFile(const CVynData& model, const std::filesystem::path& path) {
    constexpr std::size_t kBlock = 512;
    constexpr std::size_t kDirectory = 1099;
    constexpr std::size_t kWord = 4;
    constexpr std::int32_t kEntries = 20;
    const auto blocks = [](std::size_t bytes) { return (bytes + kBlock - 1) / kBlock; };
    const Words tables[] = {NodeTable(model), ElementTable(model)};
    std::string head(kBlock * blocks(kDirectory + kWord * kEntries), '\0');
    const auto put = [&head](std::size_t at, std::int32_t value) {
        std::memcpy(head.data() + at, &value, sizeof value);
    };
    head.replace(0, 5, "00006");
    put(314, kEntries + 1);
    std::size_t block = head.size() / kBlock + 1;
    constexpr std::size_t kFirstEntry = 9;  // nodes, elements behind them
    for (std::size_t i = 0; i < 2; ++i) {
        put(kDirectory + kWord * (kFirstEntry - 1 + i), static_cast<std::int32_t>(block));
        block += blocks(tables[i].Bytes());
    }
    std::ofstream file(path, std::ios::binary);
    file << head;
    for (const Words& table : tables) {
        file.write(table.Data(), static_cast<std::streamsize>(table.Bytes()));
        file << std::string(blocks(table.Bytes()) * kBlock - table.Bytes(), '\0');
    }
}

}  // namespace WholeBench

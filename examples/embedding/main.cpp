// A host program that has a model in memory and hands it to the library: it fills a CVynData,
// writes a modal damping data file and a model document, and shows what the writers have to say.
//
//     embedding FOLDER      writes cantilever.damping.txt and cantilever.json into FOLDER

#include <array>
#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <numbers>
#include <string>

#include "document/ModelDocument.h"
#include "dyna/CeapDampingFile.h"
#include "model/VynData.h"
#include "platform/text/Utf8.h"
#include "platform/ui/ConsoleHost.h"

namespace {

using Tevra::CVynData;

constexpr double kLength = 4.0;  // m
constexpr int kElements = 8;
constexpr int kTask = 1;
constexpr int kMode = 1;

/// A host that shows the library's messages in its own way.
class HostWindow : public Tevra::ConsoleHost {
public:
    void ShowMessage(const std::wstring& text) override {
        std::cerr << "embedding: " << Tevra::Text::ToUtf8(text) << '\n';
    }
};

/// A cantilever along x: steel tube 168.3 x 8, held at the origin.
void AddStructure(CVynData& model) {
    model.SetMatAnal(1, {L"Steel", 210e9, 0.3, 7850.0, 1.2e-5});
    model.SetSection(1, {L"Tube", L"STD%CHS%168.3%8", {.analysis = 1}});
    for (int i = 0; i <= kElements; ++i) {
        Tevra::Data::CNode node({kLength * i / kElements, 0.0, 0.0});
        if (i == 0) {
            node.SetRestraint(Tevra::Vbool6::FromBits(63));
        }
        model.SetNode(i + 1, node);
        if (i > 0) {
            model.SetElem(i, {Tevra::ElementType::Beam, {i, i + 1}, 1});
        }
    }
}

/// The first bending mode, as the host's own analysis would give it: the closed form for a
/// prismatic cantilever (beta L = 1.8751), in z, 1 at the tip.
void AddMode(CVynData& model) {
    Tevra::CAnalysisTask task;
    task.SetName(L"Modes");
    task.SetSolution(Tevra::SolutionType::Modal);
    task.SetAnalysed(true);
    model.SetAnalysisTask(kTask, task);
    model.SetAnalysisCase(kMode, {L"Mode 1", kTask, L"M1"});

    const Tevra::SectionProperties section = model.Section(1).Properties();
    const Tevra::Data::CMatAnal& steel = model.MatAnal(1);
    const double beta = 1.8751 / kLength;
    const double massPerLength = steel.Density() * section.area;
    const double omega = beta * beta * std::sqrt(steel.E() * section.iyy / massPerLength);
    const auto shape = [&](double x) {
        const double b = beta * x;
        return (std::cosh(b) - std::cos(b) - 0.7341 * (std::sinh(b) - std::sin(b))) / 2.0;
    };

    Tevra::CaseResults& results = model.EditResults().Edit(kMode);
    Tevra::GlobalResults& global = results.EditGlobal();
    global.mode = 1;
    global.frequency = omega / (2.0 * std::numbers::pi);
    global.modalMass = massPerLength * kLength / 4.0;
    global.modalStiff = global.modalMass * omega * omega;
    Tevra::ResultTable& displacements = results.Edit(Tevra::ResultKind::NodeDisp);
    for (int node = 1; node <= model.HighestNode(); ++node) {
        const double z = shape(model.Node(node).Position().x);
        displacements.Set(node, std::array{0.0, 0.0, z, 0.0, 0.0, 0.0});
    }
}

bool WriteDampingFile(CVynData& model, const std::filesystem::path& path) {
    Tevra::CCeapDampingFile writer;
    writer.SetData(&model);
    writer.SetDamping(0.01);
    const bool written = writer.OpenWrite(path.wstring());
    if (!writer.ErrorLog().empty()) {
        std::cerr << Tevra::Text::ToUtf8(writer.ErrorLog()) << '\n';
    }
    return written;
}

bool WriteModel(const CVynData& model, const std::filesystem::path& path) {
    std::ofstream file(path, std::ios::binary);
    std::string error;
    const bool written = Tevra::Document::WriteDocument(model, file, error);
    if (!written) {
        std::cerr << error << '\n';
    }
    return written;
}

}  // namespace

int main(int count, char** arguments) {
    if (count != 2) {
        std::cerr << "usage: embedding FOLDER\n";
        return EXIT_FAILURE;
    }
    const std::filesystem::path folder = arguments[1];
    HostWindow host;
    const Tevra::ScopedHost scope(host);
    CVynData model;
    AddStructure(model);
    AddMode(model);
    const bool written = WriteDampingFile(model, folder / "cantilever.damping.txt") &&
                         WriteModel(model, folder / "cantilever.json");
    return written ? EXIT_SUCCESS : EXIT_FAILURE;
}

#include "dyna/CeapDampingFile.h"

#include <array>
#include <cmath>
#include <string_view>

#include "io/Rows.h"
#include "model/Util.h"
#include "model/VynData.h"

namespace Tevra {

namespace {

constexpr int kNodesInLine = 10;
constexpr int kValuesInLine = 5;
constexpr int kNumberWidth = 8;
constexpr int kValueWidth = 16;

/// A node without results does not move.
double OrZero(double value) {
    return std::isnan(value) ? 0.0 : value;
}

}  // namespace

std::vector<int> CCeapDampingFile::IncludedNodes(const CVynData& model) const {
    std::vector<int> nodes;
    Util::Items(m_nodeList, nodes, model);
    return nodes;
}

int CCeapDampingFile::ModalTask(const CVynData& model) {
    for (const int number : model.AnalysisTaskTable().Numbers()) {
        const CAnalysisTask& task = model.AnalysisTask(number);
        if (task.IsAnalysed() && task.IsModal()) {
            return number;
        }
    }
    return 0;
}

std::vector<SCaseRef> CCeapDampingFile::IncludedModes(const CVynData& model) const {
    const int task = ModalTask(model);
    const CBitSet included = Util::Item(m_modeList, model, -1, false);
    std::vector<SCaseRef> modes;
    for (const int number : model.AnalysisCaseTable().Numbers()) {
        const SCaseRef ref = AnalysisRef(number);
        if (task != 0 && model.AnalysisCase(number).Task() == task &&
            included.Test(model.Mode(ref))) {
            modes.push_back(ref);
        }
    }
    return modes;
}

void CCeapDampingFile::WriteModes(TextOut& out, const std::vector<SCaseRef>& modes) {
    int incomplete = 0;
    out.Append("$      Frequency      Modal Mass         Damping\n");
    for (const SCaseRef& mode : modes) {
        const double frequency = m_model->Frequency(mode);
        const double mass = m_model->ModalMass(mode);
        incomplete += std::isfinite(frequency) && std::isfinite(mass) ? 0 : 1;
        out.Padded(frequency, kValueWidth).Padded(mass, kValueWidth);
        out.Padded(m_damping, kValueWidth).EndLine();
    }
    if (incomplete > 0) {
        AddNote(L"Modes without frequency or modal mass: " + std::to_wstring(incomplete));
    }
}

void CCeapDampingFile::WriteShapes(TextOut& out, const std::vector<int>& nodes,
                                   const std::vector<SCaseRef>& modes) {
    constexpr std::array<std::string_view, 3> kDirectionLines{"$ x\n", "$ y\n", "$ z\n"};
    std::vector<Vec3<double>> shape(modes.size());
    long missing = 0;
    for (const int node : nodes) {
        out.Append("$ ").Int(node).EndLine();
        for (std::size_t i = 0; i < modes.size(); ++i) {
            shape[i] = m_model->Disp(node, modes[i]);
            missing += std::isnan(shape[i].x) ? 1 : 0;
        }
        for (int direction = 0; direction < 3; ++direction) {
            out.Append(kDirectionLines[static_cast<std::size_t>(direction)]);
            WriteRows(out, shape, kValuesInLine, [&out, direction](const Vec3<double>& disp) {
                out.Padded(OrZero(disp[direction]), kValueWidth);
            });
        }
    }
    if (missing > 0) {
        AddNote(L"Displacements of nodes that the results do not have, written as 0: " +
                std::to_wstring(missing));
    }
}

bool CCeapDampingFile::Write() {
    if (!IsReady()) {
        return false;
    }
    const std::vector<int> nodes = IncludedNodes(*m_model);
    const std::vector<SCaseRef> modes = IncludedModes(*m_model);
    if (nodes.empty() || modes.empty()) {
        return false;
    }

    TextOut out(*m_stream);
    out.Append("$\n$ *DAMPING_MODAL data file\n$\n$  Nodes   Modes\n");
    out.Int(static_cast<long long>(nodes.size()), kNumberWidth);
    out.Int(static_cast<long long>(modes.size()), kNumberWidth).EndLine();
    WriteModes(out, modes);
    out.Append("$ Applicable nodes\n");
    WriteRows(out, nodes, kNodesInLine, [&out](int node) { out.Int(node, kNumberWidth); });
    WriteShapes(out, nodes, modes);
    out.Append("$ end of file\n");
    return out.Flush();
}

}  // namespace Tevra

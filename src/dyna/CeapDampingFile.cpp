#include "dyna/CeapDampingFile.h"

#include <array>
#include <cmath>
#include <string_view>

#include "io/TextOut.h"
#include "model/Util.h"
#include "model/VynData.h"

namespace Tevra {

namespace {

constexpr int kNodesInLine = 10;
constexpr int kValuesInLine = 5;
constexpr int kNumberWidth = 8;
constexpr int kValueWidth = 16;

/// Writes items, `inLine` to a line, ending a last line that is not full.
template <class Items, class WriteItem>
void WriteRows(TextOut& out, const Items& items, int inLine, WriteItem writeItem) {
    int column = 0;
    for (const auto& item : items) {
        writeItem(item);
        if (++column == inLine) {
            out.EndLine();
            column = 0;
        }
    }
    if (column != 0) {
        out.EndLine();
    }
}

/// A node without results does not move.
double OrZero(double value) {
    return std::isnan(value) ? 0.0 : value;
}

}  // namespace

std::vector<int> CCeapDampingFile::IncludedNodes() const {
    std::vector<int> nodes;
    Util::Item(m_nodeList, *m_model, m_model->HighestNode(), true).ForEach([&nodes](int node) {
        nodes.push_back(node);
    });
    return nodes;
}

int CCeapDampingFile::ModalTask() const {
    for (const int number : m_model->AnalysisTaskTable().Numbers()) {
        const CAnalysisTask& task = m_model->AnalysisTask(number);
        if (task.IsAnalysed() && task.IsModal()) {
            return number;
        }
    }
    return 0;
}

std::vector<SCaseRef> CCeapDampingFile::QualifyingModes(int task) const {
    const CBitSet included = Util::Item(m_modeList, *m_model, -1, false);
    std::vector<SCaseRef> modes;
    for (const int number : m_model->AnalysisCaseTable().Numbers()) {
        const SCaseRef ref = AnalysisRef(number);
        if (m_model->AnalysisCase(number).Task() == task && included.Test(m_model->Mode(ref))) {
            modes.push_back(ref);
        }
    }
    return modes;
}

void CCeapDampingFile::WriteModes(TextOut& out, const std::vector<SCaseRef>& modes) const {
    out.Append("$      Frequency      Modal Mass         Damping\n");
    for (const SCaseRef& mode : modes) {
        out.Padded(m_model->Frequency(mode), kValueWidth);
        out.Padded(m_model->ModalMass(mode), kValueWidth);
        out.Padded(m_damping, kValueWidth);
        out.EndLine();
    }
}

void CCeapDampingFile::WriteShapes(TextOut& out, const std::vector<int>& nodes,
                                   const std::vector<SCaseRef>& modes) const {
    constexpr std::array<std::string_view, 3> kDirectionLines{"$ x\n", "$ y\n", "$ z\n"};
    std::vector<Vec3<double>> shape(modes.size());
    for (const int node : nodes) {
        out.Append("$ ").Int(node).EndLine();
        for (std::size_t i = 0; i < modes.size(); ++i) {
            shape[i] = m_model->Disp(node, modes[i]);
        }
        for (int direction = 0; direction < 3; ++direction) {
            out.Append(kDirectionLines[static_cast<std::size_t>(direction)]);
            WriteRows(out, shape, kValuesInLine, [&out, direction](const Vec3<double>& disp) {
                out.Padded(OrZero(disp[direction]), kValueWidth);
            });
        }
    }
}

bool CCeapDampingFile::Write() {
    if (m_model == nullptr) {
        return false;
    }
    const std::vector<int> nodes = IncludedNodes();
    const int task = ModalTask();
    const std::vector<SCaseRef> modes = task != 0 ? QualifyingModes(task) : std::vector<SCaseRef>();
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

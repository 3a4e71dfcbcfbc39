#pragma once

#include <vector>

#include "io/StreamFile.h"
#include "model/EntList.h"
#include "model/Types.h"

namespace Tevra {

class TextOut;

/// Writes the modal damping data file of an explicit dynamic analysis: frequency, modal mass and
/// damping of chosen modes of the same model, and their shapes at chosen nodes. Its text lines
/// begin with "$", so that programs that do not know it take it for comments.
///
///     CCeapDampingFile writer;
///     writer.SetData(&model);
///     writer.SetDamping(0.01);
///     const bool written = writer.OpenWrite(L"model.damping.txt");
///
/// The modes are those of the first modal task that has been analysed. `OpenWrite` is false, and
/// the file stays empty, when there is no such task, no node or no mode.
class CCeapDampingFile : public CStreamFile {
public:
    CCeapDampingFile() = default;
    CCeapDampingFile(const CCeapDampingFile&) = delete;
    CCeapDampingFile& operator=(const CCeapDampingFile&) = delete;
    ~CCeapDampingFile() override = default;

    /// Nodes at which mode shapes are written; all at first.
    void SetNodeList(const CEntList& list) { m_nodeList = list; }
    /// Numbers of the modes; all at first.
    void SetModeList(const CEntList& list) { m_modeList = list; }
    /// Damping written for every mode, as a fraction of critical; 0.02 at first.
    void SetDamping(double damping) { m_damping = damping; }

    bool Write() override;

    /// The modal task whose modes are written, 0 when the model has none.
    static int ModalTask(const CVynData& model);
    /// The nodes, and the analysis cases of the modes, that the lists include of a model.
    std::vector<int> IncludedNodes(const CVynData& model) const;
    std::vector<SCaseRef> IncludedModes(const CVynData& model) const;

private:
    void WriteModes(TextOut& out, const std::vector<SCaseRef>& modes);
    void WriteShapes(TextOut& out, const std::vector<int>& nodes,
                     const std::vector<SCaseRef>& modes);

    CEntList m_nodeList{L"all", SelType::Node};
    CEntList m_modeList{L"all", SelType::Mode};
    double m_damping = 0.02;
};

}  // namespace Tevra

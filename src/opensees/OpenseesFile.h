#pragma once

#include "io/StreamFile.h"

namespace Tevra {

class TextOut;
struct OpsContext;

/// Writes the model and one of its load cases as a Tcl script of OpenSees commands, for a
/// three-dimensional model with six freedoms per node, in SI units.
///
///     COpenseesFile writer;
///     writer.SetData(&model);
///     writer.SetLoadCase(2);
///     const bool written = writer.OpenWrite(L"model.tcl");
///
/// The sections stand in files named for what they write: OpsMaterials, OpsSections (with
/// OpsFibres, the layout of fibres), OpsElements, OpsConstraints, OpsLoads.
///
/// What the target does not know is told: loads of the case in message boxes; cables, links,
/// spacers and what is at fault in the error log. A beam load that varies along the element ends
/// the script.
class COpenseesFile : public CStreamFile {
public:
    COpenseesFile() = default;
    COpenseesFile(const COpenseesFile&) = delete;
    COpenseesFile& operator=(const COpenseesFile&) = delete;
    ~COpenseesFile() override = default;

    /// The load case whose loads are written; 1 at first.
    void SetLoadCase(int loadCase) { m_loadCase = loadCase; }
    int LoadCase() const { return m_loadCase; }

    bool Write() override;

private:
    void WriteHeader(TextOut& out) const;
    void WriteNodes(OpsContext& c);
    void WriteRestraints(OpsContext& c);

    void WriteMaterials(OpsContext& c);
    void WriteSections(OpsContext& c);
    void WriteShellSections(OpsContext& c);

    void WriteTransformations(OpsContext& c);
    void WriteElements(OpsContext& c);

    void WriteRigidLinks(OpsContext& c);
    void WriteJoints(OpsContext& c);

    void TellUnsupportedBeforeLoads() const;
    void WriteNodeLoads(OpsContext& c);
    bool WriteBeamLoads(OpsContext& c);
    void WriteBeamLoad(OpsContext& c, int number);
    void TellUnsupportedAfterLoads() const;
    void BeginPattern(TextOut& out) const;

    /// Ends a command; notes it when it is left out, as one of its values is not a number.
    void End(OpsContext& c, const wchar_t* kind, int number);

    int m_loadCase = 1;
};

}  // namespace Tevra

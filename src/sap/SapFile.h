#pragma once

#include "io/StreamFile.h"

namespace Tevra {

class RecordText;
struct SapContext;

namespace Data {
class CBeamLoad;
class CLoadBase;
class CSection;
}  // namespace Data

/// Writes the model as a SAP2000 S2K text file: blocks of a keyword and indented lines of key=value
/// items, in metres and newtons.
///
///     CSapFile writer;
///     writer.SetData(&model);
///     writer.SetLocaleMode(CSapFile::kGeneral);
///     const bool written = writer.OpenWrite(L"model.s2k");
///
/// The blocks stand in files named for what they write: SapJoints (coordinates, joints), SapFrames,
/// SapElements (the other elements), SapSections, SapMaterials (with springs and shells),
/// SapConstraints, SapLoads (the order of the cases, gravity, loads at joints), SapSpanLoads,
/// SapFaceLoads, SapTemperatures.
///
/// What the format can't carry is told by notes in the error log. A beam load of a kind that can't
/// be written, and direction cosines out of their range, end the file.
class CSapFile : public CStreamFile {
public:
    /// How sections are described: the values of SectionOutputMode(). Others leave the shape out.
    enum SectionOutput : int { kByStandardCode = 0, kByShapeClass = 1, kGeneral = 2 };

    CSapFile() = default;
    CSapFile(const CSapFile&) = delete;
    CSapFile& operator=(const CSapFile&) = delete;
    ~CSapFile() override = default;

    /// The locale mode: SetLocaleMode() chooses it, kByShapeClass at first. Numbers do not depend
    /// on it.
    int SectionOutputMode() const { return LocaleMode(); }

    bool Write() override;

private:
    // --- structure
    bool WriteTitles(SapContext& c);
    bool WriteSystem(SapContext& c);
    bool WriteCoordinates(SapContext& c);
    bool WriteJoints(SapContext& c);
    void WriteLocals(SapContext& c);
    void WriteRestraints(SapContext& c);
    void WriteJointSprings(SapContext& c);
    bool NoteElementsLeftOut(SapContext& c);
    bool WriteFrames(SapContext& c);
    bool WriteFrame(SapContext& c, int element);
    bool WriteLinkElements(SapContext& c);
    bool WriteShells(SapContext& c);
    bool WritePlanes(SapContext& c);
    bool WriteFrameSections(SapContext& c);
    void AddShape(RecordText& line, const Data::CSection& section) const;
    bool WriteLinkProperties(SapContext& c);
    bool WriteShellSections(SapContext& c);
    bool WriteMaterials(SapContext& c);
    bool WriteConstraints(SapContext& c);
    void WriteRigids(SapContext& c, int& name);
    void WriteRigidLinks(SapContext& c, int& name);
    void WriteJointConstraints(SapContext& c, int& name);

    // --- loads
    bool WriteLoads(SapContext& c);
    bool WriteCaseName(SapContext& c, int loadCase);
    bool WriteGravity(SapContext& c, int loadCase);
    bool WriteNodeForces(SapContext& c, int loadCase);
    void WriteNodeForce(SapContext& c, int number, int& axis);
    bool WriteSpringDisplacements(SapContext& c, int loadCase);
    bool WriteSpanLoads(SapContext& c, int loadCase);
    void WritePointLoads(SapContext& c, int loadCase);
    void AddPointLoad(RecordText& line, const Data::CBeamLoad& load, int element) const;
    bool WriteDistributedLoads(SapContext& c, int loadCase);
    void AddDistributedLoad(RecordText& line, const Data::CBeamLoad& load, int element) const;
    void WritePrestress(SapContext& c, int loadCase);
    bool WriteFaceLoads(SapContext& c, int loadCase);
    void WriteFaceLoad(SapContext& c, int number, int element);
    bool WriteBeamTemperatures(SapContext& c, int loadCase);
    bool WriteFaceTemperatures(SapContext& c, int loadCase);
    bool NoteKindsNotCarried(SapContext& c);

    /// Whether loads of an axis can't be written, as it is curved.
    bool IsCurved(int axis) const;
    void NoteLoadsWithoutCase(const SapContext& c);
    std::vector<int> FramesUnder(SapContext& c, const Data::CBeamLoad& load, int number);
    /// Elements of the file that a load acts on; notes the others.
    std::vector<int> LoadedFrames(SapContext& c, const Data::CLoadBase& load, const wchar_t* kind,
                                  int number);
    std::vector<int> LoadedFaces(SapContext& c, const Data::CLoadBase& load, const wchar_t* kind,
                                 int number);
    void NoteOthers(const wchar_t* kind, int number, std::size_t others);
    /// Ends a record; notes it when it is left out, as one of its values is not a number.
    void End(SapContext& c, const wchar_t* kind, int number);
};

}  // namespace Tevra

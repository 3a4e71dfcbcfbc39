#pragma once

#include <array>
#include <cstdint>
#include <initializer_list>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "io/StreamFile.h"
#include "model/BitSet.h"
#include "model/Case.h"
#include "model/Element.h"
#include "model/Load.h"
#include "model/MaterialMap.h"
#include "nastran/SectionUse.h"

namespace Tevra {

class TextOut;
struct LoadedFace;

/// Writes the model as one NASTRAN input file: executive control, case control with a subcase for
/// each load case and each combination, and bulk data in fixed fields.
///
///     CNasFile writer;
///     writer.SetData(&model);
///     writer.SetAnalysisType(CNasFile::kModes);
///     writer.SetNumModes(10);
///     if (!writer.OpenWrite(L"model.dat")) {
///         Show(writer.ErrorLog());
///     }
///
/// The sections stand in files named for what they write: NasCaseControl, NasCards (the card
/// primitives), NasGrids, NasElements, NasLineElements, NasMaterials, NasProperties,
/// NasAreaProperties, NasConstraints, NasLoads, NasBeamLoads, NasFaceLoads, NasTemperatures.
///
/// A record that can't be carried over is left out with a note in the error log that names it and
/// says why. An object writes one file.
class CNasFile : public CStreamFile {
public:
    /// Kinds of analysis; any other number writes no solution statement.
    enum AnalysisType : int { kStatic = 1, kModes = 2, kBuckling = 3 };

    CNasFile();
    CNasFile(const CNasFile&) = delete;
    CNasFile& operator=(const CNasFile&) = delete;
    ~CNasFile() override;

    /// kStatic at first.
    void SetAnalysisType(int type) { m_analysisType = type; }
    /// Number of modes of modal and buckling analyses; 0 at first.
    void SetNumModes(int modes) { m_numModes = modes; }
    /// Number of the saved list whose nodes and elements are written; 0, as at first, writes all.
    void SetSelection(int selection) { m_selection = selection; }
    /// Whether beams are CBEAM cards; CBAR at first.
    void SetWriteCbeam(bool writeCbeam) { m_writeCbeam = writeCbeam; }
    /// Whether fields have 16 characters (as at first) or 8.
    void SetLargeField(bool largeField) { m_largeField = largeField; }
    /// Whether subcases and loads are written; true at first.
    void SetExportLoads(bool exportLoads) { m_exportLoads = exportLoads; }
    /// Loads of the buckling analysis as a case description, "1.0L1 + 0.5L2".
    void SetBucklingDescription(std::wstring text) { m_bucklingDescription = std::move(text); }

    int AnalysisType() const { return m_analysisType; }
    int NumModes() const { return m_numModes; }
    int Selection() const { return m_selection; }
    bool WriteCbeam() const { return m_writeCbeam; }
    bool LargeField() const { return m_largeField; }
    bool ExportLoads() const { return m_exportLoads; }
    const std::wstring& BucklingDescription() const { return m_bucklingDescription; }

    /// What the host shows after a successful write, in its markup.
    const std::wstring& Report() const { return m_report; }

    bool Write() override;

private:
    /// Groups of loads by the set that a subcase selects them with.
    enum LoadKinds : unsigned { kMechanical = 1, kThermal = 2, kSelfWeight = 4 };

    // --- card primitives
    void StartCard(std::string_view name);
    void CheckContinuation();
    void AddBlankFields(int count);
    void AddTextField(std::string_view text);
    void AddInt(long long value);
    void AddReal(double value);
    void AddReals(const Vec3<double>& v);
    /// Writes the card, or leaves it out with a note when one of its values is not a number.
    void EndCard();
    int FieldWidth() const { return m_largeField ? 16 : 8; }
    void ContinueLine();
    /// Begins a section: "$", its title, "$".
    void StartSection(std::string_view title);

    // --- notes
    /// The record that the notes to come are about; `kind` is a literal.
    void SetSubject(const wchar_t* kind, int number);
    /// Notes why (part of) the subject is not written.
    void Skip(const std::wstring& reason);
    void SkipMany(int count, const wchar_t* what, const wchar_t* reason);
    void NoteKindsNotCarried();

    // --- what is written: records that are active, and whose references can be resolved
    bool NodePasses(int node) const;
    bool IsNodeWritten(int node) const;
    void FindWrittenNodes();
    void FindWrittenProperties();
    void FindWrittenElements();
    bool IsAxisWritten(int axis) const;
    /// A direction in a host axis in the order of the target's axis: of a spherical one outwards,
    /// down and round, where the host's are outwards, round and up.
    Vec3<double> InTargetAxes(int axis, const Vec3<double>& v) const;
    /// The material that an exported property has first, null when there is none.
    const Data::CMatAnal* MaterialOf(const std::vector<ExportedProperty>& property) const;
    const Data::CMatAnal* MaterialOf(const ExportedProperty& property) const;
    bool HasMaterial(const std::vector<ExportedProperty>& property) const;
    bool HasMaterial(const ExportedProperty& property) const;
    /// What a property is exported as with the materials that are in the file; the others are
    /// noted.
    std::vector<ExportedProperty> WithMaterial(std::vector<ExportedProperty> property);
    /// Why an element is not written; null when it is.
    const wchar_t* ElementFault(int element) const;
    const wchar_t* NodesFault(const Data::CElement& record) const;
    const wchar_t* PropertyFault(const Data::CElement& record) const;
    bool IsElementWritten(int element) const { return m_writtenElements.Test(element); }
    /// Number of a coordinate system, 0 (global) for axes that do not exist.
    int CoordinateSystem(int axis);
    int NextElement();

    // --- file header and case control
    bool WriteHeader();
    void WriteTitles();
    void WriteOutputRequests();
    void WriteParameters();
    bool WriteSubcases(int& next);
    void WriteGravitySubcases();
    void WriteCombinationSubcases(int& next);
    void WriteSubcase(int number, const std::wstring& subtitle);
    std::wstring CaseName(int loadCase) const;
    void FindLoadKinds();
    bool HasLoad(int loadCase, unsigned kinds) const;
    bool IsExported(int combination) const;
    void WriteOrigin();
    bool WriteEigenCards();
    void WriteBucklingLoads();
    bool IsLoadCase(int number) const;
    /// The set under which the gravity loads of a load case are written.
    int GravityCase(int loadCase) const;
    void AddLoadPairs(const std::map<int, double>& factors);

    // --- structure
    bool WriteAxes();
    bool WriteGrids();
    bool WriteRestraints();
    bool WriteNodeProperties();
    template <class Acts>
    void WriteAttached(std::string_view card, int node, int property, Acts acts);
    void WriteNodeSpring(int node, int property);
    void WriteNodeMass(int node, int property);
    void WriteNodeDamper(int node, int property);
    bool WriteElements();
    void WriteElement(int element);
    void WriteLine(int element, std::string_view card);
    Vec3<double> EndOffset(int element, int end) const;
    void AddLineTail(int element, bool hasReleases);
    void WriteSpring(int element);
    void WritePlane(int element, std::string_view card);
    double MaterialAngle(int element) const;
    void AddNodes(const Data::CElement& record);
    void AddCornerThicknesses(const Data::CElement& record);
    void WriteSolid(int element, std::string_view card);
    void WriteCable(int element);
    void WriteLink(int element);
    bool WriteSpringSupports();
    void WriteGroundSpring(int element, double stiffness, int node, Direction direction);
    bool WriteRigids();
    bool WriteJoints();
    bool WriteConstraintEquations();

    // --- materials and properties
    bool WriteMaterials();
    bool WriteCableMaterials();
    void FindSectionUses();
    const SectionUse& UseOf(int section) const;
    bool NumberGaps();
    int GapPid(int section, bool isTie) const;
    bool WriteBeamProperties();
    void WriteSectionCards(int section, const ExportedProperty& property);
    void WriteShape(int section, const ExportedProperty& property, bool isBeam);
    bool WriteLibraryShape(int section, const ExportedProperty& property, std::string_view card);
    void WriteBar(int section, const ExportedProperty& property);
    void AddStressPoints(int section);
    void WriteBeam(int section, const ExportedProperty& property);
    void WriteRod(int section, const ExportedProperty& property);
    void WriteGaps(int section);
    void WriteGap(int section, int element, bool isTie);
    bool Write3DProperties();
    bool Write2DProperties();
    void Write2DProperty(int property, const ExportedProperty& entry);

    // --- loads
    bool WriteLoads();
    bool WriteReferenceTemperature();
    bool WriteSettlements();
    bool WriteAppliedDisplacements();
    void WriteImposed(const Data::CNodeLoad& load);
    bool WriteGravity();
    bool WriteNodeLoads();
    void WriteNodeLoad(const Data::CNodeLoad& load, int node);
    bool WriteBeamLoads();
    bool WriteBeamLoad(const Data::CBeamLoad& load);
    void WriteBeamLoadOn(const Data::CBeamLoad& load, int element);
    void WriteBeamLoadCard(const Data::CBeamLoad& load, int element, std::string_view type,
                           double share);
    bool WriteAxialLoads();
    void WriteAxialLoad(const Data::CAxialLoad& load, int element);
    bool WriteBeamTemperatures();
    void WriteBeamTemperature(const Data::CBeamThermalLoad& load, int element);
    void WriteTemprb(int loadCase, int element, double t, double gradient1, double gradient2);
    bool WriteFaceLoads();
    bool WriteSolidFaceLoads();
    void WriteFaceLoad(const Data::CFaceLoad& load, int element);
    std::wstring FaceLoadFault(const Data::CFaceLoad& load, int element,
                               const LoadedFace& face) const;
    void AddFacePressures(const Data::CFaceLoad& load, int element, const LoadedFace& face);
    void AddFaceDirection(const Data::CFaceLoad& load, int element);
    bool WriteInPlaneLoads();
    void WriteInPlaneLoad(const Data::CInPlaneLoad& load, int element);
    bool WriteFaceTemperatures();
    void WriteTempp1(int loadCase, int element, double mean, double gradient);
    bool WriteBodyTemperatures();
    bool WriteCombinations();
    void WriteCombination(int combination, int set);
    /// The elements of a dimension that a load names and that are written; notes those left out.
    std::vector<int> LoadedElements(const Data::CLoadBase& load, int dimension);
    std::vector<int> LoadedBeams(const Data::CLoadBase& load, bool withRods);
    std::vector<int> LoadedNodes(const Data::CLoadBase& load);
    /// Whether a load is in a load case and loads elements of one of the dimensions; notes when
    /// not.
    bool IsLoadWritten(const Data::CLoadBase& load, std::initializer_list<int> dimensions = {});
    bool EndOfData();

    // The order of these members is the one that the host documents; the card under construction is
    // the piece of m_out.
    CMaterialMap m_materials;
    int m_continuations = 0;  ///< markers given so far
    int m_analysisType = kStatic;
    int m_selection = 0;
    int m_numModes = 0;
    int m_elementNumber = 0;  ///< highest number of an element so far
    bool m_writeCbeam = false;
    bool m_largeField = true;
    std::array<bool, 2> m_hostFlags{true, true};  ///< kept for the host
    bool m_exportLoads = true;
    std::wstring m_bucklingDescription;
    CAnalysisCase m_bucklingCase{L"", 1, L""};
    int m_bucklingSet = 0;
    std::vector<int> m_gravityCases;      ///< by load case - 1
    std::vector<int> m_combinationCases;  ///< sets of the exported combinations
    std::wstring m_report;

    TextOut* m_out = nullptr;     ///< valid within Write
    std::size_t m_lineStart = 0;  ///< where the line of the card begins within the card
    int m_fieldWidth = 16;
    CBitSet m_writtenNodes;
    CBitSet m_writtenSections;
    CBitSet m_writtenProps2D;
    CBitSet m_writtenProps3D;
    CBitSet m_writtenElements;
    bool m_isNumberTooHigh = false;  ///< a generated element number does not fit into a field
    int m_firstContinuation = 0;     ///< markers given before the card
    bool m_hasBadNumber = false;     ///< in the card
    const wchar_t* m_subjectKind = L"";
    int m_subjectNumber = 0;
    std::vector<std::uint8_t> m_loadKinds;  ///< by load case
    std::map<int, SectionUse> m_sectionUses;
};

}  // namespace Tevra

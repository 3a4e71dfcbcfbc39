#pragma once

#include <array>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "io/StreamFile.h"
#include "model/AnalysisTask.h"
#include "model/DirCos.h"
#include "model/Element.h"
#include "model/Load.h"
#include "model/NumberedTable.h"
#include "model/Property.h"
#include "model/Section.h"

namespace Tevra {

class CAssemblyElements;
class CVynData;
class DynaOut;
struct CutElement;
struct CutPlane;
struct DynaLayout;
struct DynaMaterialCard;
struct LoadedFace;

/// What a part of a keyword file is made from. The names of the codes are those of the report.
enum class DynaPart : int {
    Undefined = -1,
    Beam = 0,
    Shell = 1,
    Spring = 2,
    Damper = 3,
    Link = 4,
    Rigid = 5,
    Cable = 6,
    Solid = 7
};

/// Writes one explicit dynamics task of the model as an LS-DYNA keyword file, in SI units.
///
///     CDynaAnalysis writer;
///     writer.SetData(&model);
///     writer.SetTask(CDynaAnalysis::FirstTask(model));
///     const bool written = writer.OpenWrite(L"model.key");
///
/// The sections stand in files named for what they write: DynaWriteControl, DynaWriteParts,
/// DynaWriteNodes, DynaWriteExcitation, DynaWriteMaterials, DynaWriteElements,
/// DynaWriteLineElements, DynaWriteMasses, DynaWriteSections, DynaWriteSprings, DynaWriteSets,
/// DynaWriteConstraints, DynaWriteLoads, DynaWriteFaceLoads, DynaWriteCrossSections. The cards are
/// laid out in DynaCards.
///
/// `OpenWrite` is false, and nothing is written, when the model has no explicit dynamics task of
/// the number. What can't be carried over is noted in the error log.
class CDynaAnalysis : public CStreamFile {
public:
    CDynaAnalysis();
    CDynaAnalysis(const CDynaAnalysis&) = delete;
    CDynaAnalysis& operator=(const CDynaAnalysis&) = delete;
    ~CDynaAnalysis() override;

    /// Number of the analysis task to write; 0 at first, which is none.
    void SetTask(int number) { m_taskNumber = number; }
    /// Whether beam sections are written by their shapes, to be integrated; else by their
    /// properties, as at first.
    void SetIntegration(bool integration) { m_integration = integration; }
    /// Stage that properties and materials are taken in; -1, as at first, is no stage.
    void SetStage(int stage) { m_stage = stage; }

    /// The first explicit dynamics task of a model, 0 when it has none.
    static int FirstTask(const CVynData& model);

    /// Whether the last write built the part lookup report.
    bool IndexFile() const { return m_indexFile; }
    /// What part has which property, section and material, in the host's mark-up.
    const std::wstring& Report() const { return m_report; }

    bool Write() override;

private:
    struct PartRecord {
        DynaPart type = DynaPart::Undefined;
        int property = 0;
        int section = 0;
        int material = 0;
    };
    /// Elements that are not written, or not as they are.
    struct ElementCounts {
        int points = 0;
        int spacers = 0;
        int dummies = 0;
        int panels = 0;
        int sprungEnds = 0;
        int lengthless = 0;
        int collinear = 0;
        int undirected = 0;
    };
    using DesignGrade = std::pair<MatType, int>;

    bool Prepare();
    bool WriteSections();
    bool WriteEnd();
    void NoteFaults();
    /// Notes why a record is not written.
    void Skip(const wchar_t* kind, int number, const std::wstring& reason);

    // --- numbers
    int NextMaterial();
    /// The next number of a set, past those of the lists.
    int NextSet();
    /// An axis that exists, else 0, which is global.
    int AxisNumber(int axis) const;
    /// A material curve that exists, else 0.
    int CurveNumber(int curve) const;
    std::vector<int> Listed(const CEntList& list, SelType kind) const;
    bool IsCaseWritten(const Data::CLoadBase& load) const;

    // --- header, control and output
    bool WriteHeader();
    bool WriteControl();
    bool WriteHistories();
    bool WriteDamping();

    // --- parts
    bool WriteParts();
    template <class Record, class MaterialOf>
    void WritePartsOf(const NumberedTable<Record>& table, DynaPart type, const wchar_t* word,
                      MaterialOf materialOf);
    void AddPart(DynaPart type, int property, int material);
    void AddBodies();
    int StageMaterial(PropertyType kind, int property, const Data::MaterialChoice& choice);
    int DesignMaterial(const DesignGrade& grade);
    /// The first part of a type and property, 0 none.
    int FindPart(DynaPart type, int property) const;
    /// The part of an element, 0 none.
    int PartOf(int element) const;
    void BuildReport();

    // --- coordinate systems, nodes, supports and shaking
    bool WriteCoordinateSystems();
    void WriteCoordinateSystem(int number, const Vec3<double>& origin, const Vec3<double>& x,
                               const Vec3<double>& y);
    bool WriteNodes();
    void WriteNode(int number, const Vec3<double>& at);
    /// How far from a place a point shows a direction, m: a metre, far from the origin so much more
    /// that the digits of the file tell the direction.
    static double ArmAt(const Vec3<double>& at);
    bool WriteSupports();
    void WriteSupport(int node, Vbool6 released);
    bool WriteMaterialCurves();
    bool WriteExcitation();
    std::vector<int> ExcitationCurves() const;
    int ExcitationCurve(Direction d) const;
    void WriteExcitationCurve(int curve);

    // --- elements
    void FindKinds();
    template <class WriteOne>
    bool WriteElementsOf(DynaPart type, WriteOne writeOne);
    bool WriteBeams();
    bool WriteBeam(int element);
    bool OrientationNode(int element, int& node);
    bool WriteSprings();
    bool WriteDampers();
    bool WriteCables();
    bool WriteLinks();
    void WriteLink(int element);
    void WriteSpring(long long number, int part, bool isDiscrete, const std::array<int, 3>& nodes);
    bool WriteShells();
    void WriteShell(int element);
    bool WriteSolids();
    void WriteSolid(int element);
    bool WriteNodeSprings();
    bool WriteNodeMasses();
    void WriteNodeMass(int node, const Data::CMassProp& mass);
    bool WriteNodeDampers();
    bool WriteAdditionalMasses();
    void NoteElements();
    void NoteLoadsNotWritten();

    // --- materials and sections
    bool WriteMaterials();
    void WriteMaterialCell(std::string_view cell, const Data::CMatAnal& material, int number);
    bool WriteDesignMaterials();
    void WriteMaterial(const DynaMaterialCard& card, const std::wstring& name,
                       const Data::CMatAnal& material, int number);
    bool WriteBeamSections();
    void WriteBeamSection(int section, int part);
    bool WriteShapedSection(const Data::CSection& section, int part);
    bool WriteShellSections();
    void WriteComposite(int property, int part);
    bool WriteSolidSections();
    bool WriteCableSections();
    bool WriteSpringSections();
    void WriteSimpleSpring(const Data::CSpringProp& spring, const PartRecord& part);
    void WriteDiscreteBeam(const Data::CSpringProp& spring, const PartRecord& part);
    void WriteCurvedSpring(const Data::CSpringProp& spring, const PartRecord& part);
    void WriteDiscreteSection(int section, Direction d);
    bool WriteDamperSections();

    // --- sets and constraints
    bool WriteSets();
    void WriteSet(const DynaLayout& card, int number, const std::vector<int>& members);
    std::vector<int> ElementsOf(const CEntList& list, DynaPart type) const;
    bool WriteTiedInterfaces();
    void WriteTiedInterface(int number);
    bool WriteConstraints();
    bool IsNode(int node) const;
    void WriteJoint(int number, int& line);
    void WriteEquation(int number, int& line);
    void WriteConstraintTerm(int node, Direction d, double factor);
    bool WriteRigids();
    void WriteRigid(int number);
    void AddBody(int part, const std::vector<int>& nodes);
    void WriteMergedBodies();

    // --- loads
    bool WriteLoads();
    bool WriteNodeLoads();
    bool WriteBeamLoads();
    void WriteBeamLoad(int number, bool& isFirst);
    void WriteBeamComponents(int loadCase, int element, const Vec3<double>& mean, bool& isFirst);
    bool WriteShellLoads();
    bool WriteSegmentLoads();
    bool WriteFaceLoads(int dimension);
    void WriteFaceLoad(int number, const std::vector<int>& elements, bool& isFirst);
    void WritePressure(int loadCase, int element, const LoadedFace& face, double pressure,
                       bool& isFirst);
    bool WriteGravity();

    // --- cross sections
    bool WriteCrossSections();
    bool WriteCrossSection(int assembly, const CAssemblyElements& elements, const CutPlane& plane);
    int WritePlaneAxes(const CutPlane& plane);
    std::vector<int> PartsOf(const std::vector<CutElement>& cuts) const;

    // The order of these members is the one that the host documents.
    int m_taskNumber = 0;
    const CDynaTask* m_task = nullptr;  ///< of the write that runs
    std::vector<PartRecord> m_parts;    ///< by part number - 1
    std::wstring m_report;
    bool m_indexFile = false;
    int m_setCounter = 0;       ///< last number of a set that was handed out
    int m_coordinateCount = 0;  ///< user axes written, and then one for each link and cross section
    int m_highestNode = 0;      ///< orientation nodes included
    int m_nextMaterial = 0;     ///< last number of a material that was handed out
    int m_stage = -1;
    int m_globalSystem = 0;             ///< number of the global coordinate system
    NumberedTable<int> m_sectionTable;  ///< parts of the beam sections
    CEntList m_caseList;                ///< load cases whose loads are written
    std::map<DesignGrade, int> m_designMaterials;

    bool m_integration = false;
    DynaOut* m_out = nullptr;                     ///< valid within Write
    std::array<NumberedTable<int>, 8> m_partsOf;  ///< parts by property, of the other types
    std::array<bool, 8> m_hasKind{};              ///< kinds of elements that the model has
    bool m_hasNodeProperties = false;
    ElementCounts m_counts;
    long long m_elementNumber = 0;   ///< last number of an element that was handed out
    NumberedTable<int> m_bodyOf;     ///< the first rigid body of a node
    std::map<int, int> m_bodyLeads;  ///< rigid bodies that share nodes, each by a lower one
    int m_crossSections = 0;
};

}  // namespace Tevra

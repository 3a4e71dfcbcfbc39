#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

#include "model/Axis.h"
#include "model/Case.h"
#include "model/Constraint.h"
#include "model/Curve.h"
#include "model/Load.h"
#include "model/Member.h"
#include "model/Node.h"
#include "model/NumberedTable.h"
#include "model/Property.h"
#include "model/Section.h"
#include "model/Soil.h"
#include "model/Stage.h"
#include "model/Titles.h"
#include "model/Unit.h"
#include "model/View.h"

// Every kind of numbered record, declared once: KIND(name, record class), or AGAIN(...) where a
// kind above has the same class. A new kind is one line.
// clang-format off
#define VYN_RECORD_KINDS_OF(KIND, AGAIN)                        \
    KIND(Node, Data::CNode)                                     \
    KIND(Elem, Data::CElement)                                  \
    KIND(Member, Data::CMember)                                 \
    KIND(Assembly, Data::CAssembly)                             \
    KIND(Axis, Data::CAxis)                                     \
    KIND(GridPlane, Data::CGridPlane)                           \
    KIND(Section, Data::CSection)                               \
    KIND(Prop2D, Data::CProp2D)                                 \
    KIND(Prop3D, Data::CProp3D)                                 \
    KIND(SpringProp, Data::CSpringProp)                         \
    KIND(DamperProp, Data::CDamperProp)                         \
    KIND(MassProp, Data::CMassProp)                             \
    KIND(CableProp, Data::CCableProp)                           \
    KIND(LinkProp, Data::CLinkProp)                             \
    KIND(MatAnal, Data::CMatAnal)                               \
    KIND(MatConcrete, Data::CMatDesign)                         \
    AGAIN(MatSteel, Data::CMatDesign)                           \
    AGAIN(MatFrp, Data::CMatDesign)                             \
    AGAIN(MatAluminium, Data::CMatDesign)                       \
    AGAIN(MatGlass, Data::CMatDesign)                           \
    AGAIN(MatTimber, Data::CMatDesign)                          \
    AGAIN(MatFabric, Data::CMatDesign)                          \
    AGAIN(MatRebar, Data::CMatDesign)                           \
    KIND(MatCurve, Data::CMatCurve)                             \
    KIND(LoadCurve, Data::CLoadCurve)                           \
    KIND(List, Data::CList)                                     \
    KIND(LoadCaseTitle, Data::NamedEntity)                      \
    KIND(AnalysisTask, CAnalysisTask)                           \
    KIND(AnalysisCase, CAnalysisCase)                           \
    KIND(CombinationCase, CCombinationCase)                     \
    KIND(Stage, Data::CStage)                                   \
    KIND(NodeLoad, Data::CNodeLoad)                             \
    KIND(Settlement, Data::CSettlement)                         \
    KIND(AppliedDisplacement, Data::CAppliedDisplacement)       \
    KIND(BeamLoad, Data::CBeamLoad)                             \
    KIND(BeamDist, Data::CBeamDist)                             \
    KIND(AxialLoad, Data::CAxialLoad)                           \
    KIND(BeamThermalLoad, Data::CBeamThermalLoad)               \
    KIND(FaceLoad, Data::CFaceLoad)                             \
    KIND(EdgeLoad, Data::CEdgeLoad)                             \
    KIND(InPlaneLoad, Data::CInPlaneLoad)                       \
    KIND(FaceThermalLoad, Data::CFaceThermalLoad)               \
    KIND(GravityLoad, Data::CGravityLoad)                       \
    KIND(Rigid, Data::CRigid)                                   \
    KIND(Joint, Data::CJoint)                                   \
    KIND(ConstraintEqn, Data::CConstraintEqn)                   \
    KIND(TiedInterface, Data::CTiedInterface)                   \
    KIND(SoilProfile, Data::CSoilProfile)                       \
    KIND(SoilZone, Data::CSoilZone)                             \
    KIND(SoilCurve, Data::CSoilCurve)                           \
    KIND(PileSoilProperty, Data::CPileSoilProperty)             \
    AGAIN(PileSoilCurve, Data::CPileSoilCurve)                  \
    KIND(SoilRectLoad, Data::CSoilRectLoad)                     \
    KIND(View, Data::COpView)
// clang-format on
#define VYN_RECORD_KINDS(KIND) VYN_RECORD_KINDS_OF(KIND, KIND)

namespace Tevra {

class QuorlData;

// ModelData.cpp makes what these tables need.
#define VYN_DECLARE_TABLE_CLASS(Kind, Record) extern template class NumberedTable<Record>;
VYN_RECORD_KINDS(VYN_DECLARE_TABLE_CLASS)
#undef VYN_DECLARE_TABLE_CLASS

/// Names of the design codes of the model; empty when not set.
struct DesignOptions {
    std::wstring steelCode;
    std::wstring concreteCode;
    bool operator==(const DesignOptions&) const = default;
};

/// How the mass of the model is got: `option` 0 from elements and nodes, 1 from nodes alone, 2 from
/// elements alone.
struct MassOptions {
    int option = 0;
    bool additionalMass = false;
    CCaseDesc massCase;  ///< loads that are turned into mass
    int direction = 3;   ///< 1 X, 2 Y, 3 Z
    double scale = 1.0;
    bool operator==(const MassOptions&) const = default;
};

/// What is stored of a model: titles, history, settings and every numbered table. Setters check
/// nothing but the number itself (1 on), so that records may be written in any order; whoever
/// reads a reference asks whether its record exists.
///
/// For each kind of `VYN_RECORD_KINDS` there are `Highest<Kind>()` (0 when there is none),
/// `<Kind>Exist(number)`, `<Kind>(number)` (a default record when it does not exist),
/// `Set<Kind>(number, record)` (false below 1), `Delete<Kind>(number)` and `Blank<Kind>(number)`
/// (both remove the record; deleting the highest lowers the highest), `Num<Kind>()` and
/// `<Kind>Table()`, whose `Numbers()` runs over the numbers in use.
class CModelData {
public:
#define VYN_DECLARE_OPERATIONS(Kind, Record)           \
    int Highest##Kind() const {                        \
        return m_##Kind.Highest();                     \
    }                                                  \
    bool Kind##Exist(int number) const {               \
        return m_##Kind.Exist(number);                 \
    }                                                  \
    const Record& Kind(int number) const {             \
        return m_##Kind.Get(number);                   \
    }                                                  \
    bool Set##Kind(int number, Record record);         \
    bool Delete##Kind(int number);                     \
    bool Blank##Kind(int number);                      \
    int Num##Kind() const {                            \
        return m_##Kind.Count();                       \
    }                                                  \
    const NumberedTable<Record>& Kind##Table() const { \
        return m_##Kind;                               \
    }
    VYN_RECORD_KINDS(VYN_DECLARE_OPERATIONS)
#undef VYN_DECLARE_OPERATIONS

    const CTitles& Title() const {
        return m_titles;
    }
    void SetTitle(CTitles titles) {
        m_titles = std::move(titles);
    }
    const CProgTitles& ProgTitle() const {
        return m_progTitles;
    }
    void SetProgTitle(CProgTitles titles) {
        m_progTitles = std::move(titles);
    }
    const CLocation& Location() const {
        return m_location;
    }
    void SetLocation(CLocation location) {
        m_location = std::move(location);
    }
    const CHistory& History() const {
        return m_history;
    }
    void SetHistory(CHistory history) {
        m_history = std::move(history);
    }
    const std::wstring& SteelCode() const {
        return m_design.steelCode;
    }
    const std::wstring& ConcreteCode() const {
        return m_design.concreteCode;
    }
    const DesignOptions& Design() const {
        return m_design;
    }
    void SetDesign(DesignOptions design) {
        m_design = std::move(design);
    }
    /// Up to four characters.
    const std::wstring& CurrencyLabel() const {
        return m_currency;
    }
    void SetCurrencyLabel(std::wstring label) {
        m_currency = std::move(label);
    }
    const CUnit& Units() const {
        return m_units;
    }
    CUnit& EditUnits() {
        return m_units;
    }
    void SetUnits(CUnit units) {
        m_units = std::move(units);
    }

    /// Kind of structure as the host codes it: 0 space, 3 to 5 the plane kinds of legacy files. It
    /// describes; what holds the structure is the global restraint.
    int StructType() const {
        return m_structType;
    }
    void SetStructType(int type) {
        m_structType = type;
    }
    /// Directions in which every node is restrained.
    Vbool6 GlobalRestraint() const {
        return m_globalRestraint;
    }
    void SetGlobalRestraint(Vbool6 restraint);

    int MassOption() const {
        return m_mass.option;
    }
    bool AdditionalMass() const {
        return m_mass.additionalMass;
    }
    const CCaseDesc& MassCase() const {
        return m_mass.massCase;
    }
    int MassDirection() const {
        return m_mass.direction;
    }
    double MassScale() const {
        return m_mass.scale;
    }
    const MassOptions& MassSettings() const {
        return m_mass;
    }
    void SetMassOption(int option) {
        m_mass.option = option;
    }
    void SetAdditionalMass(bool on) {
        m_mass.additionalMass = on;
    }
    void SetMassCase(CCaseDesc description) {
        m_mass.massCase = std::move(description);
    }
    void SetMassDirection(int direction) {
        m_mass.direction = direction;
    }
    void SetMassScale(double scale) {
        m_mass.scale = scale;
    }
    void SetMassSettings(MassOptions options) {
        m_mass = std::move(options);
    }

    const Data::RaftSettings& Raft() const {
        return m_raft;
    }
    void SetRaft(const Data::RaftSettings& settings) {
        m_raft = settings;
    }
    double RaftRigidLevel() const {
        return m_raft.rigidLevel;
    }
    double RaftMaxERatio() const {
        return m_raft.maxERatio;
    }
    double RaftGlobalPoissonRatio() const {
        return m_raft.globalPoissonRatio;
    }
    int RaftMindLinOption() const {
        return m_raft.mindlinOption;
    }
    void SetRaftRigidLevel(double level) {
        m_raft.rigidLevel = level;
    }
    void SetRaftMaxERatio(double ratio) {
        m_raft.maxERatio = ratio;
    }
    void SetRaftGlobalPoissonRatio(double ratio) {
        m_raft.globalPoissonRatio = ratio;
    }
    void SetRaftMindLinOption(int option) {
        m_raft.mindlinOption = option;
    }

    /// Whether there is any soil record.
    bool HasSoilData() const;
    /// Replaces the raft settings and all soil records but the rectangular loads by those of the
    /// pile-settlement program.
    void ProcessQuorlData(const QuorlData& data);
    /// Deletes the rectangular loads on the soil, and sets those of the pile-settlement program.
    void ReplaceSoilRectLoads(const QuorlData& data);
    /// Removes all soil records; the raft settings stay.
    void DeleteSoilData();

    /// Number of user axes, of sections.
    int NumUserAxis() const {
        return NumAxis();
    }

    /// The table of design grades of a family; null for `Generic` and unknown families.
    const NumberedTable<Data::CMatDesign>* DesignTable(MatType family) const;
    /// What a property is made of: its analysis material, without one that of its design grade;
    /// null when that does not exist.
    const Data::CMatAnal* FindMaterial(const Data::MaterialChoice& choice) const;

    /// Changes with every record written and is never the same in two models of a process that
    /// differ: derived data keep it to tell whether they still hold.
    std::uint64_t Revision() const {
        return m_revision;
    }

    /// Equal when titles, settings and all records are equal; the revision does not count.
    bool operator==(const CModelData& o) const;

protected:
    /// Begins a new revision.
    void Touch();

private:
    template <class Record>
    bool Store(NumberedTable<Record>& table, int number, Record record);
    template <class Record>
    bool Remove(NumberedTable<Record>& table, int number);

    // Nodes know the global restraint and whether they orient something; these keep that true in
    // whatever order records are written.
    template <class Record>
    static void BeforeStore(int /*number*/, Record& /*record*/) {}
    void BeforeStore(int number, Data::CNode& node);
    void BeforeStore(int number, Data::CElement& element);
    void BeforeStore(int number, Data::CMember& member);
    template <class Record>
    static void BeforeRemove(const Record& /*record*/) {}
    void BeforeRemove(const Data::CElement& element);
    void BeforeRemove(const Data::CMember& member);
    struct OrientationUse {
        int elements = 0;
        int members = 0;
    };
    void CountOrientation(int node, int OrientationUse::*kind, int change);
    static void ApplyOrientation(Data::CNode& node, const OrientationUse& use);

#define VYN_DECLARE_TABLE(Kind, Record) NumberedTable<Record> m_##Kind;
    VYN_RECORD_KINDS(VYN_DECLARE_TABLE)
#undef VYN_DECLARE_TABLE

    CTitles m_titles;
    CProgTitles m_progTitles;
    CLocation m_location;
    CHistory m_history;
    DesignOptions m_design;
    std::wstring m_currency;
    CUnit m_units;
    int m_structType = 0;
    Vbool6 m_globalRestraint;
    MassOptions m_mass;
    Data::RaftSettings m_raft;
    std::unordered_map<int, OrientationUse> m_orientation;  ///< by node number
    std::uint64_t m_revision = 0;  ///< 0 only while nothing was ever stored
};

}  // namespace Tevra

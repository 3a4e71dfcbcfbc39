#pragma once

#include <memory>
#include <span>
#include <utility>
#include <vector>

#include "model/DirCos.h"
#include "model/ModelData.h"
#include "model/Results.h"
#include "platform/ui/Sync.h"

namespace Tevra {

class CaseCombiner;
class SpanLoadIndex;
struct ActiveSet;
struct CombinationSums;
struct DerivedData;

/// Tells whether the model may be changed: a model with results is locked by them.
class CDataLock {
public:
    void LockByResults() { m_byResults = true; }
    void Unlock() { m_byResults = false; }
    bool IsLockedByResults() const { return m_byResults; }
    bool operator==(const CDataLock&) const = default;

private:
    bool m_byResults = false;
};

/// The host's analysis model: what is stored (`CModelData`), what follows from it, and results.
/// Records have numbers from 1, with gaps; a number without a record gives an empty one.
///
///     CVynData model;
///     model.SetNode(1, Data::CNode({0.0, 0.0, 0.0}));
///     model.SetNode(2, Data::CNode({4.0, 0.0, 3.0}));
///     model.SetElem(1, Data::CElement(ElementType::Beam, {1, 2}, 1));
///     for (const int number : model.ElemTable().Numbers()) {
///         total += model.ElemLen(number);  // 5 m
///     }
///
/// Copies and assignments copy the contents; every model keeps the two lock objects that it was
/// made with, so that assigning an empty model while its locks are held is safe.
class CVynData : public CModelData {
public:
    CVynData();
    CVynData(const CVynData& o);
    CVynData(CVynData&& o);  // NOLINT(performance-noexcept-move-constructor): makes its own locks
    ~CVynData();
    CVynData& operator=(const CVynData& o);
    CVynData& operator=(CVynData&& o) noexcept;

    /// Number of entities of a kind. With `activeOnly`, elements and members without dummies, and
    /// cases with results.
    int NumEnt(SelType kind, bool activeOnly) const;
    int NumElemType(ElementType type) const;
    /// Highest number of the kind that a list is bound to.
    int HighestEnt(SelType kind) const;
    bool EntExist(const SEntRef& entity) const;

    // --- restraints and attachments
    /// Directions restrained in the whole model.
    Vbool6 TotalGlobalRestraint() const { return GlobalRestraint(); }
    /// All that restrains a node: its own, the model's, and the stage's (-1 no stage).
    void NodeTotalRestraint(Vbool6& out, int node, int stage) const;
    int NodeSpringProperty(int node, int stage = -1) const;
    int NodeMassProperty(int node, int stage = -1) const;
    int NodeDamperProperty(int node, int stage = -1) const;

    // --- stages: property and material numbers as a stage has them; -1 is no stage
    int StageProperty(PropertyType kind, int property, int stage) const;
    int ElemStageProperty(int element, int stage) const;
    /// Analysis material of a property, 0 when it has only a design grade.
    int StageMatAnal(PropertyType kind, int property, int stage) const;
    int ElemStageMatAnal(int element, int stage) const;

    // --- what is active in a selection: a saved list by its number; 0 is the whole model, and so
    // is a list that does not exist, or one of other things. A list of elements or members
    // activates their nodes, a list of nodes the elements that lie in it altogether.
    bool NodeIsActive(int node, int selection, SelType kind) const;
    bool NodeIsActive(int node, int selection, int kind) const {
        return NodeIsActive(node, selection, static_cast<SelType>(kind));
    }
    bool ElemIsActive(int element, int selection) const;
    bool RigidIsActive(int rigid, int selection) const;
    bool JointIsActive(int joint, int selection) const;
    bool ConstraintEqnIsActive(int equation, int selection) const;

    // --- geometry
    /// Local directions of an axis at a point; 0 and axes that do not exist are global.
    Util::CDirCos AxisDC(int axis, const Vec3<double>& point) const;
    Util::CDirCos NodeDC(int node) const;
    /// Local axes of an element. 1D: x from end 1 to end 2; z in the vertical plane through x,
    /// pointing up (vertical elements: y along global Y); an orientation node lies on the +y side
    /// of the x-y plane; the orientation angle then turns y towards z. 2D: z by the right-hand
    /// rule round the topology, x along the projection of the property's axis. 3D elements,
    /// springs and dampers: the property's axis. Elements without extent are global.
    Util::CDirCos ElemDC(int element) const;
    /// Length between the ends of a 1D element, axial offsets taken off, m.
    double ElemLen(int element) const;
    /// Area of a 2D element by its corners, m2.
    double ElemArea(int element) const;
    /// Thickness of a 2D element, m.
    double ElementThickness(int element) const;
    /// True when the horizontal extent is less than 0.001 of the length.
    bool ElemIsVertical(int element) const;
    /// True when the element or its section is offset from the nodes.
    bool IsTotalOffset(int element) const;
    /// Offset of end 1 or 2 from its node, element and section together, in element or global
    /// axes, m.
    Vec3<double> TotalLocalOffset(int element, int end) const;
    Vec3<double> TotalGlobalOffset(int element, int end) const;
    /// Where topology node `k` of an element is, m; the origin when it does not exist.
    const Vec3<double>& TopoPosition(const Data::CElement& element, int k) const;

    // --- sections
    /// Properties of a section: part 0 the whole, all components about their common centroid; part
    /// k component k about its own. Sections are prismatic, so the position (0 to 1) makes no
    /// difference. With `modified` the section's modifiers apply. Zero where there is no such part.
    SectionProperties SectionProp(int section, int part, double position, bool modified) const;

    // --- load cases
    /// Highest load case with a title or a load.
    int HighestLoadCase() const;
    bool LoadCaseExist(int loadCase) const;
    /// The load cases with a title or a load.
    const NumberedTable<bool>& LoadCases() const;

    /// What loads the spans of 1D elements; holds until the model changes.
    const SpanLoadIndex& SpanLoadsByElement() const;
    /// The elements that a member was meshed into, as pairs of the member and an element.
    std::span<const std::pair<int, int>> ElementsOfMember(int member) const;

    // --- results
    MemRes& EditResults() {
        Touch();
        return m_results;
    }
    const MemRes& Results() const { return m_results; }
    /// Number of results held in memory.
    int NumResult() const { return m_results.NumResult(); }
    bool AnyResults() const { return m_results.Any(); }
    bool AnalysisCaseHasResults(int analysisCase) const;
    /// True when every analysis case that takes part in the combination has results: in any of its
    /// permutations (null reference), or in the permutation that the reference names.
    bool CombinationCaseHasResults(int combination, const SCaseRef& ref = {}) const;
    /// True when the case has results of the kind that a host data code names.
    bool ResSetExist(const ResSetRef& set) const;
    /// True when some 2D element is a finite element, not a load panel.
    bool Elem2DFEInModel() const;

    // All of these give NaN where there is no result. Permutations of combinations are factored
    // sums, envelopes are taken over the permutations component by component.
    Vec3<double> TotalForce(const SCaseRef& ref) const;
    Vec3<double> TotalMoment(const SCaseRef& ref) const;
    Vec3<double> TotalReactForce(const SCaseRef& ref) const;
    Vec3<double> TotalReactMoment(const SCaseRef& ref) const;
    /// Number of the mode that an analysis case stands for, 0 none.
    int Mode(const SCaseRef& ref) const;
    double Frequency(const SCaseRef& ref) const;
    double LoadFactor(const SCaseRef& ref) const;
    double ModalMass(const SCaseRef& ref) const;
    double ModalStiff(const SCaseRef& ref) const;
    double ModalGeoStiff(const SCaseRef& ref) const;
    Vec3<double> EffMass(const SCaseRef& ref) const;
    Vec3<double> RotEffMass(const SCaseRef& ref) const;
    double Mass(const SCaseRef& ref) const;
    Vec3<double> CentreOfMass(const SCaseRef& ref) const;
    void SetMass(const SCaseRef& ref, double mass);
    void SetCentreOfMass(const SCaseRef& ref, const Vec3<double>& centre);

    Vec3<double> Disp(int node, const SCaseRef& ref) const;
    Vec3<double> Rotn(int node, const SCaseRef& ref) const;
    Vec3<double> Vel(int node, const SCaseRef& ref) const;
    Vec3<double> RotVel(int node, const SCaseRef& ref) const;
    Vec3<double> Acc(int node, const SCaseRef& ref) const;
    Vec3<double> RotAcc(int node, const SCaseRef& ref) const;
    Vec3<double> ReactForce(int node, const SCaseRef& ref) const;
    Vec3<double> ReactMoment(int node, const SCaseRef& ref) const;
    Vec3<double> ConsForce(int node, const SCaseRef& ref) const;
    Vec3<double> ConsMoment(int node, const SCaseRef& ref) const;

    /// Displacement (global axes) of a position of an element: ends 0 and 1 of a 1D element,
    /// offsets included; the centre (0: the mean of the nodes) and the topology nodes (1 on) of
    /// others.
    Vec3<double> ElemDisp(int element, const SCaseRef& ref, int position) const;
    /// Rotation of an end of a 1D element.
    Vec3<double> ElemRotn(int element, const SCaseRef& ref, int position) const;
    /// Force (N) and moment (Nm) at an end of a 1D element, element axes, tension positive.
    Vec3<double> Force(int element, const SCaseRef& ref, int position) const;
    Vec3<double> Moment(int element, const SCaseRef& ref, int position) const;
    /// Force and moment of a spring element, or of a spring at a node on the node.
    Vec3<double> ForceSpring(const SEntRef& entity, const SCaseRef& ref, int position) const;
    Vec3<double> MomentSpring(const SEntRef& entity, const SCaseRef& ref, int position) const;
    /// Forces per length of a 2D element; position 0 is the centre, then the topology nodes.
    Tens2<double> Force2D(int element, const SCaseRef& ref, int position) const;
    Tens2<double> Moment2D(int element, const SCaseRef& ref, int position) const;
    Vec2<double> Shear2D(int element, const SCaseRef& ref, int position) const;
    /// Stress, Pa; layer 0 bottom, 1 middle, 2 top, none other.
    TensSym3<double> Stress2D(int element, const SCaseRef& ref, int position, int layer) const;
    /// 3 for elements that bend, else 1.
    int Stress2DNumLayer(int element) const;
    TensSym3<double> Stress3D(int element, const SCaseRef& ref, int position) const;
    /// Number of result positions of a 2D or 3D element: the centre and the topology nodes.
    int NumResultPosition(int element) const;
    /// Natural coordinates r, s, t of a result position.
    Vec3<double> ResultPosition(int element, int position) const;

    // --- locks
    CDataLock& DataLock() { return m_dataLock; }
    const CDataLock& DataLock() const { return m_dataLock; }
    bool IsLockedByResults() const { return m_dataLock.IsLockedByResults(); }
    /// Held by whoever changes the model, or its results; writers probe them.
    SyncObject& ShareModelBusy() const { return *m_modelBusy; }
    SyncObject& ShareResultsBusy() const { return *m_resultsBusy; }

    bool operator==(const CVynData& o) const {
        return CModelData::operator==(o) && m_results == o.m_results && m_dataLock == o.m_dataLock;
    }

private:
    friend class CaseCombiner;

    DerivedData& Derived() const;
    const ActiveSet* Active(int selection) const;
    const CombinationSums& SumsOf(int combination) const;
    const GlobalResults& OwnGlobal(const SCaseRef& ref) const;
    Vec3<double> GlobalVector(const SCaseRef& ref, Vec3<double> GlobalResults::*member) const;
    template <std::size_t N>
    std::array<double, N> Row(ResultKind kind, int entity, int row, std::size_t first,
                              const SCaseRef& ref) const;
    Vec3<double> RowVector(ResultKind kind, int entity, int row, std::size_t first,
                           const SCaseRef& ref) const;
    Vec3<double> EndDisp(int element, int analysisCase, int end) const;
    Vec3<double> OwnElemDisp(int element, int analysisCase, int position) const;
    Vec3<double> OwnElemRotn(int element, int analysisCase, int position) const;
    Util::CDirCos LineDC(const Data::CElement& element) const;
    Util::CDirCos FaceDC(const Data::CElement& element) const;

    MemRes m_results;
    CDataLock m_dataLock;
    mutable std::unique_ptr<DerivedData> m_derived;
    std::unique_ptr<SyncObject> m_modelBusy;
    std::unique_ptr<SyncObject> m_resultsBusy;
};

}  // namespace Tevra

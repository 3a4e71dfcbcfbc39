#pragma once

#include <array>

#include "model/CaseDesc.h"
#include "model/EntList.h"
#include "model/Entity.h"
#include "model/Types.h"
#include "model/ValuePtr.h"

namespace Tevra {

/// What an analysis task solves. Codes 1 to 5 are those of the host's legacy files.
enum class SolutionType : int {
    Static = 1,
    StaticPDelta = 2,
    Modal = 3,
    ModalPDelta = 4,
    Buckling = 5,
    Ritz = 6,
    NonlinearStatic = 7,
    ResponseSpectrum = 8,
    Harmonic = 9,
    LinearTimeHistory = 10,
    ExplicitDynamics = 11,
    Raft = 12
};

/// Which base nodes an explicit dynamics task shakes, and how. Other codes: not at all.
enum class ExcitationOption : int { None = 0, OneCurve = 3, CurvePerDirection = 4 };

/// How mass is got from loads: along a direction (Z as a rule) at a scale.
struct MassSpecification {
    bool fromLoads = false;
    int loadCase = 0;
    Direction direction = Direction::Z;
    double scale = 1.0;
    bool operator==(const MassSpecification&) const = default;
};

/// Rayleigh damping: alpha times mass plus beta times stiffness.
struct RayleighDamping {
    bool isRayleigh = false;
    double alpha = 0.0;  ///< 1/s
    double beta = 0.0;   ///< s
    bool operator==(const RayleighDamping&) const = default;
};

/// Settings of an explicit dynamics task.
class CDynaTask {
public:
    /// List of load cases whose loads act, as text; empty for none.
    const std::wstring& LoadCurveDescription() const { return m_loadCurves; }
    /// s.
    double EndTime() const { return m_endTime; }
    int EndCycle() const { return m_endCycle; }
    /// Time step to which mass scaling raises small elements, s; 0 none.
    double MassScalingTimeStep() const { return m_massScalingTimeStep; }
    /// Interval of the output, s: of plot states, or of time histories.
    double OutputInterval(bool plotStates) const {
        return plotStates ? m_plotInterval : m_historyInterval;
    }
    /// Nodes and elements with time histories, assemblies with cut forces, nodes that are shaken.
    const CEntList& NodeSelection() const { return m_nodes; }
    const CEntList& ElementSelection() const { return m_elements; }
    const CEntList& AssemblyList() const { return m_assemblies; }
    const CEntList& BaseList() const { return m_base; }
    const RayleighDamping& Damping() const { return m_damping; }
    ExcitationOption Excitation() const { return m_excitation; }
    /// Load curve of excitation by one curve, 0 none.
    int LoadCurve() const { return m_loadCurve; }
    /// Load curves of the translations, 0 for a direction that is not excited.
    int ExcitationNumber(Direction d) const {
        return IsTrans(d) ? m_excitationNumbers[static_cast<std::size_t>(d)] : 0;
    }
    const std::array<int, 3>& ExcitationNumbers() const { return m_excitationNumbers; }
    /// 1 integrated through the section, else by stress resultants.
    int BeamFormulation() const { return m_beamFormulation; }
    const MassSpecification& Mass() const { return m_mass; }

    void SetLoadCurveDescription(std::wstring text) { m_loadCurves = std::move(text); }
    void SetEndTime(double time) { m_endTime = time; }
    void SetEndCycle(int cycle) { m_endCycle = cycle; }
    void SetMassScalingTimeStep(double step) { m_massScalingTimeStep = step; }
    void SetPlotInterval(double interval) { m_plotInterval = interval; }
    void SetHistoryInterval(double interval) { m_historyInterval = interval; }
    void SetNodeSelection(const CEntList& list) { m_nodes = list; }
    void SetElementSelection(const CEntList& list) { m_elements = list; }
    void SetAssemblyList(const CEntList& list) { m_assemblies = list; }
    void SetBaseList(const CEntList& list) { m_base = list; }
    void SetDamping(const RayleighDamping& damping) { m_damping = damping; }
    void SetExcitation(ExcitationOption option) { m_excitation = option; }
    void SetLoadCurve(int curve) { m_loadCurve = curve; }
    void SetExcitationNumbers(const std::array<int, 3>& curves) { m_excitationNumbers = curves; }
    void SetBeamFormulation(int formulation) { m_beamFormulation = formulation; }
    void SetMass(const MassSpecification& mass) { m_mass = mass; }

    bool operator==(const CDynaTask&) const = default;

private:
    std::wstring m_loadCurves;
    double m_endTime = 1.0;
    int m_endCycle = 0;
    double m_massScalingTimeStep = 0.0;
    double m_plotInterval = 0.01;
    double m_historyInterval = 0.001;
    CEntList m_nodes{L"", SelType::Node};
    CEntList m_elements{L"", SelType::Element};
    CEntList m_assemblies{L"", SelType::Assembly};
    CEntList m_base{L"", SelType::Node};
    RayleighDamping m_damping;
    ExcitationOption m_excitation = ExcitationOption::None;
    int m_loadCurve = 0;
    std::array<int, 3> m_excitationNumbers{};
    int m_beamFormulation = 2;
    MassSpecification m_mass;
};

/// An analysis task: what was, or is to be, solved for the cases that belong to it.
class CAnalysisTask : public Data::NamedEntity {
public:
    SolutionType Solution() const { return m_solution; }
    bool IsModal() const {
        return m_solution == SolutionType::Modal || m_solution == SolutionType::ModalPDelta;
    }
    bool IsRitz() const { return m_solution == SolutionType::Ritz; }
    bool IsBuckling() const { return m_solution == SolutionType::Buckling; }
    bool IsRaft() const { return m_solution == SolutionType::Raft; }
    bool IsExplicitDynamics() const { return m_solution == SolutionType::ExplicitDynamics; }
    /// True for static kinds, P-delta and nonlinear ones included.
    bool IsStatic() const;
    /// True for kinds whose results have velocities and accelerations.
    bool IsDynamic() const;
    /// True when results of the task exist in the host.
    bool IsAnalysed() const { return m_analysed; }
    /// Construction stage that the task analyses, -1 the whole model.
    int Stage() const { return m_stage; }
    /// The settings of an explicit dynamics task; null for other kinds.
    const CDynaTask* Dyna() const { return IsExplicitDynamics() ? &m_dyna.Get() : nullptr; }

    void SetSolution(SolutionType solution) { m_solution = solution; }
    void SetAnalysed(bool analysed) { m_analysed = analysed; }
    void SetStage(int stage) { m_stage = stage; }
    /// Makes the task one of explicit dynamics.
    void SetDyna(const CDynaTask& dyna) {
        m_solution = SolutionType::ExplicitDynamics;
        m_dyna.Edit() = dyna;
    }
    bool operator==(const CAnalysisTask&) const = default;

private:
    SolutionType m_solution = SolutionType::Static;
    bool m_analysed = false;
    int m_stage = -1;
    ValuePtr<CDynaTask> m_dyna;
};

}  // namespace Tevra

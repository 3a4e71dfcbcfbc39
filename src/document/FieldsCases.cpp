#include "document/RecordFields.h"

namespace Tevra::Document {

using Data::CStage;
using Data::StageReplacement;
using Data::StageRestraint;

namespace {

CCaseDesc DescOf(const CAnalysisCase& record) {
    return record.Desc();
}
void SetDescOf(CAnalysisCase& record, const CCaseDesc& desc) {
    record.SetDescription(desc.Description());
}
CCombCaseDesc CombDescOf(const CCombinationCase& record) {
    return record.Desc();
}
void SetCombDescOf(CCombinationCase& record, const CCombCaseDesc& desc) {
    record.SetDescription(desc.Description());
}

double PlotInterval(const CDynaTask& task) {
    return task.OutputInterval(true);
}
double HistoryInterval(const CDynaTask& task) {
    return task.OutputInterval(false);
}

CDynaTask DynaOf(const CAnalysisTask& task) {
    return task.Dyna() != nullptr ? *task.Dyna() : CDynaTask();
}
void SetDynaOf(CAnalysisTask& task, const CDynaTask& dyna) {
    if (!task.IsExplicitDynamics()) {
        throw FieldError("only a task whose solution is " +
                         Codec<SolutionType>::Write(SolutionType::ExplicitDynamics).dump() +
                         " has these settings");
    }
    task.SetDyna(dyna);
}

}  // namespace

VYN_FIELDS(Data::NamedEntity, NamedFields<Data::NamedEntity>())

VYN_FIELDS(MassSpecification,
           std::array{
               Key<MassSpecification, &MassSpecification::fromLoads>(
                   "from_loads", "Mass is calculated from loads"),
               Key<MassSpecification, &MassSpecification::loadCase>("load_case", "Load case"),
               Key<MassSpecification, &MassSpecification::direction>("direction",
                                                                     "Direction of the loads"),
               Key<MassSpecification, &MassSpecification::scale>("scale", "Factor on the mass")})

VYN_FIELDS(RayleighDamping,
           std::array{Key<RayleighDamping, &RayleighDamping::isRayleigh>("rayleigh",
                                                                         "Rayleigh damping acts"),
                      Key<RayleighDamping, &RayleighDamping::alpha>("alpha", "Of mass, 1/s"),
                      Key<RayleighDamping, &RayleighDamping::beta>("beta", "Of stiffness, s")})

VYN_FIELDS(
    CDynaTask,
    std::array{
        Key<CDynaTask, &CDynaTask::LoadCurveDescription, &CDynaTask::SetLoadCurveDescription>(
            "load_cases", "List of load cases whose loads act"),
        Key<CDynaTask, &CDynaTask::EndTime, &CDynaTask::SetEndTime>("end_time", "s"),
        Key<CDynaTask, &CDynaTask::EndCycle, &CDynaTask::SetEndCycle>("end_cycle", "0 none"),
        Key<CDynaTask, &CDynaTask::MassScalingTimeStep, &CDynaTask::SetMassScalingTimeStep>(
            "mass_scaling_time_step", "s, 0 none"),
        Key<CDynaTask, &PlotInterval, &CDynaTask::SetPlotInterval>("plot_interval", "s"),
        Key<CDynaTask, &HistoryInterval, &CDynaTask::SetHistoryInterval>("history_interval", "s"),
        Key<CDynaTask, &CDynaTask::NodeSelection, &CDynaTask::SetNodeSelection>(
            "history_nodes", "Nodes with time histories"),
        Key<CDynaTask, &CDynaTask::ElementSelection, &CDynaTask::SetElementSelection>(
            "history_elements", "Elements with time histories"),
        Key<CDynaTask, &CDynaTask::AssemblyList, &CDynaTask::SetAssemblyList>(
            "assemblies", "Assemblies with cut forces"),
        Key<CDynaTask, &CDynaTask::BaseList, &CDynaTask::SetBaseList>("base_nodes",
                                                                      "Nodes that are shaken"),
        Key<CDynaTask, &CDynaTask::Damping, &CDynaTask::SetDamping>("damping", "Damping"),
        Key<CDynaTask, &CDynaTask::Excitation, &CDynaTask::SetExcitation>("excitation",
                                                                          "Base excitation"),
        Key<CDynaTask, &CDynaTask::LoadCurve, &CDynaTask::SetLoadCurve>(
            "load_curve", "Curve of excitation by one curve"),
        Key<CDynaTask, &CDynaTask::ExcitationNumbers, &CDynaTask::SetExcitationNumbers>(
            "excitation_curves", "Curves along X, Y, Z, 0 none"),
        Key<CDynaTask, &CDynaTask::BeamFormulation, &CDynaTask::SetBeamFormulation>(
            "beam_formulation", "1 integrated, 2 resultants"),
        Key<CDynaTask, &CDynaTask::Mass, &CDynaTask::SetMass>("mass", "Mass from loads")})

VYN_FIELDS(CAnalysisTask,
           NamedFields<CAnalysisTask>() +
               std::array{
                   Required(Key<CAnalysisTask, &CAnalysisTask::Solution,
                                &CAnalysisTask::SetSolution>("solution", "What is solved")),
                   Key<CAnalysisTask, &CAnalysisTask::IsAnalysed, &CAnalysisTask::SetAnalysed>(
                       "analysed", "Results exist"),
                   Key<CAnalysisTask, &CAnalysisTask::Stage, &CAnalysisTask::SetStage>(
                       "stage", "Construction stage, -1 the whole model"),
                   Key<CAnalysisTask, &DynaOf, &SetDynaOf>("explicit_dynamics",
                                                           "Settings of explicit dynamics")})

VYN_FIELDS(CAnalysisCase,
           NamedFields<CAnalysisCase>() +
               std::array{
                   Key<CAnalysisCase, &CAnalysisCase::Task, &CAnalysisCase::SetTask>(
                       "task", "Analysis task"),
                   Key<CAnalysisCase, &DescOf, &SetDescOf>("description",
                                                           "Loads, or the mode, of the case")})

VYN_FIELDS(CCombinationCase,
           NamedFields<CCombinationCase>() +
               std::array{
                   Required(Key<CCombinationCase, &CombDescOf, &SetCombDescOf>("description",
                                                                               "Factored cases"))})

VYN_FIELDS(StageReplacement,
           std::array{
               Required(Key<StageReplacement, &StageReplacement::kind>("kind", "Kind of property")),
               Required(Key<StageReplacement, &StageReplacement::from>("from", "Property number")),
               Key<StageReplacement, &StageReplacement::property>(
                   "property", "Property used instead, 0 the same"),
               Key<StageReplacement, &StageReplacement::material>(
                   "material", "Analysis material used instead, 0 the property's own")})

VYN_FIELDS(StageRestraint,
           std::array{
               Required(Key<StageRestraint, &StageRestraint::nodes>("nodes", "Nodes")),
               Required(Key<StageRestraint, &StageRestraint::restraint>("restraint",
                                                                        "Restrained directions"))})

VYN_FIELDS(CStage, NamedFields<CStage>() +
                       std::array{Key<CStage, &CStage::Elements, &CStage::SetElements>(
                                      "elements", "Elements of the stage"),
                                  Key<CStage, &CStage::Replacements, &CStage::SetReplacements>(
                                      "replacements", "Properties and materials that differ"),
                                  Key<CStage, &CStage::Restraints, &CStage::SetRestraints>(
                                      "restraints", "Restraints of the stage")})

}  // namespace Tevra::Document

#include "model/AnalysisTask.h"

namespace Tevra {

bool CAnalysisTask::IsStatic() const {
    return m_solution == SolutionType::Static || m_solution == SolutionType::StaticPDelta ||
           m_solution == SolutionType::NonlinearStatic || m_solution == SolutionType::Raft;
}

bool CAnalysisTask::IsDynamic() const {
    return m_solution == SolutionType::ResponseSpectrum || m_solution == SolutionType::Harmonic ||
           m_solution == SolutionType::LinearTimeHistory || IsExplicitDynamics();
}

}  // namespace Tevra

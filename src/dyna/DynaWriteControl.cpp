#include "dyna/DynaAnalysis.h"
#include "dyna/DynaCards.h"
#include "dyna/DynaElementKind.h"
#include "dyna/DynaOut.h"
#include "model/VynData.h"

// Control cards, what is output, and damping.

namespace Tevra {

using namespace DynaCards;

namespace {

/// Share of the critical time step that is used.
constexpr double kStepFactor = 0.9;

/// `-value` without a negative zero.
double Negative(double value) {
    return value == 0.0 ? 0.0 : -value;
}

/// Kept: the step of mass scaling stands in the field before its own.
void WriteTimestep(DynaOut& out, double massScalingStep) {
    out.Card<kTimestep>(0.0, kStepFactor, 0, Negative(massScalingStep / kStepFactor));
}

}  // namespace

bool CDynaAnalysis::WriteControl() {
    const double states = m_task->OutputInterval(true);
    const double histories = m_task->OutputInterval(false);
    m_out->Card<kTermination>(m_task->EndTime(), m_task->EndCycle());
    WriteTimestep(*m_out, m_task->MassScalingTimeStep());
    m_out->Card<kPlotStates>(states);
    m_out->Card<kTimeHistories>(histories);
    m_out->Card<kFormat>(0, 1);
    m_out->Card<kElementOutput>(states, 1);
    m_out->Card<kNodeOutput>(states, 1);
    m_out->Card<kGlobalOutput>(states, 1);
    m_out->Card<kSectionOutput>(states, 1);
    m_out->Card<kSupportOutput>(states, 1);
    m_out->Card<kInterfaceOutput>(0);
    m_out->Card<kDumpOutput>(0);
    m_out->Card<kRestartOutput>(0);
    return true;
}

bool CDynaAnalysis::WriteHistories() {
    m_out->Keyword(kHistoryNode);
    m_out->List(Listed(m_task->NodeSelection(), SelType::Node));
    const struct {
        DynaPart kind;
        const DynaLayout& card;
    } kLists[] = {{DynaPart::Beam, kHistoryBeam},
                  {DynaPart::Spring, kHistoryDiscrete},
                  {DynaPart::Shell, kHistoryShell},
                  {DynaPart::Solid, kHistorySolid}};
    for (const auto& list : kLists) {
        const std::vector<int> elements = ElementsOf(m_task->ElementSelection(), list.kind);
        if (!elements.empty()) {
            m_out->Keyword(list.card);
            m_out->List(elements);
        }
    }
    return true;
}

bool CDynaAnalysis::WriteDamping() {
    m_out->Card<kAllParts>(kAllPartsSet);
    m_out->Line<kAllParts, 1>(1, static_cast<int>(m_parts.size()));
    const RayleighDamping& damping = m_task->Damping();
    if (damping.isRayleigh) {
        // A negative coefficient is Rayleigh's, a positive one a share of critical damping.
        m_out->Card<kStiffnessDamping>(kAllPartsSet, Negative(damping.beta));
        m_out->Card<kMassDamping>(kAllPartsSet, damping.alpha);
    }
    return true;
}

}  // namespace Tevra

#include <cmath>
#include <string>

#include "dyna/DynaAnalysis.h"
#include "dyna/DynaCards.h"
#include "dyna/DynaElementKind.h"
#include "dyna/DynaElementLoop.h"
#include "dyna/DynaOut.h"
#include "model/LoadForces.h"
#include "model/LoadValues.h"
#include "model/VynData.h"

// Loads at nodes, along beams, and gravity. Kept: each refers to its load case as the number of a
// curve, which the user adds.

namespace Tevra {

using namespace DynaCards;

namespace {

/// Factor of gravity below which a direction is none.
constexpr double kLeastGravity = 1e-10;
/// Share of a load below which a component in the axes of an element is round-off.
constexpr double kLeastShare = 1e-12;

/// Codes of forces and moments; 4 and 8 are loads that follow their node.
int CodeOf(Direction d) {
    return static_cast<int>(d) + (IsTrans(d) ? 1 : 2);
}

}  // namespace

bool CDynaAnalysis::WriteLoads() {
    const bool areNodesWritten = WriteNodeLoads();
    const bool areBeamsWritten = WriteBeamLoads();
    const bool areShellsWritten = WriteShellLoads();
    const bool areSegmentsWritten = WriteSegmentLoads();
    const bool isGravityWritten = WriteGravity();
    return areNodesWritten && areBeamsWritten && areShellsWritten && areSegmentsWritten &&
           isGravityWritten;
}

bool CDynaAnalysis::WriteNodeLoads() {
    bool isFirst = true;
    for (const int number : m_model->NodeLoadTable().Numbers()) {
        const Data::CNodeLoad& load = m_model->NodeLoad(number);
        if (!IsCaseWritten(load)) {
            continue;
        }
        for (const int node : load.LoadedNodes(*m_model)) {
            if (isFirst) {
                m_out->Keyword(kNodeLoad);
                isFirst = false;
            }
            const int axis =
                AxisNumber(load.Axis() == kLocalAxis ? m_model->Node(node).Axis() : load.Axis());
            const int code = CodeOf(load.GetDirection());
            if (axis > 0) {
                m_out->Line<kNodeLoad>(node, code, load.LoadCase(), load.Value(), axis);
            } else {
                m_out->Line<kNodeLoad>(node, code, load.LoadCase(), load.Value());
            }
        }
    }
    return m_out->Good();
}

bool CDynaAnalysis::WriteBeamLoads() {
    bool isFirst = true;
    for (const int number : m_model->BeamLoadTable().Numbers()) {
        if (IsCaseWritten(m_model->BeamLoad(number))) {
            WriteBeamLoad(number, isFirst);
        }
    }
    return m_out->Good();
}

/// Uniform loads along the axes of the elements; others by their mean.
void CDynaAnalysis::WriteBeamLoad(int number, bool& isFirst) {
    const Data::CBeamLoad& load = m_model->BeamLoad(number);
    if (!IsTrans(load.GetDirection())) {
        Skip(L"Beam load", number, L"the card has no moments");
        return;
    }
    int left = 0;
    for (const int element : load.GetLoadedElements(*m_model, 1)) {
        const Data::CElement& record = m_model->Elem(element);
        const LoadedLine line = LoadedLine::Of(*m_model, element);
        if (KindOf(record) != DynaPart::Beam || !HasNodes(record) || !(line.length > 0.0)) {
            ++left;
            continue;
        }
        const Vec3<double> mean = BeamLoadSum(*m_model, line, load) * (1.0 / line.length);
        WriteBeamComponents(load.LoadCase(), element, mean, isFirst);
    }
    if (left > 0) {
        AddNote(L"Beam load", number,
                L"is not written on elements that are no beams or have no length: " +
                    std::to_wstring(left));
    }
    if (load.TypeOf() != BeamLoadType::Uniform) {
        AddNote(L"Beam load", number, L"is written as a uniform load of the same sum");
    }
}

void CDynaAnalysis::WriteBeamComponents(int loadCase, int element, const Vec3<double>& mean,
                                        bool& isFirst) {
    const double least = kLeastShare * Length(mean);
    for (int k = 0; k < 3; ++k) {
        if (std::abs(mean[k]) <= least) {
            continue;
        }
        if (isFirst) {
            m_out->Keyword(kBeamLoad);
            isFirst = false;
        }
        m_out->Line<kBeamLoad>(element, k + 1, loadCase, mean[k]);
    }
}

/// Kept: of a load in several directions the first one alone is written.
bool CDynaAnalysis::WriteGravity() {
    constexpr const DynaLayout* kCards[] = {&kGravityX, &kGravityY, &kGravityZ};
    for (const int number : m_model->GravityLoadTable().Numbers()) {
        const Data::CGravityLoad& load = m_model->GravityLoad(number);
        if (!IsCaseWritten(load)) {
            continue;
        }
        int directions = 0;
        for (int k = 0; k < 3; ++k) {
            if (std::abs(load.Value()[k]) >= kLeastGravity && ++directions == 1) {
                m_out->Keyword(*kCards[k]);
                m_out->Line<kGravityX>(load.LoadCase(), load.Value()[k] * -kGravity);
            }
        }
        if (!ActsOnAll(*m_model, load)) {
            AddNote(L"Gravity load", number, L"acts on the whole model, not on its elements alone");
        }
        if (directions > 1) {
            AddNote(L"Gravity load", number, L"is written in the first of its directions alone");
        }
    }
    return m_out->Good();
}

/// Loads of the task's cases for which there is no card.
void CDynaAnalysis::NoteLoadsNotWritten() {
    const auto note = [this](const auto& table, const wchar_t* text) {
        int count = 0;
        for (const int number : table.Numbers()) {
            count += IsCaseWritten(table.Get(number)) ? 1 : 0;
        }
        if (count > 0) {
            AddNote(std::to_wstring(count) + text);
        }
    };
    note(m_model->SettlementTable(), L" settlements are not written");
    note(m_model->AppliedDisplacementTable(), L" applied displacements are not written");
    note(m_model->BeamDistTable(), L" distortions of beams are not written");
    note(m_model->AxialLoadTable(), L" prestresses of beams are not written");
    note(m_model->BeamThermalLoadTable(), L" temperatures of beams are not written");
    note(m_model->EdgeLoadTable(), L" edge loads are not written");
    note(m_model->InPlaneLoadTable(), L" prestresses of planes are not written");
    note(m_model->FaceThermalLoadTable(), L" temperatures of planes are not written");
}

}  // namespace Tevra

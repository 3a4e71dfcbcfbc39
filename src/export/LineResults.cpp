#include "export/AssemblyWork.h"
#include "export/LineWork.h"
#include "export/VynExport.h"

// Positions and results along 1D elements.
namespace Tevra::Export {

LineWork& CVynExport::Line() {
    if (m_line == nullptr) {
        m_line = std::make_unique<LineWork>(*m_model, NumBeamPosition());
    }
    return *m_line;
}

void CVynExport::ForgetPreparations() {
    m_resultCases.clear();
    m_beamPositions.clear();
    m_line.reset();
    m_assemblies.reset();
    m_figures.reset();
}

// With interesting points positions differ from element to element, and are found one by one.
void CVynExport::Precalc1DIntermediateResults() {
    m_beamPositions.clear();
    m_line.reset();
    if (!IncludeInteresting() && Include1DElement()) {
        m_beamPositions = Get1DIntermediatePositions();
    }
}

std::vector<int> CVynExport::Get1DIntermediatePositions() const {
    std::vector<int> positions;
    for (const CPosOn1D& position : CPosOn1D::Regular(NumBeamPosition())) {
        positions.push_back(position.Millionths());
    }
    return positions;
}

void CVynExport::SetPositions(int element, const SCaseRef& ref, Elem1DSet& set) {
    if (!IncludeInteresting()) {
        if (set.NumPosition() != m_beamPositions.size()) {
            set = Elem1DSet(m_beamPositions);
        }
        return;
    }
    CInterPos& points = Line().positions;
    points.SetAutoPositionForCase(element, ref);
    set.Resize(points.Positions().size());
    for (std::size_t i = 0; i < set.NumPosition(); ++i) {
        set.SetPosition(i, points.Positions()[i].Millionths());
    }
}

void CVynExport::Calc1DIntermediateResults(int element, const SCaseRef& ref,
                                           const ElementFlags& flags, const Elem1DSet& set) {
    LineWork& line = Line();
    line.at.clear();
    for (std::size_t i = 0; i < set.NumPosition(); ++i) {
        line.at.emplace_back(set.Position(i));
    }
    line.calc.SetData(element, ref);
    if (flags.displacement) {
        line.displacement.Setup(InterKind::Displacement, line.at);
        line.calc.Calculate(line.displacement);
    }
    if (flags.force) {
        line.force.Setup(InterKind::Force, line.at);
        line.calc.Calculate(line.force);
    }
}

}  // namespace Tevra::Export

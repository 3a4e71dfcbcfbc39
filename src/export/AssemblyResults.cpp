#include "export/AssemblyWork.h"
#include "export/VynExport.h"

// Positions and results along assemblies.
namespace Tevra::Export {

const std::vector<Util::CAssemblyCalc>& CVynExport::CutsOf(int assembly) {
    if (m_assemblies == nullptr) {
        m_assemblies = std::make_unique<AssemblyWork>();
    }
    AssemblyWork& work = *m_assemblies;
    if (const auto known = work.cuts.find(assembly); known != work.cuts.end()) {
        return known->second;
    }
    if (work.cutElements > AssemblyWork::kMostCutElements) {
        work = AssemblyWork();
    }
    const CAssemblyElements elements(*m_model, m_model->Assembly(assembly));
    std::vector<Util::CAssemblyCalc>& cuts = work.cuts[assembly];
    for (const double fraction : PositionsOfAssembly(assembly)) {
        cuts.emplace_back(*m_model, assembly, elements, true, fraction);
        work.cutElements += cuts.back().NumElem();
    }
    return cuts;
}

std::vector<double> CVynExport::PositionsOfAssembly(int assembly) const {
    return Util::CAssemblyCalc::Positions(*m_model, assembly, NumBeamPosition());
}

}  // namespace Tevra::Export

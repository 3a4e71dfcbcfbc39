#include "export/AssemblyWork.h"
#include "export/VynExport.h"

// Positions and results along assemblies.
namespace Tevra::Export {

const std::vector<Util::CAssemblyCalc>& CVynExport::CutsOf(int assembly) {
    if (m_assemblies == nullptr) {
        m_assemblies = std::make_unique<AssemblyWork>();
    }
    const auto [entry, isNew] = m_assemblies->cuts.try_emplace(assembly);
    if (isNew) {
        for (const double fraction : PositionsOfAssembly(assembly)) {
            entry->second.emplace_back(*m_model, assembly, true, fraction);
        }
    }
    return entry->second;
}

std::vector<double> CVynExport::PositionsOfAssembly(int assembly) const {
    return Util::CAssemblyCalc::Positions(*m_model, assembly, NumBeamPosition());
}

}  // namespace Tevra::Export

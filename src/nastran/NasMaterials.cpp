#include "model/VynData.h"
#include "nastran/NasFile.h"

namespace Tevra {

bool CNasFile::WriteMaterials() {
    StartSection("Materials");
    for (const ExportedMaterial& entry : m_materials.Materials()) {
        const Data::CMatAnal* material = m_model->FindMaterial(entry.source);
        if (material == nullptr) {
            continue;  // the map holds materials that exist
        }
        SetSubject(L"Material", entry.mid);
        const Data::CMatAnal& m = *material;
        StartCard(m.IsOrthotropic() ? "MAT8" : "MAT1");
        AddInt(entry.mid);
        if (m.IsOrthotropic()) {
            // E1 E2 NU12, shear moduli xy, zx and yz, density, two expansions.
            for (const double value : {m.E(0), m.E(1), m.Nu(0), m.G(0), m.G(2), m.G(1), m.Density(),
                                       m.Alpha(0), m.Alpha(1)}) {
                AddReal(value);
            }
        } else {
            for (const double value : {m.E(), m.G(), m.Nu(), m.Density(), m.Alpha()}) {
                AddReal(value);
            }
        }
        EndCard();
    }
    return true;
}

/// Cables take the numbers between the analysis materials and the design grades.
bool CNasFile::WriteCableMaterials() {
    StartSection("Cable properties (materials)");
    for (const int number : m_model->CablePropTable().Numbers()) {
        const Data::CCableProp& cable = m_model->CableProp(number);
        SetSubject(L"Cable property", number);
        StartCard("MAT1");
        AddInt(static_cast<long long>(m_model->HighestMatAnal()) + number);
        for (const double value : {cable.E(), cable.G(), cable.Nu(), cable.Density()}) {
            AddReal(value);
        }
        EndCard();
    }
    return true;
}

}  // namespace Tevra

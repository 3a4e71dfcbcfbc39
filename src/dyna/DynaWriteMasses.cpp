#include "dyna/DynaAnalysis.h"
#include "dyna/DynaCards.h"
#include "dyna/DynaOut.h"
#include "model/LoadMass.h"
#include "model/VynData.h"

// What is attached to nodes: springs, masses, dampers, and masses that stand for loads.

namespace Tevra {

using namespace DynaCards;

bool CDynaAnalysis::WriteNodeSprings() {
    if (!m_hasNodeProperties) {
        return true;
    }
    for (const int node : m_model->NodeTable().Numbers()) {
        const int property = m_model->NodeSpringProperty(node, m_stage);
        if (property == 0) {
            continue;
        }
        if (!m_model->SpringPropExist(property)) {
            Skip(L"Spring at node", node, L"its property does not exist");
            continue;
        }
        WriteSpring(++m_elementNumber, FindPart(DynaPart::Spring, property),
                    m_model->SpringProp(property).IsSimple(), {node, 0, 0});
    }
    return true;
}

bool CDynaAnalysis::WriteNodeMasses() {
    if (!m_hasNodeProperties) {
        return true;
    }
    for (const int node : m_model->NodeTable().Numbers()) {
        const int property = m_model->NodeMassProperty(node, m_stage);
        if (property == 0) {
            continue;
        }
        if (!m_model->MassPropExist(property)) {
            Skip(L"Mass at node", node, L"its property does not exist");
            continue;
        }
        WriteNodeMass(node, m_model->MassProp(property));
    }
    return true;
}

void CDynaAnalysis::WriteNodeMass(int node, const Data::CMassProp& mass) {
    const long long number = ++m_elementNumber;
    if (!mass.HasInertia()) {
        m_out->Card<kMass>(number, node, mass.Mass());
        return;
    }
    const TensSym3<double>& i = mass.Inertia();
    m_out->Card<kInertia>(number, node, AxisNumber(m_model->Node(node).Axis()));
    m_out->Line<kInertia, 1>(i.xx, i.xy, i.zx, i.yy, i.yz, i.zz, mass.Mass());
}

bool CDynaAnalysis::WriteNodeDampers() {
    if (!m_hasNodeProperties) {
        return true;
    }
    for (const int node : m_model->NodeTable().Numbers()) {
        const int property = m_model->NodeDamperProperty(node, m_stage);
        if (property == 0) {
            continue;
        }
        if (!m_model->DamperPropExist(property)) {
            Skip(L"Damper at node", node, L"its property does not exist");
            continue;
        }
        WriteSpring(++m_elementNumber, FindPart(DynaPart::Damper, property), true, {node, 0, 0});
    }
    return true;
}

bool CDynaAnalysis::WriteAdditionalMasses() {
    const MassSpecification& mass = m_task->Mass();
    if (!mass.fromLoads) {
        return true;
    }
    m_out->Text().Append("$ mass elements for additional mass\n");
    m_out->Keyword(kMass);
    const NumberedTable<double> masses = MassOfLoads(*m_model, mass);
    for (const int node : masses.Numbers()) {
        if (masses.Get(node) > 0.0) {
            m_out->Line<kMass>(++m_elementNumber, node, masses.Get(node));
        }
    }
    return true;
}

}  // namespace Tevra

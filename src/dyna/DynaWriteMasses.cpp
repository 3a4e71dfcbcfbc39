#include "dyna/DynaAnalysis.h"
#include "dyna/DynaCards.h"
#include "dyna/DynaOut.h"
#include "model/LoadMass.h"
#include "model/VynData.h"

// What is attached to nodes: springs, masses, dampers, and masses that stand for loads.

namespace Tevra {

using namespace DynaCards;

namespace {

using PropertyOf = int (CVynData::*)(int node, int stage) const;

/// Calls `writeOne` with each node that has a property of a kind, and the number of that.
template <class WriteOne>
void ForEachNodeWith(PropertyOf propertyOf, const CVynData& model, int stage, WriteOne writeOne) {
    for (const int node : model.NodeTable().Numbers()) {
        if (const int property = (model.*propertyOf)(node, stage); property != 0) {
            writeOne(node, property);
        }
    }
}

}  // namespace

bool CDynaAnalysis::WriteNodeSprings() {
    if (m_hasNodeProperties) {
        const auto write = [this](int node, int property) {
            WriteSpring(++m_elementNumber, FindPart(DynaPart::Spring, property),
                        m_model->SpringProp(property).IsSimple(), {node, 0, 0});
        };
        ForEachNodeWith(&CVynData::NodeSpringProperty, *m_model, m_stage, write);
    }
    return true;
}

bool CDynaAnalysis::WriteNodeMasses() {
    if (m_hasNodeProperties) {
        const auto write = [this](int node, int property) {
            if (m_model->MassPropExist(property)) {
                WriteNodeMass(node, m_model->MassProp(property));
            } else {
                Skip(L"Mass at node", node, L"its property does not exist");
            }
        };
        ForEachNodeWith(&CVynData::NodeMassProperty, *m_model, m_stage, write);
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
    if (AxisNumber(mass.Axis()) != AxisNumber(m_model->Node(node).Axis())) {
        AddNote(L"Mass at node", node, L"is written in the axes of the node, not in its own");
    }
    m_out->Line<kInertia, 1>(i.xx, i.xy, i.zx, i.yy, i.yz, i.zz, mass.Mass());
}

bool CDynaAnalysis::WriteNodeDampers() {
    if (m_hasNodeProperties) {
        const auto write = [this](int node, int property) {
            WriteSpring(++m_elementNumber, FindPart(DynaPart::Damper, property), true,
                        {node, 0, 0});
        };
        ForEachNodeWith(&CVynData::NodeDamperProperty, *m_model, m_stage, write);
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
    int negative = 0;
    for (const int node : masses.Numbers()) {
        if (masses.Get(node) > 0.0) {
            m_out->Line<kMass>(++m_elementNumber, node, masses.Get(node));
        }
        negative += masses.Get(node) < 0.0 ? 1 : 0;
    }
    if (negative > 0) {
        AddNote(L"Nodes without additional mass, as that of their loads is negative: " +
                std::to_wstring(negative));
    }
    return true;
}

}  // namespace Tevra

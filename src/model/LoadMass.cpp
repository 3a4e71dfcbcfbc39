#include "model/LoadMass.h"

#include "model/LoadForces.h"
#include "model/VynData.h"

namespace Tevra {

namespace {

/// Collects the masses of one case.
class MassCollector {
public:
    MassCollector(const CVynData& model, const MassSpecification& mass)
        : m_model(model), m_mass(mass), m_direction(ToTrans(mass.direction) - Direction::X) {}

    void AddNodeLoads() {
        for (const int number : m_model.NodeLoadTable().Numbers()) {
            const Data::CNodeLoad& load = m_model.NodeLoad(number);
            if (!IsMeant(load)) {
                continue;
            }
            for (const int node : load.LoadedNodes(m_model)) {
                Add(node, AxesAt(load, node).AxisVec(load.GetDirection()) * load.Value());
            }
        }
    }

    void AddBeamLoads() {
        for (const int number : m_model.BeamLoadTable().Numbers()) {
            const Data::CBeamLoad& load = m_model.BeamLoad(number);
            if (!IsMeant(load)) {
                continue;
            }
            for (const int element : load.GetLoadedElements(m_model, 1)) {
                const LoadedLine line = LoadedLine::Of(m_model, element);
                const Vec3<double> force = line.axes.LtoG(BeamLoadSum(m_model, line, load));
                Add(m_model.Elem(element).Topo(1), force * 0.5);
                Add(m_model.Elem(element).Topo(2), force * 0.5);
            }
        }
    }

    void AddFaceLoads() {
        for (const int number : m_model.FaceLoadTable().Numbers()) {
            const Data::CFaceLoad& load = m_model.FaceLoad(number);
            if (!IsMeant(load)) {
                continue;
            }
            for (const int dimension : {2, 3}) {
                for (const int element : load.GetLoadedElements(m_model, dimension)) {
                    AddFaceLoad(load, element);
                }
            }
        }
    }

    NumberedTable<double> Take() { return std::move(m_masses); }

private:
    bool IsMeant(const Data::CDirectedLoad& load) const {
        return load.LoadCase() == m_mass.loadCase && IsTrans(load.GetDirection());
    }

    Util::CDirCos AxesAt(const Data::CDirectedLoad& load, int node) const {
        return load.Axis() == kLocalAxis
                   ? m_model.NodeDC(node)
                   : m_model.AxisDC(load.Axis(), m_model.Node(node).Position());
    }

    void AddFaceLoad(const Data::CFaceLoad& load, int element) {
        const LoadedFace face = LoadedFace::Of(m_model, element, load.Face());
        if (!face.Exists() || !face.HasArea()) {
            return;
        }
        const double pressure = MeanPressure(m_model, load, element, face);
        const Vec3<double> force =
            LoadDirection(m_model, load, element, face) * (pressure * Length(face.area));
        for (int k = 0; k < face.NumCorner(); ++k) {
            Add(m_model.Elem(element).Topo(face.corners[static_cast<std::size_t>(k)]),
                force * (1.0 / face.NumCorner()));
        }
    }

    void Add(int node, const Vec3<double>& force) {
        if (!m_model.NodeExist(node)) {
            return;
        }
        const double mass = -force[m_direction] / kGravity * m_mass.scale;
        m_masses.Set(node, m_masses.Get(node) + mass);
    }

    const CVynData& m_model;
    const MassSpecification& m_mass;
    int m_direction;
    NumberedTable<double> m_masses;
};

}  // namespace

NumberedTable<double> MassOfLoads(const CVynData& model, const MassSpecification& mass) {
    MassCollector collector(model, mass);
    collector.AddNodeLoads();
    collector.AddBeamLoads();
    collector.AddFaceLoads();
    return collector.Take();
}

}  // namespace Tevra

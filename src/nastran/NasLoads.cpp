#include <algorithm>

#include "io/TextOut.h"
#include "model/LoadValues.h"
#include "model/VynData.h"
#include "nastran/ComponentDigits.h"
#include "nastran/NasFile.h"

// The load sections in their order, and loads at nodes.

namespace Tevra {

bool CNasFile::WriteLoads() {
    return !m_exportLoads ||
           (WriteReferenceTemperature() && WriteSettlements() && WriteAppliedDisplacements() &&
            WriteGravity() && WriteNodeLoads() && WriteBeamLoads() && WriteAxialLoads() &&
            WriteBeamTemperatures() && WriteFaceLoads() && WriteInPlaneLoads() &&
            WriteFaceTemperatures() && WriteSolidFaceLoads() && WriteBodyTemperatures() &&
            WriteCombinations());
}

bool CNasFile::IsLoadWritten(const Data::CLoadBase& load, std::initializer_list<int> dimensions) {
    if (load.LoadCase() < 1) {
        Skip(L"it is in no load case");
        return false;
    }
    const bool loadsAny =
        dimensions.size() == 0 ||
        std::any_of(dimensions.begin(), dimensions.end(), [this, &load](int dimension) {
            return !load.GetLoadedElements(*m_model, dimension).empty();
        });
    if (!loadsAny) {
        Skip(L"it loads no element of its kind");
    }
    return loadsAny;
}

std::vector<int> CNasFile::LoadedNodes(const Data::CLoadBase& load) {
    std::vector<int> nodes = load.LoadedNodes(*m_model);
    if (nodes.empty()) {
        Skip(L"it loads no node of the model");
    }
    const std::size_t left =
        std::erase_if(nodes, [this](int node) { return !IsNodeWritten(node); });
    SkipMany(static_cast<int>(left), L"nodes", L"they are not in the file");
    return nodes;
}

std::vector<int> CNasFile::LoadedElements(const Data::CLoadBase& load, int dimension) {
    std::vector<int> elements = load.GetLoadedElements(*m_model, dimension);
    const std::size_t left =
        std::erase_if(elements, [this](int element) { return !IsElementWritten(element); });
    SkipMany(static_cast<int>(left), L"elements", L"they are not in the file");
    return elements;
}

/// Bars and beams, where wanted rods too, that a load on 1D elements names.
std::vector<int> CNasFile::LoadedBeams(const Data::CLoadBase& load, bool withRods) {
    std::vector<int> elements = LoadedElements(load, 1);
    const std::size_t left = std::erase_if(elements, [this, withRods](int element) {
        const ElementType type = m_model->Elem(element).Type();
        return type != ElementType::Bar && type != ElementType::Beam &&
               !(withRods && type == ElementType::Rod);
    });
    SkipMany(static_cast<int>(left), L"elements", L"they are no beams");
    return elements;
}

bool CNasFile::WriteSettlements() {
    StartSection("Settlements");
    for (const int number : m_model->SettlementTable().Numbers()) {
        SetSubject(L"Settlement", number);
        WriteImposed(m_model->Settlement(number));
    }
    return true;
}

bool CNasFile::WriteAppliedDisplacements() {
    StartSection("Applied Displacements");
    for (const int number : m_model->AppliedDisplacementTable().Numbers()) {
        SetSubject(L"Applied displacement", number);
        WriteImposed(m_model->AppliedDisplacement(number));
    }
    return true;
}

void CNasFile::WriteImposed(const Data::CNodeLoad& load) {
    if (!IsLoadWritten(load)) {
        return;
    }
    for (const int node : LoadedNodes(load)) {
        if (load.Axis() != kLocalAxis && load.Axis() != m_model->Node(node).Axis()) {
            AddNote(L"The displacement imposed on node", node,
                    L"is written in the axes of the node, not in those of the load");
        }
        StartCard("SPCD");
        AddInt(load.LoadCase());
        AddInt(node);
        AddInt(Nas::DigitOf(load.GetDirection()));
        AddReal(load.Value());
        EndCard();
    }
}

bool CNasFile::WriteGravity() {
    StartSection("Gravity");
    for (const int number : m_model->GravityLoadTable().Numbers()) {
        const Data::CGravityLoad& load = m_model->GravityLoad(number);
        SetSubject(L"Gravity load", number);
        if (!IsLoadWritten(load)) {
            continue;
        }
        StartCard("GRAV");
        AddInt(GravityCase(load.LoadCase()));
        AddInt(0);
        AddReal(kGravity);
        AddReals(load.Value());
        EndCard();
        if (!ActsOnAll(*m_model, load)) {
            AddNote(L"Gravity load", number, L"acts on the whole model, not on its elements alone");
        }
    }
    return true;
}

bool CNasFile::WriteNodeLoads() {
    StartSection("Node loads");
    for (const int number : m_model->NodeLoadTable().Numbers()) {
        const Data::CNodeLoad& load = m_model->NodeLoad(number);
        SetSubject(L"Node load", number);
        if (!IsLoadWritten(load)) {
            continue;
        }
        for (const int node : LoadedNodes(load)) {
            WriteNodeLoad(load, node);
        }
    }
    return m_out->Good();
}

void CNasFile::WriteNodeLoad(const Data::CNodeLoad& load, int node) {
    const Direction d = load.GetDirection();
    Vec3<double> components;
    components[static_cast<int>(ToTrans(d))] = load.Value();
    StartCard(IsTrans(d) ? "FORCE" : "MOMENT");
    AddInt(load.LoadCase());
    AddInt(node);
    AddInt(CoordinateSystem(AxisOfNodeLoad(*m_model, load, node)));
    AddReal(1.0);
    AddReals(components);
    EndCard();
}

bool CNasFile::WriteBodyTemperatures() {
    m_out->Append("$\n$ Body temperature - not exported\n$\n");
    return true;
}

}  // namespace Tevra

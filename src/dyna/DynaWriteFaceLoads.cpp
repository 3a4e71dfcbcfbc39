#include <cmath>
#include <string>

#include "dyna/DynaAnalysis.h"
#include "dyna/DynaCards.h"
#include "dyna/DynaElementLoop.h"
#include "dyna/DynaOut.h"
#include "model/LoadForces.h"
#include "model/VynData.h"

// Pressures on shells and on faces of solids. A positive pressure acts against the normal.

namespace Tevra {

using namespace DynaCards;

namespace {

/// By how much a load may lie off the normal and still be along it, or off the face and still in
/// it.
constexpr double kSmallShare = 1e-6;

/// Part of a load that is along the normal of a face.
double NormalShare(const CVynData& model, const Data::CFaceLoad& load, int element,
                   const LoadedFace& face) {
    return Dot(LoadDirection(model, load, element, face), Unit(face.area, {0.0, 0.0, 1.0}));
}

}  // namespace

bool CDynaAnalysis::WriteShellLoads() {
    return WriteFaceLoads(2);
}

bool CDynaAnalysis::WriteSegmentLoads() {
    return WriteFaceLoads(3);
}

bool CDynaAnalysis::WriteFaceLoads(int dimension) {
    bool isFirst = true;
    for (const int number : m_model->FaceLoadTable().Numbers()) {
        const Data::CFaceLoad& load = m_model->FaceLoad(number);
        if (!IsCaseWritten(load)) {
            continue;
        }
        const std::vector<int> elements = load.GetLoadedElements(*m_model, dimension);
        if (!elements.empty()) {
            WriteFaceLoad(number, elements, isFirst);
        }
    }
    return m_out->Good();
}

void CDynaAnalysis::WriteFaceLoad(int number, const std::vector<int>& elements, bool& isFirst) {
    const Data::CFaceLoad& load = m_model->FaceLoad(number);
    if (!IsTrans(load.GetDirection())) {
        Skip(L"Face load", number, L"a pressure can't turn");
        return;
    }
    bool isAlong = true;
    int left = 0;
    for (const int element : elements) {
        if (!HasNodes(m_model->Elem(element))) {
            continue;  // noted with the elements
        }
        const LoadedFace face = LoadedFace::Of(*m_model, element, load.Face());
        if (!face.Exists() || !face.HasArea()) {
            ++left;
            continue;
        }
        const double share = NormalShare(*m_model, load, element, face);
        isAlong = isAlong && std::abs(share) >= 1.0 - kSmallShare;
        const double pressure = MeanPressure(*m_model, load, element, face) * -share;
        if (std::abs(share) > kSmallShare && pressure != 0.0) {
            WritePressure(load.LoadCase(), element, face, pressure, isFirst);
        }
    }
    if (left > 0) {
        AddNote(L"Face load", number,
                L"is not written on elements that have no such face, or one without area: " +
                    std::to_wstring(left));
    }
    if (!isAlong) {
        AddNote(L"Face load", number, L"keeps the component along the normals of its faces");
    }
    if (load.TypeOf() != FaceLoadType::Uniform) {
        AddNote(L"Face load", number, L"is written as a uniform pressure of the same sum");
    }
}

void CDynaAnalysis::WritePressure(int loadCase, int element, const LoadedFace& face,
                                  double pressure, bool& isFirst) {
    const Data::CElement& record = m_model->Elem(element);
    if (isFirst) {
        m_out->Keyword(record.Is2D() ? kShellLoad : kSegmentLoad);
        isFirst = false;
    }
    if (record.Is2D()) {
        m_out->Line<kShellLoad>(element, loadCase, pressure);
        return;
    }
    const auto node = [&](std::size_t k) { return record.Topo(face.corners[k]); };
    m_out->Line<kSegmentLoad>(loadCase, pressure, 0.0, node(0), node(1), node(2),
                              node(face.NumCorner() == 4 ? 3 : 2));
}

}  // namespace Tevra

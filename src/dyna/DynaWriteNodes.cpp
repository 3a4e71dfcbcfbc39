#include <algorithm>
#include <climits>
#include <cmath>

#include "dyna/DynaAnalysis.h"
#include "dyna/DynaCards.h"
#include "dyna/DynaOut.h"
#include "model/Placed.h"
#include "model/Util.h"
#include "model/VynData.h"

// Coordinate systems, nodes and supports.

namespace Tevra {

using namespace DynaCards;

/// A system through its origin, a point on x and a point in the x-y plane.
void CDynaAnalysis::WriteCoordinateSystem(int number, const Vec3<double>& origin,
                                          const Vec3<double>& x, const Vec3<double>& y) {
    const Vec3<double> onX = origin + x;
    const Vec3<double> inPlane = origin + y;
    m_out->Line<kCoordinateSystem>(number, origin.x, origin.y, origin.z, onX.x, onX.y, onX.z);
    m_out->Line<kCoordinateSystem, 1>(inPlane.x, inPlane.y, inPlane.z);
}

bool CDynaAnalysis::WriteCoordinateSystems() {
    m_out->Keyword(kCoordinateSystem);
    for (const int number : m_model->AxisTable().Numbers()) {
        const Data::CAxis& axis = m_model->Axis(number);
        WriteCoordinateSystem(number, axis.Origin(), axis.XAxis(), axis.YAxis());
        ++m_coordinateCount;
        if (ArmAt(axis.Origin()) > 1.0) {
            AddNote(L"Axis", number,
                    L"has its origin so far off that its directions, by points a metre from it, "
                    L"are coarse");
        }
        if (axis.TypeOf() != AxisType::Cartesian) {
            AddNote(L"Axis", number, L"is written as cartesian: the card has no other systems");
        }
    }
    const int highest = m_model->HighestAxis();
    m_globalSystem = highest < INT_MAX ? highest + 1 : highest;
    WriteCoordinateSystem(m_globalSystem, {}, {1.0, 0.0, 0.0}, {0.0, 1.0, 0.0});
    return true;
}

double CDynaAnalysis::ArmAt(const Vec3<double>& at) {
    constexpr double kNear = 100.0;
    const double reach = std::max({std::fabs(at.x), std::fabs(at.y), std::fabs(at.z)});
    return reach > kNear && std::isfinite(reach)
               ? std::pow(10.0, std::ceil(std::log10(reach)) - 2.0)
               : 1.0;
}

void CDynaAnalysis::WriteNode(int number, const Vec3<double>& at) {
    m_out->Line<kNode>(number, at.x, at.y, at.z);
}

bool CDynaAnalysis::WriteNodes() {
    constexpr int kDigits = 7;
    m_hasNodeProperties = false;
    if (m_model->NumNode() == 0) {
        return true;
    }
    if (const std::wstring note = NoteOfCoarseCoordinates(*m_model, kDigits); !note.empty()) {
        AddNote(note);
    }
    m_out->Keyword(kNode);
    for (const int number : m_model->NodeTable().Numbers()) {
        const Data::CNode& node = m_model->Node(number);
        WriteNode(number, node.Position());
        m_hasNodeProperties = m_hasNodeProperties || node.SpringProperty() != 0 ||
                              node.MassProperty() != 0 || node.DamperProperty() != 0;
    }
    m_highestNode = m_model->HighestNode();
    return true;
}

/// Kept: with neither of the two kinds of excitation there are no supports.
bool CDynaAnalysis::WriteSupports() {
    if (m_model->NumNode() == 0) {
        return true;
    }
    m_out->Keyword(kSupport);
    if (m_task->Excitation() == ExcitationOption::OneCurve) {
        for (const int number : m_model->NodeTable().Numbers()) {
            WriteSupport(number, {});
        }
    } else if (m_task->Excitation() == ExcitationOption::CurvePerDirection) {
        // What shakes a direction holds it, too.
        Vbool6 shaken;
        for (const Direction d : {Direction::X, Direction::Y, Direction::Z}) {
            shaken.Set(d, m_task->ExcitationNumber(d) > 0);
        }
        for (const int number : Listed(m_task->BaseList(), SelType::Node)) {
            WriteSupport(number, shaken);
        }
    }
    return true;
}

void CDynaAnalysis::WriteSupport(int node, Vbool6 released) {
    Vbool6 held;
    m_model->NodeTotalRestraint(held, node, m_stage);
    if (held.IsNone()) {
        return;
    }
    const auto flag = [&](Direction d) {
        return held.IncludesDirection(d) && !released.IncludesDirection(d) ? 1 : 0;
    };
    m_out->Line<kSupport>(node, AxisNumber(m_model->Node(node).Axis()), flag(Direction::X),
                          flag(Direction::Y), flag(Direction::Z), flag(Direction::XX),
                          flag(Direction::YY), flag(Direction::ZZ));
}

}  // namespace Tevra

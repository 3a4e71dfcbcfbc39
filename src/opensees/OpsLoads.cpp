#include <algorithm>

#include "model/LoadValues.h"
#include "model/Placed.h"
#include "opensees/OpenseesFile.h"
#include "opensees/OpsContext.h"
#include "platform/ui/HostServices.h"

// The loads of one case, and messages on those that the target does not know.

namespace Tevra {

namespace {

template <class Load>
bool AnyInCase(const NumberedTable<Load>& loads, int loadCase) {
    const auto numbers = loads.Numbers();
    return std::any_of(numbers.begin(), numbers.end(),
                       [&](int number) { return loads.Get(number).LoadCase() == loadCase; });
}

bool HasAxialOffset(const Data::CElement& element) {
    return element.Offset().X1() != 0.0 || element.Offset().X2() != 0.0;
}

void TellIf(bool has, const wchar_t* text) {
    if (has) {
        Host().ShowMessage(text);
    }
}

}  // namespace

void COpenseesFile::TellUnsupportedBeforeLoads() const {
    const CVynData& m = *m_model;
    TellIf(AnyInCase(m.SettlementTable(), m_loadCase),
           L"OpenSees does not support applied settlements.");
    TellIf(AnyInCase(m.AppliedDisplacementTable(), m_loadCase),
           L"OpenSees does not support applied displacements.");
    TellIf(AnyInCase(m.GravityLoadTable(), m_loadCase),
           L"OpenSees does not support gravity loads.");
}

void COpenseesFile::TellUnsupportedAfterLoads() const {
    const CVynData& m = *m_model;
    TellIf(AnyInCase(m.BeamDistTable(), m_loadCase), L"OpenSees does not support 1D distortions.");
    TellIf(AnyInCase(m.AxialLoadTable(), m_loadCase), L"OpenSees does not support 1D prestresses.");
    TellIf(AnyInCase(m.BeamThermalLoadTable(), m_loadCase),
           L"OpenSees does not support beam temperature loads.");
    TellIf(AnyInCase(m.EdgeLoadTable(), m_loadCase), L"OpenSees does not support edge loads.");
    TellIf(AnyInCase(m.FaceLoadTable(), m_loadCase), L"OpenSees does not support face loads.");
    TellIf(AnyInCase(m.InPlaneLoadTable(), m_loadCase),
           L"OpenSees does not support 2D prestresses.");
    TellIf(AnyInCase(m.FaceThermalLoadTable(), m_loadCase),
           L"OpenSees does not support 2D temperature loads.");
}

/// Kept: loads at nodes and loads of beams have a pattern each, both under the number of the case.
void COpenseesFile::BeginPattern(TextOut& out) const {
    out.Append("pattern Plain ").Int(m_loadCase).Append(" Linear {\n");
    out.Append("# load case ").Int(m_loadCase).EndLine();
}

void COpenseesFile::WriteNodeLoads(OpsContext& c) {
    c.out.Append("\n# node loads\n");
    if (!AnyInCase(m_model->NodeLoadTable(), m_loadCase)) {
        return;
    }
    BeginPattern(c.out);
    for (const int number : m_model->NodeLoadTable().Numbers()) {
        const Data::CNodeLoad& load = m_model->NodeLoad(number);
        if (load.LoadCase() != m_loadCase) {
            continue;
        }
        for (const int node : load.LoadedNodes(*m_model)) {
            if (!IsPlaced(*m_model, node)) {
                continue;
            }
            const Vec3<double> v = GlobalNodeLoad(*m_model, load, node);
            const Vec3<double> force = IsTrans(load.GetDirection()) ? v : Vec3<double>{};
            const Vec3<double> moment = IsTrans(load.GetDirection()) ? Vec3<double>{} : v;
            c.line.Append("load ").Int(node);
            for (const double value : {force.x, force.y, force.z, moment.x, moment.y, moment.z}) {
                c.line.Append(' ').General(value);
            }
            End(c, L"Node load", number);
        }
    }
    c.out.Append("}\n");
}

bool COpenseesFile::WriteBeamLoads(OpsContext& c) {
    c.out.Append("\n# beam loads\n");
    if (!AnyInCase(m_model->BeamLoadTable(), m_loadCase)) {
        return true;
    }
    BeginPattern(c.out);
    for (const int number : m_model->BeamLoadTable().Numbers()) {
        const Data::CBeamLoad& load = m_model->BeamLoad(number);
        if (load.LoadCase() != m_loadCase) {
            continue;
        }
        if (!IsTrans(load.GetDirection())) {
            Host().ShowMessage(L"OpenSees does not support beam rotations.");
            continue;
        }
        if (load.TypeOf() != BeamLoadType::Point && load.TypeOf() != BeamLoadType::Uniform) {
            AddError(L"this feature does not support non-uniform member loads");
            return false;
        }
        WriteBeamLoad(c, number);
    }
    c.out.Append("}\n");
    return true;
}

/// Kept: the part along the element has no place in the commands as they are written.
void COpenseesFile::WriteBeamLoad(OpsContext& c, int number) {
    const Data::CBeamLoad& load = m_model->BeamLoad(number);
    const bool isPoint = load.TypeOf() == BeamLoadType::Point;
    bool hasAxial = false;
    int others = 0;
    int beyond = 0;
    int offset = 0;
    for (const int element : load.GetLoadedElements(*m_model, 1)) {
        if (c.WrittenAs(element) != OpsKind::Beam) {
            ++others;
            continue;
        }
        const double length = m_model->ElemLen(element);
        if (isPoint && !IsOnElement(load.Point(1), length)) {
            ++beyond;
            continue;
        }
        offset += HasAxialOffset(m_model->Elem(element)) ? 1 : 0;
        const Vec3<double> value =
            WithoutRoundOff(UnitBeamLoad(*m_model, load, element) * load.Value(1));
        hasAxial = hasAxial || value.x != 0.0;
        c.line.Append("eleLoad -ele ").Int(element).Append(" -type ");
        c.line.Append(isPoint ? "-beamPoint " : "-beamUniform ");
        c.line.General(value.y).Append(' ').General(value.z);
        if (isPoint) {
            c.line.Append(' ').General(load.PosIsFraction(1) ? load.Pos(1) : load.Pos(1) / length);
        }
        End(c, L"Beam load", number);
    }
    const std::wstring name = L"Beam load " + std::to_wstring(number);
    if (hasAxial) {
        AddNote(name + L" is exported without its part along the elements");
    }
    if (offset > 0) {
        AddNote(name + L" acts between the nodes of elements with offsets along them: " +
                std::to_wstring(offset));
    }
    if (beyond > 0) {
        AddNote(name + L" is not exported for elements on which none of it lies: " +
                std::to_wstring(beyond));
    }
    if (others > 0) {
        AddNote(name + L" is not exported for " + std::to_wstring(others) +
                L" elements that are no beams of the file");
    }
}

}  // namespace Tevra

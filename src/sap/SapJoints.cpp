#include "sap/SapContext.h"
#include "sap/SapFile.h"

// Coordinate systems, joints and what holds them.

namespace Tevra {

namespace {

void AddPoint(RecordText& line, std::string_view indent, const Vec3<double>& at) {
    line.Append(indent).Append("X=").Padded(at.x);
    line.Append(" Y=").Padded(at.y).Append(" Z=").Padded(at.z);
}

}  // namespace

/// The origin, a point on x and a point on y.
bool CSapFile::WriteCoordinates(SapContext& c) {
    if (m_model->NumUserAxis() == 0) {
        return true;
    }
    c.out.Append("COORDINATE\n");
    for (const int number : m_model->AxisTable().Numbers()) {
        const Data::CAxis& axis = m_model->Axis(number);
        c.line.Append("NAME=").Int(number);
        AddPoint(c.line, "\n   ", axis.Origin());
        AddPoint(c.line, "\n   ", axis.Origin() + axis.XAxis());
        AddPoint(c.line, "\n     ", axis.Origin() + axis.YAxis());
        End(c, L"Axis", number);
    }
    return true;
}

bool CSapFile::WriteJoints(SapContext& c) {
    c.out.Append("JOINT\n");
    for (const int number : m_model->NodeTable().Numbers()) {
        c.line.Append("   ").Int(number);
        AddPoint(c.line, " ", m_model->Node(number).Position());
        End(c, L"Node", number);
    }
    WriteLocals(c);
    WriteRestraints(c);
    WriteJointSprings(c);
    return true;
}

void CSapFile::WriteLocals(SapContext& c) {
    c.out.Append("LOCAL\n");
    int last = 0;
    for (const int number : m_model->NodeTable().Numbers()) {
        const int axis = m_model->Node(number).Axis();
        if (!m_model->AxisExist(axis) || !IsPlaced(*m_model, number)) {
            continue;
        }
        if (axis != last) {
            c.out.Append("  CSYS=").Int(axis).EndLine();
            last = axis;
        }
        c.out.Append("    ADD=").Int(number).EndLine();
    }
}

void CSapFile::WriteRestraints(SapContext& c) {
    c.out.Append("RESTRAINT\n");
    for (const int number : m_model->NodeTable().Numbers()) {
        const Vbool6 fixed = m_model->Node(number).TotalNodalRestraint();
        if (fixed.IsNone() || !IsPlaced(*m_model, number)) {
            continue;
        }
        c.line.Append("  ADD=").Int(number).Append(" DOF=");
        AddDofs(c.line, fixed, kDirections);
        End(c, L"Node", number);
    }
}

void CSapFile::WriteJointSprings(SapContext& c) {
    c.out.Append("SPRING\n");
    for (const int number : m_model->NodeTable().Numbers()) {
        const int property = m_model->StageProperty(
            PropertyType::Spring, m_model->Node(number).SpringProperty(), kSapStage);
        if (!m_model->SpringPropExist(property) || !IsPlaced(*m_model, number)) {
            continue;
        }
        const Data::CSpringProp& spring = m_model->SpringProp(property);
        c.line.Append("  ADD=").Int(number);
        for (const Direction d : kDirections) {
            if (spring.Stiff(d) > 0.0) {
                c.line.Append(' ').Append(kSapDofs[static_cast<std::size_t>(d)]);
                c.line.Append('=').Padded(spring.Stiff(d));
            }
        }
        End(c, L"Spring of node", number);
    }
}

}  // namespace Tevra

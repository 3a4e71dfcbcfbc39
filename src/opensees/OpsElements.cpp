#include <cmath>

#include "model/ElementsLeftOut.h"
#include "model/Faces.h"
#include "model/LoadValues.h"
#include "opensees/OpenseesFile.h"
#include "opensees/OpsContext.h"

// Transformations and elements.

namespace Tevra {

namespace {

/// Integration points along a beam of fibres.
constexpr int kPoints = 5;

RecordText& Begin(OpsContext& c, std::string_view command, int element) {
    return c.line.Append("element ").Append(command).Append(' ').Int(element);
}

void AddNodes(RecordText& line, const Data::CElement& record, int count) {
    for (int k = 1; k <= count; ++k) {
        line.Append(' ').Int(record.Topo(k));
    }
}

void AddReals(RecordText& line, std::initializer_list<double> values) {
    for (const double value : values) {
        line.Append(' ').General(value);
    }
}

void AddElasticBeam(OpsContext& c, int element, const Data::CElement& record,
                    const OpsSection& section) {
    RecordText& line = Begin(c, "elasticBeamColumn", element);
    AddNodes(line, record, 2);
    line.Append(section.beam).Append(' ').Int(element);
}

/// The offsets at the ends are the lengths of the hinges.
void AddHingedBeam(OpsContext& c, int element, const Data::CElement& record,
                   const OpsSection& section) {
    const SectionProperties& p = section.properties;
    RecordText& line = Begin(c, "beamWithHinges", element);
    AddNodes(line, record, 2);
    for (const double length : {record.Offset().X1(), record.Offset().X2()}) {
        line.Append(' ').Int(record.Property()).Append(' ').General(std::abs(length));
    }
    AddReals(line, {section.e, p.area, p.izz, p.iyy, section.g, p.j});
    line.Append(' ').Int(element);
}

/// A member that is one element takes its forces as unknowns; of those that are meshed each
/// element takes its displacements.
void AddFibreBeam(OpsContext& c, int element, const Data::CElement& record) {
    const bool isMeshed = record.ParentMember() != 0;
    RecordText& line = Begin(c, isMeshed ? "dispBeamColumn" : "nonlinearBeamColumn", element);
    AddNodes(line, record, 2);
    line.Append(' ').Int(kPoints).Append(' ').Int(record.Property()).Append(' ').Int(element);
}

void AddBeam(OpsContext& c, int element, const Data::CElement& record) {
    const OpsSection& section = c.sections.Get(record.Property());
    if (!section.isFibre) {
        AddElasticBeam(c, element, record, section);
    } else if (record.Offset().Axial()) {
        AddHingedBeam(c, element, record, section);
    } else {
        AddFibreBeam(c, element, record);
    }
}

/// Ties and struts belong to analyses with large displacements.
void AddTruss(OpsContext& c, int element, const Data::CElement& record) {
    const OpsSection& section = c.sections.Get(record.Property());
    RecordText& line =
        Begin(c, record.IsTie() || record.IsStrut() ? "corotTruss" : "truss", element);
    AddNodes(line, record, 2);
    AddReals(line, {section.properties.area});
    line.Append(' ').Int(section.material);
}

/// The corners of a plane; a triangle has its third twice.
void AddCorners(RecordText& line, const Data::CElement& record) {
    const int corners = CornerCount(record.Type());
    AddNodes(line, record, corners);
    if (corners == 3) {
        line.Append(' ').Int(record.Topo(3));
    }
}

void AddQuad(OpsContext& c, const CVynData& model, int element, const Data::CElement& record) {
    const Data::CProp2D& property = model.Prop2D(record.Property());
    RecordText& line = Begin(c, "quad", element);
    AddCorners(line, record);
    AddReals(line, {property.Thickness()});
    const bool isStress = property.Type() == Prop2DType::PlaneStress;
    line.Append(isStress ? " PlaneStress " : " PlaneStrain ");
    line.Int(c.materials.Prop2D(record.Property()).front().mid);
}

void AddShell(OpsContext& c, int element, const Data::CElement& record) {
    RecordText& line = Begin(c, "ShellMITC4", element);
    AddCorners(line, record);
    line.Append(' ').Int(c.firstShell + record.Property());
}

}  // namespace

/// The vector lies in the local x-z plane: the host's z, so that y and z are those of the host.
void COpenseesFile::WriteTransformations(OpsContext& c) {
    c.out.Append("\n# element transformations\n");
    for (const int number : m_model->ElemTable().Numbers()) {
        if (c.WrittenAs(number) != OpsKind::Beam) {
            continue;
        }
        const Vec3<double> z = WithoutRoundOff(m_model->ElemDC(number).AxisVec(Direction::Z));
        c.line.Append("geomTransf Linear ").Int(number);
        AddReals(c.line, {z.x, z.y, z.z});
        End(c, L"Element", number);
    }
}

void COpenseesFile::WriteElements(OpsContext& c) {
    c.out.Append("\n# elements\n");
    for (const int number : m_model->ElemTable().Numbers()) {
        const Data::CElement& record = m_model->Elem(number);
        switch (c.WrittenAs(number)) {
            case OpsKind::Beam:
                AddBeam(c, number, record);
                break;
            case OpsKind::Truss:
                AddTruss(c, number, record);
                break;
            case OpsKind::Quad:
                AddQuad(c, *m_model, number, record);
                break;
            case OpsKind::Shell:
                AddShell(c, number, record);
                break;
            case OpsKind::None:
                continue;
        }
        End(c, L"Element", number);
    }
    const auto hasPlace = [this](const Data::CElement& element) {
        return KindOf(*m_model, element) != OpsKind::None;
    };
    const auto isWritten = [&c](int number) { return c.WrittenAs(number) != OpsKind::None; };
    for (const std::wstring& note :
         FindElementsLeftOut(*m_model, hasPlace, isWritten)
             .Notes(L"Elements without length, or whose nodes, property or material do not exist, "
                    L"not exported: ")) {
        AddNote(note);
    }
}

}  // namespace Tevra

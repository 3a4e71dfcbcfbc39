#include "model/ElasticModuli.h"
#include "model/SecGeom.h"
#include "opensees/OpenseesFile.h"
#include "opensees/OpsContext.h"
#include "opensees/OpsFibres.h"

// Sections of beams, of fibres or elastic, and of shells.

namespace Tevra {

namespace {

/// Corners counter-clockwise, as the target counts areas.
void WritePatch(OpsContext& c, int material, const FibrePatch& p) {
    c.line.Append("patch quad ").Int(material);
    c.line.Append(' ').Int(p.alongY).Append(' ').Int(p.alongZ);
    const Vec2<double> corners[] = {p.low, {p.high.x, p.low.y}, p.high, {p.low.x, p.high.y}};
    for (const Vec2<double>& corner : corners) {
        c.line.Append(' ').General(corner.x).Append(' ').General(corner.y);
    }
    c.line.End();
}

void WriteRing(OpsContext& c, int material, const FibreRing& ring) {
    c.line.Append("patch circ ").Int(material);
    c.line.Append(' ').Int(ring.around).Append(' ').Int(ring.radial);
    c.line.Append(" 0 0 ").General(ring.inner).Append(' ').General(ring.outer).Append(" 0 360");
    c.line.End();
}

/// Kept: without -GJ, which a three-dimensional model asks for.
void WriteFibreSection(OpsContext& c, int number, int material, const Data::CSecGeom& geometry) {
    c.out.Append("section Fiber ").Int(number).Append(" {\n");
    FibreRing ring;
    if (IsRound(geometry, ring)) {
        WriteRing(c, material, ring);
    }
    for (const FibrePatch& patch : RectangularPatches(geometry)) {
        WritePatch(c, material, patch);
    }
    c.out.Append("}\n");
}

}  // namespace

void COpenseesFile::WriteSections(OpsContext& c) {
    c.out.Append("\n# sections\n");
    for (const int number : m_model->SectionTable().Numbers()) {
        if (!c.sections.Exist(number)) {
            AddNote(L"Section", number,
                    L"is not exported: it has no material, or a value is not a number");
            continue;
        }
        const OpsSection& section = c.sections.Get(number);
        if (section.e == 0.0 && !section.isFibre) {
            AddNote(L"Section", number, L"is without stiffness: its material has no modulus");
        }
        if (section.isFibre) {
            WriteFibreSection(c, number, section.material,
                              m_model->Section(number).Component(1).Geometry());
            continue;
        }
        const SectionProperties& p = section.properties;
        if (!p.HasPrincipalAxes()) {
            AddNote(L"Section", number, L"is exported without its product of inertia");
        }
        c.line.Append("section Elastic ").Int(number);
        for (const double value : {section.e, p.area, p.izz, p.iyy, section.g, p.j}) {
            c.line.Append(' ').General(value);
        }
        End(c, L"Section", number);
    }
}

void COpenseesFile::WriteShellSections(OpsContext& c) {
    c.out.Append("\n# 2D element sections\n");
    for (const int number : m_model->Prop2DTable().Numbers()) {
        const Data::CProp2D& property = m_model->Prop2D(number);
        const Data::CMatAnal* material = m_model->FindMaterial(property.Material());
        if (material == nullptr) {
            continue;
        }
        c.line.Append("section ElasticMembranePlateSection ").Int(c.firstShell + number);
        for (const double value : {ElasticModulus(*material), material->Nu(), property.Thickness(),
                                   material->Density()}) {
            c.line.Append(' ').General(value);
        }
        End(c, L"2D property", number);
    }
}

}  // namespace Tevra

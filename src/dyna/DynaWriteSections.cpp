#include <algorithm>
#include <array>
#include <string>

#include "dyna/DynaAnalysis.h"
#include "dyna/DynaCards.h"
#include "dyna/DynaOut.h"
#include "model/ShapeDim.h"
#include "model/VynData.h"

// Sections of beams, shells and solids.

namespace Tevra {

using namespace DynaCards;
using Data::SectionClass;
using Data::ShapeDim;

namespace {

constexpr int kIntegratedBeam = 1;
constexpr int kResultantBeam = 2;
constexpr int kShellFormulation = 16;
constexpr int kSolidFormulation = 1;
constexpr double kShearFactor = 0.833333;
constexpr int kShellPoints = 5;
constexpr std::size_t kLongestTitle = 80;

/// A section that the solver knows by its dimensions.
struct StandardSection {
    int number;  ///< of SECTION_nn, and of the integration rule
    std::array<SectionClass, 2> classes;
    std::array<ShapeDim, 6> dims;  ///< in the solver's order
};

using SC = SectionClass;

// Ours: d0 depth, d1 (top) width, d2 web or wall, d3 (top) flange, d4 bottom width, d6 bottom
// flange. The solver has radii of round sections, the bottom flange of an I before its top one, and
// of a cross the width of its arms without the web.
constexpr StandardSection kStandardSections[] = {
    {1, {SC::I, SC::CatalogueI}, {{{1}, {3}, {0}, {2}, {}, {}}}},
    {2, {SC::Channel, SC::None}, {{{1}, {3}, {0}, {2}, {}, {}}}},
    {4, {SC::Tee, SC::None}, {{{1}, {3}, {0}, {2}, {}, {}}}},
    {3, {SC::Angle, SC::None}, {{{1}, {3}, {0}, {2}, {}, {}}}},
    {9, {SC::Tube, SC::None}, {{{0, 0.5}, {0, 0.5, 2}, {}, {}, {}, {}}}},
    {8, {SC::Round, SC::None}, {{{0, 0.5}, {}, {}, {}, {}, {}}}},
    {5, {SC::Box, SC::None}, {{{1}, {3}, {0}, {2}, {}, {}}}},
    {11, {SC::Rectangle, SC::None}, {{{1}, {0}, {}, {}, {}, {}}}},
    {10, {SC::UnequalI, SC::None}, {{{0}, {4}, {1}, {2}, {6}, {3}}}},
    {7, {SC::Trapezium, SC::None}, {{{1}, {0}, {2}, {}, {}, {}}}},
    {18, {SC::CastellatedTee, SC::None}, {{{1}, {0}, {3}, {2}, {}, {}}}},
    {12, {SC::Cruciform, SC::None}, {{{1, 1.0, 2}, {2}, {0}, {3}, {}, {}}}},
};

bool HasSeveralMaterials(const Data::CSection& section) {
    const auto& components = section.Components();
    return std::any_of(components.begin(), components.end(), [&](const Data::CSecComp& component) {
        return !(component.Material() == components.front().Material());
    });
}

std::wstring Shortened(const std::wstring& title) {
    constexpr std::wstring_view kDots = L"...";
    return title.size() > kLongestTitle
               ? title.substr(0, kLongestTitle - kDots.size()).append(kDots)
               : title;
}

}  // namespace

bool CDynaAnalysis::WriteBeamSections() {
    for (const int number : m_model->SectionTable().Numbers()) {
        WriteBeamSection(number, FindPart(DynaPart::Beam, number));
    }
    return true;
}

void CDynaAnalysis::WriteBeamSection(int section, int part) {
    const Data::CSection& record = m_model->Section(section);
    m_out->Keyword(kBeamSection);
    m_out->NameComment(record.Name());
    m_out->Title(Shortened(record.Description()));
    if (m_task->BeamFormulation() == kIntegratedBeam) {
        m_out->Line<kBeamSection>(part);
    } else {
        m_out->Line<kBeamSection>(part, kResultantBeam);
    }
    if (m_integration && WriteShapedSection(record, part)) {
        if (record.NumComponent() > 1 || !(record.Modifiers() == Data::SectionModifiers{})) {
            AddNote(L"Section", section,
                    L"is written by the shape of its first component, without modifiers");
        }
        return;
    }
    if (HasSeveralMaterials(record)) {
        AddNote(L"Section", section,
                L"is written with the material of its first component for all of them");
    }
    // Second moments about the solver's s and t, which are our y and z.
    const SectionProperties p = m_model->SectionProp(section, 0, 0.0, true);
    m_out->Line<kBeamSection, 1>(p.area, p.iyy, p.izz, p.j, kShearFactor * p.area);
    if (!p.HasPrincipalAxes()) {
        AddNote(L"Section", section, L"is written without its product of inertia");
    }
    if (m_task->BeamFormulation() == kIntegratedBeam) {
        AddNote(L"Section", section,
                L"is written by area and second moments, which an integrated beam takes for "
                L"dimensions");
    }
    if (!(p.area > 0.0)) {
        AddNote(L"Section", section, L"is written without an area: its description gives none");
    }
}

/// The section by its shape: what the solver integrates, and the points that it could take. False
/// for shapes that it does not know.
bool CDynaAnalysis::WriteShapedSection(const Data::CSection& section, int part) {
    const Data::CSecGeom& geometry = section.Component(1).Geometry();
    const StandardSection* const standard =
        Data::FindShape(kStandardSections, geometry.ShapeClass());
    if (standard == nullptr) {
        return false;
    }
    std::array<double, 6> d{};
    TextOut& text = m_out->Text();
    text.Append("SECTION_").Int(standard->number, 0, 2);
    for (std::size_t i = 0; i < d.size(); ++i) {
        if (standard->dims[i].Exists()) {
            d[i] = standard->dims[i].Of(geometry);
            m_out->Real(d[i], 10);
        }
    }
    m_out->EndLine(kBeamSection.keyword, part);
    m_out->Card<kBeamIntegration>(part, 0, 0.0, standard->number);
    m_out->Line<kBeamIntegration, 1>(d[0], d[1], d[2], d[3], 0.0, 0.0, d[4], d[5]);
    return true;
}

bool CDynaAnalysis::WriteShellSections() {
    for (const int number : m_model->Prop2DTable().Numbers()) {
        const Data::CProp2D& property = m_model->Prop2D(number);
        const int part = FindPart(DynaPart::Shell, number);
        if (property.NumLayer() > 0) {
            WriteComposite(number, part);
            continue;
        }
        const double t = property.Thickness();
        m_out->Card<kShellSection>(part, kShellFormulation, kShearFactor, kShellPoints);
        m_out->Line<kShellSection, 1>(t, t, t, t);
    }
    return true;
}

/// Layers from the bottom, two to a line. Kept: the part has a *PART card of the same number, too.
void CDynaAnalysis::WriteComposite(int property, int part) {
    const Data::CProp2D& record = m_model->Prop2D(property);
    m_out->Keyword(kComposite);
    m_out->Title(record.Name() + L" : 2D prop " + std::to_wstring(property));
    m_out->Line<kComposite>(part, kShellFormulation, kShearFactor, 0.0);
    for (int k = 1; k <= record.NumLayer(); ++k) {
        const Data::PropLayer& layer = record.Layer(k);
        m_out->Int(layer.material, 10);
        m_out->Real(layer.thickness, 10);
        m_out->Real(layer.angle, 10);
        m_out->Int(0, 10);
        if (k % 2 == 0 || k == record.NumLayer()) {
            m_out->EndLine(kComposite.keyword, part);
        }
    }
}

bool CDynaAnalysis::WriteSolidSections() {
    for (const int number : m_model->Prop3DTable().Numbers()) {
        const std::wstring& name = m_model->Prop3D(number).Name();
        m_out->Keyword(kSolidSection);
        m_out->NameComment(name);
        m_out->Title(name);
        m_out->Line<kSolidSection>(FindPart(DynaPart::Solid, number), kSolidFormulation);
        const Data::CMatAnal* material = m_model->FindMaterial(m_model->Prop3D(number).Material());
        if (material != nullptr && material->Model() == MatModel::ElasticOrthotropic) {
            AddNote(L"3D property", number,
                    L"has an orthotropic material, whose axes follow the nodes of each element");
        }
    }
    return true;
}

}  // namespace Tevra

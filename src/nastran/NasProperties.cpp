#include <algorithm>
#include <array>
#include <climits>
#include <cmath>
#include <cstdint>
#include <string_view>

#include "model/ElasticModuli.h"
#include "model/ShapeDim.h"
#include "model/VynData.h"
#include "nastran/NasFile.h"

// Properties of line elements.

namespace Tevra {

using Data::CSecGeom;
using Data::CSection;
using Data::SectionClass;
using Data::ShapeDim;

namespace {

/// Group of the shapes of the target's bar library.
constexpr std::string_view kShapeGroup = "MSCBML0";
/// Product of inertia below which none is written, m4.
constexpr double kLeastIyz = 1e-10;
/// Gap of a tie, m: open from the beginning, so that linear solutions take its open stiffness.
constexpr double kTieGap = 1e-9;

struct LibraryShape {
    std::string_view type;
    std::array<SectionClass, 3> classes;
    std::array<ShapeDim, 6> dims;  ///< those that the shape has, then none
};

using SC = SectionClass;

// Host dimensions: d0 depth, d1 (top) width, d2 web or wall, d3 (top) flange, d4 bottom width, d6
// bottom flange.
constexpr LibraryShape kLibrary[] = {
    {"I", {SC::I, SC::CatalogueI, SC::UnequalI}, {{{0}, {4}, {1}, {2}, {6}, {3}}}},
    {"CHAN", {SC::Channel, SC::None, SC::None}, {{{1}, {0}, {2}, {3}, {}, {}}}},
    {"T", {SC::Tee, SC::None, SC::None}, {{{1}, {0}, {3}, {2}, {}, {}}}},
    {"TUBE", {SC::Tube, SC::None, SC::None}, {{{0, 0.5}, {0, 0.5, 2}, {}, {}, {}, {}}}},
    {"ROD", {SC::Round, SC::None, SC::None}, {{{0, 0.5}, {}, {}, {}, {}, {}}}},
    {"BOX", {SC::Box, SC::None, SC::None}, {{{1}, {0}, {3}, {2}, {}, {}}}},
    {"BAR", {SC::Rectangle, SC::None, SC::None}, {{{1}, {0}, {}, {}, {}, {}}}},
};

/// The library shape of a section; null for sections of several components, modified ones, and
/// shapes that are not in the library.
const LibraryShape* ShapeOf(const CSection& section) {
    const CSecGeom& geometry = section.Component(1).Geometry();
    const bool isNamed = geometry.Kind() == Data::SectionKind::Standard ||
                         geometry.Kind() == Data::SectionKind::Catalogue;
    const bool isPlain =
        section.NumComponent() == 1 && section.Modifiers() == Data::SectionModifiers{};
    return isNamed && isPlain ? Data::FindShape(kLibrary, geometry.ShapeClass()) : nullptr;
}

/// Corner of the box round the outlines of a section, about its centroid; zero without outlines.
struct Box {
    Vec2<double> least;
    Vec2<double> most;
};

Box BoxOf(const CSection& section) {
    Box box;
    const Vec2<double> centroid = section.Centroid();
    bool isFirst = true;
    for (const Data::CSecComp& component : section.Components()) {
        for (const Data::SectionPolygon& polygon : component.Geometry().Polygons()) {
            for (const Vec2<double>& point : polygon) {
                const Vec2<double> at{point.x + component.Position().x - centroid.x,
                                      point.y + component.Position().y - centroid.y};
                box.least = isFirst ? at
                                    : Vec2<double>{std::min(box.least.x, at.x),
                                                   std::min(box.least.y, at.y)};
                box.most =
                    isFirst ? at
                            : Vec2<double>{std::max(box.most.x, at.x), std::max(box.most.y, at.y)};
                isFirst = false;
            }
        }
    }
    return box;
}

}  // namespace

void CNasFile::FindSectionUses() {
    for (const int number : m_model->ElemTable().Numbers()) {
        const Data::CElement& record = m_model->Elem(number);
        if (!record.IsSection() || !IsElementWritten(number)) {
            continue;
        }
        SectionUse& use = m_sectionUses[record.Property()];
        if (record.IsTie()) {
            use.firstTie = use.firstTie != 0 ? use.firstTie : number;
        } else if (record.IsStrut()) {
            use.firstStrut = use.firstStrut != 0 ? use.firstStrut : number;
        } else if (record.Type() == ElementType::Rod) {
            use.byRod = true;
        } else {
            const bool isBeam = m_writeCbeam && record.IsBeam();
            use.byBeam = use.byBeam || isBeam;
            use.byBar = use.byBar || !isBeam;
        }
    }
}

const SectionUse& CNasFile::UseOf(int section) const {
    static const SectionUse kNone{};
    const auto found = m_sectionUses.find(section);
    return found != m_sectionUses.end() ? found->second : kNone;
}

/// Gaps have the number of their section when nothing else of it has; else, and the second kind of
/// gap, one above all sections, and the last of three a number of its own.
bool CNasFile::NumberGaps() {
    std::int64_t next = m_materials.NextProperty();
    for (auto& [section, use] : m_sectionUses) {
        const bool isShared = use.byBar || use.byBeam || use.byRod;
        const int above = m_model->HighestSection() + section;
        const bool hasBoth = use.firstTie != 0 && use.firstStrut != 0;
        int& first = use.firstTie != 0 && (!hasBoth || use.firstTie < use.firstStrut)
                         ? use.tiePid
                         : use.strutPid;
        int& second = &first == &use.tiePid ? use.strutPid : use.tiePid;
        first = isShared ? above : section;
        if (hasBoth) {
            second = isShared ? static_cast<int>(std::min<std::int64_t>(next++, INT_MAX)) : above;
        }
    }
    return next - 1 <= CMaterialMap::kHighestNumber;
}

int CNasFile::GapPid(int section, bool isTie) const {
    return isTie ? UseOf(section).tiePid : UseOf(section).strutPid;
}

bool CNasFile::WriteBeamProperties() {
    StartSection("Beam properties");
    for (const int number : m_model->SectionTable().Numbers()) {
        SetSubject(L"Section", number);
        if (!m_writtenSections.Test(number)) {
            Skip(L"it has no material, or a value is not a number");
            continue;
        }
        for (const ExportedProperty& property : WithMaterial(m_materials.Prop1D(number))) {
            WriteSectionCards(number, property);
        }
        WriteGaps(number);
    }
    return true;
}

/// The cards of a section by the elements that have it; a section without elements has that of a
/// beam.
void CNasFile::WriteSectionCards(int section, const ExportedProperty& property) {
    const SectionUse& use = UseOf(section);
    const bool isUsed = use.byBar || use.byBeam || use.byRod || use.ByGap();
    if (use.byBar || (!isUsed && !m_writeCbeam)) {
        WriteShape(section, property, false);
    }
    if (use.byBeam || (!isUsed && m_writeCbeam)) {
        WriteShape(section, property, true);
    }
    if (use.byRod) {
        WriteRod(section, property);
    }
}

void CNasFile::WriteShape(int section, const ExportedProperty& property, bool isBeam) {
    if (WriteLibraryShape(section, property, isBeam ? "PBEAML" : "PBARL")) {
        return;
    }
    if (isBeam) {
        WriteBeam(section, property);
    } else {
        WriteBar(section, property);
    }
}

bool CNasFile::WriteLibraryShape(int section, const ExportedProperty& property,
                                 std::string_view card) {
    const CSection& record = m_model->Section(section);
    const LibraryShape* shape = ShapeOf(record);
    if (shape == nullptr) {
        return false;
    }
    const CSecGeom& geometry = record.Component(1).Geometry();
    StartCard(card);
    AddInt(property.pid);
    AddInt(property.mid);
    AddTextField(kShapeGroup);
    AddTextField(shape->type);
    AddBlankFields(4);
    for (const ShapeDim& dim : shape->dims) {
        if (dim.Exists()) {
            AddReal(dim.Of(geometry));
        }
    }
    AddReal(0.0);
    EndCard();
    return true;
}

/// Plane 1 of the target is the host's x-z plane, so that I1 is Iyy and I2 is Izz. Kept: the
/// product of inertia has the host's sign, though the target's axes turn it.
void CNasFile::WriteBar(int section, const ExportedProperty& property) {
    const SectionProperties p = m_model->SectionProp(section, 0, 0.0, true);
    StartCard("PBAR");
    AddInt(property.pid);
    AddInt(property.mid);
    for (const double value : {p.area, p.iyy, p.izz, p.j, 0.0}) {
        AddReal(value);
    }
    if (!p.HasPrincipalAxes()) {
        AddBlankFields(1);
        AddStressPoints(section);
        AddBlankFields(2);
        if (std::abs(p.iyz) > kLeastIyz) {
            AddReal(p.iyz);
        }
    }
    EndCard();
}

/// The corners of the section's box, in the target's y (the host's z) and z (the host's -y).
void CNasFile::AddStressPoints(int section) {
    const Box box = BoxOf(m_model->Section(section));
    const Vec2<double> corners[] = {{box.most.y, -box.least.x},
                                    {box.most.y, -box.most.x},
                                    {box.least.y, -box.most.x},
                                    {box.least.y, -box.least.x}};
    for (const Vec2<double>& corner : corners) {
        AddReal(corner.x);
        AddReal(corner.y);
    }
}

void CNasFile::WriteBeam(int section, const ExportedProperty& property) {
    const SectionProperties p = m_model->SectionProp(section, 0, 0.0, true);
    StartCard("PBEAM");
    AddInt(property.pid);
    AddInt(property.mid);
    AddReal(p.area);
    AddReal(p.iyy);
    AddReal(p.izz);
    if (std::abs(p.iyz) > kLeastIyz) {
        AddReal(p.iyz);
    } else {
        AddBlankFields(1);
    }
    AddReal(p.j);
    AddReal(0.0);
    EndCard();
}

void CNasFile::WriteRod(int section, const ExportedProperty& property) {
    const SectionProperties p = m_model->SectionProp(section, 0, 0.0, true);
    StartCard("PROD");
    AddInt(property.pid);
    AddInt(property.mid);
    AddReal(p.area);
    AddReal(p.j);
    EndCard();
}

void CNasFile::WriteGaps(int section) {
    const SectionUse& use = UseOf(section);
    if (use.firstStrut != 0) {
        WriteGap(section, use.firstStrut, false);
    }
    if (use.firstTie != 0) {
        WriteGap(section, use.firstTie, true);
    }
}

/// The stiffness of a closed gap acts in compression, that of an open one in tension; both are EA/L
/// of the first element that has the section.
void CNasFile::WriteGap(int section, int element, bool isTie) {
    const Data::CMatAnal* material = MaterialOf(m_materials.Prop1D(section));
    const double e = material != nullptr ? ElasticModulus(*material) : 0.0;
    const double stiffness =
        e * m_model->SectionProp(section, 0, 0.0, true).area / m_model->ElemLen(element);
    StartCard("PGAP");
    AddInt(GapPid(section, isTie));
    AddReal(isTie ? kTieGap : 0.0);
    AddReal(0.0);
    AddReal(isTie ? 0.0 : stiffness);
    AddReal(isTie ? stiffness : 0.0);
    AddReal(0.0);
    EndCard();
}

}  // namespace Tevra

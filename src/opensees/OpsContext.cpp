#include "opensees/OpsContext.h"

#include <cmath>
#include <limits>

#include "model/ElasticModuli.h"
#include "model/Placed.h"
#include "opensees/OpsFibres.h"
#include "opensees/OpsMaterials.h"

namespace Tevra {

bool OpsContext::Make() {
    const std::int64_t highest = std::int64_t{model.HighestSection()} + model.HighestProp2D();
    if (!materials.CreateMap(model) || highest > std::numeric_limits<int>::max()) {
        return false;
    }
    firstShell = model.HighestSection();
    for (const int number : model.SectionTable().Numbers()) {
        AddSection(number);
    }
    written = CBitSet(model.HighestElem());
    for (const int number : model.ElemTable().Numbers()) {
        written.Set(number, IsWhole(number));
    }
    return true;
}

void OpsContext::AddSection(int number) {
    const Data::CSection& section = model.Section(number);
    const Data::CMatAnal* material = model.FindMaterial(section.Component(1).Material());
    if (material == nullptr) {
        return;
    }
    OpsSection made;
    // Fibres of one component would leave out the stiffness of the others.
    made.isFibre = section.NumComponent() == 1 && HasFibreModel(*material) &&
                   HasFibreShape(section.Component(1).Geometry());
    made.material = materials.Prop1D(number).front().mid;
    made.e = ElasticModulus(*material);
    made.g = ShearModulus(*material);
    made.properties = model.SectionProp(number, 0, 0.5, true);
    const SectionProperties& p = made.properties;
    for (const double value : {p.area, made.e, made.g, p.j, p.iyy, p.izz}) {
        if (!std::isfinite(value)) {
            return;
        }
        made.beam += ' ';
        AppendGeneral(made.beam, value);
    }
    sections.Set(number, std::move(made));
}

namespace {

OpsKind KindOf2D(Prop2DType type) {
    switch (type) {
        case Prop2DType::PlaneStress:
        case Prop2DType::PlaneStrain:
            return OpsKind::Quad;
        case Prop2DType::Axisymmetric:
        case Prop2DType::LoadPanel:
            return OpsKind::None;
        default:
            return OpsKind::Shell;
    }
}

}  // namespace

OpsKind KindOf(const CVynData& model, const Data::CElement& element) {
    if (element.IsBeam()) {
        return OpsKind::Beam;
    }
    if (element.IsSection()) {
        return OpsKind::Truss;
    }
    return element.Is2D() ? KindOf2D(model.Prop2D(element.Property()).Type()) : OpsKind::None;
}

/// With nodes, section or property and material, and with a length.
bool OpsContext::IsWhole(int element) const {
    const Data::CElement& record = model.Elem(element);
    if (record.IsDummy() || KindOf(model, record) == OpsKind::None ||
        !HasPlacedNodes(model, record)) {
        return false;
    }
    return record.Is2D() ? model.FindMaterial(model.Prop2D(record.Property()).Material()) != nullptr
                         : sections.Exist(record.Property()) && HasLength(model, record);
}

}  // namespace Tevra

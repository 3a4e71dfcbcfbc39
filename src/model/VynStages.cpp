#include "model/Util.h"
#include "model/VynData.h"

namespace Tevra {

namespace {

/// What a stage puts in the place of a property, null when it leaves it alone.
const Data::StageReplacement* FindReplacement(const CVynData& model, PropertyType kind,
                                              int property, int stage) {
    for (const Data::StageReplacement& replacement : model.Stage(stage).Replacements()) {
        if (replacement.kind == kind && replacement.from == property) {
            return &replacement;
        }
    }
    return nullptr;
}

}  // namespace

void CVynData::NodeTotalRestraint(Vbool6& out, int node, int stage) const {
    out = Node(node).TotalNodalRestraint() | GlobalRestraint();
    for (const Data::StageRestraint& restraint : Stage(stage).Restraints()) {
        if (Util::IsItemIncluded(restraint.nodes, {SelType::Node, node}, *this, -1, true)) {
            out = out | restraint.restraint;
        }
    }
}

int CVynData::StageProperty(PropertyType kind, int property, int stage) const {
    const Data::StageReplacement* replacement = FindReplacement(*this, kind, property, stage);
    return replacement != nullptr && replacement->property != 0 ? replacement->property : property;
}

int CVynData::NodeSpringProperty(int node, int stage) const {
    return StageProperty(PropertyType::Spring, Node(node).SpringProperty(), stage);
}

int CVynData::NodeMassProperty(int node, int stage) const {
    return StageProperty(PropertyType::Mass, Node(node).MassProperty(), stage);
}

int CVynData::NodeDamperProperty(int node, int stage) const {
    return StageProperty(PropertyType::Damper, Node(node).DamperProperty(), stage);
}

int CVynData::ElemStageProperty(int element, int stage) const {
    const Data::CElement& record = Elem(element);
    return StageProperty(InfoOf(record.Type()).property, record.Property(), stage);
}

int CVynData::StageMatAnal(PropertyType kind, int property, int stage) const {
    const Data::StageReplacement* replacement = FindReplacement(*this, kind, property, stage);
    if (replacement != nullptr && replacement->material != 0) {
        return replacement->material;
    }
    switch (kind) {
        case PropertyType::Section:
            return Section(property).MaterialAnalysis();
        case PropertyType::Prop2D:
            return Prop2D(property).MaterialAnalysis();
        case PropertyType::Prop3D:
            return Prop3D(property).MaterialAnalysis();
        default:
            return 0;
    }
}

int CVynData::ElemStageMatAnal(int element, int stage) const {
    // The stage names its materials by the property that the element has without it.
    const Data::CElement& record = Elem(element);
    const PropertyType kind = InfoOf(record.Type()).property;
    const Data::StageReplacement* replacement =
        FindReplacement(*this, kind, record.Property(), stage);
    if (replacement != nullptr && replacement->material != 0) {
        return replacement->material;
    }
    return StageMatAnal(kind, ElemStageProperty(element, stage), stage);
}

}  // namespace Tevra

#include <algorithm>

#include "model/Util.h"
#include "model/VynData.h"
#include "model/VynDerived.h"

namespace Tevra {

namespace {

void ActivateNodesOf(const Data::CElement& element, CBitSet& nodes) {
    for (int k = 1; k <= element.NumTopo(); ++k) {
        nodes.Set(element.Topo(k));
    }
}

bool AllIn(const Data::CElement& element, const CBitSet& nodes) {
    for (int k = 1; k <= element.NumTopo(); ++k) {
        if (!nodes.Test(element.Topo(k))) {
            return false;
        }
    }
    return element.NumTopo() > 0;
}

bool IsIn(const Data::CElement& element, int number, SelType kind, const CBitSet& items) {
    switch (kind) {
        case SelType::Node:
            return AllIn(element, items);
        case SelType::Member:
            return items.Test(element.ParentMember());
        default:
            return items.Test(number);
    }
}

ActiveSet MakeActiveSet(const CVynData& model, const CEntList& list) {
    const CBitSet items = Util::Item(list, model, -1, true);
    ActiveSet set{CBitSet(model.HighestNode()), CBitSet(model.HighestElem())};
    for (const int number : model.ElemTable().Numbers()) {
        const Data::CElement& element = model.Elem(number);
        if (IsIn(element, number, list.TypeOf(), items)) {
            set.elements.Set(number);
            if (list.TypeOf() != SelType::Node) {
                ActivateNodesOf(element, set.nodes);
            }
        }
    }
    if (list.TypeOf() == SelType::Node) {
        set.nodes.Add(items);
    }
    return set;
}

}  // namespace

/// The sets of a selection, worked out once; null when everything is active.
const ActiveSet* CVynData::Active(int selection) const {
    const SelType kind = List(selection).TypeOf();
    if (kind != SelType::Node && kind != SelType::Element && kind != SelType::Member) {
        return nullptr;
    }
    auto& sets = Derived().active;
    auto found = sets.find(selection);
    if (found == sets.end()) {
        found = sets.emplace(selection, MakeActiveSet(*this, List(selection).Definition())).first;
    }
    return &found->second;
}

bool CVynData::NodeIsActive(int node, int selection, SelType /*kind*/) const {
    const ActiveSet* active = Active(selection);
    return NodeExist(node) && (active == nullptr || active->nodes.Test(node));
}

bool CVynData::ElemIsActive(int element, int selection) const {
    const ActiveSet* active = Active(selection);
    return active != nullptr ? active->elements.Test(element) : ElemExist(element);
}

bool CVynData::RigidIsActive(int rigid, int selection) const {
    return RigidExist(rigid) &&
           NodeIsActive(Rigid(rigid).PrimaryNode(), selection, SelType::Element);
}

bool CVynData::JointIsActive(int joint, int selection) const {
    return JointExist(joint) && NodeIsActive(Joint(joint).Node(1), selection, SelType::Element) &&
           NodeIsActive(Joint(joint).Node(2), selection, SelType::Element);
}

bool CVynData::ConstraintEqnIsActive(int equation, int selection) const {
    if (!ConstraintEqnExist(equation) ||
        !NodeIsActive(ConstraintEqn(equation).ConstrainedNode(), selection, SelType::Element)) {
        return false;
    }
    const auto& terms = ConstraintEqn(equation).Terms();
    return std::all_of(terms.begin(), terms.end(), [&](const Data::ConstraintTerm& term) {
        return NodeIsActive(term.node, selection, SelType::Element);
    });
}

}  // namespace Tevra

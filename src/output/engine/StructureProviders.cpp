#include "model/ElementType.h"
#include "model/Names.h"
#include "model/Util.h"
#include "output/engine/Providers.h"

namespace Tevra::Output {

namespace {

template <class Row>
void ForEachOf(const CRows& rows, const CEntList& list, Row row) {
    Util::Item(list, rows.Model(), -1, true).ForEach(row);
}

void NodeRows(CRows& rows) {
    ForEachOf(rows, rows.View().Nodes(), [&rows](int number) {
        const Data::CNode& node = rows.Model().Node(number);
        rows.Int(number).Text(node.Name()).Reals(node.Position()).Int(node.Axis());
        rows.Text(RestraintString(node.TotalNodalRestraint()));
        rows.Int(node.SpringProperty()).Int(node.MassProperty()).EndRow();
    });
}

void ElementRows(CRows& rows) {
    ForEachOf(rows, rows.View().Elements(), [&rows](int number) {
        const Data::CElement& element = rows.Model().Elem(number);
        rows.Int(number).Text(element.Name()).Text(ElementTypeString(element.Type()));
        rows.Int(element.Property()).Int(element.Group()).Ints(element.Topo());
        rows.Int(element.OrientationNode()).Real(element.OrientationAngle());
        rows.Text(element.IsDummy() ? L"yes" : L"no").EndRow();
    });
}

void MemberRows(CRows& rows) {
    ForEachOf(rows, rows.View().Members(), [&rows](int number) {
        const Data::CMember& member = rows.Model().Member(number);
        rows.Int(number).Text(member.Name()).Text(MemberTypeString(member.Type()));
        rows.Int(member.Property()).Int(member.Group()).Text(member.Topology());
        rows.Int(member.OrientationNode()).Real(member.OrientationAngle());
        rows.Text(member.IsDummy() ? L"yes" : L"no").EndRow();
    });
}

std::vector<Column> EntityColumns() {
    return {{L"Number"},
            {L"Name"},
            {L"Type"},
            {L"Property"},
            {L"Group"},
            {L"Topology"},
            {L"Orientation node"},
            {L"Orientation angle", Quantity::Angle},
            {L"Dummy"}};
}

}  // namespace

DataProvider NodesProvider() {
    return {{{L"Node"},
             {L"Name"},
             {L"x", Quantity::Length},
             {L"y", Quantity::Length},
             {L"z", Quantity::Length},
             {L"Axis"},
             {L"Restraint"},
             {L"Spring property"},
             {L"Mass property"}},
            &NodeRows};
}

DataProvider ElementsProvider() {
    return {EntityColumns(), &ElementRows};
}

DataProvider MembersProvider() {
    return {EntityColumns(), &MemberRows};
}

}  // namespace Tevra::Output

#include "document/RecordFields.h"

namespace Tevra::Document {

namespace {

using Data::CAssembly;
using Data::CAxis;
using Data::CElemConnect;
using Data::CElement;
using Data::CGridPlane;
using Data::CMember;
using Data::COffset;
using Data::ReleaseState;

void AddReleased(CElemConnect& connect, Vbool6 released) {
    for (const Direction d : kDirections) {
        if (released.IncludesDirection(d)) {
            connect.SetState(d, ReleaseState::Released);
        }
    }
}
std::vector<EndSpring> SpringsOf(const CElemConnect& connect) {
    std::vector<EndSpring> springs;
    for (const Direction d : kDirections) {
        if (connect.State(d) == ReleaseState::Spring) {
            springs.push_back({d, connect.Stiffness(d)});
        }
    }
    return springs;
}
void AddSprings(CElemConnect& connect, const std::vector<EndSpring>& springs) {
    for (const EndSpring& spring : springs) {
        connect.SetSpring(spring.direction, spring.stiffness);
    }
}

void SetX1(COffset& o, double x1) {
    o = COffset(x1, o.X2(), o.Y(), o.Z());
}
void SetX2(COffset& o, double x2) {
    o = COffset(o.X1(), x2, o.Y(), o.Z());
}
void SetY(COffset& o, double y) {
    o = COffset(o.X1(), o.X2(), y, o.Z());
}
void SetZ(COffset& o, double z) {
    o = COffset(o.X1(), o.X2(), o.Y(), z);
}

std::vector<int> TopoOf(const CElement& element) {
    return element.Topo();
}

template <class R, int End>
CElemConnect ConnectOf(const R& record) {
    return record.Connect(End);
}
template <class R, int End>
void SetConnectOf(R& record, const CElemConnect& connect) {
    record.SetConnect(End, connect);
}
template <class R>
constexpr std::array<Field, 2> ReleaseFields() {
    return {Key<R, &ConnectOf<R, 1>, &SetConnectOf<R, 1>>("release_1", "Connection of end 1"),
            Key<R, &ConnectOf<R, 2>, &SetConnectOf<R, 2>>("release_2", "Connection of end 2")};
}

Topology TopologyOf(const CMember& member) {
    return {member.Topology()};
}
void SetTopologyOf(CMember& member, const Topology& topology) {
    member.SetTopology(topology.text);
}

template <int K>
int AssemblyNode(const CAssembly& assembly) {
    return assembly.Topo(K);
}
template <int K>
void SetAssemblyNode(CAssembly& assembly, int node) {
    assembly.SetTopo(K, node);
}

void SetDefinitionOf(Data::CList& list, const CEntList& definition) {
    list.SetDefinition(definition);
}

}  // namespace

VYN_FIELDS(Data::CNode,
           NamedFields<Data::CNode>() +
               std::array{
                   Required(Key<Data::CNode, &Data::CNode::Position, &Data::CNode::SetPosition>(
                       "position", "Global coordinates, m")),
                   Key<Data::CNode, &Data::CNode::Axis, &Data::CNode::SetAxis>(
                       "axis", "Axis of restraints and attachments, 0 global"),
                   Key<Data::CNode, &Data::CNode::Restraint, &Data::CNode::SetRestraint>(
                       "restraint", "Restrained directions"),
                   Key<Data::CNode, &Data::CNode::SpringProperty, &Data::CNode::SetSpringProperty>(
                       "spring", "Spring property"),
                   Key<Data::CNode, &Data::CNode::DamperProperty, &Data::CNode::SetDamperProperty>(
                       "damper", "Damper property"),
                   Key<Data::CNode, &Data::CNode::MassProperty, &Data::CNode::SetMassProperty>(
                       "mass", "Mass property")})

VYN_FIELDS(EndSpring,
           std::array{
               Required(Key<EndSpring, &EndSpring::direction>("direction", "Direction")),
               Required(Key<EndSpring, &EndSpring::stiffness>("stiffness", "N/m or Nm/rad"))})

VYN_FIELDS(CElemConnect,
           std::array{
               Key<CElemConnect, &CElemConnect::Released, &AddReleased>(
                   "released", "Released directions, element axes"),
               Key<CElemConnect, &SpringsOf, &AddSprings>("springs", "Directions held by springs")})

VYN_FIELDS(COffset, std::array{Key<COffset, &COffset::X1, &SetX1>("x1", "Along x at end 1, m"),
                               Key<COffset, &COffset::X2, &SetX2>("x2", "Along x at end 2, m"),
                               Key<COffset, &COffset::Y, &SetY>("y", "Along y at both ends, m"),
                               Key<COffset, &COffset::Z, &SetZ>("z", "Along z at both ends, m")})

VYN_FIELDS(CElement,
           NamedFields<CElement>() +
               std::array{
                   Required(Key<CElement, &CElement::Type, &CElement::SetType>("type",
                                                                               "Element type")),
                   Required(Key<CElement, &TopoOf, &CElement::SetTopo>("nodes", "Topology nodes")),
                   Key<CElement, &CElement::Property, &CElement::SetProperty>(
                       "property", "Section or property, by the type"),
                   Key<CElement, &CElement::Group, &CElement::SetGroup>("group", "Group"),
                   Key<CElement, &CElement::OrientationNode, &CElement::SetOrientationNode>(
                       "orientation_node", "Node on the +y side of the local x-y plane"),
                   Key<CElement, &CElement::OrientationAngle, &CElement::SetOrientationAngle>(
                       "orientation_angle", "Turns y towards z about x, degrees"),
                   Key<CElement, &CElement::Offset, &CElement::SetOffset>(
                       "offset", "Rigid offsets from the nodes, element axes"),
                   Key<CElement, &CElement::ParentMember, &CElement::SetParentMember>(
                       "parent_member", "Member meshed into this element"),
                   Key<CElement, &CElement::IsDummy, &CElement::SetDummy>(
                       "dummy", "Takes no part in the analysis")} +
               ReleaseFields<CElement>())

VYN_FIELDS(
    CMember,
    NamedFields<CMember>() +
        std::array{
            Required(Key<CMember, &CMember::Type, &CMember::SetType>("type", "Member type")),
            Required(Key<CMember, &TopologyOf, &SetTopologyOf>("topology",
                                                               "Nodes along the member")),
            Key<CMember, &CMember::Property, &CMember::SetProperty>(
                "property", "Section or property, by the type"),
            Key<CMember, &CMember::Group, &CMember::SetGroup>("group", "Group"),
            Key<CMember, &CMember::MeshSize, &CMember::SetMeshSize>("mesh_size", "Mesh size, m"),
            Key<CMember, &CMember::OrientationNode, &CMember::SetOrientationNode>(
                "orientation_node", "Node on the +y side of the local x-y plane"),
            Key<CMember, &CMember::OrientationAngle, &CMember::SetOrientationAngle>(
                "orientation_angle", "Turns y towards z about x, degrees"),
            Key<CMember, &CMember::Offset, &CMember::SetOffset>(
                "offset", "Rigid offsets from the nodes, element axes"),
            Key<CMember, &CMember::AnalysisType1D, &CMember::SetAnalysisType1D>(
                "element_type", "Type of the 1D elements of the member"),
            Key<CMember, &CMember::Order, &CMember::SetOrder>(
                "order", "Kind of the 2D elements of the member"),
            Key<CMember, &CMember::IsDummy, &CMember::SetDummy>("dummy",
                                                                "Takes no part in the analysis")} +
        ReleaseFields<CMember>())

VYN_FIELDS(
    CAssembly,
    NamedFields<CAssembly>() +
        std::array{
            Required(Key<CAssembly, &AssemblyNode<1>, &SetAssemblyNode<1>>("node_1", "Start")),
            Required(Key<CAssembly, &AssemblyNode<2>, &SetAssemblyNode<2>>("node_2", "End")),
            Key<CAssembly, &AssemblyNode<3>, &SetAssemblyNode<3>>(
                "node_3", "Node that fixes the local x-y plane"),
            Key<CAssembly, &CAssembly::Fit, &CAssembly::SetFit>("curve_fit",
                                                                "Curve through the defining nodes"),
            Key<CAssembly, &CAssembly::Internal, &CAssembly::SetInternal>(
                "entities", "Elements or members of the assembly"),
            Key<CAssembly, &CAssembly::Storeys, &CAssembly::SetStoreys>(
                "storeys", "Grid planes that are its storeys"),
            Key<CAssembly, &CAssembly::Dy, &CAssembly::SetDy>("dim_y", "Extent along y, m"),
            Key<CAssembly, &CAssembly::Dz, &CAssembly::SetDz>("dim_z", "Extent along z, m"),
            Key<CAssembly, &CAssembly::CutPositions, &CAssembly::SetCutPositions>(
                "cuts", "Places of cut planes, fractions of the length")})

VYN_FIELDS(CAxis,
           NamedFields<CAxis>() +
               std::array{
                   Key<CAxis, &CAxis::TypeOf, &CAxis::SetType>("type", "Axis type"),
                   Key<CAxis, &CAxis::Origin, &CAxis::SetOrigin>("origin", "Origin, m"),
                   Key<CAxis, &CAxis::XDirection, &CAxis::SetXAxis>("x_axis", "Direction of x"),
                   Key<CAxis, &CAxis::XYPlane, &CAxis::SetXYPlane>("xy_plane",
                                                                   "Direction in the x-y plane")})

VYN_FIELDS(
    CGridPlane,
    NamedFields<CGridPlane>() +
        std::array{
            Key<CGridPlane, &CGridPlane::Axis, &CGridPlane::SetAxis>(
                "axis", "Axis whose z is the elevation, 0 global"),
            Key<CGridPlane, &CGridPlane::Elevation, &CGridPlane::SetElevation>("elevation", "m"),
            Key<CGridPlane, &CGridPlane::IsStorey, &CGridPlane::SetStorey>("storey",
                                                                           "True for a storey")})

VYN_FIELDS(Data::CList,
           NamedFields<Data::CList>() +
               std::array{Required(Key<Data::CList, &Data::CList::Definition, &SetDefinitionOf>(
                   "definition", "Kind and text of the list"))})

VYN_FIELDS(
    Data::CRigid,
    NamedFields<Data::CRigid>() +
        std::array{
            Required(Key<Data::CRigid, &Data::CRigid::PrimaryNode, &Data::CRigid::SetPrimaryNode>(
                "primary_node", "Node that the others follow")),
            Required(Key<Data::CRigid, &Data::CRigid::Nodes, &Data::CRigid::SetNodes>(
                "nodes", "Constrained nodes")),
            Key<Data::CRigid, &Data::CRigid::TypeOf, &Data::CRigid::SetType>(
                "link_type", "Linked freedoms, twelve bits, 4095 all")})

namespace {

template <int K>
int JointNode(const Data::CJoint& joint) {
    return joint.Node(K);
}
void SetFirstNode(Data::CJoint& joint, int node) {
    joint.SetNodes(node, joint.Node(2));
}
void SetSecondNode(Data::CJoint& joint, int node) {
    joint.SetNodes(joint.Node(1), node);
}

Direction ConstrainedDirection(const Data::CConstraintEqn& equation) {
    return equation.Dir();
}
void SetConstrainedDirection(Data::CConstraintEqn& equation, Direction direction) {
    equation.SetConstrained(equation.ConstrainedNode(), direction);
}
void SetConstrainedNode(Data::CConstraintEqn& equation, int node) {
    equation.SetConstrained(node, equation.Dir());
}

}  // namespace

VYN_FIELDS(
    Data::CJoint,
    NamedFields<Data::CJoint>() +
        std::array{
            Required(Key<Data::CJoint, &JointNode<1>, &SetFirstNode>("node_1", "Master node")),
            Required(Key<Data::CJoint, &JointNode<2>, &SetSecondNode>("node_2", "Slave node")),
            Key<Data::CJoint, &Data::CJoint::Freedom, &Data::CJoint::SetFreedom>(
                "freedoms", "Linked freedoms")})

VYN_FIELDS(Data::ConstraintTerm,
           std::array{
               Required(Key<Data::ConstraintTerm, &Data::ConstraintTerm::node>("node", "Node")),
               Required(Key<Data::ConstraintTerm, &Data::ConstraintTerm::direction>("direction",
                                                                                    "Direction")),
               Required(Key<Data::ConstraintTerm, &Data::ConstraintTerm::factor>("factor",
                                                                                 "Factor"))})

VYN_FIELDS(Data::CConstraintEqn,
           NamedFields<Data::CConstraintEqn>() +
               std::array{
                   Required(Key<Data::CConstraintEqn, &Data::CConstraintEqn::ConstrainedNode,
                                &SetConstrainedNode>("node", "Constrained node")),
                   Required(Key<Data::CConstraintEqn, &ConstrainedDirection,
                                &SetConstrainedDirection>("direction", "Constrained direction")),
                   Required(Key<Data::CConstraintEqn, &Data::CConstraintEqn::Terms,
                                &Data::CConstraintEqn::SetTerms>("terms", "Terms of the sum"))})

VYN_FIELDS(
    Data::CTiedInterface,
    NamedFields<Data::CTiedInterface>() +
        std::array{
            Required(Key<Data::CTiedInterface, &Data::CTiedInterface::Slave,
                         &Data::CTiedInterface::SetSlave>("slave", "Nodes or elements that stick")),
            Required(Key<Data::CTiedInterface, &Data::CTiedInterface::Master,
                         &Data::CTiedInterface::SetMaster>("master", "Elements of the surface"))})

}  // namespace Tevra::Document

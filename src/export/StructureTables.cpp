#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "export/TableColumns.h"
#include "model/Names.h"

// Tables of nodes, elements, members and assemblies.
namespace Tevra::Export {

namespace {

using NodeRow = RecordRow<Data::CNode>;
/// The texts of all restraints, made once.
std::wstring_view RestraintText(Vbool6 restraint) {
    static const std::vector<std::wstring> kTexts = [] {
        std::vector<std::wstring> texts;
        for (unsigned bits = 0; bits < 64; ++bits) {
            texts.push_back(RestraintString(Vbool6::FromBits(bits)));
        }
        return texts;
    }();
    return kTexts[restraint.Bits()];
}

constexpr Column<NodeRow> kNode[] = {
    {"node", [](const NodeRow& r) { return r.number; }, kKey},
    {"name", 32, [](const NodeRow& r) { return std::wstring_view(r.record.Name()); }},
    {"colour", [](const NodeRow& r) { return Colour{r.record.Colour()}; }},
    {"position", [](const NodeRow& r) { return r.record.Position(); }},
    {"axis", [](const NodeRow& r) { return r.record.Axis(); }},
    {"restraint", 12, [](const NodeRow& r) { return RestraintText(r.record.Restraint()); }},
    {"spring", [](const NodeRow& r) { return r.record.SpringProperty(); }},
    {"mass", [](const NodeRow& r) { return r.record.MassProperty(); }},
    {"damper", [](const NodeRow& r) { return r.record.DamperProperty(); }},
};

// --- what elements and members have in common

using ElementRow = RecordRow<Data::CElement>;
using MemberRow = RecordRow<Data::CMember>;

using OptionalInt = std::optional<int>;
using OptionalReal = std::optional<double>;
using OptionalText = std::optional<std::wstring_view>;

template <class Value>
std::optional<Value> When(bool applies, const Value& value) {
    return applies ? std::optional<Value>(value) : std::nullopt;
}

/// A value of the offset, of 1D elements with an offset.
OptionalReal OffsetOf(const ElementRow& r, double (Data::COffset::*value)() const) {
    const bool applies = r.record.Is1D() && r.record.IsOffset();
    return applies ? OptionalReal((r.record.Offset().*value)()) : std::nullopt;
}

/// The place of an end connection in the list of all, as a number with a digit to each direction.
std::size_t ReleaseCode(const Data::CElemConnect& connect) {
    std::size_t code = 0;
    for (const Direction d : kDirections) {
        code = code * 3 + static_cast<std::size_t>(connect.State(d));
    }
    return code;
}

/// The texts of all end connections, made once.
std::wstring_view ReleaseText(const Data::CElemConnect& connect) {
    static const std::vector<std::wstring> kTexts = [] {
        constexpr int kNumText = 3 * 3 * 3 * 3 * 3 * 3;
        std::vector<std::wstring> texts(kNumText);
        for (int code = 0; code < kNumText; ++code) {
            Data::CElemConnect made;
            int digits = code;
            for (const Direction d : kDirections) {
                made.SetState(d, static_cast<Data::ReleaseState>(digits % 3));
                digits /= 3;
            }
            texts[ReleaseCode(made)] = ReleaseString(made);
        }
        return texts;
    }();
    return kTexts[ReleaseCode(connect)];
}

template <class Row>
OptionalText ReleaseOf(const Row& r, int end) {
    return r.record.IsBeam() ? OptionalText(ReleaseText(r.record.Connect(end))) : std::nullopt;
}

/// A node to refer to; none is no node.
OptionalInt NodeNumber(int node) {
    return When(node != 0, node);
}

template <int K>
constexpr auto kTopo = [](const ElementRow& r) { return NodeNumber(r.record.Topo(K)); };

bool HasParent(const ElementRow& r) {
    return r.record.ParentMember() > 0 && r.model.MemberExist(r.record.ParentMember());
}

constexpr Rule kRefersToMember{.table = "member",
                               .field = "member",
                               .refersIn = [](const CVynData& m) { return m.HighestMember() > 0; }};

constexpr Column<ElementRow> kElement[] = {
    {"element", [](const ElementRow& r) { return r.number; }, kKey},
    {"name", 32, [](const ElementRow& r) { return std::wstring_view(r.record.Name()); }},
    {"colour", [](const ElementRow& r) { return Colour{r.record.Colour()}; }},
    {"type", 12, [](const ElementRow& r) { return ElementTypeString(r.record.Type()); }},
    {"prop_1d_id",
     [](const ElementRow& r) { return When(r.record.IsSection(), r.record.Property()); }},
    {"prop_2d_id", [](const ElementRow& r) { return When(r.record.Is2D(), r.record.Property()); }},
    {"prop_3d_id", [](const ElementRow& r) { return When(r.record.Is3D(), r.record.Property()); }},
    {"group_id", [](const ElementRow& r) { return r.record.Group(); }},
    {"num_node", [](const ElementRow& r) { return r.record.NumTopo(); }},
    {"node_1", kTopo<1>, kRefersToNode},
    {"node_2", kTopo<2>, kRefersToNode},
    {"node_3", kTopo<3>, kRefersToNode},
    {"node_4", kTopo<4>, kRefersToNode},
    {"node_5", kTopo<5>, kRefersToNode},
    {"node_6", kTopo<6>, kRefersToNode},
    {"node_7", kTopo<7>, kRefersToNode},
    {"node_8", kTopo<8>, kRefersToNode},
    {"orientation_angle", [](const ElementRow& r) { return r.record.OrientationAngle(); }},
    {"dummy", [](const ElementRow& r) { return r.record.IsDummy(); }},
    {"parent_member",
     [](const ElementRow& r) { return When(HasParent(r), r.record.ParentMember()); },
     kRefersToMember},
    {"member_type", 12,
     [](const ElementRow& r) {
         return HasParent(r) ? std::optional(
                                   MemberTypeString(r.model.Member(r.record.ParentMember()).Type()))
                             : std::nullopt;
     }},
    {"offset_x1", [](const ElementRow& r) { return OffsetOf(r, &Data::COffset::X1); }},
    {"offset_x2", [](const ElementRow& r) { return OffsetOf(r, &Data::COffset::X2); }},
    {"offset_y", [](const ElementRow& r) { return OffsetOf(r, &Data::COffset::Y); }},
    {"offset_z", [](const ElementRow& r) { return OffsetOf(r, &Data::COffset::Z); }},
    {"release_1", 12, [](const ElementRow& r) { return ReleaseOf(r, 1); }},
    {"release_2", 12, [](const ElementRow& r) { return ReleaseOf(r, 2); }},
};

constexpr Column<MemberRow> kMember[] = {
    {"member", [](const MemberRow& r) { return r.number; }, kKey},
    {"name", 32, [](const MemberRow& r) { return r.record.Name(); }},
    {"colour", [](const MemberRow& r) { return Colour{r.record.Colour()}; }},
    {"type", 12, [](const MemberRow& r) { return MembTypeString(r.record.Type()); }},
    {"prop_1d_id",
     [](const MemberRow& r) { return When(r.record.IsSection(), r.record.Property()); }},
    {"prop_2d_id", [](const MemberRow& r) { return When(r.record.Is2D(), r.record.Property()); }},
    {"prop_3d_id", [](const MemberRow& r) { return When(r.record.Is3D(), r.record.Property()); }},
    {"group_id", [](const MemberRow& r) { return r.record.Group(); }},
    {"topology", 256, [](const MemberRow& r) { return r.record.Topology(); }},
    {"type_1d", 12,
     [](const MemberRow& r) {
         return When(r.record.Is1D(), ElementTypeString(r.record.AnalysisType1D()));
     }},
    {"type_2d", 12,
     [](const MemberRow& r) { return When(r.record.Is2D(), r.record.AnalysisOrderString()); }},
    {"mesh_size", [](const MemberRow& r) { return r.record.MeshSize(); }},
    {"orientation_angle", [](const MemberRow& r) { return r.record.OrientationAngle(); }},
    {"dummy", [](const MemberRow& r) { return r.record.IsDummy(); }},
    {"offset_x1", [](const MemberRow& r) { return r.record.Offset().X1(); }},
    {"offset_x2", [](const MemberRow& r) { return r.record.Offset().X2(); }},
    {"offset_y", [](const MemberRow& r) { return r.record.Offset().Y(); }},
    {"offset_z", [](const MemberRow& r) { return r.record.Offset().Z(); }},
    {"release_1", 12, [](const MemberRow& r) { return ReleaseOf(r, 1); }},
    {"release_2", 12, [](const MemberRow& r) { return ReleaseOf(r, 2); }},
    {"revit_id", 48, [](const MemberRow& r) { return r.from.RevitId(r.record); }, kNotNull},
};

using AssemblyRow = RecordRow<Data::CAssembly>;
constexpr Column<AssemblyRow> kAssembly[] = {
    {"assembly", [](const AssemblyRow& r) { return r.number; }, kKey},
    {"name", 32, [](const AssemblyRow& r) { return r.record.Name(); }, kNotNull},
    {"storey", [](const AssemblyRow& r) { return r.record.IsStorey(); }},
    {"geometry", 12, [](const AssemblyRow& r) { return CurveFitString(r.record.Fit()); }},
    {"node_1", [](const AssemblyRow& r) { return NodeNumber(r.record.Topo(1)); }, kRefersToNode},
    {"node_2", [](const AssemblyRow& r) { return NodeNumber(r.record.Topo(2)); }, kRefersToNode},
    {"node_3", [](const AssemblyRow& r) { return NodeNumber(r.record.Topo(3)); }, kRefersToNode},
    {"internal", 32, [](const AssemblyRow& r) { return r.record.Internal().Text(); }},
    {"dim_y", [](const AssemblyRow& r) { return r.record.Dy(); }},
    {"dim_z", [](const AssemblyRow& r) { return r.record.Dz(); }},
};

}  // namespace

bool CVynExport::Node() {
    return WriteRecords(*this, "node", kNode, &CModelData::NodeTable);
}
bool CVynExport::Element() {
    return WriteRecords(*this, "element", kElement, &CModelData::ElemTable);
}
bool CVynExport::Member() {
    return WriteRecords(*this, "member", kMember, &CModelData::MemberTable);
}
bool CVynExport::Assembly() {
    return WriteRecords(*this, "assembly", kAssembly, &CModelData::AssemblyTable);
}

}  // namespace Tevra::Export

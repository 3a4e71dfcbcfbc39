#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "model/Element.h"
#include "model/EntList.h"

namespace Tevra {

enum class MemberType : int {
    None = 0,
    Beam = 1,
    Column = 2,
    Slab = 3,
    Wall = 4,
    Generic1D = 5,
    Generic2D = 6,
    Generic3D = 7,
    VoidCutter = 8
};

/// How the 2D elements of a member are made.
enum class AnalysisOrder : int { Linear = 1, Quadratic = 2, Rigid = 3, LoadPanel = 4 };

/// The curve through the defining nodes of an assembly.
enum class CurveFit : int { Line = 1, Arc = 2, Spline = 3 };

namespace Data {

/// A physical member: a beam, column, slab or wall that is meshed into elements.
class CMember : public NamedEntity {
public:
    MemberType Type() const { return m_type; }
    int Property() const { return m_property; }
    int Group() const { return m_group; }
    /// The nodes along the member as text, blank-separated, as they were given.
    const std::wstring& Topology() const { return m_topology; }
    /// Target size of the mesh, m; 0 leaves it to the mesher.
    double MeshSize() const { return m_meshSize; }
    int OrientationNode() const { return m_orientationNode; }
    double OrientationAngle() const { return m_orientationAngle; }
    const COffset& Offset() const { return m_offset; }
    const CElemConnect& Connect(int end) const { return m_connect[end == 2 ? 1 : 0]; }
    /// Type of the 1D elements that the member is meshed into.
    ElementType AnalysisType1D() const { return m_analysisType1D; }
    AnalysisOrder Order() const { return m_order; }
    /// Text of `Order`, in capitals.
    std::wstring_view AnalysisOrderString() const;

    bool Is1D() const;
    bool Is2D() const;
    bool Is3D() const { return m_type == MemberType::Generic3D; }
    /// The kind of property that the member has, by the elements that it is meshed into.
    PropertyType PropertyKind() const;
    /// True for 1D members whose elements have a section.
    bool IsSection() const { return PropertyKind() == PropertyType::Section; }
    bool IsBeam() const { return IsMeshedAs(ElementType::Beam); }
    bool IsSpring() const { return IsMeshedAs(ElementType::Spring); }
    bool IsDamper() const { return IsMeshedAs(ElementType::Damper); }
    bool IsLink() const { return IsMeshedAs(ElementType::Link); }
    bool IsCable() const { return IsMeshedAs(ElementType::Cable); }
    bool IsSpacer() const { return IsMeshedAs(ElementType::Spacer); }
    bool IsTie() const { return IsMeshedAs(ElementType::Tie); }
    bool IsOffset() const { return !m_offset.IsNone(); }
    bool IsDummy() const { return m_dummy; }

    void SetType(MemberType type) { m_type = type; }
    void SetProperty(int property) { m_property = property; }
    void SetGroup(int group) { m_group = group; }
    void SetTopology(std::wstring topology) { m_topology = std::move(topology); }
    void SetMeshSize(double size) { m_meshSize = size; }
    void SetOrientationNode(int node) { m_orientationNode = node; }
    void SetOrientationAngle(double degrees) { m_orientationAngle = degrees; }
    void SetOffset(const COffset& offset) { m_offset = offset; }
    void SetConnect(int end, const CElemConnect& connect) { m_connect[end == 2 ? 1 : 0] = connect; }
    void SetAnalysisType1D(ElementType type) { m_analysisType1D = type; }
    void SetOrder(AnalysisOrder order) { m_order = order; }
    void SetDummy(bool dummy) { m_dummy = dummy; }

    bool operator==(const CMember&) const = default;

private:
    bool IsMeshedAs(ElementType type) const { return Is1D() && m_analysisType1D == type; }

    MemberType m_type = MemberType::None;
    int m_property = 0;
    int m_group = 0;
    std::wstring m_topology;
    double m_meshSize = 0.0;
    int m_orientationNode = 0;
    double m_orientationAngle = 0.0;
    COffset m_offset;
    std::array<CElemConnect, 2> m_connect;
    ElementType m_analysisType1D = ElementType::Beam;
    AnalysisOrder m_order = AnalysisOrder::Linear;
    bool m_dummy = false;
};

/// A set of entities treated as one large beam, or a building cut at its storeys.
class CAssembly : public NamedEntity {
public:
    /// Defining node: 1 start, 2 end, 3 the node that fixes the local x-y plane; 0 none.
    int Topo(int k) const { return k >= 1 && k <= 3 ? m_topo[static_cast<std::size_t>(k - 1)] : 0; }
    CurveFit Fit() const { return m_fit; }
    /// The elements or members that belong to the assembly.
    const CEntList& Internal() const { return m_internal; }
    /// Grid planes that are the storeys of the assembly.
    const CEntList& Storeys() const { return m_storeys; }
    /// True when the assembly is cut at storeys.
    bool IsStorey() const { return !m_storeys.IsEmpty(); }
    /// Whole extents of the cut planes along local y and z, the line in their middle, m; 0 no
    /// bound.
    double Dy() const { return m_dy; }
    double Dz() const { return m_dz; }
    /// Places of the cut planes as fractions of the length.
    const std::vector<double>& CutPositions() const { return m_cutPositions; }

    void SetTopo(int k, int node) {
        if (k >= 1 && k <= 3) {
            m_topo[static_cast<std::size_t>(k - 1)] = node;
        }
    }
    void SetFit(CurveFit fit) { m_fit = fit; }
    void SetInternal(const CEntList& list) { m_internal = list; }
    void SetStoreys(const CEntList& list) { m_storeys = list; }
    void SetDy(double dy) { m_dy = dy; }
    void SetDz(double dz) { m_dz = dz; }
    void SetCutPositions(std::vector<double> positions) { m_cutPositions = std::move(positions); }

    bool operator==(const CAssembly&) const = default;

private:
    std::array<int, 3> m_topo{};
    CurveFit m_fit = CurveFit::Line;
    CEntList m_internal{L"", SelType::Element};
    CEntList m_storeys{L"", SelType::GridPlane};
    double m_dy = 0.0;
    double m_dz = 0.0;
    std::vector<double> m_cutPositions;
};

/// A saved list.
class CList : public NamedEntity {
public:
    CList() = default;
    CList(std::wstring name, CEntList list)
        : NamedEntity(std::move(name)), m_list(std::move(list)) {}
    SelType TypeOf() const { return m_list.TypeOf(); }
    const CEntList& Definition() const { return m_list; }
    void SetDefinition(const CEntList& list) { m_list = list; }
    bool operator==(const CList&) const = default;

private:
    CEntList m_list;
};

}  // namespace Data
}  // namespace Tevra

#include <climits>
#include <set>

#include "dyna/DynaAnalysis.h"
#include "dyna/DynaCards.h"
#include "dyna/DynaOut.h"
#include "model/AssemblyCalc.h"
#include "model/AssemblyCut.h"
#include "model/VynData.h"

// Planes through assemblies, whose forces are output.

namespace Tevra {

using namespace DynaCards;

namespace {

/// Columns of the heading of a cut.
constexpr std::size_t kLongestHeading = 70;

constexpr int kForcesInSystem = 2;

/// Places of the planes as fractions of the line: the storeys of a storey assembly, else its cuts.
std::vector<double> PlacesOf(const CVynData& model, int assembly) {
    const Data::CAssembly& record = model.Assembly(assembly);
    return record.IsStorey() ? Util::CAssemblyCalc::Positions(model, assembly, 0)
                             : record.CutPositions();
}

/// A corner of the plane: half of each extent off its centre, along an unbounded one none.
Vec3<double> CornerOf(const CutPlane& plane, const Data::CAssembly& assembly) {
    return plane.centre - plane.axes.AxisVec(1) * (0.5 * assembly.Dy()) -
           plane.axes.AxisVec(2) * (0.5 * assembly.Dz());
}

}  // namespace

bool CDynaAnalysis::WriteCrossSections() {
    for (const int number : Listed(m_task->AssemblyList(), SelType::Assembly)) {
        const Data::CAssembly& assembly = m_model->Assembly(number);
        const std::vector<double> places = PlacesOf(*m_model, number);
        if (places.empty()) {
            Skip(L"Assembly", number, L"it has neither cuts nor storeys");
        }
        const CAssemblyElements elements(*m_model, assembly, CutScope::All);
        for (const double place : places) {
            const CutPlane plane = CutPlane::Of(*m_model, assembly, true, place);
            if (!WriteCrossSection(number, elements, plane)) {
                return false;
            }
        }
    }
    return true;
}

/// The parts of the elements, ascending, each once.
std::vector<int> CDynaAnalysis::PartsOf(const std::vector<CutElement>& cuts) const {
    std::set<int> parts;
    for (const CutElement& cut : cuts) {
        parts.insert(PartOf(cut.element));
    }
    parts.erase(0);
    return {parts.begin(), parts.end()};
}

/// The parts that a plane cuts, its axes, and the plane: from one corner along the assembly's y and
/// z, its normal along x.
bool CDynaAnalysis::WriteCrossSection(int assembly, const CAssemblyElements& elements,
                                      const CutPlane& plane) {
    const Data::CAssembly& record = m_model->Assembly(assembly);
    const std::vector<int> parts = PartsOf(FindCut(*m_model, record, elements, plane));
    if (parts.empty()) {
        Skip(L"A cut of assembly", assembly, L"it cuts nothing");
        return true;
    }
    if (m_highestNode > INT_MAX - 3) {
        AddError(L"No numbers are left for the nodes of the cuts of assembly " +
                 std::to_wstring(assembly));
        return false;
    }
    int set = NextSet();
    set = set == kAllPartsSet ? NextSet() : set;
    WriteSet(kPartList, set, parts);
    const int system = WritePlaneAxes(plane);
    const int section = ++m_crossSections;
    const Vec3<double> tail = CornerOf(plane, record);
    const double arm = ArmAt(tail);
    const Vec3<double> head = tail + plane.axes.AxisVec(0) * arm;
    const Vec3<double> edge = tail + plane.axes.AxisVec(1) * arm;
    m_out->Keyword(kCrossSection);
    m_out->Int(section, 10);
    m_out->Text().AppendCard(record.Name().substr(0, kLongestHeading)).EndLine();
    m_out->Line<kCrossSection>(set, tail.x, tail.y, tail.z, head.x, head.y, head.z);
    m_out->Line<kCrossSection, 1>(edge.x, edge.y, edge.z, record.Dy(), record.Dz(), system,
                                  kForcesInSystem);
    return true;
}

/// Three nodes and the coordinate system through them, in whose axes forces are output. Its number.
int CDynaAnalysis::WritePlaneAxes(const CutPlane& plane) {
    const int origin = m_highestNode + 1;
    m_highestNode += 3;
    m_out->Keyword(kNode);
    const double arm = ArmAt(plane.centre);
    WriteNode(origin, plane.centre);
    WriteNode(origin + 1, plane.centre + plane.axes.AxisVec(0) * arm);
    WriteNode(origin + 2, plane.centre + plane.axes.AxisVec(1) * arm);
    const int system = ++m_coordinateCount;
    m_out->Card<kCoordinateNodes>(system, origin, origin + 1, origin + 2);
    return system;
}

}  // namespace Tevra

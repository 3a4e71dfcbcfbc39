#include <cmath>

#include "export/AssemblyWork.h"
#include "export/Stopwatch.h"
#include "export/TableColumns.h"

// Tables of results by entity, case and position.
namespace Tevra::Export {

namespace {

/// One position of one entity in one case.
template <class Record, class Place = double>
struct ResultRow {
    int id;
    const std::string& caseId;
    const SCaseRef& ref;
    const Record& record;
    Place place{};
    SelType kind = SelType::None;  ///< of a spring: node or element
};

// What every table begins with.
template <class Row>
constexpr Column<Row> kId{"id", [](const Row& r) { return r.id; }, kNotNull};
template <class Row>
constexpr Column<Row> kCaseId{
    "case_id", 12, [](const Row& r) -> const std::string& { return r.caseId; }, kNotNull};
template <class Row>
constexpr Column<Row> kCase{"case", [](const Row& r) { return r.ref; }};

using NodeRow = ResultRow<NodeResult>;
constexpr Column<NodeRow> kNode[] = {
    kId<NodeRow>,
    kCaseId<NodeRow>,
    kCase<NodeRow>,
    {"disp",
     [](const NodeRow& r) {
         return Vector6{r.record.Disp(), r.record.Rotn()};
     }},
    {"reaction",
     [](const NodeRow& r) {
         return Vector6{r.record.ReactForce(), r.record.ReactMoment()};
     }},
    {"constraint",
     [](const NodeRow& r) {
         return Vector6{r.record.ConsForce(), r.record.ConsMoment()};
     }},
    {"vel",
     [](const NodeRow& r) {
         return Vector6{r.record.Vel(), r.record.RotVel()};
     }},
    {"acc",
     [](const NodeRow& r) {
         return Vector6{r.record.Acc(), r.record.RotAcc()};
     }},
};

const std::vector<double> kOneEnd{0.0};
const std::vector<double> kBothEnds{0.0, 1.0};
using SpringRow = ResultRow<SpringResult>;
constexpr Column<SpringRow> kSpring[] = {
    kId<SpringRow>,
    {"entity", 8,
     [](const SpringRow& r) {
         return std::wstring_view(r.kind == SelType::Node ? L"NODE" : L"ELEMENT");
     },
     kNotNull},
    kCaseId<SpringRow>,
    kCase<SpringRow>,
    {"position_r", [](const SpringRow& r) { return r.place; }},
    {"disp", [](const SpringRow& r) { return r.record.Disp(); }},
    {"force", [](const SpringRow& r) { return r.record.Force(); }},
    {"moment", [](const SpringRow& r) { return r.record.Moment(); }},
};

constexpr double kMillionths = 1e6;
using LineRow = ResultRow<Elem1DResult, int>;
constexpr Column<LineRow> kElem1D[] = {
    kId<LineRow>,
    kCaseId<LineRow>,
    kCase<LineRow>,
    {"position_r", [](const LineRow& r) { return r.place / kMillionths; }},
    {"disp", [](const LineRow& r) { return r.record.Disp(); }},
    {"force", [](const LineRow& r) { return r.record.Force(); }},
    {"moment", [](const LineRow& r) { return r.record.Moment(); }},
};

using FaceRow = ResultRow<Elem2DResult, Vec2<double>>;
constexpr Column<FaceRow> kElem2D[] = {
    kId<FaceRow>,
    kCaseId<FaceRow>,
    kCase<FaceRow>,
    {"position_r", [](const FaceRow& r) { return r.place.x; }},
    {"position_s", [](const FaceRow& r) { return r.place.y; }},
    {"disp", [](const FaceRow& r) { return r.record.Disp(); }},
    {"force", [](const FaceRow& r) { return r.record.Force(); }},
    {"moment", [](const FaceRow& r) { return r.record.Moment(); }},
    {"shear", [](const FaceRow& r) { return r.record.Shear(); }},
    {"stress_top", [](const FaceRow& r) { return r.record.StressTop(); }},
    {"stress_middle", [](const FaceRow& r) { return r.record.StressMiddle(); }},
    {"stress_bottom", [](const FaceRow& r) { return r.record.StressBottom(); }},
};

using SolidRow = ResultRow<Elem3DResult, Vec3<double>>;
constexpr Column<SolidRow> kElem3D[] = {
    kId<SolidRow>,
    kCaseId<SolidRow>,
    kCase<SolidRow>,
    {"position_r", [](const SolidRow& r) { return r.place.x; }},
    {"position_s", [](const SolidRow& r) { return r.place.y; }},
    {"position_t", [](const SolidRow& r) { return r.place.z; }},
    {"disp", [](const SolidRow& r) { return r.record.Disp(); }},
    {"stress", [](const SolidRow& r) { return r.record.Stress(); }},
};

using AssemblyRow = ResultRow<AssemblyResult>;
constexpr Column<AssemblyRow> kAssembly[] = {
    kId<AssemblyRow>,
    kCaseId<AssemblyRow>,
    kCase<AssemblyRow>,
    {"position_r", [](const AssemblyRow& r) { return r.place; }},
    {"disp", [](const AssemblyRow& r) { return r.record.Disp(); }},
    {"rotn", [](const AssemblyRow& r) { return r.record.Rotation(); }},
    {"drift", [](const AssemblyRow& r) { return r.record.Drift(); }},
    {"force", [](const AssemblyRow& r) { return r.record.Force(); }},
    {"moment", [](const AssemblyRow& r) { return r.record.Moment(); }},
};

/// A row for each position of a set.
template <class Visit, class Set>
void VisitPositions(Visit& visit, int id, const std::string& caseId, const SCaseRef& ref,
                    const Set& set, SelType kind = SelType::None) {
    for (std::size_t i = 0; i < set.NumPosition(); ++i) {
        visit({id, caseId, ref, set[i], set.Position(i), kind});
    }
}

}  // namespace

/// Cases outermost: `forCase(ref, caseId, visit)` gives the rows of all entities in a case.
template <class Row, std::size_t N, class ForCase>
bool CVynExport::WriteResults(const char* table, const char* timed, const Column<Row> (&columns)[N],
                              ForCase forCase) {
    return WriteTable(*this, table, columns, [&](auto visit) {
        for (const SCaseRef& mapped : ResultCases()) {
            const std::string caseId = CaseId(mapped);
            for (const SCaseRef& ref : ExpandCases(mapped)) {
                const Stopwatch watch;
                forCase(ref, caseId, visit);
                ReportTime(timed, ref, watch.Milliseconds());
            }
        }
    });
}

bool CVynExport::ResultNode() {
    if (!IncludeNode() || !m_model->AnyResults()) {
        return true;
    }
    const auto nodes = GetNodes();
    return WriteResults("result_node", "Node", kNode,
                        [&](const SCaseRef& ref, const std::string& caseId, auto& visit) {
                            const NodeFlags flags{DisplacementExist(ref, 'N'), VelocityExist(ref),
                                                  AccelerationExist(ref), ReactionExist(ref),
                                                  ConstraintExist(ref)};
                            NodeSet set;
                            for (const auto& [number, node] : nodes) {
                                ResultAnalysis(number, flags, ref, set);
                                visit({number, caseId, ref, set});
                            }
                        });
}

bool CVynExport::ResultSpring() {
    if (!IncludeSpring() || !m_model->AnyResults()) {
        return true;
    }
    const auto springs = GetSpringElements();
    return WriteResults(
        "result_spring", "Spring", kSpring,
        [&](const SCaseRef& ref, const std::string& caseId, auto& visit) {
            const ElementFlags flags{DisplacementExist(ref, 'S'), ForceExist(ref, 'S'), false};
            for (const auto& [number, kind] : springs) {
                const bool atNode = kind == SelType::Node;
                SpringSet set(atNode || m_model->Elem(number).NumTopo() < 2 ? kOneEnd : kBothEnds);
                ResultAnalysis({kind, number}, flags, ref, set);
                VisitPositions(visit, number, caseId, ref, set, kind);
            }
        });
}

bool CVynExport::ResultElement1D() {
    if (!Include1DElement() || !m_model->AnyResults()) {
        return true;
    }
    if (m_beamPositions.empty()) {
        Precalc1DIntermediateResults();
    }
    const auto elements = Get1DElements();
    return WriteResults(
        "result_elem_1d", "1D element", kElem1D,
        [&](const SCaseRef& ref, const std::string& caseId, auto& visit) {
            const ElementFlags flags{DisplacementExist(ref, '1'), ForceExist(ref, '1'), false};
            Elem1DSet set(0);
            for (const auto& [number, element] : elements) {
                SetPositions(number, ref, set);
                ResultAnalysis(number, flags, ref, set);
                VisitPositions(visit, number, caseId, ref, set);
            }
        });
}

bool CVynExport::ResultElement2D() {
    if (!Include2DElement() || !m_model->AnyResults()) {
        return true;
    }
    const auto elements = Get2DElements();
    return WriteResults(
        "result_elem_2d", "2D element", kElem2D,
        [&](const SCaseRef& ref, const std::string& caseId, auto& visit) {
            const ElementFlags flags{DisplacementExist(ref, '2'), ForceExist(ref, '2'),
                                     StressExist(ref, '2')};
            for (const auto& [number, element] : elements) {
                Elem2DSet set(static_cast<std::size_t>(m_model->NumResultPosition(number)));
                for (std::size_t i = 0; i < set.NumPosition(); ++i) {
                    set.SetPosition(i, Position2D(number, static_cast<int>(i)));
                }
                ResultAnalysis(number, flags, ref, set);
                VisitPositions(visit, number, caseId, ref, set);
            }
        });
}

bool CVynExport::ResultElement3D() {
    if (!Include3DElement() || !m_model->AnyResults()) {
        return true;
    }
    const auto elements = Get3DElements();
    return WriteResults(
        "result_elem_3d", "3D element", kElem3D,
        [&](const SCaseRef& ref, const std::string& caseId, auto& visit) {
            const ElementFlags flags{DisplacementExist(ref, '3'), false, StressExist(ref, '3')};
            for (const auto& [number, element] : elements) {
                Elem3DSet set(static_cast<std::size_t>(m_model->NumResultPosition(number)));
                for (std::size_t i = 0; i < set.NumPosition(); ++i) {
                    set.SetPosition(i, Position3D(number, static_cast<int>(i)));
                }
                ResultAnalysis(number, flags, ref, set);
                VisitPositions(visit, number, caseId, ref, set);
            }
        });
}

bool CVynExport::ResultAssembly() {
    if (!IncludeAssembly() || !m_model->AnyResults()) {
        return true;
    }
    const auto assemblies = GetAssemblies();
    const bool written = WriteResults(
        "result_assembly", "Assembly", kAssembly,
        [&](const SCaseRef& ref, const std::string& caseId, auto& visit) {
            const ElementFlags flags{DisplacementExist(ref, 'A'), ForceExist(ref, 'A'), false};
            for (const auto& [number, assembly] : assemblies) {
                AssemblySet set(PositionsOfAssembly(number));
                ResultAnalysis(number, flags, ref, set);
                VisitPositions(visit, number, caseId, ref, set);
            }
        });
    m_assemblies.reset();  // cuts are those of the model as it is now
    return written;
}

}  // namespace Tevra::Export

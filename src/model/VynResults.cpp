#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

#include "model/ResultQuery.h"
#include "model/VynData.h"

namespace Tevra {

namespace {

constexpr double kNone = std::numeric_limits<double>::quiet_NaN();
constexpr Vec3<double> kNoVector{kNone, kNone, kNone};

/// Which tables hold what a host data code names, some codes in several rows. Displacements of
/// elements follow from those of nodes.
struct CodeKinds {
    int code;
    std::array<ResultKind, 2> kinds;
};
constexpr CodeKinds kCodes[] = {
    {12001004, {ResultKind::NodeDisp, ResultKind::NodeDisp}},
    {12001008, {ResultKind::NodeDisp, ResultKind::NodeDisp}},
    {12002004, {ResultKind::NodeVel, ResultKind::NodeVel}},
    {12002008, {ResultKind::NodeVel, ResultKind::NodeVel}},
    {12003004, {ResultKind::NodeAcc, ResultKind::NodeAcc}},
    {12003008, {ResultKind::NodeAcc, ResultKind::NodeAcc}},
    {12004004, {ResultKind::NodeReaction, ResultKind::NodeReaction}},
    {12004008, {ResultKind::NodeReaction, ResultKind::NodeReaction}},
    {12005004, {ResultKind::NodeConstraint, ResultKind::NodeConstraint}},
    {12005008, {ResultKind::NodeConstraint, ResultKind::NodeConstraint}},
    {14001004, {ResultKind::Elem1DDisp, ResultKind::NodeDisp}},
    {14001008, {ResultKind::Elem1DDisp, ResultKind::NodeDisp}},
    {14002004, {ResultKind::Elem1DForce, ResultKind::SpringForce}},
    {14002008, {ResultKind::Elem1DForce, ResultKind::SpringForce}},
    {14002004, {ResultKind::NodeSpringForce, ResultKind::NodeSpringForce}},
    {14002008, {ResultKind::NodeSpringForce, ResultKind::NodeSpringForce}},
    {15001004, {ResultKind::NodeDisp, ResultKind::NodeDisp}},
    {15001008, {ResultKind::NodeDisp, ResultKind::NodeDisp}},
    {15003001, {ResultKind::Elem2DForce, ResultKind::Elem2DForce}},
    {15004001, {ResultKind::Elem2DForce, ResultKind::Elem2DForce}},
    {15004002, {ResultKind::Elem2DForce, ResultKind::Elem2DForce}},
    {15007000, {ResultKind::Elem2DStress, ResultKind::Elem2DStress}},
    {15501004, {ResultKind::NodeDisp, ResultKind::NodeDisp}},
    {15506000, {ResultKind::Elem3DStress, ResultKind::Elem3DStress}},
};

bool HasKind(const CaseResults* results, ResultKind kind) {
    const ResultTable* table = results != nullptr ? results->Find(kind) : nullptr;
    return table != nullptr && table->NumEntity() > 0;
}

bool HasCode(const CaseResults* results, int code) {
    return std::any_of(std::begin(kCodes), std::end(kCodes), [&](const CodeKinds& entry) {
        return entry.code == code &&
               (HasKind(results, entry.kinds[0]) || HasKind(results, entry.kinds[1]));
    });
}

}  // namespace

bool CVynData::AnalysisCaseHasResults(int analysisCase) const {
    const CaseResults* results = m_results.Find(analysisCase);
    return AnalysisCaseExist(analysisCase) && results != nullptr && results->Any();
}

bool CVynData::CombinationCaseHasResults(int combination, const SCaseRef& ref) const {
    return EveryAnalysisCase(*this, combination, std::max(ref.Permutation(), 0),
                             [this](int number) { return AnalysisCaseHasResults(number); });
}

bool CVynData::ResSetExist(const ResSetRef& set) const {
    const auto has = [this, &set](int number) { return HasCode(m_results.Find(number), set.code); };
    if (set.ref.IsCombination()) {
        // A permutation without the case that lacks the kind has it all the same.
        return AnyAnalysisCase(*this, set.ref.Case(), std::max(set.ref.Permutation(), 0), has);
    }
    return set.ref.IsAnalysis() && has(set.ref.Case());
}

bool CVynData::Elem2DFEInModel() const {
    const auto elements = ElemTable().Numbers();
    return std::any_of(elements.begin(), elements.end(), [this](int number) {
        return Elem(number).Is2D() && Prop2D(Elem(number).Property()).Is2DFE();
    });
}

namespace {

/// The vector of any case, from `own` that gives the one of an analysis case.
template <class Own>
Vec3<double> VectorOf(const CVynData& model, const SCaseRef& ref, Own own) {
    std::array<double, 3> out{};
    ForCase(model, ref, out, [&own](int number, std::span<double> figures) {
        const Vec3<double> v = own(number);
        figures[0] = v.x;
        figures[1] = v.y;
        figures[2] = v.z;
    });
    return {out[0], out[1], out[2]};
}

}  // namespace

// --- figures of a case as a whole

Vec3<double> CVynData::GlobalVector(const SCaseRef& ref,
                                    Vec3<double> GlobalResults::*member) const {
    return VectorOf(*this, ref, [&](int number) { return OwnGlobal(AnalysisRef(number)).*member; });
}

Vec3<double> CVynData::TotalForce(const SCaseRef& ref) const {
    return GlobalVector(ref, &GlobalResults::force);
}
Vec3<double> CVynData::TotalMoment(const SCaseRef& ref) const {
    return GlobalVector(ref, &GlobalResults::moment);
}
Vec3<double> CVynData::TotalReactForce(const SCaseRef& ref) const {
    return GlobalVector(ref, &GlobalResults::reactForce);
}
Vec3<double> CVynData::TotalReactMoment(const SCaseRef& ref) const {
    return GlobalVector(ref, &GlobalResults::reactMoment);
}

const GlobalResults& CVynData::OwnGlobal(const SCaseRef& ref) const {
    static const GlobalResults kMissing;
    const CaseResults* results = ref.IsAnalysis() ? m_results.Find(ref.Case()) : nullptr;
    return results != nullptr ? results->Global() : kMissing;
}

int CVynData::Mode(const SCaseRef& ref) const {
    if (!ref.IsAnalysis()) {
        return 0;
    }
    const int solved = OwnGlobal(ref).mode;
    return solved != 0 ? solved : AnalysisCase(ref.Case()).Desc().Mode();
}

// Figures of modes belong to one analysis case; they do not combine.
double CVynData::Frequency(const SCaseRef& ref) const {
    return OwnGlobal(ref).frequency;
}
double CVynData::LoadFactor(const SCaseRef& ref) const {
    return OwnGlobal(ref).loadFactor;
}
double CVynData::ModalMass(const SCaseRef& ref) const {
    return OwnGlobal(ref).modalMass;
}
double CVynData::ModalStiff(const SCaseRef& ref) const {
    return OwnGlobal(ref).modalStiff;
}
double CVynData::ModalGeoStiff(const SCaseRef& ref) const {
    return OwnGlobal(ref).modalGeoStiff;
}
Vec3<double> CVynData::EffMass(const SCaseRef& ref) const {
    return OwnGlobal(ref).effMass;
}
Vec3<double> CVynData::RotEffMass(const SCaseRef& ref) const {
    return OwnGlobal(ref).rotEffMass;
}
double CVynData::Mass(const SCaseRef& ref) const {
    return OwnGlobal(ref).mass;
}
Vec3<double> CVynData::CentreOfMass(const SCaseRef& ref) const {
    return OwnGlobal(ref).centreOfMass;
}

void CVynData::SetMass(const SCaseRef& ref, double mass) {
    if (ref.IsAnalysis() && ref.Case() > 0) {
        EditResults().Edit(ref.Case()).EditGlobal().mass = mass;
    }
}

void CVynData::SetCentreOfMass(const SCaseRef& ref, const Vec3<double>& centre) {
    if (ref.IsAnalysis() && ref.Case() > 0) {
        EditResults().Edit(ref.Case()).EditGlobal().centreOfMass = centre;
    }
}

// --- figures of entities

template <std::size_t N>
std::array<double, N> CVynData::Row(ResultKind kind, int entity, int row, std::size_t first,
                                    const SCaseRef& ref) const {
    std::array<double, N> out{};
    ForCase(*this, ref, out, [&](int number, std::span<double> figures) {
        const CaseResults* results = m_results.Find(number);
        const ResultTable* table = results != nullptr ? results->Find(kind) : nullptr;
        const double* values = table != nullptr ? table->Row(entity, row) : nullptr;
        if (values != nullptr) {
            std::copy_n(values + first, N, figures.begin());
        } else {
            std::fill(figures.begin(), figures.end(), kNone);
        }
    });
    return out;
}

Vec3<double> CVynData::RowVector(ResultKind kind, int entity, int row, std::size_t first,
                                 const SCaseRef& ref) const {
    const auto v = Row<3>(kind, entity, row, first, ref);
    return {v[0], v[1], v[2]};
}

namespace {

// Where the parts of a row begin.
constexpr std::size_t kTranslation = 0;
constexpr std::size_t kRotation = 3;
constexpr std::size_t kInPlane = 0;
constexpr std::size_t kBending = 3;
constexpr std::size_t kShear = 6;
constexpr std::size_t kStress = 6;  ///< figures of one layer

constexpr bool IsEnd(int position) {
    return position == 0 || position == 1;
}

}  // namespace

Vec3<double> CVynData::Disp(int node, const SCaseRef& ref) const {
    return RowVector(ResultKind::NodeDisp, node, 0, kTranslation, ref);
}
Vec3<double> CVynData::Rotn(int node, const SCaseRef& ref) const {
    return RowVector(ResultKind::NodeDisp, node, 0, kRotation, ref);
}
Vec3<double> CVynData::Vel(int node, const SCaseRef& ref) const {
    return RowVector(ResultKind::NodeVel, node, 0, kTranslation, ref);
}
Vec3<double> CVynData::RotVel(int node, const SCaseRef& ref) const {
    return RowVector(ResultKind::NodeVel, node, 0, kRotation, ref);
}
Vec3<double> CVynData::Acc(int node, const SCaseRef& ref) const {
    return RowVector(ResultKind::NodeAcc, node, 0, kTranslation, ref);
}
Vec3<double> CVynData::RotAcc(int node, const SCaseRef& ref) const {
    return RowVector(ResultKind::NodeAcc, node, 0, kRotation, ref);
}
Vec3<double> CVynData::ReactForce(int node, const SCaseRef& ref) const {
    return RowVector(ResultKind::NodeReaction, node, 0, kTranslation, ref);
}
Vec3<double> CVynData::ReactMoment(int node, const SCaseRef& ref) const {
    return RowVector(ResultKind::NodeReaction, node, 0, kRotation, ref);
}
Vec3<double> CVynData::ConsForce(int node, const SCaseRef& ref) const {
    return RowVector(ResultKind::NodeConstraint, node, 0, kTranslation, ref);
}
Vec3<double> CVynData::ConsMoment(int node, const SCaseRef& ref) const {
    return RowVector(ResultKind::NodeConstraint, node, 0, kRotation, ref);
}

Vec3<double> CVynData::EndDisp(int element, int analysisCase, int end) const {
    const int node = Elem(element).Topo(end);
    const Vec3<double> disp = Disp(node, AnalysisRef(analysisCase));
    const Vec3<double> arm = TotalLocalOffset(element, end);
    // Without an offset the rotation does not count, nor whether the node has one.
    return arm == Vec3<double>{}
               ? disp
               : disp + Cross(Rotn(node, AnalysisRef(analysisCase)), ElemDC(element).LtoG(arm));
}

Vec3<double> CVynData::OwnElemDisp(int element, int analysisCase, int position) const {
    const Data::CElement& record = Elem(element);
    const SCaseRef ref = AnalysisRef(analysisCase);
    if (record.Is1D()) {
        const Vec3<double> own =
            RowVector(ResultKind::Elem1DDisp, element, position, kTranslation, ref);
        return std::isnan(own.x) && IsEnd(position) ? EndDisp(element, analysisCase, position + 1)
                                                    : own;
    }
    if (position != 0) {
        return Disp(record.Topo(position), ref);
    }
    Vec3<double> sum;
    for (int k = 1; k <= record.NumTopo(); ++k) {
        sum = sum + Disp(record.Topo(k), ref);
    }
    return record.NumTopo() > 0 ? sum * (1.0 / record.NumTopo()) : kNoVector;
}

Vec3<double> CVynData::OwnElemRotn(int element, int analysisCase, int position) const {
    const SCaseRef ref = AnalysisRef(analysisCase);
    const Vec3<double> own = RowVector(ResultKind::Elem1DDisp, element, position, kRotation, ref);
    return std::isnan(own.x) && IsEnd(position) ? Rotn(Elem(element).Topo(position + 1), ref) : own;
}

Vec3<double> CVynData::ElemDisp(int element, const SCaseRef& ref, int position) const {
    return VectorOf(*this, ref, [&](int number) { return OwnElemDisp(element, number, position); });
}
Vec3<double> CVynData::ElemRotn(int element, const SCaseRef& ref, int position) const {
    return VectorOf(*this, ref, [&](int number) { return OwnElemRotn(element, number, position); });
}

Vec3<double> CVynData::Force(int element, const SCaseRef& ref, int position) const {
    return RowVector(ResultKind::Elem1DForce, element, position, kTranslation, ref);
}
Vec3<double> CVynData::Moment(int element, const SCaseRef& ref, int position) const {
    return RowVector(ResultKind::Elem1DForce, element, position, kRotation, ref);
}

Vec3<double> CVynData::ForceSpring(const SEntRef& entity, const SCaseRef& ref, int position) const {
    const bool atNode = entity.type == SelType::Node;
    return RowVector(atNode ? ResultKind::NodeSpringForce : ResultKind::SpringForce, entity.number,
                     position, kTranslation, ref);
}
Vec3<double> CVynData::MomentSpring(const SEntRef& entity, const SCaseRef& ref,
                                    int position) const {
    const bool atNode = entity.type == SelType::Node;
    return RowVector(atNode ? ResultKind::NodeSpringForce : ResultKind::SpringForce, entity.number,
                     position, kRotation, ref);
}

Tens2<double> CVynData::Force2D(int element, const SCaseRef& ref, int position) const {
    const auto v = Row<3>(ResultKind::Elem2DForce, element, position, kInPlane, ref);
    return {v[0], v[1], v[2]};
}
Tens2<double> CVynData::Moment2D(int element, const SCaseRef& ref, int position) const {
    const auto v = Row<3>(ResultKind::Elem2DForce, element, position, kBending, ref);
    return {v[0], v[1], v[2]};
}
Vec2<double> CVynData::Shear2D(int element, const SCaseRef& ref, int position) const {
    const auto v = Row<2>(ResultKind::Elem2DForce, element, position, kShear, ref);
    return {v[0], v[1]};
}

TensSym3<double> CVynData::Stress2D(int element, const SCaseRef& ref, int position,
                                    int layer) const {
    if (layer < 0 || layer > 2) {
        return {kNone, kNone, kNone, kNone, kNone, kNone};
    }
    const auto first = static_cast<std::size_t>(layer) * kStress;
    const auto v = Row<6>(ResultKind::Elem2DStress, element, position, first, ref);
    return {v[0], v[1], v[2], v[3], v[4], v[5]};
}

int CVynData::Stress2DNumLayer(int element) const {
    return Prop2D(Elem(element).Property()).HasBending() ? 3 : 1;
}

TensSym3<double> CVynData::Stress3D(int element, const SCaseRef& ref, int position) const {
    const auto v = Row<6>(ResultKind::Elem3DStress, element, position, 0, ref);
    return {v[0], v[1], v[2], v[3], v[4], v[5]};
}

}  // namespace Tevra

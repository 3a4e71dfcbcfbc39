#include <array>
#include <optional>
#include <span>

#include "export/TableColumns.h"

// The table of results of each case as a whole.
namespace Tevra::Export {

namespace {

/// Three real columns of rotations or moments.
struct Rotation {
    Vec3<double> value;
};

}  // namespace

template <>
struct ColumnType<Rotation> {
    static void Declare(CVynExport& out, const std::string& name) {
        for (const char* const direction : {"_xx", "_yy", "_zz"}) {
            out.CreateField(name + direction, kRealField, false, false);
        }
    }
    static void Write(CVynExport& out, const Rotation& rotation) {
        out.WriteVector3(rotation.value);
    }
};

namespace {

/// Force and moment of the loads, then of the reactions.
using Totals = std::array<double, 12>;

struct GlobalRow {
    const CVynData& model;
    std::string caseId;
    SCaseRef ref;
    Totals totals;
    bool isModal;
    bool isBuckling;

    Vec3<double> Total(std::size_t first) const {
        return {totals[first], totals[first + 1], totals[first + 2]};
    }
    double Modal(double (CVynData::*figure)(const SCaseRef&) const) const {
        return isModal ? (model.*figure)(ref) : kMissing;
    }
    Vec3<double> Modal(Vec3<double> (CVynData::*figure)(const SCaseRef&) const) const {
        return isModal ? (model.*figure)(ref) : Vec3<double>{kMissing, kMissing, kMissing};
    }
};

std::optional<int> ModeOf(const GlobalRow& r) {
    const int mode = r.isModal ? r.model.Mode(r.ref) : 0;
    return mode > 0 ? std::optional(mode) : std::nullopt;
}

constexpr Column<GlobalRow> kGlobal[] = {
    {"case_id", 12, [](const GlobalRow& r) -> const std::string& { return r.caseId; }, kKey},
    {"case", [](const GlobalRow& r) { return r.ref; }},
    {"case_permutation", [](const GlobalRow& r) { return PermutationNumber{r.ref.Permutation()}; }},
    {"load", [](const GlobalRow& r) { return r.Total(0); }},
    {"load", [](const GlobalRow& r) { return Rotation{r.Total(3)}; }},
    {"reaction", [](const GlobalRow& r) { return r.Total(6); }},
    {"reaction", [](const GlobalRow& r) { return Rotation{r.Total(9)}; }},
    {"mode", [](const GlobalRow& r) { return ModeOf(r); }},
    {"frequency", [](const GlobalRow& r) { return r.Modal(&CVynData::Frequency); }},
    {"load_factor",
     [](const GlobalRow& r) { return r.isBuckling ? r.model.LoadFactor(r.ref) : kMissing; }},
    {"modal_stiff", [](const GlobalRow& r) { return r.Modal(&CVynData::ModalStiff); }},
    {"modal_geo_stiff", [](const GlobalRow& r) { return r.Modal(&CVynData::ModalGeoStiff); }},
    {"modal_mass", [](const GlobalRow& r) { return r.Modal(&CVynData::ModalMass); }},
    {"effective_mass", [](const GlobalRow& r) { return r.Modal(&CVynData::EffMass); }},
    {"effective_mass", [](const GlobalRow& r) { return Rotation{r.Modal(&CVynData::RotEffMass)}; }},
};

void Store(const Vec3<double>& value, std::span<double> totals, std::size_t first) {
    totals[first] = value.x;
    totals[first + 1] = value.y;
    totals[first + 2] = value.z;
}

}  // namespace

/// Figures of an analysis case: modes and buckling shapes have no totals, dynamic kinds no loads.
void CVynExport::ReadTotals(const SCaseRef& ref, std::span<double> totals) const {
    if (IsModal(ref) || IsBuckling(ref)) {
        return;
    }
    if (!IsDynamic(ref)) {
        Store(m_model->TotalForce(ref), totals, 0);
        Store(m_model->TotalMoment(ref), totals, 3);
    }
    Store(m_model->TotalReactForce(ref), totals, 6);
    Store(m_model->TotalReactMoment(ref), totals, 9);
}

// One record per case; a combination with several permutations has no totals.
bool CVynExport::ResultGlobal() {
    if (!FindOption('G') || m_model == nullptr || !m_model->AnyResults()) {
        return true;
    }
    return WriteTable(*this, "result_global", kGlobal, [this](auto visit) {
        for (const SCaseRef& ref : ResultCases()) {
            CaseFigures& figures = FiguresOf(ref);
            figures.Evaluate(std::tuple_size_v<Totals>,
                             [this](int analysisCase, std::span<double> totals) {
                                 ReadTotals(AnalysisRef(analysisCase), totals);
                             });
            GlobalRow row{*m_model, CaseId(ref), ref, {}, IsModal(ref), IsBuckling(ref)};
            std::copy(figures.Values().begin(), figures.Values().end(), row.totals.begin());
            visit(row);
        }
    });
}

}  // namespace Tevra::Export

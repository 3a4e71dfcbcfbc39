#include <initializer_list>

#include "io/NumberFormat.h"
#include "model/Names.h"
#include "output/engine/Providers.h"
#include "platform/text/Utf8.h"

namespace Tevra::Output {

namespace {

void CaseRows(CRows& rows) {
    const CVynData& model = rows.Model();
    for (const int number : model.LoadCaseTitleTable().Numbers()) {
        rows.Text(L"L" + std::to_wstring(number)).Text(model.LoadCaseTitle(number).Name());
        rows.Text(L"").Text(L"").EndRow();
    }
    for (const int number : model.AnalysisCaseTable().Numbers()) {
        const CAnalysisCase& record = model.AnalysisCase(number);
        rows.Text(L"A" + std::to_wstring(number)).Text(record.Name());
        rows.Text(record.Desc().Description());
        rows.Text(SolutionTypeString(model.AnalysisTask(record.Task()).Solution())).EndRow();
    }
    for (const int number : model.CombinationCaseTable().Numbers()) {
        const CCombinationCase& record = model.CombinationCase(number);
        rows.Text(L"C" + std::to_wstring(number)).Text(record.Name());
        rows.Text(record.Desc().Description()).Text(L"").EndRow();
    }
}

/// The table of all loads: each row has figures and a unit of its own.
class CLoadRows {
public:
    explicit CLoadRows(CRows& rows) : m_rows(rows) {}

    /// Begins the row of a load; figures follow, then End().
    CLoadRows& Begin(const wchar_t* kind, int number, const Data::CLoadBase& load) {
        m_rows.Text(kind).Int(number).Text(load.Name()).Int(load.LoadCase());
        m_rows.Text(load.LoadedEntities().Text());
        m_values.clear();
        return *this;
    }
    CLoadRows& Directed(const Data::CDirectedLoad& load) {
        m_rows.Int(load.Axis()).Text(DirectionString(load.GetDirection()));
        return *this;
    }
    CLoadRows& Undirected() {
        m_rows.Text(L"").Text(L"");
        return *this;
    }
    CLoadRows& Value(double value, Quantity quantity) {
        m_values += m_values.empty() ? "" : " ";
        AppendGeneral(m_values, value * UnitFactor(m_rows.Model().Units(), quantity));
        return *this;
    }
    void End(Quantity quantity) {
        m_rows.Text(Text::FromUtf8(m_values));
        m_rows.Text(UnitText(m_rows.Model().Units(), quantity)).EndRow();
    }

private:
    CRows& m_rows;
    std::string m_values;
};

void NodeLoadRows(CLoadRows& out, const CVynData& model) {
    for (const int number : model.NodeLoadTable().Numbers()) {
        const Data::CNodeLoad& load = model.NodeLoad(number);
        const Quantity q = IsTrans(load.GetDirection()) ? Quantity::Force : Quantity::Moment;
        out.Begin(L"Node load", number, load).Directed(load).Value(load.Value(), q).End(q);
    }
    const auto quantityOf = [](const Data::CNodeLoad& load) {
        return IsTrans(load.GetDirection()) ? Quantity::Displacement : Quantity::Rotation;
    };
    for (const int number : model.SettlementTable().Numbers()) {
        const Data::CSettlement& load = model.Settlement(number);
        const Quantity q = quantityOf(load);
        out.Begin(L"Settlement", number, load).Directed(load).Value(load.Value(), q).End(q);
    }
    for (const int number : model.AppliedDisplacementTable().Numbers()) {
        const Data::CAppliedDisplacement& load = model.AppliedDisplacement(number);
        const Quantity q = quantityOf(load);
        out.Begin(L"Displacement", number, load).Directed(load).Value(load.Value(), q).End(q);
    }
}

/// What the values of a beam load are: a point load is a force, others are per length.
Quantity BeamQuantity(const Data::CBeamLoad& load) {
    const bool isForce = IsTrans(load.GetDirection());
    if (load.TypeOf() == BeamLoadType::Point) {
        return isForce ? Quantity::Force : Quantity::Moment;
    }
    return isForce ? Quantity::ForcePerLength : Quantity::MomentPerLength;
}

Quantity AxialQuantity(AxialLoadType type, Quantity force) {
    switch (type) {
        case AxialLoadType::Force:
            return force;
        case AxialLoadType::LackOfFit:
            return Quantity::Length;
        default:
            return Quantity::None;
    }
}

void LineLoadRows(CLoadRows& out, const CVynData& model) {
    for (const int number : model.BeamLoadTable().Numbers()) {
        const Data::CBeamLoad& load = model.BeamLoad(number);
        const Quantity q = BeamQuantity(load);
        out.Begin(L"Beam load", number, load).Directed(load);
        for (int k = 1; k <= load.NumPoint(); ++k) {
            out.Value(load.Value(k), q);
        }
        out.End(q);
    }
    for (const int number : model.BeamDistTable().Numbers()) {
        const Data::CBeamDist& load = model.BeamDist(number);
        const Quantity q =
            IsTrans(load.GetDirection()) ? Quantity::Displacement : Quantity::Rotation;
        out.Begin(L"Distortion", number, load).Directed(load).Value(load.Value(), q).End(q);
    }
    for (const int number : model.AxialLoadTable().Numbers()) {
        const Data::CAxialLoad& load = model.AxialLoad(number);
        const Quantity q = AxialQuantity(load.TypeOf(), Quantity::Force);
        out.Begin(L"Prestress", number, load).Undirected().Value(load.Value(), q).End(q);
    }
    for (const int number : model.BeamThermalLoadTable().Numbers()) {
        const Data::CBeamThermalLoad& load = model.BeamThermalLoad(number);
        out.Begin(L"Beam temperature", number, load).Undirected();
        out.Value(load.Value(1), Quantity::Temperature).Value(load.Value(2), Quantity::Temperature);
        out.Value(load.UniformPart(), Quantity::Temperature).End(Quantity::Temperature);
    }
}

void FaceLoadRows(CLoadRows& out, const CVynData& model) {
    for (const int number : model.FaceLoadTable().Numbers()) {
        const Data::CFaceLoad& load = model.FaceLoad(number);
        const bool isPoint = load.TypeOf() == FaceLoadType::Point;
        const bool isEquation = load.TypeOf() == FaceLoadType::Equation;
        const Quantity q = isPoint ? Quantity::Force : Quantity::Stress;
        out.Begin(L"Face load", number, load).Directed(load);
        for (std::size_t k = 0; k < (isPoint ? 1 : 4); ++k) {
            out.Value(isEquation ? load.Equation()[k] : load.Values()[k],
                      isEquation ? Quantity::None : q);
        }
        out.End(isEquation ? Quantity::None : q);
    }
    for (const int number : model.EdgeLoadTable().Numbers()) {
        const Data::CEdgeLoad& load = model.EdgeLoad(number);
        const Quantity q =
            IsTrans(load.GetDirection()) ? Quantity::ForcePerLength : Quantity::MomentPerLength;
        out.Begin(L"Edge load", number, load).Directed(load);
        out.Value(load.Value(1), q).Value(load.Value(2), q).End(q);
    }
    for (const int number : model.InPlaneLoadTable().Numbers()) {
        const Data::CInPlaneLoad& load = model.InPlaneLoad(number);
        const Quantity q = AxialQuantity(load.TypeOf(), Quantity::ForcePerLength);
        out.Begin(L"In-plane load", number, load).Undirected().Value(load.Value(), q).End(q);
    }
    for (const int number : model.FaceThermalLoadTable().Numbers()) {
        const Data::CFaceThermalLoad& load = model.FaceThermalLoad(number);
        constexpr int kMostValues[] = {0, 1, 2, 8};
        out.Begin(L"Face temperature", number, load).Undirected();
        for (int k = 1; k <= kMostValues[static_cast<std::size_t>(load.TypeOf())]; ++k) {
            out.Value(load.Value(k), Quantity::Temperature);
        }
        out.End(Quantity::Temperature);
    }
}

void LoadRows(CRows& rows) {
    CLoadRows out(rows);
    NodeLoadRows(out, rows.Model());
    LineLoadRows(out, rows.Model());
    FaceLoadRows(out, rows.Model());
    for (const int number : rows.Model().GravityLoadTable().Numbers()) {
        const Data::CGravityLoad& load = rows.Model().GravityLoad(number);
        out.Begin(L"Gravity", number, load).Undirected();
        for (const double factor : {load.Value().x, load.Value().y, load.Value().z}) {
            out.Value(factor, Quantity::None);
        }
        out.End(Quantity::None);
    }
}

}  // namespace

DataProvider CasesProvider() {
    return {{{L"Case"}, {L"Name"}, {L"Description"}, {L"Solution"}}, &CaseRows};
}

DataProvider LoadsProvider() {
    return {{{L"Load"},
             {L"Number"},
             {L"Name"},
             {L"Case"},
             {L"Entities"},
             {L"Axis"},
             {L"Direction"},
             {L"Values"},
             {L"Unit"}},
            &LoadRows};
}

}  // namespace Tevra::Output

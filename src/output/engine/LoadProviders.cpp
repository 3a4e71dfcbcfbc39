#include <array>
#include <initializer_list>
#include <string>

#include "io/NumberFormat.h"
#include "model/Names.h"
#include "output/engine/Providers.h"
#include "platform/text/Utf8.h"

namespace Tevra::Output {

namespace {

/// What distinguishes loads of a kind, by the codes of their types.
constexpr std::array kBeamTypes = {L"",         L", point", L", uniform",
                                   L", linear", L", patch", L", trilinear"};
constexpr std::array kAxialTypes = {L"", L", force", L", strain", L", lack of fit"};
constexpr std::array kBeamThermalTypes = {L"", L", uniform", L", gradient y", L", gradient z"};
constexpr std::array kFaceTypes = {L"", L", uniform", L", corners", L", equation", L", point"};
constexpr std::array kFaceThermalTypes = {L"", L", uniform", L", gradient", L", general"};

template <class Load, std::size_t N>
std::wstring Kind(const wchar_t* kind, const Load& load,
                  const std::array<const wchar_t*, N>& types) {
    const auto type = static_cast<std::size_t>(load.TypeOf());
    return std::wstring(kind) + (type < N ? types[type] : L"");
}

/// The same of loads that may act on the projection of what they load.
template <class Load, std::size_t N>
std::wstring ProjectedKind(const wchar_t* kind, const Load& load,
                           const std::array<const wchar_t*, N>& types) {
    return Kind(kind, load, types) + (load.IsProjected() ? L", projected" : L"");
}

/// The table of all loads: each row has figures and a unit of its own.
class CLoadRows {
public:
    explicit CLoadRows(CRows& rows) : m_rows(rows) {}

    /// Begins the row of a load; figures follow, then End().
    CLoadRows& Begin(std::wstring_view kind, int number, const Data::CLoadBase& load) {
        m_rows.Text(kind).Int(number).Text(load.Name()).Int(load.LoadCase());
        m_rows.Text(load.LoadedEntities().Text());
        m_values.clear();
        m_positions.clear();
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
    /// Where a value acts: a length, along an element also a part of it in per cent.
    CLoadRows& Position(double position, bool isFraction) {
        constexpr double kPerCent = 100.0;
        m_positions += m_positions.empty() ? "" : " ";
        AppendGeneral(m_positions,
                      isFraction ? position * kPerCent
                                 : position * UnitFactor(m_rows.Model().Units(), Quantity::Length));
        m_positions += isFraction ? "%" : "";
        return *this;
    }
    void End(Quantity quantity) {
        m_rows.Text(Text::FromUtf8(m_positions)).Text(Text::FromUtf8(m_values));
        m_rows.Text(UnitText(m_rows.Model().Units(), quantity)).EndRow();
    }

private:
    CRows& m_rows;
    std::string m_positions;
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
        out.Begin(ProjectedKind(L"Beam load", load, kBeamTypes), number, load).Directed(load);
        for (int k = 1; k <= load.NumPoint(); ++k) {
            out.Position(load.Pos(k), load.PosIsFraction(k)).Value(load.Value(k), q);
        }
        out.End(q);
    }
    for (const int number : model.BeamDistTable().Numbers()) {
        const Data::CBeamDist& load = model.BeamDist(number);
        const Quantity q =
            IsTrans(load.GetDirection()) ? Quantity::Displacement : Quantity::Rotation;
        out.Begin(L"Distortion", number, load).Directed(load);
        out.Position(load.Pos(), load.PosIsFraction()).Value(load.Value(), q).End(q);
    }
    for (const int number : model.AxialLoadTable().Numbers()) {
        const Data::CAxialLoad& load = model.AxialLoad(number);
        const Quantity q = AxialQuantity(load.TypeOf(), Quantity::Force);
        out.Begin(Kind(L"Prestress", load, kAxialTypes), number, load).Undirected();
        out.Value(load.Value(), q).End(q);
    }
}

void BeamTemperatureRows(CLoadRows& out, const CVynData& model) {
    for (const int number : model.BeamThermalLoadTable().Numbers()) {
        const Data::CBeamThermalLoad& load = model.BeamThermalLoad(number);
        out.Begin(Kind(L"Beam temperature", load, kBeamThermalTypes), number, load).Undirected();
        if (load.TypeOf() != BeamThermalType::Uniform) {
            out.Position(load.Pos(1), false).Position(load.Pos(2), false);
        }
        out.Value(load.Value(1), Quantity::Temperature).Value(load.Value(2), Quantity::Temperature);
        out.Value(load.UniformPart(), Quantity::Temperature).End(Quantity::Temperature);
    }
}

/// What the values of a face load are.
Quantity FaceQuantity(const Data::CFaceLoad& load) {
    switch (load.TypeOf()) {
        case FaceLoadType::Point:
            return Quantity::Force;
        default:
            return Quantity::Stress;
    }
}

void FaceLoadRows(CLoadRows& out, const CVynData& model) {
    for (const int number : model.FaceLoadTable().Numbers()) {
        const Data::CFaceLoad& load = model.FaceLoad(number);
        const bool isEquation = load.TypeOf() == FaceLoadType::Equation;
        const bool hasMany = isEquation || load.TypeOf() == FaceLoadType::Corners;
        const Quantity q = FaceQuantity(load);
        out.Begin(ProjectedKind(L"Face load", load, kFaceTypes), number, load).Directed(load);
        // The coefficients of an equation give the pressure at coordinates in the unit of lengths.
        const double perLength = 1.0 / UnitFactor(model.Units(), Quantity::Length);
        for (std::size_t k = 0; k < (hasMany ? 4 : 1); ++k) {
            out.Value(
                isEquation ? load.Equation()[k] * (k > 0 ? perLength : 1.0) : load.Values()[k], q);
        }
        out.End(q);
    }
}

void EdgeLoadRows(CLoadRows& out, const CVynData& model) {
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
        out.Begin(Kind(L"In-plane load", load, kAxialTypes), number, load).Undirected();
        out.Value(load.Value(), q).End(q);
    }
}

/// How many values a temperature load of faces has.
int NumValue(FaceThermalType type) {
    switch (type) {
        case FaceThermalType::Uniform:
            return 1;
        case FaceThermalType::Gradient:
            return 2;
        default:
            return 8;
    }
}

void FaceTemperatureRows(CLoadRows& out, const CVynData& model) {
    for (const int number : model.FaceThermalLoadTable().Numbers()) {
        const Data::CFaceThermalLoad& load = model.FaceThermalLoad(number);
        out.Begin(Kind(L"Face temperature", load, kFaceThermalTypes), number, load).Undirected();
        for (int k = 1; k <= NumValue(load.TypeOf()); ++k) {
            out.Value(load.Value(k), Quantity::Temperature);
        }
        out.End(Quantity::Temperature);
    }
}

void LoadRows(CRows& rows) {
    CLoadRows out(rows);
    NodeLoadRows(out, rows.Model());
    LineLoadRows(out, rows.Model());
    BeamTemperatureRows(out, rows.Model());
    FaceLoadRows(out, rows.Model());
    EdgeLoadRows(out, rows.Model());
    FaceTemperatureRows(out, rows.Model());
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

DataProvider LoadsProvider() {
    return {{{L"Load"},
             {L"Number"},
             {L"Name"},
             {L"Case"},
             {L"Entities"},
             {L"Axis"},
             {L"Direction"},
             {L"Positions", Quantity::Length},
             {L"Values"},
             {L"Unit"}},
            &LoadRows};
}

}  // namespace Tevra::Output

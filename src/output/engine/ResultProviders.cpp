#include <array>
#include <cmath>
#include <utility>

#include "model/Util.h"
#include "output/engine/Providers.h"

namespace Tevra::Output {

namespace {

bool AnyFigure(const Vec3<double>& v) {
    return !std::isnan(v.x) || !std::isnan(v.y) || !std::isnan(v.z);
}

using NodeVector = Vec3<double> (CVynData::*)(int, const SCaseRef&) const;

/// A row for each case and node with figures: translations or forces, then rotations or moments.
template <NodeVector First, NodeVector Second>
void NodeResultRows(CRows& rows) {
    for (const SCaseRef& ref : rows.Cases()) {
        Util::Item(rows.View().Nodes(), rows.Model(), -1, true).ForEach([&rows, &ref](int node) {
            const Vec3<double> first = (rows.Model().*First)(node, ref);
            const Vec3<double> second = (rows.Model().*Second)(node, ref);
            if (AnyFigure(first) || AnyFigure(second)) {
                rows.CaseName(ref).Int(node).Reals(first).Reals(second).EndRow();
            }
        });
    }
}

/// Force and moment at an end (0, 1) of a 1D element.
std::pair<Vec3<double>, Vec3<double>> EndForces(const CVynData& model, int element,
                                                const SCaseRef& ref, int end) {
    if (model.Elem(element).IsSpring()) {
        const SEntRef spring{SelType::Element, element};
        return {model.ForceSpring(spring, ref, end), model.MomentSpring(spring, ref, end)};
    }
    return {model.Force(element, ref, end), model.Moment(element, ref, end)};
}

void ForceRows(CRows& rows) {
    const auto addElement = [&rows](int element, const SCaseRef& ref) {
        for (const int end : {0, 1}) {
            const auto [force, moment] = EndForces(rows.Model(), element, ref, end);
            if (AnyFigure(force) || AnyFigure(moment)) {
                rows.CaseName(ref).Int(element).Int(end + 1).Reals(force).Reals(moment).EndRow();
            }
        }
    };
    for (const SCaseRef& ref : rows.Cases()) {
        Util::Item(rows.View().Elements(), rows.Model(), -1, true).ForEach([&](int element) {
            if (rows.Model().Elem(element).Is1D()) {
                addElement(element, ref);
            }
        });
    }
}

void StressRow(CRows& rows, const SCaseRef& ref, int element, int position, std::wstring_view layer,
               const TensSym3<double>& stress) {
    if (AnyFigure({stress.xx, stress.yy, stress.zz}) ||
        AnyFigure({stress.xy, stress.yz, stress.zx})) {
        rows.CaseName(ref).Int(element).Int(position).Text(layer);
        rows.Real(stress.xx).Real(stress.yy).Real(stress.zz);
        rows.Real(stress.xy).Real(stress.yz).Real(stress.zx).EndRow();
    }
}

void AreaStressRows(CRows& rows, const SCaseRef& ref, int element, int position) {
    static constexpr const wchar_t* kLayers[] = {L"bottom", L"middle", L"top"};
    constexpr int kMiddle = 1;
    const bool bends = rows.Model().Stress2DNumLayer(element) > 1;
    for (int layer = bends ? 0 : kMiddle; layer <= (bends ? 2 : kMiddle); ++layer) {
        StressRow(rows, ref, element, position, kLayers[layer],
                  rows.Model().Stress2D(element, ref, position, layer));
    }
}

void StressRows(CRows& rows) {
    const CVynData& model = rows.Model();
    for (const SCaseRef& ref : rows.Cases()) {
        Util::Item(rows.View().Elements(), model, -1, true).ForEach([&](int element) {
            for (int position = 0; position < model.NumResultPosition(element); ++position) {
                if (model.Elem(element).Is2D()) {
                    AreaStressRows(rows, ref, element, position);
                } else {
                    StressRow(rows, ref, element, position, L"",
                              model.Stress3D(element, ref, position));
                }
            }
        });
    }
}

/// Further columns, of the translations and the rotations about x, y and z.
std::vector<Column> WithVectors(std::vector<Column> columns,
                                const std::array<const wchar_t*, 6>& headings, Quantity translation,
                                Quantity rotation) {
    for (std::size_t i = 0; i < headings.size(); ++i) {
        columns.push_back({headings[i], i < 3 ? translation : rotation});
    }
    return columns;
}

constexpr std::array<const wchar_t*, 6> kMovements{L"Ux", L"Uy", L"Uz", L"Rxx", L"Ryy", L"Rzz"};
constexpr std::array<const wchar_t*, 6> kForces{L"Fx", L"Fy", L"Fz", L"Mxx", L"Myy", L"Mzz"};

}  // namespace

DataProvider DisplacementsProvider() {
    return {
        WithVectors({{L"Case"}, {L"Node"}}, kMovements, Quantity::Displacement, Quantity::Rotation),
        &NodeResultRows<&CVynData::Disp, &CVynData::Rotn>};
}

DataProvider ReactionsProvider() {
    return {WithVectors({{L"Case"}, {L"Node"}}, kForces, Quantity::Force, Quantity::Moment),
            &NodeResultRows<&CVynData::ReactForce, &CVynData::ReactMoment>};
}

DataProvider ForcesProvider() {
    return {WithVectors({{L"Case"}, {L"Element"}, {L"End"}}, kForces, Quantity::Force,
                        Quantity::Moment),
            &ForceRows};
}

DataProvider StressesProvider() {
    return {{{L"Case"},
             {L"Element"},
             {L"Position"},
             {L"Layer"},
             {L"xx", Quantity::Stress},
             {L"yy", Quantity::Stress},
             {L"zz", Quantity::Stress},
             {L"xy", Quantity::Stress},
             {L"yz", Quantity::Stress},
             {L"zx", Quantity::Stress}},
            &StressRows};
}

}  // namespace Tevra::Output

#include "document/RecordFields.h"

namespace Tevra::Document {

using Data::COpView;
using Data::CPileSoilProperty;
using Data::CSoilCurve;
using Data::CSoilProfile;
using Data::CSoilRectLoad;
using Data::CSoilZone;
using Data::SoilLayer;

namespace {

/// A key of a record that keeps its figures in a plain struct.
template <class R, auto Member>
auto Figure(const R& record) {
    return record.Get().*Member;
}
template <class R, auto Member, class T>
void SetFigure(R& record, T value) {
    auto values = record.Get();
    values.*Member = std::move(value);
    record.Set(values);
}
template <class R, auto Member>
constexpr Field FigureKey(std::string_view key, std::string_view meaning) {
    using T = std::remove_cvref_t<decltype(R().Get().*Member)>;
    return Key<R, &Figure<R, Member>, &SetFigure<R, Member, T>>(key, meaning);
}

void SetLower(CSoilZone& zone, const Vec2<double>& lower) {
    zone.SetExtents(lower, zone.Upper());
}
void SetUpper(CSoilZone& zone, const Vec2<double>& upper) {
    zone.SetExtents(zone.Lower(), upper);
}

std::vector<std::wstring> KindsOf(const COpView& view) {
    std::vector<std::wstring> kinds;
    for (const Data::CDataRef& item : view.Data()) {
        kinds.push_back(item.Kind());
    }
    return kinds;
}
void SetKindsOf(COpView& view, const std::vector<std::wstring>& kinds) {
    view.SetData(std::vector<Data::CDataRef>(kinds.begin(), kinds.end()));
}

}  // namespace

VYN_FIELDS(SoilLayer,
           std::array{Required(Key<SoilLayer, &SoilLayer::topLevel>("top_level", "m")),
                      Required(Key<SoilLayer, &SoilLayer::youngTop>("e_top", "Pa")),
                      Required(Key<SoilLayer, &SoilLayer::youngBottom>("e_bottom", "Pa")),
                      Key<SoilLayer, &SoilLayer::poissonRatio>("nu", "Poisson's ratio"),
                      Key<SoilLayer, &SoilLayer::curve>("curve", "Soil curve, 0 none")})

VYN_FIELDS(CSoilProfile,
           NamedFields<CSoilProfile>() +
               std::array{
                   Required(Key<CSoilProfile, &CSoilProfile::Layers, &CSoilProfile::SetLayers>(
                       "layers", "From the top down"))})

VYN_FIELDS(CSoilZone,
           NamedFields<CSoilZone>() +
               std::array{
                   Required(Key<CSoilZone, &CSoilZone::Profile, &CSoilZone::SetProfile>(
                       "profile", "Soil profile")),
                   Required(Key<CSoilZone, &CSoilZone::Lower, &SetLower>("lower", "x, y, m")),
                   Required(Key<CSoilZone, &CSoilZone::Upper, &SetUpper>("upper", "x, y, m"))})

VYN_FIELDS(CSoilCurve,
           NamedFields<CSoilCurve>() +
               std::array{Required(Key<CSoilCurve, &CSoilCurve::Points, &CSoilCurve::SetPoints>(
                   "points", "Strain and ratio of moduli, or displacement (m) and force (N)"))})

VYN_FIELDS(CPileSoilProperty,
           NamedFields<CPileSoilProperty>() +
               std::array{
                   FigureKey<CPileSoilProperty, &CPileSoilProperty::Values::baseCurve>(
                       "base_curve", "Pile-soil curve, 0 none"),
                   FigureKey<CPileSoilProperty, &CPileSoilProperty::Values::shaftCurve>(
                       "shaft_curve", "Pile-soil curve, 0 none"),
                   FigureKey<CPileSoilProperty, &CPileSoilProperty::Values::baseArea>("base_area",
                                                                                      "m2"),
                   FigureKey<CPileSoilProperty, &CPileSoilProperty::Values::shaftFrictionLimit>(
                       "shaft_friction_limit", "Pa"),
                   FigureKey<CPileSoilProperty, &CPileSoilProperty::Values::endBearingLimit>(
                       "end_bearing_limit", "Pa")})

VYN_FIELDS(
    CSoilRectLoad,
    NamedFields<CSoilRectLoad>() +
        std::array{
            FigureKey<CSoilRectLoad, &CSoilRectLoad::Values::loadCase>("case", "Analysis case"),
            Required(FigureKey<CSoilRectLoad, &CSoilRectLoad::Values::centre>("centre",
                                                                              "x, y, level, m")),
            FigureKey<CSoilRectLoad, &CSoilRectLoad::Values::angle>("angle", "Degrees"),
            Required(FigureKey<CSoilRectLoad, &CSoilRectLoad::Values::width>("width", "x, y, m")),
            FigureKey<CSoilRectLoad, &CSoilRectLoad::Values::vertical>("vertical", "Pa"),
            FigureKey<CSoilRectLoad, &CSoilRectLoad::Values::horizontal>("horizontal", "x, y, Pa")})

VYN_FIELDS(COpView,
           NamedFields<COpView>() +
               std::array{
                   Required(Key<COpView, &KindsOf, &SetKindsOf>("data", "Data to show")),
                   Key<COpView, &COpView::Nodes, &COpView::SetNodes>("nodes", "Nodes"),
                   Key<COpView, &COpView::Elements, &COpView::SetElements>("elements", "Elements"),
                   Key<COpView, &COpView::Members, &COpView::SetMembers>("members", "Members"),
                   Key<COpView, &COpView::Cases, &COpView::SetCases>("cases", "Cases")})

}  // namespace Tevra::Document

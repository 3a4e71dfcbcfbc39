#include "document/Codec.h"
#include "model/ModelData.h"
#include "model/Names.h"
#include "platform/text/Ascii.h"

namespace Tevra::Document {

namespace {

/// The host's texts of the codes 0 to `highest` in small letters; codes without a text are left
/// out.
template <class E>
std::vector<EnumName> FromTexts(int highest, std::wstring_view (*text)(E)) {
    std::vector<EnumName> names;
    for (int code = 0; code <= highest; ++code) {
        const std::string name = Text::ToUtf8(Text::ToLower(text(static_cast<E>(code))));
        if (!name.empty() && name != "reserved") {
            names.push_back({code, name});
        }
    }
    return names;
}

template <class E>
int Code(E value) {
    return static_cast<int>(value);
}

}  // namespace

// Enumerations whose texts the model itself knows.
#define VYN_NAMES_FROM_TEXTS(E, highest, text)                                   \
    template <>                                                                  \
    const std::vector<EnumName>& NamesOf<E>() {                                  \
        static const std::vector<EnumName> kNames = FromTexts<E>(highest, text); \
        return kNames;                                                           \
    }
VYN_NAMES_FROM_TEXTS(ElementType, kHighestElementType, ElementTypeString)
VYN_NAMES_FROM_TEXTS(MemberType, 8, MemberTypeString)
VYN_NAMES_FROM_TEXTS(AnalysisOrder, 4, AnalysisOrderString)
VYN_NAMES_FROM_TEXTS(MatType, 8, MatTypeLabel)
VYN_NAMES_FROM_TEXTS(SelType, 24, SelTypeString)
VYN_NAMES_FROM_TEXTS(CurveFit, 3, CurveFitString)
VYN_NAMES_FROM_TEXTS(AxisType, 3, AxisTypeString)
VYN_NAMES_FROM_TEXTS(Prop2DType, 8, Prop2DTypeString)
VYN_NAMES_FROM_TEXTS(SolutionType, 12, SolutionTypeString)
VYN_NAMES_FROM_TEXTS(Direction, 5, DirectionString)
#undef VYN_NAMES_FROM_TEXTS

// Enumerations that only documents name.
#define VYN_NAMES(E, ...)                                        \
    template <>                                                  \
    const std::vector<EnumName>& NamesOf<E>() {                  \
        static const std::vector<EnumName> kNames = __VA_ARGS__; \
        return kNames;                                           \
    }
VYN_NAMES(MatModel, {{Code(MatModel::ElasticIsotropic), "elastic_isotropic"},
                     {Code(MatModel::ElasticPlastic), "elastic_plastic"},
                     {Code(MatModel::ElasticOrthotropic), "elastic_orthotropic"},
                     {Code(MatModel::Fabric), "fabric"},
                     {Code(MatModel::DruckerPrager), "drucker_prager"},
                     {Code(MatModel::MohrCoulomb), "mohr_coulomb"},
                     {Code(MatModel::ConcreteEC2), "concrete_ec2"},
                     {Code(MatModel::HystereticBeam), "hysteretic_beam"},
                     {Code(MatModel::HystereticReinforcement), "hysteretic_reinforcement"},
                     {Code(MatModel::PlasticKinematic), "plastic_kinematic"},
                     {Code(MatModel::ParkAngBeam), "park_ang_beam"},
                     {Code(MatModel::GeneralNonlinear6Dof), "general_nonlinear_6dof"},
                     {Code(MatModel::SeismicIsolator), "seismic_isolator"},
                     {Code(MatModel::SteelEC3), "steel_ec3"},
                     {Code(MatModel::UniaxialElastic), "uniaxial_elastic"},
                     {Code(MatModel::UniaxialElasticPP), "uniaxial_elastic_pp"},
                     {Code(MatModel::UniaxialHardening), "uniaxial_hardening"},
                     {Code(MatModel::UniaxialHysteretic), "uniaxial_hysteretic"},
                     {Code(MatModel::UniaxialViscous), "uniaxial_viscous"},
                     {Code(MatModel::UniaxialConcrete01), "uniaxial_concrete01"},
                     {Code(MatModel::UniaxialConcrete02), "uniaxial_concrete02"},
                     {Code(MatModel::UniaxialConcrete03), "uniaxial_concrete03"},
                     {Code(MatModel::UniaxialConcrete04), "uniaxial_concrete04"},
                     {Code(MatModel::UniaxialSteel01), "uniaxial_steel01"},
                     {Code(MatModel::UniaxialSteel02), "uniaxial_steel02"},
                     {Code(MatModel::UniaxialReinforcingSteel), "uniaxial_reinforcing_steel"},
                     {Code(MatModel::UniaxialBarSlip), "uniaxial_bar_slip"},
                     {Code(MatModel::UniaxialLimitState), "uniaxial_limit_state"}})
VYN_NAMES(SpringType, {{Code(SpringType::Translational), "translational"},
                       {Code(SpringType::General), "general"},
                       {Code(SpringType::Rotational), "rotational"},
                       {Code(SpringType::Contact), "contact"},
                       {Code(SpringType::Friction), "friction"}})
VYN_NAMES(PropertyType, {{Code(PropertyType::Section), "section"},
                         {Code(PropertyType::Prop2D), "prop_2d"},
                         {Code(PropertyType::Prop3D), "prop_3d"},
                         {Code(PropertyType::Spring), "spring"},
                         {Code(PropertyType::Damper), "damper"},
                         {Code(PropertyType::Mass), "mass"},
                         {Code(PropertyType::Cable), "cable"},
                         {Code(PropertyType::Link), "link"}})
VYN_NAMES(Data::ReleaseState, {{Code(Data::ReleaseState::Fixed), "fixed"},
                               {Code(Data::ReleaseState::Released), "released"},
                               {Code(Data::ReleaseState::Spring), "spring"}})
VYN_NAMES(LoadCurveType, {{Code(LoadCurveType::Factor), "factor"},
                          {Code(LoadCurveType::Force), "force"},
                          {Code(LoadCurveType::Pressure), "pressure"},
                          {Code(LoadCurveType::Acceleration), "acceleration"},
                          {Code(LoadCurveType::Velocity), "velocity"},
                          {Code(LoadCurveType::Displacement), "displacement"}})
VYN_NAMES(BeamLoadType, {{Code(BeamLoadType::Point), "point"},
                         {Code(BeamLoadType::Uniform), "uniform"},
                         {Code(BeamLoadType::Linear), "linear"},
                         {Code(BeamLoadType::Patch), "patch"},
                         {Code(BeamLoadType::Trilinear), "trilinear"}})
VYN_NAMES(AxialLoadType, {{Code(AxialLoadType::Force), "force"},
                          {Code(AxialLoadType::Strain), "strain"},
                          {Code(AxialLoadType::LackOfFit), "lack_of_fit"}})
VYN_NAMES(BeamThermalType, {{Code(BeamThermalType::Uniform), "uniform"},
                            {Code(BeamThermalType::GradientY), "gradient_y"},
                            {Code(BeamThermalType::GradientZ), "gradient_z"}})
VYN_NAMES(FaceLoadType, {{Code(FaceLoadType::Uniform), "uniform"},
                         {Code(FaceLoadType::Corners), "corners"},
                         {Code(FaceLoadType::Equation), "equation"},
                         {Code(FaceLoadType::Point), "point"}})
VYN_NAMES(FaceThermalType, {{Code(FaceThermalType::Uniform), "uniform"},
                            {Code(FaceThermalType::Gradient), "gradient"},
                            {Code(FaceThermalType::General), "general"}})
VYN_NAMES(ExcitationOption, {{Code(ExcitationOption::None), "none"},
                             {Code(ExcitationOption::OneCurve), "one_curve"},
                             {Code(ExcitationOption::CurvePerDirection), "curve_per_direction"}})
#undef VYN_NAMES

}  // namespace Tevra::Document

#include "document/RecordFields.h"

namespace Tevra::Document {

using Data::CCableProp;
using Data::CDamperProp;
using Data::CLinkProp;
using Data::CMassProp;
using Data::CMatAnal;
using Data::CMatDesign;
using Data::CProp2D;
using Data::CProp3D;
using Data::CSecComp;
using Data::CSection;
using Data::CSpringProp;
using Data::MaterialChoice;
using Data::ParamGroup;
using Data::PropLayer;
using Data::SectionModifiers;

VYN_FIELDS(MaterialChoice,
           std::array{Key<MaterialChoice, &MaterialChoice::type>("type", "Design family"),
                      Key<MaterialChoice, &MaterialChoice::grade>("grade", "Design grade, 0 none"),
                      Key<MaterialChoice, &MaterialChoice::analysis>(
                          "analysis", "Analysis material, 0 the grade's own properties")})

VYN_FIELDS(
    SectionModifiers,
    std::array{
        Key<SectionModifiers, &SectionModifiers::area>("area", "Factor on A"),
        Key<SectionModifiers, &SectionModifiers::j>("j", "Factor on J"),
        Key<SectionModifiers, &SectionModifiers::iyy>("iyy", "Factor on Iyy"),
        Key<SectionModifiers, &SectionModifiers::izz>("izz", "Factor on Izz"),
        Key<SectionModifiers, &SectionModifiers::avy>("avy", "Factor on the shear area along y"),
        Key<SectionModifiers, &SectionModifiers::avz>("avz", "Factor on the shear area along z")})

VYN_FIELDS(CSecComp,
           std::array{
               Required(Key<CSecComp, &CSecComp::Description, &CSecComp::SetDescription>(
                   "description", "Shape, for example \"STD%I%500%200%12%20\"")),
               Key<CSecComp, &CSecComp::Material, &CSecComp::SetMaterial>("material", "Material"),
               Key<CSecComp, &CSecComp::Position, &CSecComp::SetPosition>(
                   "position", "Centroid in the section, y and z, m")})

VYN_FIELDS(CSection,
           NamedFields<CSection>() +
               std::array{Required(Key<CSection, &CSection::Components, &CSection::SetComponents>(
                              "components", "Parts of the section, one at least")),
                          Key<CSection, &CSection::Pool, &CSection::SetPool>("pool", "Design pool"),
                          Key<CSection, &CSection::CentroidOffset, &CSection::SetCentroidOffset>(
                              "centroid_offset", "Of the centroid from the node line, y and z, m"),
                          Key<CSection, &CSection::Modifiers, &CSection::SetModifiers>(
                              "modifiers", "Factors on the properties")})

VYN_FIELDS(PropLayer,
           std::array{
               Required(Key<PropLayer, &PropLayer::material>("material", "Analysis material")),
               Required(Key<PropLayer, &PropLayer::thickness>("thickness", "m")),
               Key<PropLayer, &PropLayer::angle>("angle", "Degrees")})

VYN_FIELDS(
    CProp2D,
    NamedFields<CProp2D>() +
        std::array{
            Required(Key<CProp2D, &CProp2D::Type, &CProp2D::SetType>("type", "Kind")),
            Key<CProp2D, &CProp2D::Thickness, &CProp2D::SetThickness>("thickness", "m"),
            Key<CProp2D, &CProp2D::Axis, &CProp2D::SetAxis>(
                "axis", "Axis whose x gives the element's x, 0 global"),
            Key<CProp2D, &CProp2D::OwnInplane, &CProp2D::SetInplane>("thickness_inplane",
                                                                     "m; 0: the thickness"),
            Key<CProp2D, &CProp2D::OwnBending, &CProp2D::SetBending>("thickness_bending",
                                                                     "m; 0: the thickness"),
            Key<CProp2D, &CProp2D::OwnShear, &CProp2D::SetShear>("thickness_shear",
                                                                 "m; 0: the thickness"),
            Key<CProp2D, &CProp2D::OwnVolume, &CProp2D::SetVolume>("thickness_volume",
                                                                   "m; 0: the thickness"),
            Key<CProp2D, &CProp2D::AdditionalMass, &CProp2D::SetAdditionalMass>("additional_mass",
                                                                                "kg/m2"),
            Key<CProp2D, &CProp2D::Material, &CProp2D::SetMaterial>("material", "Material"),
            Key<CProp2D, &CProp2D::Layers, &CProp2D::SetLayers>("layers",
                                                                "Layers from the bottom up")})

VYN_FIELDS(CProp3D,
           NamedFields<CProp3D>() +
               std::array{
                   Key<CProp3D, &CProp3D::Material, &CProp3D::SetMaterial>("material", "Material"),
                   Key<CProp3D, &CProp3D::Axis, &CProp3D::SetAxis>("axis",
                                                                   "Element axes, 0 global")})

VYN_FIELDS(CSpringProp,
           NamedFields<CSpringProp>() +
               std::array{
                   Key<CSpringProp, &CSpringProp::Type, &CSpringProp::SetType>("type", "Kind"),
                   Key<CSpringProp, &CSpringProp::Axis, &CSpringProp::SetAxis>("axis",
                                                                               "Axis, 0 global"),
                   Key<CSpringProp, &CSpringProp::Stiffnesses, &CSpringProp::SetStiffnesses>(
                       "stiffness", "X, Y, Z in N/m, XX, YY, ZZ in Nm/rad"),
                   Key<CSpringProp, &CSpringProp::Tables, &CSpringProp::SetTables>(
                       "curves", "Material curves instead of stiffnesses, 0 none")})

VYN_FIELDS(CDamperProp,
           NamedFields<CDamperProp>() +
               std::array{
                   Key<CDamperProp, &CDamperProp::Axis, &CDamperProp::SetAxis>("axis",
                                                                               "Axis, 0 global"),
                   Key<CDamperProp, &CDamperProp::Coefficients, &CDamperProp::SetCoefficients>(
                       "coefficient", "X, Y, Z in N s/m, XX, YY, ZZ in N m s/rad")})

VYN_FIELDS(CMassProp,
           NamedFields<CMassProp>() +
               std::array{
                   Key<CMassProp, &CMassProp::Mass, &CMassProp::SetMass>("mass", "kg"),
                   Key<CMassProp, &CMassProp::Axis, &CMassProp::SetAxis>("axis", "Axis, 0 global"),
                   Key<CMassProp, &CMassProp::Inertia, &CMassProp::SetInertia>(
                       "inertia",
                       "xx, yy, zz, xy, yz, zx, kg m2; products are positive integrals")})

VYN_FIELDS(CCableProp,
           NamedFields<CCableProp>() +
               std::array{
                   Key<CCableProp, &CCableProp::Area, &CCableProp::SetArea>(
                       "area", "m2; 0: e is the axial stiffness, density the mass per length"),
                   Key<CCableProp, &CCableProp::E, &CCableProp::SetE>("e", "Pa, or N"),
                   Key<CCableProp, &CCableProp::G, &CCableProp::SetG>("g", "Pa"),
                   Key<CCableProp, &CCableProp::Nu, &CCableProp::SetNu>("nu", "Poisson's ratio"),
                   Key<CCableProp, &CCableProp::Density, &CCableProp::SetDensity>(
                       "density", "kg/m3, or kg/m")})

VYN_FIELDS(CLinkProp, NamedFields<CLinkProp>() +
                          std::array{Key<CLinkProp, &CLinkProp::TypeOf, &CLinkProp::SetType>(
                              "link_type", "Linked freedoms, twelve bits, 4095 all")})

VYN_FIELDS(ParamGroup,
           std::array{Required(Key<ParamGroup, &ParamGroup::name>("name", "Name of the group")),
                      Required(Key<ParamGroup, &ParamGroup::values>("values", "Its values"))})

VYN_FIELDS(
    CMatAnal,
    NamedFields<CMatAnal>() +
        std::array{
            Key<CMatAnal, &CMatAnal::Model, &CMatAnal::SetModel>("model", "Material model"),
            Key<CMatAnal, &CMatAnal::Young, &CMatAnal::SetE>(
                "e", "Young's moduli, Pa; isotropic materials use the first"),
            Key<CMatAnal, &CMatAnal::Poisson, &CMatAnal::SetNu>(
                "nu", "Poisson's ratios, xy, yz, zx when orthotropic"),
            Key<CMatAnal, &CMatAnal::Shear, &CMatAnal::SetG>("g", "Shear moduli, Pa"),
            Key<CMatAnal, &CMatAnal::Expansion, &CMatAnal::SetAlpha>("alpha",
                                                                     "Thermal expansion, 1/K"),
            Key<CMatAnal, &CMatAnal::Density, &CMatAnal::SetDensity>("density", "kg/m3"),
            Key<CMatAnal, &CMatAnal::TangentModulus, &CMatAnal::SetTangentModulus>(
                "tangent_modulus", "After yielding, Pa"),
            Key<CMatAnal, &CMatAnal::HardeningParameter, &CMatAnal::SetHardeningParameter>(
                "hardening", "0 kinematic to 1 isotropic"),
            Key<CMatAnal, &CMatAnal::YieldStress, &CMatAnal::SetYieldStress>("yield_stress", "Pa"),
            Key<CMatAnal, &CMatAnal::ModelParams, &CMatAnal::SetModelParams>(
                "params", "Further parameters, in the model's own order"),
            Key<CMatAnal, &CMatAnal::Curves, &CMatAnal::SetCurves>("curves", "Material curves"),
            Key<CMatAnal, &CMatAnal::OpsGroups, &CMatAnal::SetOpsGroups>(
                "groups", "Optional groups of a uniaxial model"),
            Key<CMatAnal, &CMatAnal::OpsTexts, &CMatAnal::SetOpsTexts>(
                "words", "Words of a uniaxial model")})

VYN_FIELDS(CMatDesign,
           NamedFields<CMatDesign>() +
               std::array{Key<CMatDesign, &CMatDesign::MatAnal, &CMatDesign::SetMatAnal>(
                              "analysis", "Properties for analysis"),
                          Key<CMatDesign, &CMatDesign::Strength, &CMatDesign::SetStrength>(
                              "strength", "Characteristic strength, Pa")})

VYN_FIELDS(Data::CCurve,
           NamedFields<Data::CCurve>() +
               std::array{
                   Required(Key<Data::CCurve, &Data::CCurve::Points, &Data::CCurve::SetPoints>(
                       "points", "Strain or displacement against stress or force"))})

VYN_FIELDS(
    Data::CLoadCurve,
    NamedFields<Data::CLoadCurve>() +
        std::array{
            Key<Data::CLoadCurve, &Data::CLoadCurve::TypeOf, &Data::CLoadCurve::SetType>(
                "type", "What the ordinates are"),
            Required(Key<Data::CLoadCurve, &Data::CLoadCurve::Points, &Data::CLoadCurve::SetPoints>(
                "points", "Time (s) against the ordinate"))})

}  // namespace Tevra::Document

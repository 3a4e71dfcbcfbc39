#pragma once

#include <array>
#include <string>
#include <vector>

#include "model/Entity.h"

namespace Tevra {

/// Families of materials. Everything but `Generic` has a table of design grades.
enum class MatType : int {
    Generic = 0,
    Concrete = 1,
    Steel = 2,
    Frp = 3,
    Aluminium = 4,
    Glass = 5,
    Timber = 6,
    Fabric = 7,
    Rebar = 8
};

/// Analysis material models that the formats know. Codes 301 to 308 are models of explicit
/// dynamics, 401 to 414 uniaxial models.
enum class MatModel : int {
    ElasticIsotropic = 1,
    ElasticPlastic = 3,
    ElasticOrthotropic = 4,
    Fabric = 5,
    DruckerPrager = 6,
    MohrCoulomb = 7,
    ConcreteEC2 = 301,
    HystereticBeam = 302,
    HystereticReinforcement = 303,
    PlasticKinematic = 304,
    ParkAngBeam = 305,
    GeneralNonlinear6Dof = 306,
    SeismicIsolator = 307,
    SteelEC3 = 308,
    UniaxialElastic = 401,
    UniaxialElasticPP = 402,
    UniaxialHardening = 403,
    UniaxialHysteretic = 404,
    UniaxialViscous = 405,
    UniaxialConcrete01 = 406,
    UniaxialConcrete02 = 407,
    UniaxialConcrete03 = 408,
    UniaxialConcrete04 = 409,
    UniaxialSteel01 = 410,
    UniaxialSteel02 = 411,
    UniaxialReinforcingSteel = 412,
    UniaxialBarSlip = 413,
    UniaxialLimitState = 414
};

namespace Data {

/// An optional group of parameters of a uniaxial model, for example "-IsoHard" with two values.
struct ParamGroup {
    std::wstring name;
    std::vector<double> values;
    bool operator==(const ParamGroup&) const = default;
};

/// An analysis material, SI units throughout.
class CMatAnal : public NamedEntity {
public:
    /// Places of the values that `Param` gives by index; model parameters follow from
    /// `kFirstModelParam`.
    enum ParamIndex {
        kYoung = 0,
        kPoisson = 1,
        kDensity = 2,
        kExpansion = 3,
        kShear = 4,
        kTangent = 5,
        kHardening = 6,
        kYield = 7,
        kFirstModelParam = 8
    };

    CMatAnal() = default;
    /// An elastic isotropic material; the shear modulus follows as E / (2 (1 + nu)).
    CMatAnal(std::wstring name, double e, double nu, double density, double alpha);

    MatModel Model() const { return m_model; }
    bool IsOrthotropic() const {
        return m_model == MatModel::ElasticOrthotropic || m_model == MatModel::Fabric;
    }
    /// Young's modulus in direction k = 0, 1, 2, Pa; isotropic materials use k = 0.
    double E(int k = 0) const { return m_e[Index(k)]; }
    /// Poisson's ratio: xy, yz, zx for k = 0, 1, 2 when orthotropic.
    double Nu(int k = 0) const { return m_nu[Index(k)]; }
    /// Shear modulus, Pa: xy, yz, zx for k = 0, 1, 2 when orthotropic.
    double G(int k = 0) const { return m_g[Index(k)]; }
    /// Coefficient of thermal expansion, 1/K.
    double Alpha(int k = 0) const { return m_alpha[Index(k)]; }
    /// Mass density, kg/m3.
    double Density() const { return m_density; }
    /// Slope after yielding, Pa; yield stress, Pa; hardening parameter: 0 kinematic, 1 isotropic.
    double TangentModulus() const { return m_tangent; }
    double HardeningParameter() const { return m_hardening; }
    double YieldStress() const { return m_yield; }
    /// A value by its index (see `ParamIndex`); 0 where the material has none.
    double Param(int index) const;
    /// Parameters of models that need more than the values above, in the model's own order; for
    /// soils cohesion (Pa), friction angle (deg) and dilation angle (deg).
    const std::vector<double>& ModelParams() const { return m_modelParams; }
    /// Material curves that the model refers to, by number.
    const std::vector<int>& Curves() const { return m_curves; }
    int NumOpsParam() const { return static_cast<int>(m_modelParams.size()); }
    double OpsParam(int k) const {
        return k >= 0 && k < NumOpsParam() ? m_modelParams[static_cast<std::size_t>(k)] : 0.0;
    }
    const std::vector<ParamGroup>& OpsGroups() const { return m_groups; }
    /// Words of a uniaxial model (bond condition, damage type, curve type), in its order.
    const std::vector<std::wstring>& OpsTexts() const { return m_texts; }

    void SetModel(MatModel model) { m_model = model; }
    void SetE(const std::array<double, 3>& e) { m_e = e; }
    void SetNu(const std::array<double, 3>& nu) { m_nu = nu; }
    void SetG(const std::array<double, 3>& g) { m_g = g; }
    void SetAlpha(const std::array<double, 3>& alpha) { m_alpha = alpha; }
    const std::array<double, 3>& Young() const { return m_e; }
    const std::array<double, 3>& Poisson() const { return m_nu; }
    const std::array<double, 3>& Shear() const { return m_g; }
    const std::array<double, 3>& Expansion() const { return m_alpha; }
    void SetDensity(double density) { m_density = density; }
    void SetTangentModulus(double tangent) { m_tangent = tangent; }
    void SetHardeningParameter(double hardening) { m_hardening = hardening; }
    void SetYieldStress(double yield) { m_yield = yield; }
    void SetModelParams(std::vector<double> params) { m_modelParams = std::move(params); }
    void SetCurves(std::vector<int> curves) { m_curves = std::move(curves); }
    void SetOpsGroups(std::vector<ParamGroup> groups) { m_groups = std::move(groups); }
    void SetOpsTexts(std::vector<std::wstring> texts) { m_texts = std::move(texts); }

    bool operator==(const CMatAnal&) const = default;

private:
    static constexpr std::size_t Index(int k) {
        return k < 0 ? 0 : (k > 2 ? 2 : static_cast<std::size_t>(k));
    }

    MatModel m_model = MatModel::ElasticIsotropic;
    std::array<double, 3> m_e{};
    std::array<double, 3> m_nu{};
    std::array<double, 3> m_g{};
    std::array<double, 3> m_alpha{};
    double m_density = 0.0;
    double m_tangent = 0.0;
    double m_hardening = 0.0;
    double m_yield = 0.0;
    std::vector<double> m_modelParams;
    std::vector<int> m_curves;
    std::vector<ParamGroup> m_groups;
    std::vector<std::wstring> m_texts;
};

/// A design grade of one family: its strength and the properties that analysis uses.
class CMatDesign : public NamedEntity {
public:
    const CMatAnal& MatAnal() const { return m_analysis; }
    /// Characteristic strength of the grade, Pa: cylinder strength of concrete, yield stress of
    /// metals, bending strength of timber, and so on.
    double Strength() const { return m_strength; }
    void SetMatAnal(CMatAnal analysis) { m_analysis = std::move(analysis); }
    void SetStrength(double strength) { m_strength = strength; }
    bool operator==(const CMatDesign&) const = default;

private:
    CMatAnal m_analysis;
    double m_strength = 0.0;
};

/// What a property is made of: a design family and grade, and the analysis material that stands
/// for it (0: the grade's own properties).
struct MaterialChoice {
    MatType type = MatType::Generic;
    int grade = 0;
    int analysis = 0;
    bool operator==(const MaterialChoice&) const = default;
};

}  // namespace Data
}  // namespace Tevra

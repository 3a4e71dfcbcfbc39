#pragma once

#include <array>
#include <string>
#include <vector>

#include "model/Material.h"
#include "model/Types.h"

namespace Tevra {

/// Kinds of 2D properties.
enum class Prop2DType : int {
    PlaneStress = 1,
    PlaneStrain = 2,
    Axisymmetric = 3,
    Membrane = 4,
    Plate = 5,
    Shell = 6,
    CurvedShell = 7,
    LoadPanel = 8
};

/// Kinds of spring properties: one stiffness along x, six general ones, one about x, and two kinds
/// that lie between surfaces (contact and friction), which explicit dynamics does not take.
enum class SpringType : int {
    Translational = 1,
    General = 2,
    Rotational = 4,
    Contact = 64,
    Friction = 128
};

namespace Data {

/// One layer of a layered 2D property, from the bottom up.
struct PropLayer {
    int material = 0;        ///< analysis material
    double thickness = 0.0;  ///< m
    double angle = 0.0;      ///< of the material's x from the property's, degrees
    bool operator==(const PropLayer&) const = default;
};

/// Property of 2D elements.
class CProp2D : public NamedEntity {
public:
    Prop2DType Type() const { return m_type; }
    /// Axis whose x gives the element's x by projection, 0 global.
    int Axis() const { return m_axis; }
    /// Thicknesses, m: the nominal one, and those for in-plane, bending, shear stiffness and mass
    /// (each the nominal one unless it was set).
    double Thickness() const { return m_thickness; }
    double InplaneThickness() const { return OrNominal(m_inplane); }
    double BendingThickness() const { return OrNominal(m_bending); }
    double ShearThickness() const { return OrNominal(m_shear); }
    double VolumeThickness() const { return OrNominal(m_volume); }
    /// Mass besides that of the material, kg/m2.
    double AdditionalMass() const { return m_additionalMass; }
    MatType MaterialType() const { return m_material.type; }
    int MaterialGrade() const { return m_material.grade; }
    int MaterialAnalysis() const { return m_material.analysis; }
    const MaterialChoice& Material() const { return m_material; }
    int NumLayer() const { return static_cast<int>(m_layers.size()); }
    /// Layer `k`, from 1 (the bottom).
    const PropLayer& Layer(int k) const;
    const std::vector<PropLayer>& Layers() const { return m_layers; }
    bool IsLoadPanel() const { return m_type == Prop2DType::LoadPanel; }
    /// True for everything that is a finite element.
    bool Is2DFE() const { return !IsLoadPanel(); }
    /// True for kinds that resist bending, so that stresses vary through the thickness.
    bool HasBending() const {
        return m_type >= Prop2DType::Plate && m_type <= Prop2DType::CurvedShell;
    }
    /// Type and thickness in words, for example "SHELL 0.25 m".
    std::wstring Description() const;

    void SetType(Prop2DType type) { m_type = type; }
    void SetAxis(int axis) { m_axis = axis; }
    void SetThickness(double thickness) { m_thickness = thickness; }
    /// 0 goes back to the nominal thickness.
    void SetInplane(double thickness) { m_inplane = thickness; }
    void SetBending(double thickness) { m_bending = thickness; }
    void SetShear(double thickness) { m_shear = thickness; }
    void SetVolume(double thickness) { m_volume = thickness; }
    void SetAdditionalMass(double mass) { m_additionalMass = mass; }
    void SetMaterial(const MaterialChoice& material) { m_material = material; }
    void SetLayers(std::vector<PropLayer> layers) { m_layers = std::move(layers); }
    /// The thicknesses as they were set, 0 where the nominal one holds.
    double OwnInplane() const { return m_inplane; }
    double OwnBending() const { return m_bending; }
    double OwnShear() const { return m_shear; }
    double OwnVolume() const { return m_volume; }

    bool operator==(const CProp2D&) const = default;

private:
    double OrNominal(double own) const { return own != 0.0 ? own : m_thickness; }

    Prop2DType m_type = Prop2DType::Shell;
    int m_axis = 0;
    double m_thickness = 0.0;
    double m_inplane = 0.0;
    double m_bending = 0.0;
    double m_shear = 0.0;
    double m_volume = 0.0;
    double m_additionalMass = 0.0;
    MaterialChoice m_material;
    std::vector<PropLayer> m_layers;
};

/// Property of 3D elements.
class CProp3D : public NamedEntity {
public:
    int Axis() const { return m_axis; }
    MatType MaterialType() const { return m_material.type; }
    int MaterialGrade() const { return m_material.grade; }
    int MaterialAnalysis() const { return m_material.analysis; }
    const MaterialChoice& Material() const { return m_material; }
    void SetAxis(int axis) { m_axis = axis; }
    void SetMaterial(const MaterialChoice& material) { m_material = material; }
    bool operator==(const CProp3D&) const = default;

private:
    int m_axis = 0;
    MaterialChoice m_material;
};

/// Stiffness of a spring in six directions of its axis, linear or by a curve.
class CSpringProp : public NamedEntity {
public:
    SpringType Type() const { return m_type; }
    /// Axis of the directions, 0 global.
    int Axis() const { return m_axis; }
    /// True for a single linear stiffness.
    bool IsSimple() const;
    bool TranslationActive() const;
    bool RotationActive() const;
    /// N/m for translations, Nm/rad for rotations.
    double Stiff(Direction d) const { return m_stiffness[static_cast<std::size_t>(d)]; }
    /// Material curve (displacement, force) that replaces the stiffness, 0 none.
    int TableRef(Direction d) const { return m_curves[static_cast<std::size_t>(d)]; }

    void SetType(SpringType type) { m_type = type; }
    void SetAxis(int axis) { m_axis = axis; }
    void SetStiff(Direction d, double value) { m_stiffness[static_cast<std::size_t>(d)] = value; }
    void SetTableRef(Direction d, int curve) { m_curves[static_cast<std::size_t>(d)] = curve; }
    const std::array<double, 6>& Stiffnesses() const { return m_stiffness; }
    const std::array<int, 6>& Tables() const { return m_curves; }
    void SetStiffnesses(const std::array<double, 6>& values) { m_stiffness = values; }
    void SetTables(const std::array<int, 6>& curves) { m_curves = curves; }

    bool operator==(const CSpringProp&) const = default;

private:
    SpringType m_type = SpringType::General;
    int m_axis = 0;
    std::array<double, 6> m_stiffness{};
    std::array<int, 6> m_curves{};
};

/// Viscous damping in six directions of its axis.
class CDamperProp : public NamedEntity {
public:
    int Axis() const { return m_axis; }
    /// True when one direction alone damps.
    bool IsSimple() const;
    /// N s/m for translations, N m s/rad for rotations.
    double Coefficient(Direction d) const { return m_coefficients[static_cast<std::size_t>(d)]; }
    const std::array<double, 6>& Coefficients() const { return m_coefficients; }
    void SetAxis(int axis) { m_axis = axis; }
    void SetCoefficients(const std::array<double, 6>& values) { m_coefficients = values; }
    bool operator==(const CDamperProp&) const = default;

private:
    int m_axis = 0;
    std::array<double, 6> m_coefficients{};
};

/// Mass at a node.
class CMassProp : public NamedEntity {
public:
    int Axis() const { return m_axis; }
    /// kg.
    double Mass() const { return m_mass; }
    /// Moments and products of inertia, kg m2. Products are the positive integrals of xy, yz, zx.
    const TensSym3<double>& Inertia() const { return m_inertia; }
    bool HasInertia() const { return !(m_inertia == TensSym3<double>{}); }
    void SetAxis(int axis) { m_axis = axis; }
    void SetMass(double mass) { m_mass = mass; }
    void SetInertia(const TensSym3<double>& inertia) { m_inertia = inertia; }
    bool operator==(const CMassProp&) const = default;

private:
    int m_axis = 0;
    double m_mass = 0.0;
    TensSym3<double> m_inertia;
};

/// Property of cable elements, given by its stress-carrying area or by its axial stiffness alone.
class CCableProp : public NamedEntity {
public:
    /// m2; 0 when the property is given by its axial stiffness.
    double Area() const { return m_area; }
    /// Pa, or the axial stiffness EA in N when there is no area.
    double E() const { return m_e; }
    double G() const { return m_g; }
    double Nu() const { return m_nu; }
    /// kg/m3, or the mass per length in kg/m when there is no area.
    double Density() const { return m_density; }
    void SetArea(double area) { m_area = area; }
    void SetE(double e) { m_e = e; }
    void SetG(double g) { m_g = g; }
    void SetNu(double nu) { m_nu = nu; }
    void SetDensity(double density) { m_density = density; }
    bool operator==(const CCableProp&) const = default;

private:
    double m_area = 0.0;
    double m_e = 0.0;
    double m_g = 0.0;
    double m_nu = 0.0;
    double m_density = 0.0;
};

/// Property of link elements: which freedoms of the second node follow the first.
class CLinkProp : public NamedEntity {
public:
    /// Twelve bits: 0 X-X, 1 X-YY, 2 X-ZZ, 3 XX-XX, 4 Y-Y, 5 Y-ZZ, 6 Y-XX, 7 YY-YY, 8 Z-Z, 9 Z-XX,
    /// 10 Z-YY, 11 ZZ-ZZ. 4095 links all.
    int TypeOf() const { return m_type; }
    void SetType(int type) { m_type = type; }
    bool operator==(const CLinkProp&) const = default;

private:
    int m_type = 4095;
};

}  // namespace Data

/// The freedoms that a link-type code ties directly, whatever the arm terms.
Vbool6 LinkedFreedoms(int linkType);

}  // namespace Tevra

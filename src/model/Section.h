#pragma once

#include <memory>
#include <string>
#include <vector>

#include "model/Material.h"
#include "model/Types.h"

namespace Tevra {

/// Properties of a section about its centroid in element axes, SI units. The shear values are
/// areas (factor times area).
struct SectionProperties {
    double area = 0.0;
    double j = 0.0;
    double iyy = 0.0;
    double izz = 0.0;
    double iyz = 0.0;
    double avy = 0.0;
    double avz = 0.0;
    bool operator==(const SectionProperties&) const = default;

    /// Whether y and z are principal axes, up to round-off.
    bool HasPrincipalAxes() const {
        constexpr double kRoundOff = 1e-6;
        const double least = kRoundOff * (iyy + izz);
        return !(iyz > least || -iyz > least);
    }
};

namespace Data {

class CSecGeom;

/// Factors on the properties of a section, 1 where nothing is modified.
struct SectionModifiers {
    double area = 1.0;
    double j = 1.0;
    double iyy = 1.0;
    double izz = 1.0;
    double avy = 1.0;
    double avz = 1.0;
    bool operator==(const SectionModifiers&) const = default;
};

/// One part of a section: a shape, where it stands, and what it is made of.
class CSecComp {
public:
    /// Shape as a description text, for example "STD%I%500%200%12%20".
    const std::wstring& Description() const { return m_description; }
    const MaterialChoice& Material() const { return m_material; }
    /// Centroid of the part in the section, y and z, m.
    const Vec2<double>& Position() const { return m_position; }

    /// What the description means; made when it is set, shared by copies.
    const CSecGeom& Geometry() const;

    /// Profiles are looked up in the catalogue of the process (CProfileCatalogue::Current).
    void SetDescription(std::wstring description);
    void SetMaterial(const MaterialChoice& material) { m_material = material; }
    void SetPosition(const Vec2<double>& position) { m_position = position; }

    bool operator==(const CSecComp& o) const {
        return m_description == o.m_description && m_material == o.m_material &&
               m_position == o.m_position;
    }

private:
    std::wstring m_description;
    std::shared_ptr<const CSecGeom> m_geometry;  ///< null without a description
    MaterialChoice m_material;
    Vec2<double> m_position;
};

/// A beam section of one or more components.
class CSection : public NamedEntity {
public:
    CSection() : m_components(1) {}
    CSection(std::wstring name, std::wstring description, const MaterialChoice& material);

    /// The description of the section: that of its first component.
    const std::wstring& Description() const { return Component(1).Description(); }
    int NumComponent() const { return static_cast<int>(m_components.size()); }
    /// Component `k`, from 1.
    const CSecComp& Component(int k) const;
    MatType MaterialType(int k = 1) const { return Component(k).Material().type; }
    int MaterialGrade(int k = 1) const { return Component(k).Material().grade; }
    int MaterialAnalysis(int k = 1) const { return Component(k).Material().analysis; }
    int Pool() const { return m_pool; }
    /// Distance of the centroid from the line between the nodes, along local y and z, m.
    const Vec2<double>& CentroidOffset() const { return m_centroidOffset; }
    const SectionModifiers& Modifiers() const { return m_modifiers; }
    const std::vector<CSecComp>& Components() const { return m_components; }

    /// Properties of component `part` about its own centroid, or with part 0 of all components
    /// together (as one material) about their common centroid. Zero for a part that there is not.
    SectionProperties Properties(int part = 0) const;
    /// The same with the section's modifiers. The product of inertia takes the geometric mean of
    /// the factors on the second moments.
    SectionProperties ModifiedProperties(int part = 0) const;
    /// Centroid of all components, in the coordinates of their positions, m.
    Vec2<double> Centroid() const;
    // Of all components together, without modifiers.
    double Iyy() const { return Properties().iyy; }
    double Izz() const { return Properties().izz; }
    /// Shear factors: shear area over area, 0 without an area.
    double Kyy() const;
    double Kzz() const;
    /// Volume per length, m3/m: the area of all components.
    double VolPerL() const { return Properties().area; }

    /// A section keeps one component at least.
    void SetComponents(std::vector<CSecComp> components);
    void SetPool(int pool) { m_pool = pool; }
    void SetCentroidOffset(const Vec2<double>& offset) { m_centroidOffset = offset; }
    void SetModifiers(const SectionModifiers& modifiers) { m_modifiers = modifiers; }

    bool operator==(const CSection&) const = default;

private:
    std::vector<CSecComp> m_components;
    int m_pool = 0;
    Vec2<double> m_centroidOffset;
    SectionModifiers m_modifiers;
};

}  // namespace Data
}  // namespace Tevra

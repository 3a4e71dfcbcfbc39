#include <algorithm>
#include <cmath>

#include "model/SecGeom.h"
#include "model/Section.h"

namespace Tevra::Data {

namespace {

/// Adds a component's properties, moved from its centroid to axes at `arm` from it (Steiner).
void AddMoved(SectionProperties& sum, const SectionProperties& p, const Vec2<double>& arm) {
    sum.area += p.area;
    sum.j += p.j;
    sum.iyy += p.iyy + p.area * arm.y * arm.y;
    sum.izz += p.izz + p.area * arm.x * arm.x;
    sum.iyz += p.iyz + p.area * arm.x * arm.y;
    sum.avy += p.avy;
    sum.avz += p.avz;
}

}  // namespace

const CSecGeom& CSecComp::Geometry() const {
    static const CSecGeom kNone;
    return m_geometry ? *m_geometry : kNone;
}

void CSecComp::SetDescription(std::wstring description) {
    m_geometry = description.empty() ? nullptr : std::make_shared<const CSecGeom>(description);
    m_description = std::move(description);
}

Vec2<double> CSection::Centroid() const {
    double area = 0.0;
    Vec2<double> moment;
    for (const CSecComp& component : m_components) {
        const double a = component.Geometry().Properties().area;
        area += a;
        moment = {moment.x + a * component.Position().x, moment.y + a * component.Position().y};
    }
    return area > 0.0 ? Vec2<double>{moment.x / area, moment.y / area} : Vec2<double>{};
}

SectionProperties CSection::Properties(int part) const {
    if (part != 0 || NumComponent() == 1) {
        return Component(part == 0 ? 1 : part).Geometry().Properties();
    }
    SectionProperties sum;
    const Vec2<double> centroid = Centroid();
    for (const CSecComp& component : m_components) {
        const Vec2<double>& at = component.Position();
        AddMoved(sum, component.Geometry().Properties(), {at.x - centroid.x, at.y - centroid.y});
    }
    return sum;
}

SectionProperties CSection::ModifiedProperties(int part) const {
    SectionProperties p = Properties(part);
    p.area *= m_modifiers.area;
    p.j *= m_modifiers.j;
    p.iyy *= m_modifiers.iyy;
    p.izz *= m_modifiers.izz;
    p.iyz *= std::sqrt(std::max(m_modifiers.iyy, 0.0) * std::max(m_modifiers.izz, 0.0));
    p.avy *= m_modifiers.avy;
    p.avz *= m_modifiers.avz;
    return p;
}

double CSection::Kyy() const {
    const SectionProperties p = Properties();
    return p.area > 0.0 ? p.avy / p.area : 0.0;
}

double CSection::Kzz() const {
    const SectionProperties p = Properties();
    return p.area > 0.0 ? p.avz / p.area : 0.0;
}

}  // namespace Tevra::Data

#include "model/Section.h"

namespace Tevra::Data {

CSection::CSection(std::wstring name, std::wstring description, const MaterialChoice& material)
    : NamedEntity(std::move(name)), m_components(1) {
    m_components.front().SetDescription(std::move(description));
    m_components.front().SetMaterial(material);
}

const CSecComp& CSection::Component(int k) const {
    static const CSecComp kNone;
    return k >= 1 && k <= NumComponent() ? m_components[static_cast<std::size_t>(k - 1)] : kNone;
}

void CSection::SetComponents(std::vector<CSecComp> components) {
    m_components = std::move(components);
    if (m_components.empty()) {
        m_components.resize(1);
    }
}

}  // namespace Tevra::Data

#include "model/Material.h"

namespace Tevra::Data {

CMatAnal::CMatAnal(std::wstring name, double e, double nu, double density, double alpha)
    : NamedEntity(std::move(name)), m_density(density) {
    m_e[0] = e;
    m_nu[0] = nu;
    m_g[0] = e / (2.0 * (1.0 + nu));
    m_alpha[0] = alpha;
}

double CMatAnal::Param(int index) const {
    switch (index) {
        case kYoung:
            return m_e[0];
        case kPoisson:
            return m_nu[0];
        case kDensity:
            return m_density;
        case kExpansion:
            return m_alpha[0];
        case kShear:
            return m_g[0];
        case kTangent:
            return m_tangent;
        case kHardening:
            return m_hardening;
        case kYield:
            return m_yield;
        default:
            break;
    }
    return index >= kFirstModelParam ? OpsParam(index - kFirstModelParam) : 0.0;
}

}  // namespace Tevra::Data

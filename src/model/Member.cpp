#include "model/Member.h"

#include "model/Names.h"

namespace Tevra::Data {

std::wstring_view CMember::AnalysisOrderString() const {
    return Tevra::AnalysisOrderString(m_order);
}

bool CMember::Is1D() const {
    return m_type == MemberType::Beam || m_type == MemberType::Column ||
           m_type == MemberType::Generic1D;
}

bool CMember::Is2D() const {
    return m_type == MemberType::Slab || m_type == MemberType::Wall ||
           m_type == MemberType::Generic2D || m_type == MemberType::VoidCutter;
}

PropertyType CMember::PropertyKind() const {
    if (Is1D()) {
        return InfoOf(m_analysisType1D).property;
    }
    if (Is3D()) {
        return PropertyType::Prop3D;
    }
    return Is2D() && m_type != MemberType::VoidCutter ? PropertyType::Prop2D : PropertyType::None;
}

}  // namespace Tevra::Data

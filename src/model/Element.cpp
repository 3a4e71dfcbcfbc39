#include "model/Element.h"

#include <algorithm>
#include <limits>

namespace Tevra::Data {

std::vector<int> CElement::Topo() const {
    std::vector<int> topo(m_numTopo);
    for (int k = 1; k <= m_numTopo; ++k) {
        topo[static_cast<std::size_t>(k - 1)] = Topo(k);
    }
    return topo;
}

void CElement::SetTopo(const std::vector<int>& topo) {
    constexpr std::size_t kMost = std::numeric_limits<std::uint16_t>::max();
    const std::size_t count = std::min(topo.size(), kMost);
    const std::size_t direct = std::min(count, kInline);
    m_topo.fill(0);
    std::copy_n(topo.begin(), direct, m_topo.begin());
    m_numTopo = static_cast<std::uint16_t>(count);
    if (count > kInline) {
        m_extra.Edit().furtherTopo.assign(topo.begin() + kInline,
                                          topo.begin() + static_cast<std::ptrdiff_t>(count));
    } else if (m_extra.Exists()) {
        m_extra.Edit().furtherTopo.clear();
    }
}

}  // namespace Tevra::Data

#include "model/Property.h"

#include <algorithm>
#include <charconv>

#include "model/Names.h"

namespace Tevra {

namespace Data {

namespace {

/// Number of directions from `first` to `last` with a value other than 0.
template <class Values>
auto CountSet(const Values& values, Direction first, Direction last) {
    return std::count_if(values.begin() + (first - Direction::X),
                         values.begin() + (last - Direction::X) + 1,
                         [](auto value) { return value != 0; });
}

}  // namespace

const PropLayer& CProp2D::Layer(int k) const {
    static const PropLayer kNone;
    return k >= 1 && k <= NumLayer() ? m_layers[static_cast<std::size_t>(k - 1)] : kNone;
}

std::wstring CProp2D::Description() const {
    std::array<char, 64> text{};
    const char* const end = std::to_chars(text.data(), text.data() + text.size(), m_thickness).ptr;
    return std::wstring(Prop2DTypeString(m_type)) + L" " +
           std::wstring(static_cast<const char*>(text.data()), end) + L" m";
}

bool CSpringProp::IsSimple() const {
    return CountSet(m_stiffness, Direction::X, Direction::ZZ) == 1 &&
           CountSet(m_curves, Direction::X, Direction::ZZ) == 0;
}

bool CSpringProp::TranslationActive() const {
    return CountSet(m_stiffness, Direction::X, Direction::Z) > 0 ||
           CountSet(m_curves, Direction::X, Direction::Z) > 0;
}

bool CSpringProp::RotationActive() const {
    return CountSet(m_stiffness, Direction::XX, Direction::ZZ) > 0 ||
           CountSet(m_curves, Direction::XX, Direction::ZZ) > 0;
}

bool CDamperProp::IsSimple() const {
    return CountSet(m_coefficients, Direction::X, Direction::ZZ) == 1;
}

}  // namespace Data

Vbool6 LinkedFreedoms(int linkType) {
    // Bit of the term that ties a freedom to the same freedom of the other node.
    constexpr std::array<unsigned, 6> kOwnTerm{0, 4, 8, 3, 7, 11};
    Vbool6 freedoms;
    for (const Direction d : kDirections) {
        const unsigned bit = kOwnTerm[static_cast<std::size_t>(d)];
        freedoms.Set(d, (static_cast<unsigned>(linkType) >> bit & 1U) != 0);
    }
    return freedoms;
}

}  // namespace Tevra

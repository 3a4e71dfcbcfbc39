#pragma once

#include <array>
#include <cmath>
#include <cstdint>

/// Value types of the model, used by value everywhere: vectors, tensors, the six directions and
/// flags over them, references to entities and to cases.
namespace Tevra {

/// Vector in a plane.
template <class T>
struct Vec2 {
    T x{};
    T y{};
    bool operator==(const Vec2&) const = default;
};

/// Vector in space; positions are in metres.
template <class T>
struct Vec3 {
    T x{};
    T y{};
    T z{};

    bool operator==(const Vec3&) const = default;
    Vec3 operator+(const Vec3& o) const { return {x + o.x, y + o.y, z + o.z}; }
    Vec3 operator-(const Vec3& o) const { return {x - o.x, y - o.y, z - o.z}; }
    Vec3 operator-() const { return {-x, -y, -z}; }
    Vec3 operator*(T f) const { return {x * f, y * f, z * f}; }
    /// Component by index 0, 1, 2.
    const T& operator[](int i) const { return i == 0 ? x : (i == 1 ? y : z); }
    T& operator[](int i) { return i == 0 ? x : (i == 1 ? y : z); }
};

template <class T>
T Dot(const Vec3<T>& a, const Vec3<T>& b) {
    return a.x * b.x + a.y * b.y + a.z * b.z;
}

template <class T>
Vec3<T> Cross(const Vec3<T>& a, const Vec3<T>& b) {
    return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}

inline double Length(const Vec3<double>& v) {
    return std::hypot(v.x, v.y, v.z);
}

/// `v` scaled to length one; a vector without length (or with a length that is not a number) gives
/// `fallback`.
inline Vec3<double> Unit(const Vec3<double>& v, const Vec3<double>& fallback) {
    const double length = Length(v);
    return length > 0.0 && std::isfinite(length) ? v * (1.0 / length) : fallback;
}

/// Symmetric tensor in a plane, in the order xx, yy, xy.
template <class T>
struct Tens2 {
    T xx{};
    T yy{};
    T xy{};
    bool operator==(const Tens2&) const = default;
};

/// Symmetric tensor in space, in the order xx, yy, zz, xy, yz, zx.
template <class T>
struct TensSym3 {
    T xx{};
    T yy{};
    T zz{};
    T xy{};
    T yz{};
    T zx{};
    bool operator==(const TensSym3&) const = default;
};

/// The six directions: translations X, Y, Z and rotations XX, YY, ZZ about them.
enum class Direction : std::uint8_t { X, Y, Z, XX, YY, ZZ };

inline constexpr std::array<Direction, 6> kDirections{Direction::X,  Direction::Y,  Direction::Z,
                                                      Direction::XX, Direction::YY, Direction::ZZ};

inline Direction& operator++(Direction& d) {
    d = static_cast<Direction>(static_cast<int>(d) + 1);
    return d;
}

/// Distance between two directions in their order.
constexpr int operator-(Direction a, Direction b) {
    return static_cast<int>(a) - static_cast<int>(b);
}

/// True for X, Y and Z.
constexpr bool IsTrans(Direction d) {
    return d <= Direction::Z;
}

/// The translation along the axis of `d`: XX to ZZ give X to Z.
constexpr Direction ToTrans(Direction d) {
    return IsTrans(d) ? d : static_cast<Direction>(static_cast<int>(d) - 3);
}

/// Six flags, one for each direction: restraints, releases, linked or active freedoms.
class Vbool6 {
public:
    constexpr Vbool6() = default;
    constexpr Vbool6(bool x, bool y, bool z, bool xx, bool yy, bool zz)
        : m_bits(static_cast<std::uint8_t>((x ? 1U : 0U) | (y ? 2U : 0U) | (z ? 4U : 0U) |
                                           (xx ? 8U : 0U) | (yy ? 16U : 0U) | (zz ? 32U : 0U))) {}
    /// From bit flags 1 X, 2 Y, 4 Z, 8 XX, 16 YY, 32 ZZ; higher bits are ignored.
    static constexpr Vbool6 FromBits(unsigned bits) {
        Vbool6 result;
        result.m_bits = static_cast<std::uint8_t>(bits & 63U);
        return result;
    }

    constexpr bool IncludesDirection(Direction d) const { return (m_bits & Mask(d)) != 0; }
    constexpr bool X() const { return IncludesDirection(Direction::X); }
    constexpr bool Y() const { return IncludesDirection(Direction::Y); }
    constexpr bool Z() const { return IncludesDirection(Direction::Z); }
    constexpr bool XX() const { return IncludesDirection(Direction::XX); }
    constexpr bool YY() const { return IncludesDirection(Direction::YY); }
    constexpr bool ZZ() const { return IncludesDirection(Direction::ZZ); }
    constexpr bool IsNone() const { return m_bits == 0; }
    constexpr unsigned Bits() const { return m_bits; }

    constexpr void Set(Direction d, bool on) {
        m_bits = static_cast<std::uint8_t>(on ? m_bits | Mask(d) : m_bits & ~Mask(d));
    }
    constexpr void SetX(bool on) { Set(Direction::X, on); }
    constexpr void SetY(bool on) { Set(Direction::Y, on); }
    constexpr void SetZ(bool on) { Set(Direction::Z, on); }
    constexpr void SetXX(bool on) { Set(Direction::XX, on); }
    constexpr void SetYY(bool on) { Set(Direction::YY, on); }
    constexpr void SetZZ(bool on) { Set(Direction::ZZ, on); }

    /// Flags set in either.
    constexpr Vbool6 operator|(Vbool6 o) const {
        return FromBits(static_cast<unsigned>(m_bits) | o.m_bits);
    }
    constexpr bool operator==(const Vbool6&) const = default;

private:
    static constexpr unsigned Mask(Direction d) { return 1U << static_cast<unsigned>(d); }
    std::uint8_t m_bits = 0;
};

/// Kinds of things that an entity list can hold. The first five codes are the host's.
enum class SelType : int {
    None = 0,
    Node = 1,
    Element = 2,
    Member = 3,
    Case = 4,
    Assembly = 11,
    LoadCase = 21,
    Mode = 22,
    Number = 23,
    GridPlane = 24
};

/// One entity: its kind and its number.
struct SEntRef {
    SelType type = SelType::None;
    int number = 0;
    bool operator==(const SEntRef&) const = default;
};

/// What a case reference means: other values than these two are no case.
enum class CaseOp : int { None = 0, Analysis = 2, Combination = 4 };

/// Permutation codes of the envelopes of a combination case.
inline constexpr int kMinimumEnvelope = -1;
inline constexpr int kMaximumEnvelope = -2;
inline constexpr int kAbsoluteEnvelope = -3;
inline constexpr int kSignedAbsoluteEnvelope = -4;

/// Reference to an analysis or combination case, of the latter to a permutation (1 on) or an
/// envelope (-1 to -4) of it.
class SCaseRef {
public:
    constexpr SCaseRef() = default;
    constexpr SCaseRef(int op, int number, int permutation)
        : m_op(op), m_number(number), m_permutation(permutation) {}
    constexpr SCaseRef(CaseOp op, int number, int permutation)
        : SCaseRef(static_cast<int>(op), number, permutation) {}

    constexpr CaseOp CaseType() const { return static_cast<CaseOp>(m_op); }
    constexpr int Case() const { return m_number; }
    constexpr int Permutation() const { return m_permutation; }
    /// The permutation or envelope code as timing reports use it.
    constexpr int Index() const { return m_permutation; }
    constexpr bool IsAnalysis() const { return CaseType() == CaseOp::Analysis; }
    constexpr bool IsCombination() const { return CaseType() == CaseOp::Combination; }
    constexpr bool operator==(const SCaseRef&) const = default;

private:
    int m_op = 0;
    int m_number = 0;
    int m_permutation = 0;
};

/// Reference to the analysis case `number`.
constexpr SCaseRef AnalysisRef(int number) {
    return {CaseOp::Analysis, number, 0};
}

/// Kinds of properties that elements refer to.
enum class PropertyType : int {
    None = 0,
    Section = 1,
    Prop2D = 2,
    Prop3D = 3,
    Spring = 4,
    Damper = 5,
    Mass = 6,
    Cable = 7,
    Link = 8
};

}  // namespace Tevra

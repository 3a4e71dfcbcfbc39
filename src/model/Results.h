#pragma once

#include <array>
#include <cstdint>
#include <map>
#include <memory>
#include <span>
#include <vector>

#include "model/NumberedTable.h"
#include "model/Types.h"

namespace Tevra {

/// Kinds of results by entity. What a row of each holds stands in `kResultKinds`.
enum class ResultKind : int {
    NodeDisp,
    NodeVel,
    NodeAcc,
    NodeReaction,
    NodeConstraint,
    NodeSpringForce,
    Elem1DDisp,
    Elem1DForce,
    SpringForce,
    Elem2DForce,
    Elem2DStress,
    Elem3DStress
};

inline constexpr int kNumResultKind = 12;

/// What is known of a kind of result: its name in model documents, the kind of entity, and how
/// many figures a row (one position of one entity) has.
struct ResultKindInfo {
    const char* name;
    SelType entity;
    int components;
};

/// In enumeration order. Rows hold, in global axes unless said otherwise:
/// node kinds: translations or forces x, y, z, then rotations or moments xx, yy, zz;
/// 1D displacement: the same, at ends 1 and 2; 1D and spring forces: force x, y, z and moment xx,
/// yy, zz in element axes, at ends 1 and 2 (what the part beyond does to the part before, so that
/// tension is positive); 2D force: Nx, Ny, Nxy, Mx, My, Mxy (N/m, Nm/m), Qx, Qy (N/m) in element
/// axes at the centre and the topology nodes; 2D stress: xx, yy, zz, xy, yz, zx (Pa) at bottom,
/// middle and top; 3D stress: the same six once.
inline constexpr std::array<ResultKindInfo, kNumResultKind> kResultKinds{{
    {"node_displacement", SelType::Node, 6},
    {"node_velocity", SelType::Node, 6},
    {"node_acceleration", SelType::Node, 6},
    {"node_reaction", SelType::Node, 6},
    {"node_constraint_force", SelType::Node, 6},
    {"node_spring_force", SelType::Node, 6},
    {"element_1d_displacement", SelType::Element, 6},
    {"element_1d_force", SelType::Element, 6},
    {"spring_force", SelType::Element, 6},
    {"element_2d_force", SelType::Element, 8},
    {"element_2d_stress", SelType::Element, 18},
    {"element_3d_stress", SelType::Element, 6},
}};

constexpr const ResultKindInfo& InfoOf(ResultKind kind) {
    return kResultKinds[static_cast<std::size_t>(kind)];
}

/// Results of one kind in one case: rows of figures per entity, packed in large blocks.
class ResultTable {
public:
    explicit ResultTable(int components = 6) : m_components(components) {}

    int Components() const { return m_components; }
    /// Number of entities with rows.
    int NumEntity() const { return m_rows.Count(); }
    /// Number of rows (positions) of an entity, 0 when it has none.
    int NumRow(int entity) const;
    /// A row from 0; null when there is none.
    const double* Row(int entity, int row) const;
    /// Stores all rows of an entity: `values` holds a whole number of rows, one at least and at
    /// most 8192 figures in all. False for numbers below 1 and other counts.
    bool Set(int entity, std::span<const double> values);
    /// See NumberedPages::HasRoomFor.
    bool HasRoomFor(int entity) const { return m_rows.HasRoomFor(entity); }
    /// The entities that have rows, ascending.
    auto Entities() const { return m_rows.Numbers(); }

    /// Equal when the same entities have the same figures, bit by bit (a NaN equals itself).
    bool operator==(const ResultTable& o) const;

private:
    // Figures in a block: many tables are small, so the first block is, each next one twice that.
    static constexpr std::size_t kSmallestBlock = 64;
    static constexpr std::size_t kDoublings = 7;
    static constexpr std::size_t kBlock = kSmallestBlock << kDoublings;
    struct Place {
        std::uint64_t first = 0;  ///< block times kBlock plus offset
        std::uint32_t rows = 0;
    };
    Place Claim(std::size_t count);
    std::span<double> At(const Place& place, std::size_t count);

    int m_components;
    NumberedTable<Place> m_rows;
    std::vector<std::vector<double>> m_blocks;  ///< filled up to what was reserved, never moved
};

/// Figures of a case as a whole; NaN where the case has none.
struct GlobalResults {
    static constexpr std::size_t kNumFigure = 27;
    GlobalResults();
    /// All figures but the mode, in the order of the members.
    std::array<double, kNumFigure> Figures() const;
    /// Equal when all figures are; a missing figure equals another.
    bool operator==(const GlobalResults& o) const;

    Vec3<double> force;         ///< applied load total, N
    Vec3<double> moment;        ///< about the global origin, Nm
    Vec3<double> reactForce;    ///< reaction total, N
    Vec3<double> reactMoment;   ///< about the global origin, Nm
    int mode = 0;               ///< mode number, 0 none
    double frequency;           ///< Hz
    double loadFactor;          ///< buckling
    double modalMass;           ///< kg
    double modalStiff;          ///< N/m
    double modalGeoStiff;       ///< N/m
    Vec3<double> effMass;       ///< kg
    Vec3<double> rotEffMass;    ///< kg m2
    double mass;                ///< total mass, kg
    Vec3<double> centreOfMass;  ///< m
};

/// Results of one analysis case.
class CaseResults {
public:
    const ResultTable* Find(ResultKind kind) const {
        const auto& table = m_tables[static_cast<std::size_t>(kind)];
        return table ? table.get() : nullptr;
    }
    /// The table of a kind, made when it does not exist yet.
    ResultTable& Edit(ResultKind kind);
    const GlobalResults& Global() const { return m_global; }
    GlobalResults& EditGlobal() { return m_global; }
    /// True when the case has figures of any kind.
    bool Any() const;

    CaseResults() = default;
    CaseResults(const CaseResults& o);
    CaseResults(CaseResults&&) noexcept = default;
    ~CaseResults() = default;
    CaseResults& operator=(CaseResults o) noexcept;
    bool operator==(const CaseResults& o) const;

private:
    std::array<std::unique_ptr<ResultTable>, kNumResultKind> m_tables;
    GlobalResults m_global;
};

/// The results held in memory, by analysis case.
class MemRes {
public:
    /// Number of result tables held, all cases together.
    int NumResult() const;
    bool Any() const;
    const CaseResults* Find(int analysisCase) const;
    /// The results of a case, made when they do not exist yet.
    CaseResults& Edit(int analysisCase) { return m_cases[analysisCase]; }
    void Clear() { m_cases.clear(); }
    const std::map<int, CaseResults>& Cases() const { return m_cases; }
    bool operator==(const MemRes& o) const { return m_cases == o.m_cases; }

private:
    std::map<int, CaseResults> m_cases;
};

/// Reference to a set of results: a case and the host's result data code.
struct ResSetRef {
    SCaseRef ref;
    int code = 0;
};

}  // namespace Tevra

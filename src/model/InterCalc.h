#pragma once

#include <cstdint>
#include <map>
#include <span>
#include <utility>
#include <vector>

#include "model/InterSpan.h"
#include "model/PosOn1D.h"
#include "model/Types.h"

namespace Tevra {

/// What is asked for along a 1D element.
enum class InterKind { Displacement, Force };

/// Results of one kind at positions along a 1D element: set up with what is asked for, filled by
/// CInterCalc. Made once and used for many elements, it keeps its storage.
class CInterInfo {
public:
    /// Asks for results at positions, given in any order.
    void Setup(InterKind kind, std::span<const CPosOn1D> positions);

    InterKind Kind() const { return m_kind; }
    int NumPos() const { return static_cast<int>(m_positions.size()); }
    /// Position `k`, from 0 in the order of `Setup`.
    const CPosOn1D& Pos(int k) const { return m_positions[Index(k)]; }
    /// At position `k`: displacement (m, global axes) or force (N, element axes, tension positive).
    /// NaN where there is no result.
    const Vec3<double>& Tran(int k) const { return m_results[Index(k)].tran; }
    /// Rotation (rad, global axes) or moment (Nm, element axes).
    const Vec3<double>& Rot(int k) const { return m_results[Index(k)].rot; }

private:
    friend class CInterCalc;
    static std::size_t Index(int k) { return static_cast<std::size_t>(k); }

    InterKind m_kind = InterKind::Displacement;
    std::vector<CPosOn1D> m_positions;
    std::vector<InterResult> m_results;
};

/// Works out results along 1D elements from those at their ends and the loads of their spans (see
/// InterSpan). A combination is the factored sum of its cases, an envelope is taken over the
/// permutations, position by position and figure by figure.
class CInterCalc {
public:
    explicit CInterCalc(const CVynData& model) : m_model(&model) {}

    /// Chooses an element and a case. Elements without length, elements that are not 1D and cases
    /// without results have no results either.
    void SetData(int element, const SCaseRef& ref);
    /// Fills what `info` asks for.
    void Calculate(CInterInfo& info) const;
    /// Adds the interesting points of the element in the case, or in all cases that take part in a
    /// combination: positions of point loads and moments, starts and ends of patch loads, and where
    /// the shear of a plane of bending is zero.
    void AddInteresting(std::vector<CPosOn1D>& positions) const;

private:
    const std::vector<int>& CasesOf(const SCaseRef& ref);
    InterResult Single(int analysisCase, InterKind kind, const CPosOn1D& at) const;
    InterResult Combined(InterKind kind, const CPosOn1D& at) const;

    const CVynData* m_model;
    SCaseRef m_ref;
    std::vector<InterSpan> m_spans;  ///< of analysis cases, ascending; the first `m_numSpan` count
    std::size_t m_numSpan = 0;
    std::uint64_t m_revision = 0;
    std::map<std::pair<int, int>, std::vector<int>> m_cases;  ///< by combination and permutation
};

/// Positions at which a 1D element is looked at: regular ones and, by case, the interesting ones.
class CInterPos {
public:
    /// `calc` works out the interesting points, and stays set to the element and case asked for.
    explicit CInterPos(CInterCalc& calc) : m_calc(&calc) {}

    void SetRegular(std::span<const CPosOn1D> positions) {
        m_regular.assign(positions.begin(), positions.end());
    }
    /// The regular positions and the interesting ones of the element in the case: ascending, each
    /// once.
    void SetAutoPositionForCase(int element, const SCaseRef& ref);
    const std::vector<CPosOn1D>& Positions() const { return m_positions; }

private:
    CInterCalc* m_calc;
    std::vector<CPosOn1D> m_regular;
    std::vector<CPosOn1D> m_positions;
};

}  // namespace Tevra

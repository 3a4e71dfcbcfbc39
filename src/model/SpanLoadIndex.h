#pragma once

#include <cstdint>
#include <map>
#include <span>
#include <utility>
#include <vector>

#include "model/BitSet.h"
#include "model/CaseDesc.h"
#include "model/EntList.h"
#include "model/NumberedTable.h"
#include "model/SpanLoads.h"

namespace Tevra {

class CVynData;
struct SpanFrame;

/// What loads the spans of 1D elements: beam loads by element and gravity, found once for all
/// elements, and the factors of the load cases in each analysis case.
class SpanLoadIndex {
public:
    explicit SpanLoadIndex(const CVynData& model);

    /// Adds the loads of an element in an analysis case, turned into element axes. Cases that are
    /// not static, and those that stand for a mode, have none.
    void AddLoads(const SpanFrame& frame, int analysisCase, SpanLoads& forces,
                  SpanLoads& moments) const;
    /// Stage of the task that an analysis case belongs to, -1 none.
    int StageOf(int analysisCase) const { return m_cases.Get(analysisCase).stage; }

private:
    struct CaseFactors {
        int stage = -1;
        std::vector<CaseDescPart::Load> factors;  ///< ascending load cases; of static cases only
        double Of(int loadCase) const;
    };
    struct Range {
        std::uint32_t first = 0;
        std::uint32_t count = 0;
    };
    struct Gravity {
        int loadCase = 0;
        Vec3<double> value;
        CBitSet elements;
    };

    void FindCases();
    void FindMembers();
    void FindBeamLoads();
    void FindGravity();
    template <class Use>
    void ForEachElement(const CEntList& list, Use use) const;

    const CVynData* m_model;
    NumberedTable<CaseFactors> m_cases;
    std::vector<std::pair<int, int>> m_memberElements;  ///< member, element; sorted
    NumberedTable<Range> m_ranges;                      ///< of an element in `m_beamLoads`
    std::vector<int> m_beamLoads;
    std::vector<Gravity> m_gravity;
};

}  // namespace Tevra

#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <map>
#include <span>
#include <utility>
#include <vector>

#include "export/ResultRecord.h"
#include "model/CombCaseDesc.h"
#include "model/Types.h"

namespace Tevra {
class CVynData;
}

namespace Tevra::Export {

/// The figures of one entity after the other in one case. What the case comes to, the analysis
/// cases with their factors in each permutation, is multiplied out once; then each entity's figures
/// are read once per analysis case, and summed and enveloped in flat arrays.
class CaseFigures {
public:
    /// Terms of an envelope, all permutations together, that are kept at most; what goes beyond is
    /// multiplied out anew for each entity.
    static constexpr std::size_t kMostTerms = 2'000'000;

    CaseFigures(const CVynData& model, const SCaseRef& ref, std::size_t mostTerms = kMostTerms);

    const SCaseRef& Ref() const { return m_ref; }
    /// Whether it was made for this state of the model.
    bool Holds(const CVynData& model, const SCaseRef& ref) const;
    /// False for a reference that is neither an analysis case nor a combination.
    bool IsCase() const { return m_ref.IsAnalysis() || m_ref.IsCombination(); }

    /// Works out `width` figures of an entity. `read(analysisCase, figures)` fills those of an
    /// analysis case; figures that it leaves alone are missing.
    template <class Read>
    void Evaluate(std::size_t width, Read&& read) {
        SetWidth(width);
        for (std::size_t k = 0; k < m_cases.size(); ++k) {
            const std::span<double> row = Row(k);
            std::fill(row.begin(), row.end(), kMissing);
            read(m_cases[k], row);
        }
        Combine();
    }

    std::span<const double> Values() const { return m_values; }
    /// The permutation that each value comes from, 0 for none.
    std::span<const int> Permutations() const { return m_permutations; }

    /// The analysis cases that are read, each once per entity.
    const std::vector<int>& AnalysisCases() const { return m_cases; }

private:
    /// A factor on the figures of an analysis case (0 on: its place in `m_cases`) or on those of a
    /// combination (-1 down: its place in `m_parts`).
    struct Term {
        double factor;
        int source;
    };
    enum class Kind : std::uint8_t { Missing, Sum, Envelope };
    /// A combination, or one that it refers to by an envelope.
    struct Part {
        Kind kind = Kind::Missing;
        int combination = 0;
        int count = 0;  ///< of permutations
        CombineOption option = CombineOption::Minimum;
        bool kept = true;               ///< false when the terms are too many to be kept
        std::vector<Term> terms;        ///< of all permutations
        std::vector<std::size_t> ends;  ///< of each permutation in `terms`
    };

    int AddCombination(int combination, int permutation);
    int AddPart(int combination, int permutation);
    void AddTerms(Part& part, const std::vector<FactoredCase>& factored);
    int SourceOf(const FactoredCase& one);
    Part EnvelopeOf(int combination, int count, CombineOption option);
    int RowOf(int analysisCase);

    void SetWidth(std::size_t width);
    std::span<double> Row(std::size_t k) { return std::span(m_rows).subspan(k * m_width, m_width); }
    void Combine();
    void Envelope(const Part& part, std::span<double> out);
    void Sum(const Part& part, int permutation, std::span<double> out);
    void AddUp(std::span<const Term> terms, std::span<double> out);
    std::span<const double> Source(int source);

    const CVynData* m_model;
    std::uint64_t m_revision;
    SCaseRef m_ref;
    std::size_t m_mostTerms;

    std::vector<int> m_cases;
    std::vector<Part> m_parts;   ///< each after those that it refers to; the case itself last
    std::map<int, int> m_rowOf;  ///< by analysis case
    std::map<std::pair<int, int>, int> m_partOf;  ///< by combination and permutation code

    std::size_t m_width = 0;
    std::vector<double> m_rows;         ///< of the analysis cases
    std::vector<double> m_partFigures;  ///< of the parts
    std::vector<double> m_next;         ///< of the permutation being folded in
    std::vector<double> m_values;
    std::vector<int> m_permutations;
    Part m_unkept;  ///< terms of a permutation that are not kept
};

}  // namespace Tevra::Export

#include "export/TableColumns.h"

// Tables of the cases with results and of their permutations.
namespace Tevra::Export {

namespace {

struct CaseRow {
    const CVynExport& from;
    SCaseRef ref;
};

constexpr auto kCaseId = [](const CaseRow& r) { return r.from.CaseId(r.ref); };
constexpr auto kDescription = [](const CaseRow& r) { return r.from.CaseDescription(r.ref); };
constexpr auto kPermutation = [](const CaseRow& r) {
    return PermutationNumber{r.ref.Permutation()};
};

constexpr Column<CaseRow> kCase[] = {
    {"case_id", 12, kCaseId, kKey},
    {"case", [](const CaseRow& r) { return r.ref; }},
    {"case_permutation", kPermutation},
    {"description", 48, kDescription},
};

constexpr Column<CaseRow> kPermutations[] = {
    {"case_id", 12, kCaseId, kKey},
    {"case_number", [](const CaseRow& r) { return r.ref.Case(); }},
    {"case_permutation", kPermutation},
    {"description", 48, kDescription},
};

}  // namespace

bool CVynExport::Case() {
    if (m_model != nullptr && !m_model->AnyResults()) {
        return true;
    }
    return WriteTable(*this, "case", kCase, [this](auto visit) {
        for (const SCaseRef& ref : ResultCases()) {
            visit(CaseRow{*this, ref});
        }
    });
}

bool CVynExport::Permutation() {
    if (m_model != nullptr && !m_model->AnyResults()) {
        return true;
    }
    return WriteTable(*this, "permutation", kPermutations, [this](auto visit) {
        for (const SCaseRef& ref : ResultCases()) {
            if (!ref.IsCombination()) {
                continue;
            }
            const CCombCaseDesc& desc = m_model->CombinationCase(ref.Case()).Desc();
            const int count = desc.NumPermutation(*m_model);
            for (int p = 1; p <= count; ++p) {
                visit(CaseRow{*this, {CaseOp::Combination, ref.Case(), p}});
            }
        }
    });
}

}  // namespace Tevra::Export

#include "model/Util.h"

#include <algorithm>

#include "model/ListExpander.h"
#include "model/ListTerms.h"
#include "model/VynData.h"

namespace Tevra::Util {

namespace {

/// The largest plain number that a list can include: in its text, or in that of a saved list when
/// it names some.
int LargestNumber(const CEntList& list, const CVynData& model) {
    int largest = list.Terms()->largest;
    if (list.Terms()->namesLists) {
        for (const int number : model.ListTable().Numbers()) {
            const CEntList& saved = model.List(number).Definition();
            if (saved.TypeOf() == SelType::Number && saved.Terms() != nullptr) {
                largest = std::max(largest, saved.Terms()->largest);
            }
        }
    }
    return largest;
}

CBitSet ExpandList(const CEntList& list, const CVynData& model, CaseOp caseOp, int highest,
                   bool existingOnly) {
    if (!list.IsValid()) {
        return {};
    }
    const int bound = highest >= 0                       ? highest
                      : list.TypeOf() == SelType::Number ? LargestNumber(list, model)
                                                         : model.HighestEnt(list.TypeOf());
    return ExpandTerms(list.Terms()->terms, {model, list.TypeOf(), caseOp, bound, existingOnly});
}

/// Modes are those of the results, which change without a revision of the model: what lists of
/// modes include is not kept.
bool IsKept(const CEntList& list) {
    return list.TypeOf() != SelType::Mode;
}

/// Both kinds of cases of a case list, the numbers of any other; kept with the list.
const ListNumbers& Kept(const CEntList& list, const CVynData& model, int highest,
                        bool existingOnly) {
    return list.Expanded(model.Revision(), highest, existingOnly, [&] {
        ListNumbers all{ExpandList(list, model, CaseOp::Analysis, highest, existingOnly), {}};
        if (list.TypeOf() == SelType::Case) {
            all.combinations = ExpandList(list, model, CaseOp::Combination, highest, existingOnly);
        }
        return all;
    });
}

}  // namespace

CBitSet Item(const CEntList& list, const CVynData& model, int highest, bool existingOnly) {
    return ExpandList(list, model, CaseOp::Analysis, highest, existingOnly);
}

void Items(const CEntList& list, std::vector<int>& numbers, const CVynData& model) {
    numbers.clear();
    Item(list, model, -1, true).ForEach([&numbers](int number) { numbers.push_back(number); });
}

int NumItem(const CEntList& list, const CVynData& model, int highest, bool existingOnly) {
    return Item(list, model, highest, existingOnly).Count();
}

bool IsItemIncluded(const CEntList& list, const SEntRef& entity, const CVynData& model, int highest,
                    bool existingOnly) {
    if (entity.type != list.TypeOf()) {
        return false;
    }
    return IsKept(list) ? Kept(list, model, highest, existingOnly).numbers.Test(entity.number)
                        : Item(list, model, highest, existingOnly).Test(entity.number);
}

CaseSet Cases(const CEntList& list, const CVynData& model) {
    if (list.TypeOf() != SelType::Case) {
        return {};
    }
    const ListNumbers& all = Kept(list, model, -1, true);
    return {all.numbers, all.combinations};
}

bool IsCaseIncluded(const CEntList& list, const SCaseRef& ref, const CVynData& model) {
    if (list.TypeOf() != SelType::Case) {
        return false;
    }
    const ListNumbers& all = Kept(list, model, -1, true);
    return (ref.IsAnalysis() && all.numbers.Test(ref.Case())) ||
           (ref.IsCombination() && all.combinations.Test(ref.Case()));
}

std::wstring ExpandedText(const CEntList& list, const CVynData& model) {
    std::wstring text;
    const auto append = [&text](const CBitSet& numbers, const wchar_t* letter) {
        numbers.ForEach([&text, letter](int number) {
            text += text.empty() ? L"" : L" ";
            text += letter + std::to_wstring(number);
        });
    };
    if (list.TypeOf() == SelType::Case) {
        const CaseSet cases = Cases(list, model);
        append(cases.analysis, L"A");
        append(cases.combination, L"C");
    } else {
        append(Item(list, model, -1, true), L"");
    }
    return text;
}

}  // namespace Tevra::Util

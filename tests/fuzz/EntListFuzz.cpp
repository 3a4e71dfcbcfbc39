#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "fuzz/Require.h"
#include "model/ListTerms.h"
#include "model/Util.h"
#include "model/VynData.h"
#include "platform/text/Ascii.h"
#include "platform/text/Utf8.h"

using namespace Tevra;
using FuzzSupport::Require;

namespace {

constexpr std::array kKinds{SelType::Node,      SelType::Element,  SelType::Member,
                            SelType::Case,      SelType::LoadCase, SelType::Mode,
                            SelType::GridPlane, SelType::Number,   SelType::None};

CVynData MakeModel() {
    CVynData model;
    for (const int number : {1, 2, 3, 5, 8, 13, 64, 65, 1000}) {
        model.SetNode(number, Data::CNode());
        Data::CElement element(number % 2 == 0 ? ElementType::Quad4 : ElementType::Beam, {1, 2},
                               number % 3 + 1);
        element.SetGroup(number % 4);
        element.SetParentMember(number % 5);
        model.SetElem(number, element);
        model.SetMember(number, Data::CMember());
        model.SetAnalysisCase(number, CAnalysisCase(L"", 0, L"M" + std::to_wstring(number)));
        model.SetLoadCaseTitle(number, Data::NamedEntity(L"Load"));
    }
    model.SetCombinationCase(4, CCombinationCase(L"", L"A1"));
    int number = 0;
    for (const wchar_t* text :
         {L"1 to 5", L"list 1 not 3", L"list 4 8", L"list 3 13", L"not list 4"}) {
        model.SetList(++number, Data::CList(L"", CEntList(text, SelType::Element)));
    }
    return model;
}

/// What holds for every list: each way of asking gives the same numbers, in order and in bounds.
void CheckNumbers(const CEntList& list, const CVynData& model) {
    std::vector<int> items;
    Util::Items(list, items, model);
    const CBitSet every = Util::Item(list, model, -1, false);
    Require(static_cast<int>(items.size()) == Util::NumItem(list, model, -1, true));
    Require(list.IsValid() || (items.empty() && every.Count() == 0));
    Require(!list.IsEmpty() || every.Count() == 0);
    int last = 0;
    for (const int number : items) {
        Require(number > last && every.Test(number));
        Require(list.TypeOf() == SelType::Number || number <= model.HighestEnt(list.TypeOf()));
        Require(model.EntExist({list.TypeOf(), number}));
        Require(Util::IsItemIncluded(list, {list.TypeOf(), number}, model, -1, true));
        last = number;
    }
    Require(!Util::IsItemIncluded(list, {list.TypeOf(), every.Bound() + 1}, model, -1, true));
    if (list.TypeOf() != SelType::Case) {
        const CEntList expanded(Util::ExpandedText(list, model), list.TypeOf());
        std::vector<int> again;
        Util::Items(expanded, again, model);
        Require(again == items);
    }
}

void CheckCases(const CEntList& list, const CVynData& model) {
    const Util::CaseSet cases = Util::Cases(list, model);
    for (const int number : {1, 4, 13, 2000}) {
        Require(Util::IsCaseIncluded(list, AnalysisRef(number), model) ==
                cases.analysis.Test(number));
        Require(Util::IsCaseIncluded(list, {CaseOp::Combination, number, -1}, model) ==
                cases.combination.Test(number));
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const CVynData kModel = MakeModel();
    if (size == 0) {
        return 0;
    }
    const SelType kind = kKinds[(data[0] + 6U) % kKinds.size()];  // a digit: its place in the table
    const std::string_view bytes(reinterpret_cast<const char*>(data) + 1, size - 1);
    const std::wstring text = Text::FromUtf8(bytes);
    const CEntList list(text, kind);
    Require(list.Text() == Text::Trim(std::wstring_view(text)) && list.TypeOf() == kind);
    // Plain numbers know no model that bounds them; the largest cost megabytes each time.
    if (kind == SelType::Number && list.IsValid() && list.Terms()->largest > 100'000) {
        return 0;
    }
    CheckNumbers(list, kModel);
    CheckCases(list, kModel);
    return 0;
}

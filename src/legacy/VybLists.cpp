#include <algorithm>

#include "legacy/VybConverter.h"
#include "model/LinkKind.h"
#include "model/VynData.h"

namespace Tevra {

namespace {

constexpr int kMostItems = 20;

/// One item of a list: a number, or that of a group or property.
struct Item {
    int prefix = 0;
    int number = 0;
};

constexpr const wchar_t* kPrefixes[] = {L"", L"G", L"P"};
constexpr int kHighestPrefix = 2;

std::wstring ItemText(const Item& item) {
    return kPrefixes[item.prefix] + std::to_wstring(item.number) + L' ';
}

std::vector<Item> TakeItems(CVybRecord& record, int count) {
    std::vector<Item> items(static_cast<std::size_t>(count));
    for (Item& item : items) {
        item.prefix = record.Int(0, kHighestPrefix);
        item.number = record.Number();
    }
    return items;
}

/// The part that takes the excluded items away, which all have the prefix of the first one. A
/// number without a prefix stands in brackets behind one, whose prefix would hold for it too.
std::wstring ExcludedText(const std::vector<Item>& items, bool isBehindPrefix) {
    const bool brackets = items.size() > 1 || (isBehindPrefix && items.front().prefix == 0);
    std::wstring text = brackets ? L"NOT  (" : L"NOT ";
    for (std::size_t i = 0; i < items.size(); ++i) {
        text += i == 0 ? ItemText(items[i]) : std::to_wstring(items[i].number) + L' ';
    }
    return brackets ? text + L')' : text;
}

}  // namespace

void CVybConverter::TakeList(CVybRecord& record) {
    static constexpr std::array kKinds = {SelType::Node, SelType::Element};
    const int number = record.Number();
    const SelType kind = record.Code(kKinds);
    const int included = record.Int(0, kMostItems);
    const int excluded = record.Int(0, kMostItems - included);
    std::vector<Item> in = TakeItems(record, included);
    const std::vector<Item> out = TakeItems(record, excluded);
    const bool isMixed = std::any_of(out.begin(), out.end(), [&out](const Item& item) {
        return item.prefix != out.front().prefix;
    });
    if (isMixed) {
        record.Refuse();
    }
    if (!record.Good()) {
        return;
    }
    // A prefix holds for the plain numbers behind it, so these come first.
    std::stable_partition(in.begin(), in.end(), [](const Item& item) { return item.prefix == 0; });
    std::wstring text;
    for (const Item& item : in) {
        text += ItemText(item);
    }
    if (!out.empty()) {
        text += ExcludedText(out, !in.empty() && in.back().prefix != 0);
    }
    m_lists.insert_or_assign(number, CEntList(text, kind));
}

CEntList CVybConverter::ListOf(int number, SelType kind) const {
    if (number == 0) {
        return {L"all", kind};
    }
    const auto found = m_lists.find(number);
    return found != m_lists.end() && found->second.TypeOf() == kind
               ? found->second
               : CEntList(L"list " + std::to_wstring(number), kind);
}

void CVybConverter::TakeRigid(CVybRecord& record) {
    const int number = TakeNumber(record, CVybDirectory::kRigids);
    Data::CRigid rigid;
    rigid.SetPrimaryNode(record.Reference());
    rigid.SetType(record.Code(kLinkKinds).code);
    rigid.SetNodes(ListOf(record.Reference(), SelType::Node));
    if (record.Good()) {
        m_model.SetRigid(number, std::move(rigid));
    }
}

}  // namespace Tevra

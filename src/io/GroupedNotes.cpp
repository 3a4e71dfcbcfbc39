#include "io/GroupedNotes.h"

#include <algorithm>
#include <string_view>
#include <utility>

namespace Tevra {

namespace {

/// Ranges of numbers that a sentence names; the rest are counted.
constexpr std::size_t kMostRanges = 20;

/// What is said of one, said of several.
std::wstring Plural(const std::wstring& what) {
    constexpr std::pair<std::wstring_view, std::wstring_view> kVerbs[] = {
        {L"is ", L"are "}, {L"has ", L"have "}, {L"acts ", L"act "}, {L"keeps ", L"keep "}};
    for (const auto& [one, several] : kVerbs) {
        if (what.starts_with(one)) {
            return std::wstring(several) + what.substr(one.size());
        }
    }
    return what;
}

}  // namespace

void CGroupedNotes::Add(const wchar_t* kind, int number, const std::wstring& what) {
    // What comes now came before as a rule: look from the end.
    const auto group = std::find_if(m_groups.rbegin(), m_groups.rend(), [&](const Group& g) {
        return g.what == what && g.kind == kind;
    });
    if (group == m_groups.rend()) {
        m_groups.push_back({kind, what, {{number, number}}});
        return;
    }
    Range& last = group->numbers.back();
    const auto isKnown = [number](const Range& r) { return r.first <= number && number <= r.last; };
    if (number == last.last + 1) {
        last.last = number;
    } else if (number > last.last ||
               std::none_of(group->numbers.begin(), group->numbers.end(), isKnown)) {
        group->numbers.push_back({number, number});
    }
}

std::wstring CGroupedNotes::NumbersOf(const Group& group) {
    std::wstring text;
    long long count = 0;
    for (std::size_t i = 0; i < group.numbers.size(); ++i) {
        const Range& range = group.numbers[i];
        count += static_cast<long long>(range.last) - range.first + 1;
        if (i < kMostRanges) {
            text += (i > 0 ? L", " : L"") + std::to_wstring(range.first) +
                    (range.last > range.first ? L" to " + std::to_wstring(range.last) : L"");
        }
    }
    if (count > 1) {
        text += (group.numbers.size() > kMostRanges ? L" ... (" : L" (") + std::to_wstring(count) +
                L" in all)";
    }
    return text;
}

std::vector<std::wstring> CGroupedNotes::Sentences() const {
    std::vector<std::wstring> sentences;
    for (const Group& group : m_groups) {
        const bool isOne =
            group.numbers.size() == 1 && group.numbers[0].first == group.numbers[0].last;
        sentences.push_back(group.kind + L" " + NumbersOf(group) + L" " +
                            (isOne ? group.what : Plural(group.what)));
    }
    return sentences;
}

}  // namespace Tevra

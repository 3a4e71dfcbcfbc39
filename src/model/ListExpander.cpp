#include "model/ListExpander.h"

#include <algorithm>
#include <map>
#include <optional>
#include <utility>

#include "model/VynData.h"

namespace Tevra::Util {

namespace {

/// Expands the terms of a list into a set of numbers.
class Expander {
public:
    explicit Expander(const ListScope& scope) : m_scope(scope) {}

    CBitSet Expand(const std::vector<ListTerm>& terms) {
        ++m_depth;
        CBitSet set(m_scope.bound);
        if (!terms.empty() && terms.front().take) {
            AddAll(set);
        }
        for (const ListTerm& term : terms) {
            if (Concerns(term)) {
                Apply(term, set);
            }
        }
        --m_depth;
        return set;
    }

private:
    /// Case lists hold analysis cases and combinations; one expansion gives the ones or the others.
    bool Concerns(const ListTerm& term) const {
        return term.caseOp == CaseOp::None || term.caseOp == m_scope.caseOp;
    }

    void Apply(const ListTerm& term, CBitSet& set) {
        const bool in = !term.take;
        switch (term.kind) {
            case ListTermKind::Range:
                for (const NumberRange& range : term.ranges) {
                    Range(range, in, m_scope.existingOnly, set);
                }
                return;
            case ListTermKind::All: {
                CBitSet all(m_scope.bound);
                AddAll(all);
                return Merge(all, in, set);
            }
            case ListTermKind::Bracket:
                return Merge(Expand(term.inner), in, set);
            case ListTermKind::List:
                for (const NumberRange& range : term.ranges) {
                    SavedLists(range, in, set);
                }
                return;
            default:
                return m_scope.kind == SelType::Member
                           ? ByAttribute(m_scope.model.MemberTable(), term, in, set)
                           : ByAttribute(m_scope.model.ElemTable(), term, in, set);
        }
    }

    static void Merge(const CBitSet& other, bool in, CBitSet& set) {
        if (in) {
            set.Add(other);
        } else {
            set.Remove(other);
        }
    }

    /// Calls `visit` with the table of the kind's records; false for numbers without records.
    template <class Visit>
    bool WithRecords(Visit visit) const {
        switch (m_scope.kind) {
            case SelType::Node:
                return visit(m_scope.model.NodeTable()), true;
            case SelType::Element:
                return visit(m_scope.model.ElemTable()), true;
            case SelType::Member:
                return visit(m_scope.model.MemberTable()), true;
            case SelType::Assembly:
                return visit(m_scope.model.AssemblyTable()), true;
            case SelType::GridPlane:
                return visit(m_scope.model.GridPlaneTable()), true;
            case SelType::LoadCase:
                return visit(m_scope.model.LoadCases()), true;
            case SelType::Case:
                if (m_scope.caseOp == CaseOp::Combination) {
                    return visit(m_scope.model.CombinationCaseTable()), true;
                }
                return visit(m_scope.model.AnalysisCaseTable()), true;
            default:
                return false;
        }
    }

    /// Everything of the kind: what exists, or for modes those of all cases.
    void AddAll(CBitSet& set) const {
        if (m_scope.kind != SelType::Mode) {
            return Range({1, m_scope.bound, 1}, true, true, set);
        }
        for (const int number : m_scope.model.AnalysisCaseTable().Numbers()) {
            set.Set(m_scope.model.Mode(AnalysisRef(number)));
        }
    }

    /// Ranges longer than this hold the numbers in use only, so that a careless "1 to 2000000000"
    /// costs what the model has.
    static constexpr int kLongRange = 16'777'216;

    void Range(const NumberRange& range, bool in, bool existingOnly, CBitSet& set) const {
        const int last = std::min(range.to, m_scope.bound);
        const auto walk = [&](const auto& table) {
            for (int number = table.NextAtOrAbove(range.from); number != 0 && number <= last;
                 number = number == last ? 0 : table.NextAtOrAbove(number + 1)) {
                if (range.Contains(number)) {
                    set.Set(number, in);
                }
            }
        };
        if ((existingOnly || last - range.from > kLongRange) && WithRecords(walk)) {
            return;
        }
        for (long long i = range.from; i <= last; i += range.step) {
            set.Set(static_cast<int>(i), in);
        }
    }

    void SavedLists(const NumberRange& range, bool in, CBitSet& set) {
        const NumberedTable<Data::CList>& lists = m_scope.model.ListTable();
        for (int number = lists.NextAtOrAbove(range.from); number != 0 && number <= range.to;
             number = number == range.to ? 0 : lists.NextAtOrAbove(number + 1)) {
            Merge(Saved(number, lists.Find(number)->Definition()), in, set);
        }
    }

    /// A saved list of the same kind, expanded once however often it is named. One that holds
    /// itself, directly or through others, adds nothing where it comes round again.
    const CBitSet& Saved(int number, const CEntList& list) {
        static const CBitSet kNothing;
        constexpr int kDeepest = 128;
        if (list.TypeOf() != m_scope.kind || list.Terms() == nullptr || m_depth >= kDeepest) {
            return kNothing;
        }
        const auto [entry, isNew] = m_saved.try_emplace(number);
        if (isNew) {
            entry->second = Expand(list.Terms()->terms);
        }
        return entry->second;
    }

    template <class Table>
    static void ByAttribute(const Table& table, const ListTerm& term, bool in, CBitSet& set) {
        int last = 0;
        bool lastNamed = false;
        for (const int number : table.Numbers()) {
            const std::optional<int> value = ValueOf(*table.Find(number), term);
            if (value && *value != last) {  // neighbours mostly have the same
                last = *value;
                lastNamed =
                    std::any_of(term.ranges.begin(), term.ranges.end(),
                                [last](const NumberRange& range) { return range.Contains(last); });
            }
            if (value && lastNamed) {
                set.Set(number, in);
            }
        }
    }

    /// The number that a term asks of an element or member; nothing for another kind of property.
    static std::optional<int> ValueOf(const Data::CElement& element, const ListTerm& term) {
        switch (term.kind) {
            case ListTermKind::Group:
                return element.Group();
            case ListTermKind::Property:
                return PropertyOf(element, InfoOf(element.Type()).property, term);
            case ListTermKind::Member:
                return element.ParentMember();
            default:
                return static_cast<int>(element.Type());
        }
    }
    static std::optional<int> ValueOf(const Data::CMember& member, const ListTerm& term) {
        if (term.kind == ListTermKind::Group) {
            return member.Group();
        }
        return PropertyOf(member, member.PropertyKind(), term);
    }
    template <class Record>
    static std::optional<int> PropertyOf(const Record& record, PropertyType kind,
                                         const ListTerm& term) {
        const bool fits = term.property == PropertyType::None || term.property == kind;
        return fits ? std::optional(record.Property()) : std::nullopt;
    }

    const ListScope& m_scope;
    int m_depth = 0;
    std::map<int, CBitSet> m_saved;  ///< empty while a list is being expanded
};

}  // namespace

CBitSet ExpandTerms(const std::vector<ListTerm>& terms, const ListScope& scope) {
    return Expander(scope).Expand(terms);
}

}  // namespace Tevra::Util

#include "model/ListParser.h"

#include <algorithm>
#include <utility>

#include "model/ElementType.h"
#include "model/ListTokens.h"

namespace Tevra {

namespace {

/// Brackets nested deeper than this are no list that anybody wrote.
constexpr int kDeepest = 64;
/// Plain numbers above this make no list.
constexpr int kLargestPlainNumber = 16'777'216;

using Token = ListToken;

class ListParser {
public:
    ListParser(std::wstring_view text, SelType kind) : m_tokens(text), m_kind(kind) {}

    /// The terms of the whole text; nothing when it can't be read.
    std::optional<ListTerms> Parse() {
        ListTerms list;
        if (m_tokens.Now().kind == Token::Kind::End || m_tokens.TakeWordIf(L"none")) {
            return AtEnd() ? std::optional(list) : std::nullopt;
        }
        if (!Terms(list.terms, 0) || !AtEnd()) {
            return std::nullopt;
        }
        list.largest = m_largest;
        list.namesLists = m_namesLists;
        const bool tooLarge = m_kind == SelType::Number && m_largest > kLargestPlainNumber;
        return tooLarge ? std::nullopt : std::optional(list);
    }

private:
    bool AtEnd() const { return m_tokens.Now().kind == Token::Kind::End && !m_tokens.Failed(); }
    bool Is(Token::Kind kind) const { return m_tokens.Now().kind == kind; }

    /// Terms up to a closing bracket or the end.
    bool Terms(std::vector<ListTerm>& terms, int depth) {
        m_prefix = {};
        while (!Is(Token::Kind::End) && !Is(Token::Kind::Close)) {
            ListTerm term;
            term.take = m_tokens.TakeWordIf(L"not");
            if (!Item(term, depth)) {
                return false;
            }
            Append(std::move(term), terms);
        }
        return !m_tokens.Failed();
    }

    /// Joins a term of numbers to one before it that names the same, so that long lists are short
    /// and what is looked up by group or property is looked up once.
    static void Append(ListTerm term, std::vector<ListTerm>& terms) {
        const bool joins = !terms.empty() && !term.take && !terms.back().take &&
                           !term.ranges.empty() && terms.back().kind == term.kind &&
                           terms.back().caseOp == term.caseOp &&
                           terms.back().property == term.property;
        if (!joins) {
            terms.push_back(std::move(term));
            return;
        }
        NumberRange& last = terms.back().ranges.back();
        const NumberRange& next = term.ranges.front();
        const bool touches = last.step == 1 && next.step == 1 && last.from <= last.to &&
                             next.from <= next.to && next.from >= last.from &&
                             next.from - 1 <= last.to;
        if (touches) {
            last.to = std::max(last.to, next.to);
        } else {
            terms.back().ranges.push_back(next);
        }
    }

    bool Item(ListTerm& term, int depth) {
        if (Is(Token::Kind::Open)) {
            return Bracket(term, depth);
        }
        if (Is(Token::Kind::Number)) {
            return Numbers(term);
        }
        if (m_tokens.TakeWordIf(L"not")) {
            return Complement(term, depth);
        }
        return Is(Token::Kind::Word) && Word(term);
    }

    /// What "not" leaves of everything, where another "not" takes that away: "not not 3" is 3.
    bool Complement(ListTerm& term, int depth) {
        ListTerm inner;
        inner.take = true;
        if (depth == kDeepest || !Item(inner, depth + 1)) {
            return false;
        }
        term.kind = ListTermKind::Bracket;
        term.inner.push_back(std::move(inner));
        return true;
    }

    bool Bracket(ListTerm& term, int depth) {
        if (depth == kDeepest) {
            return false;
        }
        m_tokens.Next();
        const ListTerm outside = m_prefix;
        term.kind = ListTermKind::Bracket;
        if (!Terms(term.inner, depth + 1) || !Is(Token::Kind::Close)) {
            return false;
        }
        m_tokens.Next();
        m_prefix = outside;
        return true;
    }

    /// A number, or a range with an optional step, under the prefix in force.
    bool Numbers(ListTerm& term) {
        const bool take = term.take;
        term = m_prefix;
        term.take = take;
        if (m_kind == SelType::Case && term.caseOp == CaseOp::None) {
            return false;
        }
        NumberRange range;
        range.from = m_tokens.Now().number;
        range.to = range.from;
        m_tokens.Next();
        if (m_tokens.TakeWordIf(L"to") && !RangeEnd(range, term.caseOp)) {
            return false;
        }
        m_largest = std::max({m_largest, range.from, range.to});
        term.ranges.push_back(range);
        return range.from >= 1;
    }

    bool RangeEnd(NumberRange& range, CaseOp caseOp) {
        if (m_kind == SelType::Case) {
            const std::optional<CaseOp> op = TakeCaseLetter();
            if (op && *op != caseOp) {
                return false;
            }
        } else if (m_kind == SelType::LoadCase) {
            m_tokens.TakeWordIf(L"l");
        }
        if (!Is(Token::Kind::Number)) {
            return false;
        }
        range.to = m_tokens.Now().number;
        m_tokens.Next();
        if (m_tokens.TakeWordIf(L"step")) {
            if (!Is(Token::Kind::Number) || m_tokens.Now().number < 1) {
                return false;
            }
            range.step = m_tokens.Now().number;
            m_tokens.Next();
        }
        return true;
    }

    std::optional<CaseOp> TakeCaseLetter() {
        if (m_tokens.TakeWordIf(L"a")) {
            return CaseOp::Analysis;
        }
        if (m_tokens.TakeWordIf(L"c")) {
            return CaseOp::Combination;
        }
        return std::nullopt;
    }

    bool Word(ListTerm& term) {
        if (m_tokens.TakeWordIf(L"all")) {
            term.kind = ListTermKind::All;
            return true;
        }
        if (m_tokens.TakeWordIf(L"list")) {
            m_namesLists = true;
            return SavedList(term);
        }
        if (m_kind == SelType::Case) {
            return CaseWord(term);
        }
        if (m_kind == SelType::LoadCase && m_tokens.TakeWordIf(L"l")) {
            return Is(Token::Kind::Number) && Numbers(term);
        }
        return (m_kind == SelType::Element || m_kind == SelType::Member) && EntityWord(term);
    }

    bool CaseWord(ListTerm& term) {
        const std::optional<CaseOp> op = TakeCaseLetter();
        if (!op) {
            return false;
        }
        term.caseOp = *op;
        if (m_tokens.TakeWordIf(L"all")) {
            term.kind = ListTermKind::All;
            return true;
        }
        m_prefix.caseOp = *op;
        const bool read = Is(Token::Kind::Number) && Numbers(term);
        m_prefix.caseOp = CaseOp::None;
        return read;
    }

    /// Groups, properties, members and types of elements and members.
    bool EntityWord(ListTerm& term) {
        struct PrefixWord {
            std::wstring_view word;
            ListTermKind kind;
            PropertyType property;
            bool holds;  ///< for the numbers that follow in the same bracket
        };
        static constexpr PrefixWord kWords[] = {
            {L"g", ListTermKind::Group, PropertyType::None, true},
            {L"p", ListTermKind::Property, PropertyType::None, true},
            {L"group", ListTermKind::Group, PropertyType::None, false},
            {L"section", ListTermKind::Property, PropertyType::Section, false},
            {L"prop2d", ListTermKind::Property, PropertyType::Prop2D, false},
            {L"prop3d", ListTermKind::Property, PropertyType::Prop3D, false},
            {L"member", ListTermKind::Member, PropertyType::None, false}};
        for (const PrefixWord& entry : kWords) {
            if (entry.kind == ListTermKind::Member && m_kind != SelType::Element) {
                continue;
            }
            if (m_tokens.TakeWordIf(entry.word)) {
                const ListTerm before = m_prefix;
                m_prefix = {};
                m_prefix.kind = entry.kind;
                m_prefix.property = entry.property;
                const bool read = Is(Token::Kind::Number) && Numbers(term);
                if (!entry.holds) {
                    m_prefix = before;
                }
                return read;
            }
        }
        return m_kind == SelType::Element && m_tokens.TakeWordIf(L"type") && TypeName(term);
    }

    bool TypeName(ListTerm& term) {
        if (!Is(Token::Kind::Word)) {
            return false;
        }
        const std::optional<ElementType> type = ElementTypeOf(m_tokens.Now().word);
        if (!type) {
            return false;
        }
        m_tokens.Next();
        term.kind = ListTermKind::Type;
        const int code = static_cast<int>(*type);
        term.ranges.push_back({code, code, 1});
        return true;
    }

    bool SavedList(ListTerm& term) {
        if (!Is(Token::Kind::Number)) {
            return false;
        }
        const int number = m_tokens.Now().number;
        term.kind = ListTermKind::List;
        term.ranges.push_back({number, number, 1});
        m_tokens.Next();
        return number >= 1;
    }

    ListTokens m_tokens;
    SelType m_kind;
    ListTerm m_prefix;
    int m_largest = 0;
    bool m_namesLists = false;
};

}  // namespace

std::optional<ListTerms> ParseList(std::wstring_view text, SelType kind) {
    return ListParser(text, kind).Parse();
}

}  // namespace Tevra

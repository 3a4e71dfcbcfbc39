#pragma once

#include <cmath>
#include <concepts>
#include <ostream>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

#include "dyna/DynaLayout.h"
#include "io/Rows.h"
#include "io/TextOut.h"

namespace Tevra {

/// Numbers of a file that its reader will not take, by where the first of them stands.
struct DynaFaults {
    long long lines = 0;
    std::string first;  ///< "*NODE 7"
};

/// Writes keyword lines and data lines as their layouts say.
class DynaOut {
public:
    explicit DynaOut(std::ostream& stream) : m_text(stream) {}

    /// Text that has no layout: comments and the like.
    TextOut& Text() { return m_text; }

    /// The keyword line of a card and, when it has one, its comment line.
    void Keyword(const DynaLayout& card) {
        m_text.Append(card.keyword).EndLine();
        if (!card.comment.empty()) {
            m_text.Append(card.comment).EndLine();
        }
    }

    /// A data line of a card: values for its fields from the left; fields at the end may be left
    /// off. The kinds of the values are checked against the layout.
    template <const DynaLayout& Layout, std::size_t At = 0, class... Values>
    void Line(Values... values) {
        static_assert(sizeof...(Values) <= Layout.lines[At].count);
        PutFields<Layout, At>(std::index_sequence_for<Values...>(), values...);
        EndLine(Layout.keyword, FirstNumber(values...));
    }

    /// Keyword and first data line.
    template <const DynaLayout& Layout, class... Values>
    void Card(Values... values) {
        Keyword(Layout);
        Line<Layout>(values...);
    }

    /// Numbers in fields of ten columns, eight to a line.
    template <class Numbers>
    void List(const Numbers& numbers) {
        WriteRows(m_text, numbers, 8, [this](int number) { m_text.IntField(number, 10); });
    }

    // --- lines field by field
    void Int(long long value, int width) {
        m_isTooWide = m_isTooWide || !FitsInto(value, width);
        m_text.IntField(value, width);
    }
    void Real(double value, int width) {
        m_isNoNumber = m_isNoNumber || !std::isfinite(value);
        m_text.RealField(value, width);
    }
    void Blank(int width) { m_text.Fill(width); }
    /// `number` names the line in what is told of it.
    void EndLine(std::string_view keyword, long long number) {
        m_text.EndLine();
        if (m_isTooWide || m_isNoNumber) {
            CountFaults(keyword, number);
        }
    }

    /// A title line. What would make it a keyword or a comment line gets a quote in front.
    void Title(std::wstring_view text);
    /// "$PR_TITLE " and a name.
    void NameComment(std::wstring_view name, std::string_view mark = "$PR_TITLE ");

    const DynaFaults& TooWide() const { return m_tooWide; }
    const DynaFaults& NoNumbers() const { return m_noNumbers; }
    bool Good() const { return m_text.Good(); }
    bool Flush() { return m_text.Flush(); }

private:
    static constexpr long long PowerOfTen(int exponent) {
        long long power = 1;
        for (int i = 0; i < exponent && i < 18; ++i) {
            power *= 10;
        }
        return power;
    }
    static constexpr bool FitsInto(long long value, int width) {
        return value < PowerOfTen(width) && value > -PowerOfTen(width - 1);
    }

    template <const DynaLayout& Layout, std::size_t At, std::size_t... I, class... Values>
    void PutFields(std::index_sequence<I...> /*places*/, Values... values) {
        (Put<Layout.lines[At].fields[I].kind>(Layout.lines[At].fields[I].width, values), ...);
    }

    template <DynaFieldKind Kind, class Value>
    void Put(int width, Value value) {
        if constexpr (std::is_same_v<Value, DynaBlank>) {
            Blank(width);
        } else if constexpr (Kind == DynaFieldKind::Int) {
            static_assert(std::is_integral_v<Value>, "the field holds an integer");
            Int(value, width);
        } else if constexpr (Kind == DynaFieldKind::Real) {
            static_assert(std::is_floating_point_v<Value>, "the field holds a real number");
            Real(value, width);
        } else {
            const std::string_view text(value);
            m_text.Append(text).Fill(width - static_cast<int>(text.size()));
        }
    }

    static long long FirstNumber() { return 0; }
    template <class First, class... Others>
    static long long FirstNumber(First first, Others... /*others*/) {
        if constexpr (std::is_integral_v<First>) {
            return first;
        } else {
            return 0;
        }
    }

    void CountFaults(std::string_view keyword, long long number);

    TextOut m_text;
    bool m_isTooWide = false;   ///< a number of the line
    bool m_isNoNumber = false;  ///< a value of the line
    DynaFaults m_tooWide;
    DynaFaults m_noNumbers;
};

}  // namespace Tevra

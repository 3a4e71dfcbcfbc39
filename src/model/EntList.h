#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "model/BitSet.h"
#include "model/Types.h"

namespace Tevra {

struct ListTerms;

/// The numbers that a list includes.
struct ListNumbers {
    CBitSet numbers;       ///< of case lists, the analysis cases
    CBitSet combinations;  ///< of case lists
};

/// A selection text bound to a kind of entity, such as "all", "1 to 5 not 3" or "G 1 3". The text
/// is read once, when the list is made; `Util` expands it against a model.
///
/// list = "all" | "none" | items; an item is a number, "a to b [step c]", "not" an item, items in
/// brackets, "list" and the number of a saved list, or a prefix "G" (group) or "P" (property) that
/// holds for the numbers that follow it inside the same bracket. Element lists know further words:
/// "section n", "prop2d n", "prop3d n", "group n", "member n", "type name". Case lists hold "A1",
/// "C2", "A1 to A5", "A all"; load case lists bare numbers or "L1". Blanks and commas separate;
/// capitals and small letters are alike. An item adds, "not" takes away what follows; a list that
/// begins with "not" starts from everything.
class CEntList {
public:
    CEntList();
    CEntList(std::wstring_view text, SelType type);

    SelType TypeOf() const { return m_type; }
    /// The text as it was set, without surrounding blanks.
    const std::wstring& Text() const { return m_text; }
    /// True when the text is empty or "none".
    bool IsEmpty() const;
    /// False when the text can't be read; such a list selects nothing.
    bool IsValid() const;
    /// What the text says, term by term; null when it can't be read.
    const ListTerms* Terms() const { return m_terms.get(); }

    /// The numbers that `make` gives, which is asked again only when the model's revision, the
    /// bound or the flag are others than the last time: asking for membership never expands twice.
    template <class Make>
    const ListNumbers& Expanded(std::uint64_t revision, int highest, bool existingOnly,
                                Make make) const {
        if (!m_expansion || m_expansion->revision != revision || m_expansion->highest != highest ||
            m_expansion->existingOnly != existingOnly) {
            m_expansion = std::make_shared<const Expansion>(
                Expansion{revision, highest, existingOnly, make()});
        }
        return m_expansion->included;
    }

    bool operator==(const CEntList& o) const { return m_type == o.m_type && m_text == o.m_text; }

private:
    struct Expansion {
        std::uint64_t revision;
        int highest;
        bool existingOnly;
        ListNumbers included;
    };

    SelType m_type = SelType::None;
    std::wstring m_text;
    std::shared_ptr<const ListTerms> m_terms;  ///< shared by all copies of the list
    mutable std::shared_ptr<const Expansion> m_expansion;
};

}  // namespace Tevra

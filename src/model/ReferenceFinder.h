#pragma once

#include <string>
#include <vector>

#include "model/ListTerms.h"
#include "model/References.h"

namespace Tevra::Util {

/// Gathers findings about one record after the other.
class Finder {
public:
    Finder(const CVynData& model, ReferenceScope scope, std::size_t most)
        : m_model(model), m_scope(scope), m_most(most) {}

    /// Names the record that the following questions are about.
    void About(const wchar_t* kind, int number) {
        m_kind = kind;
        m_number = number;
    }
    void Say(const std::wstring& what);
    /// Reports a number that is not 0 and has no record in the table.
    template <class Record>
    void Need(const NumberedTable<Record>& table, const wchar_t* kind, int number) {
        if (number != 0 && !table.Exist(number)) {
            Say(std::wstring(kind) + L" " + std::to_wstring(number) + L" does not exist");
        }
    }
    void Node(int number) { Need(m_model.NodeTable(), L"node", number); }
    void Axis(int number) {
        if (number != kLocalAxis) {
            Need(m_model.AxisTable(), L"axis", number);
        }
    }
    void Material(int number) { Need(m_model.MatAnalTable(), L"analysis material", number); }
    void Material(const Data::MaterialChoice& choice);
    void Property(PropertyType kind, int number);
    void LoadCase(int number);
    /// A list must be readable, and the saved lists that it names must exist. Numbers of a list
    /// need not: what does not exist is not selected.
    void List(const CEntList& list);
    /// A text of node numbers, separated by blanks.
    void NodesOf(const std::wstring& topology);
    void Description(const CCaseDesc& description);

    const CVynData& Model() const { return m_model; }
    ReferenceReport Take() { return std::move(m_report); }

private:
    void SavedLists(const std::vector<ListTerm>& terms);

    const CVynData& m_model;
    ReferenceScope m_scope;
    std::size_t m_most;
    const wchar_t* m_kind = L"";
    int m_number = 0;
    ReferenceReport m_report;
};

/// Calls `look(finder, record)` for every record of a table.
template <class Record, class Look>
void ForEach(Finder& finder, const NumberedTable<Record>& table, const wchar_t* kind, Look look) {
    for (const int number : table.Numbers()) {
        finder.About(kind, number);
        look(*table.Find(number));
    }
}

}  // namespace Tevra::Util

#pragma once

#include <string>
#include <vector>

namespace Tevra {

/// Notes about records, gathered so that what holds for many records of a kind is said once.
class CGroupedNotes {
public:
    /// `kind` is a literal ("Element"); `what` follows the number: "is not written: ...". What is
    /// said of a record again is not added.
    void Add(const wchar_t* kind, int number, const std::wstring& what);

    /// One sentence for each kind and `what`, in the order in which they first came:
    /// "Element 4 is not written: ...", "Element 1 to 5, 9 (6 in all) are not written: ...".
    std::vector<std::wstring> Sentences() const;

    void Clear() { m_groups.clear(); }

private:
    struct Range {
        int first;
        int last;
    };
    struct Group {
        std::wstring kind;
        std::wstring what;
        std::vector<Range> numbers;  ///< ascending as long as they come so
    };
    static std::wstring NumbersOf(const Group& group);

    std::vector<Group> m_groups;
};

}  // namespace Tevra

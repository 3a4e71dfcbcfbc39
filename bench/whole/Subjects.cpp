#include "whole/Subjects.h"

namespace WholeBench {

const std::vector<Subject>& WriterSubjects() {
    constexpr FloorKind kFields = FloorKind::Fields;
    constexpr FloorKind kItems = FloorKind::Items;
    static const std::vector<Subject> kSubjects{
        {"nastran", "solids", kFields},
        {"nastran", "shells", kFields},
        {"ls-dyna", "solids", kFields},
        {"ls-dyna", "shells", kFields},
        {"opensees", "frame", kItems},
        {"sap2000", "frame", kItems},
        {"damping", "frame", kFields},
        {"sql", "frame", kItems, {{"single-file", ""}, {"tables", "GN"}}},
        {"view", "frame", kItems},
        {"document", "frame", kItems},
        {"quorl", "soil"},
    };
    return kSubjects;
}

const std::vector<ReaderSubject>& ReaderSubjects() {
    static const std::vector<ReaderSubject> kSubjects{
        {"dyna", "solids", "ls-dyna"},     {"dyna", "shells", "ls-dyna"},
        {"document", "frame", "document"}, {"quorl", "soil", "quorl"},
        {"legacy", "shells", ""},
    };
    return kSubjects;
}

}  // namespace WholeBench

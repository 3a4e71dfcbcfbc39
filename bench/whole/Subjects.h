#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "vynx/Options.h"
#include "whole/Floor.h"

namespace WholeBench {

/// A format on a kind of model.
struct Subject {
    std::string_view format;  ///< id of vynx
    std::string_view sample;
    std::optional<FloorKind> floor{};  ///< what a writer is held against
    Vynx::GivenOptions options{};
};

const std::vector<Subject>& WriterSubjects();

/// A reader, and the writer of what it reads; empty for legacy files, which are made here.
struct ReaderSubject {
    std::string_view format;
    std::string_view sample;
    std::string_view writtenBy;
};

const std::vector<ReaderSubject>& ReaderSubjects();

}  // namespace WholeBench

#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "torture/WriterRuns.h"

namespace Tevra::TestSupport {

/// What breaks the form of the files of a run, a sentence each: what holds for every model,
/// whatever is in it.
std::vector<std::string> FaultsOf(std::string_view format, const WriterRun& run);

}  // namespace Tevra::TestSupport

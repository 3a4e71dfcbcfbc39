#pragma once

#include <filesystem>

namespace Tevra::TestSupport {

/// The root of the source tree: examples/, tests/golden/ ... are found from here.
std::filesystem::path SourceDir();

/// The vynx program of this build; empty when the build has none.
std::filesystem::path VynxPath();

}  // namespace Tevra::TestSupport

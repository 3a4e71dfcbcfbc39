#pragma once

#include <string>

#include "model/VynData.h"
#include "vynx/Format.h"

namespace Vynx {

/// Reads a model file: by its extension, or as the format `from` when that is not empty. Numbers
/// that refer to records which do not exist are named on standard error. Returns what was skipped.
/// Fails with `kUsage` for formats that can't be read, with `kFailed` for files that can't.
SkippedBlocks LoadModel(const std::string& file, const std::string& from, Tevra::CVynData& model);

/// As LoadModel, and says on standard error when something was skipped.
void LoadToWrite(const std::string& file, const std::string& from, Tevra::CVynData& model);

}  // namespace Vynx

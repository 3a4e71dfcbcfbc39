#pragma once

#include <string>

#include "model/VynData.h"
#include "vynx/Format.h"

namespace Vynx {

/// A file to read a model from, and how.
struct ModelSource {
    std::string file;
    std::string from{};       ///< format of the file, empty: by extension
    GivenOptions options{};   ///< of the format's reader
    std::string catalogue{};  ///< file of profiles that sections may name, empty for none
};

/// Reads a model file. Numbers that refer to records which do not exist are named on standard
/// error. Returns what was skipped. Fails with `kUsage` for formats that can't be read and options
/// that they don't have, with `kFailed` for files that can't.
SkippedBlocks LoadModel(const ModelSource& source, Tevra::CVynData& model);

/// As LoadModel, and says on standard error when something was skipped.
void LoadToWrite(const ModelSource& source, Tevra::CVynData& model);

/// Reads a file that holds a part of a model into a model. Fails with `kUsage` when it holds a
/// whole one.
void LoadInto(const ModelSource& source, Tevra::CVynData& model);

}  // namespace Vynx

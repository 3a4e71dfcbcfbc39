#pragma once

#include <string>

#include "vynx/Format.h"

namespace Vynx {

/// Writes a model to `target` (- is standard output) in one format. `source`, the name of
/// where the model comes from, names it in messages and in files that get no name by the target.
/// Messages of the writer go to standard error. Fails with
/// `kFailed` when the model lacks what the format needs, or the file can't be written.
void SaveModel(const Format& format, const OptionValues& options, Tevra::CVynData& model,
               const std::string& target, const std::string& source);

/// The same without a failure: false when the writer could not write (its messages are out then).
bool WriteFormat(const Format& format, const OptionValues& options, Tevra::CVynData& model,
                 const std::string& target, const std::string& source);

/// What is written for a target: the target, or the folder of a format that writes one.
std::string ProductOf(const Format& format, const std::string& target);

}  // namespace Vynx

#pragma once

#include <cstdint>
#include <filesystem>
#include <string_view>

#include "model/VynData.h"

namespace WholeBench {

/// Fills a model of about so many nodes, with something for every writer: loads, a dynamics task,
/// modes, an output view. The kinds are those of vynx samples, and "soil", which has zones instead
/// of nodes.
void FillBenchModel(Tevra::CVynData& model, std::string_view kind, int nodes);

/// Nodes and elements, or zones, of a model.
std::int64_t NumRecord(const Tevra::CVynData& model);

/// Writes the nodes and elements of a model as a legacy binary file, which nothing but this writes.
void WriteLegacyFile(const Tevra::CVynData& model, const std::filesystem::path& path);

}  // namespace WholeBench

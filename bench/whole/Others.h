#pragma once

#include <filesystem>
#include <vector>

#include "model/VynData.h"
#include "whole/Report.h"

namespace WholeBench {

/// The mesh of a model of solids written by a mesh generator, where that is installed, beside the
/// times of ours.
std::vector<Comparison> BesideMeshGenerator(const Tevra::CVynData& model,
                                            const std::filesystem::path& folder,
                                            double nastranSeconds, double dynaSeconds);

/// The rows of a file of tables dumped by the SQLite shell, where that is installed, beside our
/// time of writing them.
std::vector<Comparison> BesideDump(const std::filesystem::path& tables,
                                   const std::filesystem::path& folder, double seconds);

}  // namespace WholeBench

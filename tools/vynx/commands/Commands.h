#pragma once

#include <optional>
#include <string>
#include <vector>

#include "vynx/Failure.h"
#include "vynx/ModelFile.h"

/// The commands of vynx, one file each. They write what they were asked for, print what there is
/// to say, and throw `Failure` when they can't.
namespace Vynx {

struct ExportRequest {
    ModelSource model;
    std::string format;  ///< id, or "all"
    std::string output;  ///< file, "-", or a folder for "all"
    GivenOptions options;
};
void Export(const ExportRequest& request);

struct ImportRequest {
    ModelSource source;
    std::string into;  ///< model that the file is read into, empty for none
    std::string output;
};
/// Reads a file of any readable format and writes the model as a document.
void Import(const ImportRequest& request);

/// Prints what a model holds.
void Info(const ModelSource& source);

struct DrawRequest {
    ModelSource model;
    std::string output;
    std::optional<int> loadCase;  ///< 0 none; without one the first with loads
    std::string view = "iso";
};
/// Draws a model as SVG.
void Draw(const DrawRequest& request);

/// Names of the views of a drawing, as the command line has them.
std::vector<std::string> DrawingViews();

struct SampleRequest {
    std::string kind;
    std::string output;
    int nodes = 1000;
};
/// Makes a model of a kind of sample and writes it in the format of the output's extension.
void Sample(const SampleRequest& request);

/// Prints the host's export formats and those of this program with their options.
void ListFormats();

}  // namespace Vynx

#pragma once

#include <string>

#include "vynx/Failure.h"
#include "vynx/Options.h"

/// The commands of vynx, one file each. They write what they were asked for, print what there is
/// to say, and throw `Failure` when they can't.
namespace Vynx {

struct ExportRequest {
    std::string model;
    std::string from;    ///< format of the model file, empty: by extension
    std::string format;  ///< id, or "all"
    std::string output;  ///< file, "-", or a folder for "all"
    GivenOptions options;
};
void Export(const ExportRequest& request);

struct ImportRequest {
    std::string file;
    std::string from;
    std::string output;
};
/// Reads a file of any readable format and writes it as a model document.
void Import(const ImportRequest& request);

struct InfoRequest {
    std::string model;
    std::string from;
};
/// Prints what a model holds.
void Info(const InfoRequest& request);

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

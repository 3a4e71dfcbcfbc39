#pragma once

#include <string>

#include "model/EntList.h"

namespace Tevra::Export {

/// What the user chooses of a table export.
struct Param {
    CEntList nodeList{L"all", SelType::Node};        ///< with result rows
    CEntList elementList{L"all", SelType::Element};  ///< 1D, 2D, 3D and springs
    CEntList memberList{L"all", SelType::Member};
    CEntList assemblyList{L"all", SelType::Assembly};
    CEntList caseList{L"all", SelType::Case};  ///< analysis and combination cases
    int numBeamPosition = 5;                   ///< equally spaced positions along each 1D element
    bool includeInteresting = false;           ///< results at interesting points of 1D elements too
    bool reportAllTimings = false;             ///< a timing line for the tables of the model too
    /// Result tables by letter, in either case, all when empty: G global, N node, 1, 2, 3 elements
    /// of a dimension, S springs, A assemblies.
    std::string option = "GN123SA";
    char delimiter = '|';  ///< of delimited output
};

}  // namespace Tevra::Export

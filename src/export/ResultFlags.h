#pragma once

/// Which kinds of results are read.
namespace Tevra::Export {

/// Of nodes.
struct NodeFlags {
    bool displacement = false;
    bool velocity = false;
    bool acceleration = false;
    bool reaction = false;
    bool constraint = false;
};

/// Of springs, elements and assemblies.
struct ElementFlags {
    bool displacement = false;
    bool force = false;
    bool stress = false;
};

}  // namespace Tevra::Export

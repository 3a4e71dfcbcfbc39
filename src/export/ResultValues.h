#pragma once

#include <utility>

/// Values of result tables: every component is a value and the permutation that it comes from (0
/// where it comes from none).
namespace Tevra::Export {

using Pair = std::pair<double, int>;

struct Vector2 {
    Pair x;
    Pair y;
};

struct Vector3 {
    Pair x;
    Pair y;
    Pair z;
};

/// A vector of translations or forces with the rotations or moments that belong to it.
struct Vector6 {
    Vector3 translation;
    Vector3 rotation;
};

/// Symmetric tensor in a plane.
struct Tensor2 {
    Pair xx;
    Pair yy;
    Pair xy;
};

/// Symmetric tensor in space.
struct Tensor3 {
    Pair xx;
    Pair yy;
    Pair zz;
    Pair xy;
    Pair yz;
    Pair zx;
};

}  // namespace Tevra::Export

#pragma once

#include <filesystem>

#include "model/VynData.h"

namespace WholeBench {

/// How the numbers of a file stand.
enum class FloorKind {
    Fields,  ///< right-justified in fields of 16 characters
    Items    ///< between blanks
};

/// The least that a writer of text must do: the numbers, coordinates, properties and nodes of all
/// nodes and elements, by std::to_chars into a buffer that is handed to the file when it is full.
bool WriteFloor(const Tevra::CVynData& model, FloorKind kind, const std::filesystem::path& path);

}  // namespace WholeBench

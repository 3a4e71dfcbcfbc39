#pragma once

#include <functional>
#include <string_view>
#include <vector>

#include "document/Codec.h"
#include "model/VynData.h"

namespace Tevra::Document {

/// A section of a document that holds one kind of numbered record: "nodes", "elements" and so on.
struct Section {
    std::string_view key;
    std::string_view kind;  ///< of one record, in words: "node"
    /// Calls `emit` with every record as an object, its number first.
    void (*write)(const CVynData& model, const std::function<void(const Json&)>& emit);
    /// Reads one record into the model; throws `FieldError` when it can't.
    void (*read)(const Json& record, CVynData& model);
    int (*count)(const CVynData& model);
    Json (*schema)();
};

/// A part of a document that is one value: "titles", "location" and so on.
struct Block {
    std::string_view key;
    std::string_view meaning;
    /// The value, null when it is at its default.
    Json (*write)(const CVynData& model);
    void (*read)(const Json& value, CVynData& model);
    Json (*schema)();
};

/// In document order: blocks stand before sections, results after them.
const std::vector<Block>& Blocks();
const std::vector<Section>& Sections();

const Section* FindSection(std::string_view key);
const Block* FindBlock(std::string_view key);

/// The version of the document format that this library writes, and reads.
inline constexpr int kDocumentVersion = 1;

}  // namespace Tevra::Document

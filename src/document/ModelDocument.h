#pragma once

#include <filesystem>
#include <iosfwd>
#include <string>
#include <string_view>
#include <vector>

#include "model/VynData.h"

/// The whole model as a JSON document, in and out. Documents are read and written record by
/// record, so that they take little memory besides the model.
///
///     std::string error;
///     if (!Document::ReadDocument("frame.json", model, error)) {
///         Show(error);
///     }
namespace Tevra::Document {

/// Reads a document into `model`, which it replaces. False when the document can't be read; then
/// `error` says where and why, and the model is as it was.
bool ReadDocument(const std::filesystem::path& file, CVynData& model, std::string& error);
bool ReadDocument(std::istream& input, CVynData& model, std::string& error);

/// Writes the whole model. False when it holds something that a document can't (a value that is
/// not finite), which `error` names, or when the stream is bad afterwards.
bool WriteDocument(const CVynData& model, std::ostream& output, std::string& error);

/// How many records of each kind a model holds, by their document key, in document order; kinds
/// without records are left out.
struct RecordCount {
    std::string_view key;
    int count = 0;
};
std::vector<RecordCount> CountRecords(const CVynData& model);

/// The JSON Schema of documents, as text with line ends.
std::string DocumentSchema();

}  // namespace Tevra::Document

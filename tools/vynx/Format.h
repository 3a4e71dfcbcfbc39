#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "model/VynData.h"
#include "vynx/Options.h"

namespace Vynx {

/// One run of a format's writer.
struct ExportJob {
    Tevra::CVynData& model;
    std::filesystem::path path;  ///< where to write
    const OptionValues& options;
    std::wstring log{};  ///< errors and notes of the writer, in the host's mark-up
};

/// A file format: one row of the table in FormatTable.cpp.
struct Format {
    std::string_view id;
    std::string_view title;
    /// Extensions of its files; files written without a name of their own get the first.
    std::vector<std::string_view> extensions;
    std::vector<OptionSpec> options;
    /// What a model lacks to be written with these options, as a sentence; empty when nothing.
    std::string (*lacks)(const Tevra::CVynData& model, const OptionValues& options) = nullptr;
    /// Writes the file; null for formats that are only read.
    bool (*write)(ExportJob& job) = nullptr;
    /// Reads a file, leaving the reason in `error` on failure; null for formats only written.
    bool (*read)(const std::filesystem::path& file, Tevra::CVynData& model,
                 std::string& error) = nullptr;
};

/// All formats, in the order in which they are listed.
const std::vector<Format>& Formats();

/// The format with an id, null when there is none.
const Format* FindFormat(std::string_view id);

/// The readable format whose extension (in any case) a file has, null when there is none.
const Format* ReaderOf(const std::filesystem::path& file);

/// The same for formats that can be written.
const Format* WriterOf(const std::filesystem::path& file);

}  // namespace Vynx

#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <utility>
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

/// What a file holds that its reader does not read: names of its blocks and how often each stands
/// there.
using SkippedBlocks = std::vector<std::pair<std::string, std::int64_t>>;

/// One run of a format's reader.
struct ReadJob {
    const std::filesystem::path file;
    Tevra::CVynData& model;
    const OptionValues& options;
    int line = 0;         ///< where a text could not be read on, 0 when no line is known
    std::string error{};  ///< why the file could not be read
    std::vector<std::string> notes{};  ///< what the user must know of a file that was read
    SkippedBlocks skipped{};
};

/// A file format: one row of the table in FormatTable.cpp.
struct Format {
    std::string_view id;
    std::string_view title;
    /// Extensions of its files; files written without a name of their own get the first.
    std::vector<std::string_view> extensions;
    /// Further words that name it on the command line.
    std::vector<std::string_view> aliases{};
    std::vector<OptionRow> options;  ///< of the writer
    /// What a model lacks to be written with these options, as a sentence; empty when nothing.
    std::string (*lacks)(const Tevra::CVynData& model, const OptionValues& options) = nullptr;
    /// Writes the file; null for formats that are only read.
    bool (*write)(ExportJob& job) = nullptr;
    /// Whether it writes many files, in place, into the folder that the target names without its
    /// extension.
    bool writesFolder = false;
    /// Reads a file, leaving the reason in the job on failure; null for formats only written.
    bool (*read)(ReadJob& job) = nullptr;
    /// Options of the reader; none has the name of an option of a writer.
    std::vector<OptionRow> readOptions{};
    /// Whether its files hold a part of a model, which is read into the rest.
    bool isPart = false;
    /// Files name properties without describing them: their numbers have no records.
    bool geometryOnly = false;
};

/// All formats, in the order in which they are listed.
const std::vector<Format>& Formats();

/// The format with an id, null when there is none.
const Format* FindFormat(std::string_view id);

/// "read", "written" or "read and written".
std::string_view DirectionOf(const Format& format);

/// The readable format whose extension (in any case) a file has, null when there is none.
const Format* ReaderOf(const std::filesystem::path& file);

/// The same for formats that can be written.
const Format* WriterOf(const std::filesystem::path& file);

}  // namespace Vynx

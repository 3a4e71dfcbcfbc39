#include <algorithm>
#include <string>
#include <system_error>

#include "export/VynExport.h"
#include "platform/text/Ascii.h"
#include "platform/text/Utf8.h"

// Where tables go: the folder of the export and the files in it.
namespace Tevra::Export {

namespace fs = std::filesystem;

namespace {

constexpr int kProbeMilliseconds = 200;
constexpr std::size_t kOutputBuffer = std::size_t{1} << 18;

/// Raises what went wrong, if anything did, under the name of the operation.
void Check(const std::error_code& error, const char* operation, const fs::path& path) {
    if (error) {
        throw fs::filesystem_error(operation, path, error);
    }
}

fs::path PathOf(const std::string& utf8) {
    return {std::u8string(utf8.begin(), utf8.end())};
}

bool IsDots(std::string_view name) {
    return name == "." || name == "..";
}

/// Files of delimited output, which "csv" says however the dialect's own extension is written.
bool IsDelimitedFile(const fs::path& file) {
    const std::u8string extension = file.extension().u8string();
    return Text::EqualNoCase(std::string_view(".csv"),
                             std::string(extension.begin(), extension.end()));
}

}  // namespace

void CVynExport::SetPath(const std::string& file) {
    const std::size_t last = file.find_last_of("\\/");
    const std::size_t begin = last == std::string::npos ? 0 : last + 1;
    m_separator = last == std::string::npos ? '/' : file[last];
    std::string name = file.substr(begin);
    if (!IsDots(name)) {
        name = name.substr(0, name.rfind('.'));
    }
    m_stem = Text::FromUtf8(name);
    std::string folder = file.substr(0, begin) + name;
    std::replace(folder.begin(), folder.end(), '\\', '/');
    m_path = PathOf(folder);
}

std::string CVynExport::Path() const {
    const std::u8string generic = m_path.generic_u8string();
    std::string text(generic.begin(), generic.end());
    std::replace(text.begin(), text.end(), '/', m_separator);
    return text;
}

void CVynExport::SetFolder() {
    std::error_code error;
    const bool exists = fs::exists(m_path, error);
    Check(error, "exists", m_path);
    if (!exists) {
        fs::create_directory(m_path, error);
        Check(error, "create_directory", m_path);
        return;
    }
    constexpr const char* kListing = "directory_iterator::directory_iterator";
    std::vector<fs::path> delimited;
    fs::directory_iterator entry(m_path, error);
    Check(error, kListing, m_path);
    while (entry != fs::directory_iterator()) {
        if (IsDelimitedFile(entry->path())) {
            delimited.push_back(entry->path());
        }
        entry.increment(error);
        Check(error, kListing, m_path);
    }
    for (const fs::path& file : delimited) {
        fs::remove(file, error);
        Check(error, "remove", file);
    }
}

/// Whether nobody holds the model or its results; neither is held afterwards.
bool CVynExport::ModelIsFree() const {
    if (m_model == nullptr) {
        return true;
    }
    return ProbeLock(m_model->ShareModelBusy(), kProbeMilliseconds) &&
           (!m_model->AnyResults() || ProbeLock(m_model->ShareResultsBusy(), kProbeMilliseconds));
}

bool CVynExport::OpenFile(const std::string& module) {
    if (!m_oneFilePerModule) {
        return true;
    }
    const fs::path file = m_path / module / (module + m_extension);
    if (!ModelIsFree()) {
        m_failedFiles.push_back(file);
        return false;
    }
    OpenStream(file);
    return true;
}

bool CVynExport::CloseFile() {
    if (m_oneFilePerModule) {
        CloseStream();
    }
    return true;
}

/// A file that can't be opened leaves the stream failed, and what is written to it is lost.
void CVynExport::OpenStream(const fs::path& file) {
    std::error_code error;
    const fs::path folder = file.parent_path();
    if (!folder.empty()) {
        fs::create_directories(folder, error);
        Check(error, "create_directories", folder);
    }
    if (m_outputBuffer == nullptr) {
        m_outputBuffer = std::make_unique<char[]>(kOutputBuffer);
    }
    m_output.close();
    m_output.clear();
    m_output.rdbuf()->pubsetbuf(m_outputBuffer.get(), kOutputBuffer);
    m_output.open(file, std::ios::binary | std::ios::trunc);
    m_file = file;
    m_statement.clear();
}

void CVynExport::CloseStream() {
    m_output.close();  // marks the stream failed when that fails
    if (!m_file.empty()) {
        (m_output.good() ? m_writtenFiles : m_failedFiles).push_back(std::move(m_file));
        m_file.clear();
    }
}

void CVynExport::FlushStatement() {
    m_output.write(m_statement.data(), static_cast<std::streamsize>(m_statement.size()));
    m_statement.clear();
}

}  // namespace Tevra::Export

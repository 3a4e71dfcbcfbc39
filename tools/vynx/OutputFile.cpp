#include "vynx/OutputFile.h"

#include <cerrno>
#include <cstring>
#include <fstream>
#include <iostream>
#include <unistd.h>
#include <vector>

#include "platform/text/HostPath.h"
#include "platform/text/Utf8.h"
#include "vynx/Failure.h"

namespace Vynx {

namespace fs = std::filesystem;

namespace {

[[noreturn]] void CannotWrite(const std::string& target, const std::string& why) {
    throw Failure(kFailed, target + ": can't be written: " + why);
}

/// What a link points to, also when that does not exist.
fs::path EndOfLink(const fs::path& link) {
    std::error_code error;
    fs::path end = fs::canonical(link, error);
    if (error) {
        end = link.parent_path() / fs::read_symlink(link, error);
    }
    return end;
}

}  // namespace

OutputFile::OutputFile(const std::string& target, const std::string& suggestedName)
    : m_target(target) {
    std::error_code error;
    if (target == "-") {
        MakeFolder(fs::temp_directory_path(error));
        m_work = m_folder / suggestedName;
        m_onSignal.Set(m_work, m_folder);
        return;
    }
    const fs::file_status status = fs::status(target, error);
    if (fs::is_directory(status)) {
        CannotWrite(target, "it is a folder");
    }
    if (fs::exists(status) && !fs::is_regular_file(status)) {
        m_final = m_work = target;
        return;
    }
    // A link stays a link: what it points to is replaced.
    m_final = fs::is_symlink(target, error) ? EndOfLink(target) : fs::path(target);
    if (m_final.filename().empty()) {
        CannotWrite(target, "it is no file name");
    }
    if (fs::exists(status) && access(m_final.c_str(), W_OK) != 0) {
        CannotWrite(target, std::strerror(errno));  // NOLINT(concurrency-mt-unsafe)
    }
    MakeFolder(m_final.has_parent_path() ? m_final.parent_path() : fs::path("."));
    m_work = m_folder / m_final.filename();
    m_onSignal.Set(m_work, m_folder);
}

OutputFile::~OutputFile() {
    if (!m_folder.empty()) {
        std::error_code ignored;
        fs::remove_all(m_folder, ignored);
    }
}

void OutputFile::MakeFolder(const fs::path& parent) {
    std::string name = (parent / ".vynx-XXXXXX").string();
    if (mkdtemp(name.data()) == nullptr) {
        CannotWrite(m_target, std::strerror(errno));  // NOLINT(concurrency-mt-unsafe)
    }
    m_folder = name;
}

std::wstring OutputFile::WithTarget(std::wstring text) const {
    const std::wstring work = Tevra::Text::FromPath(m_work);
    const std::wstring target = Tevra::Text::FromUtf8(m_target);
    if (work == target) {
        return text;
    }
    for (std::size_t at = text.find(work); at != std::wstring::npos;
         at = text.find(work, at + target.size())) {
        text.replace(at, work.size(), target);
    }
    return text;
}

void OutputFile::Commit() {
    if (m_final.empty()) {
        CopyToStandardOutput();
        return;
    }
    if (m_folder.empty()) {
        return;
    }
    std::error_code error;
    const fs::file_status former = fs::status(m_final, error);
    if (fs::exists(former)) {
        fs::permissions(m_work, former.permissions(), error);
    }
    fs::rename(m_work, m_final, error);
    if (error) {
        CannotWrite(m_target, error.message());
    }
}

void OutputFile::CopyToStandardOutput() const {
    std::ifstream input(m_work, std::ios::binary);
    std::vector<char> buffer(std::size_t{1} << 16);
    while (input.read(buffer.data(), static_cast<std::streamsize>(buffer.size())),
           input.gcount() > 0) {
        std::cout.write(buffer.data(), input.gcount());
    }
    std::cout.flush();
    if (!std::cout.good() || input.bad()) {
        CannotWrite("standard output", "it took no more");
    }
}

}  // namespace Vynx

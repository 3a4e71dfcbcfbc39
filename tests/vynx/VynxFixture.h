#pragma once

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iostream>
#include <sstream>
#include <string>
#include <vector>

#include "support/TempFolder.h"
#include "support/TestPaths.h"
#include "vynx/CommandLine.h"

namespace Vynx {

namespace fs = std::filesystem;

using Names = std::vector<std::string>;

/// Runs vynx in this process and keeps what it prints.
class VynxTest : public ::testing::Test {
protected:
    int Run(std::vector<std::string> words) {
        words.insert(words.begin(), "vynx");
        std::vector<const char*> arguments(words.size());
        std::transform(words.begin(), words.end(), arguments.begin(),
                       [](const std::string& word) { return word.c_str(); });
        std::ostringstream out;
        std::ostringstream err;
        std::streambuf* const formerOut = std::cout.rdbuf(out.rdbuf());
        std::streambuf* const formerErr = std::cerr.rdbuf(err.rdbuf());
        const int status = Vynx::Run(static_cast<int>(arguments.size()), arguments.data());
        std::cout.rdbuf(formerOut);
        std::cerr.rdbuf(formerErr);
        m_out = out.str();
        m_err = err.str();
        return status;
    }
    std::string Path(const std::string& name) const { return (m_folder.Path() / name).string(); }
    std::string Write(const std::string& name, const std::string& text) const {
        std::ofstream(Path(name), std::ios::binary) << text;
        return Path(name);
    }
    std::string Content(const std::string& name) const {
        return Tevra::TestSupport::ReadFile(Path(name));
    }
    static std::string Footbridge() {
        return (Tevra::TestSupport::SourceDir() / "examples/footbridge.json").string();
    }
    /// Names in the folder of the test, hidden ones too.
    std::vector<std::string> Files() const {
        std::vector<std::string> names;
        for (const auto& entry : fs::directory_iterator(m_folder.Path())) {
            names.push_back(entry.path().filename().string());
        }
        std::sort(names.begin(), names.end());
        return names;
    }

    Tevra::TestSupport::TempFolder m_folder;
    std::string m_out;
    std::string m_err;
};

}  // namespace Vynx

#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace Tevra::Text {

/// The file-system path of a host path text; never throws on odd characters (see AppendUtf8).
std::filesystem::path ToPath(std::wstring_view text);

/// The host text of a file-system path, as the system writes it.
std::wstring FromPath(const std::filesystem::path& path);

}  // namespace Tevra::Text

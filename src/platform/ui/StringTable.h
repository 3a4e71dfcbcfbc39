#pragma once

#include <string>
#include <string_view>

namespace Tevra {

/// Number of the text for a file that could not be opened for writing; takes the file's name.
inline constexpr int kCannotOpenForWriting = 13137;

/// The library's own text of a number of the string table; empty for a number that is not in it.
std::wstring_view StringTableText(int number);

/// A text of the host's string table with its first "%s" replaced by a file name. The name is put
/// in as it is: nothing in it is taken as a format.
std::wstring FileMessage(int number, std::wstring_view fileName);

}  // namespace Tevra

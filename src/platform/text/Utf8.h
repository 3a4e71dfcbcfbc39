#pragma once

#include <string>
#include <string_view>

/// Host text (`std::wstring`) and the UTF-8 of files: the one place where the two are converted.
/// Nothing here throws on odd input; what cannot be converted becomes U+FFFD.
namespace Tevra::Text {

/// Appends the UTF-8 of host text. Surrogate pairs are joined, whatever the width of wchar_t; lone
/// surrogates and values outside Unicode become U+FFFD.
void AppendUtf8(std::string& out, std::wstring_view text);

/// UTF-8 of host text; see AppendUtf8.
std::string ToUtf8(std::wstring_view text);

/// Host text of UTF-8 bytes. Overlong forms, encoded surrogates, values above U+10FFFF, stray and
/// missing bytes become U+FFFD, one for each longest piece that could have begun a character.
/// A character above U+FFFF becomes a surrogate pair where wchar_t has 16 bits.
std::wstring FromUtf8(std::string_view bytes);

}  // namespace Tevra::Text

#pragma once

#include <string>
#include <string_view>

namespace Tevra {

/// Appends the UTF-8 of a name to a card or comment line. Each control character in it becomes a
/// blank: line ends would end the line, tabs would shift its fields, NUL would end it for readers.
void AppendCardText(std::string& out, std::wstring_view text);

/// UTF-8 of a name for a card or comment line; see AppendCardText.
std::string CardText(std::wstring_view text);

/// The host's local time in a strftime format; empty when that takes more than 127 characters.
std::string TimeText(const char* format);

}  // namespace Tevra

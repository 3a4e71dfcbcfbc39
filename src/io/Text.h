#pragma once

#include <string>
#include <string_view>

namespace Tevra {

/// Appends the UTF-8 of a name to a card or comment line. Each line feed and carriage return in it
/// becomes a blank, as it would end the line.
void AppendCardText(std::string& out, std::wstring_view text);

/// UTF-8 of a name for a card or comment line; see AppendCardText.
std::string CardText(std::wstring_view text);

/// The host's local time in a strftime format; empty when that takes more than 127 characters.
std::string TimeText(const char* format);

}  // namespace Tevra

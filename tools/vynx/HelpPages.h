#pragma once

namespace CLI {
class App;
}

namespace Vynx {

/// The group of the options that belong to formats; they stand with their formats in the manual.
inline constexpr const char* kFormatOptions = "Options of formats";

/// Prints the manual page of the command line, roff for man(7).
void PrintManual(const CLI::App& app);

/// Prints what makes bash complete the command line: commands, options, formats and the values
/// that options may have.
void PrintCompletion(const CLI::App& app);

}  // namespace Vynx

// Standard output, with errors reported.
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

namespace cli {

/// Prepares standard output and standard error to pass on all bytes unchanged, and a console to read them as UTF-8. To
/// be called once, before anything is written.
void PrepareOutput();

/// Writes to standard output, buffered.
/// \throws Failure when that fails
void Write(std::string_view text);

/// Writes the buffered text; to be called once, at the end.
/// \throws Failure when that fails
void Flush();

/// The width of the terminal; nothing when standard output is not a terminal.
std::optional<size_t> TerminalWidth();

/// Whether standard output is a terminal that obeys escape sequences.
bool HeedsEscapes();

}  // namespace cli

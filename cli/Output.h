// Standard output, as a stream whose failures are noticed.
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

namespace cli {

/// To be called once before anything is written: what is written comes out byte for byte, and a console takes it for
/// UTF-8.
void PrepareOutput();

/// Writes to standard output, buffered.
/// \throws Failure when the text cannot be written
void Write(std::string_view text);

/// Writes out what is buffered; to be called once at the end.
/// \throws Failure when it cannot be written
void Flush();

/// The columns of the terminal that standard output is; nothing when it is none.
std::optional<size_t> TerminalWidth();

/// Whether standard output is a terminal that takes escape sequences for commands.
bool HeedsEscapes();

}  // namespace cli

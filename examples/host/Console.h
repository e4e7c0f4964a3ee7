// The operator's console.
#pragma once

#include <string>

namespace host {

/// Call this once, before any output. From then on, output is written byte for byte, and a console interprets it as
/// UTF-8.
void PrepareConsole();

/// Reads a line that the operator types, as UTF-8 and without its line end.
/// \return whether there was one; if not, the input has ended
bool ReadLine(std::string& line);

}  // namespace host

// The operator's console.
#pragma once

#include <string>

namespace host {

/// To be called once before anything is shown: what is written comes out byte for byte, and a console takes it for
/// UTF-8.
void PrepareConsole();

/// Reads a line that the operator types, UTF-8, without its end.
/// \return whether there is one; if not, the input has ended
bool ReadLine(std::string& line);

}  // namespace host

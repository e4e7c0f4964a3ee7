// Runs the `vif` command under test.
#pragma once

#include "support/RunProgram.h"

#include <string>
#include <vector>

namespace testsupport {

inline ProgramResult Vif(std::vector<std::string> arguments, const ProgramSetting& setting = {}) {
  arguments.insert(arguments.begin(), VIF_COMMAND);
  return RunProgram(arguments, setting);
}

inline ProgramResult VifOnTerminal(std::vector<std::string> arguments, unsigned short columns) {
  arguments.insert(arguments.begin(), VIF_COMMAND);
  return RunOnTerminal(arguments, columns);
}

/// The path of an example file.
inline std::string Example(const std::string& name) { return std::string(VIF_EXAMPLES) + "/" + name; }

}  // namespace testsupport

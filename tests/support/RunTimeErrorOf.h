// The message of a failure.
#pragma once

#include "BaseUtilities/Exceptions.h"

#include <string>

namespace testsupport {

/// Runs the action and returns the message of the CZoRunTimeException that it must end with; a text that is no
/// message of the library when it ends without one. Other exceptions pass.
template <typename Action>
std::string RunTimeErrorOf(const Action& action) {
  try {
    action();
  } catch (const CZoRunTimeException& error) {
    return error.what();
  }
  return "<no exception>";
}

}  // namespace testsupport

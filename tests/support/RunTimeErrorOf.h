// The message of an expected exception.
#pragma once

#include "BaseUtilities/Exceptions.h"

#include <string>

namespace testsupport {

/// Runs the action, which must throw a CZoRunTimeException, and returns its message; if nothing is thrown, a text that
/// is not a message of the library. Other exceptions pass.
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

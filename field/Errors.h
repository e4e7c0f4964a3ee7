// How the library raises its own exceptions.
#pragma once

#include "BaseUtilities/Exceptions.h"
#include "BaseUtilities/SimpleBuffer.h"

namespace vif {

/// This thread's scratch buffer for the messages of exceptions, created on first use in the thread.
CSimpleBuffer& MessageBuffer();

/// Throws `CZoRunTimeException` with the formatted message.
template <typename... Arguments>
[[noreturn]] void ThrowRunTimeError(const char* format, const Arguments&... arguments) {
  throw CZoRunTimeException(MessageBuffer().Printf(format, arguments...));
}

/// Throws `CZoDOMDocException` with the formatted message.
template <typename... Arguments>
[[noreturn]] void ThrowDomDocError(const char* format, const Arguments&... arguments) {
  throw CZoDOMDocException(MessageBuffer().Printf(format, arguments...));
}

}  // namespace vif

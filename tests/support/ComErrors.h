// What an error of COM says, where the systems say it differently.
#pragma once

#include "msxml/ComTypes.h"
#include "msxml/MsXml.h"

namespace testsupport {

/// The interface whose call failed.
inline IID FailedInterface(const _com_error& error) {
#ifdef __MINGW32__
  return error.GUID_();
#elif defined(_WIN32)
  return error.GUID();
#else
  return error.InterfaceId();
#endif
}

}  // namespace testsupport

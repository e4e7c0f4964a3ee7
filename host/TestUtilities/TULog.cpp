#include "TestUtilities/TULog.h"

#include "BaseUtilities/ThreadBuffer.h"

CTULog::~CTULog() = default;

CSimpleBuffer& CTULog::GetSimpleBuffer() { return ThreadBuffer<CTULog>(); }

eZoLogVerbosity CTULog::GetDefaultLogVerbosity(TEST_STATUS status) noexcept {
  constexpr TEST_STATUS information = 0x4000000;
  return status == information ? eZoLogVerbosityStandard : eZoLogVerbosityAlways;
}

TEST_STATUS CTULog::DoWrite(TEST_STATUS status, eZoLogVerbosity, const CFormatInfo*, const char*) { return status; }

TEST_STATUS CTULog::DoWrite(TEST_STATUS status, eZoLogVerbosity, const CFormatInfo*, const wchar_t*) { return status; }

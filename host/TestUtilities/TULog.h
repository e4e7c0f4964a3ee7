// The host's log.
#pragma once

#include "BaseUtilities/HostExport.h"
#include "BaseUtilities/SimpleBuffer.h"

#include <cstdint>

/// The status of a test, of a step of one, or of a log line. The values that the library uses:
///
/// | value      | as a result                                | of a log line                              |
/// |------------|--------------------------------------------|--------------------------------------------|
/// | 1          | the hook did its work                      |                                            |
/// | 0x4000000  |                                            | information, and failures of loading       |
/// | 0x40000000 | the hook refuses: the host lacks something | why it refuses; failures of COM            |
/// |            | that it needs, or no file was chosen       |                                            |
using TEST_STATUS = std::uint32_t;

/// How verbose the log must be for a line to appear.
enum eZoLogVerbosity : std::int32_t {
  eZoLogVerbosityAlways = 0,    ///< at any setting
  eZoLogVerbosityStandard = 1,  ///< unless the log is set to be quiet
  eZoLogVerbosityDetailed = 2,  ///< only if the log is set to show everything
};

/// How to lay out a line. The library always passes null, which leaves that to the log.
class CFormatInfo;

/// Receives the lines of a log. A host or a test derives from it; this class itself discards them.
///
/// The library writes to a log on the thread that calls a hook.
class ZO_API CTULog {
 public:
  CTULog() = default;
  CTULog(const CTULog&) = delete;
  CTULog& operator=(const CTULog&) = delete;
  virtual ~CTULog();

  /// This thread's buffer, in which lines are formatted before they are written; created on first use. A line is valid
  /// until the next is formatted, so a log that keeps one must copy it.
  static CSimpleBuffer& GetSimpleBuffer();

  /// How verbose a log must be to show lines of a status: `eZoLogVerbosityStandard` for 0x4000000;
  /// `eZoLogVerbosityAlways` for refusals, 0x40000000, and all others.
  static eZoLogVerbosity GetDefaultLogVerbosity(TEST_STATUS status) noexcept;

  /// Receives a line.
  /// \param status the line's
  /// \param verbosity how verbose the log must be for the line to appear
  /// \param format may be null
  /// \param text UTF-8, except for the bytes of file names that are not; without a line end; borrowed for the call,
  ///   never null
  /// \return any status; the library ignores it. This class returns the line's
  virtual TEST_STATUS DoWrite(TEST_STATUS status, eZoLogVerbosity verbosity, const CFormatInfo* format,
                              const char* text);

  /// The same with wide text.
  virtual TEST_STATUS DoWrite(TEST_STATUS status, eZoLogVerbosity verbosity, const CFormatInfo* format,
                              const wchar_t* text);
};

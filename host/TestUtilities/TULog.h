// The host's log.
#pragma once

#include "BaseUtilities/HostExport.h"
#include "BaseUtilities/SimpleBuffer.h"

#include <cstdint>

/// The status of a test, of a step of one, or of a log line. The values that the library uses:
///
/// | value      | as a result                                | of a log line                              |
/// |------------|--------------------------------------------|--------------------------------------------|
/// | 1          | the hook has done its work                 |                                            |
/// | 0x4000000  |                                            | information, and failures of loading       |
/// | 0x40000000 | the hook refuses: something of the host's  | why it refuses; failures of COM            |
/// |            | is missing, or no file was chosen          |                                            |
using TEST_STATUS = std::uint32_t;

/// How eager the log must be for a line to appear.
enum eZoLogVerbosity : std::int32_t {
  eZoLogVerbosityAlways = 0,    ///< whatever the log is set to
  eZoLogVerbosityStandard = 1,  ///< unless the log is set to be quiet
  eZoLogVerbosityDetailed = 2,  ///< only if the log is set to say everything
};

/// How a line is to be laid out. The library always hands in null, which leaves it to the log.
class CFormatInfo;

/// Receives the lines of a log. A host or a test derives from it; what this class itself receives goes nowhere.
///
/// A log is written to from the thread that calls a hook.
class ZO_API CTULog {
 public:
  CTULog() = default;
  CTULog(const CTULog&) = delete;
  CTULog& operator=(const CTULog&) = delete;
  virtual ~CTULog();

  /// This thread's buffer, into which lines are formatted before they are written; made on first use. A line is valid
  /// until the next is formatted, so a log that keeps one must copy it.
  static CSimpleBuffer& GetSimpleBuffer();

  /// How eager a log must be for lines of a status: `eZoLogVerbosityAlways` for the refusals, 0x40000000, and any other
  /// status but 0x4000000; `eZoLogVerbosityStandard` for that one.
  static eZoLogVerbosity GetDefaultLogVerbosity(TEST_STATUS status) noexcept;

  /// Takes a line.
  /// \param format may be null
  /// \param text UTF-8 but for the bytes of file names that are not, without a line end; borrowed for the call, never
  ///   null
  /// \return a status of the log's choosing, which the library ignores; this class returns the line's
  virtual TEST_STATUS DoWrite(TEST_STATUS status, eZoLogVerbosity verbosity, const CFormatInfo* format,
                              const char* text);

  /// The same with wide text.
  virtual TEST_STATUS DoWrite(TEST_STATUS status, eZoLogVerbosity verbosity, const CFormatInfo* format,
                              const wchar_t* text);
};

// The host's log: on the terminal and in a file.
#pragma once

#include <TestUtilities/TULog.h>

#include <fstream>
#include <string>

namespace host {

/// Writes every line with its time (UTC) and status, such as
///
///     2026-03-01T09:30:00Z 0x04000000 INFO  Initializing VIF...
///
/// Both overloads of `DoWrite` are needed: the library uses the narrow and the wide one. The verbosity says which lines
/// a log may omit; this one omits none.
class CHostLog : public CTULog {
 public:
  /// \param file the log is appended to it, so that no run's record is lost
  /// \throws std::runtime_error if it cannot be opened
  explicit CHostLog(const std::string& file);

  TEST_STATUS DoWrite(TEST_STATUS status, eZoLogVerbosity verbosity, const CFormatInfo* format,
                      const char* text) override;
  TEST_STATUS DoWrite(TEST_STATUS status, eZoLogVerbosity verbosity, const CFormatInfo* format,
                      const wchar_t* text) override;

  /// Writes a line of the host's own.
  void Write(TEST_STATUS status, const std::string& text);

  /// Whether every line has reached the terminal and the file. A log must not throw when it is written to, and the
  /// library would catch the exception anyway; so whoever needs the record checks this at the end.
  bool IsComplete();

 private:
  std::ofstream m_file;
};

}  // namespace host

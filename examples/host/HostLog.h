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
/// Both overloads of `DoWrite` must be there: the library uses the narrow and the wide one. The verbosity says which
/// lines a log may leave out; this one leaves out none.
class CHostLog : public CTULog {
 public:
  /// \param file what is written is added to its end, so that no run's record is lost
  /// \throws std::runtime_error when it cannot be opened
  explicit CHostLog(const std::string& file);

  TEST_STATUS DoWrite(TEST_STATUS status, eZoLogVerbosity verbosity, const CFormatInfo* format,
                      const char* text) override;
  TEST_STATUS DoWrite(TEST_STATUS status, eZoLogVerbosity verbosity, const CFormatInfo* format,
                      const wchar_t* text) override;

  /// A line of the host's own.
  void Write(TEST_STATUS status, const std::string& text);

  /// Whether every line has reached the terminal and the file. A log must not throw at those who write to it, and the
  /// library would catch what it throws; so whoever needs the record asks at the end.
  bool IsComplete();

 private:
  std::ofstream m_file;
};

}  // namespace host

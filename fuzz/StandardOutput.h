// Captures what is written to the standard streams.
#pragma once

#include <cstddef>
#include <cstdio>
#include <ios>
#include <sstream>
#include <string>
#include <string_view>

namespace fuzz {

/// Captures what is written to a stream of the C library while the object lives.
class CTakenStream {
 public:
  /// \param stream stdout or stderr
  explicit CTakenStream(std::FILE*& stream);
  CTakenStream(const CTakenStream&) = delete;
  CTakenStream& operator=(const CTakenStream&) = delete;
  ~CTakenStream();

  /// Valid until more is written.
  std::string_view Text();

 private:
  std::FILE*& m_stream;
  std::FILE* m_original;
  char* m_text = nullptr;
  std::size_t m_size = 0;
};

/// Captures what a program writes while the object lives.
class CTakenOutput {
 public:
  CTakenOutput();
  CTakenOutput(const CTakenOutput&) = delete;
  CTakenOutput& operator=(const CTakenOutput&) = delete;
  ~CTakenOutput();

  std::string Output() { return m_coutText.str().append(m_stdout.Text()); }
  std::string Errors() { return std::string(m_stderr.Text()); }

 private:
  CTakenStream m_stdout;
  CTakenStream m_stderr;
  std::ostringstream m_coutText;
  std::streambuf* m_coutBuffer;
};

}  // namespace fuzz

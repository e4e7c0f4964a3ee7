#include "StandardOutput.h"

#include "Checks.h"

#include <cstdlib>
#include <iostream>

namespace fuzz {

// Output of the sanitizers and libFuzzer goes elsewhere: they keep using the original streams.
CTakenStream::CTakenStream(std::FILE*& stream) : m_stream(stream), m_original(stream) {
  m_stream = open_memstream(&m_text, &m_size);
  Require(m_stream != nullptr, "a stream in memory can be created");
}

CTakenStream::~CTakenStream() {
  std::fclose(m_stream);
  m_stream = m_original;
  std::free(m_text);
}

std::string_view CTakenStream::Text() {
  std::fflush(m_stream);
  return {m_text, m_size};
}

CTakenOutput::CTakenOutput() : m_stdout(stdout), m_stderr(stderr), m_coutBuffer(std::cout.rdbuf(m_coutText.rdbuf())) {}

CTakenOutput::~CTakenOutput() { std::cout.rdbuf(m_coutBuffer); }

}  // namespace fuzz

// A stream buffer that delivers and fails exactly as a test wants.
#pragma once

#include <functional>
#include <streambuf>
#include <string>
#include <utility>
#include <vector>

namespace testsupport {

/// Delivers the given pieces, none of them empty, one by one. At their end it first runs an action of the test, which
/// may throw, and then reports the end of the stream.
class ScriptedBuffer : public std::streambuf {
 public:
  explicit ScriptedBuffer(
      std::vector<std::string> pieces, std::function<void()> atEnd = [] {})
      : m_pieces(std::move(pieces)), m_atEnd(std::move(atEnd)) {}

 protected:
  int_type underflow() override {
    if (m_next == m_pieces.size()) {
      m_atEnd();
      return traits_type::eof();
    }
    std::string& piece = m_pieces[m_next++];
    setg(piece.data(), piece.data(), piece.data() + piece.size());
    return traits_type::to_int_type(piece.front());
  }

 private:
  std::vector<std::string> m_pieces;
  std::function<void()> m_atEnd;
  size_t m_next = 0;
};

}  // namespace testsupport

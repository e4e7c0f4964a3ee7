// A stream buffer that delivers and fails just as a test wants it to.
#pragma once

#include <functional>
#include <streambuf>
#include <string>
#include <utility>
#include <vector>

namespace testsupport {

/// Delivers the given pieces, none of them empty, one by one, then does what the test asks for at the end, which
/// may be to throw, and then is at its end.
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

// Reads bytes in memory as a stream.
#pragma once

#include <istream>
#include <streambuf>
#include <string_view>

namespace vif {

/// A stream over bytes in memory, which it borrows and does not copy.
class CContentStream : public std::istream {
 public:
  explicit CContentStream(std::string_view content) : std::istream(nullptr), m_buffer(content) { rdbuf(&m_buffer); }

 private:
  class CBuffer : public std::streambuf {
   public:
    explicit CBuffer(std::string_view content) {
      char* begin = const_cast<char*>(content.data());  // a buffer for reading is never written to
      setg(begin, begin, begin + content.size());
    }
  };

  CBuffer m_buffer;
};

}  // namespace vif

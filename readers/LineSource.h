// Reads a stream line by line.
#pragma once

#include <istream>
#include <string>
#include <string_view>
#include <vector>

namespace vif {

/// Splits a stream at LF, which is not part of the lines. What follows the last LF is a line too, even if empty.
///
/// `std::getline` would not do: it treats running out of memory as a read error, which by default goes unreported.
class CLineSource {
 public:
  /// \param stream read from its current position; its exception mask is respected
  /// \param pathText the file's name for messages
  CLineSource(std::istream& stream, std::string pathText);

  /// Reads the next line. Returns false when there is none, or when it could not be read to its end.
  /// \param line valid until the next call
  /// \throws CZoRunTimeException "I/O read failure on Vendor Info File <path>: <reason>" when the stream reports a
  ///   failure by exception before its end
  bool Next(std::string_view& line);

  /// Whether reading ended with an error that the stream did not report by exception.
  bool HasFailed() const { return m_hasFailed; }

 private:
  bool Refill();
  bool AwaitData();

  std::istream& m_stream;
  std::string m_pathText;
  std::vector<char> m_chunk;
  std::string_view m_unread;  // the part of the chunk after the last line
  std::string m_line;         // a line that spans chunks
  bool m_hasEnded = false;
  bool m_hasFailed = false;
};

}  // namespace vif

// The lines of a stream, one by one.
#pragma once

#include <istream>
#include <string>
#include <string_view>
#include <vector>

namespace vif {

/// Cuts a stream into lines at LF, without the LF; what follows the last LF is a line too, even if empty.
///
/// `std::getline` is no choice here: it takes memory that runs out for a read error, which by default is not
/// reported at all.
class CLineSource {
 public:
  /// \param stream read from where it stands; its exception mask is respected
  /// \param pathText the file's name for messages
  CLineSource(std::istream& stream, std::string pathText);

  /// Moves on to the next line. Returns false when there is none, or when it could not be read to its end.
  /// \param line the line, valid until the next call
  /// \throws CZoRunTimeException "I/O read failure on Vendor Info File <path>: <reason>" when the stream reports a
  ///   failure by exception and is not at its end
  bool Next(std::string_view& line);

  /// Whether reading ended with an error of which the stream made no exception.
  bool HasFailed() const { return m_hasFailed; }

 private:
  bool Refill();
  bool AwaitData();

  std::istream& m_stream;
  std::string m_pathText;
  std::vector<char> m_chunk;
  std::string_view m_unread;  // the part of the chunk behind the last line
  std::string m_line;         // a line that goes over the end of a chunk
  bool m_hasEnded = false;
  bool m_hasFailed = false;
};

}  // namespace vif

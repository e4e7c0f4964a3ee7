// The content of an XML file, before it reaches a parser.
#pragma once

#include "xmlfile/Problems.h"

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace xmlfile {

/// In bytes. Larger files are refused: the counters of the parsers and their strings overflow at twice that.
constexpr std::size_t kLargestFile = std::size_t{1} << 30;

/// A file's bytes, and enough of their decoding to find the tags.
struct FileText {
  std::string bytes;  ///< as in the file, except that two declarations are blanked out: `encoding="utf8"`, because
                      ///< UTF-8 is the default and MSXML does not know that name; and UTF-8 in UTF-16, which the file's
                      ///< byte order mark overrules
  std::string decoded;   ///< UTF-16 as UTF-8; empty when ASCII bytes always mean ASCII characters
  std::size_t mark = 0;  ///< the length of the byte order mark, in bytes
  bool isUtf8 = false;   ///< whether the text is UTF-8; if not, each byte counts as a character

  /// Text in which ASCII bytes always mean ASCII characters, without a byte order mark.
  std::string_view Text() const { return decoded.empty() ? std::string_view(bytes).substr(mark) : decoded; }

  /// The offset in the bytes of the character at an offset in the text.
  std::size_t ByteOffset(std::size_t offset) const;
};

/// Reads a regular file and determines its encoding.
/// \param problems receives the reason when the file cannot be read or its encoding is not supported
/// \return nothing when there is a problem
std::optional<FileText> ReadFileText(const std::filesystem::path& path, CProblems& problems);

/// The same for bytes in memory, with the same result as for a file of these bytes.
std::optional<FileText> ReadFileText(std::string_view content, CProblems& problems);

}  // namespace xmlfile

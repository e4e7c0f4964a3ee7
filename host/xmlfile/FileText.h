// The content of an XML file, before a parser looks at it.
#pragma once

#include "xmlfile/Problems.h"

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace xmlfile {

/// In bytes. Larger files are refused: the numbers that the parsers and their strings count in end at twice that.
constexpr std::size_t kLargestFile = std::size_t{1} << 30;

/// A file's bytes, and as much of their meaning as it takes to find the tags in them.
struct FileText {
  std::string bytes;    ///< as they are in the file, except that `encoding="utf8"` is blanked out: UTF-8 is what counts
                        ///< without it, and MSXML knows no encoding of that name; so is UTF-8 in UTF-16, which the
                        ///< file's byte order mark overrules
  std::string decoded;  ///< UTF-16 as UTF-8; empty when the bytes of ASCII characters stand for nothing else anyway
  std::size_t mark = 0;  ///< the length of the byte order mark in the bytes
  bool isUtf8 = false;   ///< whether the text is UTF-8; else each of its bytes is taken for a character

  /// Text in which the bytes of ASCII characters stand for nothing else. It has no byte order mark.
  std::string_view Text() const { return decoded.empty() ? std::string_view(bytes).substr(mark) : decoded; }

  /// Where the character that begins at an offset in the text begins in the bytes.
  std::size_t ByteOffset(std::size_t offset) const;
};

/// Reads a regular file and finds its encoding.
/// \param problems receives the reason when it cannot be read or its encoding is not supported
/// \return nothing when there is a problem
std::optional<FileText> ReadFileText(const std::filesystem::path& path, CProblems& problems);

}  // namespace xmlfile

// The content of an XML file, before MSXML has a look at it.
#pragma once

#include "msxml/Problems.h"

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>

namespace msxml6 {

/// In bytes. Larger files are refused: the numbers that MSXML and its strings count in end at twice that.
constexpr std::size_t kLargestFile = std::size_t{1} << 30;

/// A file's bytes, and as much of their meaning as it takes to find the tags in them.
struct FileText {
  std::string bytes;    ///< as they are in the file, but for `encoding="utf8"`, which is blanked out: UTF-8 is what
                        ///< counts without it, and MSXML knows no encoding of that name; so is UTF-8 in UTF-16, which
                        ///< the file's byte order mark overrules
  std::string ascii;    ///< text in which the bytes of ASCII characters stand for nothing else
  bool isUtf8 = false;  ///< whether `ascii` is UTF-8; else each of its bytes is taken for a character
};

/// Reads a regular file and finds out its encoding.
/// \param problems receives the reason when it cannot be read or its encoding is not one that is supported
/// \return nothing when there is a problem
std::optional<FileText> ReadFileText(const std::filesystem::path& path, msxml::CProblems& problems);

}  // namespace msxml6

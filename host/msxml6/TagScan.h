// Finds the tags of an XML file.
#pragma once

#include "msxml/Problems.h"
#include "msxml6/FileText.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace msxml6 {

/// A start tag.
struct Tag {
  static constexpr std::uint32_t kNone = 0;  // the document stands there

  std::uint32_t line = 0;            ///< where it begins, from 1
  std::uint32_t column = 0;          ///< in characters, from 1
  std::uint32_t firstChild = kNone;  ///< of the elements in it
  std::uint32_t lastChild = kNone;
  std::uint32_t nextSibling = kNone;  ///< the next element beside it
};

/// What a file's tags tell.
struct TagScan {
  std::vector<Tag> tags;                  ///< the start tags in their order, behind one that stands for the document
  std::optional<DOMDocProblem> mismatch;  ///< the first start or end tag without the other, if there is one
};

/// Looks through a file for what MSXML is not to see, would take too long for or does not always find, names whose
/// prefix is not declared, and for where its elements stand. It knows just enough of XML to find the tags of a
/// well-formed file and does not check whether it is one.
/// \param problems receives the reason when the file goes beyond the bounds or its prefixes are not right
TagScan ScanTags(const FileText& file, msxml::CProblems& problems);

}  // namespace msxml6

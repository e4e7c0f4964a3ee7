// Places in an XML file.
#pragma once

#include "xmlfile/FileText.h"

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace xmlfile {

/// A line and a character in it, both from 1.
struct Place {
  std::uint32_t line = 1;
  std::uint32_t column = 1;
};

/// Counts lines and characters.
class CPlaceCounter {
 public:
  /// \param file must outlive this object
  explicit CPlaceCounter(const FileText& file) : m_text(file.Text()), m_isUtf8(file.isUtf8) {}

  /// The place of an offset in the text. Offsets must not decrease from call to call.
  Place At(std::size_t offset);

 private:
  std::string_view m_text;
  bool m_isUtf8;
  std::size_t m_at = 0;
  Place m_place;
};

/// A start tag.
struct Tag {
  static constexpr std::uint32_t kNone = 0;  // index 0 is the document's entry

  Place place;                        ///< where the tag begins
  std::uint32_t firstChild = kNone;   ///< the first child element
  std::uint32_t lastChild = kNone;    ///< the last child element
  std::uint32_t nextSibling = kNone;  ///< the next sibling element
};

/// The start tags of a well-formed file in order, after an entry for the document.
std::vector<Tag> FindTags(const FileText& file);

}  // namespace xmlfile

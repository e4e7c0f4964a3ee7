// Where things stand in an XML file.
#pragma once

#include "xmlfile/FileText.h"

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace xmlfile {

/// A line, and a character in it; both from 1.
struct Place {
  std::uint32_t line = 1;
  std::uint32_t column = 1;
};

/// Counts lines and characters.
class CPlaceCounter {
 public:
  /// \param file must live as long
  explicit CPlaceCounter(const FileText& file) : m_text(file.Text()), m_isUtf8(file.isUtf8) {}

  /// The place of an offset in the text, which must not be smaller than the one asked for before.
  Place At(std::size_t offset);

 private:
  std::string_view m_text;
  bool m_isUtf8;
  std::size_t m_at = 0;
  Place m_place;
};

/// A start tag.
struct Tag {
  static constexpr std::uint32_t kNone = 0;  // the document stands there

  Place place;                        ///< where it begins
  std::uint32_t firstChild = kNone;   ///< of the elements in it
  std::uint32_t lastChild = kNone;    ///< of these
  std::uint32_t nextSibling = kNone;  ///< the next element beside it
};

/// The start tags of a well-formed file in their order, after one that stands for the document.
std::vector<Tag> FindTags(const FileText& file);

}  // namespace xmlfile

// Finds the tags of an XML file.
#pragma once

#include <cstddef>
#include <string_view>

namespace xmlfile {

/// What stands from a "<" to its end.
struct Markup {
  enum class Kind { StartTag, EmptyTag, EndTag, Comment, CData, Instruction, DocumentType, Declaration };

  Kind kind = Kind::Declaration;
  std::size_t begin = 0;
  std::size_t end = 0;         ///< the end of the text when it has none of its own
  std::size_t attributes = 0;  ///< of a start tag; declarations of namespaces included
  std::size_t namespaces = 0;  ///< how many of these are such declarations
  bool isBroken = false;       ///< whether a start tag has a "<" in it, so that a parser may take that for the next tag
};

/// The name that begins at an offset; empty when none does.
std::string_view NameAt(std::string_view text, std::size_t begin);

/// Goes from one piece of markup to the next. It knows just enough of XML to find the tags of a well-formed text;
/// whether it is well-formed is for others to say. Where it is not, all is right up to the first mistake.
class CMarkupReader {
 public:
  /// \param text one in which the bytes of ASCII characters stand for nothing else; borrowed
  explicit CMarkupReader(std::string_view text) : m_text(text) {}

  /// \return false when there is no more markup
  bool Next(Markup& markup);

 private:
  bool IsAt(std::string_view opening) const { return m_text.substr(m_at).starts_with(opening); }
  std::size_t EndOf(std::string_view closing, std::size_t from) const;
  void ReadStartTag(Markup& markup) const;
  void ReadOther(Markup& markup) const;

  std::string_view m_text;
  std::size_t m_at = 0;
};

}  // namespace xmlfile

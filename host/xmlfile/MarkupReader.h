// Finds the tags of an XML file.
#pragma once

#include <cstddef>
#include <string_view>

namespace xmlfile {

/// A piece of markup, from "<" to its end.
struct Markup {
  enum class Kind { StartTag, EmptyTag, EndTag, Comment, CData, Instruction, DocumentType, Declaration };

  Kind kind = Kind::Declaration;
  std::size_t begin = 0;
  std::size_t end = 0;         ///< the end of the text when the markup does not end
  std::size_t attributes = 0;  ///< of a start tag, including namespace declarations
  std::size_t namespaces = 0;  ///< how many of these are namespace declarations
  bool isBroken = false;       ///< whether a start tag contains a "<", which a parser may take for the next tag
};

/// The name at an offset; empty if there is none.
std::string_view NameAt(std::string_view text, std::size_t begin);

/// Iterates over the markup. It knows just enough XML to find the tags of a well-formed text; it does not check whether
/// the text is well-formed. In a malformed text, the results are right up to the first error.
class CMarkupReader {
 public:
  /// \param text in which ASCII bytes always mean ASCII characters; borrowed
  explicit CMarkupReader(std::string_view text) : m_text(text) {}

  /// \return false at the end
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

// Keeps tags within bounds.
#pragma once

#include "msxml/Limits.h"

#include <cstddef>
#include <string_view>

namespace msxml {

/// Looks at the bytes of an XML file on their way to the parser, for tags with so many attributes that the parser,
/// which compares each with all others, would take minutes. It knows just enough of XML to find the tags in it.
///
/// It understands UTF-16, by the file's first two bytes, and any encoding in which the bytes of ASCII characters stand
/// for nothing else.
class CTagGuard {
 public:
  /// Looks at the next bytes.
  /// \return false when a tag goes beyond the bounds, now or before
  bool Take(const char* bytes, std::size_t count);

  bool HasTripped() const { return m_attributes > kMostAttributes; }

  /// The line of the last character, from 1.
  std::size_t Line() const { return m_line; }

  /// Whether the file is taken for UTF-16.
  bool IsUtf16() const { return m_form == Form::LittleEndian || m_form == Form::BigEndian; }

 private:
  enum class Form { Unknown, FirstByte, Bytes, LittleEndian, BigEndian };
  enum class State { Text, Opening, Tag, Value, Declaration, CommentOpening, Comment, CData, Instruction };

  const char* SkipDull(const char* at, const char* end);
  const char* SkipShortTag(const char* at, const char* end);
  void Remember(std::string_view skipped);
  void TakeByte(char byte);
  void TakeHalf(char byte);
  void TakeCharacter(char c);
  void LeaveAtTwice(char twice, char c);

  Form m_form = Form::Unknown;
  char m_firstByte = '\0';  // of the file, or of a character of UTF-16
  bool m_hasHalf = false;
  State m_state = State::Text;
  char m_quote = '\0';      // of the value
  char m_last = '\0';       // the character before
  char m_oneBefore = '\0';  // and the one before that
  std::size_t m_attributes = 0;
  std::size_t m_line = 1;
};

}  // namespace msxml

// Keeps tags within bounds.
#pragma once

#include <cstddef>

namespace msxml {

/// Looks at the bytes of an XML file on their way to the parser, for tags with so many attributes that the parser,
/// which compares each with all others, would take minutes. It knows just enough of XML to find the tags in it, in any
/// encoding in which ASCII characters have their bytes, with NULs between them or not.
class CTagGuard {
 public:
  static constexpr std::size_t kMostAttributes = 1'000;  // in one tag, declarations of namespaces included

  /// Looks at the next bytes.
  /// \return false when a tag goes beyond the bounds, now or before
  bool Take(const char* bytes, std::size_t count);

  bool HasTripped() const { return m_attributes > kMostAttributes; }

  /// The line of the last byte, from 1.
  std::size_t Line() const { return m_line; }

 private:
  enum class State { Text, Opening, Tag, Value, Declaration, Comment, CData, Instruction };

  void TakeCharacter(char c);
  void LeaveAtTwice(char twice, char c);

  State m_state = State::Text;
  char m_quote = '\0';      // of the value
  char m_last = '\0';       // the character before
  char m_oneBefore = '\0';  // and the one before that
  std::size_t m_attributes = 0;
  std::size_t m_line = 1;
};

}  // namespace msxml
